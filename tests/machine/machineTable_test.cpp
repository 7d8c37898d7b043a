// Holds lengths and picture of a mill against a table that was worked out apart from the program:
// data/machine.jsonl, made by reference/machine_reference.py. Every number must agree to the last digit.

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "machine/modBandLength.h"
#include "machine/modMachineView.h"
#include "support/CollectedMessages.h"
#include "support/Machines.h"

namespace tarnwick {
namespace {

using nlohmann::json;
using Numbers = std::vector<double>;

std::vector<json> Table() {
  std::ifstream file(TARNWICK_TEST_DATA_DIR "/machine.jsonl");
  std::vector<json> rows;
  for (std::string line; std::getline(file, line);) rows.push_back(json::parse(line));
  return rows;
}

/// A mill of the table, worked out.
struct Mill {
  explicit Mill(const json& row)
      : Saw(test::Machine(row["given"]["WheelDia"], row["given"]["CenterToCenter"],
                          row["given"]["PlateThick"])) {
    Settings.Calculation.DecimalPlaces = row["places"];
    Settings.Calculation.DisplayPlaces = row["shown"];
    Settings.ImpMetric = row["metric"];
    BuildMachineLists(Saw, View, Settings, Say);
  }

  BandSaw Saw;
  MachineSettings Settings;
  MachineView View;
  test::CollectedMessages Say;
};

struct NumbersOf {
  Numbers operator()(const LineEntity& e) const { return {e.Corner1X, e.Corner1Y, e.Corner4X, e.Corner4Y}; }
  Numbers operator()(const ArcEntity& e) const {
    return {e.CenterX, e.CenterY, e.Radius, e.StartAngle, e.EndAngle};
  }
  Numbers operator()(const CircleEntity& e) const { return {e.CenterY, e.Radius}; }
  Numbers operator()(const TextEntity& e) const {
    return {e.Corner1X, e.Corner1Y, e.TextHeight, e.TextAngle};
  }
  Numbers operator()(const SolidEntity& e) const {
    return {e.Corner1X, e.Corner1Y, e.Corner2X, e.Corner2Y, e.Corner3X, e.Corner3Y, e.Corner4X, e.Corner4Y};
  }
};

/// The numbers of `count` pieces from `first` on.
std::vector<Numbers> Pieces(const EntityList& list, std::size_t first, std::size_t count) {
  std::vector<Numbers> pieces;
  for (std::size_t i = first; i < first + count; ++i) {
    pieces.push_back(std::visit(NumbersOf{}, list.Entities.at(i)));
  }
  return pieces;
}

TEST(MachineTable, AgreesOnTheLimits) {
  const std::vector<json> rows = Table();
  ASSERT_GE(rows.size(), 200U);
  for (const json& row : rows) {
    const BandSaw::Machine machine = Mill(row).Saw.MachineInfo;
    EXPECT_EQ((Numbers{machine.WheelDia, machine.CenterToCenter}), row["machine"].get<Numbers>()) << row;
  }
}

TEST(MachineTable, AgreesOnTheLengths) {
  for (const json& row : Table()) {
    const Mill mill(row);
    const auto lengths = CalcLengths(mill.Saw, mill.Settings.Calculation.DecimalPlaces);
    ASSERT_EQ(lengths.has_value(), !row["lengths"].is_null()) << row;
    if (!lengths) continue;
    Numbers got;
    for (const std::optional<double>& length : *lengths)
      if (length) got.push_back(*length);
    EXPECT_EQ(got, row["lengths"].get<Numbers>()) << row;
  }
}

TEST(MachineTable, AgreesOnThePicture) {
  for (const json& row : Table()) {
    const Mill mill(row);
    const auto& [wheels, dimension, wheelDia] = mill.View;
    ASSERT_EQ(wheels.Entities.empty(), row["lengths"].is_null()) << row;
    if (wheels.Entities.empty()) continue;
    const std::size_t one = 4 + 4 * row["spokes"].get<std::size_t>();
    ASSERT_EQ(wheels.Count(), 2 * one + 6) << row;
    std::vector<Numbers> circles = Pieces(wheels, 0, 4);
    for (const Numbers& circle : Pieces(wheels, one, 4)) circles.push_back(circle);
    EXPECT_EQ(circles, row["wheels"].get<std::vector<Numbers>>()) << row;
    EXPECT_EQ(Pieces(wheels, 2 * one, 6), row["band"].get<std::vector<Numbers>>()) << row;
    EXPECT_EQ(Pieces(dimension, 0, 7), row["dimension"].get<std::vector<Numbers>>()) << row;
    std::string text = row["text"];
    text.resize(20, ' ');
    EXPECT_EQ(std::get<TextEntity>(dimension.Entities.at(4)).Text.View(), text) << row;
    EXPECT_EQ(wheelDia, mill.Saw.MachineInfo.WheelDia);
  }
}

}  // namespace
}  // namespace tarnwick
