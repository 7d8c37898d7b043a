#include "store/modCfg.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "model/modCharacters.h"
#include "model/modDecim.h"
#include "store/modCfgTable.h"
#include "store/modPath.h"
#include "store/modReg.h"

namespace tarnwick {
namespace {

// The head of the customer lines is no setting like the others; it keeps a section of its own.
constexpr std::string_view CustomerSection = "Customer";
constexpr std::string_view NameKey = "Name";

constexpr std::string_view CountKey = "RecentNumFiles";

// ---- texts to values

/// Reads the values of one section. A number that its type cannot hold ends the reading: what comes after it
/// stays as it was.
class Reader {
 public:
  explicit Reader(const Registry& registry) : registry_(registry) {}

  [[nodiscard]] bool Failed() const { return failed_; }

  template <class Rule>
  void operator()(std::string_view key, Colour& colour, const Rule&) {
    std::int32_t packed = 0;
    ReadWhole(key, packed, std::numeric_limits<std::int32_t>::min(),
              std::numeric_limits<std::int32_t>::max());
    if (!failed_) colour.Packed = static_cast<std::uint32_t>(packed);  // one below zero lies above white then
  }
  template <std::signed_integral Whole, class Rule>
  void operator()(std::string_view key, Whole& value, const Rule&) {
    ReadWhole(key, value, std::numeric_limits<Whole>::min(), std::numeric_limits<Whole>::max());
  }
  void operator()(std::string_view key, std::int16_t& value, const Byte&) { ReadWhole(key, value, 0, 255); }
  template <class Rule>
  void operator()(std::string_view key, double& value, const Rule&) {
    if (!failed_) value = ReadNumber(registry_.GetValue(key));
  }
  template <class Rule>
  void operator()(std::string_view key, bool& value, const Rule&) {
    if (!failed_) value = Truth(Text(key));
  }
  template <class Rule>
  void operator()(std::string_view key, std::string& value, const Rule&) {
    if (!failed_) value = Text(key);
  }

  void ReadRecent(RecentFiles& files) {
    std::int16_t count = 0;
    (*this)(CountKey, count, Anything{});
    if (failed_) return;
    files.clear();
    count = std::clamp<std::int16_t>(count, 0, MostRecentFiles);
    for (int i = 1; i <= count; ++i) {
      files.push_back({Text("RecentDriveDir" + std::to_string(i)), Text("RecentFile" + std::to_string(i))});
    }
  }

 private:
  [[nodiscard]] std::string Text(std::string_view key) const {
    return std::string(Trimmed(registry_.GetValue(key)));
  }

  static bool Truth(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return text == "TRUE" || text == "-1";
  }

  template <class Whole>
  void ReadWhole(std::string_view key, Whole& value, double least, double most) {
    if (failed_) return;
    const double whole = std::trunc(ReadNumber(registry_.GetValue(key)));
    failed_ = whole < least || whole > most;
    if (!failed_) value = static_cast<Whole>(whole);
  }

  const Registry& registry_;
  bool failed_ = false;
};

// ---- values to texts

class Writer {
 public:
  Writer(const Registry& registry, Messages& messages) : registry_(registry), messages_(messages) {}

  [[nodiscard]] bool Failed() const { return failed_; }

  template <class Value, class Rule>
  void operator()(std::string_view key, const Value& value, const Rule&) {
    Put(key, TextOf(value));
  }

  void WriteRecent(const RecentFiles& files) {
    Put(CountKey, DecimalText(static_cast<double>(files.size())));
    for (std::size_t i = 0; i < files.size(); ++i) {
      Put("RecentDriveDir" + std::to_string(i + 1), files[i].DriveDir);
      Put("RecentFile" + std::to_string(i + 1), files[i].File);
    }
  }

  bool Finish() {
    const bool done = registry_.Finish(messages_);
    failed_ |= !done;
    return done;
  }

 private:
  static std::string TextOf(Colour colour) { return DecimalText(colour.Packed); }
  static std::string TextOf(double number) { return DecimalText(number); }
  static std::string TextOf(bool truth) { return truth ? "True" : "False"; }
  static std::string TextOf(const std::string& text) { return text; }
  template <std::signed_integral Whole>
  static std::string TextOf(Whole number) {
    return DecimalText(number);
  }

  void Put(std::string_view key, const std::string& text) {
    failed_ |= !registry_.SetValue(key, text, messages_);
  }

  const Registry& registry_;
  Messages& messages_;
  bool failed_ = false;
};

// ---- values into their ranges

struct Mender {
  void operator()(std::string_view, Colour& colour, const LineColour& rule) const {
    if (colour == Black || colour.Packed > White.Packed) colour = rule.Fallback;
  }
  template <class Number>
  void operator()(std::string_view, Number& value, const Within<Number>& rule) const {
    if (value < rule.Least) value = rule.BelowIt;
    if (value > rule.Most) value = rule.AboveIt;
  }
  void operator()(std::string_view, std::int16_t& value, const Byte& rule) const {
    if (value > rule.Most) value = rule.Fallback;
  }
  void operator()(std::string_view, double& value, const FeedIndex&) const {
    value = CheckedFeedIndex(value);
  }
  template <class Value>
  void operator()(std::string_view, Value& value, const Always<Value>& rule) const {
    value = rule.Only;
  }
  template <class Value>
  void operator()(std::string_view, Value&, const Anything&) const {}
};

void CheckValues(Config& config) {
  ForEachSetting(config, Mender{}, [](RecentFiles&) {});
}

// ---- folders

void SettleFolder(std::string& folder, const std::string& usual) {
  if (!Trimmed(folder).empty()) return;
  folder = usual;
  std::error_code ignored;  // the program works without it, and saving says what is wrong
  if (!FolderExists(folder)) std::filesystem::create_directory(FilePath(folder), ignored);
}

void CheckFolders(Config& config, const std::string& documents) {
  const std::string separator(1, PathSeparator);
  const std::string own = AddBackslash(documents) + "Tarnwick" + separator;
  SettleFolder(config.CurrentMyDir, own);  // first: the others lie inside it
  SettleFolder(config.CurrentSawDir, own + "Bandsaws" + separator);
  SettleFolder(config.CurrentDxfDir, own + "Dxfs" + separator);
}

}  // namespace

bool ReadConfig(Config& config, SettingsStore& store) {
  config = {};
  const Registry settings(store, SettingsSection);
  if (settings.KeyExists()) {
    Reader read(settings);
    ForEachSetting(config, read, [&read](RecentFiles& files) { read.ReadRecent(files); });
    if (read.Failed()) return false;
    config.Customer.Name = Trimmed(Registry(store, CustomerSection).GetValue(NameKey));
  }
  CheckValues(config);
  return true;
}

bool LoadConfig(Config& config, SettingsStore& store, const std::string& documents) {
  if (!ReadConfig(config, store)) return false;
  CheckFolders(config, documents);
  return true;
}

bool SaveConfig(const Config& config, SettingsStore& store, Messages& messages) {
  const Registry settings(store, SettingsSection), customer(store, CustomerSection);
  Writer write(settings, messages);
  ForEachSetting(config, write, [&write](const RecentFiles& files) { write.WriteRecent(files); });
  const bool atRest = write.Finish();
  Writer writeName(customer, messages);
  writeName(NameKey, config.Customer.Name, Anything{});
  if (atRest) writeName.Finish();  // what keeps one from rest keeps the other: it is told once
  return !write.Failed() && !writeName.Failed();
}

void DefaultConfig(Config& config, const std::string& documents) {
  Config fresh;  // folders that have a name keep it
  fresh.CurrentMyDir = config.CurrentMyDir;
  fresh.CurrentSawDir = config.CurrentSawDir;
  fresh.CurrentDxfDir = config.CurrentDxfDir;
  config = fresh;
  CheckFolders(config, documents);
}

void CheckConfig(Config& config, const std::string& documents) {
  CheckValues(config);
  CheckFolders(config, documents);
}

bool FolderExists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_directory(FilePath(path), ignored);
}

void SaveConfigOrTell(const Config& config, SettingsStore& store, Messages& messages) {
  if (SaveConfig(config, store, messages)) return;
  messages.Show({.Title = "Error", .Text = std::string(CannotSaveConfig)});
}

}  // namespace tarnwick
