#include "cli/Sibling.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "cli/Streams.h"
#include "store/modPath.h"

#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#endif

namespace tarnwick::cli {
namespace {

namespace fs = std::filesystem;

ExitCode TellMissing(const std::string& name, const fs::path& path) {
  const std::error_code why(errno, std::generic_category());
  Tell(name, PathText(path) + " cannot be run: " + why.message() + ". It comes with the window program.");
  return ExitCode::SomeFailed;
}

#ifdef _WIN32

// _wpgmptr is the path that this program was started by; the libraries of older systems have no function for
// it.
fs::path OwnFolder() { return _wpgmptr ? fs::path(_wpgmptr).parent_path() : fs::path(); }

/// Arguments go to a program for Windows as one line, which it takes apart itself: by blanks that are not
/// within quotes. A backslash means something ahead of a quote only.
std::wstring Quoted(const std::string& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : FilePath(argument).wstring()) {
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

#else

fs::path OwnFolder() {
  std::error_code failed;
  return fs::read_symlink("/proc/self/exe", failed).parent_path();
}

#endif

}  // namespace

#ifdef _WIN32

ExitCode RunSibling(const std::string& name, const std::vector<std::string>& arguments) {
  const fs::path program = OwnFolder() / FilePath(name + ".exe");
  std::vector<std::wstring> texts{Quoted(PathText(program))};
  for (const std::string& argument : arguments) texts.push_back(Quoted(argument));
  std::vector<const wchar_t*> pointers;
  for (const std::wstring& text : texts) pointers.push_back(text.c_str());
  pointers.push_back(nullptr);
  const auto code = _wspawnv(_P_WAIT, program.c_str(), pointers.data());
  return code < 0 ? TellMissing(name, program) : static_cast<ExitCode>(code);
}

#else

// It takes this process over, and its exit code is this one's.
ExitCode RunSibling(const std::string& name, const std::vector<std::string>& arguments) {
  const fs::path program = OwnFolder() / name;
  std::vector<std::string> texts{program.string()};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  execv(program.c_str(), pointers.data());
  return TellMissing(name, program);
}

#endif

}  // namespace tarnwick::cli
