#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/modEntity.h"
#include "model/modSettings.h"

namespace tarnwick {

class Messages;

/// Called now and then during a long piece of work, so that a window can stay alive. May be empty.
using Yield = std::function<void()>;

/// What a user is told of a list that does not fit. Spelt so on purpose.
inline constexpr std::string_view FileTooLarge = "File is two large";

/// The whole text of the drawing file for `list`: header, tables, an empty block section, the entities. The
/// old, minimal kind of file that cutting machines read. Inches, never scaled.
///
/// A pair of group code and value is two lines: the code with one blank on either side, the value as it
/// stands; lines end with CR LF. nullopt when the file would need a pair past index MemorySize.
[[nodiscard]] std::optional<std::string> DxfText(const EntityList& list, const CalculationSettings& settings,
                                                 const Yield& yield = {});

/// Writes the drawing to `fileName`. The text is complete before the first byte is written, and an existing
/// regular file is deleted first, so that no half-written drawing reaches a machine.
///
/// Reports by itself: "File is two large" when the list does not fit, "Error " and the platform's number when
/// the file cannot be written. Returns whether the drawing was written.
bool WriteDxf(const EntityList& list, const std::filesystem::path& fileName,
              const CalculationSettings& settings, Messages& messages, const Yield& yield = {});

inline constexpr std::string_view DxfExtension = ".dxf";

}  // namespace tarnwick
