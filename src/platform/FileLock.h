#pragma once

#include <cstdint>
#include <filesystem>

namespace tarnwick {

/// A file that one program at a time may hold, and by which others see that it is alive: the operating system
/// lets go of it when the program ends, however it ends. A file that was left behind is free.
///
/// Only its holder removes the file, so that nobody's is taken away under him.
class FileLock {
 public:
  FileLock() = default;
  FileLock(FileLock&& other) noexcept;
  FileLock& operator=(FileLock&& other) noexcept;
  ~FileLock() { Release(); }  // the file stays

  /// Takes the lock `file`, made if there is none; what was held before is let go. Never waits.
  /// @return false: somebody holds it (this process counts, too), or there cannot be such a file
  [[nodiscard]] bool Take(const std::filesystem::path& file);

  [[nodiscard]] bool Held() const { return handle_ != None; }

  /// Lets go of the lock. Its file stays.
  void Release();
  void ReleaseAndRemove();

 private:
  static constexpr std::intptr_t None = -1;

  std::intptr_t handle_ = None;  // what the operating system calls the open file
  std::filesystem::path file_;
};

}  // namespace tarnwick
