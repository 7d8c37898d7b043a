#include "print/frmPrinterPage.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tarnwick {

frmPrinterPage::frmPrinterPage(PrinterChoice& choice, HelpViewer& help, QWidget* parent)
    : PrinterForm("frmPrinterPage", tr("Choose Printer and Pages"), choice, help, parent) {
  QGroupBox* pages = MakePages();
  QCheckBox* chkPrintQuality = MakeTick("chkPrintQuality", tr("Print Quality (High)"));
  chkPrintQuality->setChecked(choice.Quality() == PrintQuality::High);
  connect(chkPrintQuality, &QCheckBox::toggled, this, [this](bool on) { Choice().TickQuality(on); });
  Arrange(pages, chkPrintQuality, nullptr);
}

QGroupBox* frmPrinterPage::MakePages() {
  auto* frame = new QGroupBox(tr("Pages:"));
  frame->setObjectName("fraPages");
  frame->setAccessibleName(tr("Pages"));
  auto* column = new QVBoxLayout(frame);
  const auto add = [&](const char* name, const QString& caption, SawPages pages) {
    auto* option = new QRadioButton(caption);
    option->setObjectName(name);
    option->setAccessibleName(caption);
    option->setChecked(Choice().Pages() == pages);
    connect(option, &QRadioButton::toggled, this, [this, pages](bool on) {
      if (on) Choice().ChoosePages(pages);
    });
    column->addWidget(option);
  };
  add("optBoth", tr("Both Pages"), SawPages::Both);
  add("optSawDrawing", tr("Saw Drawing"), SawPages::Drawing);
  add("optSawInfo", tr("Saw Information"), SawPages::Info);
  return frame;
}

}  // namespace tarnwick
