#include "store/modSave.h"

#include "model/modDecim.h"
#include "store/modFileNotes.h"
#include "store/modFiles.h"
#include "store/modImage.h"

namespace tarnwick {
namespace {

constexpr std::string_view Magic = "Band Saw File: Version = ";
constexpr std::string_view Version = "1.01                     ";
static_assert(Magic.size() == 25 && Version.size() == 25);

constexpr double OldestVersion = 1.0;  // laid out like the current one
constexpr double CurrentVersion = 1.01;

constexpr std::int16_t SavedInThisFormat = 2;

// The trailing blanks are meant.
constexpr const char* NotABandSawFile = "Not a valid Band Saw File     ";

}  // namespace

BandSawBytes ReadBandSaw(std::string_view bytes) {
  if (!bytes.starts_with(Magic) || bytes.size() < Magic.size() + Version.size()) {
    return {.State = ReadState::NotBandSaw, .Saw = {}, .Notes = {{.Text = NotABandSawFile}}};
  }
  bytes.remove_prefix(Magic.size());
  const double version = ReadNumber(bytes.substr(0, Version.size()));
  bytes.remove_prefix(Version.size());
  if (version != OldestVersion && !(version >= CurrentVersion)) {
    return {.State = ReadState::UnknownVersion, .Saw = {}};
  }

  ByteReader reader(bytes);
  BandSawBytes result{.State = ReadState::Complete, .Saw = TakeRecord(reader)};
  if (version > CurrentVersion) result.Notes.push_back({.Text = SavedInNewerVersion()});
  if (!reader.Complete()) {
    result.State = ReadState::Incomplete;
    result.Notes.push_back({.Text = FileIsIncomplete});
  }
  return result;
}

std::string BandSawText(const BandSaw& saw) {
  std::string text;
  text.reserve(BandSawFileSize);
  text += Magic;
  text += Version;
  AppendRecord(text, saw);
  return text;
}

void MarkSaved(BandSaw& saw) { saw.GeneralInfo.SavedAs = SavedInThisFormat; }

bool OpenBandSaw(BandSaw& saw, const std::filesystem::path& path, Messages& messages) {
  const FileBytes file = ReadFile(path, BandSawFileSize);
  if (file.Error) return false;
  const BandSawBytes read = ReadBandSaw(file.Bytes);
  if (read.Usable()) saw = read.Saw;
  for (const Box& box : read.Notes) messages.Show(box);
  return read.Usable();
}

std::error_code SaveBandSaw(BandSaw& saw, const std::filesystem::path& path) {
  MarkSaved(saw);
  return WriteWholeFile(path, BandSawText(saw), Rest::OnDisk);  // the copy of the design goes after this
}

}  // namespace tarnwick
