#pragma once

#include <QString>
#include <string_view>

namespace tarnwick {

/// A text of the core, which is UTF-8 everywhere, as the toolkit has it.
[[nodiscard]] inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tarnwick
