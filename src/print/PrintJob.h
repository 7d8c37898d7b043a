#pragma once

#include <functional>
#include <system_error>

#include "platform/PrintDevice.h"
#include "print/modPrint.h"

namespace tarnwick {

/// Prints a job, sheet after sheet. One that fails is cancelled, and so is one that an exception goes
/// through.
/// @param beginSheet  told ahead of each sheet; may be empty
/// @return what failed, if anything did
[[nodiscard]] std::error_code RunPrintJob(const PrintJob& job, PrintDevice& device,
                                          const std::function<void(int sheet)>& beginSheet);

}  // namespace tarnwick
