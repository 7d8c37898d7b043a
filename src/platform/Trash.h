#pragma once

#include <string>

namespace tarnwick {

/// Port: where a file goes that is to be gone from its place.
class Trash {
 public:
  virtual ~Trash() = default;

  /// Into the desktop's trash; where there is none, the file is deleted. A failure leaves it.
  virtual void Remove(const std::string& path) = 0;
};

}  // namespace tarnwick
