#include "shell/modAbout.h"

#include "model/modMaker.h"
#include "version.h"

namespace tarnwick {

std::string MakerLine() {
  return std::string("Made by ").append(Maker).append(", ").append(MakersWebAddress);
}

std::string AboutText() {
  // "for Windows" stands on every desktop: so meant.
  return std::string(ProgramName)
      .append(" for Windows Version: ")
      .append(ProgramVersion)
      .append("\n\n")
      .append(MakerLine());
}

}  // namespace tarnwick
