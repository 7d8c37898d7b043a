#include "shell/frmCfg.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QString>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>

#include "entry/modFormat.h"
#include "platform/qt/BoxArea.h"
#include "platform/qt/CenterForm.h"
#include "platform/qt/ColourSwatch.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/NamedControls.h"

namespace tarnwick {
namespace {

constexpr int Topic = 600;  // of the manual
constexpr auto ClickWait = std::chrono::milliseconds(20);

/// Changes what `control` shows, and nothing else.
template <class Control, class Change>
void Quietly(Control* control, Change change) {
  const QSignalBlocker blocker(control);
  change(*control);
}

}  // namespace

frmCfg::frmCfg(OptionsDialog& dialog, ColorDialog& colours, HelpViewer& help, QWidget* parent)
    : QDialog(parent), dialog_(dialog), colours_(colours), help_(help) {
  setObjectName("frmCfg");
  setWindowTitle(tr("Options"));
  setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);

  SSTab1_ = new QTabWidget(this);
  SSTab1_->setObjectName("SSTab1");
  SSTab1_->setAccessibleName(tr("Groups of options"));
  SSTab1_->addTab(MakeGeneralPage(), tr("&General"));
  SSTab1_->addTab(MakeColourPage(), tr("Co&lors"));
  SSTab1_->addTab(MakeOutputPage(), tr("&Printer and Dxf"));
  SSTab1_->addTab(MakeUserPage(), tr("&User Information"));
  NameScrollBars();

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(Margin, Margin, Margin, Margin);
  column->setSpacing(Margin);
  column->addWidget(SSTab1_, 1);
  column->addLayout(MakeButtons());

  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
          [this] { help_.ShowTopic(Topic); });
  connect(qApp, &QApplication::focusChanged, this, &frmCfg::LeaveBoxes);
  connect(qApp, &QApplication::focusChanged, this, &frmCfg::ShowFocus);
  ShowState();
  SSTab1_->setFocus();
  CenterForm(*this);
  installEventFilter(this);  // its size is settled ahead of its place
}

/// The focus goes elsewhere as well when the boxes are torn down; nobody is there to read them then.
frmCfg::~frmCfg() { disconnect(qApp, nullptr, this, nullptr); }

bool frmCfg::eventFilter(QObject* watched, QEvent* event) {
  if (watched == this && event->type() == QEvent::Show && !fitted_) FitScreen();
  return QDialog::eventFilter(watched, event);
}

// ---- buttons

QLayout* frmCfg::MakeButtons() {
  cmdOk_ = MakeButton("cmdOk", tr("&OK"));
  cmdCancel_ = MakeButton("cmdCancel", tr("&Cancel"));
  cmdApply_ = MakeButton("cmdApply", tr("&Apply"));
  cmdOk_->setDefault(true);
  connect(cmdOk_, &QPushButton::clicked, this, &frmCfg::PressOk);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmCfg::reject);
  connect(cmdApply_, &QPushButton::clicked, this, [this] {
    dialog_.PressApply();
    ShowState();
  });
  auto* row = new QHBoxLayout;
  row->setSpacing(Gap);
  row->addStretch();
  for (QPushButton* button : {cmdOk_, cmdCancel_, cmdApply_}) row->addWidget(button);
  return row;
}

void frmCfg::PressOk() {
  dialog_.PressOk();
  ShowState();
  if (!dialog_.IsOpen()) accept();
}

void frmCfg::reject() {
  dialog_.PressCancel();
  QDialog::reject();
}

/// Boxes are read when the focus has gone to another control of this window. The buttons see to it themselves
/// when they are pressed, and Cancel does not care.
void frmCfg::LeaveBoxes() {
  // A message in the midst of a click would take the release away from what is clicked.
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    QTimer::singleShot(ClickWait, this, &frmCfg::LeaveBoxes);
    return;
  }
  const QWidget* now = QApplication::focusWidget();
  if (!dialog_.IsOpen() || !now || now->window() != this) return;
  if (now == cmdOk_ || now == cmdCancel_ || now == cmdApply_) return;
  for (const OptionsDialog::NumberBox box : OptionsDialog::AllNumbers) {
    if (now != numbers_[static_cast<std::size_t>(box)]) dialog_.LeaveNumber(box);
  }
  ShowState();
}

// ---- showing

/// The pages need not shrink any more, as they scroll; what they ask for is asked for once, when all frames
/// have found their borders.
void frmCfg::FitScreen() {
  fitted_ = true;
  const QSize room = LayOutForScreen(*this);
  SSTab1_->updateGeometry();  // the pages do not tell it what they have learnt
  ResizeWithin(*this, room);
}

/// Each page has its own; which one it is can only be told by a name.
void frmCfg::NameScrollBars() {
  for (int i = 0; i < SSTab1_->count(); ++i) {
    const auto* page = qobject_cast<QScrollArea*>(SSTab1_->widget(i));
    const QString caption = SSTab1_->tabText(i).remove('&');
    page->horizontalScrollBar()->setAccessibleName(tr("Move %1 sideways").arg(caption));
    page->verticalScrollBar()->setAccessibleName(tr("Move %1 up and down").arg(caption));
  }
}

/// Tab may come to a control that is scrolled out of sight.
void frmCfg::ShowFocus() {
  QWidget* now = QApplication::focusWidget();
  auto* page = qobject_cast<QScrollArea*>(SSTab1_->currentWidget());
  if (now && page && page->isAncestorOf(now)) page->ensureWidgetVisible(now, 0, Margin);
}

void frmCfg::ShowState() {
  ShowGeneral();
  ShowColours();
  ShowOutput();
  cmdApply_->setEnabled(dialog_.ApplyEnabled());
}

void frmCfg::ShowGeneral() {
  const bool metric = dialog_.Shown().MainImpMetric == Metric;
  Quietly(optMetric_, [metric](QRadioButton& option) { option.setChecked(metric); });
  Quietly(optImperial_, [metric](QRadioButton& option) { option.setChecked(!metric); });
  for (const OptionsDialog::NumberBox box : OptionsDialog::AllNumbers) {
    const QString text = QString::fromStdString(dialog_.NumberText(box));
    Quietly(numbers_[static_cast<std::size_t>(box)], [&text](QLineEdit& shown) {
      if (shown.text() != text) shown.setText(text);  // else the cursor stays where it is
    });
  }
  Quietly(chkQuickClick_, [this](QCheckBox& check) { check.setChecked(dialog_.QuickClickTicked()); });
  const QString caption = Translated(dialog_.QuickClickCaption());
  chkQuickClick_->setText(caption);
  chkQuickClick_->setAccessibleName(caption);
  chkQuickClick_->setToolTip(Translated(dialog_.QuickClickHint()));
}

void frmCfg::ShowColours() {
  for (const ColourSample& sample : samples_) {
    sample.Swatch->ShowColour(dialog_.Shown().Display.*sample.Which);
  }
  const int number = dialog_.Shown().Calculation.DxfSaveColor;
  lblDxfColor_->ShowColour(DxfPaletteColour(number));
  lblDxfColor_->setText(QString::number(number));
}

void frmCfg::ShowOutput() {
  const int thickness = dialog_.Shown().PrintLineThick;
  Quietly(hscPrintThick_, [thickness](QScrollBar& bar) { bar.setValue(thickness); });
  lblPrintThick_->setText(QString::number(thickness));
  lblLineThickness_->setFixedHeight(thickness);
  Quietly(chkPrintPowerReq_, [this](QCheckBox& check) { check.setChecked(dialog_.Shown().PrintPowerReq); });
  Quietly(hscDxfMemory_, [this](QScrollBar& bar) { bar.setValue(dialog_.DxfPosition()); });
  lblDxfNumber_->setText(Translated(dialog_.DxfNumberText()));
}

}  // namespace tarnwick
