#include "shell/SavePath.h"

#include <algorithm>

#include "store/modFiles.h"
#include "store/modPath.h"

namespace tarnwick {
namespace {

bool HoldsEnding(std::string_view path, std::string_view lowerCaseEnding) {
  const auto same = [](char c, char lower) {
    return (c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) == lower;
  };
  return std::search(path.begin(), path.end(), lowerCaseEnding.begin(), lowerCaseEnding.end(), same) !=
         path.end();
}

}  // namespace

Box ReplaceQuestion(const std::string& path) {
  return {.Title = "Save",
          .Text = path + "\nThis file already exists.\nDo you want to replace it?",
          .Offer = Buttons::YesNo,
          .Shown = Icon::Warning,
          .Default = Button::No};
}

std::optional<std::string> AskSavePath(FileDialogs& files, Messages& say, const FileQuestion& question,
                                       std::string_view extension,
                                       const std::function<bool(const std::string&)>& isWhole) {
  std::optional<std::string> path = files.AskSave(question);
  if (!path || isWhole(*path)) return path;
  std::string whole = *path + std::string(extension);
  const bool asks = question.WarnBeforeReplacing && FileExists(FilePath(whole));
  if (asks && say.Show(ReplaceQuestion(whole)) != Button::Yes) return std::nullopt;
  return whole;
}

std::optional<std::string> AskExportPath(FileDialogs& files, Messages& say, const FileQuestion& question,
                                         std::string_view ending) {
  return AskSavePath(files, say, question, ending,
                     [ending](const std::string& path) { return HoldsEnding(path, ending); });
}

std::string ExportName(const std::string& fileName, std::string_view extension) {
  return fileName.substr(0, fileName.find('.')) + std::string(extension);
}

}  // namespace tarnwick
