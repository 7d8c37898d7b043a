#include "store/modUserStore.h"

#ifdef _WIN32
#include "store/modRegistry.h"
#else
#include "store/modSettingsFile.h"
#include "store/modUserFolders.h"
#endif

namespace tarnwick {

std::unique_ptr<SettingsStore> UserSettingsStore() {
#ifdef _WIN32
  return std::make_unique<WindowsRegistry>();
#else
  return std::make_unique<SettingsFile>(UserSettingsFolder());
#endif
}

}  // namespace tarnwick
