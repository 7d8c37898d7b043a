#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "window/modDisplay.h"

namespace tarnwick {

/// The rows of a design as plain text in two columns, for a spreadsheet or a letter: UTF-8, each line ended
/// by a line feed.
///
///     head saw.bsw,
///
///     Band Saw Teeth:,
///     Tooth Style:,        Double Radius,
///
/// The first column is 20 characters wide whatever it holds: a caption and its comma, blanks behind, cut if
/// it is longer. So the file reads by columns and by commas alike. A row without a value is that column
/// alone; one without a caption, 20 blanks, has an empty line ahead.
///
/// @param name  the title: file name of the design
[[nodiscard]] std::string ListingText(const SawInfo& rows, const std::string& name);

/// What the plain text editors of a platform expect.
enum class TextForm {
  Unix,     // UTF-8, line feeds
  Windows,  // Windows-1252, carriage return and line feed; "?" stands for what the code page lacks
};
#ifdef _WIN32
inline constexpr TextForm OwnTextForm = TextForm::Windows;
#else
inline constexpr TextForm OwnTextForm = TextForm::Unix;
#endif

/// The bytes of a text file with these lines.
[[nodiscard]] std::string TextFileBytes(std::string_view lines, TextForm form);

/// Writes the listing to `path` as this platform's editors read it. An existing file is deleted first,
/// without a question.
/// @return whether every byte has arrived; nobody is told otherwise
[[nodiscard]] bool SaveTextFile(const SawInfo& rows, const std::string& name,
                                const std::filesystem::path& path);

}  // namespace tarnwick
