#include "platform/qt/QtMachineHost.h"

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
    busy_ = WindowInUse();
    if (busy_) busy_->setCursor(Qt::WaitCursor);
  } else if (busy_) {
    busy_->unsetCursor();
  }
}

}  // namespace tarnwick
