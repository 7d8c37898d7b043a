#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "cli/ExitCode.h"
#include "model/modSettings.h"
#include "power/modFeedIndex.h"
#include "print/modPrintPage.h"
#include "store/modCfg.h"

namespace tarnwick::cli {

enum class Command { Json, Power, Dxf, Svg, Pdf, Bsw, Machine, Eval };

/// Name of a design or an output that stands for standard input or output.
inline constexpr const char* StandardStream = "-";

/// What the command line asks for.
struct Options {
  Command Asked{};
  std::vector<std::string> Designs;  // as given, in the order given; one at least (but of eval)
  std::vector<std::string> Texts;    // eval: the equations, in the order given; one at least
  CalculationSettings Settings;
  bool DefaultSettings{};  // start from the defaults, whatever the user has set
  Config User;             // what the user has set; what the command line says of it stands in Settings

  std::vector<std::string> Arguments;  // the command line itself, without the program

  double GulletFeedIndex = DefaultGulletFeedIndex;  // power
  std::optional<double> FeedIndexPercent;           // as given
  std::optional<double> Estimate;                   // power: percent by which the feed rate rises

  bool WithEntities{};        // json, machine: the drawing list too
  bool WithoutCalculation{};  // json, power: the record as read
  bool WithCalculation{};     // bsw: the record as calculated
  bool Segment{};             // one segment of a variable band in place of the whole band

  bool AsPicture{};  // machine: the output is an SVG picture, no DXF file

  std::optional<SawPages> Pages;  // pdf: these, and no segment

  // dxf, svg, pdf and bsw: one of the two is given; machine: one of the two, or none
  std::string OutputFile;    // of the one design; "-" is standard output
  std::string OutputFolder;  // of all designs, each under its own name
};

/// Reads the command line. When there is nothing to do but leave (help, version, wrong usage) it has said so
/// on standard output or standard error, and answers with the exit code.
[[nodiscard]] std::variant<Options, ExitCode> ParseOptions(int argc, const char* const* argv);

}  // namespace tarnwick::cli
