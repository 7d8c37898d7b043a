#pragma once

namespace tarnwick {

/// Date and time of day where the user is.
struct LocalTime {
  int Year{};
  int Month{};  // 1 to 12
  int Day{};    // 1 to 31
  int Hour{};   // 0 to 23
  int Minute{};
};

/// Port: what time it is.
class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual LocalTime Now() = 0;
};

}  // namespace tarnwick
