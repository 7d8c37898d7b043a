#include "print/modText.h"

#include <cstddef>

#include "model/modCharacters.h"
#include "store/modCodePage.h"
#include "store/modFiles.h"

namespace tarnwick {
namespace {

constexpr std::size_t CaptionWidth = 20;  // characters

/// The first column. Cutting takes the comma too: meant.
std::string CaptionField(const std::string& caption) {
  const std::string marked = caption.empty() ? caption : caption + ",";
  return std::string(FirstCharacters(marked + std::string(CaptionWidth, ' '), CaptionWidth));
}

}  // namespace

std::string ListingText(const SawInfo& rows, const std::string& name) {
  std::string text = name + ",\n\n";
  for (const InfoRow& row : rows) {
    if (row.Caption.empty()) text += '\n';
    text += CaptionField(row.Caption);
    if (!row.Value.empty()) text += row.Value + ",";
    text += '\n';
  }
  return text;
}

std::string TextFileBytes(std::string_view lines, TextForm form) {
  if (form == TextForm::Unix) return std::string(lines);
  std::string bytes;
  for (const char byte : NearestCodePageText(lines)) {
    if (byte == '\n') bytes += '\r';
    bytes += byte;
  }
  return bytes;
}

bool SaveTextFile(const SawInfo& rows, const std::string& name, const std::filesystem::path& path) {
  return !WriteWholeFile(path, TextFileBytes(ListingText(rows, name), OwnTextForm));
}

}  // namespace tarnwick
