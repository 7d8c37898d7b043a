#pragma once

#include <optional>

#include "model/modColour.h"

namespace tarnwick {

/// Port: the chooser of a colour.
class ColorDialog {
 public:
  virtual ~ColorDialog() = default;

  /// Opens on `present` and waits for the choice.
  /// @return nullopt when the user cancels
  virtual std::optional<Colour> Choose(Colour present) = 0;
};

}  // namespace tarnwick
