#pragma once

namespace tarnwick::cli {

/// What the tool tells the shell.
enum class ExitCode : int {
  AllDone = 0,  // messages of a calculation are no failure
  SomeFailed = 1,
  WrongUsage = 2,
};

}  // namespace tarnwick::cli
