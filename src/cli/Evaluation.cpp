#include "cli/Evaluation.h"

#include <cmath>

#include "cli/JsonText.h"
#include "cli/Streams.h"
#include "entry/modCalculate.h"
#include "platform/CollectedMessages.h"

namespace tarnwick::cli {
namespace {

/// To the last bit, as all numbers of the tool.
void AppendValue(std::string& line, double value) {
  if (std::isfinite(value)) {
    AppendNumber(line, value + 0.0);  // there is no negative zero in an equation
  } else {
    line += std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";
  }
}

}  // namespace

ExitCode PrintValues(const std::vector<std::string>& texts, int decimalPlaces) {
  ExitCode outcome = ExitCode::AllDone;
  std::string lines;
  for (std::string text : texts) {
    CollectedMessages messages;
    double value = 0;
    if (EvaluateEquation(text, value, decimalPlaces, messages)) {
      AppendValue(lines, value);
    } else {
      lines += messages.Texts().front();
      outcome = ExitCode::SomeFailed;
    }
    lines += '\n';
  }
  if (const std::error_code why = WriteStandardOutput(lines)) {
    Tell("standard output", why.message());
    return ExitCode::SomeFailed;
  }
  return outcome;
}

}  // namespace tarnwick::cli
