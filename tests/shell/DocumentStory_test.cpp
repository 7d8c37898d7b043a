#include "shell/DocumentStory.h"

namespace tarnwick {
namespace {

using namespace story;

TEST_P(DocumentStory, GoesAsTold) {
  const Story& story = GetParam();
  DocumentDesk desk;
  SetScene(desk);
  story.Begin(desk);
  for (const Button answer : story.Answers) desk.Answer({answer});
  for (const Choice& choice : story.Choices) {
    if (choice.Path)
      desk.Choose(choice.Path);
    else
      desk.ChooseNothing();
  }
  story.Command(desk);
  EXPECT_EQ(desk.Transcript(), story.Told);
  const std::string state = desk.State();
  EXPECT_EQ(state.substr(0, state.rfind(" | ")), story.State);
  EXPECT_EQ(desk.Disk(), story.Disk);
  EXPECT_FALSE(desk.Commands.IsBusy());
}

// ---- New

INSTANTIATE_TEST_SUITE_P(
    New, DocumentStory,
    testing::Values(
        Story{"Blank", Blank, {}, {}, New, NewDesign, Untitled + "none | imperial"},
        Story{"AfterAFile", Head, {}, {}, New, NewDesign, Untitled + "~/head.bsw | imperial"},
        Story{
            "ChangedAndCancelled", HeadChanged, {Cancel}, {}, New, {BandsawChanged + "cancel"}, HeadAsItWas},
        Story{"ChangedAndGivenUp",
              HeadChanged,
              {No},
              {},
              New,
              Script({{BandsawChanged + "no"}, NewDesign}),
              Untitled + "~/head.bsw | imperial"},
        Story{"ChangedAndNotSavedAfterAll",
              HeadChanged,
              {Yes},
              {Nothing},
              New,
              {BandsawChanged + "yes", OnHead + "cancel"},
              HeadAsItWas},
        Story{"ChangedAndSavedUnderItsOwnName",
              HeadChanged,
              {Yes},
              {{"head.bsw"}},
              New,
              Script({{BandsawChanged + "yes", OnHead + "~/head.bsw"},
                      Writes("head.bsw - Tarnwick Viewer"),
                      Lists("~/head.bsw"),
                      NewDesign}),
              Untitled + "~/head.bsw | imperial",
              {"~ ~/head.bsw 11"}},
        Story{"ChangedAndSavedElsewhere",
              BlankChanged,
              {Yes},
              {{"made"}},
              New,
              Script({{BandsawChanged + "yes", OnUntitled + "~/made"},
                      Writes("made.bsw - Tarnwick Viewer"),
                      Lists("~/made.bsw"),
                      NewDesign}),
              Untitled + "~/made.bsw | imperial",
              {"+ ~/made.bsw 7"}},
        // Without a word, also when the ending makes the name of a file that is there.
        Story{"ChangedAndSavedOverAnother",
              BlankChanged,
              {Yes},
              {{"cut"}},
              New,
              Script({{BandsawChanged + "yes", OnUntitled + "~/cut"},
                      Writes("cut.bsw - Tarnwick Viewer"),
                      Lists("~/cut.bsw"),
                      NewDesign}),
              Untitled + "~/cut.bsw | imperial",
              {"~ ~/cut.bsw 7"}},
        Story{"ChangedAndSavingFails",
              HeadChanged,
              {Yes},
              {{"nowhere/head.bsw"}},
              New,
              Script({{BandsawChanged + "yes", OnHead + "~/nowhere/head.bsw"},
                      Writes("head.bsw - Tarnwick Viewer"),
                      {"Saving: Error Number: 2\nNo such file or directory\nSub Program SaveBeforeLeaving "
                       "[ok|no icon|ok]"}}),
              "head.bsw - Tarnwick Viewer | ~/nowhere/ | 11 10 10 | ~/head.bsw | imperial"}),
    NameOf);

TEST(NewDesignStory, LeavesTheViewAlone) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  const std::string scale = desk.Process.Design.View.ScaleText();
  desk.Commands.New();
  EXPECT_EQ(desk.Process.Design.View.ScaleText(), scale);
  EXPECT_NE(scale, "1.0");
}

TEST(NewDesignStory, BeginsInTheUnitsOfTheSettingsAndIsNotChanged) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  desk.Process.Design.Settings.MainImpMetric = 1;
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript(), (Texts{"caption untitled.bsw - Tarnwick", "units metric", "rows blank",
                                      "boxes blank", "panel 1", "draw blank"}));
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript().front(), "caption untitled.bsw - Tarnwick");  // no question
}

// ---- New Step by Step

/// Every question of a square back; a setting is kept after each.
Texts Asks(std::initializer_list<const char*> titles) {
  Texts told;
  for (const char* title : titles) {
    told.push_back(std::string("asks ") + title);
    told.emplace_back("settings written");
  }
  return told;
}

const Texts SquareBackQuestions =
    Asks({"BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch",
          "Hook Angle", "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
          "Gullet Radius", "Gullet Depth", "Gullet Back Angle"});

TEST(StepByStepStory, MakesADesignThatIsNotSavedYet) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  desk.Process.Design.View.ZoomIn();
  desk.Answer({No});
  PlanSquareBack(desk);
  desk.Commands.NewStepByStep();
  EXPECT_EQ(
      desk.Transcript(),
      Script({{BandawChanged + "no"}, NewDesign, SquareBackQuestions, {"draw 9", "rows 9", "boxes 9"}}));
  const OpenDesign& design = desk.Process.Design;
  EXPECT_EQ(desk.State().substr(0, desk.State().rfind(" | ")),
            "untitled.bsw - Tarnwick | ~/ | 9 9 blank | ~/head.bsw | imperial");
  EXPECT_FALSE(design.Lines.Entities.empty());
  // The whole band is in view.
  Viewport whole = design.View;
  whole.ViewAll(ComputeExtents(design.Lines));
  EXPECT_EQ(design.View.ScaleText(), whole.ScaleText());
  EXPECT_NE(design.View.ScaleText(), "1.0");
  // What follows asks about it.
  desk.Answer({Cancel});
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript(), Texts{BandsawChanged + "cancel"});
}

TEST(StepByStepStory, LeavesABlankDesignWhenItsLengthIsDeclined) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  desk.Process.Design.Settings.MainImpMetric = 1;
  desk.Dialogs.Values = {test::Picks(0), test::Enters("60"), test::Cancels()};
  desk.Commands.NewStepByStep();
  EXPECT_EQ(desk.Transcript(), Script({BlankIn("metric"),
                                       Asks({"BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length"}),
                                       {"draw blank", "rows blank", "boxes blank"}}));
  EXPECT_EQ(desk.State().find(Untitled), 0u);
  EXPECT_TRUE(desk.Process.Design.Lines.Entities.empty());
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript(), BlankIn("metric"));  // no question
}

INSTANTIATE_TEST_SUITE_P(
    StepByStep, DocumentStory,
    testing::Values(
        Story{"Cancelled", HeadChanged, {Cancel}, {}, StepByStep, {BandawChanged + "cancel"}, HeadAsItWas},
        Story{"NotSavedAfterAll",
              HeadChanged,
              {Yes},
              {Nothing},
              StepByStep,
              {BandawChanged + "yes", OnHead + "cancel"},
              HeadAsItWas}),
    NameOf);

}  // namespace
}  // namespace tarnwick
