#include "store/modRecent.h"

#include <algorithm>

namespace tarnwick {

void AddRecent(RecentFiles& files, std::string_view name, std::string_view driveDir) {
  const RecentFile added{std::string(driveDir), std::string(name)};
  files.resize(std::min(files.size() + 1, MostRecentFiles));
  std::size_t kept = 0;  // what an older entry of the file leaves at the end is pushed out, or a gap
  for (std::size_t i = 0; i < files.size(); ++i) {
    files[kept] = files[i];
    if (files[i].Path() != added.Path()) ++kept;
  }
  std::rotate(files.rbegin(), files.rbegin() + 1, files.rend());
  files.front() = added;
  if (files.back().Path().empty()) files.pop_back();
}

}  // namespace tarnwick
