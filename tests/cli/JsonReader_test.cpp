#include "cli/JsonReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "cli/JsonWriter.h"
#include "store/modImage.h"

namespace tarnwick::cli {
namespace {

std::string ImageOf(const BandSaw& saw) {
  std::string image;
  AppendRecord(image, saw);
  return image;
}

BandSaw RecordOf(const std::string& image) {
  ByteReader reader(image);
  return TakeRecord(reader);
}

std::string JsonOf(const BandSaw& saw) {
  std::string json;
  AppendRecordJson(json, saw);
  return json;
}

/// The record of a text that is right.
BandSaw Read(std::string_view text) {
  JsonDesign design = ReadDesignJson(text);
  EXPECT_EQ(design.Failed, std::nullopt) << text;
  return design.Saw;
}

TEST(DesignJson, GivesTheFieldsNamed) {
  const BandSaw saw = Read(R"( {"Length": 37.5, "NumTeeth": 257, "SeatInfo": {"State": -1, "Width": 1e-1},
                                "GeneralInfo": {"Quantity": -70000, "VarPitch": [1, 2.5], "WoodType": "Oak"},
                                "GulletInfo": {"SpareByte": 255}} )");
  EXPECT_EQ(saw.Length, 37.5);
  EXPECT_EQ(saw.NumTeeth, 257);
  EXPECT_EQ(saw.SeatInfo.State, True);
  EXPECT_EQ(saw.SeatInfo.Width, 0.1);
  EXPECT_EQ(saw.GeneralInfo.Quantity, -70000);
  EXPECT_EQ(saw.GeneralInfo.VarPitch, (SegmentMeasures{1, 2.5}));
  EXPECT_EQ(saw.GeneralInfo.WoodType.View(), "Oak" + std::string(27, ' '));
  EXPECT_EQ(saw.GulletInfo.SpareByte, 255);
}

TEST(DesignJson, IsZeroWhereNothingIsGiven) { EXPECT_EQ(ImageOf(Read("{}")), ImageOf({})); }

TEST(DesignJson, MayStandUnderSaw) {
  const BandSaw saw = Read(R"({"file":"a.bsw","saw":{"Width":7},"header":{"Count":3,"x":[{}]},"extents":{},
                               "messages":["one"],"entities":[{"Kind":"LINE","Width":8}]})");
  EXPECT_EQ(saw.Width, 7);
}

TEST(DesignJson, ReadsNumbersByTheirBits) {
  const BandSaw saw = Read(R"({"Width":{"bits":"7ff8000000000001"},"Length":{"bits":"FFF0000000000000"},
                               "GeneralInfo":{"VarPitch":[{"bits":"3ff0000000000000"},2]}})");
  EXPECT_TRUE(std::isnan(saw.Width));
  EXPECT_EQ(saw.Length, -std::numeric_limits<double>::infinity());
  EXPECT_EQ(saw.GeneralInfo.VarPitch, (SegmentMeasures{1, 2}));
}

TEST(DesignJson, ReadsTextsInEveryForm) {
  const BandSaw saw = Read(R"({"GeneralInfo":{"SpareText1":"","SpareText2":" ","SpareText3":"\u00e9\u20ac"},
                               "DesignInfo":{"Comment1":"0123456789012345678901234567890123456789"},
                               "CustomerInfo":{"CustName":{"hex":")" +
                           std::string(98, '4') + R"(Fa"}}})");
  EXPECT_EQ(saw.GeneralInfo.SpareText1.View(), std::string(15, '\0'));
  EXPECT_EQ(saw.GeneralInfo.SpareText2.View(), std::string(15, ' '));
  EXPECT_EQ(saw.GeneralInfo.SpareText3.View(), "\xE9\x80" + std::string(23, ' '));
  EXPECT_EQ(saw.DesignInfo.Comment1.View(), "0123456789012345678901234567890123456789");
  EXPECT_EQ(saw.CustomerInfo.CustName.View(), std::string(49, 'D') + "\xFA");
}

TEST(DesignJson, TakesAWholeNumberHoweverWritten) {
  EXPECT_EQ(Read(R"({"NumTeeth":12.0})").NumTeeth, 12);
  EXPECT_EQ(Read(R"({"NumTeeth":1.2e1})").NumTeeth, 12);
  EXPECT_EQ(Read(R"({"NumTeeth":-32768})").NumTeeth, -32768);
}

TEST(DesignJson, KeepsEveryBitOfAnyRecord) {
  std::mt19937 random(4);
  for (int round = 0; round < 200; ++round) {
    std::string image(RecordImageSize, '\0');
    for (char& byte : image) byte = static_cast<char>(random());
    ASSERT_EQ(ImageOf(Read(JsonOf(RecordOf(image)))), image);
  }
}

TEST(DesignJson, KeepsEveryBitOfTextsAndZeros) {
  for (const char filler : {'\0', ' ', 'x', '\xFF', '\x80'}) {  // the last is -0 after seven others
    const std::string image(RecordImageSize, filler);
    EXPECT_EQ(ImageOf(Read(JsonOf(RecordOf(image)))), image);
  }
  BandSaw saw;
  saw.Width = -0.0;
  EXPECT_TRUE(std::signbit(Read(JsonOf(saw)).Width));
}

struct WrongRow {
  const char* Name;
  std::string Text;
  const char* Problem;
  friend void PrintTo(const WrongRow& row, std::ostream* out) { *out << row.Name; }
};

class WrongDesignJson : public testing::TestWithParam<WrongRow> {};

TEST_P(WrongDesignJson, IsRefusedAndNamesWhatIsWrong) {
  const JsonDesign design = ReadDesignJson(GetParam().Text);
  EXPECT_EQ(design.Failed, GetParam().Problem);
  EXPECT_EQ(ImageOf(design.Saw), ImageOf({}));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, WrongDesignJson,
    testing::Values(
        WrongRow{"UnknownField", R"({"Length":1,"Lenght":1})", "Lenght: no such field"},
        WrongRow{"UnknownNestedField", R"({"SeatInfo":{"Depth":1}})", "SeatInfo.Depth: no such field"},
        WrongRow{"DottedName", R"({"SeatInfo.Width":1})", "SeatInfo.Width: no such field"},
        WrongRow{"NestedTooDeep", R"({"SeatInfo":{"SeatInfo":{"Width":1}}})",
                 "SeatInfo.SeatInfo: no such field"},
        WrongRow{"FieldGivenTwice", R"({"Width":1,"Width":1})", "Width: given twice"},
        WrongRow{"GroupGivenTwice", R"({"SeatInfo":{},"SeatInfo":{}})", "SeatInfo: given twice"},
        WrongRow{"FieldBesideSaw", R"({"saw":{},"Width":1})", "Width: no such field beside \"saw\""},
        WrongRow{"SawBesideField", R"({"Width":1,"saw":{}})", "saw: no such field"},
        WrongRow{"SawWithinSaw", R"({"saw":{"saw":{}}})", "saw: no such field"},
        WrongRow{"SawMissing", R"({"file":"a"})", "\"saw\" is missing"},
        WrongRow{"SawNoObject", R"({"saw":3})", "saw: an object is expected, not a number"},
        WrongRow{"NoObject", "[]", "an object is expected, not an array"},
        WrongRow{"NumberOnly", "3", "an object is expected, not a number"},
        WrongRow{"Null", "null", "an object is expected, not null"},
        WrongRow{"TextForNumber", R"({"Width":"7"})", "Width: a number is expected, not a text"},
        WrongRow{"NullForNumber", R"({"Width":null})", "Width: a number is expected, not null"},
        WrongRow{"ArrayForNumber", R"({"Width":[7]})", "Width: a number is expected, not an array"},
        WrongRow{"YesForFlag", R"({"BothEdges":true})",
                 "BothEdges: a whole number is expected, not true or false"},
        WrongRow{"NumberForText", R"({"GeneralInfo":{"WoodType":7}})",
                 "GeneralInfo.WoodType: a text is expected, not a number"},
        WrongRow{"NumberForGroup", R"({"SeatInfo":7})", "SeatInfo: an object is expected, not a number"},
        WrongRow{"NumberForArray", R"({"GeneralInfo":{"VarPitch":7}})",
                 "GeneralInfo.VarPitch: an array of numbers is expected, not a number"},
        WrongRow{"TextInArray", R"({"GeneralInfo":{"VarPitch":[1,"2"]}})",
                 "GeneralInfo.VarPitch[2]: a number is expected, not a text"},
        WrongRow{"ArrayInArray", R"({"GeneralInfo":{"VarPitch":[[1]]}})",
                 "GeneralInfo.VarPitch[1]: a number is expected, not an array"},
        WrongRow{"ElevenInArray", R"({"GeneralInfo":{"VarPitch":[1,2,3,4,5,6,7,8,9,10,11]}})",
                 "GeneralInfo.VarPitch: an array of at most ten numbers is expected"},
        WrongRow{"TooLargeForI16", R"({"NumTeeth":32768})",
                 "NumTeeth: 32768 is out of range (-32768 to 32767)"},
        WrongRow{"TooSmallForI16", R"({"NumTeeth":-32769})",
                 "NumTeeth: -32769 is out of range (-32768 to 32767)"},
        WrongRow{"TooLargeForI32", R"({"GeneralInfo":{"Quantity":2147483648}})",
                 "GeneralInfo.Quantity: 2147483648 is out of range (-2147483648 to 2147483647)"},
        WrongRow{"NegativeByte", R"({"GulletInfo":{"SpareByte":-1}})",
                 "GulletInfo.SpareByte: -1 is out of range (0 to 255)"},
        WrongRow{"VeryLargeWhole", R"({"NumTeeth":18446744073709551615})",
                 "NumTeeth: 18446744073709551615 is out of range (-32768 to 32767)"},
        WrongRow{"NotWhole", R"({"NumTeeth":1.5})", "NumTeeth: 1.5 is not a whole number"},
        WrongRow{"TooLargeForDouble", R"({"SeatInfo":{"Width":1e999}})",
                 "SeatInfo.Width: 1e999 is out of range"},
        WrongRow{"TextTooLong", R"({"GeneralInfo":{"SpareText1":"0123456789abcdef"}})",
                 "GeneralInfo.SpareText1: the text is too long (16 characters, room for 15)"},
        WrongRow{"TextOutsideCodePage", R"({"GeneralInfo":{"SpareText1":"\u6728"}})",
                 "GeneralInfo.SpareText1: the text holds a character that is not in Windows-1252"},
        WrongRow{"HexTooShort", R"({"GeneralInfo":{"SpareText1":{"hex":"00"}}})",
                 "GeneralInfo.SpareText1.hex: the text's bytes take 30 hex digits, not 2"},
        WrongRow{"HexNoHex", R"({"GeneralInfo":{"SpareText1":{"hex":"00000000000000000000000000000g"}}})",
                 "GeneralInfo.SpareText1.hex: not a hex digit in the text's bytes"},
        WrongRow{"HexNoText", R"({"GeneralInfo":{"SpareText1":{"hex":1}}})",
                 "GeneralInfo.SpareText1.hex: a text of hex digits is expected, not a number"},
        WrongRow{"BitsTooShort", R"({"Width":{"bits":"7ff8"}})",
                 "Width.bits: the bits of a number are 16 hex digits"},
        WrongRow{"BitsNoHex", R"({"Width":{"bits":"0x3ff00000000000"}})",
                 "Width.bits: the bits of a number are 16 hex digits"},
        WrongRow{"BitsMissing", R"({"Width":{}})", "Width: an empty object"},
        WrongRow{"BitsOfText", R"({"GeneralInfo":{"SpareText1":{"bits":"0"}}})",
                 "GeneralInfo.SpareText1.bits: no such field"},
        WrongRow{"BitsOfWhole", R"({"NumTeeth":{"bits":"0000000000000000"}})",
                 "NumTeeth: a whole number is expected, not an object"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(DesignJson, SaysWhereTextIsNoJson) {
  for (const char* text :
       {"", "{", "{\"Width\":}", "{\"Width\":1}x", "{'Width':1}", "\xFF", "{\"Width\":NaN}"}) {
    const JsonDesign design = ReadDesignJson(text);
    ASSERT_TRUE(design.Failed) << text;
    EXPECT_EQ(design.Failed->rfind("not JSON: parse error at line 1, column ", 0), 0u) << *design.Failed;
    EXPECT_LE(design.Failed->size(), 300u);
  }
}

TEST(DesignJson, IsNotTooDeepAtAnyDepth) {
  const std::string deep(1000000, '[');
  EXPECT_EQ(ReadDesignJson(deep).Failed, "an object is expected, not an array");
  EXPECT_TRUE(ReadDesignJson("{\"entities\":" + deep).Failed);
  EXPECT_EQ(ReadDesignJson("{\"saw\":{},\"entities\":" + deep + std::string(deep.size(), ']') + "}").Failed,
            std::nullopt);
}

}  // namespace
}  // namespace tarnwick::cli
