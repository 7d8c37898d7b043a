#include "platform/qt/NamedControls.h"

#include <QLabel>
#include <QPushButton>

namespace tarnwick {

QString Spoken(QString caption) { return caption.remove('&').remove(':').trimmed(); }

QString AsTitle(QString text) { return text.replace("[*]", "[*][*]"); }

QPushButton* MakeButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  button->setAccessibleName(Spoken(caption));
  return button;
}

QLabel* MakeLabel(const char* name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace tarnwick
