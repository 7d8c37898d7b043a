#pragma once

#include "entry/DialogHost.h"
#include "platform/HelpViewer.h"

namespace tarnwick {

/// Questions as dialogs above the window in use.
class QtDialogHost final : public DialogHost {
 public:
  explicit QtDialogHost(HelpViewer& help) : help_(help) {}

  void Run(ValueDialog& dialog) override;
  void Run(YesNoDialog& dialog) override;

 private:
  HelpViewer& help_;
};

}  // namespace tarnwick
