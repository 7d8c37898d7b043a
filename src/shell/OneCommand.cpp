#include "shell/OneCommand.h"

#include <new>
#include <system_error>

#include "shell/modFailure.h"

namespace tarnwick {
namespace {

constexpr std::string_view Activity = "Error";

}  // namespace

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
  try {
    command();
  } catch (const std::bad_alloc&) {
    say_.Show(FailureBox(Activity, std::make_error_code(std::errc::not_enough_memory), procedure));
  } catch (const std::system_error& failure) {
    say_.Show(FailureBox(Activity, failure.code(), procedure));
  }
}

}  // namespace tarnwick
