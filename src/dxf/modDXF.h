#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "model/modEntity.h"
#include "model/modSettings.h"

namespace tarnwick {

class Messages;

/// The whole text of the drawing file for `list`: header, tables, an empty block section, the entities. Inches, never scaled.
///
/// Group code lines carry one blank on either side, lines end with CR LF. nullopt when the file would need more pairs of code
/// and value than `MemorySize` is an upper bound for (the pairs are counted from 0).
[[nodiscard]] std::optional<std::string> DxfText(const EntityList& list, const CalculationSettings& settings);

/// Writes the drawing to `fileName`. The text is complete before the first byte is written, and an existing regular file is
/// deleted first, so that no half-written drawing ever reaches a machine.
///
/// Reports by itself: "File is two large" when the list does not fit, "Error " and the platform's number when the file cannot be
/// written. Returns whether the drawing was written.
bool WriteDxf(const EntityList& list, const std::filesystem::path& fileName, const CalculationSettings& settings,
              Messages& messages);

}  // namespace tarnwick
