#include "entry/YesNoDialog.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

YesNoDialog Seat(bool answer) { return {"Does it?\nSay so!", "Seat", "Seat", answer}; }

TEST(AYesNoDialog, OpensWithItsTextsOnThePresentState) {
  for (const bool state : {true, false}) {
    const YesNoDialog dialog = Seat(state);
    EXPECT_EQ(dialog.Title(), "Seat");
    EXPECT_EQ(dialog.Prompt(), "\nDoes it?\nSay so!");
    EXPECT_EQ(dialog.HelpTopic(), 216);
    EXPECT_EQ(dialog.PictureKey(), "Seat");
    EXPECT_EQ(dialog.Answer(), state);
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.Result(), "");
  }
}

TEST(AYesNoDialog, GivesTheStateOfItsOptionByOk) {
  for (const bool state : {true, false}) {
    for (const bool chosen : {true, false}) {
      YesNoDialog dialog = Seat(state);
      dialog.Choose(chosen);
      EXPECT_EQ(dialog.Answer(), chosen);
      EXPECT_TRUE(dialog.IsOpen());
      EXPECT_EQ(dialog.Result(), "");
      dialog.PressOk();
      EXPECT_FALSE(dialog.IsOpen());
      EXPECT_NE(dialog.Result(), "");
      EXPECT_EQ(TruthOf(dialog.Result()), chosen);
    }
  }
}

TEST(AYesNoDialog, GivesTheStateItOpenedOnByOkAlone) {
  for (const bool state : {true, false}) {
    YesNoDialog dialog = Seat(state);
    dialog.PressOk();
    EXPECT_NE(dialog.Result(), "");
    EXPECT_EQ(TruthOf(dialog.Result()), state);
  }
}

TEST(AYesNoDialog, TakesTheLastChoice) {
  YesNoDialog dialog = Seat(false);
  dialog.Choose(true);
  dialog.Choose(false);
  dialog.Choose(true);
  dialog.PressOk();
  EXPECT_TRUE(TruthOf(dialog.Result()));
}

TEST(AYesNoDialog, GivesNothingWhenItIsCancelled) {
  YesNoDialog dialog = Seat(false);
  dialog.Choose(true);
  dialog.PressCancel();
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.Result(), "");
}

TEST(AYesNoDialog, KeepsItsPictureWhateverIsChosen) {
  YesNoDialog dialog = Seat(false);
  dialog.Choose(true);
  EXPECT_EQ(dialog.PictureKey(), "Seat");
  dialog.Choose(false);
  EXPECT_EQ(dialog.PictureKey(), "Seat");
}

TEST(AYesNoDialog, SwapsThePictureOfACentredHole) {
  YesNoDialog dialog("Is the hole centered?", "SlotCent", "Hole Centered", true);
  EXPECT_EQ(dialog.HelpTopic(), 0);
  EXPECT_EQ(dialog.PictureKey(), "SlotCent");
  dialog.Choose(false);
  EXPECT_EQ(dialog.PictureKey(), "SlotNotC");
  dialog.Choose(true);
  EXPECT_EQ(dialog.PictureKey(), "SlotCent");
}

TEST(HintOfAYesNoDialog, SaysWhatAControlIsFor) {
  EXPECT_EQ(YesNoDialog::Hint("optYes"), "Click to select Yes.");
  EXPECT_EQ(YesNoDialog::Hint("optNo"), "Click to select No.");
  EXPECT_EQ(YesNoDialog::Hint("cmdOk"), "Click to accept value.");
  EXPECT_EQ(YesNoDialog::Hint("cmdCancel"), "Click to cancel.");
  for (const char* other : {"", "cmdHelp", "lblDisplay", "txtValue", "frmBDialog"}) {
    EXPECT_EQ(YesNoDialog::Hint(other), "") << other;
  }
}

}  // namespace
}  // namespace tarnwick
