#include "cli/Options.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "version.h"

namespace tarnwick::cli {
namespace {

constexpr const char* AboutDesigns =
    "A DESIGN is a .bsw file, a .json file with one design as nested objects by the record's member names "
    "(or an\n"
    "object that holds them under \"saw\"), or - for the same JSON on standard input. In JSON a missing "
    "field is\n"
    "zero and an unknown one an error.\n\n"
    "Exit code: 0 all done, 1 some design failed (each is named on standard error, the others are done),\n"
    "2 wrong usage.";

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
  app.add_flag("--defaults", options.DefaultSettings,
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

CLI::App& AddBsw(CLI::App& app, Options& options) {
  CLI::App& bsw = AddCommand(app, "bsw", "Write each design as a band saw file", options);
  AddOutput(bsw, options, ".bsw");
  bsw.add_flag("--calculate", options.WithCalculation,
               "Calculate the design and save the outcome; without it the record is written as given");
  return bsw;
}

/// What the parser cannot know: where the results of a command go.
void CheckOutput(const Options& options) {
  if (options.Asked == Command::Json) return;
  if (options.OutputFile.empty() && options.OutputFolder.empty()) {
    throw CLI::RequiredError("-o FILE or --out-dir DIR");
  }
  if (!options.OutputFile.empty() && options.Designs.size() > 1) {
    throw CLI::ValidationError("-o", "takes one design only; use --out-dir for several");
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

}  // namespace

std::variant<Options, ExitCode> ParseOptions(int argc, const char* const* argv) {
  Options options;
  CLI::App app("Tarnwick: designs of band saw blades, their figures and their drawings", "tarnwick-cli");
  AddOptionsForAll(app, options);
  app.require_subcommand(1);
  app.failure_message(WrongUsageText);
  app.footer("tarnwick-cli COMMAND --help tells more of a command.\n\n" + std::string(AboutDesigns));
  AddJson(app, options).callback([&options] { options.Asked = Command::Json; });
  AddDxf(app, options).callback([&options] { options.Asked = Command::Dxf; });
  AddSvg(app, options).callback([&options] { options.Asked = Command::Svg; });
  AddBsw(app, options).callback([&options] { options.Asked = Command::Bsw; });
  try {
    app.parse(argc, argv);
    CheckOutput(options);
  } catch (const CLI::ParseError& why) {
    return Leave(app, why);
  }
  return options;
}

}  // namespace tarnwick::cli
