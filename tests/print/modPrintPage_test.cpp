#include "print/modPrintPage.h"

#include <gtest/gtest.h>

#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

struct PaperRow {
  const char* Name;
  int Paper;
  int Taken;
  double Height;  // in
  friend void PrintTo(const PaperRow& row, std::ostream* out) { *out << row.Name; }
};
class Paper : public testing::TestWithParam<PaperRow> {};

TEST_P(Paper, IsEightInchesWideAndOfItsHeight) {
  const PrintPage page = PageFor({.Paper = GetParam().Paper});
  EXPECT_EQ(page.Paper, GetParam().Taken);
  EXPECT_EQ(page.Width, 11520) << "8.5 is rounded half to even";
  EXPECT_EQ(page.Height, GetParam().Height * 1440);
  EXPECT_EQ(page.Left, 0);
  EXPECT_EQ(page.Top, 0);
}

TEST_P(Paper, IsTurnedWithWidthAndHeightExchanged) {
  const PrintPage page = PageFor({.Paper = GetParam().Paper, .Turned = PaperOrientation::Landscape});
  EXPECT_EQ(page.Paper, GetParam().Taken);
  EXPECT_EQ(page.Width, GetParam().Height * 1440);
  EXPECT_EQ(page.Height, 11520);
}

TEST_P(Paper, IsWhatThePrinterIsSetUpFor) {
  test::Texts log;
  test::RecordingPrintDevice device(log);
  ASSERT_TRUE(device.SetUp({GetParam().Paper, PaperOrientation::Landscape, 3}));
  const std::optional<PrintPage> page = FitPaper(device);
  ASSERT_TRUE(page);
  EXPECT_EQ(*page, PageFor({.Paper = GetParam().Paper, .Turned = PaperOrientation::Landscape}));
  EXPECT_EQ(device.Setup(), (PrinterSetup{GetParam().Taken, PaperOrientation::Landscape, 3}));
}

INSTANTIATE_TEST_SUITE_P(Kinds, Paper,
                         testing::Values(PaperRow{"Letter", 1, 1, 11}, PaperRow{"SmallLetter", 2, 2, 11},
                                         PaperRow{"Legal", 5, 5, 14}, PaperRow{"Folio", 14, 14, 13},
                                         PaperRow{"FanfoldOf12", 40, 40, 12},
                                         PaperRow{"FanfoldOf13", 41, 41, 13},
                                         PaperRow{"A4IsLetter", 9, 1, 11}, PaperRow{"NoneIsLetter", 0, 1, 11},
                                         PaperRow{"OwnSizeIsLetter", 256, 1, 11},
                                         PaperRow{"NonsenseIsLetter", -7, 1, 11}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(FitPaper, HasNoPageWhenThePrinterRefusesThePaper) {
  test::Texts log;
  test::RecordingPrintDevice device(log);
  ASSERT_TRUE(device.SetUp({.Paper = 9}));
  device.RefusedPaper = {LetterPaper};
  EXPECT_FALSE(FitPaper(device));
}

TEST(PrintFrame, IsNarrowerAndLowerThanThePageAndBelowTheInformation) {
  const PrintPage upright = PageFor({});
  EXPECT_EQ(upright.Frame, (PaperBox{720, 2600, 10800, 2600 + 15840 - 720}));
  EXPECT_EQ(upright.Frame.Width(), upright.Width - 1440);
  EXPECT_EQ(upright.Frame.Height(), upright.Height - 720);

  const PrintPage turned = PageFor({.Turned = PaperOrientation::Landscape});
  EXPECT_EQ(turned.Frame, (PaperBox{720, 2900, 15120, 2900 + 11520 - 720}));
}

TEST(PrintColumns, MoveWithTheWayThePaperLies) {
  const PrintPage upright = PageFor({}), turned = PageFor({.Turned = PaperOrientation::Landscape});
  const struct {
    int Column;
    double UprightLabel, UprightValue, TurnedLabel, TurnedValue;
  } rows[] = {{1, 1100, 5100, 1100, 5100}, {2, 6100, 10100, 5900, 9900}, {3, 10300, 14300, 10300, 14300}};
  for (const auto& row : rows) {
    EXPECT_EQ(LabelX(row.Column, upright), row.UprightLabel) << row.Column;
    EXPECT_EQ(ValueX(row.Column, upright), row.UprightValue) << row.Column;
    EXPECT_EQ(LabelX(row.Column, turned), row.TurnedLabel) << row.Column;
    EXPECT_EQ(ValueX(row.Column, turned), row.TurnedValue) << row.Column;
  }
}

TEST(PrintPaper, IsAsWideAndAsHighAsItReallyIs) {
  const PrintPage upright = PageFor({.Paper = LegalPaper});
  const PrintPage turned = PageFor({.Paper = LegalPaper, .Turned = PaperOrientation::Landscape});
  EXPECT_EQ(upright.PaperWidth(), 12240);
  EXPECT_EQ(upright.PaperHeight(), 14 * 1440);
  EXPECT_EQ(turned.PaperWidth(), 14 * 1440);
  EXPECT_EQ(turned.PaperHeight(), 12240);
}

}  // namespace
}  // namespace tarnwick
