#pragma once

#include <string>
#include <string_view>

#include "power/modPowerSheet.h"

namespace tarnwick {

/// The estimates as a list of lines that scrolls; frmPowerEst is its window.
class PowerEstimateList {
 public:
  /// @param percent    by which the feed rate rises; shown without its decimals
  /// @param feedIndex  GulletFeedIndex as it was when the rows were built
  PowerEstimateList(const PowerEstimates& rows, double percent, double feedIndex, const DisplayFormat& format)
      : rows_(rows), percent_(percent), feedIndex_(feedIndex), format_(format) {}

  [[nodiscard]] std::string Heading() const { return EstimateHeading(percent_, LinesFor::Window); }
  [[nodiscard]] static std::string_view Note() { return EstimateNote; }  // of lblNote
  [[nodiscard]] PowerLines Lines() const { return Lines(LinesFor::Window); }

  // The same on paper, for the print buttons of this window and of frmPower.
  [[nodiscard]] std::string PaperHeading() const { return EstimateHeading(percent_, LinesFor::Paper); }
  [[nodiscard]] PowerLines PaperLines() const { return Lines(LinesFor::Paper); }

  /// How far vscPowerInfo goes, from 0: the height of all lines less that of picContain, in the unit of both.
  /// 0 when all lines fit, and the bar is hidden then. The top of the lines is minus the bar's value.
  [[nodiscard]] static int ScrollRange(int linesHeight, int containHeight) {
    return linesHeight > containHeight ? linesHeight - containHeight : 0;
  }

  void PressOk() { open_ = false; }  // and the window's own button
  [[nodiscard]] bool IsOpen() const { return open_; }

 private:
  [[nodiscard]] PowerLines Lines(LinesFor place) const {
    return EstimateLines(rows_, feedIndex_, format_, place);
  }

  PowerEstimates rows_;
  double percent_, feedIndex_;
  DisplayFormat format_;
  bool open_ = true;
};

}  // namespace tarnwick
