#pragma once

#include <deque>
#include <optional>
#include <vector>

#include "platform/ColorDialog.h"

namespace tarnwick::test {

/// Gives the answers that lie ready, then cancels; remembers the colours that it was opened on.
class ScriptedColorDialog final : public ColorDialog {
 public:
  std::optional<Colour> Choose(Colour present) override {
    OpenedOn.push_back(present);
    if (Answers.empty()) return std::nullopt;
    const std::optional<Colour> answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  std::deque<std::optional<Colour>> Answers;
  std::vector<Colour> OpenedOn;
};

}  // namespace tarnwick::test
