#pragma once

#include <chrono>

namespace tarnwick {

/// Date and time of day where the user is.
struct LocalTime {
  int Year{};
  int Month{};  // 1 to 12
  int Day{};    // 1 to 31
  int Hour{};   // 0 to 23
  int Minute{};
};

/// Port: what time it is, and letting some go by.
class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual LocalTime Now() = 0;

  /// Comes back when the time is over. Windows repaint meanwhile; clicks and keys wait.
  virtual void Wait(std::chrono::milliseconds time) = 0;

  /// The same, but a click of that time is not answered: what it was meant for may be gone by then.
  virtual void WaitDeafToClicks(std::chrono::milliseconds time) { Wait(time); }
};

/// A moment in which a pressed button is seen to come up. The second click of a double one falls into it.
inline void Pause(Clock& clock) { clock.WaitDeafToClicks(std::chrono::milliseconds(250)); }

}  // namespace tarnwick
