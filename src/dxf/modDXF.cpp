#include "dxf/modDXF.h"

#include "dxf/modDxfPairs.h"
#include "platform/Messages.h"
#include "store/modFiles.h"

namespace tarnwick {
namespace {

struct Pair {
  int Code;
  std::string_view Value;
};

void AddAll(DxfPairs& pairs, std::initializer_list<Pair> fixed) {
  for (const Pair& pair : fixed) pairs.Add(pair.Code, pair.Value);
}

void AddHeader(DxfPairs& pairs, const ListHeader& header) {
  AddAll(pairs, {{0, "SECTION"}, {2, "HEADER"}, {9, "$INSBASE"}, {10, "0.0000"}, {20, "0.0000"}});
  AddAll(pairs, {{9, "$EXTMIN"}, {10, "0.0000"}, {20, "0.0000"}});
  pairs.Add(9, "$EXTMAX");
  pairs.Add(10, header.MaxX);
  pairs.Add(20, header.MaxY);
  AddAll(pairs, {{9, "$LIMMIN"}, {10, "0.0000"}, {20, "0.0000"}});
  // No $LIMMAX, though a file of this kind has one: the files that machines were set up with never held it.
  pairs.Add(9, "$VIEWCTR");
  pairs.Add(10, header.ViewCenterX);
  pairs.Add(20, header.ViewCenterY);
  pairs.Add(9, "$VIEWSIZE");
  pairs.Add(40, header.MaxX * 0.75);
  AddAll(pairs, {{9, "$TEXTSTYLE"}, {7, "STANDARD"}, {9, "$CLAYER"}, {8, "Default"}, {0, "ENDSEC"}});
}

void AddTables(DxfPairs& pairs) {
  AddAll(pairs, {{0, "SECTION"}, {2, "TABLES"}});
  AddAll(pairs, {{0, "TABLE"}, {2, "LTYPE"}, {70, "     2"}});
  AddAll(pairs, {{0, "LTYPE"},
                 {2, "CONTINUOUS"},
                 {70, "    64"},
                 {3, "Solid Line"},
                 {72, "    65"},
                 {73, "     0"},
                 {40, "0.0"}});
  AddAll(pairs, {{0, "LTYPE"},
                 {2, "DOT"},
                 {70, "    64"},
                 {3, "..............................................."},
                 {72, "    65"},
                 {73, "     2"},
                 {40, "0.25"},
                 {49, "0.0"},
                 {49, "-0.25"}});
  AddAll(pairs, {{0, "ENDTAB"}, {0, "TABLE"}, {2, "LAYER"}, {70, "     1"}});
  AddAll(pairs, {{0, "LAYER"}, {2, "Default"}, {70, "    64"}, {62, "     7"}, {6, "CONTINUOUS"}});
  AddAll(pairs, {{0, "ENDTAB"}, {0, "TABLE"}, {2, "VIEW"}, {70, "     0"}, {0, "ENDTAB"}, {0, "ENDSEC"}});
}

void AddEmptyBlocks(DxfPairs& pairs) { AddAll(pairs, {{0, "SECTION"}, {2, "BLOCKS"}, {0, "ENDSEC"}}); }

/// Writes one entity; what all of a kind share is its name, the layer and, but for texts, the colour.
class EntityWriter {
 public:
  EntityWriter(DxfPairs& pairs, int colour) : pairs_(pairs), colour_(std::to_string(colour)) {}

  void operator()(const LineEntity& line) const {
    Open(line.Kind);
    if (line.IsDotted) pairs_.Add(6, "DOT");
    pairs_.Add(62, colour_);
    AddPoint(0, line.Corner1X, line.Corner1Y);
    AddPoint(1, line.Corner4X, line.Corner4Y);
  }

  void operator()(const ArcEntity& arc) const {
    AddRound(arc);
    pairs_.Add(50, arc.StartAngle);
    pairs_.Add(51, arc.EndAngle);
  }

  void operator()(const CircleEntity& circle) const { AddRound(circle); }

  void operator()(const SolidEntity& solid) const {
    Open(solid.Kind);
    pairs_.Add(62, colour_);
    AddPoint(0, solid.Corner1X, solid.Corner1Y);
    AddPoint(1, solid.Corner2X, solid.Corner2Y);
    AddPoint(2, solid.Corner3X, solid.Corner3Y);
    AddPoint(3, solid.Corner4X, solid.Corner4Y);
  }

  void operator()(const TextEntity& text) const {
    Open(text.Kind);
    AddPoint(0, text.Corner1X, text.Corner1Y);
    pairs_.Add(40, text.TextHeight);
    pairs_.Add(1, text.Text.View());  // all twenty characters
  }

 private:
  void Open(std::string_view kind) const {
    pairs_.Add(0, kind);
    pairs_.Add(8, "default");  // with a small d, though the table defines "Default": both are meant
  }

  /// The point groups of an entity are numbered 10 and 20, 11 and 21 ...
  void AddPoint(int number, double x, double y) const {
    pairs_.Add(10 + number, x);
    pairs_.Add(20 + number, y);
  }

  template <class Round>
  void AddRound(const Round& round) const {
    Open(round.Kind);
    pairs_.Add(62, colour_);
    AddPoint(0, round.CenterX, round.CenterY);
    pairs_.Add(40, round.Radius);
  }

  DxfPairs& pairs_;
  std::string colour_;
};

void AddEntities(DxfPairs& pairs, const EntityList& list, int colour, const Yield& yield) {
  constexpr std::size_t entitiesBetweenYields = 80;  // under a thousand pairs, of solids too
  AddAll(pairs, {{0, "SECTION"}, {2, "ENTITIES"}});
  const EntityWriter write(pairs, colour);
  for (std::size_t i = 0; i < list.Entities.size() && pairs.Fits(); ++i) {
    std::visit(write, list.Entities[i]);
    if (yield && i % entitiesBetweenYields == 0) yield();
  }
}

}  // namespace

std::optional<std::string> DxfText(const EntityList& list, const CalculationSettings& settings,
                                   const Yield& yield) {
  constexpr std::size_t bytesOfHead = 1200, bytesPerEntity = 110;
  DxfPairs pairs(settings.MemorySize);
  pairs.Reserve(bytesOfHead + bytesPerEntity * list.Entities.size());
  AddHeader(pairs, list.Header);
  AddTables(pairs);
  AddEmptyBlocks(pairs);
  AddEntities(pairs, list, settings.DxfSaveColor, yield);
  AddAll(pairs, {{0, "ENDSEC"}, {0, "EOF"}});
  if (!pairs.Fits()) return std::nullopt;
  return pairs.TakeText();
}

bool WriteDxf(const EntityList& list, const std::filesystem::path& fileName,
              const CalculationSettings& settings, Messages& messages, const Yield& yield) {
  const std::optional<std::string> text = DxfText(list, settings, yield);
  if (!text) {
    messages.Show({.Text = std::string(FileTooLarge)});
    return false;
  }
  if (const std::error_code failed = WriteWholeFile(fileName, *text)) {
    messages.Show({.Text = "Error " + std::to_string(failed.value())});
    return false;
  }
  return true;
}

}  // namespace tarnwick
