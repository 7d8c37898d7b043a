#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "model/modBandSaw.h"
#include "platform/Messages.h"

namespace tarnwick {

/// The band saw file, `.bsw`: 25 bytes of magic, the version as text in 25 bytes, the image of one record.
/// It has no length field and no checksum.
inline constexpr std::size_t BandSawFileSize = 50 + RecordImageSize;

/// What a file's bytes came to.
enum class ReadState {
  Complete,
  Incomplete,  // the record ends early; the missing bytes read as zeros
  NotBandSaw,  // another kind of file, or no whole header
  UnknownVersion,
};

struct BandSawBytes {
  ReadState State{};
  BandSaw Saw;               // zero unless Complete or Incomplete
  std::vector<Box> Notes{};  // what the user is to be told, in order
  [[nodiscard]] bool Usable() const { return State == ReadState::Complete || State == ReadState::Incomplete; }
};

/// Reads a design from the bytes of a band saw file; any bytes will do. Bytes behind the record are passed
/// over.
///
/// A version below 1.01 other than 1.0 is unknown and says nothing. A newer one is read as if it were 1.01,
/// with a message, however much of it is not understood.
[[nodiscard]] BandSawBytes ReadBandSaw(std::string_view bytes);

/// The bytes of a band saw file that holds `saw` as it stands.
[[nodiscard]] std::string BandSawText(const BandSaw& saw);

/// What a save does to the design itself: `SavedAs` becomes 2, the number of this kind of file.
void MarkSaved(BandSaw& saw);

/// Reads the design file `path` into `saw` and shows what there is to be told. An incomplete file is taken,
/// with a message, so that a damaged design is shown rather than lost. False with `saw` untouched when the
/// file cannot be read or is no band saw file that this version knows.
[[nodiscard]] bool OpenBandSaw(BandSaw& saw, const std::filesystem::path& path, Messages& messages);

/// Writes `saw` to the file `path`, in place of an older file. It is marked as saved first, so that the
/// design at hand and the one in the file agree. There is no backup: after a failure no file is left.
/// @return the failure, for the caller to report
[[nodiscard]] std::error_code SaveBandSaw(BandSaw& saw, const std::filesystem::path& path);

}  // namespace tarnwick
