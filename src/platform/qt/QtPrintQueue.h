#pragma once

#include <system_error>

class QPrinter;

namespace tarnwick {

// What the toolkit does not say, or ask, of the queues that printers have on most systems.

/// Has the jobs to come printed as they are: nothing makes them fit what a printer takes for its paper's
/// border.
/// @param high  asks for the best that the printer can do
void AskOfQueue(QPrinter& printer, bool high);

/// What the queue said to the job that this thread has sent just now. The toolkit hears it and keeps it to
/// itself. None where there is no such queue.
[[nodiscard]] std::error_code LastQueueAnswer();

}  // namespace tarnwick
