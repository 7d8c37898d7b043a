#include "platform/qt/ReducedMotion.h"

#include <QApplication>
#include <QStyle>

#if defined(Q_OS_WIN)
#include <windows.h>
#elif defined(TARNWICK_HAS_DBUS)
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QString>
#include <QVariant>
#endif

namespace tarnwick {
namespace {

#if defined(Q_OS_WIN)

bool DesktopRefusesMotion() {
  BOOL moves = TRUE;
  return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &moves, 0) && !moves;
}

#elif defined(TARNWICK_HAS_DBUS)

constexpr int Patience = 200;  // milliseconds: a desktop that does not answer has nothing against motion

/// Desktops of the GNOME kind tell it to programs of every toolkit through their portal.
bool DesktopRefusesMotion() {
  if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return false;
  QDBusMessage question =
      QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                     "org.freedesktop.portal.Settings", "Read");
  question << QString("org.gnome.desktop.interface") << QString("enable-animations");
  const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, Patience);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
  QVariant value = answer.arguments().constFirst();
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();  // packed twice
  return value.typeId() == QMetaType::Bool && !value.toBool();
}

#else

bool DesktopRefusesMotion() { return false; }

#endif

}  // namespace

bool ReducedMotion() {
  // The style knows it on desktops that bring one of their own.
  const bool styleStands = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) <= 0;
  return styleStands || DesktopRefusesMotion();
}

}  // namespace tarnwick
