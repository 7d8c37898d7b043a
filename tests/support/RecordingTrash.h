#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "platform/Trash.h"
#include "store/modPath.h"

namespace tarnwick::test {

/// Deletes for good, and remembers what.
class RecordingTrash final : public Trash {
 public:
  void Remove(const std::string& path) override {
    Removed.push_back(path);
    std::error_code ignored;
    std::filesystem::remove(FilePath(path), ignored);
  }

  std::vector<std::string> Removed;
};

}  // namespace tarnwick::test
