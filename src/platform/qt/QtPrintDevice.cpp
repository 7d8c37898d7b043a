#include "platform/qt/QtPrintDevice.h"

#include <QPrinter>
#include <QPrinterInfo>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>

#include "platform/qt/QtPaperKinds.h"
#include "platform/qt/QtPrintQueue.h"
#include "platform/qt/QtText.h"

namespace tarnwick {
namespace {

bool IsThere(const QString& printer) { return QPrinterInfo::availablePrinterNames().contains(printer); }

}  // namespace

// A printer under a name that is none would be another one, and nobody would be told.
std::unique_ptr<QPrinter> OpenPrinter(const std::string& name) {
  const QString wanted = ToQt(name);
  const QPrinterInfo info = IsThere(wanted) ? QPrinterInfo::printerInfo(wanted) : QPrinterInfo();
  if (info.isNull()) return nullptr;
  auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
  if (printer->printerName() != wanted) return nullptr;
  printer->setResolution(DotsPerInch);
  printer->setPageSize(info.defaultPageSize());
  return printer;
}

PrinterSetup SetupOf(const QPrinter& printer) {
  const QPageLayout layout = printer.pageLayout();
  const bool isTurned = layout.orientation() == QPageLayout::Landscape;
  return {.Paper = PaperKindOf(layout.pageSize()),
          .Turned = isTurned ? PaperOrientation::Landscape : PaperOrientation::Portrait,
          .Copies = printer.copyCount()};
}

bool Apply(const PrinterSetup& setup, QPrinter& printer) {
  const std::optional<QPageSize> size = PageSizeOf(setup.Paper);
  // Paper without a number is the one that it has.
  if (size ? !printer.setPageSize(*size) : setup.Paper != SetupOf(printer).Paper) return false;
  printer.setPageOrientation(OrientationOf(setup.Turned));
  printer.setCopyCount(setup.Copies);
  return true;
}

QtPrintDevice::QtPrintDevice() = default;
QtPrintDevice::~QtPrintDevice() = default;

std::vector<std::string> QtPrintDevice::Printers() {
  std::vector<std::string> names;
  for (const QString& name : QPrinterInfo::availablePrinterNames()) names.push_back(name.toStdString());
  return names;
}

bool QtPrintDevice::Choose(const std::string& printer) {
  if (printer_ && printer_->printerName() == ToQt(printer)) return IsThere(printer_->printerName());
  std::unique_ptr<QPrinter> opened = OpenPrinter(printer);
  if (!opened) return false;
  printer_ = std::move(opened);
  setup_ = SetupOf(*printer_);
  return true;
}

bool QtPrintDevice::SetUp(const PrinterSetup& setup) {
  if (!printer_) return false;
  if (prepared_ && prepared_->printerName() == printer_->printerName() && SetupOf(*prepared_) == setup) {
    printer_ = std::move(prepared_);
  }
  if (!Apply(setup, *printer_)) return false;
  setup_ = setup;
  return true;
}

void QtPrintDevice::KeepForSetUp(std::unique_ptr<QPrinter> printer) { prepared_ = std::move(printer); }

// ---- the job

std::error_code QtPrintDevice::Ready() {
  const bool isReady = printer_ && IsThere(printer_->printerName());
  return isReady ? std::error_code() : std::make_error_code(std::errc::no_such_device);
}

std::error_code QtPrintDevice::Send(const QString& title) {
  if (const std::error_code failure = Ready()) return failure;  // sheets may take their time
  printer_->setDocName(title);
  printer_->setCreator("Tarnwick");
  printer_->setFullPage(true);
  AskOfQueue(*printer_, quality_ == PrintQuality::High);
  const std::error_code failure = SendPages(*printer_, [this] { printer_->abort(); });
  if (!failure) return LastQueueAnswer();
  // In a dialog of the printer's own that has asked where to print to.
  const bool isStopped = printer_->printerState() == QPrinter::Aborted;
  return isStopped ? std::make_error_code(std::errc::operation_canceled) : failure;
}

}  // namespace tarnwick
