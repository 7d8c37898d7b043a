#pragma once

#include <QString>

class QLabel;
class QPushButton;

namespace tarnwick {

/// A caption for those who listen: without the mark of its access key, its colon and the blanks about it.
[[nodiscard]] QString Spoken(QString caption);

/// A window's title that is shown as it stands: "[*]" is a mark of the toolkit's unless it stands twice.
[[nodiscard]] QString AsTitle(QString text);

/// A button, spoken as it is written.
[[nodiscard]] QPushButton* MakeButton(const char* name, const QString& caption);

/// A text that is shown as it stands, whatever it looks like.
[[nodiscard]] QLabel* MakeLabel(const char* name, const QString& text);

}  // namespace tarnwick
