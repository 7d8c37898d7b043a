#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/modColour.h"
#include "model/modSettings.h"
#include "platform/Messages.h"
#include "platform/SettingsStore.h"
#include "power/modFeedIndex.h"
#include "store/modRecent.h"

namespace tarnwick {

/// The nine lines that head a print-out: who made the design.
struct CustomerLines {
  std::string Name, Address, City, Province, Country, PostalCode, Phone, Fax, Email;
  bool operator==(const CustomerLines&) const = default;
};

inline constexpr double LeastDisplayScale = 0.5, MostDisplayScale = 1.5, TrueDisplayScale = 1.0;
inline constexpr std::int16_t LeastLineThick = 1, MostLineThick = 20;

/// Everything that the program keeps of its user between two days. One lives as long as the process; nothing
/// of a design is in it. What stands here are the defaults.
struct Config {
  DisplaySettings Display;
  CalculationSettings Calculation;
  std::string CurrentMyDir, CurrentSawDir, CurrentDxfDir;  // with their trailing separators
  RecentFiles Recent;
  bool Loops = true;  // these three are kept in the store, and nothing reads them
  std::int16_t LoopType = 1;
  double LoopSize = 0.0625;
  CustomerLines Customer;
  std::string DefaultPrinterName;
  std::int16_t DefaultPrinter = 0;
  bool PrintPowerReq = false;
  std::int16_t MainImpMetric = 0;  // unit system of a new design; 1 is metric
  bool QuickClick = true;
  std::int16_t PrintLineThick = LeastLineThick;  // to MostLineThick
  double GulletFeedIndex = DefaultGulletFeedIndex;
};

/// What the store holds, every value within its range. A value that is missing reads as 0, and goes back to
/// its fallback where it has a range. Makes nothing, neither folders nor keys.
/// @return false when there is a number that its type cannot hold: the settings are of no use then. A store
///         without settings gives the defaults, and true.
[[nodiscard]] bool ReadConfig(Config& config, SettingsStore& store);

/// The same at the start of the program, with the folders below `documents`.
[[nodiscard]] bool LoadConfig(Config& config, SettingsStore& store, const std::string& documents);

/// Writes every setting. A value that cannot be written shows its error number, and the others are tried.
/// @return whether all of them were written
[[nodiscard]] bool SaveConfig(const Config& config, SettingsStore& store, Messages& messages);

/// Sets every default, but for folders that have a name already; makes the folders.
void DefaultConfig(Config& config, const std::string& documents);

/// Brings what is out of range back, and settles the folders: one without a name gets its default and is made
/// when it is missing. A folder that has a name is never made again.
/// @param documents  the user's documents folder
void CheckConfig(Config& config, const std::string& documents);

[[nodiscard]] bool FolderExists(const std::string& path);

inline constexpr std::string_view CannotSaveConfig = "Unable to save config file";

/// SaveConfig; a failure is told in a box.
void SaveConfigOrTell(const Config& config, SettingsStore& store, Messages& messages);

}  // namespace tarnwick
