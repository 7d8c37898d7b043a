// Any text as a design in JSON: one that is taken is printed and read again as the same record, byte for
// byte.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "cli/JsonReader.h"
#include "cli/JsonWriter.h"
#include "store/modSave.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const tarnwick::cli::JsonDesign design = tarnwick::cli::ReadDesignJson(text);
  if (design.Failed) return 0;

  std::string printed;
  tarnwick::cli::AppendRecordJson(printed, design.Saw);
  const tarnwick::cli::JsonDesign again = tarnwick::cli::ReadDesignJson(printed);
  if (again.Failed || tarnwick::BandSawText(again.Saw) != tarnwick::BandSawText(design.Saw)) std::abort();
  return 0;
}
