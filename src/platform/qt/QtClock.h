#pragma once

#include "platform/Clock.h"

namespace tarnwick {

/// The computer's clock, in the user's time zone.
class QtClock final : public Clock {
 public:
  [[nodiscard]] LocalTime Now() override;
  void Wait(std::chrono::milliseconds time) override;
  void WaitDeafToClicks(std::chrono::milliseconds time) override;
};

}  // namespace tarnwick
