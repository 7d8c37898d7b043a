#pragma once

#include <string>

namespace tarnwick {

inline constexpr const char* ProgramName = "Tarnwick";

/// One line that names the maker.
[[nodiscard]] std::string MakerLine();

/// What the box about the program says: its name and version, an empty line, the maker.
[[nodiscard]] std::string AboutText();

}  // namespace tarnwick
