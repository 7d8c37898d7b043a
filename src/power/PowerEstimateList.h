#pragma once

#include <string>
#include <string_view>

#include "power/modPowerSheet.h"

namespace tarnwick {

/// The estimates as a list of lines that scrolls; frmPowerEst is its window.
class PowerEstimateList {
 public:
  /// @param feedIndex  GulletFeedIndex, the one that the rows are built with
  PowerEstimateList(double feedIndex, const DisplayFormat& format) : feedIndex_(feedIndex), format_(format) {}

  /// Takes what it shows.
  /// @param percent  by which the feed rate rises; its whole part counts
  void GetPowerReq(const PowerEstimates& rows, double percent) {
    rows_ = rows;
    percent_ = percent;
  }

  [[nodiscard]] std::string Heading() const { return EstimateHeading(percent_, LinesFor::Window); }
  [[nodiscard]] static std::string_view Note() { return EstimateNote; }  // of lblNote
  [[nodiscard]] PowerLines Lines() const { return Lines(LinesFor::Window); }

  // The same on paper, for the print buttons of this window and of frmPower.
  [[nodiscard]] std::string PaperHeading() const { return EstimateHeading(percent_, LinesFor::Paper); }
  [[nodiscard]] PowerLines PaperLines() const { return Lines(LinesFor::Paper); }

  void PressOk() { open_ = false; }  // and the window's own button
  [[nodiscard]] bool IsOpen() const { return open_; }

 private:
  [[nodiscard]] PowerLines Lines(LinesFor place) const {
    return EstimateLines(rows_, feedIndex_, format_, place);
  }

  PowerEstimates rows_{};
  double percent_ = 0;
  double feedIndex_;
  DisplayFormat format_;
  bool open_ = true;
};

}  // namespace tarnwick
