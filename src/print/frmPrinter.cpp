#include "print/frmPrinter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Gaps.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/QtText.h"

namespace tarnwick {
namespace {

constexpr int Topic = 700;
constexpr int LettersShown = 32;  // of a printer's name; the list shows longer ones whole when it is open

}  // namespace

// ---- what both windows have

PrinterForm::PrinterForm(const char* name, const QString& title, PrinterChoice& choice, HelpViewer& help,
                         QWidget* parent)
    : FormWindow(name, title, Topic, help, parent), choice_(choice) {}

QCheckBox* PrinterForm::MakeTick(const char* name, const QString& caption) {
  auto* tick = new QCheckBox(caption);
  tick->setObjectName(name);
  tick->setAccessibleName(caption);
  return tick;
}

QBoxLayout* PrinterForm::MakePrinters() {
  QLabel* label = MakeLabel("Label1", tr("Printer:"));
  cboPrinters_ = new QComboBox;
  cboPrinters_->setObjectName("cboPrinters");
  cboPrinters_->setAccessibleName(tr("Printer"));
  for (const std::string& printer : choice_.Printers()) {
    cboPrinters_->addItem(ToQt(printer));
    cboPrinters_->setItemData(cboPrinters_->count() - 1, ToQt(printer), Qt::ToolTipRole);
  }
  cboPrinters_->setCurrentIndex(static_cast<int>(choice_.Selected()));
  cboPrinters_->setMinimumContentsLength(LettersShown);
  cboPrinters_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cboPrinters_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  label->setBuddy(cboPrinters_);
  connect(cboPrinters_, &QComboBox::currentIndexChanged, this,
          [this](int printer) { choice_.Select(static_cast<std::size_t>(printer)); });
  auto* row = new QHBoxLayout;
  row->setSpacing(Gap);
  row->addWidget(label);
  row->addWidget(cboPrinters_, 1);
  return row;
}

QBoxLayout* PrinterForm::MakeFoot(QPushButton* setup) {
  QPushButton* cmdOk = MakeButton("cmdOk", tr("&OK"));
  cmdOk->setDefault(true);
  connect(cmdOk, &QPushButton::clicked, this, [this] {
    choice_.PressOk();
    accept();
  });
  QPushButton* cmdCancel = MakeButton("cmdCancel", tr("&Cancel"));
  connect(cmdCancel, &QPushButton::clicked, this, &PrinterForm::reject);
  auto* row = new QHBoxLayout;
  row->setSpacing(Gap);
  if (setup) row->addWidget(setup);
  row->addStretch();
  row->addWidget(cmdOk);
  row->addWidget(cmdCancel);
  return row;
}

void PrinterForm::Arrange(QWidget* between, QCheckBox* quality, QPushButton* setup) {
  chkSavePrinter_ = MakeTick("chkSavePrinter", tr("Save as default printer"));
  chkSavePrinter_->setChecked(choice_.SavesPrinter());
  connect(chkSavePrinter_, &QCheckBox::toggled, this, [this](bool on) { choice_.TickSavePrinter(on); });
  auto* column = new QVBoxLayout;
  column->setSpacing(Margin);
  column->addLayout(MakePrinters());
  if (between) column->addWidget(between);
  auto* ticks = new QVBoxLayout;
  ticks->setSpacing(Gap);
  if (quality) ticks->addWidget(quality);
  ticks->addWidget(chkSavePrinter_);
  column->addLayout(ticks);
  column->addStretch();
  FormWindow::Arrange(column, MakeFoot(setup));
  cboPrinters_->setFocus();
}

void PrinterForm::reject() {
  choice_.PressCancel();
  FormWindow::reject();
}

// ---- the printer alone

frmPrinter::frmPrinter(PrinterChoice& choice, HelpViewer& help, QWidget* parent)
    : PrinterForm("frmPrinter", tr("Choose Printer"), choice, help, parent) {
  QPushButton* cmdSetup = MakeButton("cmdSetup", tr("&Setup..."));
  connect(cmdSetup, &QPushButton::clicked, this, [this] { Choice().PressSetup(); });
  Arrange(nullptr, nullptr, cmdSetup);
}

}  // namespace tarnwick
