#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/SettingsStore.h"

namespace tarnwick::test {

/// A store that lives as long as its test. It fails where it is told to, and remembers what was asked of it.
/// As strict as the registry: a value can be set only in a section that is there.
class MemoryStore final : public SettingsStore {
 public:
  using Values = std::map<std::string, std::string, std::less<>>;
  using Setting = std::pair<std::string, std::string>;  // name and value

  bool KeyExists(std::string_view application, std::string_view section) override {
    return Sections.count(PathOf(application, section)) > 0;
  }

  std::error_code CreateKey(std::string_view application, std::string_view section) override {
    if (CreateFailure) return CreateFailure;
    Sections[PathOf(application, section)];
    return {};
  }

  std::string GetValue(std::string_view application, std::string_view section,
                       std::string_view name) override {
    if (section == "Settings") Read.emplace_back(name);
    const auto found = Sections.find(PathOf(application, section));
    if (found == Sections.end()) return {};
    const auto value = found->second.find(name);
    return value == found->second.end() ? std::string() : value->second;
  }

  std::error_code SetValue(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view value) override {
    Tried.emplace_back(name);
    if (SetFailure) return SetFailure;
    if (Refused.count(std::string(name)) > 0) return std::make_error_code(std::errc::no_space_on_device);
    const auto found = Sections.find(PathOf(application, section));
    if (found == Sections.end()) return std::make_error_code(std::errc::no_such_file_or_directory);
    found->second.insert_or_assign(std::string(name), std::string(value));
    Written[std::string(section)].emplace_back(name, value);
    return {};
  }

  std::error_code Finish(std::string_view, std::string_view section) override {
    Finished.emplace_back(section);
    return FinishFailure;
  }

  /// The values of the program's settings.
  Values& Settings() { return Sections["Tarnwick/Settings"]; }

  /// What was set in the section of the settings, in order.
  [[nodiscard]] const std::vector<Setting>& Saved() { return Written["Settings"]; }

  std::map<std::string, Values> Sections;  // by "application/section"

  // Failures to come; none as it stands.
  std::error_code CreateFailure, SetFailure, FinishFailure;
  std::set<std::string> Refused;  // names that the disk has no space for

  // What was asked for, in order.
  std::vector<std::string> Read;                        // names read in the section of the settings
  std::vector<std::string> Tried;                       // names to set, in any section
  std::map<std::string, std::vector<Setting>> Written;  // what was taken in, by section
  std::vector<std::string> Finished;                    // sections put to rest

 private:
  static std::string PathOf(std::string_view application, std::string_view section) {
    return std::string(application) + '/' + std::string(section);
  }
};

}  // namespace tarnwick::test
