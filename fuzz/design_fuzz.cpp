// Any record that a design file can hold, all the way: calculation, segment, drawing file, pictures, rows,
// listing, sheets, panel of the variable pitch, machine. Bytes behind the record choose the settings.

#include <algorithm>
#include <string>

#include "Demand.h"
#include "MutateRecord.h"
#include "ShortBand.h"
#include "dxf/modDXF.h"
#include "geometry/modTooth.h"
#include "machine/modBandLength.h"
#include "machine/modMachineSvg.h"
#include "model/modZoom.h"
#include "platform/CollectedMessages.h"
#include "power/modPowerSheet.h"
#include "print/modPrint.h"
#include "print/modText.h"
#include "shell/OpenDesign.h"
#include "variable/VariableEditor.h"
#include "window/modDisplay.h"
#include "window/modDraw.h"
#include "window/modSvg.h"

namespace {

using namespace tarnwick;
using fuzz::Demand;

/// A surface that nobody looks at.
class NoCanvas final : public Canvas {
 public:
  [[nodiscard]] PixelSize Size() const override { return {800, 600}; }
  void Clear(Colour) override {}
  void SetPen(Colour, PenStyle) override {}
  void Polyline(std::span<const Spot, 2>) override {}
  void Arc(Spot, Spot, Spot, Spot) override {}
  void Polygon(std::span<const Spot>) override {}
  [[nodiscard]] PixelSize TextSize(std::string_view text) const override {
    return {6.0 * static_cast<double>(text.size()), 12};
  }
  void Text(Spot, std::string_view) override {}
};

class EvenRuler final : public TextRuler {
 public:
  [[nodiscard]] PaperSize TextSize(std::string_view text, const PrintFont& font) const override {
    return {static_cast<double>(text.size()) * 0.42 * font.Points * TwipsPerPoint,
            1.15 * font.Points * TwipsPerPoint};
  }
};

/// The byte of that number behind the record.
int Choice(std::string_view file, std::size_t number) {
  const std::size_t at = BandSawFileSize + number;
  return at < file.size() ? static_cast<unsigned char>(file[at]) : 0;
}

CalculationSettings SettingsOf(std::string_view file) {
  const auto within = [&](std::size_t number, SettingRange range) {
    return range.Least + Choice(file, number) % (range.Most - range.Least + 1);
  };
  CalculationSettings settings;
  if (file.size() <= BandSawFileSize) return settings;
  settings.DecimalPlaces = static_cast<std::int16_t>(within(0, DecimalPlacesRange));
  settings.DisplayPlaces = static_cast<std::int16_t>(within(1, DisplayPlacesRange));
  settings.TeethDirection = static_cast<std::int16_t>(within(2, TeethDirectionRange));
  settings.MemorySize = Choice(file, 3) % 2 == 0 ? MemorySizeRange.Least : MemorySizeRange.Most;
  return settings;
}

/// No reader of a drawing knows a number that is none.
bool HoldsNumbersAlone(std::string_view text) {
  return text.find("nan") == std::string_view::npos && text.find("inf") == std::string_view::npos;
}

void MakeFiles(const EntityList& band, const BandSaw& saw, const CalculationSettings& settings) {
  const std::optional<std::string> drawing = DxfText(band, settings);
  Demand(!drawing || (drawing->ends_with(" 0 \r\nEOF\r\n") && HoldsNumbersAlone(*drawing)));
  const std::string picture = SvgText(band);
  Demand(picture.ends_with("</svg>\n") && HoldsNumbersAlone(picture));

  const DisplayFormat format{saw.ImpMetric, settings.DisplayPlaces, settings.DecimalPlaces};
  const std::string listing = ListingText(BuildSawInfo(saw, format, 300), "a.bsw");
  Demand(TextFileBytes(listing, TextForm::Unix) == listing);
  (void)TextFileBytes(listing, TextForm::Windows);
}

void MakeSheets(const EntityList& band, BandSaw saw, const CalculationSettings& settings) {
  CollectedMessages unseen;
  const BandSaw shown = saw;
  const EntityList segment = CalculateSegment(saw, settings, unseen);
  const DisplayFormat format{shown.ImpMetric, settings.DisplayPlaces, settings.DecimalPlaces};
  const SawPrint print{.Saw = shown, .Lines = band, .Segment = segment, .Format = format, .WithPower = true};
  const EvenRuler ruler;
  for (const auto turned : {PaperOrientation::Portrait, PaperOrientation::Landscape}) {
    const Stationery stationery{PageFor({.Turned = turned}), {"a.bsw", "Nov, 21/26", {}}, ruler};
    const PrintJob saws = AllSheetsJob(print, stationery);
    Demand(saws.Sheets >= 2);
    for (const int sheet : {1, 2, std::min(3, saws.Sheets), saws.Sheets}) {
      Demand(!saws.Sheet(sheet).empty());
    }
    const PowerSheetText figures{"Power", CalculationLines(CalculationRow(shown, 0.7), 1, format), ""};
    Demand(!PowerJob(figures, stationery).Sheet(1).empty());
  }
}

/// As the window opens a design, looks around in it, and leafs through the presets of its segment.
void LookAround(const BandSaw& saw, const CalculationSettings& settings) {
  CollectedMessages messages;
  NoCanvas surface;
  OpenDesign design;
  design.Settings.Calculation = settings;
  design.ApplySettings();
  design.View.SetSurface({8, 6});
  design.Saw = saw;
  design.ImpMetric = saw.ImpMetric;
  design.Recalculate(messages);
  const auto draw = [&] {
    DrawSaw(design.Lines, design.View.CurrentMapping(), surface, design.Settings.Display);
  };
  draw();
  design.ViewAll();
  draw();
  design.ViewSegment();
  draw();
  design.View.ZoomIn();
  design.View.ZoomOut();
  design.ViewOneToOne();
  draw();

  VariableEditor editor(design, [&] { design.Recalculate(messages); });
  editor.FillFromRecord();
  for (const int pattern : {LeftToRightPattern, MixedPattern, NoPattern}) editor.ClickPattern(pattern);
  editor.TickVarDepth(true);
  editor.ChooseEntry(1);
  editor.TickVarDepth(false);
  editor.PressReset();
}

void MakeMachine(BandSaw saw, const CalculationSettings& settings) {
  CollectedMessages messages;
  MachineView view;
  BuildMachineLists(saw, view, {settings, saw.ImpMetric}, messages);
  Demand(HoldsNumbersAlone(MachineSvgText(view, settings)));
  const auto drawing = DxfText(MergedLists(view, settings.MemorySize, messages), settings);
  Demand(drawing && HoldsNumbersAlone(*drawing));
  (void)CalcLengths(saw, settings.DecimalPlaces);
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most,
                                               unsigned seed) {
  return fuzz::MutateDesign(data, size, most, seed);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string file(data, data + size);
  const BandSawBytes read = ReadBandSaw(file);
  if (!read.Usable()) return 0;
  const CalculationSettings settings = SettingsOf(file);
  BandSaw saw = read.Saw;
  fuzz::KeepBandShort(saw);

  LookAround(saw, settings);
  MakeMachine(saw, settings);
  CollectedMessages messages;
  const EntityList band = CalculateSaw(saw, settings, messages);
  MakeFiles(band, saw, settings);
  MakeSheets(band, saw, settings);
  const std::string written = BandSawText(saw);
  Demand(BandSawText(ReadBandSaw(written).Saw) == written);
  return 0;
}
