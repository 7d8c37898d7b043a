#include "variable/VariableValues.h"

#include "model/modDecim.h"

namespace tarnwick {

SegmentRow VariableValues::Row(int k) const {
  if (k < 0 || k >= SegmentTeeth) return {};
  return {.Shown = true, .PitchOpens = k < SegmentTeeth - 1, .DepthOpens = DepthIsVariable};
}

std::string VariableValues::Length(double value, const DisplayFormat& format) const {
  return IsFilled ? FormatNumber(value, Inches, format) : std::string();
}

std::string VariableValues::Count(int value) const { return IsFilled ? DecimalText(value) : std::string(); }

std::string VariableValues::PitchText(int k, const DisplayFormat& format) const {
  return Length(ToothPitch.at(static_cast<std::size_t>(k)), format);
}

std::string VariableValues::DepthText(int k, const DisplayFormat& format) const {
  return Length(ToothDepth.at(static_cast<std::size_t>(k)), format);
}

std::string VariableValues::AveragePitchText(const DisplayFormat& format) const {
  return Length(AveragePitch, format);
}

std::string VariableValues::AverageDepthText(const DisplayFormat& format) const {
  return Length(BaseDepth, format);
}

std::string VariableValues::NumTeethText() const { return Count(NumTeeth); }
std::string VariableValues::NumSegmentsText() const { return Count(NumSegments); }

std::string VariableValues::SegmentSizeText(const DisplayFormat& format) const {
  return Length(SegmentSize, format);
}

}  // namespace tarnwick
