#pragma once

#include <QDateTime>

#include "platform/Clock.h"

namespace tarnwick {

/// The computer's clock, in the user's time zone.
class QtClock final : public Clock {
 public:
  [[nodiscard]] LocalTime Now() override {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    return {date.year(), date.month(), date.day(), now.time().hour(), now.time().minute()};
  }
};

}  // namespace tarnwick
