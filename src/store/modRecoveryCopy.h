#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/modBandSaw.h"

namespace tarnwick {

/// A design that is not saved, as it is kept for the day after a crash.
struct RecoveryCopy {
  std::string FileName, Folder;  // where it was opened from, or is to be saved; UTF-8
  BandSaw Saw;
};

/// The bytes of a copy: a line that says what it is, a checksum of all that follows, the two texts with their
/// lengths, and the design as its own file would hold it.
[[nodiscard]] std::string RecoveryText(std::string_view fileName, std::string_view folder,
                                       const BandSaw& saw);

/// Reads a copy; any bytes will do. Nothing when they are no copy, or not every byte is as it was written.
[[nodiscard]] std::optional<RecoveryCopy> ReadRecovery(std::string_view bytes);

}  // namespace tarnwick
