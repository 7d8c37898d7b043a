#include "power/modPowerRequired.h"

namespace tarnwick {
namespace {

const char* FirstMissing(const BandSaw& saw) {
  if (saw.ContainsInfo.Teeth == False) return "Teeth are required";
  if (saw.GeneralInfo.Kerf == 0) return "Tooth width (Kerf) is required";
  if (saw.GeneralInfo.PlateThick == 0) return "Plate thickness is required";
  if (saw.MachineInfo.WheelDia == 0) return "Wheel diameter is required";
  return nullptr;
}

}  // namespace

std::string MissingPowerData(const BandSaw& saw) {
  const char* missing = FirstMissing(saw);
  return missing ? std::string(missing) + " to calculate power requirements." : std::string();
}

bool PowerDataRequired(const BandSaw& saw, Messages& messages) {
  const std::string missing = MissingPowerData(saw);
  if (missing.empty()) return true;
  messages.Show({.Title = "Information Required", .Text = missing, .Shown = Icon::Information});
  return false;
}

}  // namespace tarnwick
