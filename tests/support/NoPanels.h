#pragma once

#include "window/MainView.h"

namespace tarnwick::test {

/// The panels of a main window that nobody looks at.
class NoPanels : public MainView {
 public:
  void ShowPanel(Panel) override {}
  [[nodiscard]] Panel CurrentPanel() const override { return Panel::Main; }
  void ShowSawInfo() override {}
  void FillBoxes() override {}
  void ShowUnits() override {}
  void DrawSaw() override {}
  void ShowStatus(std::string_view, std::string_view) override {}
};

}  // namespace tarnwick::test
