#pragma once

#include <QFocusEvent>

namespace tarnwick {

/// Whether the keyboard brought the focus here or takes it away: who comes by Tab wants to be told where he
/// is.
[[nodiscard]] inline bool IsTabStep(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

}  // namespace tarnwick
