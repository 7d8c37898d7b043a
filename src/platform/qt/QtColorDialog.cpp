#include "platform/qt/QtColorDialog.h"

#include <QColorDialog>

#include "platform/qt/QtCanvas.h"
#include "platform/qt/WindowInUse.h"

namespace tarnwick {

std::optional<Colour> QtColorDialog::Choose(Colour present) {
  const QColor chosen = QColorDialog::getColor(ToQt(present), WindowInUse());
  if (!chosen.isValid()) return std::nullopt;
  return Rgb(static_cast<std::uint8_t>(chosen.red()), static_cast<std::uint8_t>(chosen.green()),
             static_cast<std::uint8_t>(chosen.blue()));
}

}  // namespace tarnwick
