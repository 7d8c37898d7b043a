#pragma once

#include <span>
#include <string_view>

#include "entry/modFormat.h"
#include "model/modBandSaw.h"
#include "window/modDisplay.h"

namespace tarnwick {

// What the rows of the panel and those of the printed sheet have in common.

/// A measure of the gullet that has a row of its own.
struct GulletRow {
  RowCode Code;
  std::string_view Caption;
  double BandSaw::Gullet::*Measure;
  UnitKind Kind;
};

/// The measures that belong to the tooth style alone, in the order of their rows. A number without a style
/// has those of a single arc.
[[nodiscard]] std::span<const GulletRow> GulletRowsOfStyle(int style);

/// Whether the gullet's area is worth a row: not that of hardly any band, nor of a gullet without a round.
[[nodiscard]] bool ShowsGulletArea(const BandSaw& saw);

/// Behind a figure that stands for many teeth.
inline constexpr std::string_view AverageMark = "  (Average)";

/// "1st Tooth:" to "7th Tooth:".
inline constexpr std::string_view ToothOfSegmentCaptions[UsedSegmentMeasures] = {
    "1st Tooth:", "2nd Tooth:", "3rd Tooth:", "4th Tooth:", "5th Tooth:", "6th Tooth:", "7th Tooth:"};

/// Teeth of a segment that have rows.
[[nodiscard]] int TeethOfSegmentShown(const BandSaw& saw);

}  // namespace tarnwick
