#include "cli/JsonWriter.h"

#include <concepts>
#include <string_view>
#include <variant>

#include "cli/JsonText.h"
#include "model/modFields.h"

namespace tarnwick::cli {
namespace {

/// Commas between the members of an object or an array.
class Separator {
 public:
  void Next(std::string& json) {
    if (!first_) json += ',';
    first_ = false;
  }

 private:
  bool first_ = true;
};

/// Our own names need no escapes.
void AppendName(std::string& json, std::string_view name) { json.append("\"").append(name).append("\":"); }

/// An object from its opening brace to its closing one.
class Object {
 public:
  explicit Object(std::string& json) : json_(json) { json_ += '{'; }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  ~Object() { json_ += '}'; }

  Object& Number(std::string_view name, double value) {
    Name(name);
    AppendNumber(json_, value);
    return *this;
  }
  Object& YesNo(std::string_view name, bool value) { return Number(name, value ? True : False); }
  Object& Kind(std::string_view kind) {
    Name("Kind");
    AppendString(json_, kind);
    return *this;
  }
  Object& Text(std::string_view name, std::string_view bytes) {
    Name(name);
    AppendFixedText(json_, bytes);
    return *this;
  }

 private:
  void Name(std::string_view name) {
    separator_.Next(json_);
    AppendName(json_, name);
  }

  std::string& json_;
  Separator separator_;
};

/// Writes each field that it is shown; fields of a nested record follow each other, so its object is opened
/// at the first of them and closed behind the last.
class RecordWriter {
 public:
  explicit RecordWriter(std::string& json) : json_(json) { json_ += '{'; }

  template <class Field>
  void operator()(std::string_view path, const Field& field) {
    const std::size_t point = path.find('.');
    Enter(point == path.npos ? std::string_view() : path.substr(0, point));
    inner_.Next(json_);
    AppendName(json_, path.substr(point + 1));  // npos + 1 is the whole path
    Append(field);
  }

  void Close() {
    Enter({});
    json_ += '}';
  }

 private:
  void Enter(std::string_view group) {
    if (group == group_) return;
    if (!group_.empty()) {
      json_ += '}';
      inner_ = outer_;
    }
    if (!group.empty()) {
      inner_.Next(json_);
      outer_ = inner_;
      inner_ = {};
      AppendName(json_, group);
      json_ += '{';
    }
    group_ = group;
  }

  template <std::integral Whole>
  void Append(Whole value) {
    json_ += std::to_string(value);
  }
  void Append(double value) { AppendNumber(json_, value); }
  void Append(const SegmentMeasures& measures) {
    Separator separator;
    json_ += '[';
    for (const double measure : measures) {
      separator.Next(json_);
      Append(measure);
    }
    json_ += ']';
  }
  template <std::size_t N>
  void Append(const FixedText<N>& text) {
    AppendFixedText(json_, text.View());
  }

  std::string& json_;
  std::string_view group_;
  Separator inner_, outer_;
};

/// Writes each entity that it is shown.
struct EntityWriter {
  std::string& Json;

  void operator()(const LineEntity& line) const {
    Object(Json)
        .Kind(line.Kind)
        .Number("Corner1X", line.Corner1X)
        .Number("Corner1Y", line.Corner1Y)
        .Number("Corner4X", line.Corner4X)
        .Number("Corner4Y", line.Corner4Y)
        .YesNo("IsOutline", line.IsOutline)
        .YesNo("IsDotted", line.IsDotted);
  }
  void operator()(const ArcEntity& arc) const {
    Object(Json)
        .Kind(arc.Kind)
        .Number("CenterX", arc.CenterX)
        .Number("CenterY", arc.CenterY)
        .Number("Radius", arc.Radius)
        .Number("StartAngle", arc.StartAngle)
        .Number("EndAngle", arc.EndAngle);
  }
  void operator()(const CircleEntity& circle) const {
    Object(Json)
        .Kind(circle.Kind)
        .Number("CenterX", circle.CenterX)
        .Number("CenterY", circle.CenterY)
        .Number("Radius", circle.Radius);
  }
  void operator()(const TextEntity& text) const {
    Object(Json)
        .Kind(text.Kind)
        .Number("Corner1X", text.Corner1X)
        .Number("Corner1Y", text.Corner1Y)
        .Number("TextHeight", text.TextHeight)
        .Number("TextAngle", text.TextAngle)
        .Text("Text", text.Text.View());
  }
  void operator()(const SolidEntity& solid) const {
    Object(Json)
        .Kind(solid.Kind)
        .Number("Corner1X", solid.Corner1X)
        .Number("Corner1Y", solid.Corner1Y)
        .Number("Corner2X", solid.Corner2X)
        .Number("Corner2Y", solid.Corner2Y)
        .Number("Corner3X", solid.Corner3X)
        .Number("Corner3Y", solid.Corner3Y)
        .Number("Corner4X", solid.Corner4X)
        .Number("Corner4Y", solid.Corner4Y);
  }
};

void AppendEstimate(std::string& json, const PowerEstimate& row) {
  Object(json)
      .Number("Marker", row.Marker)
      .Number("WheelDia", row.WheelDia)
      .Number("CenterToCenter", row.CenterToCenter)
      .Number("Width", row.Width)
      .Number("Length", row.Length)
      .Number("Pitch", row.Pitch)
      .Number("NumTeeth", row.NumTeeth)
      .Number("PlateThick", row.PlateThick)
      .Number("Kerf", row.Kerf)
      .Number("SideClear", row.SideClear)
      .Number("ShaftSpeed", row.ShaftSpeed)
      .Number("SawVelocity", row.SawVelocity)
      .Number("DepthOfCut", row.DepthOfCut)
      .Number("FeedRate", row.FeedRate)
      .Text("WoodType", row.WoodType.View())
      .Number("HorsePower", row.HorsePower)
      .Number("Bite", row.Bite)
      .Number("GulletArea", row.GulletArea)
      .Number("AreaBelowTip", row.AreaBelowTip)
      .Number("Capacity", row.Capacity)
      .Number("FeedIndex", row.FeedIndex);
}

}  // namespace

void AppendRecordJson(std::string& json, const BandSaw& saw) {
  RecordWriter writer(json);
  ForEachField(saw, writer);
  writer.Close();
}

void AppendHeaderJson(std::string& json, const EntityList& drawing) {
  Object(json)
      .Number("Count", static_cast<double>(drawing.Count()))
      .Number("MaxX", drawing.Header.MaxX)
      .Number("MaxY", drawing.Header.MaxY)
      .Number("ViewCenterX", drawing.Header.ViewCenterX)
      .Number("ViewCenterY", drawing.Header.ViewCenterY);
}

void AppendExtentsJson(std::string& json, const Extents& extents) {
  Object(json)
      .Number("MinY", extents.MinY)
      .Number("MinX", extents.MinX)
      .Number("MaxY", extents.MaxY)
      .Number("MaxX", extents.MaxX)
      .Number("CenterX", extents.CenterX)
      .Number("CenterY", extents.CenterY);
}

void AppendPowerJson(std::string& json, const BandSaw& saw, double feedIndex) {
  Object(json)
      .Number("SawVelocity", saw.DesignInfo.SawVelocity)
      .Number("SideClear", saw.GeneralInfo.SideClear)
      .Number("Bite", saw.GulletInfo.Bite)
      .Number("Capacity", saw.GulletInfo.Capacity)
      .Number("HorsePower", saw.GeneralInfo.HorsePower)
      .Number("MaxFeedRate", saw.DesignInfo.MaxFeedRate)
      .Number("AreaBelowTip", feedIndex * saw.GulletInfo.Area)
      .Number("FeedIndex", feedIndex);
}

void AppendEstimatesJson(std::string& json, const PowerEstimates& rows) {
  Separator separator;
  json += '[';
  for (const PowerEstimate& row : rows) {
    separator.Next(json);
    AppendEstimate(json, row);
  }
  json += ']';
}

void AppendMessagesJson(std::string& json, const std::vector<std::string>& messages) {
  Separator separator;
  json += '[';
  for (const std::string& message : messages) {
    separator.Next(json);
    AppendString(json, message);
  }
  json += ']';
}

void AppendEntitiesJson(std::string& json, const EntityList& drawing) {
  constexpr std::size_t bytesPerEntity = 140;
  json.reserve(json.size() + bytesPerEntity * drawing.Entities.size());
  const EntityWriter write{json};
  Separator separator;
  json += '[';
  for (const Entity& entity : drawing.Entities) {
    separator.Next(json);
    std::visit(write, entity);
  }
  json += ']';
}

}  // namespace tarnwick::cli
