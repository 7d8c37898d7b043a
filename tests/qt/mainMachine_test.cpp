#include <QCheckBox>
#include <filesystem>

#include "cli/Commands.h"
#include "machine/modBandLength.h"
#include "qt/Desk.h"
#include "qt/Pixels.h"
#include "window/fraMain.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::Desk;
using test::Named;

std::string Bytes(const BandSaw& saw) { return BandSawText(saw); }

/// The name of a control of a row.
std::string OfRow(const char* array, int row) { return std::string(array) + '(' + std::to_string(row) + ')'; }

void Tick(Desk& desk, int row) { test::Click(desk.Window, OfRow("chkLength", row).c_str()); }

/// The row that is ticked; -1 when there is not just one.
int Ticked(Desk& desk) {
  int ticked = -1, count = 0;
  for (int row = 0; row < LengthRows; ++row) {
    if (!Named<QCheckBox>(desk.Window, OfRow("chkLength", row).c_str())->isChecked()) continue;
    ticked = row;
    ++count;
  }
  return count == 1 ? ticked : -1;
}

QStringList Lengths(Desk& desk) {
  QStringList lengths;
  for (int row = 0; row < LengthRows; ++row) lengths += desk.Text(OfRow("txtLength", row).c_str());
  return lengths;
}

QStringList Measures(Desk& desk) {
  return {desk.Text("txtWheelDia"), desk.Text("txtRimWidth"), desk.Text("txtCenters"),
          desk.Text("txtPlateThick")};
}

QImage Picture(Desk& desk) { return Named<QWidget>(desk.Window, "picBand")->grab().toImage(); }

/// Nothing is known of its machine.
BandSaw WithoutMachine() {
  BandSaw saw = test::FullDesign();
  saw.ContainsInfo.Machine = False;
  saw.MachineInfo = {};
  return saw;
}

}  // namespace

// The machine of the open design, from the main window: the band length calculator and the plate gauges.
class mainMachineTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    main_ = std::make_unique<test::MainWindow>();
    asked_.clear();
  }
  void cleanup() { main_.reset(); }

  void opensTheCalculator_data();
  void opensTheCalculator();
  void asksByEachBox_data();
  void asksByEachBox();
  void worksByKeysAlone();
  void startsNothingElseMeanwhile();

  void takesTheTickedLength_data();
  void takesTheTickedLength();
  void takesALengthOfItsOwn();
  void takesTheMachineAlone();
  void leavesTheDesignAloneOnCancel_data();
  void leavesTheDesignAloneOnCancel();
  void asksAboutTheLengthNext_data();
  void asksAboutTheLengthNext();
  void keepsThePanel_data();
  void keepsThePanel();

  void opensOnADesignWithoutWheels();
  void beginsABlankDesign();
  void takesMetresInAMetricDesign();

  void exportsTheDrawing_data();
  void exportsTheDrawing();
  void asksWhereTheDrawingGoes();

  void opensThePlateGauges_data();
  void opensThePlateGauges();

 private:
  OpenDesign& Design() { return main_->Design(); }
  std::vector<Box>& Boxes() { return main_->Program.Say.Shown; }

  /// Plans what is done in the window that the next command opens.
  void Plan(const std::function<void(Desk&)>& work) {
    main_->User.Acts.push_back([this, work](QDialog& window) {
      Desk desk(window);
      work(desk);
      asked_ += desk.Others.Seen;
    });
  }
  void InCalculator(const std::function<void(Desk&)>& work) {
    Plan(work);
    main_->User.Seen.clear();
    main_->Do("mnuItemBandLength");
    QCOMPARE(main_->User.Seen, QStringList("frmBandCalc: Band Length Calculator"));
  }
  /// Takes the length of a row.
  void Take(int row) {
    InCalculator([row](Desk& desk) {
      Tick(desk, row);
      QCOMPARE(Ticked(desk), row);
      desk.Press("cmdOk");
    });
  }

  /// A row of the panel; none when it does not show.
  QString Row(const char* caption) {
    for (const InfoRow& row : Named<fraMain>(*main_->Window, "fraMain")->Rows()) {
      if (row.Caption == caption) return ToQt(row.Value);
    }
    return {};
  }
  std::string Path(const char* name) { return main_->Folder.Path().string() + PathSeparator + name; }

  std::unique_ptr<test::MainWindow> main_;
  QStringList asked_;  // what the windows asked in turn
};

// ---- the window

void mainMachineTest::opensTheCalculator_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"mouse", "keys", "button"}) QTest::newRow(how) << how;
}

void mainMachineTest::opensTheCalculator() {
  QFETCH(QString, how);
  main_->Open(test::FullDesign());
  const std::string before = Bytes(main_->Saw());
  main_->Program.Time.Waited.clear();
  Plan([&](Desk& desk) {
    QCOMPARE(main_->Program.Time.Waited.size(), std::size_t(1));
    QCOMPARE(desk.Window.parentWidget(), main_->Window.get());
    QVERIFY(desk.Window.isModal());
    QCOMPARE(Measures(desk), QStringList({" 5.000 ft", " 8.000 in", " 8.000 ft", " 0.065 in"}));
    QCOMPARE(Lengths(desk), QStringList({" 40.000 ft", " 31.912 ft", " 32.116 ft", " 32.321 ft"}));
    QCOMPARE(Ticked(desk), OwnLength);
    QVERIFY(test::CountOf(Picture(desk), Design().Settings.Display.SawLineColor) > 500);
    desk.Enter("txtWheelDia", "4");
    Tick(desk, MiddleLength);
    QVERIFY(Bytes(main_->Saw()) == before);  // all on a copy
    desk.Press("cmdCancel");
  });
  test::Pick(*main_->Window, how, "mnuTools", "mnuItemBandLength", "tlbMachine");
  QCOMPARE(main_->User.Seen, QStringList("frmBandCalc: Band Length Calculator"));
  QVERIFY(Bytes(main_->Saw()) == before);
  QVERIFY(Boxes().empty());
}

void mainMachineTest::asksByEachBox_data() {
  QTest::addColumn<QString>("title");
  QTest::addColumn<QStringList>("measures");
  QTest::addColumn<QStringList>("lengths");
  const auto row = [](const char* control, const char* title, const QStringList& measures,
                      const QStringList& lengths) { QTest::newRow(control) << title << measures << lengths; };
  const QStringList wheel{" 6.000 ft", " 8.000 in", " 8.000 ft", " 0.065 in"};
  const QStringList wheelLengths{" 40.000 ft", " 35.054 ft", " 35.258 ft", " 35.462 ft"};
  row("txtWheelDia", "Wheel Diameter", wheel, wheelLengths);
  row("lblWheelDia", "Wheel Diameter", wheel, wheelLengths);
  const QStringList rim{" 5.000 ft", " 6.000 in", " 8.000 ft", " 0.065 in"};
  const QStringList rimLengths{" 40.000 ft", " 31.912 ft", " 32.116 ft", " 32.321 ft"};
  row("txtRimWidth", "Rim Width", rim, rimLengths);
  row("lblRimWidth", "Rim Width", rim, rimLengths);
  const QStringList centers{" 5.000 ft", " 8.000 in", " 6.000 ft", " 0.065 in"};
  const QStringList centersLengths{" 40.000 ft", " 27.912 ft", " 28.116 ft", " 28.321 ft"};
  row("txtCenters", "Center to Center", centers, centersLengths);
  row("lblCenters", "Center to Center", centers, centersLengths);
  const QStringList plate{" 5.000 ft", " 8.000 in", " 8.000 ft", " 6.000 in"};  // inches, and added as feet
  const QStringList plateLengths{" 40.000 ft", " 50.558 ft", " 69.407 ft", " 88.257 ft"};
  row("txtPlateThick", "Plate Thickness", plate, plateLengths);
  row("lblPlateThick", "Plate Thickness", plate, plateLengths);
  const QStringList own{" 6.000 ft", " 31.912 ft", " 32.116 ft", " 32.321 ft"};
  row("txtLength(0)", "Band Saw Length", {" 5.000 ft", " 8.000 in", " 8.000 ft", " 0.065 in"}, own);
}

void mainMachineTest::asksByEachBox() {
  QFETCH(QString, title);
  const char* const control = QTest::currentDataTag();
  main_->Open(test::FullDesign());
  InCalculator([&](Desk& desk) {
    desk.Others.Acts = {test::Cancels()};
    const QImage before = Picture(desk);
    desk.Press(control);
    QCOMPARE(Measures(desk), QStringList({" 5.000 ft", " 8.000 in", " 8.000 ft", " 0.065 in"}));
    QVERIFY(Picture(desk) == before);
    desk.Enter(control, "6");
    QTEST(Measures(desk), "measures");
    QTEST(Lengths(desk), "lengths");
    const bool isSeen = title != "Rim Width" && title != "Band Saw Length";
    QCOMPARE(Picture(desk) != before, isSeen);
    desk.Press("cmdOk");
  });
  QCOMPARE(asked_, QStringList({"frmCDialog: " + title, "frmCDialog: " + title}));
  QTEST(QStringList({Row("Wheel Diameter:"), Row("Wheel Rim Width:"), Row("Center to Center:"),
                     Row("Plate Thickness:")}),
        "measures");
}

void mainMachineTest::worksByKeysAlone() {
  main_->Open(test::FullDesign());
  InCalculator([](Desk& desk) {
    desk.Others.Acts = {test::TypesAndEnters("4 ft 6 in"), test::TypesAndEnters("9")};
    desk.Key(Qt::Key_Return);
    QCOMPARE(desk.Text("txtWheelDia"), QString(" 4.500 ft"));
    QVERIFY(desk.TabTo("txtCenters"));
    desk.Key(Qt::Key_Space);
    QCOMPARE(desk.Text("txtCenters"), QString(" 9.000 ft"));
    QVERIFY(desk.TabTo("chkLength(3)"));
    desk.Key(Qt::Key_Space);
    QCOMPARE(Ticked(desk), OutsideLength);
    QVERIFY(desk.TabTo("cmdOk"));
    desk.Key(Qt::Key_Return);
  });
  QCOMPARE(main_->Saw().Length, 32.75);  // 18 + 4.695 * pi, as it is shown
  QCOMPARE(Row("Wheel Diameter:"), QString(" 4.500 ft"));
}

void mainMachineTest::startsNothingElseMeanwhile() {
  main_->Open(test::FullDesign());
  const std::string before = Bytes(main_->Saw());
  InCalculator([&](Desk& desk) {
    for (const char* command : {"mnuItemNew", "mnuItemBandLength", "mnuItemPlateGauge", "mnuItemGeneral"}) {
      main_->Do(command);
    }
    QVERIFY(!main_->Window->close());
    QVERIFY(desk.Window.isVisible());
    QVERIFY(Bytes(main_->Saw()) == before);
    desk.Press("cmdCancel");
  });
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QTRY_VERIFY(!main_->Window->isVisible());  // asked again once the calculator is gone
}

// ---- OK and Cancel

void mainMachineTest::takesTheTickedLength_data() {
  QTest::addColumn<int>("row");
  QTest::addColumn<double>("length");
  QTest::addColumn<int>("teeth");
  QTest::newRow("own") << int{OwnLength} << 40.0 << 240;
  QTest::newRow("inside") << int{InsideLength} << 31.912 << 191;
  QTest::newRow("middle") << int{MiddleLength} << 32.116 << 193;
  QTest::newRow("outside") << int{OutsideLength} << 32.321 << 194;
}

void mainMachineTest::takesTheTickedLength() {
  QFETCH(int, row);
  QFETCH(double, length);
  QFETCH(int, teeth);
  BandSaw saw = test::FullDesign();
  saw.ContainsInfo = {};
  main_->Open(saw);
  const BandSaw before = main_->Saw();
  const QImage picture = main_->Picture();
  QCOMPARE(Row("Wheel Diameter:"), QString());
  Take(row);

  BandSaw after = before;
  after.ContainsInfo.Teeth = after.ContainsInfo.General = after.ContainsInfo.Machine = True;
  after.MachineInfo.InCenterOut = static_cast<std::int16_t>(row);
  after.Length = length;
  if (row != OwnLength) after.NumTeeth = 0;  // worked out anew from the pitch
  after = main_->Calculated(after);
  QCOMPARE(after.NumTeeth, std::int16_t(teeth));
  QVERIFY(Bytes(main_->Saw()) == Bytes(after));
  QVERIFY(main_->Drawing() == main_->Drawn(after));
  QCOMPARE(main_->Picture() != picture, row != OwnLength);
  QCOMPARE(Row("Length:"), QString(" %1 ft").arg(length, 0, 'f', 3));
  QCOMPARE(Row("Number Of Teeth:"), QString(" %1").arg(teeth));
  QCOMPARE(Row("Wheel Diameter:"), QString(" 5.000 ft"));
  QCOMPARE(main_->TextOf("txtLength"), QString(" %1 ft").arg(length, 0, 'f', 3));  // of the tooth shape
  QVERIFY(Bytes(Design().SawSaved) == Bytes(before));
  QVERIFY(Bytes(Design().SawEdit) == Bytes(before));
  QVERIFY(Boxes().empty());
}

void mainMachineTest::takesALengthOfItsOwn() {
  main_->Open(test::FullDesign());
  InCalculator([](Desk& desk) {
    desk.Enter("txtLength(0)", "36");
    QCOMPARE(Ticked(desk), OwnLength);
    desk.Press("cmdOk");
  });
  QCOMPARE(main_->Saw().Length, 36.0);
  QCOMPARE(main_->Saw().NumTeeth, std::int16_t(216));
  QCOMPARE(main_->Saw().Pitch, 2.0);
  // It gives way to the one that is ticked.
  InCalculator([](Desk& desk) {
    desk.Enter("txtLength(0)", "50");
    Tick(desk, InsideLength);
    desk.Press("cmdOk");
  });
  QCOMPARE(main_->Saw().Length, 31.912);
}

void mainMachineTest::takesTheMachineAlone() {
  main_->Open(WithoutMachine());
  BandSaw after = main_->Saw();
  InCalculator([](Desk& desk) {
    desk.Enter("txtWheelDia", "20");
    desk.Enter("txtRimWidth", "6 1/2");
    desk.Enter("txtCenters", "10");
    QCOMPARE(Measures(desk), QStringList({" 15.000 ft", " 6.500 in", " 15.300 ft", " 0.065 in"}));
    desk.Press("cmdOk");
  });
  after.ContainsInfo.Machine = True;
  after.MachineInfo.WheelDia = 15;
  after.MachineInfo.CenterToCenter = 15 * 1.02;
  after.MachineInfo.Width = 6.5;
  QVERIFY(Bytes(main_->Saw()) == Bytes(after));  // length and teeth as they were
}

void mainMachineTest::leavesTheDesignAloneOnCancel_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"button", "Escape", "close"}) QTest::newRow(how) << how;
}

void mainMachineTest::leavesTheDesignAloneOnCancel() {
  QFETCH(QString, how);
  main_->Open(test::FullDesign());
  const std::string before = Bytes(main_->Saw()), drawn = main_->Drawing();
  InCalculator([&](Desk& desk) {
    desk.Enter("txtWheelDia", "4");
    desk.Enter("txtPlateThick", ".1");
    desk.Enter("txtLength(0)", "20");
    Tick(desk, OutsideLength);
    if (how == "button") desk.Press("cmdCancel");
    if (how == "Escape") desk.Key(Qt::Key_Escape);
    if (how == "close") desk.Window.close();
    QVERIFY(!desk.Window.isVisible());
  });
  for (const BandSaw& saw : {main_->Saw(), Design().SawEdit, Design().SawSaved})
    QVERIFY(Bytes(saw) == before);
  QVERIFY(main_->Drawing() == drawn);
  QCOMPARE(Row("Length:"), QString(" 40.000 ft"));
  main_->Do("mnuItemGeneral");
  main_->Window->close();
  QVERIFY(Boxes().empty());
}

void mainMachineTest::asksAboutTheLengthNext_data() {
  QTest::addColumn<int>("answer");
  QTest::newRow("yes") << static_cast<int>(Button::Yes);
  QTest::newRow("no") << static_cast<int>(Button::No);
  QTest::newRow("cancel") << static_cast<int>(Button::Cancel);
}

void mainMachineTest::asksAboutTheLengthNext() {
  QFETCH(int, answer);
  main_->Open(test::FullDesign());
  const BandSaw before = main_->Saw();
  Take(MiddleLength);
  const BandSaw after = main_->Saw();
  main_->Program.Say.Answers = {static_cast<Button>(answer)};
  main_->Do("mnuItemToothShape");
  QCOMPARE(
      main_->Program.Say.Texts(),
      std::vector<std::string>{"Bandsaw has been changed!\nDo you wish to keep the existing changes?\n"});
  const bool isTakenBack = static_cast<Button>(answer) == Button::No;
  QVERIFY(Bytes(main_->Saw()) == Bytes(isTakenBack ? before : after));
  QCOMPARE(main_->TextOf("txtLength"), QString(isTakenBack ? " 40.000 ft" : " 32.116 ft"));
  const bool isStopped = static_cast<Button>(answer) == Button::Cancel;
  QCOMPARE(main_->Panel(), QString(isStopped ? "fraMain" : "fraToothShape"));
}

void mainMachineTest::keepsThePanel_data() {
  QTest::addColumn<QString>("panel");
  QTest::addColumn<QString>("box");
  QTest::addColumn<QString>("cancel");
  QTest::newRow("mnuItemToothShape") << "fraToothShape"
                                     << "txtLength"
                                     << "cmdToothCancel";
  QTest::newRow("mnuItemGeneral") << "fraGeneral"
                                  << "txtGenLength"
                                  << "cmdGeneralCancel";
  QTest::newRow("mnuItemVariable") << "fraVariable"
                                   << "txtLength"
                                   << "cmdVariableCancel";
}

/// The calculator opens over any editor; what that one goes back to is the design as it was then.
void mainMachineTest::keepsThePanel() {
  QFETCH(QString, panel);
  QFETCH(QString, box);
  QFETCH(QString, cancel);
  main_->Open(test::VariableDesign());
  main_->Do("mnuItemToothShape");
  main_->User.Acts = {test::Types("15")};
  QTest::mouseClick(Named<QWidget>(*main_->Window, "txtHook"), Qt::LeftButton);
  main_->Program.Say.Answers = {Button::Yes};
  if (panel != "fraToothShape") main_->Do(QTest::currentDataTag());
  QCOMPARE(main_->Panel(), panel);
  const BandSaw before = main_->Saw();
  Take(InsideLength);
  QCOMPARE(main_->Panel(), panel);
  QCOMPARE(main_->TextOf(qPrintable(box)), QString(" 31.912 ft"));
  test::Click(*main_->Window, qPrintable(cancel));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QCOMPARE(main_->Saw().HookAngle, 15.0);
  QCOMPARE(main_->Saw().Length, 40.0);
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
}

// ---- designs of little, and of other units

void mainMachineTest::opensOnADesignWithoutWheels() {
  main_->Open(WithoutMachine());
  const std::string before = Bytes(main_->Saw());
  InCalculator([&](Desk& desk) {
    QCOMPARE(Measures(desk), QStringList({"", "", "", " 0.065 in"}));
    QCOMPARE(Lengths(desk), QStringList({" 40.000 ft", "", "", ""}));
    const QImage picture = Picture(desk);
    QCOMPARE(test::CountOf(picture, Black), picture.width() * picture.height());
    for (const int row : {InsideLength, MiddleLength, OutsideLength}) {
      Tick(desk, row);
      QCOMPARE(Ticked(desk), OwnLength);
    }
    desk.Press("cmdOk");
  });
  QVERIFY(Bytes(main_->Saw()) == before);
  main_->Do("mnuItemGeneral");
  QVERIFY(Boxes().empty());
}

void mainMachineTest::beginsABlankDesign() {
  main_->OpenBlank();
  InCalculator([](Desk& desk) {
    desk.Enter("txtWheelDia", "5");
    desk.Enter("txtCenters", "10");
    QCOMPARE(Lengths(desk), QStringList({"", " 35.708 ft", "", ""}));
    Tick(desk, MiddleLength);
    QCOMPARE(Ticked(desk), OwnLength);
    Tick(desk, InsideLength);
    desk.Press("cmdOk");
  });
  BandSaw after;
  after.ContainsInfo.Teeth = after.ContainsInfo.Machine = True;
  after.MachineInfo.WheelDia = 5;
  after.MachineInfo.CenterToCenter = 10;
  after.MachineInfo.InCenterOut = InsideLength;
  after.Length = 35.708;
  QVERIFY(Bytes(main_->Saw()) == Bytes(after));
  QVERIFY(Design().Lines.Entities.empty());
  QCOMPARE(Row("Length:"), QString(" 35.708 ft"));
  main_->Program.Say.Answers = {Button::Cancel};
  main_->Window->close();  // it is a change
  QCOMPARE(Boxes().size(), std::size_t(1));
}

void mainMachineTest::takesMetresInAMetricDesign() {
  BandSaw saw = test::FullDesign();
  saw.ImpMetric = Metric;
  main_->Open(saw);
  InCalculator([](Desk& desk) {
    QCOMPARE(Measures(desk), QStringList({" 1.524 m", " 20.320 cm", " 2.438 m", " 1.651 mm"}));
    QCOMPARE(Lengths(desk), QStringList({" 12.192 m", " 9.727 m", " 9.789 m", " 9.851 m"}));
    desk.Enter("txtRimWidth", "20");
    desk.Enter("txtPlateThick", "1.5");
    QCOMPARE(desk.Text("txtRimWidth"), QString(" 20.000 cm"));
    QCOMPARE(desk.Text("txtLength(1)"), QString(" 9.721 m"));
    Tick(desk, InsideLength);
    desk.Press("cmdOk");
  });
  // The metres that were shown, in feet: 9.721 / 0.3048, rounded.
  QCOMPARE(main_->Saw().Length, 31.89304);
  QCOMPARE(Row("Length:"), QString(" 9.721 m"));
  QCOMPARE(main_->Saw().NumTeeth, std::int16_t(191));
  QVERIFY(std::abs(main_->Saw().MachineInfo.Width - 20 / 2.54) < 1e-5);
  QCOMPARE(main_->Saw().ImpMetric, std::int16_t(Metric));
}

// ---- the drawing as a file

void mainMachineTest::exportsTheDrawing_data() {
  QTest::addColumn<BandSaw>("saw");
  QTest::addColumn<QString>("centers");  // as the drawing says them
  BandSaw metric = test::FullDesign();
  metric.ImpMetric = Metric;
  QTest::newRow("imperial") << test::FullDesign() << "\r\n 8.000 ft           \r\n";
  QTest::newRow("metric") << metric << "\r\n 2.438 m            \r\n";
  QTest::newRow("without wheels") << WithoutMachine() << "ENTITIES\r\n 0 \r\nENDSEC\r\n";
}

void mainMachineTest::exportsTheDrawing() {
  QFETCH(BandSaw, saw);
  QFETCH(QString, centers);
  main_->Open(saw);
  const std::string before = Bytes(main_->Saw());
  main_->Program.Files.Paths = {Path("mill")};
  InCalculator([](Desk& desk) {
    desk.Press("cmdExportDxf");
    QVERIFY(desk.Window.isVisible());
    QVERIFY(!QGuiApplication::overrideCursor());
    desk.Press("cmdCancel");
  });
  const std::string design = Path("head.bsw"), drawing = Path("tool.dxf");
  const char* const words[] = {"tarnwick-cli", "--defaults", "machine",
                               design.c_str(), "-o",         drawing.c_str()};
  QCOMPARE(cli::RunTool(static_cast<int>(std::size(words)), words), 0);
  const std::string written = test::BytesOf(Path("mill.dxf"));
  QVERIFY(ToQt(written).contains(centers));
  QVERIFY(written == test::BytesOf(drawing));
  QVERIFY(Bytes(main_->Saw()) == before);
  QVERIFY(Boxes().empty());
}

void mainMachineTest::asksWhereTheDrawingGoes() {
  main_->Open(test::FullDesign());
  const std::string taken = main_->Folder.File("mill.dxf", "before").string();
  main_->Program.Files.Paths = {std::nullopt, Path("mill"), Path("no folder/mill.dxf")};
  main_->Program.Say.Answers = {Button::No};
  InCalculator([](Desk& desk) {
    for (int i = 0; i < 3; ++i) desk.Press("cmdExportDxf");
    desk.Press("cmdCancel");
  });
  const FileQuestion& asked = main_->Program.Files.Asked.front();
  QCOMPARE(main_->Program.Files.Modes.front(), std::string("save"));
  QCOMPARE(asked.Filter, std::string("DXF Files (*.dxf)|*.dxf|All Files (*.*)|*.*"));
  QCOMPARE(asked.Name, std::string("untitled.dxf"));
  QCOMPARE(asked.Folder, Path(""));
  QVERIFY(asked.WarnBeforeReplacing);
  QCOMPARE(Boxes().size(), std::size_t(2));
  QCOMPARE(Boxes()[0].Text, taken + "\nThis file already exists.\nDo you want to replace it?");
  QVERIFY(ToQt(Boxes()[1].Text).startsWith("Error "));
  QCOMPARE(test::BytesOf(taken), std::string("before"));
  QVERIFY(!fs::exists(Path("untitled.dxf")));
}

// ---- plate gauges

void mainMachineTest::opensThePlateGauges_data() {
  QTest::addColumn<QString>("how");
  QTest::addColumn<int>("units");
  QTest::newRow("mouse, imperial") << "mouse" << int{Imperial};
  QTest::newRow("keys, metric") << "keys" << int{Metric};
}

void mainMachineTest::opensThePlateGauges() {
  QFETCH(QString, how);
  QFETCH(int, units);
  BandSaw saw = test::FullDesign();
  saw.ImpMetric = static_cast<std::int16_t>(units);
  main_->Open(saw);
  main_->Do("mnuItemGeneral");
  const std::string before = Bytes(main_->Saw());
  main_->Program.Time.Waited.clear();
  Plan([&](Desk& desk) {
    QCOMPARE(main_->Program.Time.Waited.size(), std::size_t(1));
    QCOMPARE(desk.Window.parentWidget(), main_->Window.get());
    QVERIFY(desk.Window.isModal());
    // Both systems side by side, whichever is in use.
    const QStringList table = Named<QWidget>(desk.Window, "picGauge")->accessibleDescription().split('\n');
    QCOMPARE(table.size(), 14);
    QCOMPARE(table.first(), QString("GA, Inches, Millimeters"));
    QVERIFY(table.contains("16 ga, 0.065 in, 1.651 mm"));
    if (how == "mouse") desk.Press("cmdOk");
    if (how == "keys") desk.Key(Qt::Key_Return);
    QVERIFY(!desk.Window.isVisible());
  });
  test::Pick(*main_->Window, how, "mnuTables", "mnuItemPlateGauge");
  QCOMPARE(main_->User.Seen, QStringList("frmGauge: Plate Gauge"));
  QVERIFY(Bytes(main_->Saw()) == before);
  QCOMPARE(main_->Panel(), QString("fraGeneral"));
  QVERIFY(Boxes().empty());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainMachineTest)
#include "mainMachine_test.moc"
