#pragma once

#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#ifndef _WIN32
#include <sys/wait.h>
#endif

#include "support/TemporaryFolder.h"

namespace tarnwick::test {

/// What the command line tool did, seen from outside.
struct ToolRun {
  int Code{};
  std::string Out, Err;
};

/// Runs the tool as a user would, in the folder `folder`. Arguments hold nothing that means something within
/// double quotes.
inline ToolRun RunTool(const TemporaryFolder& folder, const std::vector<std::string>& arguments,
                       std::string_view input = {}) {
  const TemporaryFolder streams;  // of its own: only the tool's files lie in `folder`
  const auto quoted = [](const std::string& text) { return "\"" + text + "\""; };
  std::string command = "cd " + quoted(folder.Path().string()) + " && " + quoted(TARNWICK_CLI);
  for (const std::string& argument : arguments) command += " " + quoted(argument);
  command += " <" + quoted(streams.File("in", input).string());
  command += " >" + quoted((streams / "out").string());
  command += " 2>" + quoted((streams / "err").string());
  const int status = std::system(command.c_str());
#ifdef _WIN32
  const int code = status;
#else
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
  return {code, BytesOf(streams / "out"), BytesOf(streams / "err")};
}

}  // namespace tarnwick::test
