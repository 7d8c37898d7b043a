#pragma once

#include "platform/ColorDialog.h"

namespace tarnwick {

/// The desktop's own colour dialog, above the window in use.
class QtColorDialog final : public ColorDialog {
 public:
  std::optional<Colour> Choose(Colour present) override;
};

}  // namespace tarnwick
