#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

#include "cli/Design.h"
#include "cli/Options.h"

namespace tarnwick::cli {

/// Where the files of a command go: to the one file named, to standard output, or into a folder, each under
/// the name of its design.
class Output {
 public:
  /// `extension` with its point: ".dxf".
  Output(const Options& options, std::string extension);

  /// To be asked for each design before any work on it. Fails when an earlier design has the same output, or
  /// when the output is one of the designs: the tool removes no input.
  [[nodiscard]] Problem Claim(const std::string& design);

  /// The file of a design, from its name: "saws/oak.json" gives "oak.dxf" in the folder asked for.
  [[nodiscard]] std::filesystem::path PathOf(const std::string& design) const;

  /// Puts the whole output of a design there.
  [[nodiscard]] Problem Write(const std::string& design, std::string_view bytes) const;

  /// Whether the output is no file but standard output.
  [[nodiscard]] bool IsStandardOutput() const { return options_.OutputFile == StandardStream; }

 private:
  const Options& options_;
  std::string extension_;
  std::set<std::filesystem::path> designs_;  // the files of all designs, by their one true name
  std::set<std::filesystem::path> claimed_;
};

[[nodiscard]] Problem WriteToStandardOutput(std::string_view bytes);

/// The problem with a write that ended so; none when it went well.
[[nodiscard]] Problem WriteProblem(const std::filesystem::path& path, const std::error_code& failed);

}  // namespace tarnwick::cli
