// The print-outs of designs as files: the part of the command line tool that needs the toolkit. tarnwick-cli
// starts it with its own command line.

#include <QGuiApplication>
#include <QString>
#include <QtGlobal>
#include <ctime>

#include "cli/Calculation.h"
#include "cli/Commands.h"
#include "cli/Output.h"
#include "cli/WideArguments.h"
#include "platform/CollectedMessages.h"
#include "platform/qt/QtPdfFiles.h"
#include "print/PrintJob.h"
#include "print/modPrint.h"
#include "shell/OpenDesign.h"
#include "shell/modTimeDate.h"
#include "store/modPath.h"

namespace tarnwick::cli {
namespace {

std::string Today() {
  const std::time_t now = std::time(nullptr);
  const std::tm* today = std::localtime(&now);
  if (!today) return {};
  return PrintDateText({today->tm_year + 1900, today->tm_mon + 1, today->tm_mday});
}

std::string TitleOf(const std::string& name) {
  return name == StandardStream ? std::string(UntitledName) : PathText(FilePath(name).filename());
}

/// The sheets that the options ask for, on a device.
std::error_code Print(const Options& options, const std::string& name, const BandSaw& saw,
                      const EntityList& band, PrintDevice& device) {
  CollectedMessages ignored;  // the band as a whole has told what there is to tell
  const EntityList segment = options.Pages ? EntityList() : SegmentToPrint(saw, options.Settings, ignored);
  const SawPrint print{
      .Saw = saw,
      .Lines = band,
      .Segment = segment,
      .Format = {saw.ImpMetric, options.Settings.DisplayPlaces, options.Settings.DecimalPlaces},
      .LineThick = options.User.PrintLineThick,
      .WithPower = options.User.PrintPowerReq};
  const std::optional<PrintPage> page = FitPaper(device);
  if (!page) return std::make_error_code(std::errc::not_supported);
  const Stationery stationery{*page, {TitleOf(name), Today(), options.User.Customer}, device};
  const PrintJob job =
      options.Pages ? SawJob(print, stationery, *options.Pages) : AllSheetsJob(print, stationery);
  return RunPrintJob(job, device, {});
}

Problem WritePdf(const Options& options, Output& output, const std::string& name) {
  if (Problem problem = output.Claim(name)) return problem;
  Design design = ReadDesign(name);
  const EntityList band = Calculate(design, Scope::WholeBand, options.Settings);
  if (design.Failed) return design.Failed;
  TellNotes(name, design);
  std::string bytes;
  QtPdfPages pages([&bytes](std::string_view file) {
    bytes = file;
    return std::error_code();
  });
  if (const std::error_code failed = Print(options, name, design.Saw, band, pages)) return failed.message();
  return output.Write(name, bytes);
}

ExitCode RunPdf(const Options& options) {
  if (options.Asked != Command::Pdf) return RunCommand(options);
  qputenv("QT_QPA_PLATFORM", "offscreen");  // there need not be a screen
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // of no interest here
  int ownName = 1;
  char name[] = "tarnwick-pdf";
  char* arguments[] = {name, nullptr};
  const QGuiApplication toolkit(ownName, arguments);
  Output output(options, ".pdf");
  return ForEachDesign(options, [&](const std::string& design) { return WritePdf(options, output, design); });
}

int Run(int argc, const char* const* argv) { return RunTool(argc, argv, RunPdf); }

}  // namespace
}  // namespace tarnwick::cli

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) { return tarnwick::cli::RunOnWide(argc, argv, tarnwick::cli::Run); }
#else
int main(int argc, char** argv) { return tarnwick::cli::Run(argc, argv); }
#endif
