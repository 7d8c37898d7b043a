#pragma once

#include "platform/Messages.h"
#include "shell/Program.h"
#include "window/MainView.h"

namespace tarnwick {

/// What commands ask about changes since the last OK, with Yes, No and Cancel.
/// @param byDefault  No of the variable pitch, Cancel of the other editors: both are meant
[[nodiscard]] Box ChangedQuestion(Button byDefault);

/// Ahead of a command that opens an editor: whether the changes since the last OK stay. An unchanged design
/// asks nothing. No goes back to the last OK, with its units, drawing, boxes and rows.
/// @param question  with Yes, No and Cancel
/// @return false when the user wants to stay where he is
[[nodiscard]] bool KeepsOrRestores(Program& program, MainView& view, const Box& question);

/// Goes back to the state that the last editor accepted, with its units. The caller calculates and redraws.
void RestoreAccepted(OpenDesign& design, MainView& view);

}  // namespace tarnwick
