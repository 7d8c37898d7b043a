#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/modBandSaw.h"

namespace tarnwick::cli {

/// Why a design failed, in words for the user; nothing when it did not.
using Problem = std::optional<std::string>;

/// A design as read, before any calculation.
struct Design {
  Problem Failed;  // Saw is zero then
  BandSaw Saw;
  std::vector<std::string> Notes;  // what its reader had to tell
  int Calculation = 0;             // of a power file: 1 or 2
};

/// Reads a design by its name on the command line: "-" is JSON on standard input, a name that ends in ".json"
/// (in any case) is a JSON file, any other a band saw file. An incomplete file counts as failed. Whatever the
/// name leads to, it is only read.
[[nodiscard]] Design ReadDesign(const std::string& name);

/// The same for a command that takes power files too, whose names end in ".bsp": one holds two designs. What
/// fails is one design that has failed.
[[nodiscard]] std::vector<Design> ReadDesigns(const std::string& name);

}  // namespace tarnwick::cli
