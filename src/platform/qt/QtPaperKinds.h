#pragma once

#include <QPageLayout>
#include <QPageSize>
#include <optional>

#include "platform/PrintDevice.h"

namespace tarnwick {

/// The paper of a kind; nullopt for a number that no paper has.
[[nodiscard]] std::optional<QPageSize> PageSizeOf(int paperKind);

/// The kind of a paper, by its size where it has several names; 0 for one without a number.
[[nodiscard]] int PaperKindOf(const QPageSize& size);

[[nodiscard]] inline QPageLayout::Orientation OrientationOf(PaperOrientation turned) {
  return turned == PaperOrientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

}  // namespace tarnwick
