#pragma once

#include <cstdint>

#include "store/modCfg.h"

namespace tarnwick {

// What may stand in a setting, and what comes in place of anything else.

struct LineColour {
  Colour Fallback;  // of black, and of what is no colour
};

template <class Number>
struct Within {
  Number Least, Most;
  Number BelowIt, AboveIt;  // fallbacks
};

template <class Number>
constexpr Within<Number> In(const SettingRange& range, Number fallback) {
  return {static_cast<Number>(range.Least), static_cast<Number>(range.Most), fallback, fallback};
}

struct FeedIndex {};  // see CheckedFeedIndex

template <class Value>
struct Always {
  Value Only;
};

struct Anything {};

/// A whole number that its type in the store holds as a byte.
struct Byte {
  std::int32_t Most;
  std::int16_t Fallback;
};

/// Calls visit(key, value, rule) for every setting of the section, but the recent files, which stand behind
/// the folders: visitRecent(). The order is that of reading and writing.
template <class ConfigOrConst, class Visit, class VisitRecent>
void ForEachSetting(ConfigOrConst& c, Visit&& visit, VisitRecent&& visitRecent) {
  visit("SawLineColor", c.Display.SawLineColor, LineColour{Rgb(0, 255, 255)});
  visit("CenterLineColor", c.Display.CenterLineColor, LineColour{Rgb(255, 255, 0)});
  visit("TextColor", c.Display.TextColor, LineColour{White});
  visit("BackGroundColor", c.Display.BackGroundColor, LineColour{Black});
  visit("ZoomWindowColor", c.Display.ZoomWindowColor,
        LineColour{Rgb(0, 255, 0)});  // green; the default is blue
  visit("DisplayScale", c.Display.DisplayScale,
        Within<double>{LeastDisplayScale, MostDisplayScale, TrueDisplayScale, TrueDisplayScale});
  visit("DecimalPlaces", c.Calculation.DecimalPlaces, In<std::int16_t>(DecimalPlacesRange, 5));
  visit("DisplayPlaces", c.Calculation.DisplayPlaces, In<std::int16_t>(DisplayPlacesRange, 3));
  visit("MemorySize", c.Calculation.MemorySize, In<std::int32_t>(MemorySizeRange, 128000));
  visit("DxfSaveColor", c.Calculation.DxfSaveColor, Byte{DxfSaveColorRange.Most, 5});
  visit("CurrentMyDir", c.CurrentMyDir, Anything{});
  visit("CurrentSawDir", c.CurrentSawDir, Anything{});
  visit("CurrentDxfDir", c.CurrentDxfDir, Anything{});
  visitRecent(c.Recent);
  visit("Loops", c.Loops, Always<bool>{true});
  visit("LoopType", c.LoopType, Always<std::int16_t>{1});
  visit("LoopSize", c.LoopSize, Always<double>{0.0625});
  visit("Address", c.Customer.Address, Anything{});
  visit("City", c.Customer.City, Anything{});
  visit("Province", c.Customer.Province, Anything{});
  visit("Country", c.Customer.Country, Anything{});
  visit("PostalCode", c.Customer.PostalCode, Anything{});
  visit("Phone", c.Customer.Phone, Anything{});
  visit("Fax", c.Customer.Fax, Anything{});
  visit("Email", c.Customer.Email, Anything{});
  visit("DefaultPrinterName", c.DefaultPrinterName, Anything{});
  visit("DefaultPrinter", c.DefaultPrinter, Anything{});
  visit("TeethDirection", c.Calculation.TeethDirection, Anything{});
  visit("PrintPowerReq", c.PrintPowerReq, Anything{});
  visit("MainImpMetric", c.MainImpMetric, Anything{});
  visit("QuickClick", c.QuickClick, Anything{});
  visit("PrintLineThick", c.PrintLineThick,
        Within<std::int16_t>{LeastLineThick, MostLineThick, LeastLineThick, MostLineThick});
  visit("GulletFeedIndex", c.GulletFeedIndex, FeedIndex{});
}

}  // namespace tarnwick
