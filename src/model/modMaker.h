#pragma once

#include <string_view>

namespace tarnwick {

/// Who makes the program, as its boxes and packages name them.
inline constexpr std::string_view Maker = "the Tarnwick makers";
inline constexpr std::string_view MakersWebAddress = "www.tarnwick.example";

}  // namespace tarnwick
