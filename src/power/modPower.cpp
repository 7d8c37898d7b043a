#include "power/modPower.h"

#include "model/modChecked.h"
#include "model/modDecim.h"
#include "power/modWood.h"

namespace tarnwick {
namespace {

constexpr double SquareInchesPerSquareFoot = 144;

template <typename... Measures>
bool AnyMissing(Measures... measures) {
  return ((measures == 0) || ...);
}

double Rounded(Checked figure, int places) { return Rounding(places)(figure).OrZero(); }

}  // namespace

std::int32_t CalcSawVelocity(double wheelDiameter, std::int32_t shaftSpeed) {
  if (AnyMissing(wheelDiameter, shaftSpeed)) return 0;
  return WholeNumber<std::int32_t>(wheelDiameter * Pi * shaftSpeed).value_or(0);
}

double CalcHorsePower(std::string_view wood, double kerf, double feedRate, double depthOfCut, int places) {
  const double energy = SpecificEnergy(wood);
  if (AnyMissing(energy, kerf, feedRate, depthOfCut)) return 0;
  return Rounded(depthOfCut * kerf * feedRate * (energy * 100) / SquareInchesPerSquareFoot, places);
}

double CalcBite(double feedRate, double pitch, std::int32_t sawVelocity, int places) {
  if (AnyMissing(feedRate, pitch, sawVelocity)) return 0;
  return Rounded(Quotient(feedRate * pitch, sawVelocity), places);
}

double CalcCapacityChecked(double bite, double depthOfCut, int places) {
  return AnyMissing(bite, depthOfCut) ? 0.0 : CalcCapacity(bite, depthOfCut, places);
}

double CalcCapacity(double bite, double depthOfCut, int places) { return Rounded(depthOfCut * bite, places); }

double CalcMaxFeedRate(double depthOfCut, double gulletArea, double pitch, std::int32_t sawVelocity,
                       const PowerSettings& settings) {
  const bool allSet = depthOfCut > 0 && gulletArea > 0 && pitch > 0 && sawVelocity > 0;
  if (!allSet) return 0;
  return Rounded(Quotient(sawVelocity * gulletArea * settings.GulletFeedIndex, depthOfCut * pitch),
                 settings.DecimalPlaces);
}

double CalcPitch(double bandLength, std::int16_t numTeeth, int places) {
  if (AnyMissing(bandLength, numTeeth)) return 0;
  return Rounded(Quotient(bandLength, numTeeth), places);
}

double CalcSideClear(double plateThickness, double kerf, int places) {
  if (AnyMissing(plateThickness, kerf) || !(kerf > plateThickness)) return 0;
  return Rounded((kerf - plateThickness) / 2, places);
}

double CalcPitchForBite(double feedRate, std::int32_t sawVelocity, double bite, int places) {
  if (AnyMissing(feedRate, sawVelocity, bite)) return 0;
  return Rounded(Quotient(sawVelocity * bite, feedRate), places);
}

std::int16_t CalcShaftSpeedForBite(double feedRate, double pitch, double wheelDiameter, double bite) {
  if (AnyMissing(feedRate, bite, pitch, wheelDiameter)) return 0;
  const auto velocity = WholeNumber<std::int32_t>(Quotient(feedRate * pitch, bite).OrZero());
  if (!velocity) return 0;
  const Checked speed = Quotient(*velocity, wheelDiameter * Pi);
  return WholeNumber<std::int16_t>(speed.OrZero()).value_or(0);
}

}  // namespace tarnwick
