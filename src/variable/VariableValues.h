#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "entry/modFormat.h"
#include "variable/modPattern.h"

namespace tarnwick {

/// How one row of the variable pitch editor stands.
struct SegmentRow {
  bool Shown{};
  bool PitchOpens{};  // a press on the pitch asks for it; that of the last tooth is worked out
  bool DepthOpens{};
  bool operator==(const SegmentRow&) const = default;
};

/// The working values of the variable pitch editor and what its controls show of them. Lengths in inches.
struct VariableValues {
  static constexpr int Rows = MostSegmentTeeth;
  static constexpr int NoEntry = -1;

  std::array<double, 8> ToothPitch{};  // of each tooth of the segment
  std::array<double, 8> ToothDepth{};  // gullet depth of each tooth
  std::int16_t SegmentTeeth{};         // teeth in the segment: 0 for none, or 3 to 7
  double AveragePitch{};
  double MaxPitch{}, MinPitch{};  // limits of a tooth's pitch
  double BaseDepth{};             // of the tooth that all are made from
  double MinToothDepth{}, MaxToothDepth{};
  double SegmentSize{};        // length of the segment
  std::int16_t NumSegments{};  // on the band
  bool DepthIsVariable{};      // the state of chkVarDepth
  bool Loading{};              // the panel is being filled: its controls do nothing

  bool IsFilled{};                   // false: there has been no band to show, all boxes are empty
  std::int16_t NumTeeth{};           // on the band
  std::vector<std::string> Entries;  // of cboPattern
  int Entry = NoEntry;               // the one selected
  int Pattern = NoPattern;           // the option of optPattern that is set

  [[nodiscard]] SegmentRow Row(int k) const;

  // What the boxes show.
  [[nodiscard]] std::string PitchText(int k, const DisplayFormat& format) const;
  [[nodiscard]] std::string DepthText(int k, const DisplayFormat& format) const;
  [[nodiscard]] std::string AveragePitchText(const DisplayFormat& format) const;
  [[nodiscard]] std::string AverageDepthText(const DisplayFormat& format) const;
  [[nodiscard]] std::string NumTeethText() const;
  [[nodiscard]] std::string NumSegmentsText() const;
  [[nodiscard]] std::string SegmentSizeText(const DisplayFormat& format) const;

  bool operator==(const VariableValues&) const = default;

 private:
  [[nodiscard]] std::string Length(double value, const DisplayFormat& format) const;
  [[nodiscard]] std::string Count(int value) const;
};

}  // namespace tarnwick
