#include "window/modRowText.h"

#include "store/modCodePage.h"

namespace tarnwick {

std::string ToothStyleText(const BandSaw& saw) {
  const char* name = ToothStyleName(saw.ToothStyle);
  return name ? ' ' + std::string(name) : std::string();
}

std::string TipText(const BandSaw& saw) {
  switch (saw.GeneralInfo.TipType) {
    case 1:
      return " Stellite";
    case 2:
      return " Swagged";
    case 3:
      return " Carbide";
    default:
      return " None";
  }
}

std::string JoinText(const BandSaw& saw) {
  return saw.DesignInfo.JoinStyle == OverlapJoin ? " Overlap Join" : " Right Angle Join";
}

std::string SeatText(const BandSaw& saw) { return saw.SeatInfo.State ? " Yes" : " No"; }

std::string WoodText(const BandSaw& saw) {
  const std::string wood = saw.GeneralInfo.WoodType.Trimmed();
  return wood.empty() ? wood : ' ' + Utf8OfCodePage(wood);
}

}  // namespace tarnwick
