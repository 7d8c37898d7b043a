#include "print/PrinterChoice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnwick {
namespace {

/// A choice between three printers, with a setup dialog that is left as planned.
struct Desk {
  std::optional<PrinterSetup> Answer;
  std::vector<std::string> Asked;
  std::optional<PrinterSetup> OpenedOn;
  PrinterChoice Choice{{"Alpha", "Beta", "Gamma"},
                       1,
                       [this](const std::string& printer, const std::optional<PrinterSetup>& current) {
                         Asked.push_back(printer);
                         OpenedOn = current;
                         return Answer;
                       }};
};

constexpr PrinterSetup Legal{LegalPaper, PaperOrientation::Landscape, 3};

TEST(PrinterChoice, OpensOnThePrinterGivenAndBothPages) {
  const Desk desk;
  EXPECT_EQ(desk.Choice.Selected(), 1U);
  EXPECT_EQ(desk.Choice.Name(), "Beta");
  EXPECT_EQ(desk.Choice.Pages(), SawPages::Both);
  EXPECT_EQ(desk.Choice.Quality(), PrintQuality::Normal);
  EXPECT_FALSE(desk.Choice.SavesPrinter());
  EXPECT_FALSE(desk.Choice.Setup());
  EXPECT_TRUE(desk.Choice.IsOpen());
}

TEST(PrinterChoice, IsAcceptedByOkAndNotByCancel) {
  Desk accepted, cancelled;
  accepted.Choice.PressOk();
  EXPECT_TRUE(accepted.Choice.IsAccepted());
  EXPECT_FALSE(accepted.Choice.IsOpen());
  cancelled.Choice.PressCancel();
  EXPECT_FALSE(cancelled.Choice.IsAccepted());
  EXPECT_FALSE(cancelled.Choice.IsOpen());
}

TEST(PrinterChoice, TakesWhatIsClicked) {
  Desk desk;
  desk.Choice.Select(2);
  desk.Choice.ChoosePages(SawPages::Info);
  desk.Choice.TickQuality(true);
  desk.Choice.TickSavePrinter(true);
  EXPECT_EQ(desk.Choice.Name(), "Gamma");
  EXPECT_EQ(desk.Choice.Pages(), SawPages::Info);
  EXPECT_EQ(desk.Choice.Quality(), PrintQuality::High);
  EXPECT_TRUE(desk.Choice.SavesPrinter());
  desk.Choice.TickQuality(false);
  EXPECT_EQ(desk.Choice.Quality(), PrintQuality::Normal);
  desk.Choice.Select(99);
  EXPECT_EQ(desk.Choice.Name(), "Gamma") << "there is no such entry";
}

TEST(PrinterChoice, SetsUpThePrinterSelected) {
  Desk desk;
  desk.Answer = Legal;
  desk.Choice.PressSetup();
  EXPECT_EQ(desk.Asked, std::vector<std::string>{"Beta"});
  EXPECT_FALSE(desk.OpenedOn);
  EXPECT_EQ(desk.Choice.Setup(), Legal);
  EXPECT_TRUE(desk.Choice.IsOpen());

  desk.Answer.reset();
  desk.Choice.PressSetup();
  EXPECT_EQ(desk.OpenedOn, Legal) << "the dialog opens on what was set";
  EXPECT_EQ(desk.Choice.Setup(), Legal) << "its Cancel changes nothing";
}

TEST(PrinterChoice, ForgetsTheSetupOfAnotherPrinter) {
  Desk desk;
  desk.Answer = Legal;
  desk.Choice.PressSetup();
  desk.Choice.Select(1);
  EXPECT_TRUE(desk.Choice.Setup()) << "the same printer";
  desk.Choice.Select(0);
  EXPECT_FALSE(desk.Choice.Setup());
}

}  // namespace
}  // namespace tarnwick
