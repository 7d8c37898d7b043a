#pragma once

#include "platform/Trash.h"

namespace tarnwick {

/// The desktop's trash.
class QtTrash final : public Trash {
 public:
  void Remove(const std::string& path) override;
};

}  // namespace tarnwick
