#include "machine/modMachineView.h"

#include <cmath>

#include "machine/modBandLength.h"
#include "machine/modWheel.h"

namespace tarnwick {
namespace {

LineEntity Line(double x1, double y1, double x2, double y2) {
  return {.Corner1X = x1, .Corner1Y = y1, .Corner4X = x2, .Corner4Y = y2};
}

EntityList BothWheels(const BandSaw::Machine& machine, int places) {
  const WheelPicture wheel = PlaceWheel(machine.WheelDia, PlaneKit(places));
  EntityList list;
  AddWheel(wheel, 0, list);
  AddWheel(wheel, machine.CenterToCenter * InchesPerFoot, list);
  return list;
}

/// Straights along both sides, inside and outside of the plate, and the outside of the two half turns: their
/// inside is the wheels' own.
EntityList Band(const BandSaw& saw) {
  const double inside = saw.MachineInfo.WheelDia * InchesPerFoot / 2;
  const double outside = Checked(inside + saw.GeneralInfo.PlateThick).OrZero();
  const double top = saw.MachineInfo.CenterToCenter * InchesPerFoot;
  EntityList list;
  for (const double x : {inside, outside, -inside, -outside}) list.Entities.emplace_back(Line(x, 0, x, top));
  list.Entities.emplace_back(ArcEntity{.Radius = outside, .StartAngle = 180, .EndAngle = 360});
  list.Entities.emplace_back(ArcEntity{.CenterY = top, .Radius = outside, .StartAngle = 0, .EndAngle = 180});
  return list;
}

/// An arrow with its tip at (x, tip) and its base at `base`. The last corner is the tip once more.
SolidEntity Arrow(double x, double tip, double base, double size) {
  return {.Corner1X = x,
          .Corner1Y = tip,
          .Corner2X = x + size / 6,
          .Corner2Y = base,
          .Corner3X = x - size / 6,
          .Corner3Y = base,
          .Corner4X = x,
          .Corner4Y = tip};
}

EntityList DimensionOf(const BandSaw::Machine& machine, const DisplayFormat& format) {
  constexpr double TextHeight = 0.25;
  const double wheel = machine.WheelDia * InchesPerFoot;
  const double top = machine.CenterToCenter * InchesPerFoot;
  const double size = wheel / 20;  // of an arrow, and of the gap for the text
  const double left = -wheel * 0.85;
  const double x = left + size;
  TextEntity text;
  text.Corner1X = x;
  text.Corner1Y = top * 0.5;
  text.TextHeight = TextHeight;
  text.Text.Assign(FormatNumber(machine.CenterToCenter, Feet, format));

  EntityList list;
  list.Entities = {Line(-1, 0, left, 0),
                   Line(-1, top, left, top),
                   Line(x, 0, x, top * 0.5 - size / 2),
                   Line(x, top * 0.5 + size / 2, x, top),
                   text,
                   Arrow(x, 0, size, size),
                   Arrow(x, top, top - size, size)};
  return list;
}

}  // namespace

void BuildMachineLists(BandSaw& saw, MachineView& view, const MachineSettings& settings, Messages& messages) {
  BandSaw::Machine& machine = saw.MachineInfo;
  if (!(machine.WheelDia > 0)) return;
  machine.WheelDia = ClampWheelDia(machine.WheelDia);
  if (!(machine.CenterToCenter > 0)) return;
  machine.CenterToCenter = ClampCenters(machine.WheelDia, machine.CenterToCenter);

  view.WheelDia = machine.WheelDia;
  view.Wheels = BothWheels(machine, settings.Calculation.DecimalPlaces);
  AppendEntities(view.Wheels, Band(saw), settings.Calculation.MemorySize, messages);
  view.Dimension = DimensionOf(machine, settings.Format());
}

EntityList MergedLists(const MachineView& view, int memorySize, Messages& messages) {
  EntityList merged;
  AppendEntities(merged, view.Wheels, memorySize, messages);
  AppendEntities(merged, view.Dimension, memorySize, messages);
  return merged;
}

void ZoomAllMachine(const EntityList& merged, PixelSize surface, MachineZoom& zoom) {
  constexpr double Filled = 0.95;
  constexpr int ScalePlaces = 6;
  zoom.Box = ComputeExtents(merged);
  const double width = std::abs(zoom.Box.MinX - zoom.Box.MaxX);
  const double height = std::abs(zoom.Box.MaxY - zoom.Box.MinY);
  if (!(width > 0 && height > 0)) return;
  const Checked fit = width >= height ? Quotient(surface.Width / PixelsPerInch, width)
                                      : Quotient(surface.Height / PixelsPerInch, height);
  Let(zoom.Scale) = Rounding(ScalePlaces)(fit * Filled);
}

}  // namespace tarnwick
