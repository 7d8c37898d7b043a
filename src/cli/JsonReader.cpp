#include "cli/JsonReader.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <vector>

#include "cli/JsonFields.h"

namespace tarnwick::cli {
namespace {

constexpr std::string_view RecordKey = "saw";

/// What the tool prints beside the record.
bool StandsBesideRecord(std::string_view key) {
  constexpr std::string_view keys[] = {"file", "calculation", "header", "extents", "messages", "entities"};
  return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

// Places for a value, beside the fields themselves.
struct PassedOver {};  // belongs to nothing of ours
struct Document {};    // the record, or the object around it
struct Record {};
struct Group {};  // a nested record
struct Bits {     // {"bits": ...} in place of a number
  double* Number;
};
struct Hex {  // {"hex": ...} in place of a text
  std::span<char> Text;
};
struct BitDigits {
  double* Number;
};
struct HexDigits {
  std::span<char> Text;
};

using Place =
    std::variant<PassedOver, Document, Record, Group, Bits, Hex, BitDigits, HexDigits, std::int16_t*,
                 std::int32_t*, std::uint8_t*, double*, SegmentMeasures*, std::span<char>>;

struct Expectation {
  std::string operator()(double*) const { return "a number"; }
  std::string operator()(SegmentMeasures*) const { return "an array of numbers"; }
  std::string operator()(std::span<char>) const { return "a text"; }
  std::string operator()(BitDigits) const { return "a text of 16 hex digits"; }
  std::string operator()(HexDigits) const { return "a text of hex digits"; }
  template <class Whole>
  std::string operator()(Whole*) const {
    return "a whole number";
  }
  template <class Nest>
  std::string operator()(Nest) const {
    return "an object";
  }
};

std::string Mistyped(const Place& place, const std::string& given) {
  return std::visit(Expectation{}, place) + " is expected, not " + given;
}

/// Stores a number at its place; answers what is wrong with it.
struct StoreNumber {
  const Place& Where;
  double Value;
  const std::string& Written;

  std::string operator()(double* field) const {
    *field = Value;
    return {};
  }
  std::string operator()(std::int16_t* field) const { return StoreWhole(*field, Value, Written); }
  std::string operator()(std::int32_t* field) const { return StoreWhole(*field, Value, Written); }
  std::string operator()(std::uint8_t* field) const { return StoreWhole(*field, Value, Written); }
  template <class Other>
  std::string operator()(Other) const {
    return Mistyped(Where, "a number");
  }
};

/// The same for a string.
struct StoreString {
  const Place& Where;
  const std::string& Text;

  std::string operator()(std::span<char> field) const { return StoreText(field, Text); }
  std::string operator()(BitDigits digits) const { return StoreBits(*digits.Number, Text); }
  std::string operator()(HexDigits digits) const { return StoreHex(digits.Text, Text); }
  template <class Other>
  std::string operator()(Other) const {
    return Mistyped(Where, "a text");
  }
};

/// Fills a record from the events of a JSON parser. It meets each value with the place that the value is for,
/// keeps no tree, and stops at the first thing wrong.
class DesignHandler : public nlohmann::json_sax<nlohmann::json> {
 public:
  explicit DesignHandler(BandSaw& saw) : names_(saw) {}

  [[nodiscard]] const std::string& Problem() const { return problem_; }

  bool null() override { return Misplaced("null"); }
  bool boolean(bool) override { return Misplaced("true or false"); }
  bool binary(binary_t&) override { return Misplaced("binary data"); }
  bool number_integer(number_integer_t value) override {
    return Number(static_cast<double>(value), std::to_string(value));
  }
  bool number_unsigned(number_unsigned_t value) override {
    return Number(static_cast<double>(value), std::to_string(value));
  }
  bool number_float(number_float_t value, const string_t& written) override { return Number(value, written); }
  bool string(string_t& text) override {
    return PassOver() || (Arrive() && Accept(std::visit(StoreString{place_, text}, place_)));
  }

  bool start_object(std::size_t) override {
    return EnterPassedOver() ||
           (Arrive() && std::visit([this](auto place) { return EnterObject(place); }, place_));
  }
  bool key(string_t& name) override { return depthPassedOver_ > 0 || Find(name); }
  bool end_object() override { return LeavePassedOver() || LeaveObject(); }

  bool start_array(std::size_t) override {
    if (EnterPassedOver()) return true;
    if (!Arrive()) return false;
    return std::holds_alternative<SegmentMeasures*>(place_) ? Enter(place_)
                                                            : Fail(Mistyped(place_, "an array"));
  }
  bool end_array() override { return LeavePassedOver() || Leave(); }

  bool parse_error(std::size_t, const std::string& token, const nlohmann::json::exception& why) override {
    constexpr int numberOverflow = 406;
    if (why.id == numberOverflow) {
      if (!Arrive()) return false;
      return Fail(token + " is out of range");
    }
    const std::string_view text = why.what();  // "[json.exception...] parse error at line 1 ..."
    path_.clear();
    return Fail("not JSON: " + std::string(text.substr(text.find("] ") + 2)));
  }

 private:
  /// An object or an array that is open.
  struct Level {
    Place Of;
    std::string Path;              // of its name within the record
    std::set<std::string> Seen{};  // keys so far
    std::size_t Items{};           // of an array, so far
  };

  bool Fail(const std::string& why) {
    constexpr std::size_t mostShown = 300;
    problem_ = (path_.empty() ? why : path_ + ": " + why).substr(0, mostShown);
    return false;
  }
  bool Accept(const std::string& problem) { return problem.empty() || Fail(problem); }
  bool Misplaced(const char* given) { return PassOver() || (Arrive() && Fail(Mistyped(place_, given))); }
  bool Number(double value, const std::string& written) {
    return PassOver() || (Arrive() && Accept(std::visit(StoreNumber{place_, value, written}, place_)));
  }

  bool PassOver() const {
    return depthPassedOver_ > 0 || (!levels_.empty() && std::holds_alternative<PassedOver>(place_));
  }
  bool EnterPassedOver() {
    if (!PassOver()) return false;
    ++depthPassedOver_;
    return true;
  }
  bool LeavePassedOver() {
    if (depthPassedOver_ == 0) return false;
    --depthPassedOver_;
    return true;
  }

  /// Settles the place of a value that has come. Behind a key it is known already.
  bool Arrive() {
    if (levels_.empty()) {
      place_ = Document{};
      return true;
    }
    Level& level = levels_.back();
    auto* const* measures = std::get_if<SegmentMeasures*>(&level.Of);
    if (measures == nullptr) return true;
    path_ = level.Path;
    if (level.Items == (*measures)->size()) return Fail("an array of at most ten numbers is expected");
    place_ = &(**measures)[level.Items];
    path_ += '[' + std::to_string(++level.Items) + ']';
    return true;
  }

  bool Enter(Place place) {
    levels_.push_back({place, path_});
    return true;
  }
  bool EnterObject(Document place) { return Enter(place); }
  bool EnterObject(Record place) {
    path_.clear();
    return Enter(place);
  }
  bool EnterObject(Group place) { return Enter(place); }
  bool EnterObject(double* number) { return Enter(Bits{number}); }
  bool EnterObject(std::span<char> text) { return Enter(Hex{text}); }
  template <class Other>
  bool EnterObject(Other) {
    return Fail(Mistyped(place_, "an object"));
  }

  bool Leave() {
    levels_.pop_back();
    return true;
  }
  bool LeaveObject() {
    const Level& level = levels_.back();
    path_ = level.Path;
    const bool digits = std::holds_alternative<Bits>(level.Of) || std::holds_alternative<Hex>(level.Of);
    if (digits && level.Seen.empty()) return Fail("an empty object");
    if (std::holds_alternative<Document>(level.Of) && around_ &&
        !level.Seen.contains(std::string(RecordKey))) {
      return Fail("\"saw\" is missing");
    }
    return Leave();
  }

  /// Finds the place that the value of the key `name` is for.
  bool Find(const std::string& name) {
    Level& level = levels_.back();
    path_ = level.Path.empty() ? name : level.Path + '.' + name;
    if (!level.Seen.insert(name).second) return Fail("given twice");
    return std::visit([&](auto within) { return FindWithin(within, name); }, level.Of);
  }
  bool FindWithin(Document, const std::string& name) {
    const bool beside = StandsBesideRecord(name);
    if (!beside && name != RecordKey) {
      if (around_) return Fail("no such field beside \"saw\"");
      bare_ = true;
      return FindField(name);
    }
    if (bare_) return Fail("no such field");
    around_ = true;
    place_ = beside ? Place(PassedOver{}) : Place(Record{});
    return true;
  }
  bool FindWithin(Record, const std::string& name) { return FindField(name); }
  bool FindWithin(Group, const std::string& name) { return FindField(name); }
  bool FindWithin(Bits bits, const std::string& name) {
    place_ = BitDigits{bits.Number};
    return name == "bits" || Fail("no such field");
  }
  bool FindWithin(Hex hex, const std::string& name) {
    place_ = HexDigits{hex.Text};
    return name == "hex" || Fail("no such field");
  }
  template <class NoObject>
  bool FindWithin(NoObject, const std::string& /*name*/) {
    return Fail("no such field");
  }
  bool FindField(const std::string& name) {
    const auto field = names_.Fields.find(path_);
    if (name.find('.') != name.npos) return Fail("no such field");  // one name a level
    if (field != names_.Fields.end()) {
      std::visit([this](auto place) { place_ = place; }, field->second);
    } else if (names_.Groups.contains(path_)) {
      place_ = Group{};
    } else {
      return Fail("no such field");
    }
    return true;
  }

  FieldsByName names_;
  std::string problem_;
  std::vector<Level> levels_;
  Place place_;                    // of the value that comes next, or has just come
  std::string path_;               // its name, for messages
  std::size_t depthPassedOver_{};  // levels open within a value that belongs to nothing of ours
  bool bare_ = false;              // the document is the record
  bool around_ = false;            // the document is the object around it
};

}  // namespace

JsonDesign ReadDesignJson(std::string_view text) {
  JsonDesign design;
  DesignHandler handler(design.Saw);
  if (!nlohmann::json::sax_parse(text.begin(), text.end(), &handler)) {
    return {.Failed = handler.Problem(), .Saw = {}};
  }
  return design;
}

}  // namespace tarnwick::cli
