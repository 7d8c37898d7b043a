#include "store/modSettingsFile.h"

#include <algorithm>
#include <utility>

#include "model/modCharacters.h"
#include "store/modFiles.h"

namespace tarnwick {
namespace {

constexpr std::size_t LargestFile = 1 << 20;

/// Of a file that was edited on Windows each line keeps this at its end.
constexpr char CarriageReturn = '\r';

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

/// Some editors begin a file with this mark; it is no part of the first key.
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// The key of a line; empty when it is none of the program's.
std::string_view KeyOf(std::string_view line) {
  if (line.starts_with(ByteOrderMark)) line.remove_prefix(ByteOrderMark.size());
  const std::size_t sign = line.find('=');
  return sign == std::string_view::npos ? std::string_view() : Trimmed(line.substr(0, sign));
}

std::string_view ValueOf(std::string_view line) {
  if (line.ends_with(CarriageReturn)) line.remove_suffix(1);
  return line.substr(line.find('=') + 1);
}

/// A value is one line: what would break it becomes a blank.
std::string OneLine(std::string_view value) {
  std::string line(value);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
  return line;
}

/// Sets the value of a key where its last line stands; earlier ones go. A new key comes last.
void PutLine(std::vector<std::string>& lines, std::string_view key, std::string_view value) {
  std::string line = std::string(key) + '=' + OneLine(value);
  const auto isOfKey = [key](const std::string& l) { return KeyOf(l) == key; };
  const auto last = std::find_if(lines.rbegin(), lines.rend(), isOfKey);
  if (last == lines.rend()) {
    lines.push_back(line);
    return;
  }
  if (last->ends_with(CarriageReturn)) line += CarriageReturn;
  if (last->starts_with(ByteOrderMark)) line.insert(0, ByteOrderMark);
  *last = line;
  const auto place = last.base() - 1;
  lines.erase(std::remove_if(lines.begin(), place, isOfKey), place);
}

}  // namespace

std::filesystem::path SettingsFile::PathOf(std::string_view application, std::string_view section) const {
  return folder_ / application / section;
}

/// What the file holds, read once; reading it again is for Finish, which must not lose another's lines.
SettingsFile::Section& SettingsFile::Read(std::string_view application, std::string_view section) {
  const std::filesystem::path path = PathOf(application, section);
  const auto known = read_.find(path);
  if (known != read_.end()) return known->second;
  Section& made = read_[path];
  if (folder_.empty() || !FileExists(path)) return made;
  const FileBytes file = ReadFile(path, LargestFile);
  made.Exists = !file.Error;
  for (const std::string& line : LinesOf(file.Bytes)) {
    const std::string_view key = KeyOf(line);
    if (!key.empty()) made.Values[std::string(key)] = ValueOf(line);
  }
  return made;
}

bool SettingsFile::KeyExists(std::string_view application, std::string_view section) {
  return Read(application, section).Exists;
}

// The file is made by Finish, with all its values at once.
std::error_code SettingsFile::CreateKey(std::string_view application, std::string_view section) {
  Read(application, section).Exists = true;
  return {};
}

std::string SettingsFile::GetValue(std::string_view application, std::string_view section,
                                   std::string_view name) {
  const Section& values = Read(application, section);
  const auto found = values.Values.find(name);
  return found == values.Values.end() ? std::string() : found->second;
}

std::error_code SettingsFile::SetValue(std::string_view application, std::string_view section,
                                       std::string_view name, std::string_view value) {
  Section& values = Read(application, section);
  values.Values[std::string(name)] = OneLine(value);
  values.Pending.emplace_back(name, value);
  return {};
}

std::error_code SettingsFile::Finish(std::string_view application, std::string_view section) {
  Section& values = Read(application, section);
  const std::filesystem::path path = PathOf(application, section);
  const auto pending = std::exchange(values.Pending, {});
  if (pending.empty()) return {};
  if (folder_.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  std::error_code failed;
  std::filesystem::create_directories(path.parent_path(), failed);
  if (failed) return failed;
  FileBytes now;
  if (std::filesystem::exists(path, failed)) {
    if (!FileExists(path)) return std::make_error_code(std::errc::permission_denied);
    now = ReadFile(path, LargestFile + 1);
  }
  if (failed) return failed;  // nobody can tell: there may be lines to be kept
  if (now.Error) return now.Error;
  if (now.Bytes.size() > LargestFile) return std::make_error_code(std::errc::file_too_large);
  Lines lines = LinesOf(now.Bytes);
  for (const auto& [key, value] : pending) PutLine(lines, key, value);
  std::string text;
  for (const std::string& line : lines) text += line + '\n';
  // Every question that closes keeps the settings, mostly as they were. A disk takes longer than a drawing.
  if (text == now.Bytes) return {};
  return ReplaceWholeFile(path, text);
}

}  // namespace tarnwick
