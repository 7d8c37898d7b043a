#pragma once

#include <cstdlib>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#ifndef _WIN32
#include <sys/wait.h>
#endif

#include "support/Environment.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::test {

/// What the command line tool did, seen from outside.
struct ToolRun {
  int Code{};
  std::string Out, Err;
};

/// Variables of the environment by name; one without a value is not there.
using Environment = std::map<std::string, std::optional<std::string>>;

#ifdef _WIN32
inline const std::string ChangeFolder = "cd /d ";  // and the drive

/// The exit code of a command of the shell.
inline int RunCommand(const std::string& command) {
  return _wsystem(FilePath(command).c_str());  // wide: names may be in any script
}
#else
inline const std::string ChangeFolder = "cd ";

/// The exit code of a command of the shell.
inline int RunCommand(const std::string& command) {
  const int status = std::system(command.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
#endif

/// Runs the tool as a user would, in the folder `folder`. Arguments hold nothing that means something within
/// double quotes. The user has no settings, unless `environment` leads to some.
inline ToolRun RunTool(const TemporaryFolder& folder, const std::vector<std::string>& arguments,
                       std::string_view input = {}, Environment environment = {}) {
  const TemporaryFolder streams;  // of its own: only the tool's files lie in `folder`
  environment.try_emplace("XDG_CONFIG_HOME", (streams / "no settings").string());
  std::list<EnvironmentVariable> variables;
  for (const auto& [name, value] : environment) variables.emplace_back(name, value);
  const auto quoted = [](const std::string& text) { return "\"" + text + "\""; };
  const std::string tool = std::filesystem::absolute(TARNWICK_CLI).string();  // its drive may be another one
  std::string command = ChangeFolder + quoted(folder.Path().string()) + " && " + quoted(tool);
  for (const std::string& argument : arguments) command += " " + quoted(argument);
  command += " <" + quoted(streams.File("in", input).string());
  command += " >" + quoted((streams / "out").string());
  command += " 2>" + quoted((streams / "err").string());
  return {RunCommand(command), BytesOf(streams / "out"), BytesOf(streams / "err")};
}

}  // namespace tarnwick::test
