#pragma once

#include <string>

#include "model/modMaker.h"

namespace tarnwick {

// What the readers of band saw files and power files have to tell alike.

inline constexpr const char* FileIsIncomplete = "File is incomplete. What could be read is shown.";

inline std::string SavedInNewerVersion() {
  return "File was saved in a newer version of this program!\n"
         "Some information may not be available to the version\n"
         "you are currently using!\n"
         "Contact " +
         std::string(MakersWebAddress) + " for an update.";
}

}  // namespace tarnwick
