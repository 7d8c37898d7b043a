#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

/// Takes numbers and bytes one after another from the front of a file's bytes, and never reads past their
/// end: what is missing there reads as zero bytes.
///
/// Numbers are little-endian, whatever the machine.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest_(bytes) {}

  /// The next `size` bytes as a number; size is 1 to 8.
  [[nodiscard]] std::uint64_t Number(std::size_t size);
  /// The next `size` bytes into `out`.
  void Bytes(char* out, std::size_t size);

  /// Whether there were bytes for all that has been asked for.
  [[nodiscard]] bool Complete() const { return complete_; }

 private:
  std::string_view rest_;
  bool complete_ = true;
};

/// Appends the lowest `size` bytes of `value`, little-endian; size is 1 to 8.
void AppendNumber(std::string& out, std::uint64_t value, std::size_t size);

}  // namespace tarnwick
