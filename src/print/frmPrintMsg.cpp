#include "print/frmPrintMsg.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QVBoxLayout>

#include "platform/qt/CenterForm.h"
#include "platform/qt/LineIcon.h"
#include "platform/qt/NamedControls.h"

namespace tarnwick {
namespace {

constexpr int Margin = 24;
constexpr int Gap = 2;
constexpr int IconSize = 48;
constexpr int LettersShown = 24;
constexpr int MostWait = 1000;  // ms; some desktops never show a window while the program is busy

QLabel* MakeIcon(const QWidget& window) {
  auto* icon = new QLabel;
  icon->setPixmap(LineIcon("Print").pixmap({IconSize, IconSize}, window.devicePixelRatioF()));
  return icon;
}

}  // namespace

frmPrintMsg::frmPrintMsg(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  setObjectName("frmPrintMsg");
  setWindowTitle(tr("Printing"));
  setWindowModality(Qt::ApplicationModal);
  QLabel* lblPrinting = MakeLabel("lblPrinting", tr("Printing"));
  QFont large = lblPrinting->font();
  large.setPointSizeF(large.pointSizeF() * 1.3);
  large.setBold(true);
  lblPrinting->setFont(large);
  lblPage_ = MakeLabel("lblPage", QString());
  lblPage_->setMinimumWidth(LettersShown * fontMetrics().averageCharWidth());

  auto* words = new QVBoxLayout;
  words->setSpacing(Gap);
  words->addStretch();
  words->addWidget(lblPrinting);
  words->addWidget(lblPage_);
  words->addStretch();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(Margin, Margin, 2 * Margin, Margin);
  row->setSpacing(Margin);
  row->setSizeConstraint(QLayout::SetFixedSize);
  row->addWidget(MakeIcon(*this));
  row->addLayout(words);
  setCursor(Qt::WaitCursor);
  CenterForm(*this);
}

void frmPrintMsg::ShowPage(int page, int pages) {
  lblPage_->setText(tr("Page %1 of %2").arg(page).arg(pages));
  setAccessibleName(tr("Printing page %1 of %2").arg(page).arg(pages));
  seen_ = false;
  show();
  update();
  WaitUntilSeen();
}

/// Nothing else paints while pages are made. Clicks and keys wait till the job is over.
void frmPrintMsg::WaitUntilSeen() {
  const QDeadlineTimer patience(MostWait);
  while (!seen_ && !patience.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
  }
}

void frmPrintMsg::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  seen_ = true;
}

void frmPrintMsg::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace tarnwick
