#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>

namespace tarnwick::test {

/// Stands at a pipe that nobody writes into. Who reads from it would wait for ever; he is seen, and let go.
class PipeWatch {
 public:
  explicit PipeWatch(const std::filesystem::path& pipe) : thread_([this, pipe] { Watch(pipe); }) {}
  PipeWatch(const PipeWatch&) = delete;
  PipeWatch& operator=(const PipeWatch&) = delete;
  ~PipeWatch() {
    done_ = true;
    thread_.join();
  }

  [[nodiscard]] bool SawAReader() const { return seen_; }

 private:
  void Watch(const std::filesystem::path& pipe) {
    while (!done_) {
      const int end = open(pipe.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);  // fails while nobody reads
      if (end >= 0) {
        seen_ = true;
        close(end);
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }

  std::atomic<bool> seen_ = false, done_ = false;
  std::thread thread_;
};

}  // namespace tarnwick::test
