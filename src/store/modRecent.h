#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A design file that was opened or saved.
struct RecentFile {
  std::string DriveDir;  // its folder, with the trailing separator
  std::string File;      // its name

  [[nodiscard]] std::string Path() const { return DriveDir + File; }  // what the menu shows
  bool operator==(const RecentFile&) const = default;
};

inline constexpr std::size_t MostRecentFiles = 5;

/// The newest first, MostRecentFiles at most.
using RecentFiles = std::vector<RecentFile>;

/// Puts a file at the top; an older entry of it goes, and so does a sixth one. Files are told apart by their
/// path, case included.
void AddRecent(RecentFiles& files, std::string_view name, std::string_view driveDir);

}  // namespace tarnwick
