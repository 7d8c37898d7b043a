#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "model/modBandSaw.h"
#include "platform/Messages.h"

namespace tarnwick {

/// The two designs of the power calculator.
using PowerSaws = std::array<BandSaw, 2>;

/// The power file, `.bsp`: 30 bytes of magic, the version as text in 25 bytes, the images of two records. It
/// has no length field and no checksum.
inline constexpr std::size_t PowerFileSize = 55 + 2 * RecordImageSize;

/// What a file's bytes came to.
enum class PowerFileState {
  Complete,
  Incomplete,    // a record ends early; the missing bytes read as zeros
  NotPowerFile,  // another kind of file, or no whole header
  OtherVersion,  // older or newer than this program's
};

struct PowerFileBytes {
  PowerFileState State{};
  PowerSaws Saws{};          // zero unless Complete or Incomplete
  std::vector<Box> Notes{};  // what the user is to be told, in order
  [[nodiscard]] bool Usable() const {
    return State == PowerFileState::Complete || State == PowerFileState::Incomplete;
  }
};

/// Reads two designs from the bytes of a power file; any bytes will do. Bytes behind the second record are
/// passed over.
///
/// Only version 1.01 is read. Any other one, an older too, is said to be newer: meant so.
[[nodiscard]] PowerFileBytes ReadPowerFile(std::string_view bytes);

/// The bytes of a power file that holds `saws` as they stand.
[[nodiscard]] std::string PowerFileText(const PowerSaws& saws);

/// Reads the power file `path` into `saws` and shows what there is to be told. An incomplete file is taken,
/// with a message. False with `saws` untouched when the file cannot be read, which says nothing, or is no
/// power file of this version.
[[nodiscard]] bool OpenPowerFile(PowerSaws& saws, const std::filesystem::path& path, Messages& messages);

/// Writes `saws` to the file `path`, in place of an older file. Unlike a band saw file they are not marked as
/// saved. There is no backup: after a failure no file is left.
/// @return the failure, for the caller to report
[[nodiscard]] std::error_code SavePowerFile(const PowerSaws& saws, const std::filesystem::path& path);

}  // namespace tarnwick
