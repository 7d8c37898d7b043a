#include "cli/Design.h"

#include <cctype>

#include "cli/JsonReader.h"
#include "cli/Options.h"
#include "cli/Streams.h"
#include "store/modFiles.h"
#include "store/modPath.h"
#include "store/modSave.h"

namespace tarnwick::cli {
namespace {

/// Room for the longest line that the tool itself prints, and far less than an endless device has to give.
constexpr std::size_t MostJsonBytes = std::size_t{256} << 20;

bool IsJsonName(const std::string& name) {
  std::string extension = PathText(FilePath(name).extension());
  for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return extension == ".json";
}

Design Refused(std::string why) { return {.Failed = std::move(why), .Saw = {}, .Notes = {}}; }

Design Unreadable(const std::error_code& why) { return Refused("cannot be read: " + why.message()); }

Design ReadJson(const FileBytes& file) {
  if (file.Error) return Unreadable(file.Error);
  if (file.Bytes.size() > MostJsonBytes) return Refused("too large for a design");
  JsonDesign read = ReadDesignJson(file.Bytes);
  return {.Failed = std::move(read.Failed), .Saw = read.Saw, .Notes = {}};
}

Design ReadBsw(const std::string& name) {
  const FileBytes file = ReadFile(FilePath(name), BandSawFileSize);
  if (file.Error) return Unreadable(file.Error);
  const BandSawBytes read = ReadBandSaw(file.Bytes);
  switch (read.State) {
    case ReadState::NotBandSaw:
      return Refused("not a valid band saw file");
    case ReadState::UnknownVersion:
      return Refused("a band saw file of an unknown version");
    case ReadState::Incomplete:
      return Refused("file is incomplete: " + std::to_string(file.Bytes.size()) + " of " +
                     std::to_string(BandSawFileSize) + " bytes");
    case ReadState::Complete:
      break;
  }
  Design design{.Failed = {}, .Saw = read.Saw, .Notes = {}};
  for (const Box& note : read.Notes) design.Notes.push_back(note.Text);
  return design;
}

}  // namespace

Design ReadDesign(const std::string& name) {
  if (name == StandardStream) return ReadJson(ReadStandardInput(MostJsonBytes + 1));
  if (IsJsonName(name)) return ReadJson(ReadFile(FilePath(name), MostJsonBytes + 1));
  return ReadBsw(name);
}

}  // namespace tarnwick::cli
