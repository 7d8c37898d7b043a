#pragma once

#include <string>
#include <string_view>

namespace tarnwick::cli {

/// A number that reads back to the same double, in the fewest digits, whole numbers without a point. One that
/// JSON has no word for is an object with its bits: {"bits":"7ff8000000000000"}.
void AppendNumber(std::string& json, double value);

/// A string from UTF-8; bytes that are none become the replacement character.
void AppendString(std::string& json, std::string_view utf8);

/// A text of fixed length, every byte kept: a string without the padding when it is printable ASCII padded
/// with blanks; "" when all bytes are 0; an object with its bytes, {"hex":"41420d"}, in any other case.
void AppendFixedText(std::string& json, std::string_view bytes);

}  // namespace tarnwick::cli
