#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/JsonReader.h"
#include "model/modFields.h"

namespace tarnwick::test {

/// The rows of data/variable.jsonl: a design each, and what comes of every step that somebody takes in its
/// variable pitch editor. reference/variable_editor.py has worked them out apart from the program.
inline const std::vector<nlohmann::json>& VariableRows() {
  static const std::vector<nlohmann::json> rows = [] {
    std::ifstream file(TARNWICK_TEST_DATA_DIR "/variable.jsonl");
    std::vector<nlohmann::json> read;
    for (std::string line; std::getline(file, line);) read.push_back(nlohmann::json::parse(line));
    return read;
  }();
  return rows;
}

/// The design of a row. It is written there as "GulletInfo.Depth": 1 and the like.
inline BandSaw DesignOf(const nlohmann::json& row) {
  nlohmann::json nested = nlohmann::json::object();
  for (const auto& [name, value] : row["saw"].items()) {
    std::string path = "/" + name;
    std::replace(path.begin(), path.end(), '.', '/');
    nested[nlohmann::json::json_pointer(path)] = value;
  }
  const cli::JsonDesign read = cli::ReadDesignJson(nested.dump());
  if (read.Failed) throw std::runtime_error(*read.Failed);
  return read.Saw;
}

/// Doubles stand in the rows in C's hexadecimal form; bit for bit.
inline bool IsAsStored(double field, const nlohmann::json& stored) {
  const double number = std::strtod(stored.get<std::string>().c_str(), nullptr);
  return std::bit_cast<std::uint64_t>(field) == std::bit_cast<std::uint64_t>(number);
}
inline bool IsAsStored(std::int16_t field, const nlohmann::json& stored) {
  return field == stored.get<int>();
}
inline bool IsAsStored(const SegmentMeasures& field, const nlohmann::json& stored) {
  for (std::size_t k = 0; k < field.size(); ++k) {
    if (!IsAsStored(field[k], stored[k])) return false;
  }
  return stored.size() == field.size();
}
template <class Other>
bool IsAsStored(const Other&, const nlohmann::json&) {
  throw std::runtime_error("no field of this kind stands in the rows");
}

/// The names of the fields that differ from what a row has stored.
inline std::string DifferingFields(const BandSaw& saw, const nlohmann::json& stored) {
  std::string differing;
  ForEachField(saw, [&](const std::string& name, const auto& field) {
    if (stored.contains(name) && !IsAsStored(field, stored[name])) differing += name + ' ';
  });
  return differing;
}

/// How the rows write a box: hidden, or its text behind the mark of a box that opens or is only read.
inline std::string BoxMark(bool shown, bool opens, const std::string& text) {
  return shown ? (opens ? "+" : "=") + text : "-";
}

}  // namespace tarnwick::test
