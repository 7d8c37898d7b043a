#pragma once

#include <string>

namespace tarnwick {

/// The design that the program is to open on start. The command line is taken whole: all arguments joined by
/// one blank are one path; no quotes are removed, nothing is an option.
/// @return the path, made absolute; empty when it names no file that can be read
[[nodiscard]] std::string CommandFile(int argc, const char* const* argv);

}  // namespace tarnwick
