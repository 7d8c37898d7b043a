// Holds the power figures against a table that was worked out apart from the program: data/power.jsonl, made
// by reference/power_reference.py. Every number must agree to the last digit.

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "power/modPowerChain.h"
#include "power/modPowerEstimate.h"

namespace tarnwick {
namespace {

using nlohmann::json;

const std::vector<json>& Table() {
  static const std::vector<json> rows = [] {
    std::ifstream file(TARNWICK_TEST_DATA_DIR "/power.jsonl");
    std::vector<json> read;
    for (std::string line; std::getline(file, line);) read.push_back(json::parse(line));
    return read;
  }();
  return rows;
}

std::vector<json> RowsOf(const std::string& op) {
  std::vector<json> found;
  for (const json& row : Table()) {
    if (row["op"] == op) found.push_back(row);
  }
  return found;
}

PowerSettings SettingsOf(const json& row) {
  return {.DecimalPlaces = row["places"].get<std::int16_t>(),
          .GulletFeedIndex = row.value("index", DefaultGulletFeedIndex)};
}

// ---- single figures

struct Figure {
  const char* Name;
  std::function<double(const json& in, const PowerSettings&)> Work;
  friend void PrintTo(const Figure& figure, std::ostream* out) { *out << figure.Name; }
};
class PowerTable : public testing::TestWithParam<Figure> {};

double Num(const json& value) { return value.get<double>(); }
std::int32_t Whole(const json& value) { return value.get<std::int32_t>(); }

TEST_P(PowerTable, AgreesToTheLastDigit) {
  const std::vector<json> rows = RowsOf(GetParam().Name);
  ASSERT_GE(rows.size(), 200U);
  for (const json& row : rows) {
    EXPECT_EQ(GetParam().Work(row["in"], SettingsOf(row)), Num(row["out"])) << row;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Figures, PowerTable,
    testing::Values(Figure{"CalcSawVelocity",
                           [](const json& in, const PowerSettings&) {
                             return CalcSawVelocity(Num(in[0]), Whole(in[1]));
                           }},
                    Figure{"CalcHorsePower",
                           [](const json& in, const PowerSettings& s) {
                             return CalcHorsePower(in[0].get<std::string>(), Num(in[1]), Num(in[2]),
                                                   Num(in[3]), s.DecimalPlaces);
                           }},
                    Figure{"CalcBite",
                           [](const json& in, const PowerSettings& s) {
                             return CalcBite(Num(in[0]), Num(in[1]), Whole(in[2]), s.DecimalPlaces);
                           }},
                    Figure{"CalcCapacityChecked",
                           [](const json& in, const PowerSettings& s) {
                             return CalcCapacityChecked(Num(in[0]), Num(in[1]), s.DecimalPlaces);
                           }},
                    Figure{"CalcCapacity",
                           [](const json& in, const PowerSettings& s) {
                             return CalcCapacity(Num(in[0]), Num(in[1]), s.DecimalPlaces);
                           }},
                    Figure{"CalcMaxFeedRate",
                           [](const json& in, const PowerSettings& s) {
                             return CalcMaxFeedRate(Num(in[0]), Num(in[1]), Num(in[2]), Whole(in[3]), s);
                           }},
                    Figure{"CalcPitch",
                           [](const json& in, const PowerSettings& s) {
                             return CalcPitch(Num(in[0]), in[1].get<std::int16_t>(), s.DecimalPlaces);
                           }},
                    Figure{"CalcSideClear",
                           [](const json& in, const PowerSettings& s) {
                             return CalcSideClear(Num(in[0]), Num(in[1]), s.DecimalPlaces);
                           }},
                    Figure{"CalcPitchForBite",
                           [](const json& in, const PowerSettings& s) {
                             return CalcPitchForBite(Num(in[0]), Whole(in[1]), Num(in[2]), s.DecimalPlaces);
                           }},
                    Figure{"CalcShaftSpeedForBite",
                           [](const json& in, const PowerSettings&) {
                             return CalcShaftSpeedForBite(Num(in[0]), Num(in[1]), Num(in[2]), Num(in[3]));
                           }}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- whole designs

BandSaw SawOf(const json& fields) {
  BandSaw saw;
  saw.Width = fields["Width"];
  saw.Length = fields["Length"];
  saw.Pitch = fields["Pitch"];
  saw.NumTeeth = fields["NumTeeth"];
  saw.MachineInfo.WheelDia = fields["MachineInfo.WheelDia"];
  saw.GulletInfo.Area = fields["GulletInfo.Area"];
  saw.GulletInfo.Bite = fields["GulletInfo.Bite"];
  BandSaw::General& general = saw.GeneralInfo;
  general.PlateThick = fields["GeneralInfo.PlateThick"];
  general.Kerf = fields["GeneralInfo.Kerf"];
  general.SideClear = fields["GeneralInfo.SideClear"];
  general.ShaftSpeed = fields["GeneralInfo.ShaftSpeed"];
  general.DepthOfCut = fields["GeneralInfo.DepthOfCut"];
  general.FeedRate = fields["GeneralInfo.FeedRate"];
  general.WoodType.Assign(fields["GeneralInfo.WoodType"].get<std::string>());
  general.HorsePower = fields["GeneralInfo.HorsePower"];
  return saw;
}

TEST(PowerTableOfDesigns, AgreesOnTheChainOfAllFigures) {
  const std::vector<json> rows = RowsOf("Chain");
  ASSERT_GE(rows.size(), 400U);
  for (const json& row : rows) {
    BandSaw saw = SawOf(row["saw"]);
    UpdatePower(saw, SettingsOf(row));
    const json got = {{"DesignInfo.SawVelocity", saw.DesignInfo.SawVelocity},
                      {"GeneralInfo.SideClear", saw.GeneralInfo.SideClear},
                      {"GulletInfo.Bite", saw.GulletInfo.Bite},
                      {"GulletInfo.Capacity", saw.GulletInfo.Capacity},
                      {"GeneralInfo.HorsePower", saw.GeneralInfo.HorsePower},
                      {"DesignInfo.MaxFeedRate", saw.DesignInfo.MaxFeedRate}};
    EXPECT_EQ(got, row["out"]) << row["saw"];
  }
}

json MembersOf(const PowerEstimate& row) {
  return {row.Marker,     row.WheelDia,    row.CenterToCenter, row.Width,        row.Length,
          row.Pitch,      row.NumTeeth,    row.PlateThick,     row.Kerf,         row.SideClear,
          row.ShaftSpeed, row.SawVelocity, row.DepthOfCut,     row.FeedRate,     row.WoodType.Trimmed(),
          row.HorsePower, row.Bite,        row.GulletArea,     row.AreaBelowTip, row.Capacity,
          row.FeedIndex};
}

TEST(PowerTableOfDesigns, AgreesOnTheEstimates) {
  const std::vector<json> rows = RowsOf("Estimates");
  ASSERT_GE(rows.size(), 200U);
  for (const json& row : rows) {
    const auto built = BuildPowerEstimates(SawOf(row["saw"]), row["percent"], SettingsOf(row));
    json got;
    if (built) {
      for (const PowerEstimate& estimate : *built) got.push_back(MembersOf(estimate));
    }
    EXPECT_EQ(got, row["out"]) << row["saw"] << row["percent"];
  }
}

}  // namespace
}  // namespace tarnwick
