#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/modBandSaw.h"

namespace tarnwick::cli {

/// A design that came as JSON.
struct JsonDesign {
  std::optional<std::string> Failed;  // names the field and what is wrong with it; Saw is zero then
  BandSaw Saw;
};

/// Reads a design: the record as nested objects by its member names, or an object that holds it under "saw",
/// beside which only the other keys of the tool's own output may stand; those are passed over. Any text will
/// do.
///
/// A missing field is zero; an unknown one, a field given twice, a value of another type or out of its
/// field's range fails. A number may be {"bits": "16 hex digits"}. A text is padded with blanks, but "" is
/// all zero bytes; {"hex": "..."} gives all of its bytes. An array may be shorter than the field: the rest is
/// zero.
[[nodiscard]] JsonDesign ReadDesignJson(std::string_view text);

}  // namespace tarnwick::cli
