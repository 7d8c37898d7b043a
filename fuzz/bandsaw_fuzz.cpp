// Any bytes as a band saw file: what was read and is written again has the same record, byte for byte.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "store/modSave.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t headerSize = tarnwick::BandSawFileSize - tarnwick::RecordImageSize;
  const std::string bytes(data, data + size);
  const tarnwick::BandSawBytes read = tarnwick::ReadBandSaw(bytes);
  if (!read.Usable()) return 0;

  const bool complete = size >= tarnwick::BandSawFileSize;
  if (complete != (read.State == tarnwick::ReadState::Complete)) std::abort();
  std::string image = bytes.substr(headerSize, tarnwick::RecordImageSize);
  image.resize(tarnwick::RecordImageSize, '\0');
  if (tarnwick::BandSawText(read.Saw).substr(headerSize) != image) std::abort();
  return 0;
}
