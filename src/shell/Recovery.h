#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/FileLock.h"
#include "platform/Messages.h"
#include "shell/OpenDesign.h"

namespace tarnwick {

/// How often the open design is to be noted, so that a change is safe within a second.
inline constexpr std::chrono::milliseconds RecoveryInterval(500);

/// Keeps a copy of the open design while it is changed and not saved, and offers it at the next start when
/// the program had no time to remove it.
///
/// Copies lie in the program's own folder among the user's state, never beside the document. Every running
/// program has one name there, drawn by lot, with its copy and a lock that is held as long as it runs: a copy
/// whose lock is free was left by a crash. Where no copy can be kept there is no recovery, and nobody is
/// told.
class Recovery {
 public:
  /// @param stateFolder  of the user, as UserStateFolder; nothing is made there before there is a copy.
  ///                     Empty: there is no recovery
  explicit Recovery(const std::filesystem::path& stateFolder);

  /// Brings the copy up to date: written, in one step, when the design is changed and differs from what was
  /// noted last; removed when the design is as saved. A copy that could not be written is tried again after
  /// the next change.
  ///
  /// Cost: below a microsecond while the design is as saved; about ten, and no access to the disk, when it is
  /// as noted last; the writing of one small file otherwise.
  void Note(const OpenDesign& design);

  /// To be called after every save that succeeded: the copy goes, and so do those that the user did not want.
  void Saved(const OpenDesign& design);

  /// Asks for each copy that a crash has left, the latest first, until the user wants one. It comes in place
  /// of `design`, calculated and in true size, and counts as changed against the file that it came from.
  /// Those that he does not want stay until the next save.
  /// @return whether a design was recovered
  bool Offer(OpenDesign& design, Messages& messages);

  /// The program ends as it should: what is to become of the design has been decided.
  void End();

 private:
  using Names = std::vector<std::filesystem::path>;

  [[nodiscard]] std::filesystem::path CopyOf(const std::filesystem::path& name) const;
  [[nodiscard]] std::filesystem::path LockOf(const std::filesystem::path& name) const;
  [[nodiscard]] Names LatestFirst() const;
  [[nodiscard]] std::string ReadCopy(const std::filesystem::path& name) const;
  bool TakeOwnName();
  void RemoveOwnCopy();
  void Remove(const std::filesystem::path& name, FileLock& lock) const;
  void RemoveDeclined();

  std::filesystem::path folder_;
  std::filesystem::path own_;  // this program's name, once its lock is held
  FileLock lock_;
  std::string noted_;                                      // the copy as it should be; empty: none
  std::map<std::filesystem::path, std::string> declined_;  // name to bytes
};

}  // namespace tarnwick
