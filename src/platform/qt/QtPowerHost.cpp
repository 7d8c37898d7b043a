#include "platform/qt/QtPowerHost.h"

#include "platform/qt/WindowInUse.h"
#include "power/frmPower.h"
#include "power/frmPowerCalc.h"
#include "power/frmPowerEst.h"

namespace tarnwick {

void QtPowerHost::Run(PowerEditor& editor) { frmPower(editor, help_, WindowInUse()).exec(); }

void QtPowerHost::Run(PowerEstimateList& estimates) { frmPowerEst(estimates, help_, WindowInUse()).exec(); }

void QtPowerHost::Run(PowerCalculator& calculator) { frmPowerCalc(calculator, help_, WindowInUse()).exec(); }

}  // namespace tarnwick
