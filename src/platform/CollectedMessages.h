#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/Messages.h"

namespace tarnwick {

/// Keeps every box instead of showing it, for work without a user: the command line and tests. It presses the
/// buttons that lie ready in `Answers`, then each box's default.
class CollectedMessages : public Messages {
 public:
  Button Show(const Box& box) override {
    Shown.push_back(box);
    if (Answers.empty()) return box.Default;
    const Button answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  [[nodiscard]] std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Box& box : Shown) texts.push_back(box.Text);
    return texts;
  }

  std::vector<Box> Shown;
  std::deque<Button> Answers;
};

}  // namespace tarnwick
