#pragma once

#include <string_view>

namespace tarnwick {

enum class ToolGroup { File, Editors, View };

/// A button of the tool bar, and the menu item whose command it runs.
struct ToolCommand {
  ToolGroup Group;
  std::string_view Button;
  std::string_view Item;
  int Hint = 0;  // a numbered text; without a number the item's caption is the hint

  /// The name of its drawing.
  [[nodiscard]] constexpr std::string_view Icon() const {
    return Button.substr(std::string_view("tlb").size());
  }
};

/// From left to right, the order of their hints.
inline constexpr ToolCommand ToolCommands[] = {
    {ToolGroup::File, "tlbNew", "mnuItemNew", 22},
    {ToolGroup::File, "tlbStepByStep", "mnuItemStepByStep", 23},
    {ToolGroup::File, "tlbOpen", "mnuItemOpen", 24},
    {ToolGroup::File, "tlbSave", "mnuItemSave", 25},
    {ToolGroup::File, "tlbPrint", "mnuItemPrint", 26},
    {ToolGroup::Editors, "tlbMain", "mnuItemMain", 27},
    {ToolGroup::Editors, "tlbGeneral", "mnuItemGeneral", 28},
    {ToolGroup::Editors, "tlbTeeth", "mnuItemToothShape", 29},
    {ToolGroup::Editors, "tlbVariable", "mnuItemVariable", 30},
    {ToolGroup::Editors, "tlbPower", "mnuItemPower", 31},
    {ToolGroup::Editors, "tlbMachine", "mnuItemBandLength", 32},
    {ToolGroup::View, "tlbViewAll", "mnuItemAll", 33},
    {ToolGroup::View, "tlbViewOne", "mnuItemFullScale", 34},
    {ToolGroup::View, "tlbViewVar", "mnuItemVarSegment"},
    {ToolGroup::View, "tlbViewPlus", "mnuItemIn"},
    {ToolGroup::View, "tlbViewMinus", "mnuItemOut"},
};

/// The numbered text that is the hint of a menu item: that of its button; 0: none.
[[nodiscard]] constexpr int HintOfItem(std::string_view item) {
  for (const ToolCommand& row : ToolCommands) {
    if (row.Item == item) return row.Hint;
  }
  return 0;
}

}  // namespace tarnwick
