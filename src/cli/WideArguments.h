#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "store/modPath.h"

namespace tarnwick::cli {

/// The arguments of a program for Windows. Names of files may be in any script, and only wide arguments have
/// room for that; from here on they are UTF-8.
/// @param run  takes them as main does
template <class Run>
int RunOnWide(int argc, const wchar_t* const* argv, Run run) {
  std::vector<std::string> texts;
  texts.reserve(static_cast<std::size_t>(argc));
  for (int i = 0; i < argc; ++i) texts.push_back(PathText(argv[i]));
  std::vector<const char*> arguments;
  arguments.reserve(texts.size());
  for (const std::string& text : texts) arguments.push_back(text.c_str());
  return run(argc, arguments.data());
}

}  // namespace tarnwick::cli
