#include "cli/Output.h"

#include <system_error>
#include <utility>

#include "cli/Streams.h"
#include "store/modFiles.h"
#include "store/modPath.h"

namespace tarnwick::cli {
namespace {

namespace fs = std::filesystem;

/// The name under which all roads to a regular file meet; empty for anything else.
fs::path TrueName(const fs::path& path) {
  std::error_code failed;
  if (!fs::is_regular_file(path, failed)) return {};
  return fs::canonical(path, failed);
}

}  // namespace

Output::Output(const Options& options, std::string extension)
    : options_(options), extension_(std::move(extension)) {
  for (const std::string& design : options.Designs) {
    if (design != StandardStream) designs_.insert(TrueName(FilePath(design)));
  }
  designs_.erase(fs::path());
}

Problem Output::Claim(const std::string& design) {
  if (IsStandardOutput()) return {};
  const fs::path path = PathOf(design);
  if (!claimed_.insert(path).second) return PathText(path) + " belongs to an earlier design";
  if (designs_.contains(TrueName(path))) return PathText(path) + " is a design itself and is not overwritten";
  return {};
}

fs::path Output::PathOf(const std::string& design) const {
  if (!options_.OutputFile.empty()) return FilePath(options_.OutputFile);
  const fs::path name = design == StandardStream ? fs::path("standard-input") : FilePath(design).stem();
  fs::path path = FilePath(options_.OutputFolder) / name;
  path += extension_;
  return path;
}

Problem Output::Write(const std::string& design, std::string_view bytes) const {
  if (IsStandardOutput()) return WriteToStandardOutput(bytes);
  const fs::path path = PathOf(design);
  return WriteProblem(path, WriteWholeFile(path, bytes));
}

Problem WriteToStandardOutput(std::string_view bytes) {
  return WriteProblem("standard output", WriteStandardOutput(bytes));
}

Problem WriteProblem(const fs::path& path, const std::error_code& failed) {
  if (!failed) return {};
  return PathText(path) + " cannot be written: " + failed.message();
}

}  // namespace tarnwick::cli
