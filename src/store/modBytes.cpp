#include "store/modBytes.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr unsigned BitsPerByte = 8;

}  // namespace

std::uint64_t ByteReader::Number(std::size_t size) {
  char bytes[sizeof(std::uint64_t)];
  Bytes(bytes, size);
  std::uint64_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << BitsPerByte | static_cast<unsigned char>(bytes[i]);
  return value;
}

void ByteReader::Bytes(char* out, std::size_t size) {
  const std::size_t here = std::min(size, rest_.size());
  std::copy_n(rest_.begin(), here, out);
  std::fill_n(out + here, size - here, '\0');
  rest_.remove_prefix(here);
  complete_ = complete_ && here == size;
}

void AppendNumber(std::string& out, std::uint64_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) out += static_cast<char>(value >> (i * BitsPerByte) & 0xFF);
}

}  // namespace tarnwick
