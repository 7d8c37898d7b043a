#pragma once

#include "entry/Questions.h"
#include "shell/Program.h"

namespace tarnwick {

/// What asks for measures while a design is open: in its units, and the settings are written after each
/// dialog. Both `program` and `dialogs` outlive it.
[[nodiscard]] Questions QuestionsOf(const Program& program, DialogHost& dialogs);

}  // namespace tarnwick
