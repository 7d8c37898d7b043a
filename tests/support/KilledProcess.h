#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace tarnwick::test {

/// A second process, from this one, that does its work and then stays until it is killed; the constructor
/// comes back when the work is done.
class KilledProcess {
 public:
  explicit KilledProcess(const std::function<void()>& work) {
    int ends[2];
    if (pipe(ends) != 0) return;
    id_ = fork();
    if (id_ == 0) {
      work();
      const char done = 1;
      if (write(ends[1], &done, 1) != 1) _exit(1);
      while (true) pause();
    }
    close(ends[1]);
    char done = 0;
    ready_ = read(ends[0], &done, 1) == 1;
    close(ends[0]);
  }
  KilledProcess(const KilledProcess&) = delete;
  KilledProcess& operator=(const KilledProcess&) = delete;
  ~KilledProcess() { Kill(); }

  [[nodiscard]] bool Ready() const { return ready_; }

  /// At once, without a chance to clean up.
  void Kill() {
    if (id_ <= 0) return;
    kill(id_, SIGKILL);
    waitpid(id_, nullptr, 0);
    id_ = 0;
  }

 private:
  pid_t id_ = 0;
  bool ready_ = false;
};

}  // namespace tarnwick::test
