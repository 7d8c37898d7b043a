#pragma once

#include <functional>
#include <string_view>

#include "platform/Messages.h"

namespace tarnwick {

/// The commands of a window, one at a time. A command waits in dialogs, in pauses and for files, and what
/// comes in meanwhile (a helper for people who do not see may press a button at any moment) must not start
/// another.
class OneCommand {
 public:
  explicit OneCommand(Messages& say) : say_(say) {}

  /// Runs the command, unless another one runs; then it is ignored. A failure that it has no words for (of
  /// memory, of the system) is told by its number and ends it.
  /// @param procedure  the command's name
  void Run(std::string_view procedure, const std::function<void()>& command);

  [[nodiscard]] bool IsRunning() const { return running_; }

 private:
  Messages& say_;
  bool running_ = false;
};

}  // namespace tarnwick
