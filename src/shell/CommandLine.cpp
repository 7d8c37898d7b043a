#include "shell/CommandLine.h"

#include <filesystem>
#include <system_error>

#include "store/modFiles.h"
#include "store/modPath.h"

namespace tarnwick {

std::string CommandFile(int argc, const char* const* argv) {
  std::string whole;
  for (int i = 1; i < argc; ++i) whole += (i > 1 ? " " : "") + std::string(argv[i]);
  if (whole.empty() || !FileExists(FilePath(whole))) return {};
  std::error_code failed;
  const std::filesystem::path path = std::filesystem::absolute(FilePath(whole), failed);
  return failed ? std::string() : PathText(path);
}

}  // namespace tarnwick
