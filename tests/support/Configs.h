#pragma once

#include <map>
#include <string>
#include <vector>

#include "store/modCfg.h"
#include "support/MemoryStore.h"

namespace tarnwick::test {

/// The keys of the store in their order, with so many recent files among them.
inline std::vector<std::string> KeysOfTheStore(int recent) {
  std::vector<std::string> keys{"SawLineColor",    "CenterLineColor", "TextColor",     "BackGroundColor",
                                "ZoomWindowColor", "DisplayScale",    "DecimalPlaces", "DisplayPlaces",
                                "MemorySize",      "DxfSaveColor",    "CurrentMyDir",  "CurrentSawDir",
                                "CurrentDxfDir",   "RecentNumFiles"};
  for (int i = 1; i <= recent; ++i) {
    keys.push_back("RecentDriveDir" + std::to_string(i));
    keys.push_back("RecentFile" + std::to_string(i));
  }
  const std::vector<std::string> rest{"Loops",          "LoopType",
                                      "LoopSize",       "Address",
                                      "City",           "Province",
                                      "Country",        "PostalCode",
                                      "Phone",          "Fax",
                                      "Email",          "DefaultPrinterName",
                                      "DefaultPrinter", "TeethDirection",
                                      "PrintPowerReq",  "MainImpMetric",
                                      "QuickClick",     "PrintLineThick",
                                      "GulletFeedIndex"};
  keys.insert(keys.end(), rest.begin(), rest.end());
  return keys;
}

/// All settings that are numbers, switches included, by their keys.
inline std::map<std::string, double> NumbersOf(const Config& c) {
  return {{"SawLineColor", c.Display.SawLineColor.Packed},
          {"CenterLineColor", c.Display.CenterLineColor.Packed},
          {"TextColor", c.Display.TextColor.Packed},
          {"BackGroundColor", c.Display.BackGroundColor.Packed},
          {"ZoomWindowColor", c.Display.ZoomWindowColor.Packed},
          {"DisplayScale", c.Display.DisplayScale},
          {"DecimalPlaces", c.Calculation.DecimalPlaces},
          {"DisplayPlaces", c.Calculation.DisplayPlaces},
          {"MemorySize", c.Calculation.MemorySize},
          {"DxfSaveColor", c.Calculation.DxfSaveColor},
          {"RecentNumFiles", static_cast<double>(c.Recent.size())},
          {"Loops", c.Loops},
          {"LoopType", c.LoopType},
          {"LoopSize", c.LoopSize},
          {"DefaultPrinter", c.DefaultPrinter},
          {"TeethDirection", c.Calculation.TeethDirection},
          {"PrintPowerReq", c.PrintPowerReq},
          {"MainImpMetric", c.MainImpMetric},
          {"QuickClick", c.QuickClick},
          {"PrintLineThick", c.PrintLineThick},
          {"GulletFeedIndex", c.GulletFeedIndex}};
}

/// All settings that are texts, and the name of the customer.
inline std::map<std::string, std::string> TextsOf(const Config& c) {
  std::map<std::string, std::string> texts{{"CurrentMyDir", c.CurrentMyDir},
                                           {"CurrentSawDir", c.CurrentSawDir},
                                           {"CurrentDxfDir", c.CurrentDxfDir},
                                           {"Name", c.Customer.Name},
                                           {"Address", c.Customer.Address},
                                           {"City", c.Customer.City},
                                           {"Province", c.Customer.Province},
                                           {"Country", c.Customer.Country},
                                           {"PostalCode", c.Customer.PostalCode},
                                           {"Phone", c.Customer.Phone},
                                           {"Fax", c.Customer.Fax},
                                           {"Email", c.Customer.Email},
                                           {"DefaultPrinterName", c.DefaultPrinterName}};
  for (std::size_t i = 0; i < c.Recent.size(); ++i) {
    texts["RecentDriveDir" + std::to_string(i + 1)] = c.Recent[i].DriveDir;
    texts["RecentFile" + std::to_string(i + 1)] = c.Recent[i].File;
  }
  return texts;
}

inline const std::map<std::string, double> DefaultNumbers{{"SawLineColor", 0xFFFF00},
                                                          {"CenterLineColor", 0x00FFFF},
                                                          {"TextColor", 0xFFFFFF},
                                                          {"BackGroundColor", 0},
                                                          {"ZoomWindowColor", 0xFF0000},
                                                          {"DisplayScale", 1},
                                                          {"DecimalPlaces", 5},
                                                          {"DisplayPlaces", 3},
                                                          {"MemorySize", 128000},
                                                          {"DxfSaveColor", 5},
                                                          {"RecentNumFiles", 0},
                                                          {"Loops", 1},
                                                          {"LoopType", 1},
                                                          {"LoopSize", 0.0625},
                                                          {"DefaultPrinter", 0},
                                                          {"TeethDirection", 1},
                                                          {"PrintPowerReq", 0},
                                                          {"MainImpMetric", 0},
                                                          {"QuickClick", 1},
                                                          {"PrintLineThick", 1},
                                                          {"GulletFeedIndex", 0.7}};

/// What a store gives that is there and holds none of the keys.
inline const std::map<std::string, double> NumbersOfAnEmptyStore = [] {
  std::map<std::string, double> numbers = DefaultNumbers;
  numbers["ZoomWindowColor"] = 0x00FF00;
  for (const char* zero : {"DxfSaveColor", "TeethDirection", "QuickClick"}) numbers[zero] = 0;
  return numbers;
}();

/// A store of settings with these in it.
inline MemoryStore StoreOf(const std::vector<MemoryStore::Setting>& settings) {
  MemoryStore store;
  MemoryStore::Values& values = store.Settings();
  for (const auto& [name, value] : settings) values[name] = value;
  return store;
}

/// Settings that differ from the defaults in everything that can differ.
inline Config Unusual() {
  Config c;
  c.Display = {Rgb(1, 2, 3), Rgb(4, 5, 6), Rgb(7, 8, 9), Rgb(10, 11, 12), Rgb(13, 14, 15), 0.875};
  c.Calculation.DecimalPlaces = 7;
  c.Calculation.DisplayPlaces = 4;
  c.Calculation.TeethDirection = 2;
  c.Calculation.MemorySize = 64000;
  c.Calculation.DxfSaveColor = 3;
  c.CurrentMyDir = "/saws/";
  c.CurrentSawDir = "/saws/head saws/";
  c.CurrentDxfDir = "/Zeichnungen/Sägen/";
  c.Recent = {{"/saws/", "head.bsw"}, {"/old saws/", "resaw 2.bsw"}};
  c.Customer = {"Oak & Sons", "1 Mill Road", "Oak Town", "B.C.", "Canada", "V1V 1V1", "12", "34", "a=b@c"};
  c.DefaultPrinterName = "Laser";
  c.DefaultPrinter = 2;
  c.PrintPowerReq = true;
  c.MainImpMetric = 1;
  c.QuickClick = false;
  c.PrintLineThick = 12;
  c.GulletFeedIndex = 0.35;
  return c;
}

}  // namespace tarnwick::test
