#pragma once

#include "platform/Messages.h"

namespace tarnwick {

/// Messages as the desktop's own boxes, above the window in use.
class QtMessages final : public Messages {
 public:
  Button Show(const Box& box) override;
};

}  // namespace tarnwick
