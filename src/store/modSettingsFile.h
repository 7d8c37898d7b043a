#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/SettingsStore.h"

namespace tarnwick {

/// Settings as files that a user may read and edit: "FOLDER/application/section", a line "Key=Value" for each
/// value, UTF-8.
///
/// Lines that are none of the program's are kept. Of two lines with one key the last counts. A save replaces
/// the file in one step; what another program has written meanwhile is kept where the two do not differ in a
/// key. A file larger than any settings is read in part, and never written.
class SettingsFile final : public SettingsStore {
 public:
  /// @param folder  of the user's settings; it need not exist
  explicit SettingsFile(std::filesystem::path folder) : folder_(std::move(folder)) {}

  bool KeyExists(std::string_view application, std::string_view section) override;
  std::error_code CreateKey(std::string_view application, std::string_view section) override;
  std::string GetValue(std::string_view application, std::string_view section,
                       std::string_view name) override;
  std::error_code SetValue(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view value) override;
  std::error_code Finish(std::string_view application, std::string_view section) override;

 private:
  using Lines = std::vector<std::string>;
  struct Section {
    bool Exists{};
    std::map<std::string, std::string, std::less<>> Values;    // as read
    std::vector<std::pair<std::string, std::string>> Pending;  // as set since, in that order
  };

  [[nodiscard]] std::filesystem::path PathOf(std::string_view application, std::string_view section) const;
  Section& Read(std::string_view application, std::string_view section);

  std::filesystem::path folder_;
  std::map<std::filesystem::path, Section> read_;
};

}  // namespace tarnwick
