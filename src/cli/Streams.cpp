#include "cli/Streams.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace tarnwick::cli {
namespace {

/// Keeps the platform from changing line ends on their way.
void MakeBinary([[maybe_unused]] std::FILE* stream) {
#ifdef _WIN32
  _setmode(_fileno(stream), _O_BINARY);
#endif
}

}  // namespace

FileBytes ReadStandardInput(std::size_t most) {
  MakeBinary(stdin);
  return ReadStream(stdin, most);
}

std::error_code WriteStandardOutput(std::string_view bytes) {
  MakeBinary(stdout);
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0)
    return {};
  return {errno != 0 ? errno : EIO, std::generic_category()};
}

void Tell(std::string_view where, std::string_view text) {
  std::string line = "tarnwick-cli: ";
  line.append(where).append(": ").append(text);
  const auto control = [](unsigned char c) { return c < ' '; };
  std::replace_if(line.begin(), line.end(), control, ' ');
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace tarnwick::cli
