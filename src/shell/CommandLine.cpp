#include "shell/CommandLine.h"

#include <filesystem>
#include <system_error>

#include "store/modFiles.h"

namespace tarnwick {

std::string CommandFile(int argc, const char* const* argv) {
  std::string whole;
  for (int i = 1; i < argc; ++i) whole += (i > 1 ? " " : "") + std::string(argv[i]);
  if (whole.empty() || !FileExists(whole)) return {};
  std::error_code failed;
  const std::filesystem::path path = std::filesystem::absolute(whole, failed);
  return failed ? std::string() : path.string();
}

}  // namespace tarnwick
