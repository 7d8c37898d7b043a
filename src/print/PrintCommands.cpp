#include "print/PrintCommands.h"

#include <system_error>
#include <utility>

#include "model/modDecim.h"
#include "power/PowerCalculator.h"
#include "power/PowerEditor.h"
#include "power/PowerEstimateList.h"
#include "print/PrintJob.h"
#include "shell/SavePath.h"
#include "shell/modFailure.h"
#include "shell/modTimeDate.h"

namespace tarnwick {
namespace {

constexpr std::string_view PdfFilter = "Pdf Files (*.pdf)|*.pdf";
constexpr std::string_view PdfEnding = ".pdf";

Box NoPrinters() {
  return {.Title = "No Printers!", .Text = "No windows printers available!", .Shown = Icon::Information};
}

Box WrongPaper() { return {.Text = "Tarnwick can not print to the selected paper size."}; }

Box NotVariable() {
  return {.Title = "Printing Canceled",
          .Text = "This is not a variable pitch bandsaw.\nThis print job has been canceled."};
}

Box TilingQuestion(int sheets) {
  return {.Title = "Print Segment",
          .Text = "To print out one complete segment of\nvariable pitch teeth requires" +
                  DecimalText(sheets) + " pages.\n\nDo you wish to continue?",
          .Offer = Buttons::YesNo,
          .Default = Button::Yes};
}

/// The notice of a job: gone when that is over, whatever came of it.
class Notice {
 public:
  explicit Notice(PrintHost& windows) : windows_(windows) {}
  Notice(const Notice&) = delete;
  Notice& operator=(const Notice&) = delete;
  ~Notice() { windows_.HidePrintMsg(); }

  void Show(int sheet, int sheets) { windows_.ShowPrintMsg(sheet, sheets); }

 private:
  PrintHost& windows_;
};

}  // namespace

/// What a command prints with, and how it tells of a failure.
struct PrintCommands::Work {
  PrintDevice& Device;
  std::string Title;           // heads every sheet
  std::string_view Activity;   // for the message of a failure
  std::string_view Procedure;  // likewise
};

// ---- the printer

/// The printers there are; says so when there is none.
std::vector<std::string> PrintCommands::FindPrinters() const {
  std::vector<std::string> printers = desk_.Printer.Printers();
  if (printers.empty()) Say().Show(NoPrinters());
  return printers;
}

/// Has a printer chosen, which is the current one then.
std::optional<PrinterChoice> PrintCommands::ChoosePrinter(RunChoice run, std::string_view procedure) {
  std::vector<std::string> printers = FindPrinters();
  if (printers.empty()) return std::nullopt;
  std::int16_t& saved = Design().Settings.DefaultPrinter;
  if (saved < 0 || static_cast<std::size_t>(saved) >= printers.size()) saved = 0;
  PrinterChoice choice(std::move(printers), static_cast<std::size_t>(saved),
                       [this](const std::string& printer, std::optional<PrinterSetup> current) {
                         if (!current && printer == printer_) current = desk_.Printer.Setup();
                         return desk_.Windows.RunSetup(printer, current);
                       });
  (desk_.Windows.*run)(choice);
  if (!choice.IsAccepted()) return std::nullopt;

  if (choice.SavesPrinter()) saved = static_cast<std::int16_t>(choice.Selected());
  Design().Settings.DefaultPrinterName = choice.Name();
  if (!TakePrinter(choice)) {
    TellFailure(std::make_error_code(std::errc::no_such_device), "Printer", procedure);
    return std::nullopt;
  }
  return choice;
}

bool PrintCommands::TakePrinter(const PrinterChoice& choice) {
  if (!desk_.Printer.Choose(choice.Name())) return false;
  printer_ = choice.Name();
  // Nobody is to get the copies of another day; the paper stays as it lies in the printer.
  PrinterSetup setup = desk_.Printer.Setup();
  setup.Copies = 1;
  (void)desk_.Printer.SetUp(choice.Setup().value_or(setup));  // FitPaper finds out what it cannot take
  desk_.Printer.SetQuality(choice.Quality());
  return true;
}

// ---- the job

PrintCommands::Work PrintCommands::OnPrinter(std::string title, std::string_view procedure) const {
  return {desk_.Printer, std::move(title), "Printer", procedure};
}

/// @param make  the job for the paper in use; nullopt: nothing is to be printed
void PrintCommands::Print(const Work& work, const MakeJob& make) {
  const std::optional<PrintPage> page = FitPaper(work.Device);
  if (!page) {
    Say().Show(WrongPaper());
    return;
  }
  const Stationery stationery{
      *page,
      {work.Title, PrintDateText(desk_.Process.Out.Time.Now()), Design().Settings.Customer},
      work.Device};
  const std::optional<PrintJob> job = make(stationery);
  if (!job) return;
  std::error_code failure;
  {
    Notice notice(desk_.Windows);
    failure = RunPrintJob(*job, work.Device, [&](int sheet) { notice.Show(sheet, job->Sheets); });
  }
  if (failure) TellFailure(failure, work.Activity, work.Procedure);
}

/// A job that the user has stopped needs no words.
void PrintCommands::TellFailure(std::error_code failure, std::string_view activity,
                                std::string_view procedure) const {
  if (failure != std::errc::operation_canceled) Say().Show(FailureBox(activity, failure, procedure));
}

// ---- the saw

/// The open design as it is printed.
struct PrintCommands::Sheets {
  enum class Of { Saw, SawAndSegment };

  EntityList Segment;
  SawPrint Print;

  Sheets(const Program& process, Of what)
      : Segment(what == Of::SawAndSegment
                    ? SegmentToPrint(process.Design.Saw, process.Design.Settings.Calculation, process.Out.Say)
                    : EntityList()),
        Print{.Saw = process.Design.Saw,
              .Lines = process.Design.Lines,
              .Segment = Segment,
              .Format = process.Design.Format(),
              .LineThick = process.Design.Settings.PrintLineThick,
              .WithPower = process.Design.Settings.PrintPowerReq} {}
  Sheets(const Sheets&) = delete;
  Sheets& operator=(const Sheets&) = delete;
};

void PrintCommands::PrintPages(RunChoice run, std::optional<SawPages> pages, std::string_view procedure) {
  const std::optional<PrinterChoice> choice = ChoosePrinter(run, procedure);
  if (!choice) return;
  const Sheets sheets(desk_.Process, Sheets::Of::Saw);
  Print(OnPrinter(Design().FileName, procedure), [&](const Stationery& stationery) {
    return SawJob(sheets.Print, stationery, pages.value_or(choice->Pages()));
  });
}

void PrintCommands::PrintSaw() { PrintPages(&PrintHost::RunPrinterPage, std::nullopt, "mnuItemPrint"); }

void PrintCommands::PrintInfoOnly() {
  PrintPages(&PrintHost::RunPrinter, SawPages::Info, "mnuItemPrintInfo");
}

void PrintCommands::PrintShapeOnly() {
  PrintPages(&PrintHost::RunPrinter, SawPages::Drawing, "mnuItemPrintShape");
}

void PrintCommands::PrintVariableSegment() {
  constexpr std::string_view procedure = "mnuItemPrintVariable";
  if (!ChoosePrinter(&PrintHost::RunPrinter, procedure)) return;
  if (!Design().Saw.GeneralInfo.VariablePitch) {
    Say().Show(NotVariable());
    return;
  }
  const Sheets sheets(desk_.Process, Sheets::Of::SawAndSegment);
  Print(OnPrinter(Design().FileName, procedure),
        [&](const Stationery& stationery) -> std::optional<PrintJob> {
          PrintJob job = SegmentJob(sheets.Print, stationery);
          if (job.Sheets > 1 && Say().Show(TilingQuestion(job.Sheets)) != Button::Yes) return std::nullopt;
          return job;
        });
}

// ---- power

void PrintCommands::PrintPower(const PowerSheetText& text, std::string title, std::string_view procedure) {
  if (!ChoosePrinter(&PrintHost::RunPrinter, procedure)) return;
  Print(OnPrinter(std::move(title), procedure),
        [&](const Stationery& stationery) { return PowerJob(text, stationery); });
}

void PrintCommands::PrintEstimates(PowerEditor& editor) {
  if (FindPrinters().empty()) return;  // ahead of the percent, which is of no use then
  if (const std::optional<PowerEstimateList> estimates = editor.Estimates()) PrintEstimates(*estimates);
}

void PrintCommands::PrintEstimates(const PowerEstimateList& estimates) {
  PrintPower({estimates.PaperHeading(), estimates.PaperLines(), std::string(PowerEstimateList::Note())},
             Design().FileName, "cmdPrint");
}

void PrintCommands::PrintCalculations(const PowerCalculator& calculator) {
  if (!calculator.MayPrint()) return;
  PrintPower({calculator.Path(), calculator.PaperLines(), {}}, "Power Calculations", "cmdPrint");
}

// ---- a file

void PrintCommands::ExportPdf() {
  const std::optional<std::string> path = AskExportPath(desk_.Process.Out.Files, Say(),
                                                        {.Filter = std::string(PdfFilter),
                                                         .Folder = Design().SawDir(),
                                                         .Name = ExportName(Design().FileName, PdfEnding),
                                                         .WarnBeforeReplacing = true},
                                                        PdfEnding);
  if (!path) return;
  const std::unique_ptr<PrintDevice> file = desk_.Files.File(*path);
  const Sheets sheets(desk_.Process, Sheets::Of::SawAndSegment);
  Print({*file, Design().FileName, "Saving", "mnuItemExportPdf"},
        [&](const Stationery& stationery) { return AllSheetsJob(sheets.Print, stationery); });
}

}  // namespace tarnwick
