#include "cli/Output.h"

#include <system_error>
#include <utility>

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
    if (design != StandardStream) designs_.insert(TrueName(design));
  }
  designs_.erase(fs::path());
}

Problem Output::Claim(const std::string& design) {
  if (IsStandardOutput()) return {};
  const fs::path path = PathOf(design);
  if (!claimed_.insert(path).second) return path.string() + " belongs to an earlier design";
  if (designs_.contains(TrueName(path))) return path.string() + " is a design itself and is not overwritten";
  return {};
}

fs::path Output::PathOf(const std::string& design) const {
  if (!options_.OutputFile.empty()) return options_.OutputFile;
  const fs::path name = design == StandardStream ? fs::path("standard-input") : fs::path(design).stem();
  fs::path path = fs::path(options_.OutputFolder) / name;
  path += extension_;
  return path;
}

Problem WriteProblem(const fs::path& path, const std::error_code& failed) {
  if (!failed) return {};
  return path.string() + " cannot be written: " + failed.message();
}

}  // namespace tarnwick::cli
