#include "platform/qt/QtPrintSetup.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace tarnwick {
namespace {

/// The toolkit's dialog begins with the paper that lies in the printer, whatever was set; this brings back
/// what was.
class KeptPaper final : public QObject {
 public:
  explicit KeptPaper(const QPageSize& paper) : paper_(paper) { qApp->installEventFilter(this); }

  /// After the dialog was accepted: paper that nobody has chosen there is the one of before.
  void BringBack(QPrinter& printer) const {
    if (isIn_ && !chosen_) printer.setPageSize(paper_);
  }

  /// Whether the dialog is one of the toolkit's, with its faults.
  void LookInto(const QPrintDialog& dialog) { isIn_ = dialog.findChild<QPushButton*>("properties"); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* properties = qobject_cast<QDialog*>(watched);
    if (event->type() == QEvent::Show && properties && properties->inherits("QPrintPropertiesDialog")) {
      if (!chosen_) Show(*properties);
      connect(properties, &QDialog::accepted, this, [this] { chosen_ = true; });
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void Show(const QDialog& properties) const {
    auto* sizes = properties.findChild<QComboBox*>("pageSizeCombo");
    for (int i = 0; sizes && i < sizes->count(); ++i) {
      if (sizes->itemData(i).value<QPageSize>().isEquivalentTo(paper_)) return sizes->setCurrentIndex(i);
    }
  }

  QPageSize paper_;
  bool isIn_ = false;
  bool chosen_ = false;
};

/// The toolkit's dialog is one for printing at once: here it settles how, and the printer is chosen already.
void MakeSetupOf(QPrintDialog& dialog) {
  dialog.setWindowTitle(QPrintDialog::tr("Print Setup"));
  for (const auto option : {QPrintDialog::PrintToFile, QPrintDialog::PrintSelection,
                            QPrintDialog::PrintPageRange, QPrintDialog::PrintCurrentPage}) {
    dialog.setOption(option, false);
  }
  if (auto* printers = dialog.findChild<QComboBox*>("printers")) printers->setEnabled(false);
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  QPushButton* ok = buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr;
  if (!ok) return;
  ok->setText(QPrintDialog::tr("&OK"));
  ok->setFocus();  // Enter would press the first button that can have it
}

}  // namespace

bool RunPrintSetup(QPrinter& printer, QWidget* parent) {
  KeptPaper paper(printer.pageLayout().pageSize());
  QPrintDialog dialog(&printer, parent);
  MakeSetupOf(dialog);
  paper.LookInto(dialog);
  if (dialog.exec() != QDialog::Accepted) return false;
  paper.BringBack(printer);
  return true;
}

}  // namespace tarnwick
