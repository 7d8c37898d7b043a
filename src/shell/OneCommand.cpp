#include "shell/OneCommand.h"

#include "shell/TellFailures.h"

namespace tarnwick {

void OneCommand::Run(std::string_view procedure, const std::function<void()>& command) {
  if (running_) return;
  struct Turn {
    explicit Turn(bool& running) : Running(running) { Running = true; }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() { Running = false; }
    bool& Running;
  };
  const Turn turn(running_);
  TellFailures(say_, "Error", procedure, command);
}

}  // namespace tarnwick
