#include "platform/qt/QtApplication.h"

#include <QApplication>
#include <QIcon>
#include <QString>
#include <QStyle>

#include "platform/qt/Language.h"
#include "platform/qt/WideRegisters.h"
#include "version.h"

namespace tarnwick {
namespace {

constexpr const char* FallbackStyle = "windows";  // what the toolkit takes when the desktop's own is missing

}  // namespace

void SetUpApplication(QApplication& application) {
  QApplication::setApplicationName("tarnwick");
  QApplication::setApplicationVersion(
      QString::fromLatin1(FullVersion.data(), static_cast<qsizetype>(FullVersion.size())));
  // No display name: the toolkit would append it to captions that carry the program's name already.
  QGuiApplication::setDesktopFileName("org.tarnwick.tarnwick");
  QGuiApplication::setWindowIcon(QIcon(":/org.tarnwick.tarnwick.svg"));
  SpeakLanguageOf(application);
  if (application.style()->name() == FallbackStyle) QApplication::setStyle("Fusion");
  ReleaseWideRegistersForEvents(application);
}

}  // namespace tarnwick
