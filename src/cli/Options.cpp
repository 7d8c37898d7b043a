#include "cli/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <iostream>
#include <map>
#include <memory>
#include <string_view>

#include "model/modDecim.h"
#include "store/modCfg.h"
#include "store/modUserStore.h"
#include "version.h"

namespace tarnwick::cli {
namespace {

constexpr const char* AboutDesigns =
    "A DESIGN is a .bsw file, a .json file with one design as nested objects by the record's member\n"
    "names (or an object that holds them under \"saw\"), or - for the same JSON on standard input.\n"
    "In JSON a missing field is zero and an unknown one an error. json and power take .bsp files too,\n"
    "and print a line for each of the two calculations.\n\n"
    "Exit code: 0 all done, 1 some design failed (each is named on standard error, the others are done),\n"
    "2 wrong usage.";

constexpr const char* DefaultsFlag = "--defaults";
constexpr const char* EvalName = "eval";
constexpr double LeastFeedIndex = 1, WholeGullet = 100;  // percent

constexpr const char* AboutTexts =
    "A TEXT is what may be typed into a box for a measure: 3/4, \"12 3/4 in\", \"5 ft 6 in\",\n"
    "(10+2)/4, 1.5*2. Unit words are left out, not converted; feet and inches together become feet.\n"
    "Each text prints one line, its number or the refusal.\n\n"
    "Exit code: 0 all are numbers, 1 some text was refused, 2 wrong usage.";

template <class Number>
void AddSetting(CLI::App& app, const std::string& name, Number& value, const SettingRange& range,
                const std::string& help) {
  app.add_option(name, value, help)
      ->type_name("N")
      ->check(CLI::Range(range.Least, range.Most))
      ->capture_default_str();
}

void AddOptionsForAll(CLI::App& app, Options& options) {
  CalculationSettings& settings = options.Settings;
  AddSetting(app, "--decimal-places", settings.DecimalPlaces, DecimalPlacesRange,
             "Places of every calculated number");
  AddSetting(app, "--display-places", settings.DisplayPlaces, DisplayPlacesRange, "Places shown in texts");
  AddSetting(app, "--teeth-direction", settings.TeethDirection, TeethDirectionRange,
             "1: the teeth run from left to right, 2: the other way");
  AddSetting(app, "--memory-size", settings.MemorySize, MemorySizeRange,
             "Most pairs of code and value that a drawing file may hold");
  AddSetting(app, "--dxf-color", settings.DxfSaveColor, DxfSaveColorRange, "Colour index of drawn entities");
  app.add_flag(DefaultsFlag, options.DefaultSettings,
               "Ignore the user's settings; what is given here still counts");
  app.set_version_flag("--version", "tarnwick-cli " + std::string(FullVersion), "Show the version and leave");
  app.set_help_flag("-h,--help", "Show this help and leave");
  app.allow_windows_style_options(false);
}

CLI::App& AddCommand(CLI::App& app, const std::string& name, const std::string& help, Options& options) {
  CLI::App& command = *app.add_subcommand(name, help);
  AddOptionsForAll(command, options);
  command.add_option("DESIGN", options.Designs, "Designs to work on, in this order; - is standard input")
      ->required()
      ->type_name("");
  command.footer(AboutDesigns);
  return command;
}

void AddSegment(CLI::App& command, Options& options) {
  command.add_flag("--segment", options.Segment,
                   "Calculate one segment of a variable band, not the whole band");
}

void AddOutput(CLI::App& command, Options& options, const std::string& extension) {
  CLI::Option* file =
      command.add_option("-o", options.OutputFile, "Write the one design to this file; - is standard output");
  file->type_name("FILE");
  command
      .add_option("--out-dir", options.OutputFolder,
                  "Write each design into this folder, under its own name with the ending " + extension)
      ->type_name("DIR")
      ->excludes(file);
}

CLI::App& AddJson(CLI::App& app, Options& options) {
  CLI::App& json = AddCommand(app, "json", "Print each design, calculated, as one line of JSON", options);
  json.add_flag("--entities", options.WithEntities, "Print the lines and arcs of the drawing too");
  AddSegment(json, options);
  json.add_flag("--no-calculation", options.WithoutCalculation,
                "Print the record as read, and nothing else of it");
  return json;
}

CLI::App& AddPower(CLI::App& app, Options& options) {
  CLI::App& power = AddCommand(
      app, "power", "Print the power figures of each design, calculated, as one line of JSON", options);
  power
      .add_option("--estimate", options.Estimate,
                  "Print estimates too: the figures as they are, and for feed rates that rise by this much")
      ->type_name("PERCENT");
  power
      .add_option("--feed-index", options.FeedIndexPercent,
                  "How much of the gullet carries sawdust, in place of the user's own setting")
      ->type_name("PERCENT");
  power.add_flag("--no-calculation", options.WithoutCalculation,
                 "Take the gullet and the other measures as read, and work the power figures out of them");
  return power;
}

CLI::App& AddDxf(CLI::App& app, Options& options) {
  CLI::App& dxf = AddCommand(app, "dxf", "Write the drawing of each design as a DXF file", options);
  AddOutput(dxf, options, ".dxf");
  AddSegment(dxf, options);
  return dxf;
}

CLI::App& AddSvg(CLI::App& app, Options& options) {
  CLI::App& svg =
      AddCommand(app, "svg", "Write the drawing of each design as an SVG picture in true inches", options);
  AddOutput(svg, options, ".svg");
  AddSegment(svg, options);
  return svg;
}

CLI::App& AddPdf(CLI::App& app, Options& options) {
  CLI::App& pdf =
      AddCommand(app, "pdf", "Write the print-outs of each design as a PDF file on letter paper", options);
  AddOutput(pdf, options, ".pdf");
  const std::map<std::string, SawPages> pages{
      {"both", SawPages::Both}, {"drawing", SawPages::Drawing}, {"info", SawPages::Info}};
  pdf.add_option(
         "--pages",
         "Write the information sheet, the drawing in true size, or both; without it both, and the segment\n"
         "of a variable pitch band over as many sheets as it takes")
      ->type_name("both|drawing|info")
      ->check(CLI::IsMember(pages))
      ->each([&options, pages](const std::string& chosen) { options.Pages = pages.at(chosen); });
  return pdf;
}

CLI::App& AddBsw(CLI::App& app, Options& options) {
  CLI::App& bsw = AddCommand(app, "bsw", "Write each design as a band saw file", options);
  AddOutput(bsw, options, ".bsw");
  bsw.add_flag("--calculate", options.WithCalculation,
               "Calculate the design and save the outcome; without it the record is written as given");
  return bsw;
}

CLI::App& AddMachine(CLI::App& app, Options& options) {
  CLI::App& machine = AddCommand(
      app, "machine",
      "Print the band lengths of each design's machine as one line of JSON, and draw the machine", options);
  AddOutput(machine, options, ".dxf");
  machine.get_option("-o")->description(
      "Write the machine of the one design to this DXF file; - is standard output, in place of the lengths");
  machine.add_option("--svg", options.OutputFile, "The same as an SVG picture, on a sheet of 7 by 10 inches")
      ->type_name("FILE")
      ->excludes("-o")
      ->excludes("--out-dir")
      ->each([&options](const std::string&) { options.AsPicture = true; });
  machine.add_flag("--entities", options.WithEntities, "Print the pieces of the drawing too");
  return machine;
}

CLI::App& AddEval(CLI::App& app, Options& options) {
  CLI::App& eval = *app.add_subcommand(EvalName, "Print the number that each text stands for");
  AddOptionsForAll(eval, options);
  eval.add_option("TEXT", options.Texts, "Texts, as they are typed into a box for a measure")
      ->required()
      ->type_name("");
  eval.footer(AboutTexts);
  return eval;
}

/// The arguments as the parser likes them: it would take an equation that begins with a minus for an option.
/// A blank ahead hides the minus and means nothing in an equation.
std::vector<std::string> ArgumentsOf(int argc, const char* const* argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  auto text = std::find(arguments.begin(), arguments.end(), EvalName);
  for (; text != arguments.end(); ++text) {
    if (text->size() > 1 && text->front() == '-' &&
        std::string_view("0123456789.( ").find((*text)[1]) != std::string_view::npos) {
      text->insert(0, 1, ' ');
    }
  }
  std::reverse(arguments.begin(), arguments.end());  // it takes them from the back
  return arguments;
}

/// What the parser cannot know: where the results of a command go.
void CheckOutput(const Options& options) {
  const Command asked = options.Asked;
  if (asked == Command::Json || asked == Command::Power || asked == Command::Eval) return;
  if (asked != Command::Machine && options.OutputFile.empty() && options.OutputFolder.empty()) {
    throw CLI::RequiredError("-o FILE or --out-dir DIR");
  }
  if (!options.OutputFile.empty() && options.Designs.size() > 1) {
    throw CLI::ValidationError(options.AsPicture ? "--svg" : "-o",
                               "takes one design only; use --out-dir for several");
  }
}

/// Percentages that mean something; the parser would take a nan for a number in any range.
void CheckPercents(const Options& options) {
  if (options.Estimate && !(*options.Estimate > 0 && std::isfinite(*options.Estimate))) {
    throw CLI::ValidationError("--estimate", "takes a number above 0");
  }
  const std::optional<double> index = options.FeedIndexPercent;
  if (index && !(*index >= LeastFeedIndex && *index <= WholeGullet)) {
    throw CLI::ValidationError("--feed-index", "takes a number from 1 to 100");
  }
}

/// Says what there is to be said: help and version on standard output, errors on standard error.
ExitCode Leave(const CLI::App& app, const CLI::ParseError& why) {
  const bool answered = app.exit(why, std::cout, std::cerr) == 0;
  std::cout.flush();
  return answered ? ExitCode::AllDone : ExitCode::WrongUsage;
}

std::string WrongUsageText(const CLI::App*, const CLI::Error& why) {
  return std::string("tarnwick-cli: ") + why.what() + "\nRun tarnwick-cli --help for more information.\n";
}

/// What counts where the command line says nothing: the user's settings, as the window program keeps them.
void TakeUsersSettings(Options& options) {
  Config config;
  const std::unique_ptr<SettingsStore> store = UserSettingsStore();
  if (!ReadConfig(config, *store)) return;
  options.User = config;
  options.Settings = config.Calculation;
  options.GulletFeedIndex = config.GulletFeedIndex;
}

bool AsksForDefaults(int argc, const char* const* argv) {
  return std::any_of(argv, argv + argc, [](std::string_view argument) { return argument == DefaultsFlag; });
}

}  // namespace

std::variant<Options, ExitCode> ParseOptions(int argc, const char* const* argv) {
  Options options;
  options.Arguments.assign(argv + 1, argv + argc);
  if (!AsksForDefaults(argc, argv)) TakeUsersSettings(options);
  CLI::App app("Tarnwick: designs of band saw blades, their figures and their drawings", "tarnwick-cli");
  AddOptionsForAll(app, options);
  app.require_subcommand(1);
  app.failure_message(WrongUsageText);
  app.footer("tarnwick-cli COMMAND --help tells more of a command.\n\n" + std::string(AboutDesigns));
  AddJson(app, options).callback([&options] { options.Asked = Command::Json; });
  AddPower(app, options).callback([&options] { options.Asked = Command::Power; });
  AddDxf(app, options).callback([&options] { options.Asked = Command::Dxf; });
  AddSvg(app, options).callback([&options] { options.Asked = Command::Svg; });
  AddPdf(app, options).callback([&options] { options.Asked = Command::Pdf; });
  AddBsw(app, options).callback([&options] { options.Asked = Command::Bsw; });
  AddMachine(app, options).callback([&options] { options.Asked = Command::Machine; });
  AddEval(app, options).callback([&options] { options.Asked = Command::Eval; });
  try {
    app.parse(ArgumentsOf(argc, argv));
    CheckOutput(options);
    CheckPercents(options);
  } catch (const CLI::ParseError& why) {
    return Leave(app, why);
  }
  if (options.FeedIndexPercent) {
    options.GulletFeedIndex =
        RoundTo(*options.FeedIndexPercent / WholeGullet, options.Settings.DecimalPlaces);
  }
  return options;
}

}  // namespace tarnwick::cli
