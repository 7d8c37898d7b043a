#include "shell/modFailure.h"

#include <string>

namespace tarnwick {

Box FailureBox(std::string_view activity, std::error_code failure, std::string_view procedure) {
  return {.Title = std::string(activity),
          .Text = "Error Number: " + std::to_string(failure.value()) + '\n' + failure.message() +
                  "\nSub Program " + std::string(procedure)};
}

}  // namespace tarnwick
