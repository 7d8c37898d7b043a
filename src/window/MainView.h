#pragma once

#include <string_view>

namespace tarnwick {

/// The panels at the right of the main window, of which one shows.
enum class Panel { None = 5, Main = 1, ToothShape = 2, Variable = 3, General = 4 };

/// What commands need of the main window. The frame that shows is the mode; there is no other note of it.
class MainView {
 public:
  virtual ~MainView() = default;
  virtual void ShowPanel(Panel panel) = 0;
  [[nodiscard]] virtual Panel CurrentPanel() const = 0;
  virtual void ShowSawInfo() = 0;  // the rows made anew, from the top
  virtual void FillBoxes() = 0;    // of the tooth shape and the general information
  virtual void ShowUnits() = 0;    // the option that is set
  virtual void DrawSaw() = 0;
  virtual void ShowStatus(std::string_view status, std::string_view hint) = 0;
};

}  // namespace tarnwick
