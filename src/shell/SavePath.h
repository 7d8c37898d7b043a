#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/FileDialogs.h"
#include "platform/Messages.h"

namespace tarnwick {

/// Where to write a file: the path chosen, with its ending. The dialog has not warned of the name with an
/// ending that was added, so where it warns at all, an existing file of that name is asked about here.
/// @param extension  with its point
/// @param isWhole    whether a path needs no ending
/// @return nullopt when the user thinks better of it
[[nodiscard]] std::optional<std::string> AskSavePath(FileDialogs& files, Messages& say,
                                                     const FileQuestion& question, std::string_view extension,
                                                     const std::function<bool(const std::string&)>& isWhole);

/// The same for an export: a path that holds the ending anywhere, in any case, needs no other.
/// @param ending  with its point, in lower case
[[nodiscard]] std::optional<std::string> AskExportPath(FileDialogs& files, Messages& say,
                                                       const FileQuestion& question, std::string_view ending);

/// The name that the dialog of an export opens on: the design's, up to its first point, with the ending of
/// the export.
/// @param extension  with its point
[[nodiscard]] std::string ExportName(const std::string& fileName, std::string_view extension);

/// "This file already exists."
[[nodiscard]] Box ReplaceQuestion(const std::string& path);

}  // namespace tarnwick
