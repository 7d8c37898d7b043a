#include "cli/Commands.h"

#include <exception>
#include <functional>

#include "cli/Calculation.h"
#include "cli/Evaluation.h"
#include "cli/JsonText.h"
#include "cli/JsonWriter.h"
#include "cli/Machine.h"
#include "cli/Output.h"
#include "cli/Sibling.h"
#include "cli/Streams.h"
#include "dxf/modDXF.h"
#include "model/modZoom.h"
#include "power/modPowerChain.h"
#include "power/modPowerRequired.h"
#include "store/modSave.h"
#include "window/modSvg.h"

namespace tarnwick::cli {
namespace {

Scope ScopeOf(const Options& options) { return options.Segment ? Scope::Segment : Scope::WholeBand; }

/// Appends the members of a line of JSON behind the name of the design, each with its comma ahead.
using AppendMembers = void (*)(const Options& options, std::string& line, Design& design);

/// Prints a line for each design that the name stands for.
Problem PrintLines(const Options& options, const std::string& name, AppendMembers append) {
  std::string lines;
  for (Design& design : ReadDesigns(name)) {
    if (design.Failed) return design.Failed;
    lines += R"({"file":)";
    AppendString(lines, name);
    if (design.Calculation > 0) lines += R"(,"calculation":)" + std::to_string(design.Calculation);
    append(options, lines, design);
    lines += "}\n";
  }
  return WriteToStandardOutput(lines);
}

void AppendJson(const Options& options, std::string& line, Design& design) {
  EntityList drawing;
  if (!options.WithoutCalculation) drawing = Calculate(design, ScopeOf(options), options.Settings);
  line += R"(,"saw":)";
  AppendRecordJson(line, design.Saw);
  if (!options.WithoutCalculation) {
    line += R"(,"header":)";
    AppendHeaderJson(line, drawing);
    line += R"(,"extents":)";
    AppendExtentsJson(line, ComputeExtents(drawing));
  }
  line += R"(,"messages":)";
  AppendMessagesJson(line, design.Notes);
  if (options.WithEntities && !options.WithoutCalculation) {
    line += R"(,"entities":)";
    AppendEntitiesJson(line, drawing);
  }
}

/// What a design lacks for its power figures is no failure: those that can be worked out are, the others
/// are 0.
void AppendPower(const Options& options, std::string& line, Design& design) {
  if (!options.WithoutCalculation) (void)Calculate(design, Scope::WholeBand, options.Settings);
  const PowerSettings settings{options.Settings.DecimalPlaces, options.GulletFeedIndex};
  UpdatePower(design.Saw, settings);
  if (const std::string missing = MissingPowerData(design.Saw); !missing.empty()) {
    design.Notes.push_back(missing);
  }
  line += R"(,"power":)";
  AppendPowerJson(line, design.Saw, settings.GulletFeedIndex);
  if (options.Estimate) {
    if (const auto rows = BuildPowerEstimates(design.Saw, *options.Estimate, settings)) {
      line += R"(,"estimates":)";
      AppendEstimatesJson(line, *rows);
    }
  }
  line += R"(,"messages":)";
  AppendMessagesJson(line, design.Notes);
}

/// The text of a file that shows a drawing; nullopt when it would be too large.
using DrawingText = std::function<std::optional<std::string>(const EntityList&)>;

Problem WriteDrawing(const Options& options, Output& output, const std::string& name,
                     const DrawingText& textOf) {
  if (Problem problem = output.Claim(name)) return problem;
  Design design = ReadDesign(name);
  const EntityList drawing = Calculate(design, ScopeOf(options), options.Settings);
  if (design.Failed) return design.Failed;
  TellNotes(name, design);
  const std::optional<std::string> text = textOf(drawing);
  if (!text) return std::string(FileTooLarge);
  return output.Write(name, *text);
}

/// A calculated design is saved as the window saves it; without a calculation every byte is the user's own.
Problem WriteDesign(const Options& options, Output& output, const std::string& name) {
  if (Problem problem = output.Claim(name)) return problem;
  Design design = ReadDesign(name);
  if (options.WithCalculation) {
    (void)Calculate(design, Scope::WholeBand, options.Settings);
    MarkSaved(design.Saw);
  }
  if (design.Failed) return design.Failed;
  TellNotes(name, design);
  return output.Write(name, BandSawText(design.Saw));
}

}  // namespace

void TellNotes(const std::string& name, const Design& design) {
  for (const std::string& note : design.Notes) Tell(name, note);
}

ExitCode ForEachDesign(const Options& options, const std::function<Problem(const std::string&)>& work) {
  ExitCode outcome = ExitCode::AllDone;
  for (const std::string& name : options.Designs) {
    Problem problem;
    try {
      problem = work(name);
    } catch (const std::exception& why) {  // out of memory, or a name that is no path
      problem = why.what();
    }
    if (!problem) continue;
    Tell(name, *problem);
    outcome = ExitCode::SomeFailed;
  }
  return outcome;
}

ExitCode RunCommand(const Options& options) {
  switch (options.Asked) {
    case Command::Json:
      return ForEachDesign(options,
                           [&](const std::string& name) { return PrintLines(options, name, AppendJson); });
    case Command::Power:
      return ForEachDesign(options,
                           [&](const std::string& name) { return PrintLines(options, name, AppendPower); });
    case Command::Dxf: {
      Output output(options, ".dxf");
      const auto text = [&](const EntityList& list) { return DxfText(list, options.Settings); };
      return ForEachDesign(
          options, [&](const std::string& name) { return WriteDrawing(options, output, name, text); });
    }
    case Command::Svg: {
      Output output(options, ".svg");
      return ForEachDesign(
          options, [&](const std::string& name) { return WriteDrawing(options, output, name, SvgText); });
    }
    case Command::Pdf:
      return RunSibling("tarnwick-pdf", options.Arguments);
    case Command::Bsw: {
      Output output(options, ".bsw");
      return ForEachDesign(options,
                           [&](const std::string& name) { return WriteDesign(options, output, name); });
    }
    case Command::Machine: {
      Output output(options, ".dxf");
      return ForEachDesign(options,
                           [&](const std::string& name) { return WriteMachine(options, output, name); });
    }
    case Command::Eval:
      return PrintValues(options.Texts, options.Settings.DecimalPlaces);
  }
  return ExitCode::WrongUsage;
}

int RunTool(int argc, const char* const* argv, CommandRunner run) noexcept {
  KeepLineEnds();
  ExitCode outcome = ExitCode::SomeFailed;
  try {
    const std::variant<Options, ExitCode> asked = ParseOptions(argc, argv);
    const Options* options = std::get_if<Options>(&asked);
    outcome = options != nullptr ? run(*options) : std::get<ExitCode>(asked);
  } catch (const std::exception& why) {
    Tell("stopped", why.what());
  }
  return static_cast<int>(outcome);
}

}  // namespace tarnwick::cli
