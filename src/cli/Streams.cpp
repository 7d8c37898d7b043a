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

void KeepLineEnds() {
#ifdef _WIN32
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
#endif
}

FileBytes ReadStandardInput(std::size_t most) { return ReadStream(stdin, most); }

std::error_code WriteStandardOutput(std::string_view bytes) {
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
