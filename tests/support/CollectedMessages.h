#pragma once

#include <string>
#include <vector>

#include "platform/Messages.h"

namespace tarnwick::test {

/// Keeps every box shown, and answers with `Answer`.
class CollectedMessages : public Messages {
 public:
  Button Show(const Box& box) override {
    Shown.push_back(box);
    return Answer;
  }

  [[nodiscard]] std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Box& box : Shown) texts.push_back(box.Text);
    return texts;
  }

  std::vector<Box> Shown;
  Button Answer = Button::Ok;
};

}  // namespace tarnwick::test
