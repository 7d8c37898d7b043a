#include "shell/frmSplash.h"

#include <QColor>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPen>
#include <QString>
#include <QVBoxLayout>

#include "platform/qt/BandPicture.h"
#include "platform/qt/CenterForm.h"
#include "platform/qt/Language.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/QtText.h"
#include "shell/modAbout.h"
#include "version.h"

namespace tarnwick {
namespace {

constexpr int Side = 32;
constexpr int Top = 28;
constexpr int Gap = 6;                             // between lines
constexpr double NameSize = 3.2, PlainSize = 1.0;  // of the desktop's own letters
constexpr QRgb Hairline = qRgb(0x61, 0x6e, 0x7c);  // seen on a light desktop and on a dark one

}  // namespace

frmSplash::frmSplash(QWidget* parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
  setObjectName("frmSplash");
  setWindowTitle(ProgramName);
  setAccessibleDescription(tr("A click or any key closes this picture."));
  setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, Top, 1, 1);  // the picture reaches from hairline to hairline
  column->setSpacing(Gap);
  column->setSizeConstraint(QLayout::SetFixedSize);
  AddLine("lblName", ProgramName, NameSize, PictureInk);
  AddLine("lblVersion", tr("Version %1").arg(ToQt(ProgramVersion)), PlainSize, PictureInk);
  AddLine("lblMaker", Translated(MakerLine()), PlainSize, PictureQuietInk);
  column->addSpacing(Top - Gap);
  auto* picture = new BandPicture(this);
  picture->setObjectName("PicSplash");
  column->addWidget(picture);
  AddLine("lblClose", tr("Click or press a key to close."), PlainSize, PictureQuietInk);
  column->addSpacing(Side / 2 - Gap);
  CenterForm(*this);
}

void frmSplash::AddLine(const char* name, const QString& text, double size, const QColor& ink) {
  QLabel* line = MakeLabel(name, text);
  line->setAccessibleName(text);
  QFont letters = line->font();
  letters.setPointSizeF(letters.pointSizeF() * size);
  line->setFont(letters);
  QPalette colours = line->palette();
  colours.setColor(QPalette::WindowText, ink);
  line->setPalette(colours);
  line->setContentsMargins(Side, 0, Side, 0);
  layout()->addWidget(line);
}

/// Every key closes it, those too that would go from control to control; but not the key that is still held
/// from choosing it in the menu.
bool frmSplash::event(QEvent* event) {
  const bool isKey =
      event->type() == QEvent::KeyPress && !static_cast<const QKeyEvent*>(event)->isAutoRepeat();
  if (isKey || event->type() == QEvent::MouseButtonPress) {
    accept();
    return true;
  }
  return QDialog::event(event);
}

void frmSplash::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), PictureGround);
  painter.setPen(QPen(QColor(Hairline), 1));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace tarnwick
