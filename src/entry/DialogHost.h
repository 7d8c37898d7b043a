#pragma once

#include "entry/ValueDialog.h"
#include "entry/YesNoDialog.h"

namespace tarnwick {

/// Puts a question on the screen, above the window in use, and comes back when it is closed. One question is
/// open at a time.
class DialogHost {
 public:
  virtual ~DialogHost() = default;
  virtual void Run(ValueDialog& dialog) = 0;
  virtual void Run(YesNoDialog& dialog) = 0;
};

}  // namespace tarnwick
