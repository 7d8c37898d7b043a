#include "machine/modBandLength.h"

#include "geometry/modTrig.h"

namespace tarnwick {

double ClampWheelDia(double d) {
  constexpr double Least = 0.5, Most = 15;
  if (d < Least) return Least;
  return d > Most ? Most : d;
}

double ClampCenters(double d, double c) {
  constexpr double Least = 1.02, Most = 6;  // diameters
  if (d * Least > c) return d * Least;
  return d * Most < c ? d * Most : c;
}

double BandLength(double d, double c, int places) {
  const PlaneKit kit(places);
  return kit.RoundTo(Checked(c + c + kit.Circumference(d))).OrZero();
}

std::optional<RowLengths> CalcLengths(const BandSaw& saw, int places) {
  const double wheel = saw.MachineInfo.WheelDia;
  const double centers = saw.MachineInfo.CenterToCenter;
  const double plate = saw.GeneralInfo.PlateThick;
  if (!(wheel > 0 && centers > 0)) return std::nullopt;

  const Rounding roundTo(places);
  RowLengths lengths;
  double d = 0;
  for (int row = InsideLength; row <= (plate > 0 ? OutsideLength : InsideLength); ++row) {
    Let(d) = roundTo(Checked(row * plate + wheel));
    lengths[static_cast<std::size_t>(row)] = BandLength(d, centers, places);
  }
  return lengths;
}

}  // namespace tarnwick
