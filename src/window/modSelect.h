#pragma once

#include "window/modDisplay.h"
#include "window/modPanelField.h"

namespace tarnwick {

/// The row whose box holds a place on the surface, in whole pixels; nullptr between rows and below them.
[[nodiscard]] const InfoRow* FindRow(const SawInfo& rows, int x, int y);

/// What a click on a row does, as of a box. ReadOnly: nothing.
struct RowAct {
  BoxAct Act = BoxAct::ReadOnly;
  Parameter Asked{};  // of Ask
  int MustUse{};      // numbered text that names the owner of the figure
};

/// The clearance angle of a tooth whose top is one line with its back is a result, and not asked for.
[[nodiscard]] RowAct ActOfRow(RowCode code, int toothStyle);

/// The hint of the box that shows the same figure; empty where there is none.
[[nodiscard]] BoxHint HintOfRow(RowCode code);

}  // namespace tarnwick
