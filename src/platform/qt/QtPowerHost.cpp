#include "platform/qt/QtPowerHost.h"

#include "platform/qt/WindowInUse.h"
#include "power/frmPower.h"
#include "power/frmPowerCalc.h"
#include "power/frmPowerEst.h"
#include "print/PrintCommands.h"

namespace tarnwick {

void QtPowerHost::Run(PowerEditor& editor) {
  frmPower(
      editor, help_, [&] { printing_.PrintEstimates(editor); }, WindowInUse())
      .exec();
}

void QtPowerHost::Run(PowerEstimateList& estimates) {
  frmPowerEst(
      estimates, help_, [&] { printing_.PrintEstimates(estimates); }, WindowInUse())
      .exec();
}

void QtPowerHost::Run(PowerCalculator& calculator) {
  frmPowerCalc(
      calculator, help_, [&] { printing_.PrintCalculations(calculator); }, WindowInUse())
      .exec();
}

}  // namespace tarnwick
