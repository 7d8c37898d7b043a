#include "platform/qt/QtDialogHost.h"

#include "entry/frmBDialog.h"
#include "entry/frmCDialog.h"
#include "platform/qt/WindowInUse.h"

namespace tarnwick {

void QtDialogHost::Run(ValueDialog& dialog) { frmCDialog(dialog, help_, WindowInUse()).exec(); }

void QtDialogHost::Run(YesNoDialog& dialog) { frmBDialog(dialog, help_, WindowInUse()).exec(); }

}  // namespace tarnwick
