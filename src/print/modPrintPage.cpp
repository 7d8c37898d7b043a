#include "print/modPrintPage.h"

#include <cstdint>
#include <utility>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr double PaperInches = 8.5;  // width of every kind

struct PaperHeight {
  int Paper;
  double Inches;
};
constexpr PaperHeight PaperHeights[] = {
    {LetterPaper, 11}, {SmallLetterPaper, 11}, {LegalPaper, 14}, {14, 13}, {40, 12}, {41, 13}};

PaperHeight HeightOf(int paper) {
  for (const PaperHeight& row : PaperHeights) {
    if (row.Paper == paper) return row;
  }
  return PaperHeights[0];
}

double WholeInchesInTwips(double inches) { return *WholeNumber<std::int16_t>(inches) * TwipsPerInch; }

/// Below the rows that are there, or the header. It is higher than what is left of the sheet: the band lies
/// in the middle of it all the same.
PaperBox FrameOf(const PrintPage& page) {
  constexpr double narrower = 1440, lower = 720;
  const double left = page.Left + narrower / 2;
  const double top = page.Top + FirstRowTop + (page.IsPortrait() ? 200 : 500);
  return {left, top, left + page.Width - narrower, top + page.Height - lower};
}

}  // namespace

double LabelX(int column, const PrintPage& page) {
  const double moved = page.IsPortrait() ? 400 : 200;
  return column == 1 ? 1100 : column == 2 ? moved + 5700 : 10300;
}

double ValueX(int column, const PrintPage& page) { return LabelX(column, page) + 4000; }

PrintPage PageFor(const PrinterSetup& setup) {
  const auto [paper, inches] = HeightOf(setup.Paper);
  PrintPage page{.Paper = paper,
                 .Turned = setup.Turned,
                 .Width = WholeInchesInTwips(PaperInches),
                 .Height = WholeInchesInTwips(inches),
                 .Frame = {}};
  if (!page.IsPortrait()) std::swap(page.Width, page.Height);
  page.Frame = FrameOf(page);
  return page;
}

std::optional<PrintPage> FitPaper(PrintDevice& device) {
  PrinterSetup setup = device.Setup();
  const PrintPage page = PageFor(setup);
  setup.Paper = page.Paper;
  if (!device.SetUp(setup)) return std::nullopt;
  return page;
}

}  // namespace tarnwick
