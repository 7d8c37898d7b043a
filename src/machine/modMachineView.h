#pragma once

#include "entry/modFormat.h"
#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "model/modSettings.h"
#include "model/modZoom.h"
#include "platform/Canvas.h"
#include "platform/Messages.h"

namespace tarnwick {

// The picture of a band mill: two wheels, one above the other, with the band around them, and the distance of
// their centres. Inches; the centre of the lower wheel is the origin.

/// How lists are made, and numbers shown in them.
struct MachineSettings {
  CalculationSettings Calculation;
  std::int16_t ImpMetric = Imperial;

  [[nodiscard]] DisplayFormat Format() const {
    return {ImpMetric, Calculation.DisplayPlaces, Calculation.DecimalPlaces};
  }
};

struct MachineView {
  EntityList Wheels;     // both wheels, and the band
  EntityList Dimension;  // between the centres: lines, text, two arrows
  double WheelDia{};     // ft, of the wheels that the lists show
};

/// Makes the picture anew. Wheels and the distance of their centres are brought into their limits, in the
/// record; without wheels or without a distance the picture stays as it was.
void BuildMachineLists(BandSaw& saw, MachineView& view, const MachineSettings& settings, Messages& messages);

/// The whole picture as one list, wheels first. Its header is empty, so that its drawing file has no extents.
[[nodiscard]] EntityList MergedLists(const MachineView& view, int memorySize, Messages& messages);

/// The scale at which a picture fits a surface, in inches of the surface for one of the mill, and the box
/// that was fitted.
struct MachineZoom {
  double Scale = 1;
  Extents Box;
};

/// Fits the picture into nineteen twentieths of the surface's width if it is at least as wide as high, of its
/// height else. A picture without width or height leaves the scale as it was.
///
/// A mill is always higher than wide, so its width is never looked at: a surface at least 0.7 times as wide
/// as high takes it.
void ZoomAllMachine(const EntityList& merged, PixelSize surface, MachineZoom& zoom);

}  // namespace tarnwick
