#pragma once

#include <string_view>
#include <system_error>

#include "store/modFiles.h"

namespace tarnwick::cli {

/// Keeps the platform from changing line ends on their way through the standard streams: bytes are bytes
/// everywhere. To be called before anything else here.
void KeepLineEnds();

/// Standard input from where it stands, `most` bytes at most.
[[nodiscard]] FileBytes ReadStandardInput(std::size_t most);

/// Writes to standard output and waits until every byte is out.
[[nodiscard]] std::error_code WriteStandardOutput(std::string_view bytes);

/// One line on standard error: "tarnwick-cli: WHERE: text". Line breaks within become blanks.
void Tell(std::string_view where, std::string_view text);

}  // namespace tarnwick::cli
