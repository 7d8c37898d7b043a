#pragma once

#include <sys/resource.h>

#include <csignal>

namespace tarnwick::test {

/// While it lives, no file of this process grows beyond `most` bytes: writing fails in the middle, as it does
/// on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t most) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{most, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }

 private:
  void (*signal_)(int);
  rlimit before_{};
};

}  // namespace tarnwick::test
