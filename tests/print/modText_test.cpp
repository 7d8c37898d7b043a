#include "print/modText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/Designs.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::PlainDesign;
using test::TemporaryFolder;

InfoRow Row(const std::string& caption, const std::string& value = "") {
  InfoRow row;
  row.Caption = caption;
  row.Value = value;
  return row;
}

/// What is written below the title of a listing of these rows.
std::string Listed(const SawInfo& rows) {
  const std::string title = "a.bsw,\n\n";
  const std::string text = ListingText(rows, "a.bsw");
  EXPECT_EQ(text.substr(0, title.size()), title);
  return text.substr(title.size());
}

/// A band of two sections, one of them with a segment of three teeth.
BandSaw HeadSaw() {
  BandSaw saw = PlainDesign();
  saw.ContainsInfo.Teeth = True;
  saw.ContainsInfo.General = True;
  saw.Pitch = 2;
  saw.HookAngle = 25;
  saw.GulletInfo.Sharpangle = 55;
  saw.GulletInfo.Area = .9;
  saw.GulletInfo.FaceLength = .4;
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {2.25, 2, 1.75};
  saw.GeneralInfo.VarDepth = {.75, .7, .65};
  saw.DesignInfo.VarArea = {1.1, .9, .7};
  saw.DesignInfo.SegmentLength = 6;
  saw.GeneralInfo.TipType = 1;
  saw.BothEdges = True;
  saw.GeneralInfo.PlateThick = .065;
  return saw;
}

TEST(ListingText, IsTwoColumnsOfADesign) {
  const DisplayFormat inches{Imperial, 3, 5};
  EXPECT_EQ(ListingText(BuildSawInfo(HeadSaw(), inches, 300), "head saw.bsw"),
            "head saw.bsw,\n"
            "\n"
            "Band Saw Teeth:,    \n"
            "Tooth Style:,        Square Back,\n"
            "Length:,             20.000 ft,\n"
            "Band Saw Width:,     5.000 in,\n"
            "Number Of Teeth:,    120,\n"
            "Tooth Spacing:,      2.000 in  (Average),\n"
            "Hook Angle:,         25.000 deg,\n"
            "Clearance Angle:,    10.000 deg,\n"
            "Sharpness Angle:,    55.000 deg,\n"
            "Gullet Radius:,      0.300 in,\n"
            "Gullet Back Angle:,  20.000 deg,\n"
            "Gullet Depth:,       0.700 in,\n"
            "Gullet Area:,        0.900 in²,\n"
            "Face Length:,        0.400 in  (Average),\n"
            "\n"
            "                    \n"
            "Variable Pitch:,    \n"
            "Teeth in Segment:,   3,\n"
            "Length of Segment:,  6.000 in,\n"
            "1st Tooth:,         \n"
            "    Pitch:,          2.250 in,\n"
            "    Depth:,          0.750 in,\n"
            "    Area:,           1.100 in²,\n"
            "2nd Tooth:,         \n"
            "    Pitch:,          2.000 in,\n"
            "    Depth:,          0.700 in,\n"
            "    Area:,           0.900 in²,\n"
            "3rd Tooth:,         \n"
            "    Pitch:,          1.750 in,\n"
            "    Depth:,          0.650 in,\n"
            "    Area:,           0.700 in²,\n"
            "\n"
            "                    \n"
            "General Information:\n"
            "Type of Tip:,        Stellite,\n"
            "Join Bandsaw Ends:,  Right Angle Join,\n"
            "Teeth on Both Edges: Yes,\n"
            "Plate Thickness:,    0.065 in,\n");
}

TEST(ListingText, OfABlankDesignIsItsTitle) {
  EXPECT_EQ(ListingText({}, "untitled.bsw"), "untitled.bsw,\n\n");
}

TEST(ListingText, PadsACaptionToTwentyCharacters) {
  EXPECT_EQ(Listed({Row("Seat:", " Yes")}), "Seat:,               Yes,\n");
}

TEST(ListingText, KeepsTheCommaOfNineteenCharacters) {
  EXPECT_EQ(Listed({Row("1234567890123456789", " 1")}), "1234567890123456789, 1,\n");
}

TEST(ListingText, CutsTheCommaOfTwentyCharacters) {
  EXPECT_EQ(Listed({Row("12345678901234567890", " 1")}), "12345678901234567890 1,\n");
}

TEST(ListingText, CutsALongerCaption) {
  EXPECT_EQ(Listed({Row("123456789012345678901234", " 1")}), "12345678901234567890 1,\n");
}

TEST(ListingText, CountsCharactersNotBytes) {
  EXPECT_EQ(Listed({Row("in²:", " 1")}), "in²:,                1,\n");
  EXPECT_EQ(Listed({Row("²²²²²²²²²²²²²²²²²²²²²", " 1")}), "²²²²²²²²²²²²²²²²²²²² 1,\n");
  EXPECT_EQ(Listed({Row("123456789012345678²", " 1")}), "123456789012345678², 1,\n");
}

TEST(ListingText, GivesAHeadingItsColumnAlone) {
  EXPECT_EQ(Listed({Row("Band Saw Teeth:")}), "Band Saw Teeth:,    \n");
}

TEST(ListingText, SetsARowWithoutCaptionApart) {
  EXPECT_EQ(Listed({Row("")}), "\n                    \n");
  EXPECT_EQ(Listed({Row("", " 1")}), "\n                     1,\n");
}

TEST(ListingText, NeverCutsAValue) {
  const std::string value = " " + std::string(300, 'x');
  EXPECT_EQ(Listed({Row("Seat:", value)}), "Seat:,              " + value + ",\n");
}

TEST(TextFileBytes, AreUtf8WithLineFeedsOnUnix) {
  EXPECT_EQ(TextFileBytes("a,\n\nin²\n", TextForm::Unix), "a,\n\nin²\n");
}

TEST(TextFileBytes, AreCodePageTextWithReturnsOnWindows) {
  EXPECT_EQ(TextFileBytes("a,\n\nin²\n", TextForm::Windows), "a,\r\n\r\nin\xB2\r\n");
  EXPECT_EQ(TextFileBytes("木\n", TextForm::Windows), "?\r\n");
}

TEST(SaveTextFile, WritesTheListingAsThisPlatformReadsIt) {
  const TemporaryFolder folder;
  const SawInfo rows{Row("Gullet Area:", " 0.900 in²")};
  EXPECT_TRUE(SaveTextFile(rows, "a.bsw", folder / "a.txt"));
#ifdef _WIN32
  EXPECT_EQ(BytesOf(folder / "a.txt"), "a.bsw,\r\n\r\nGullet Area:,        0.900 in\xB2,\r\n");
#else
  EXPECT_EQ(BytesOf(folder / "a.txt"), "a.bsw,\n\nGullet Area:,        0.900 in²,\n");
#endif
}

TEST(SaveTextFile, ReplacesALongerFile) {
  const TemporaryFolder folder;
  const fs::path path = folder.File("a.txt", std::string(5000, 'x'));
  fs::create_hard_link(path, folder / "b.txt");
  EXPECT_TRUE(SaveTextFile({}, "a.bsw", path));
  EXPECT_EQ(BytesOf(path), TextFileBytes("a.bsw,\n\n", OwnTextForm));
  EXPECT_EQ(BytesOf(folder / "b.txt"), std::string(5000, 'x')) << "the old file is deleted, not written into";
}

TEST(SaveTextFile, IsFalseWhereNothingCanBeWritten) {
  const TemporaryFolder folder;
  EXPECT_FALSE(SaveTextFile({}, "a.bsw", folder / "missing" / "a.txt"));
  EXPECT_FALSE(SaveTextFile({}, "a.bsw", folder.Path()));
  EXPECT_TRUE(fs::is_directory(folder.Path()));
}

#ifndef _WIN32  // where there is a disk that is always full
TEST(SaveTextFile, IsFalseOnAFullDisk) { EXPECT_FALSE(SaveTextFile({}, "a.bsw", "/dev/full")); }
#endif

}  // namespace
}  // namespace tarnwick
