#include <gtest/gtest.h>

#include <bit>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "entry/modCalculate.h"
#include "entry/modFormat.h"
#include "entry/modFraction.h"
#include "entry/modParameter.h"
#include "entry/modPresetList.h"
#include "model/modDecim.h"
#include "platform/CollectedMessages.h"

// Typed and shown text against data/values.jsonl, which reference/value_reference.py has worked out apart
// from the program. Doubles agree bit for bit, texts byte for byte.
namespace tarnwick {
namespace {

using nlohmann::json;

constexpr std::size_t MostReported = 20;

struct Row {
  std::size_t Number = 0;  // line of the table
  json Asked;
};

const std::vector<Row>& Table() {
  static const std::vector<Row> rows = [] {
    std::ifstream file(std::filesystem::path(TARNWICK_TEST_DATA_DIR) / "values.jsonl");
    std::vector<Row> read;
    for (std::string line; std::getline(file, line);) read.push_back({read.size() + 1, json::parse(line)});
    return read;
  }();
  return rows;
}

/// What the program answers to a row, in the words of the row: an object of the keys that it must agree with.
using Answer = std::function<json(const json& asked)>;

void HoldRows(const std::string& kind, std::size_t atLeast, const Answer& answer) {
  std::size_t rows = 0, differing = 0;
  for (const Row& row : Table()) {
    if (row.Asked.at("kind") != kind) continue;
    ++rows;
    const json got = answer(row.Asked);
    json wanted, asked = row.Asked;
    for (const auto& [key, value] : got.items()) {
      wanted[key] = row.Asked.at(key);
      asked.erase(key);
    }
    if (got == wanted) continue;
    ADD_FAILURE() << "row " << row.Number << ": " << asked << "\n  wanted " << wanted << "\n  got    " << got;
    ASSERT_LT(++differing, MostReported) << "and perhaps more";
  }
  EXPECT_GE(rows, atLeast) << "the table has too few rows of this kind";
}

double NumberOf(const json& hexadecimal) {
  return std::strtod(hexadecimal.get<std::string>().c_str(), nullptr);
}

/// The number as the table has it if it is that number to the last bit, else as it is.
json SameBits(double got, const json& wanted) {
  if (wanted.is_string()) {
    const double number = NumberOf(wanted);
    const bool noNumbers = std::isnan(got) && std::isnan(number);  // one NaN is as good as another
    if (noNumbers || std::bit_cast<std::uint64_t>(got) == std::bit_cast<std::uint64_t>(number)) return wanted;
  }
  std::ostringstream text;
  text << std::hexfloat << got << " (" << std::defaultfloat << got << ")";
  return text.str();
}

DisplayFormat FormatOf(const json& asked) {
  DisplayFormat format;
  format.ImpMetric = asked.value("ImpMetric", format.ImpMetric);
  format.DisplayPlaces = asked.value("DisplayPlaces", format.DisplayPlaces);
  format.DecimalPlaces = asked.value("DecimalPlaces", format.DecimalPlaces);
  return format;
}

TEST(ValuesTable, HoldsEquations) {
  HoldRows("eval", 3000, [](const json& asked) -> json {
    constexpr double Untouched = -77.25;
    std::string text = asked.at("text");
    double value = Untouched;
    CollectedMessages messages;
    const bool accepted = EvaluateEquation(text, value, asked.at("DecimalPlaces"), messages);
    const std::vector<std::string> said =
        accepted ? std::vector<std::string>{} : std::vector{std::string(NotAnEquation)};
    EXPECT_EQ(messages.Texts(), said) << asked;
    if (!accepted) {
      EXPECT_EQ(value, Untouched) << asked;
    }
    return {{"value", accepted ? SameBits(value, asked.at("value")) : json()}, {"rewritten", text}};
  });
}

TEST(ValuesTable, HoldsCommas) {
  HoldRows("comma", 30, [](const json& asked) -> json {
    return {{"result", CommaToPoint(asked.at("text").get<std::string>())}};
  });
}

TEST(ValuesTable, HoldsShownValues) {
  HoldRows("format", 1500, [](const json& asked) -> json {
    std::string text = asked.at("text");
    const std::string shown = FormatValue(text, asked.at("unit"), FormatOf(asked));
    return {{"shown", shown}, {"after", text}};
  });
}

TEST(ValuesTable, HoldsFractions) {
  HoldRows("fraction", 500, [](const json& asked) -> json {
    return {{"shown", DecimalToFraction(asked.at("text").get<std::string>())}};
  });
}

TEST(ValuesTable, HoldsPresetLists) {
  HoldRows("list", 100, [](const json& asked) -> json {
    return {{"entries", ShowListValues(asked.at("number"), FormatOf(asked))}};
  });
}

StoreRule RuleOf(const std::string& name) {
  if (name == "MetresToFeet") return StoreRule::MetresToFeet;
  if (name == "CentimetresToInches") return StoreRule::CentimetresToInches;
  if (name == "MillimetresToInches") return StoreRule::MillimetresToInches;
  EXPECT_EQ(name, "AsTyped");
  return StoreRule::AsTyped;
}

TEST(ValuesTable, HoldsStoredNumbers) {
  HoldRows("store", 1000, [](const json& asked) -> json {
    const double stored =
        StoredNumber(RuleOf(asked.at("rule")), asked.at("text").get<std::string>(), FormatOf(asked));
    return {{"value", SameBits(stored, asked.at("value"))}};
  });
}

TEST(ValuesTable, HoldsDecimalText) {
  HoldRows("decimal", 400, [](const json& asked) -> json {
    const double value = NumberOf(asked.at("value"));
    json texts{{"plain", PlainText(value)}};
    if (asked.contains("text")) texts["text"] = DecimalText(value);
    return texts;
  });
}

}  // namespace
}  // namespace tarnwick
