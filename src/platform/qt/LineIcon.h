#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace tarnwick {

/// The line drawing :/icons/NAME.svg in the colour of the desktop's text, as that is at the moment of
/// drawing: dark on light, light on dark, faded where the command cannot be used, sharp on every screen.
/// @return an empty icon for a name without a drawing
[[nodiscard]] QIcon LineIcon(const QString& name);

/// The same in the colours of one widget.
[[nodiscard]] QIcon LineIcon(const QString& name, const QPalette& palette);

}  // namespace tarnwick
