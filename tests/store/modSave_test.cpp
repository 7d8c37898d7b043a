#include "store/modSave.h"

#include <gtest/gtest.h>

#include "geometry/modTooth.h"
#include "platform/CollectedMessages.h"
#include "store/modImage.h"
#include "support/FolderAsFile.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::BytesOf;
using test::FolderAsFile;
using test::TemporaryFolder;
using Texts = std::vector<std::string>;

constexpr const char* NotValid = "Not a valid Band Saw File     ";
constexpr const char* Incomplete = "File is incomplete. What could be read is shown.";
constexpr const char* Newer =
    "File was saved in a newer version of this program!\n"
    "Some information may not be available to the version\n"
    "you are currently using!\n"
    "Contact www.tarnwick.example for an update.";

BandSaw SomeSaw() {
  BandSaw saw;
  saw.ToothStyle = RoundBack;
  saw.Length = 37.5;
  saw.NumTeeth = 257;
  saw.GeneralInfo.WoodType.Assign("Douglas Fir");
  saw.ImpMetric = 1;
  return saw;
}

std::string ImageOf(const BandSaw& saw) {
  std::string image;
  AppendRecord(image, saw);
  return image;
}

/// A file of `SomeSaw` with another version text.
std::string FileOfVersion(std::string version) {
  version.resize(25, ' ');
  return "Band Saw File: Version = " + version + ImageOf(SomeSaw());
}

TEST(SaveBandSaw, WritesHeaderAndImage) {
  const TemporaryFolder folder;
  BandSaw saw = SomeSaw();
  ASSERT_FALSE(SaveBandSaw(saw, folder / "a.bsw"));
  const std::string bytes = BytesOf(folder / "a.bsw");
  ASSERT_EQ(bytes.size(), 3375u);
  EXPECT_EQ(bytes.substr(0, 50), "Band Saw File: Version = 1.01                     ");
  EXPECT_EQ(bytes.substr(50), ImageOf(saw));
}

TEST(SaveBandSaw, MarksTheDesignAsSaved) {
  const TemporaryFolder folder;
  BandSaw saw = SomeSaw();
  ASSERT_FALSE(SaveBandSaw(saw, folder / "a.bsw"));
  EXPECT_EQ(saw.GeneralInfo.SavedAs, 2);
  EXPECT_EQ(BytesOf(folder / "a.bsw").substr(768, 2), std::string("\2\0", 2));
}

TEST(SaveBandSaw, ReplacesAnOlderFile) {
  const TemporaryFolder folder;
  BandSaw saw = SomeSaw();
  ASSERT_FALSE(SaveBandSaw(saw, folder.File("a.bsw", std::string(5000, 'x'))));
  EXPECT_EQ(BytesOf(folder / "a.bsw"), BandSawText(saw));
}

TEST(SaveBandSaw, GivesTheFailureToTheCaller) {
  const TemporaryFolder folder;
  BandSaw saw = SomeSaw();
  EXPECT_EQ(SaveBandSaw(saw, folder / "missing" / "a.bsw"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(SaveBandSaw(saw, folder.Path()), FolderAsFile);
#ifndef _WIN32  // where there is a disk that is always full
  EXPECT_EQ(SaveBandSaw(saw, "/dev/full"), std::errc::no_space_on_device);
#endif
}

TEST(OpenBandSaw, ReadsWhatWasSaved) {
  const TemporaryFolder folder;
  BandSaw saved = SomeSaw();
  ASSERT_FALSE(SaveBandSaw(saved, folder / "a.bsw"));
  BandSaw saw;
  CollectedMessages messages;
  EXPECT_TRUE(OpenBandSaw(saw, folder / "a.bsw", messages));
  EXPECT_EQ(ImageOf(saw), ImageOf(saved));
  EXPECT_EQ(messages.Texts(), Texts{});
}

TEST(OpenBandSaw, KeepsTheStyleThatNoToothHas) {
  const TemporaryFolder folder;
  CollectedMessages messages;
  BandSaw saw = SomeSaw();
  saw.ToothStyle = 3;
  ASSERT_FALSE(SaveBandSaw(saw, folder / "hole.bsw"));
  BandSaw read;
  ASSERT_TRUE(OpenBandSaw(read, folder / "hole.bsw", messages));
  EXPECT_EQ(read.ToothStyle, 3);

  (void)CalculateSaw(read, {}, messages);
  EXPECT_EQ(read.ToothStyle, 3);
  EXPECT_EQ(read.ContainsInfo.Teeth, False);
  EXPECT_EQ(read.GulletInfo.FaceLength, 0);
}

TEST(OpenBandSaw, IsSilentAboutAFileThatCannotBeRead) {
  const TemporaryFolder folder;
  for (const auto& path : {folder / "missing.bsw", folder.Path(), std::filesystem::path()}) {
    BandSaw saw = SomeSaw();
    CollectedMessages messages;
    EXPECT_FALSE(OpenBandSaw(saw, path, messages)) << path;
    EXPECT_EQ(messages.Texts(), Texts{}) << path;
    EXPECT_EQ(ImageOf(saw), ImageOf(SomeSaw())) << path;
  }
}

TEST(OpenBandSaw, AsksForNoAnswer) {
  const TemporaryFolder folder;
  BandSaw saw;
  CollectedMessages messages;
  EXPECT_FALSE(OpenBandSaw(saw, folder.File("a.bsw", "something else"), messages));
  ASSERT_EQ(messages.Shown.size(), 1u);
  EXPECT_EQ(messages.Shown[0].Title, "Tarnwick");
  EXPECT_EQ(messages.Shown[0].Text, NotValid);
  EXPECT_EQ(messages.Shown[0].Offer, Buttons::Ok);
}

TEST(OpenBandSaw, ClearsTheRecordBeforeItReads) {
  const TemporaryFolder folder;
  const std::string bytes = BandSawText(BandSaw{});
  for (const std::size_t size : {std::size_t{50}, std::size_t{1000}, bytes.size()}) {
    BandSaw saw = SomeSaw();
    CollectedMessages messages;
    EXPECT_TRUE(OpenBandSaw(saw, folder.File("a.bsw", bytes.substr(0, size)), messages));
    EXPECT_EQ(ImageOf(saw), ImageOf({})) << size;
  }
}

struct ReadRow {
  const char* Name;
  std::string Bytes;
  ReadState State;
  Texts Notes;
  friend void PrintTo(const ReadRow& row, std::ostream* out) { *out << row.Name; }
};

class ReadBandSawFile : public testing::TestWithParam<ReadRow> {};

TEST_P(ReadBandSawFile, ComesToItsState) {
  const ReadRow& row = GetParam();
  const BandSawBytes read = ReadBandSaw(row.Bytes);
  EXPECT_EQ(read.State, row.State);
  Texts notes;
  for (const Box& note : read.Notes) notes.push_back(note.Text);
  EXPECT_EQ(notes, row.Notes);
  if (read.State == ReadState::Complete) {
    EXPECT_EQ(ImageOf(read.Saw), ImageOf(SomeSaw()));
  } else if (read.State != ReadState::Incomplete) {
    EXPECT_EQ(ImageOf(read.Saw), ImageOf({}));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, ReadBandSawFile,
    testing::Values(
        ReadRow{"Current", FileOfVersion("1.01"), ReadState::Complete, {}},
        ReadRow{"First", FileOfVersion("1.0"), ReadState::Complete, {}},
        ReadRow{"FirstWithoutPoint", FileOfVersion("1"), ReadState::Complete, {}},
        ReadRow{"VersionIsANumber", FileOfVersion("1.010"), ReadState::Complete, {}},
        ReadRow{"VersionWithLeadingBlanks", FileOfVersion("  1.01"), ReadState::Complete, {}},
        ReadRow{"VersionWithWordsBehind", FileOfVersion("1.01 beta"), ReadState::Complete, {}},
        ReadRow{
            "VersionEndedByZeroBytes", FileOfVersion(std::string("1.01\0\0", 6)), ReadState::Complete, {}},
        ReadRow{"Newer", FileOfVersion("1.02"), ReadState::Complete, {Newer}},
        ReadRow{"MuchNewer", FileOfVersion("12"), ReadState::Complete, {Newer}},
        ReadRow{"Between", FileOfVersion("1.005"), ReadState::UnknownVersion, {}},
        ReadRow{"Older", FileOfVersion("0.99"), ReadState::UnknownVersion, {}},
        ReadRow{"VersionBlank", FileOfVersion(""), ReadState::UnknownVersion, {}},
        ReadRow{"VersionNoNumber", FileOfVersion("v1.01"), ReadState::UnknownVersion, {}},
        ReadRow{"VersionNegative", FileOfVersion("-1.01"), ReadState::UnknownVersion, {}},
        ReadRow{"BytesBehind", FileOfVersion("1.01") + "more", ReadState::Complete, {}},
        ReadRow{"OneByteShort", FileOfVersion("1.01").substr(0, 3374), ReadState::Incomplete, {Incomplete}},
        ReadRow{"HeaderOnly", FileOfVersion("1.01").substr(0, 50), ReadState::Incomplete, {Incomplete}},
        ReadRow{
            "NewerAndShort", FileOfVersion("1.02").substr(0, 99), ReadState::Incomplete, {Newer, Incomplete}},
        ReadRow{"HeaderCut", FileOfVersion("1.01").substr(0, 49), ReadState::NotBandSaw, {NotValid}},
        ReadRow{"Empty", "", ReadState::NotBandSaw, {NotValid}},
        ReadRow{"OtherMagic", "band" + FileOfVersion("1.01").substr(4), ReadState::NotBandSaw, {NotValid}},
        ReadRow{
            "MagicWithoutItsBlank", FileOfVersion("1.01").erase(24, 1), ReadState::NotBandSaw, {NotValid}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(ReadBandSaw, KeepsWhatAnIncompleteFileHas) {
  const BandSawBytes read = ReadBandSaw(FileOfVersion("1.01").substr(0, 1000));
  EXPECT_EQ(read.Saw.NumTeeth, 257);
  EXPECT_EQ(read.Saw.ImpMetric, 0);  // lies at the very end
}

}  // namespace
}  // namespace tarnwick
