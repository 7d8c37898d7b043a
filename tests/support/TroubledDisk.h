#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tarnwick::test {

/// What befalls a program on a disk, at one of its operations there.
struct Trouble {
  enum class Kind {
    None,
    Fails,     // this operation alone: the medium, or a right that is missing
    DiskFull,  // from here on there is no room: a write gets half way, then nothing is taken any more
    Dies,      // the program, just before it
  };
  Kind Is = Kind::None;
  std::size_t At = 0;  // the operation, counted from 1
};

/// What a program did on the disk, and what became of it.
struct TroubledRun {
  std::vector<std::string> Operations;  // "write config/Settings", in order, those that failed included
  std::size_t MetAt = 0;                // the first one that was in trouble, counted from 1; 0: none was
  std::string Told;                     // what the work answered; empty when it did not come to its end
  int Status = 0;                       // as waitpid tells it

  /// The operation that met the trouble.
  [[nodiscard]] std::string Met() const { return MetAt > 0 ? Operations[MetAt - 1] : std::string(); }
  /// It came to its end by itself.
  [[nodiscard]] bool Ended() const;
  [[nodiscard]] bool WasKilled() const;  // as planned
  [[nodiscard]] int ExitCode() const;    // of one that ended by itself
};

/// Prepares a scene, and answers with the work that is to be troubled.
using TroubledWork = std::function<std::function<std::string()>()>;

/// Does the work in a process of its own, whose every operation on `folder` and what lies below is counted:
/// opening, reading, writing, closing, asking for, removing, renaming and the like, as the kernel is asked
/// for them. The one that is named is in trouble. Preparing is not counted.
///
/// No library stands in between, so it is all the same what the program is made of or checked by. A work
/// that hangs is killed after a minute. On Linux, x86-64, alone: it is the kernel that is spoken to.
[[nodiscard]] TroubledRun RunTroubled(const std::filesystem::path& folder, Trouble trouble,
                                      const TroubledWork& prepare);

/// The work of another program; what it prints goes into files.
[[nodiscard]] TroubledWork OtherProgram(std::vector<std::string> command, std::filesystem::path out,
                                        std::filesystem::path err);

}  // namespace tarnwick::test
