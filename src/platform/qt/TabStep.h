#pragma once

#include <QFocusEvent>

namespace tarnwick {

/// Whether the keyboard brings the focus or takes it away: who comes by Tab wants to be told where he is.
/// @param event  of the focus, in or out
[[nodiscard]] inline bool IsTabStep(const QEvent& event) {
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

}  // namespace tarnwick
