#include "platform/qt/QtMachineHost.h"

#include <QGuiApplication>

#include "machine/frmBandCalc.h"
#include "machine/frmGauge.h"
#include "platform/qt/WindowInUse.h"

namespace tarnwick {

void QtMachineHost::Run(BandCalculator& calculator) { frmBandCalc(calculator, help_, WindowInUse()).exec(); }

void QtMachineHost::ShowPlateGauges(const DisplayFormat& format) {
  frmGauge(format, help_, WindowInUse()).exec();
}

void QtMachineHost::SetBusy(bool busy) {
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

}  // namespace tarnwick
