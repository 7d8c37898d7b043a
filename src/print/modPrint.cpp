#include "print/modPrint.h"

#include <utility>

#include "geometry/modTooth.h"
#include "print/modPrintRow.h"
#include "print/modPrintSaw.h"
#include "print/modPrintSegment.h"

namespace tarnwick {
namespace {

PrintSheet InfoSheet(const SawPrint& print, const Stationery& stationery, const std::string& pageLabel) {
  PrintSheet sheet;
  AppendHeader(sheet, stationery.Header, pageLabel, stationery.Page, stationery.Ruler);
  AppendRows(sheet, PlaceSections(InfoSections(print.Saw, print.Format, print.WithPower), stationery.Page,
                                  stationery.Ruler));
  return sheet;
}

PaperMapping MappingOf(const SawPrint& print, const Stationery& stationery) {
  return MappingOnPage(print.Saw, stationery.Page, print.Format.DecimalPlaces);
}

PrintSheet ShapeSheet(const SawPrint& print, const Stationery& stationery, const std::string& pageLabel) {
  PrintSheet sheet;
  AppendHeader(sheet, stationery.Header, pageLabel, stationery.Page, stationery.Ruler);
  AppendDrawing(sheet, print.Lines, MappingOf(print, stationery), DrawingBox(stationery.Page),
                print.LineThick);
  return sheet;
}

}  // namespace

EntityList SegmentToPrint(BandSaw saw, const CalculationSettings& settings, Messages& messages) {
  return saw.GeneralInfo.VariablePitch ? CalculateSegment(saw, settings, messages) : EntityList();
}

PrintJob SawJob(const SawPrint& print, const Stationery& stationery, SawPages pages) {
  const int sheets = pages == SawPages::Both ? 2 : 1;
  return {stationery.Header.Title, sheets, [=, &print, &stationery](int number) {
            const bool isInfo = pages == SawPages::Info || (pages == SawPages::Both && number == 1);
            return (isInfo ? InfoSheet : ShapeSheet)(print, stationery, PageLabel(number, sheets));
          }};
}

PrintJob SegmentJob(const SawPrint& print, const Stationery& stationery) {
  const PaperMapping mapping = MappingOf(print, stationery);
  const int sheets = SegmentSheets(print.Segment, mapping, stationery.Page);
  return {stationery.Header.Title, sheets, [=, &print, &stationery](int number) {
            PrintSheet sheet;
            AppendSegmentHeader(sheet, stationery.Header, SegmentLabel(number, sheets), stationery.Page,
                                stationery.Ruler);
            AppendSegmentPart(sheet, print.Segment, mapping, stationery.Page, number, print.LineThick);
            return sheet;
          }};
}

PrintJob PowerJob(const PowerSheetText& text, const Stationery& stationery) {
  return {stationery.Header.Title, 1, [&](int number) {
            PrintSheet sheet;
            const double top = AppendHeader(sheet, stationery.Header, PageLabel(number, 1), stationery.Page,
                                            stationery.Ruler);
            AppendPowerLines(sheet, text, stationery.Page, top);
            return sheet;
          }};
}

PrintJob AllSheetsJob(const SawPrint& print, const Stationery& stationery) {
  PrintJob saw = SawJob(print, stationery, SawPages::Both);
  if (!print.Saw.GeneralInfo.VariablePitch) return saw;
  PrintJob segment = SegmentJob(print, stationery);
  return {saw.Title, saw.Sheets + segment.Sheets,
          [first = saw.Sheets, saw = std::move(saw.Sheet), segment = std::move(segment.Sheet)](int number) {
            return number <= first ? saw(number) : segment(number - first);
          }};
}

}  // namespace tarnwick
