#include "power/modPowerChain.h"

#include "model/modDecim.h"

namespace tarnwick {

void UpdateSawVelocity(BandSaw& saw) {
  const double printed = ReadNumber(DecimalText(saw.MachineInfo.WheelDia));
  saw.DesignInfo.SawVelocity = CalcSawVelocity(printed, saw.GeneralInfo.ShaftSpeed);
}

void UpdateSideClear(BandSaw& saw, int places) {
  saw.GeneralInfo.SideClear = CalcSideClear(saw.GeneralInfo.PlateThick, saw.GeneralInfo.Kerf, places);
}

void UpdateBite(BandSaw& saw, int places) {
  saw.GulletInfo.Bite = CalcBite(saw.GeneralInfo.FeedRate, saw.Pitch, saw.DesignInfo.SawVelocity, places);
}

void UpdateCapacity(BandSaw& saw, int places) {
  saw.GulletInfo.Capacity = CalcCapacity(saw.GulletInfo.Bite, saw.GeneralInfo.DepthOfCut, places);
}

void UpdateHorsePower(BandSaw& saw, int places) {
  BandSaw::General& general = saw.GeneralInfo;
  general.HorsePower =
      CalcHorsePower(general.WoodType.View(), general.Kerf, general.FeedRate, general.DepthOfCut, places);
}

void UpdateMaxFeedRate(BandSaw& saw, const PowerSettings& settings) {
  saw.DesignInfo.MaxFeedRate = CalcMaxFeedRate(saw.GeneralInfo.DepthOfCut, saw.GulletInfo.Area, saw.Pitch,
                                               saw.DesignInfo.SawVelocity, settings);
}

void UpdatePower(BandSaw& saw, const PowerSettings& settings) {
  UpdateSawVelocity(saw);
  UpdateSideClear(saw, settings.DecimalPlaces);
  UpdateBite(saw, settings.DecimalPlaces);
  UpdateCapacity(saw, settings.DecimalPlaces);
  UpdateHorsePower(saw, settings.DecimalPlaces);
  UpdateMaxFeedRate(saw, settings);
}

}  // namespace tarnwick
