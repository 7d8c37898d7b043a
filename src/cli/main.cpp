#include "cli/Commands.h"

#ifdef _WIN32

#include <string>
#include <vector>

#include "store/modPath.h"

// Names of files may be in any script. Only wide arguments have room for that; from here on they are UTF-8.
int wmain(int argc, wchar_t** argv) {
  std::vector<std::string> texts;
  for (int i = 0; i < argc; ++i) texts.push_back(tarnwick::PathText(argv[i]));
  std::vector<const char*> arguments;
  for (const std::string& text : texts) arguments.push_back(text.c_str());
  return tarnwick::cli::RunTool(argc, arguments.data());
}

#else

int main(int argc, char** argv) { return tarnwick::cli::RunTool(argc, argv); }

#endif
