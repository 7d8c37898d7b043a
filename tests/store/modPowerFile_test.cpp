#include "store/modPowerFile.h"

#include <gtest/gtest.h>

#include "platform/CollectedMessages.h"
#include "store/modFiles.h"
#include "store/modImage.h"
#include "store/modSave.h"
#include "support/FolderAsFile.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::BytesOf;
using test::FolderAsFile;
using test::TemporaryFolder;
using Texts = std::vector<std::string>;

constexpr const char* NotValid = "Not a valid Power File     ";
constexpr const char* CutShort = "File is incomplete. What could be read is shown.";
constexpr const char* Newer =
    "File was saved in a newer version of this program!\n"
    "Some information may not be available to the version\n"
    "you are currently using!\n"
    "Contact www.tarnwick.example for an update.";

PowerSaws SomeSaws() {
  PowerSaws saws;
  saws[0].NumTeeth = 257;
  saws[0].GeneralInfo.WoodType.Assign("Oak (White)");
  saws[0].GeneralInfo.SavedAs = 7;
  saws[1].Length = 37.5;
  saws[1].ImpMetric = 1;
  return saws;
}

std::string ImagesOf(const PowerSaws& saws) {
  std::string images;
  for (const BandSaw& saw : saws) AppendRecord(images, saw);
  return images;
}

/// A file of `SomeSaws` with another version text.
std::string FileOfVersion(std::string version) {
  version.resize(25, ' ');
  return "Bandsaw Power File   Version: " + version + ImagesOf(SomeSaws());
}

TEST(SavePowerFile, WritesHeaderAndBothImages) {
  const TemporaryFolder folder;
  ASSERT_FALSE(SavePowerFile(SomeSaws(), folder / "a.bsp"));
  const std::string bytes = BytesOf(folder / "a.bsp");
  ASSERT_EQ(bytes.size(), 6705U);
  EXPECT_EQ(bytes.substr(0, 55), "Bandsaw Power File   Version: 1.01                     ");
  EXPECT_EQ(bytes.substr(55), ImagesOf(SomeSaws()));
}

TEST(SavePowerFile, LaysEachRecordOutAsABandSawFileDoes) {
  const std::string bytes = PowerFileText(SomeSaws());
  for (const std::size_t i : {0U, 1U}) {
    EXPECT_EQ(bytes.substr(55 + i * 3325, 3325), BandSawText(SomeSaws()[i]).substr(50)) << i;
  }
  EXPECT_EQ(bytes.substr(55 + 182 - 50, 2), std::string("\x01\x01", 2));         // 257 teeth of the first
  EXPECT_EQ(bytes.substr(3380 + 3373 - 50, 2), std::string("\x01\x00", 2));      // the second is metric
  EXPECT_EQ(bytes.substr(55 + 730 - 50, 30), "Oak (White)                   ");  // of the first
  EXPECT_EQ(bytes.substr(3380 + 730 - 50, 30), std::string(30, '\0'));           // never assigned
}

TEST(SavePowerFile, LeavesTheMarkOfSavingAlone) {
  const std::string bytes = PowerFileText(SomeSaws());
  EXPECT_EQ(bytes.substr(55 + 768 - 50, 2), std::string("\x07\x00", 2));
  EXPECT_EQ(bytes.substr(3380 + 768 - 50, 2), std::string("\x00\x00", 2));
}

TEST(SavePowerFile, ReplacesAnOlderFile) {
  const TemporaryFolder folder;
  ASSERT_FALSE(SavePowerFile(SomeSaws(), folder.File("a.bsp", std::string(9000, 'x'))));
  EXPECT_EQ(BytesOf(folder / "a.bsp"), PowerFileText(SomeSaws()));
}

TEST(SavePowerFile, GivesTheFailureToTheCaller) {
  const TemporaryFolder folder;
  EXPECT_EQ(SavePowerFile({}, folder / "missing" / "a.bsp"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(SavePowerFile({}, folder.Path()), FolderAsFile);
#ifndef _WIN32  // where there is a disk that is always full
  EXPECT_EQ(SavePowerFile({}, "/dev/full"), std::errc::no_space_on_device);
#endif
}

TEST(OpenPowerFile, ReadsEveryByteBack) {
  const TemporaryFolder folder;
  std::string bytes = PowerFileText({});
  for (std::size_t i = 55; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7 + i / 256);
  PowerSaws saws;
  CollectedMessages messages;
  ASSERT_TRUE(OpenPowerFile(saws, folder.File("a.bsp", bytes), messages));
  EXPECT_EQ(PowerFileText(saws), bytes);
  EXPECT_EQ(messages.Texts(), Texts());
}

TEST(OpenPowerFile, IsSilentAboutAFileThatCannotBeRead) {
  const TemporaryFolder folder;
  for (const auto& path : {folder / "missing.bsp", folder.Path(), std::filesystem::path()}) {
    PowerSaws saws = SomeSaws();
    CollectedMessages messages;
    EXPECT_FALSE(OpenPowerFile(saws, path, messages)) << path;
    EXPECT_EQ(messages.Texts(), Texts()) << path;
    EXPECT_EQ(PowerFileText(saws), PowerFileText(SomeSaws())) << path;
  }
}

TEST(OpenPowerFile, KeepsTheCallersDesignsWhenTheFileIsRefused) {
  const TemporaryFolder folder;
  for (const std::string& bytes : {std::string("something else"), FileOfVersion("1.0"), BandSawText({})}) {
    PowerSaws saws = SomeSaws();
    CollectedMessages messages;
    EXPECT_FALSE(OpenPowerFile(saws, folder.File("a.bsp", bytes), messages));
    ASSERT_EQ(messages.Shown.size(), 1U);
    EXPECT_EQ(messages.Shown[0].Title, "Tarnwick");
    EXPECT_EQ(messages.Shown[0].Offer, Buttons::Ok);
    EXPECT_EQ(PowerFileText(saws), PowerFileText(SomeSaws()));
    EXPECT_EQ(BytesOf(folder / "a.bsp"), bytes);  // and the file stays
  }
}

TEST(OpenPowerFile, TakesWhatADamagedFileHasAndSaysSo) {
  const TemporaryFolder folder;
  PowerSaws saws;
  saws[1].Width = 9;  // of a calculation before it
  CollectedMessages messages;
  EXPECT_TRUE(OpenPowerFile(saws, folder.File("a.bsp", FileOfVersion("1.01").substr(0, 3385)), messages));
  EXPECT_EQ(messages.Texts(), Texts{CutShort});
  EXPECT_EQ(saws[0].NumTeeth, 257);
  EXPECT_EQ(saws[1].Width, 0);
  EXPECT_EQ(saws[1].Length, 0);
}

struct ReadRow {
  const char* Name;
  std::string Bytes;
  PowerFileState State;
  Texts Notes;
  friend void PrintTo(const ReadRow& row, std::ostream* out) { *out << row.Name; }
};

class ReadPowerFileBytes : public testing::TestWithParam<ReadRow> {};

TEST_P(ReadPowerFileBytes, ComesToItsState) {
  const ReadRow& row = GetParam();
  const PowerFileBytes read = ReadPowerFile(row.Bytes);
  EXPECT_EQ(read.State, row.State);
  Texts notes;
  for (const Box& note : read.Notes) notes.push_back(note.Text);
  EXPECT_EQ(notes, row.Notes);
  if (read.State == PowerFileState::Complete) {
    EXPECT_EQ(ImagesOf(read.Saws), ImagesOf(SomeSaws()));
  } else if (!read.Usable()) {
    EXPECT_EQ(ImagesOf(read.Saws), ImagesOf({}));
  }
}

using enum PowerFileState;
INSTANTIATE_TEST_SUITE_P(
    Files, ReadPowerFileBytes,
    testing::Values(
        ReadRow{"Current", FileOfVersion("1.01"), Complete, {}},
        ReadRow{"VersionIsANumber", FileOfVersion("1.010"), Complete, {}},
        ReadRow{"VersionWithLeadingBlanks", FileOfVersion("  1.01"), Complete, {}},
        ReadRow{"VersionWithWordsBehind", FileOfVersion("1.01 beta"), Complete, {}},
        ReadRow{"VersionEndedByZeroBytes", FileOfVersion(std::string("1.01\0\0", 6)), Complete, {}},
        ReadRow{"First", FileOfVersion("1.0"), OtherVersion, {Newer}},
        ReadRow{"Newer", FileOfVersion("1.02"), OtherVersion, {Newer}},
        ReadRow{"MuchNewer", FileOfVersion("12"), OtherVersion, {Newer}},
        ReadRow{"Older", FileOfVersion("0.99"), OtherVersion, {Newer}},
        ReadRow{"VersionBlank", FileOfVersion(""), OtherVersion, {Newer}},
        ReadRow{"VersionNoNumber", FileOfVersion("v1.01"), OtherVersion, {Newer}},
        ReadRow{"VersionNegative", FileOfVersion("-1.01"), OtherVersion, {Newer}},
        ReadRow{"BytesBehind", FileOfVersion("1.01") + "more", Complete, {}},
        ReadRow{"OneByteShort", FileOfVersion("1.01").substr(0, 6704), Incomplete, {CutShort}},
        ReadRow{"SecondMissing", FileOfVersion("1.01").substr(0, 3380), Incomplete, {CutShort}},
        ReadRow{"HeaderOnly", FileOfVersion("1.01").substr(0, 55), Incomplete, {CutShort}},
        ReadRow{"OtherVersionAndShort", FileOfVersion("1.02").substr(0, 99), OtherVersion, {Newer}},
        ReadRow{"HeaderCut", FileOfVersion("1.01").substr(0, 54), NotPowerFile, {NotValid}},
        ReadRow{"MagicCut", FileOfVersion("1.01").substr(0, 29), NotPowerFile, {NotValid}},
        ReadRow{"Empty", "", NotPowerFile, {NotValid}},
        ReadRow{"BandSawFile", BandSawText({}), NotPowerFile, {NotValid}},
        ReadRow{"OtherCase", "bandsaw" + FileOfVersion("1.01").substr(7), NotPowerFile, {NotValid}},
        ReadRow{"MagicWithoutItsBlank", FileOfVersion("1.01").erase(29, 1), NotPowerFile, {NotValid}},
        ReadRow{"OneBlankInside", FileOfVersion("1.01").erase(18, 2), NotPowerFile, {NotValid}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(ReadPowerFile, ReadsZerosWhereTheBytesEnd) {
  const std::string whole = FileOfVersion("1.01");
  for (std::size_t size = 55; size <= whole.size(); size += 25) {
    std::string padded = whole.substr(0, size);
    padded.resize(whole.size(), '\0');
    EXPECT_EQ(PowerFileText(ReadPowerFile(whole.substr(0, size)).Saws), padded) << size;
  }
}

TEST(OpenPowerFile, ReadsNoMoreThanAPowerFileOfAHugeOne) {
  const TemporaryFolder folder;
  PowerSaws saws;
  CollectedMessages messages;
  EXPECT_TRUE(
      OpenPowerFile(saws, folder.File("a.bsp", FileOfVersion("1.01") + std::string(1 << 20, 'x')), messages));
  EXPECT_EQ(ImagesOf(saws), ImagesOf(SomeSaws()));
}

}  // namespace
}  // namespace tarnwick
