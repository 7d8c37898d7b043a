#include "store/modUserFolders.h"

#include <cstdlib>

namespace tarnwick {
namespace {

std::filesystem::path FolderIn(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr ? value : "";
}

/// The folder that the desktop names, else the usual one below the home folder. A relative one would depend
/// on where the program was started.
std::filesystem::path DesktopFolder(const char* variable, const char* usual) {
  std::filesystem::path named = FolderIn(variable);
  if (named.is_absolute()) return named;
  const std::filesystem::path home = FolderIn("HOME");
  return home.empty() ? home : home / usual;
}

}  // namespace

std::filesystem::path UserSettingsFolder() { return DesktopFolder("XDG_CONFIG_HOME", ".config"); }

std::filesystem::path UserStateFolder() {
#ifdef _WIN32
  const wchar_t* local = _wgetenv(L"LOCALAPPDATA");
  return local != nullptr ? local : L"";
#else
  return DesktopFolder("XDG_STATE_HOME", ".local/state");
#endif
}

}  // namespace tarnwick
