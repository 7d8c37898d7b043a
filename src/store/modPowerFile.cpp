#include "store/modPowerFile.h"

#include "model/modDecim.h"
#include "store/modFileNotes.h"
#include "store/modFiles.h"
#include "store/modImage.h"

namespace tarnwick {
namespace {

constexpr std::string_view Magic = "Bandsaw Power File   Version: ";  // the blanks are meant
constexpr std::string_view Version = "1.01                     ";
static_assert(Magic.size() == 30 && Version.size() == 25);

constexpr double CurrentVersion = 1.01;

// The trailing blanks are meant.
constexpr const char* NotAPowerFile = "Not a valid Power File     ";

PowerFileBytes Refused(PowerFileState state, std::string why) {
  PowerFileBytes refused{.State = state};
  refused.Notes.push_back({.Text = std::move(why)});
  return refused;
}

}  // namespace

PowerFileBytes ReadPowerFile(std::string_view bytes) {
  if (!bytes.starts_with(Magic) || bytes.size() < Magic.size() + Version.size()) {
    return Refused(PowerFileState::NotPowerFile, NotAPowerFile);
  }
  bytes.remove_prefix(Magic.size());
  const double version = ReadNumber(bytes.substr(0, Version.size()));
  bytes.remove_prefix(Version.size());
  if (version != CurrentVersion) return Refused(PowerFileState::OtherVersion, SavedInNewerVersion());

  ByteReader reader(bytes);
  PowerFileBytes result{.State = PowerFileState::Complete};
  for (BandSaw& saw : result.Saws) saw = TakeRecord(reader);
  if (!reader.Complete()) {
    result.State = PowerFileState::Incomplete;
    result.Notes.push_back({.Text = FileIsIncomplete});
  }
  return result;
}

std::string PowerFileText(const PowerSaws& saws) {
  std::string text;
  text.reserve(PowerFileSize);
  text += Magic;
  text += Version;
  for (const BandSaw& saw : saws) AppendRecord(text, saw);
  return text;
}

bool OpenPowerFile(PowerSaws& saws, const std::filesystem::path& path, Messages& messages) {
  const FileBytes file = ReadFile(path, PowerFileSize);
  if (file.Error) return false;
  const PowerFileBytes read = ReadPowerFile(file.Bytes);
  if (read.Usable()) saws = read.Saws;
  for (const Box& box : read.Notes) messages.Show(box);
  return read.Usable();
}

std::error_code SavePowerFile(const PowerSaws& saws, const std::filesystem::path& path) {
  return WriteWholeFile(path, PowerFileText(saws), Rest::OnDisk);
}

}  // namespace tarnwick
