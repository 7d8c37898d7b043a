#include "platform/qt/QtPdfFiles.h"

#include <QBuffer>
#include <QMarginsF>
#include <QPageLayout>
#include <QPdfWriter>

#include "platform/qt/QtPaperKinds.h"
#include "store/modFiles.h"
#include "store/modPath.h"
#include "version.h"

namespace tarnwick {

bool QtPdfPages::SetUp(const PrinterSetup& setup) {
  if (!PageSizeOf(setup.Paper)) return false;
  setup_ = setup;
  return true;
}

std::error_code QtPdfPages::Send(const QString& title) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setResolution(DotsPerInch);
    writer.setTitle(title);
    writer.setCreator(QString("Tarnwick ") + FullVersion.data());
    writer.setPageLayout(
        QPageLayout(*PageSizeOf(setup_.Paper), OrientationOf(setup_.Turned), QMarginsF(0, 0, 0, 0)));
    if (const std::error_code failure = SendPages(writer, [] {})) return failure;
  }
  return deliver_({bytes.data().constData(), static_cast<std::size_t>(bytes.data().size())});
}

std::unique_ptr<PrintDevice> QtPdfFiles::File(const std::string& path) {
  return std::make_unique<QtPdfPages>(
      [path](std::string_view bytes) { return ReplaceWholeFile(FilePath(path), bytes); });
}

}  // namespace tarnwick
