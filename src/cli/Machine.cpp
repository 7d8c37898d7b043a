#include "cli/Machine.h"

#include <optional>

#include "cli/Design.h"
#include "cli/JsonText.h"
#include "cli/JsonWriter.h"
#include "cli/Streams.h"
#include "dxf/modDXF.h"
#include "machine/modBandLength.h"
#include "machine/modMachineSvg.h"
#include "machine/modMachineView.h"
#include "platform/CollectedMessages.h"

namespace tarnwick::cli {
namespace {

constexpr const char* NoMachine = "The design has no wheel diameter, or no center to center.";

void AppendMember(std::string& json, std::string_view name, double value) {
  json.append(json.back() == '{' ? "" : ",").append("\"").append(name).append("\":");
  AppendNumber(json, value);
}

/// What the lengths come from, within its limits.
void AppendMeasures(std::string& json, const BandSaw& saw) {
  json += R"(,"machine":{)";
  AppendMember(json, "WheelDia", saw.MachineInfo.WheelDia);
  AppendMember(json, "CenterToCenter", saw.MachineInfo.CenterToCenter);
  AppendMember(json, "Width", saw.MachineInfo.Width);
  AppendMember(json, "PlateThick", saw.GeneralInfo.PlateThick);
  json += '}';
}

void AppendLengths(std::string& json, const RowLengths& lengths) {
  constexpr const char* Names[LengthRows] = {"", "Inside", "Middle", "Outside"};
  json += R"(,"lengths":{)";
  for (int row = InsideLength; row < LengthRows; ++row) {
    const std::optional<double>& length = lengths[static_cast<std::size_t>(row)];
    if (length) AppendMember(json, Names[row], *length);
  }
  json += '}';
}

std::string Line(const Options& options, const std::string& name, const Design& design,
                 const EntityList& drawing) {
  std::string line = R"({"file":)";
  AppendString(line, name);
  AppendMeasures(line, design.Saw);
  AppendLengths(line, CalcLengths(design.Saw, options.Settings.DecimalPlaces).value_or(RowLengths{}));
  line += R"(,"extents":)";
  AppendExtentsJson(line, ComputeExtents(drawing));
  line += R"(,"messages":)";
  AppendMessagesJson(line, design.Notes);
  if (options.WithEntities) {
    line += R"(,"entities":)";
    AppendEntitiesJson(line, drawing);
  }
  return line + "}\n";
}

Problem WriteDrawing(const Options& options, const Output& output, const std::string& name,
                     const MachineView& view, const EntityList& drawing) {
  if (options.AsPicture) return output.Write(name, MachineSvgText(view, options.Settings));
  const std::optional<std::string> text = DxfText(drawing, options.Settings);
  return text ? output.Write(name, *text) : std::string(FileTooLarge);
}

}  // namespace

Problem WriteMachine(const Options& options, Output& output, const std::string& name) {
  const bool draws = !options.OutputFile.empty() || !options.OutputFolder.empty();
  if (Problem problem = draws ? output.Claim(name) : Problem()) return problem;
  Design design = ReadDesign(name);
  if (design.Failed) return design.Failed;

  MachineView view;
  CollectedMessages messages;
  BuildMachineLists(design.Saw, view, {options.Settings, design.Saw.ImpMetric}, messages);
  const EntityList drawing = MergedLists(view, options.Settings.MemorySize, messages);
  for (const std::string& text : messages.Texts()) design.Notes.push_back(text);
  if (view.Wheels.Entities.empty()) design.Notes.emplace_back(NoMachine);

  if (draws) {
    if (Problem problem = WriteDrawing(options, output, name, view, drawing)) return problem;
  }
  if (output.IsStandardOutput()) {
    for (const std::string& note : design.Notes) Tell(name, note);
    return {};
  }
  return WriteToStandardOutput(Line(options, name, design, drawing));
}

}  // namespace tarnwick::cli
