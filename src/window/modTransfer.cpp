#include "window/modTransfer.h"

namespace tarnwick {

Transfer BeginTransfer(const BandSaw& saw) { return {saw, saw}; }

void TakeFromPower(const Transfer& transfer, BandSaw& saw, BandSaw& sawEdit) {
  sawEdit = saw;
  saw = transfer.TransferSaw;
  saw.ContainsInfo.Power = saw.GeneralInfo.HorsePower > 0 ? True : False;
}

void TakeFromBandCalc(Transfer& transfer, BandSaw& saw) {
  const bool otherLength = transfer.TransferSaw.Length != saw.Length;
  saw = transfer.TransferSaw;
  if (otherLength && saw.Pitch > 0) saw.NumTeeth = 0;
  transfer.TransferSaw = saw;
}

}  // namespace tarnwick
