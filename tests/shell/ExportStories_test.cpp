#include "dxf/modDXF.h"
#include "shell/DocumentStory.h"

namespace tarnwick {
namespace {

using namespace story;

// ---- exports

std::string DxfDialog(const std::string& folder, const std::string& name) {
  return "save, warning, DXF Files (*.dxf)|*.dxf in " + folder + " on " + name + " -> ";
}
std::string TextDialog(const std::string& folder, const std::string& name) {
  return "save, warning, Text Files (*.txt)|*.txt in " + folder + " on " + name + " -> ";
}

INSTANTIATE_TEST_SUITE_P(
    Export, DocumentStory,
    testing::Values(Story{"DrawingCancelled",
                          HeadChanged,
                          {},
                          {Nothing},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "cancel"},
                          HeadAsItWas},
                    Story{"Drawing",
                          HeadChanged,
                          {},
                          {{"head"}},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "~/head", "busy", "not busy", "draw 11"},
                          HeadAsItWas,
                          {"+ ~/head.dxf"}},
                    Story{"DrawingOfABlankDesign",
                          Blank,
                          {},
                          {{"untitled.dxf"}},
                          ExportDxf,
                          {DxfDialog("~/", "untitled.dxf") + "~/untitled.dxf", "busy", "not busy",
                           "draw blank"},
                          Untitled + "none | imperial",
                          {"+ ~/untitled.dxf"}},
                    Story{"DrawingOverADesign",
                          Head,
                          {},
                          {{"cut.bsw"}},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "~/cut.bsw", "busy", "not busy", "draw 10"},
                          HeadOpen,
                          {"+ ~/cut.bsw.dxf"}},
                    Story{"DrawingIntoAFolderThatIsNotThere",
                          Head,
                          {},
                          {{"nowhere/head.dxf"}},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "~/nowhere/head.dxf", "busy",
                           "Tarnwick: Error 2 [ok|no icon|ok]", "not busy", "draw 10"},
                          HeadOpen},
                    Story{"ListingCancelled",
                          HeadChanged,
                          {},
                          {Nothing},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "cancel"},
                          HeadAsItWas},
                    Story{"Listing",
                          HeadChanged,
                          {},
                          {{"figures"}},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "~/figures"},
                          HeadAsItWas,
                          {"+ ~/figures.txt"}},
                    Story{"ListingWithAnotherEnding",
                          Head,
                          {},
                          {{"figures.csv"}},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "~/figures.csv"},
                          HeadOpen,
                          {"+ ~/figures.csv"}},
                    // Nothing is said.
                    Story{"ListingIntoAFolderThatIsNotThere",
                          Head,
                          {},
                          {{"nowhere/head.txt"}},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "~/nowhere/head.txt"},
                          HeadOpen}),
    NameOf);

TEST(ExportStory, WritesTheDrawingOfTheChangedDesign) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  desk.Choose("head.dxf");
  desk.Commands.ExportDxf();
  desk.Transcript();
  const std::string bytes = test::BytesOf(FilePath(desk.Path("head.dxf")));
  EXPECT_EQ(bytes.find(" 0 \r\nSECTION\r\n 2 \r\nHEADER\r\n"), 0u);
  EXPECT_NE(bytes.find("\r\n 0 \r\nARC\r\n"), std::string::npos);
  const std::string end = " 0 \r\nENDSEC\r\n 0 \r\nEOF\r\n";
  EXPECT_EQ(bytes.rfind(end), bytes.size() - end.size());
  CollectedMessages say;
  OpenDesign& design = desk.Process.Design;
  design.Recalculate(say);
  WriteDxf(design.Lines, FilePath(desk.Path("again.dxf")), design.Settings.Calculation, say);
  EXPECT_EQ(test::BytesOf(FilePath(desk.Path("again.dxf"))), bytes);
}

TEST(ExportStory, TakesAnEndingThatStandsInTheFolder) {
  DocumentDesk desk;
  SetScene(desk);
  desk.Keep("plans.DXF.d/note.txt", "");
  desk.Keep("lists.d/note.txt", "");
  Head(desk);
  desk.Choose("plans.DXF.d/head");
  desk.Commands.ExportDxf();
  desk.Choose("lists.d/head");  // a point in the folder is no ending of the name
  desk.Commands.SaveText();
  desk.Transcript();
  EXPECT_EQ(desk.Disk(), (Texts{"+ ~/lists.d/head.txt", "+ ~/plans.DXF.d/head"}));
}

TEST(ExportStory, AsksAboutTheFileThatTheEndingMakes) {
  DocumentDesk desk;
  SetScene(desk);
  desk.Keep("plan.dxf", "drawn by hand");
  desk.Keep("plan.txt", "written by hand");
  Head(desk);
  for (const Act& act : {Act(ExportDxf), Act(SaveText)}) {
    desk.Choose("plan");
    desk.Answer({No});
    act(desk);
  }
  EXPECT_EQ(desk.Transcript(),
            (Texts{DxfDialog("~/", "head.dxf") + "~/plan", Replace("~/plan.dxf") + "no",
                   TextDialog("~/", "head.txt") + "~/plan", Replace("~/plan.txt") + "no"}));
  EXPECT_TRUE(desk.Disk().empty());
  for (const Act& act : {Act(ExportDxf), Act(SaveText)}) {
    desk.Choose("plan");
    desk.Answer({Yes});
    act(desk);
  }
  desk.Transcript();
  EXPECT_EQ(desk.Disk(), (Texts{"~ ~/plan.dxf", "~ ~/plan.txt"}));
}

TEST(ExportStory, ListsTheRowsUnderTheNameOfTheDesign) {
  DocumentDesk desk;
  desk.Keep("Säge & Söhne.alt.bsw", WithHook(10));
  desk.Commands.OpenNamedFile("Säge & Söhne.alt.bsw", desk.Folder());
  desk.Transcript();
  desk.Choose("list.txt");
  desk.Commands.SaveText();
  EXPECT_EQ(desk.Transcript().front(), TextDialog("~/", "Säge & Söhne.txt") + "~/list.txt");
#ifndef _WIN32  // where the listing is in the code page
  const std::string bytes = test::BytesOf(FilePath(desk.Path("list.txt")));
  EXPECT_EQ(bytes.find("Säge & Söhne.alt.bsw,\n\n"), 0u);
  EXPECT_NE(bytes.find("\nHook Angle:,         "), std::string::npos);
#endif
}

// ---- direction of teeth

TEST(DirectionStory, TurnsTheBandAndIsKeptAtTheClose) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  desk.Commands.SetTeethDirection(1);
  EXPECT_EQ(desk.Transcript(), Texts{});
  desk.Commands.SetTeethDirection(2);
  EXPECT_EQ(desk.Transcript(), (Texts{"direction 2", "draw 10"}));
  desk.Commands.SetTeethDirection(2);
  EXPECT_EQ(desk.Transcript(), Texts{});
  EXPECT_EQ(desk.State().find(HeadOpen), 0u) << "it belongs to the program, not to the design";
  EXPECT_TRUE(desk.Commands.MayClose());
  EXPECT_EQ(desk.Setting("TeethDirection"), " 2");
  desk.Commands.SetTeethDirection(1);
  EXPECT_EQ(desk.Transcript(), (Texts{"settings written", "direction 1", "draw 10"}));
}

// ---- a day at the desk

TEST(DocumentDay, EndsWithEveryDesignWhereItBelongs) {
  DocumentDesk desk;
  SetScene(desk);
  PlanSquareBack(desk);
  desk.Commands.NewStepByStep();
  desk.Choose("Rift 9");
  desk.Commands.Save();  // made
  ChangeHook(desk, 10);
  desk.Answer({Yes});
  desk.Commands.Save();  // and made better
  desk.Choose("Rift 11.bsw");
  ChangeHook(desk, 11);
  desk.Commands.SaveAs();  // a second one of it
  desk.Choose("list.bsw");
  desk.Commands.Open();  // a slip
  desk.Commands.OpenRecent(0);
  EXPECT_EQ(desk.Process.Design.FileName, "Rift 11.bsw");
  ChangeHook(desk, 12);
  desk.Answer({Yes});
  desk.Choose("Rift 12");
  desk.Choose("head.bsw");
  desk.Commands.Open();  // the third is kept on the way
  EXPECT_EQ(desk.Process.Design.FileName, "head.bsw");
  ChangeHook(desk, 13);
  desk.Answer({No});
  EXPECT_TRUE(desk.Commands.MayClose());
  EXPECT_EQ(desk.Disk(),
            (Texts{"- ~/list.bsw", "+ ~/Rift 11.bsw 11", "+ ~/Rift 12.bsw 12", "+ ~/Rift 9.bsw 10"}));
  EXPECT_EQ(desk.State().substr(0, desk.State().rfind(" | ")),
            "head.bsw - Tarnwick | ~/ | 13 10 10 | ~/head.bsw, ~/Rift 12.bsw, ~/Rift 11.bsw | imperial");
}

}  // namespace
}  // namespace tarnwick
