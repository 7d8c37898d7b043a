#include "power/modPowerEstimate.h"

#include "model/modChecked.h"

namespace tarnwick {
namespace {

constexpr double EstimateMarker = 4.0;

PowerEstimate CurrentRow(const BandSaw& saw, const PowerSettings& settings) {
  PowerEstimate row = StoredFigures(saw);
  row.Marker = EstimateMarker;
  row.SawVelocity = CalcSawVelocity(row.WheelDia, row.ShaftSpeed);
  Let(row.AreaBelowTip) = settings.GulletFeedIndex * row.GulletArea;
  row.Capacity = CalcCapacityChecked(row.Bite, row.DepthOfCut, settings.DecimalPlaces);
  return row;
}

PowerEstimate WithHigherFeed(PowerEstimate row, double percent) {
  Let(row.FeedRate) = row.FeedRate * (percent / 100 + 1);
  return row;
}

void SetHorsePower(PowerEstimate& row, int places) {
  row.HorsePower = CalcHorsePower(row.WoodType.View(), row.Kerf, row.FeedRate, row.DepthOfCut, places);
}

void ChangePitch(PowerEstimate& row, int places) {
  row.Pitch = CalcPitchForBite(row.FeedRate, row.SawVelocity, row.Bite, places);
  SetHorsePower(row, places);
}

void ChangeWheelSpeed(PowerEstimate& row, int places) {
  row.ShaftSpeed = CalcShaftSpeedForBite(row.FeedRate, row.Pitch, row.WheelDia, row.Bite);
  row.SawVelocity = CalcSawVelocity(row.WheelDia, row.ShaftSpeed);
  SetHorsePower(row, places);
}

void ChangeBite(PowerEstimate& row, int places) {
  row.Bite = CalcBite(row.FeedRate, row.Pitch, row.SawVelocity, places);
  row.Capacity = CalcCapacity(row.Bite, row.DepthOfCut, places);
  SetHorsePower(row, places);
}

}  // namespace

PowerEstimate StoredFigures(const BandSaw& saw) {
  const BandSaw::General& general = saw.GeneralInfo;
  PowerEstimate row;
  row.WheelDia = saw.MachineInfo.WheelDia;
  row.Width = saw.Width;
  row.Length = saw.Length;
  row.Pitch = saw.Pitch;
  row.NumTeeth = saw.NumTeeth;
  row.PlateThick = general.PlateThick;
  row.Kerf = general.Kerf;
  row.SideClear = general.SideClear;
  row.ShaftSpeed = general.ShaftSpeed;
  row.SawVelocity = saw.DesignInfo.SawVelocity;
  row.DepthOfCut = general.DepthOfCut;
  row.FeedRate = general.FeedRate;
  row.WoodType = general.WoodType;
  row.HorsePower = general.HorsePower;
  row.Bite = saw.GulletInfo.Bite;
  row.GulletArea = saw.GulletInfo.Area;
  return row;
}

std::optional<PowerEstimates> BuildPowerEstimates(const BandSaw& saw, double percent,
                                                  const PowerSettings& settings) {
  if (!(percent > 0)) return std::nullopt;
  PowerEstimates rows{CurrentRow(saw, settings)};
  // All feed rates first: every row then starts from the current pitch, speed and bite.
  for (std::size_t i = ByPitch; i < rows.size(); ++i) rows[i] = WithHigherFeed(rows[i - 1], percent);
  ChangePitch(rows[ByPitch], settings.DecimalPlaces);
  ChangeWheelSpeed(rows[ByWheelSpeed], settings.DecimalPlaces);
  ChangeBite(rows[ByBite], settings.DecimalPlaces);
  return rows;
}

}  // namespace tarnwick
