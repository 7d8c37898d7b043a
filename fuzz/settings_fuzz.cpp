// Any bytes as the file of the settings. Read, changed and written again, it holds what was set, and every
// line that is none of the program's, as it was; and the program reads back what it has written.

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "Demand.h"
#include "ScratchFolder.h"
#include "platform/CollectedMessages.h"
#include "store/modCfg.h"
#include "store/modReg.h"
#include "store/modSettingsFile.h"

namespace {

using namespace tarnwick;
using fuzz::Demand;

/// Passes everything on, and notes the names of what is set.
class NotingStore final : public SettingsStore {
 public:
  NotingStore(SettingsStore& store, std::string section) : store_(store), section_(std::move(section)) {}

  bool KeyExists(std::string_view app, std::string_view section) override {
    return store_.KeyExists(app, section);
  }
  std::error_code CreateKey(std::string_view app, std::string_view section) override {
    return store_.CreateKey(app, section);
  }
  std::string GetValue(std::string_view app, std::string_view section, std::string_view name) override {
    return store_.GetValue(app, section, name);
  }
  std::error_code SetValue(std::string_view app, std::string_view section, std::string_view name,
                           std::string_view value) override {
    if (section == section_) Names.insert(std::string(name));
    return store_.SetValue(app, section, name, value);
  }
  std::error_code Finish(std::string_view app, std::string_view section) override {
    return store_.Finish(app, section);
  }

  std::set<std::string> Names;

 private:
  SettingsStore& store_;
  std::string section_;
};

/// The lines of a file that set none of `names`, in order. Their last one may lack its end.
std::vector<std::string> OtherLines(const std::string& bytes, const std::set<std::string>& names) {
  std::vector<std::string> others;
  std::size_t from = 0;
  while (from < bytes.size()) {
    const std::size_t end = std::min(bytes.find('\n', from), bytes.size());
    const std::string line = bytes.substr(from, end - from);
    from = end + 1;
    std::string name = line.substr(0, line.find('='));
    if (name.starts_with("\xEF\xBB\xBF")) name.erase(0, 3);
    name.erase(0, std::min(name.find_first_not_of(' '), name.size()));
    name.erase(name.find_last_not_of(' ') + 1);
    if (line.find('=') == std::string::npos || names.count(name) == 0) others.push_back(line);
  }
  return others;
}

bool IsInRange(const Config& config) {
  const CalculationSettings& s = config.Calculation;
  const DisplaySettings& d = config.Display;
  return DecimalPlacesRange.Holds(s.DecimalPlaces) && DisplayPlacesRange.Holds(s.DisplayPlaces) &&
         MemorySizeRange.Holds(s.MemorySize) && DxfSaveColorRange.Holds(s.DxfSaveColor) &&
         d.DisplayScale >= LeastDisplayScale && d.DisplayScale <= MostDisplayScale &&
         config.PrintLineThick >= LeastLineThick && config.PrintLineThick <= MostLineThick &&
         config.GulletFeedIndex > 0 && config.GulletFeedIndex <= 1 && config.Recent.size() <= 5;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::ScratchFolder folder("settings");
  const std::string before(data, data + size);
  const std::filesystem::path path = folder.Keep("Tarnwick/Settings", before);
  const std::filesystem::path customer = folder.Keep("Tarnwick/Customer", before);

  SettingsFile file(folder.Path());
  NotingStore store(file, "Settings");
  CollectedMessages messages;
  Config config;
  if (!ReadConfig(config, store)) config = {};
  Demand(IsInRange(config));

  config.Calculation.DecimalPlaces = size % 2 == 0 ? 4 : 7;
  config.Customer.City = before.substr(0, 300);  // some text that a user may have pasted
  Demand(SaveConfig(config, store, messages) && messages.Shown.empty());
  const std::string after = fuzz::BytesOf(path);
  Demand(OtherLines(after, store.Names) == OtherLines(before, store.Names));
  Demand(OtherLines(fuzz::BytesOf(customer), {"Name"}) == OtherLines(before, {"Name"}));

  // A program that starts now reads the same, and finds nothing to be written.
  SettingsFile fresh(folder.Path());
  Config again;
  Demand(ReadConfig(again, fresh) && IsInRange(again));
  Demand(again.Calculation.DecimalPlaces == config.Calculation.DecimalPlaces);
  Demand(again.Recent.size() == config.Recent.size());
  Demand(SaveConfig(again, fresh, messages) && messages.Shown.empty());
  SettingsFile third(folder.Path());
  Config last;
  const std::string settled = fuzz::BytesOf(path);
  Demand(ReadConfig(last, third) && SaveConfig(last, third, messages));
  Demand(fuzz::BytesOf(path) == settled);
  return 0;
}
