#include "shell/ProgramQuestions.h"

namespace tarnwick {

Questions QuestionsOf(const Program& program, DialogHost& dialogs) {
  return {dialogs, program.Out.Say, program.Design.Format(), [&program] { program.SaveSettings(); }};
}

}  // namespace tarnwick
