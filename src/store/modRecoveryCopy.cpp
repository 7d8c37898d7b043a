#include "store/modRecoveryCopy.h"

#include <cstdint>

#include "store/modBytes.h"
#include "store/modSave.h"

namespace tarnwick {
namespace {

constexpr std::string_view Heading = "Tarnwick recovery copy 1\n";
constexpr std::size_t ChecksumSize = 8;
constexpr std::size_t LengthSize = 4;

/// FNV-1a, 64 bits.
std::uint64_t Checksum(std::string_view bytes) {
  std::uint64_t sum = 0xCBF29CE484222325U;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  return sum;
}

void AppendText(std::string& out, std::string_view text) {
  AppendNumber(out, text.size(), LengthSize);
  out += text;
}

/// Takes a text from the front of `bytes`; false when they end before it does.
bool TakeText(std::string_view& bytes, std::string& text) {
  if (bytes.size() < LengthSize) return false;
  const std::uint64_t length = ByteReader(bytes).Number(LengthSize);
  bytes.remove_prefix(LengthSize);
  if (bytes.size() < length) return false;
  text = bytes.substr(0, length);
  bytes.remove_prefix(length);
  return true;
}

}  // namespace

std::string RecoveryText(std::string_view fileName, std::string_view folder, const BandSaw& saw) {
  std::string content;
  content.reserve(2 * LengthSize + fileName.size() + folder.size() + BandSawFileSize);
  AppendText(content, fileName);
  AppendText(content, folder);
  content += BandSawText(saw);
  std::string text(Heading);
  text.reserve(Heading.size() + ChecksumSize + content.size());
  AppendNumber(text, Checksum(content), ChecksumSize);
  return text += content;
}

std::optional<RecoveryCopy> ReadRecovery(std::string_view bytes) {
  if (!bytes.starts_with(Heading) || bytes.size() < Heading.size() + ChecksumSize) return {};
  bytes.remove_prefix(Heading.size());
  const std::uint64_t checksum = ByteReader(bytes).Number(ChecksumSize);
  bytes.remove_prefix(ChecksumSize);
  if (checksum != Checksum(bytes)) return {};
  RecoveryCopy copy;
  if (!TakeText(bytes, copy.FileName) || !TakeText(bytes, copy.Folder)) return {};
  const BandSawBytes design = ReadBandSaw(bytes);
  if (design.State != ReadState::Complete || bytes.size() != BandSawFileSize) return {};
  copy.Saw = design.Saw;
  return copy;
}

}  // namespace tarnwick
