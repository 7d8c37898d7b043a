// Any bytes as a power file: what was read and is written again has the same records, byte for byte; and
// whatever numbers they hold, figures, boxes and lines come of them.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "power/modPowerBox.h"
#include "power/modPowerChain.h"
#include "power/modPowerSheet.h"
#include "store/modPowerFile.h"

namespace {

void ShowFigures(tarnwick::BandSaw saw) {
  using tarnwick::LinesFor;
  const tarnwick::PowerSettings settings;
  tarnwick::UpdatePower(saw, settings);
  for (const auto boxes : {tarnwick::PowerEditorBoxes(), tarnwick::PowerCalculatorBoxes()}) {
    for (const tarnwick::PowerBoxRow& row : boxes) {
      (void)tarnwick::PowerBoxText(row.Box, saw, settings.GulletFeedIndex, {});
    }
  }
  const auto rows = tarnwick::BuildPowerEstimates(saw, 10, settings);
  if (!rows) std::abort();
  const auto lines = [&](LinesFor place) {
    return tarnwick::EstimateLines(*rows, settings.GulletFeedIndex, {}, place).size();
  };
  if (lines(LinesFor::Window) != lines(LinesFor::Paper)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t imageSize = 2 * tarnwick::RecordImageSize;
  constexpr std::size_t headerSize = tarnwick::PowerFileSize - imageSize;
  const std::string bytes(data, data + size);
  const tarnwick::PowerFileBytes read = tarnwick::ReadPowerFile(bytes);
  const bool isWhole = read.State == tarnwick::PowerFileState::Complete;
  if (read.Notes.size() != (isWhole ? 0 : 1)) std::abort();  // whatever is wrong is said, and once
  if (!read.Usable()) return 0;

  if (isWhole != (size >= tarnwick::PowerFileSize)) std::abort();
  std::string images = bytes.substr(headerSize, imageSize);
  images.resize(imageSize, '\0');
  if (tarnwick::PowerFileText(read.Saws).substr(headerSize) != images) std::abort();
  for (const tarnwick::BandSaw& saw : read.Saws) ShowFigures(saw);
  return 0;
}
