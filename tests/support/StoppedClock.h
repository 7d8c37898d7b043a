#pragma once

#include <chrono>
#include <functional>
#include <vector>

#include "platform/Clock.h"

namespace tarnwick::test {

/// It is always the same time, and waiting takes none.
class StoppedClock final : public Clock {
 public:
  LocalTime Now() override { return Time; }
  void Wait(std::chrono::milliseconds time) override {
    Waited.push_back(time);
    if (Meanwhile) Meanwhile();
  }

  LocalTime Time{2026, 11, 21, 15, 5};
  std::vector<std::chrono::milliseconds> Waited;
  std::function<void()> Meanwhile;  // what happens in each of these times
};

}  // namespace tarnwick::test
