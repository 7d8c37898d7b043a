#pragma once

#include <string>

#include "shell/OpenDesign.h"
#include "store/modPath.h"

namespace tarnwick::test {

/// Reads the design of a path into `design`, as the commands do, without a window.
/// @return false for a file that is refused
inline bool OpenPath(OpenDesign& design, const std::string& path, Messages& messages) {
  design.FileName = FileNameOf(path);
  design.Settings.CurrentSawDir = FolderOf(path);
  return design.ReadFile(messages);
}

}  // namespace tarnwick::test
