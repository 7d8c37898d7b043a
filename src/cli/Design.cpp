#include "cli/Design.h"

#include <cctype>

#include "cli/JsonReader.h"
#include "cli/Options.h"
#include "cli/Streams.h"
#include "store/modFiles.h"
#include "store/modPath.h"
#include "store/modPowerFile.h"
#include "store/modSave.h"

namespace tarnwick::cli {
namespace {

/// Room for the longest line that the tool itself prints, and far less than an endless device has to give.
constexpr std::size_t MostJsonBytes = std::size_t{256} << 20;

/// The ending of a name, with its point, in small letters.
std::string ExtensionOf(const std::string& name) {
  std::string extension = PathText(FilePath(name).extension());
  for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return extension;
}

bool IsPowerFile(const std::string& name) { return name != StandardStream && ExtensionOf(name) == ".bsp"; }

Design Refused(std::string why) { return {.Failed = std::move(why), .Saw = {}, .Notes = {}}; }

Design Incomplete(std::size_t size, std::size_t whole) {
  return Refused("file is incomplete: " + std::to_string(size) + " of " + std::to_string(whole) + " bytes");
}

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
      return Incomplete(file.Bytes.size(), BandSawFileSize);
    case ReadState::Complete:
      break;
  }
  Design design{.Failed = {}, .Saw = read.Saw, .Notes = {}};
  for (const Box& note : read.Notes) design.Notes.push_back(note.Text);
  return design;
}

std::vector<Design> ReadBsp(const std::string& name) {
  const FileBytes file = ReadFile(FilePath(name), PowerFileSize);
  if (file.Error) return {Unreadable(file.Error)};
  const PowerFileBytes read = ReadPowerFile(file.Bytes);
  switch (read.State) {
    case PowerFileState::NotPowerFile:
      return {Refused("not a valid power file")};
    case PowerFileState::OtherVersion:
      return {Refused("a power file of another version")};
    case PowerFileState::Incomplete:
      return {Incomplete(file.Bytes.size(), PowerFileSize)};
    case PowerFileState::Complete:
      break;
  }
  std::vector<Design> designs;
  int number = 0;
  for (const BandSaw& saw : read.Saws) {
    designs.push_back({.Failed = {}, .Saw = saw, .Notes = {}, .Calculation = ++number});
  }
  return designs;
}

}  // namespace

std::vector<Design> ReadDesigns(const std::string& name) {
  if (IsPowerFile(name)) return ReadBsp(name);
  return {ReadDesign(name)};
}

Design ReadDesign(const std::string& name) {
  if (IsPowerFile(name)) return Refused("a power file holds two designs; only json and power take it");
  if (name == StandardStream) return ReadJson(ReadStandardInput(MostJsonBytes + 1));
  if (ExtensionOf(name) == ".json") return ReadJson(ReadFile(FilePath(name), MostJsonBytes + 1));
  return ReadBsw(name);
}

}  // namespace tarnwick::cli
