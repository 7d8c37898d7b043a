#include "entry/modFormat.h"
#include "model/modDecim.h"
#include "qt/MainWindow.h"

namespace tarnwick {
namespace {

using test::Named;

/// Text of every kind in one comparison; a design of equal bytes is the same one.
std::string Bytes(const BandSaw& saw) { return BandSawText(saw); }

/// A box, the dialog that it opens, what is typed there, and what comes of it.
struct Typed {
  const char* Box;
  const char* Title;
  const char* Text;
  const char* Shown;
  std::function<void(BandSaw&)> Store;  // what the box does with it, ahead of the calculation
  int Style = SquareBack;
};

using Saw = BandSaw;

const Typed ToothBoxes[] = {
    {"txtToothStyle", "BandSaw Tooth Style", "Round Back", " Round Back", [](Saw& s) { s.ToothStyle = 2; }},
    {"txtLength", "Band Saw Length", "30", " 30.000 ft", [](Saw& s) { s.Length = 30, s.Pitch = 0; }},
    {"txtLength", "Band Saw Length", "30 ft + 6 in", " 30.500 ft",
     [](Saw& s) { s.Length = 30.5, s.Pitch = 0; }},
    {"txtLength", "Band Saw Length", "-3", " 0.000 ft", [](Saw& s) { s.Length = 0, s.Pitch = 0; }},
    {"txtNumTeeth", "Number of Teeth", "200", " 200", [](Saw& s) { s.NumTeeth = 200, s.Pitch = 0; }},
    {"txtNumTeeth", "Number of Teeth", "11", " 12", [](Saw& s) { s.NumTeeth = 12, s.Pitch = 0; }},
    {"txtPitch", "Tooth Pitch", "1 3/4", " 1.752 in", [](Saw& s) { s.NumTeeth = 274, s.Pitch = 1.75182; }},
    {"txtWidth", "Band Saw Width", "9", " 9.000 in", [](Saw& s) { s.Width = 9; }},
    {"txtHook", "Hook Angle", "20", " 20.000 deg", [](Saw& s) { s.HookAngle = 20; }},
    {"txtHook", "Hook Angle", "0", " 0.000 deg", [](Saw& s) { s.HookAngle = 0; }},
    {"txtClear", "Clearance Angle", "10", " 10.000 deg", [](Saw& s) { s.ClearAngle = 10; }},
    {"txtGulletRadius", "Gullet Radius", "1/4", " 0.250 in", [](Saw& s) { s.GulletInfo.Radius = 0.25; }},
    {"txtGulletBackAngle", "Gullet Back Angle", "25", " 25.000 deg",
     [](Saw& s) { s.GulletInfo.BackAngle = 25; }},
    {"txtGulletDepth", "Gullet Depth", ".9", " 0.900 in", [](Saw& s) { s.GulletInfo.Depth = 0.9; }},
    {"txtTipClearance", "Tip Clearance", ".05", " 0.050 in", [](Saw& s) { s.TipClear = 0.05; }},
    {"txtSeatWidth", "Seat Width", ".06", " 0.060 in", [](Saw& s) { s.SeatInfo.Width = 0.06; }},
    {"txtSeatHeight", "Seat Height", ".1", " 0.100 in", [](Saw& s) { s.SeatInfo.Height = 0.1; }},
    {"txtGulletBackRadius", "Gullet Back Radius", ".2", " 0.200 in",
     [](Saw& s) { s.GulletInfo.BackRadius = 0.2; }, RoundBack},
    {"txt1stGulletRad", "First Gullet Radius", ".15", " 0.150 in",
     [](Saw& s) { s.GulletInfo.Radius1 = 0.15; }, DoubleRadius},
    {"txt1stGulletRad", "First Gullet Radius", ".02", " 0.030 in",
     [](Saw& s) { s.GulletInfo.Radius1 = 0.03; }, DoubleRadius},
    {"txt2ndGulletRad", "Second Gullet Radius", ".05", "", [](Saw& s) { s.GulletInfo.Radius2 = 0.1; },
     DoubleRadius},
    {"txt2ndGulletRad", "Second Gullet Radius", ".5", " 0.500 in", [](Saw& s) { s.GulletInfo.Radius2 = 0.5; },
     DoubleRadius},
    {"txtGulletWidth", "Gullet Width", ".7", " 0.700 in", [](Saw& s) { s.GulletInfo.Width = 0.7; },
     DoubleRadius},
    {"txtGulletBackAngle", "Gullet Back Angle", "25", " 25.000 deg",
     [](Saw& s) { s.GulletInfo.BackAngle = 25; }, DoubleRadius},
    {"txt2ndGulletRad", "Second Gullet Radius", ".2", "", [](Saw& s) { s.GulletInfo.Radius2 = 0.375; },
     TripleRadius},
    {"txt3rdGulletRad", "Third Gullet Radius", ".01", "", [](Saw& s) { s.GulletInfo.Radius3 = 0.03; },
     TripleRadius},
    {"txt3rdGulletRad", "Third Gullet Radius", ".25", " 0.250 in",
     [](Saw& s) { s.GulletInfo.Radius3 = 0.25; }, TripleRadius},
    {"txt2ndGulletRad", "Second Gullet Radius", ".1", "", [](Saw& s) { s.GulletInfo.Radius2 = 0.125; },
     FlatBottom},
    {"txtGulletBottomAngle", "Gullet Bottom Angle", "8", " 8.000 deg",
     [](Saw& s) { s.GulletInfo.BottomAngle = 8; }, FlatBottom},
    {"txtGulletRadius", "Gullet Radius", ".3", " 0.300 in", [](Saw& s) { s.GulletInfo.Radius = 0.3; },
     NarrowStyle},
    {"txt1stGulletRad", "First Gullet Radius", ".22", " 0.220 in",
     [](Saw& s) { s.GulletInfo.Radius1 = 0.22; }, OShape},
    {"txtGulletWidth", "Gullet Width", ".75", " 0.750 in", [](Saw& s) { s.GulletInfo.Width = 0.75; }, OShape},
    {"txtFrostWidth", "Frost Notch Width", ".15", " 0.150 in", [](Saw& s) { s.GulletInfo.FrostWidth = 0.15; },
     FrostTooth},
    {"txtFrostWidth", "Frost Notch Width", "5", " 0.680 in", [](Saw& s) { s.GulletInfo.FrostWidth = 0.68; },
     FrostTooth},
    {"txtFrostWidth", "Frost Notch Width", ".01", " 0.060 in", [](Saw& s) { s.GulletInfo.FrostWidth = 0.06; },
     FrostTooth},
    {"txtFrostHeight", "Frost Notch Height", ".3", " 0.300 in",
     [](Saw& s) { s.GulletInfo.FrostHeight = 0.3; }, FrostTooth},
    {"txtFrostRadius", "Frost Notch Radius", ".04", " 0.040 in",
     [](Saw& s) { s.GulletInfo.FrostRadius = 0.04; }, FrostTooth},
    {"txtFrostAngle", "Frost Notch Angle", "20", " 20.000 deg", [](Saw& s) { s.GulletInfo.FrostAngle = 20; },
     FrostTooth},
    {"txt3rdGulletRad", "Third Gullet Radius", "-1", " 0.000 in", [](Saw& s) { s.GulletInfo.Radius3 = 0; },
     FrostTooth},
    {"txtGulletBackAngle", "Gullet Back Angle", "22", " 22.000 deg",
     [](Saw& s) { s.GulletInfo.BackAngle = 22; }, FrostTooth},
    {"txtGulletBackRadius", "Gullet Back Radius", ".2", " 0.200 in",
     [](Saw& s) { s.GulletInfo.BackRadius = 0.2; }, FrostTooth},
};

const Typed GeneralBoxes[] = {
    {"txtTipType", "BandSaw Tip Type", "Carbide", " Carbide", [](Saw& s) { s.GeneralInfo.TipType = 3; }},
    {"txtPlateThick", "Plate Thickness", ".049", " 0.049 in",
     [](Saw& s) { s.GeneralInfo.PlateThick = 0.049, s.GeneralInfo.SideClear = 0.038; }},
    {"txtKerf", "Tip Kerf", ".165", " 0.165 in",
     [](Saw& s) { s.GeneralInfo.Kerf = 0.165, s.GeneralInfo.SideClear = 0.05; }},
    {"txtJoinStyle", "BandSaw Join Style", "Overlaped Join", " Overlap Join",
     [](Saw& s) { s.DesignInfo.JoinStyle = 1; }},
};

struct StyleFields {
  int Style;
  const char* Name;
  const char* Boxes;  // of those that come and go with the style
};

const StyleFields FieldsByStyle[] = {
    {1, "Square Back", "txtGulletRadius txtGulletBackAngle"},
    {2, "Round Back", "txtGulletRadius txtGulletBackAngle txtGulletBackRadius"},
    {4, "Double Radius",
     "txt1stGulletRad txt2ndGulletRad txtGulletWidth txtGulletBackAngle txtGulletBackRadius"},
    {5, "Triple Radius",
     "txt1stGulletRad txt2ndGulletRad txt3rdGulletRad txtGulletWidth txtGulletBackAngle txtGulletBackRadius"},
    {6, "Flat Bottom",
     "txt1stGulletRad txt2ndGulletRad txtGulletBottomAngle txtGulletWidth txtGulletBackAngle "
     "txtGulletBackRadius"},
    {7, "Narrow Style", "txtGulletRadius"},
    {8, "O Shape", "txt1stGulletRad txtGulletWidth"},
    {9, "Frost Tooth",
     "txtFrostWidth txtFrostHeight txtFrostRadius txtFrostAngle txt1stGulletRad txt2ndGulletRad "
     "txt3rdGulletRad "
     "txtGulletWidth txtGulletBackAngle txtGulletBackRadius"},
};

const char* const BoxesOfStyles[] = {"txtFrostWidth",   "txtFrostHeight",     "txtFrostRadius",
                                     "txtFrostAngle",   "txtGulletRadius",    "txt1stGulletRad",
                                     "txt2ndGulletRad", "txt3rdGulletRad",    "txtGulletBottomAngle",
                                     "txtGulletWidth",  "txtGulletBackAngle", "txtGulletBackRadius"};

const char* const BoxesOfAll[] = {"txtToothStyle",   "txtLength",     "txtNumTeeth",   "txtPitch",
                                  "txtWidth",        "txtHook",       "txtClear",      "txtGulletDepth",
                                  "txtTipClearance", "txtSeat",       "txtSeatWidth",  "txtSeatHeight",
                                  "txtSharpAngle",   "txtFaceLength", "txtGulletArea", "txtAreaBelowTip"};

struct Hinted {
  const char* Box;
  const char* Status;
  const char* Hint = "";
  const char* MustUse = "";  // what a click says
};

const char* const UseTooth = "To change this value you must use the tooth shape editor.";
const char* const UseLength = "To change this value you must use the bandsaw length calculator.";
const char* const UseVariable = "To change this value you must use the variable pitch editor.";
const char* const UsePower = "To change this value you must use the power requirements editor.";
const char* const UseGeneral = "To change this value you must use the general information editor.";
const char* const Comments = "For additional comments!";
const char* const CommentLength = "Maximum 40 characters per line.";

const Hinted ToothHints[] = {
    {"txtToothStyle", "Click to activate tooth style input box."},
    {"txtLength", "Click to activate bandSaw length input box."},
    {"txtNumTeeth", "Click to activate number of teeth input box."},
    {"txtPitch", "Click to activate the tooth pitch input box."},
    {"txtWidth", "Click to activate the bandsaw width input box."},
    {"txtHook", "Click to activate hook angle input box.",
     "Hint: Add one degree to hook if BandSaw has a seat."},
    {"txtClear", "Click to activate clearance angle input box."},
    {"txtFrostWidth", ""},
    {"txtFrostHeight", ""},
    {"txtFrostRadius", ""},
    {"txtFrostAngle", ""},
    {"txt1stGulletRad", "Click to activate the first gullet radius input box."},
    {"txt2ndGulletRad", "Click to activate the second gullet radius input box."},
    {"txt3rdGulletRad", "Click to activate the third gullet radius input box."},
    {"txtGulletWidth", "Click to activate the gullet width input box."},
    {"txtGulletBackAngle", "Click to activate the tooth back angle input box."},
    {"txtGulletDepth", "Click to activate the gullet depth input box."},
    {"txtGulletBackRadius", "Click to activate the back radius input box."},
    {"txtTipClearance", "Click to activate the tip clearance input box."},
    {"txtSeat", "Click to activate the seat input box."},
    {"txtSeatWidth", "Click to activate the seat width input box."},
    {"txtSeatHeight", "Click to activate the seat height input box."},
    {"txtToothTipType", "", "", UseGeneral},
    {"txtToothPlateThick", "", "", UseGeneral},
    {"txtToothKerf", "", "", UseGeneral},
    {"txtSharpAngle", ""},
    {"txtFaceLength", ""},
    {"txtGulletArea", "The area or average area of the tooth gullet."},
    {"txtAreaBelowTip", "The area or average area of gullet below tip."},
    {"cmdToothOK", "Click to accept the tooth shape values."},
    {"cmdToothCancel", "Click to discard any tooth shape changes."},
};

const Hinted GeneralHints[] = {
    {"txtDesignBy", "Type the name of the bandsaws designer here."},
    {"txtCustName", "Type the name of the company the bandsaw is for."},
    {"txtQuantity", "Type the number of bandsaws required."},
    {"txtTipType", "Click to activate the type of tip input box."},
    {"txtPlateThick", "Click to activate the plate thickness input box."},
    {"txtKerf", "Click to activate the tip kerf input box."},
    {"txtSideClear", ""},
    {"txtJoinStyle", ""},
    {"txtAdditional1st", Comments, CommentLength},
    {"txtAdditional2nd", Comments, CommentLength},
    {"txtAdditional3rd", Comments, CommentLength},
    {"txtGenToothStyle", "", "", UseTooth},
    {"txtGenLength", "", "", UseTooth},
    {"txtGenWidth", "", "", UseTooth},
    {"txtGenNumTeeth", "", "", UseTooth},
    {"txtGenPitch", "", "", UseTooth},
    {"txtGenHook", "", "", UseTooth},
    {"txtGenTeethInSegment", "", "", UseVariable},
    {"txtGenSegmentLength", "", "", UseVariable},
    {"txtGenWheelDia", "", "", UseLength},
    {"txtGenCenters", "", "", UseLength},
    {"txtGenRimWidth", "", "", UseLength},
    {"txtGenShaftSpeed", "", "", UsePower},
    {"txtGenDepthOfCut", "", "", UsePower},
    {"txtGenFeedRate", "", "", UsePower},
    {"txtGenWoodType", "", "", UsePower},
    {"txtGenHorsePower", "", "", UsePower},
    {"cmdGeneralOK", "Click to accept the general information values."},
    {"cmdGeneralCancel", "Click to discard any general information changes."},
    {"optImperial", "Click to change to imperial measurements."},
    {"optMetric", "Click to change to metric measurements."},
};

}  // namespace

// The boxes of the two editors in the real window, with real dialogs, clicks and keys. What a design should
// become is worked out from what was typed, without the window.
class mainPanelsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void asksForTheTooth_data();
  void asksForTheTooth();
  void asksForTheGeneral_data();
  void asksForTheGeneral();
  void asksForTheSeat();
  void tellsAZeroOnlyWhileItIsNew();
  void opensNoSeatBoxWithoutASeat();
  void opensNoClearanceWhereItIsAResult();

  void showsTheBoxesOfAStyle_data();
  void showsTheBoxesOfAStyle();
  void fillsAFrostTooth();
  void refusesAStyleThatThereIsNone();

  void explainsTheTooth();
  void explainsTheGeneral();
  void explainsTheUnitsByTab();
  void explainsNothingThatTheMouseHasLeft();

  void takesTypedTexts();
  void takesNothingByBeingOpened();
  void ticksBothEdges();

 private:
  void AskIn(const char* command);
  void Explain(std::span<const Hinted> rows);
  void Rows(std::span<const Typed> rows);

  std::unique_ptr<test::MainWindow> main_;
};

// ---- boxes that ask

void mainPanelsTest::Rows(std::span<const Typed> rows) {
  QTest::addColumn<const Typed*>("row");
  for (const Typed& row : rows) QTest::addRow("%s of style %d: %s", row.Box, row.Style, row.Text) << &row;
}

void mainPanelsTest::asksForTheTooth_data() { Rows(ToothBoxes); }
void mainPanelsTest::asksForTheTooth() { AskIn("mnuItemToothShape"); }
void mainPanelsTest::asksForTheGeneral_data() { Rows(GeneralBoxes); }
void mainPanelsTest::asksForTheGeneral() { AskIn("mnuItemGeneral"); }

// Four ways in: three of them are thought better of, the fourth is gone to its end.
void mainPanelsTest::AskIn(const char* command) {
  QFETCH(const Typed*, row);
  main_->Open(test::FullDesign(row->Style));
  main_->Do(command);
  auto* box = Named<QLineEdit>(*main_->Window, row->Box);
  auto* label = Named<QLabel>(*main_->Window, ("lbl" + std::string(row->Box + 3)).c_str());
  const QString dialog = QString("frmCDialog: ") + row->Title;
  const BandSaw before = main_->Saw();
  const QString shownBefore = box->text();
  const QImage picture = main_->Picture();

  main_->User.Acts = {test::Cancels(), test::Escapes(), test::Cancels()};
  QVERIFY(main_->BringUp(box));
  QTest::mouseClick(box, Qt::LeftButton);
  QVERIFY(main_->BringUp(label));
  QTest::mouseClick(label, Qt::LeftButton);
  QVERIFY(main_->TabTo(box));
  QVERIFY(!box->visibleRegion().isEmpty());
  QTest::keyClick(box, Qt::Key_Space);
  QCOMPARE(main_->User.Seen, QStringList({dialog, dialog, dialog}));
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QCOMPARE(box->text(), shownBefore);
  QVERIFY(main_->Picture() == picture);
  QCOMPARE(main_->Window->focusWidget(), static_cast<QWidget*>(box));

  main_->User.Acts = {test::TypesAndEnters(row->Text)};
  main_->User.Seen.clear();
  const std::size_t saved = main_->Program.Store.Saved().size();
  QTest::keyClick(box, Qt::Key_Return);
  QCOMPARE(main_->User.Seen, QStringList{dialog});
  QVERIFY(main_->Program.Store.Saved().size() > saved);

  BandSaw expected = before;
  row->Store(expected);
  const std::string drawn = main_->Drawn(expected);
  expected = main_->Calculated(expected);
  QVERIFY(Bytes(main_->Saw()) == Bytes(expected));
  QVERIFY(main_->Drawing() == drawn);
  if (*row->Shown) QCOMPARE(box->text(), QString::fromUtf8(row->Shown));
  QCOMPARE(main_->Picture() == picture, drawn == main_->Drawn(before));
  QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(before));

  // What the calculation has made of the others shows as well.
  const DisplayFormat format = main_->Design().Format();
  for (const std::span<const PanelField> fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      auto* other = main_->Window->findChild<QLineEdit*>(ToQt(field.Control));
      const auto text = other == box ? AcceptedText(field, expected, format) : field.Shown(expected, format);
      if (other) QCOMPARE(other->text(), ToQt(text));
    }
  }
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainPanelsTest::asksForTheSeat() {
  main_->Open(test::FullDesign(SquareBack));
  main_->Do("mnuItemToothShape");
  auto* box = Named<QLineEdit>(*main_->Window, "txtSeat");
  const BandSaw before = main_->Saw();
  QCOMPARE(box->text(), QString(" Yes"));
  main_->User.Acts = {test::Cancels(), test::Says("optNo"), test::Says("optYes")};
  QVERIFY(main_->BringUp(box));
  QTest::mouseClick(box, Qt::LeftButton);
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QTest::keyClick(box, Qt::Key_Space);
  QCOMPARE(main_->Saw().SeatInfo.State, False);
  QCOMPARE(box->text(), QString(" No"));
  BandSaw expected = before;
  expected.SeatInfo.State = False;
  expected = main_->Calculated(expected);
  QVERIFY(Bytes(main_->Saw()) == Bytes(expected));
  QTest::mouseClick(Named<QLabel>(*main_->Window, "lblSeat"), Qt::LeftButton);
  QCOMPARE(main_->Saw().SeatInfo.State, True);
  QCOMPARE(main_->User.Seen, QStringList({"frmBDialog: Seat", "frmBDialog: Seat", "frmBDialog: Seat"}));
}

// A zero is a measure that is not set; but who has just given one wants to see that it was taken.
void mainPanelsTest::tellsAZeroOnlyWhileItIsNew() {
  BandSaw design = test::FullDesign(RoundBack);
  design.TipClear = 0;
  main_->Open(design);
  main_->Do("mnuItemToothShape");
  QCOMPARE(main_->TextOf("txtTipClearance"), QString());
  const auto give = [this](const char* box, const char* text) {
    main_->User.Acts = {test::TypesAndEnters(text)};
    auto* asked = Named<QLineEdit>(*main_->Window, box);
    QVERIFY(main_->BringUp(asked));
    QTest::mouseClick(asked, Qt::LeftButton);
  };
  give("txtHook", "0");
  QCOMPARE(main_->TextOf("txtHook"), QString(" 0.000 deg"));
  give("txtTipClearance", "0");
  give("txtClear", "9");
  QCOMPARE(main_->TextOf("txtHook"), QString(" 0.000 deg"));
  QCOMPARE(main_->TextOf("txtTipClearance"), QString(" 0.000 in"));

  test::Click(*main_->Window, "optMetric");  // no unit stays that is not in force
  QCOMPARE(main_->TextOf("txtTipClearance"), QString());
  give("txtTipClearance", "0");
  QCOMPARE(main_->TextOf("txtTipClearance"), QString(" 0.000 mm"));
  give("txtTipClearance", "2");
  QCOMPARE(main_->TextOf("txtTipClearance"), QString(" 2.000 mm"));

  test::Click(*main_->Window, "cmdToothOK");
  main_->Do("mnuItemToothShape");
  QCOMPARE(main_->TextOf("txtHook"), QString());
  QCOMPARE(main_->TextOf("txtTipClearance"), QString(" 2.000 mm"));
  main_->Do("mnuItemGeneral");
  QCOMPARE(main_->TextOf("txtGenHook"), QString());
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainPanelsTest::opensNoSeatBoxWithoutASeat() {
  BandSaw saw = test::FullDesign(SquareBack);
  saw.SeatInfo.State = False;
  main_->Open(saw);
  main_->Do("mnuItemToothShape");
  for (const char* name : {"txtSeatWidth", "txtSeatHeight"}) {
    auto* box = Named<QLineEdit>(*main_->Window, name);
    QVERIFY(main_->BringUp(box));
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClick(box, Qt::Key_Return);
    QTest::mouseClick(Named<QLabel>(*main_->Window, ("lbl" + std::string(name + 3)).c_str()), Qt::LeftButton);
  }
  QVERIFY(main_->User.Seen.empty());
}

void mainPanelsTest::opensNoClearanceWhereItIsAResult() {
  for (const int style : {NarrowStyle, OShape}) {
    main_ = std::make_unique<test::MainWindow>();
    main_->Open(test::FullDesign(style));
    main_->Do("mnuItemToothShape");
    auto* box = Named<QLineEdit>(*main_->Window, "txtClear");
    QVERIFY(box->isVisible());
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(main_->User.Seen.empty());
    QCOMPARE(box->text(), ToQt(FormatNumber(main_->Saw().ClearAngle, Degrees, main_->Design().Format())));
  }
}

// ---- styles

void mainPanelsTest::showsTheBoxesOfAStyle_data() {
  QTest::addColumn<const StyleFields*>("row");
  for (const StyleFields& row : FieldsByStyle) QTest::newRow(row.Name) << &row;
}

void mainPanelsTest::showsTheBoxesOfAStyle() {
  QFETCH(const StyleFields*, row);
  main_->Open(test::FullDesign(row->Style == SquareBack ? TripleRadius : SquareBack));
  main_->Do("mnuItemToothShape");
  main_->User.Acts = {[row](QDialog& dialog) {
    QTest::keyClicks(dialog.focusWidget(), row->Name);
    test::Click(dialog, "cmdOk");
  }};
  QTest::mouseClick(Named<QWidget>(*main_->Window, "txtToothStyle"), Qt::LeftButton);
  QCOMPARE(int(main_->Saw().ToothStyle), row->Style);
  QCOMPARE(main_->TextOf("txtToothStyle"), QString(' ') + row->Name);
  const QStringList expected = QString(row->Boxes).split(' ');
  QStringList shown, labelled;
  for (const char* name : BoxesOfStyles) {
    if (Named<QWidget>(*main_->Window, name)->isVisible()) shown += name;
    if (Named<QWidget>(*main_->Window, ("lbl" + std::string(name + 3)).c_str())->isVisible())
      labelled += name;
  }
  QCOMPARE(QSet<QString>(shown.begin(), shown.end()), QSet<QString>(expected.begin(), expected.end()));
  QCOMPARE(labelled, shown);
  for (const char* name : BoxesOfAll) QVERIFY2(Named<QWidget>(*main_->Window, name)->isVisible(), name);
}

void mainPanelsTest::fillsAFrostTooth() {
  BandSaw saw = test::FullDesign(SquareBack);
  BandSaw::Gullet& g = saw.GulletInfo;
  g.Radius1 = g.Radius2 = g.FrostWidth = g.FrostHeight = g.FrostRadius = g.FrostAngle = 0;
  main_->Open(saw);
  main_->Do("mnuItemToothShape");
  BandSaw expected = main_->Saw();
  main_->User.Acts = {test::Types("Frost Tooth")};
  QTest::mouseClick(Named<QWidget>(*main_->Window, "txtToothStyle"), Qt::LeftButton);
  expected.ToothStyle = FrostTooth;
  expected.GulletInfo.Radius1 = 0.35;
  expected.GulletInfo.FrostAngle = 25;
  expected.GulletInfo.FrostRadius = 0.03937;
  expected.GulletInfo.FrostHeight = 2 * 0.03937;
  expected.GulletInfo.FrostWidth = 2.2 * 0.03937;
  QVERIFY(Bytes(main_->Saw()) == Bytes(main_->Calculated(expected)));
  QCOMPARE(main_->TextOf("txtFrostRadius"), QString(" 0.039 in"));
  QCOMPARE(main_->TextOf("txtFrostWidth"), QString(" 0.087 in"));
  QCOMPARE(main_->TextOf("txt1stGulletRad"), QString(" 0.350 in"));
}

void mainPanelsTest::refusesAStyleThatThereIsNone() {
  main_->Open(test::FullDesign(SquareBack));
  main_->Do("mnuItemToothShape");
  const BandSaw before = main_->Saw();
  main_->User.Acts = {test::Types("Shark")};
  QTest::mouseClick(Named<QWidget>(*main_->Window, "txtToothStyle"), Qt::LeftButton);
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QCOMPARE(main_->TextOf("txtToothStyle"), QString(" Square Back"));
}

// ---- hints and owners

void mainPanelsTest::Explain(std::span<const Hinted> rows) {
  for (const Hinted& row : rows) {
    auto* box = Named<QWidget>(*main_->Window, row.Box);
    QVERIFY2(main_->BringUp(box), row.Box);
    main_->PointAt(box);
    QVERIFY2(main_->Status() == row.Status, row.Box);
    QVERIFY2(main_->Hint() == row.Hint, row.Box);
    for (const char* line : {"lblStatus", "lblHint"}) {
      const auto* label = Named<QLabel>(*main_->Window, line);
      QVERIFY2(label->accessibleDescription() == label->text(), row.Box);
    }
    auto* label = main_->Window->findChild<QLabel*>("lbl" + QString(row.Box).mid(3));
    if (label) {
      QVERIFY2(main_->BringUp(label), row.Box);
      main_->PointAt(label);
      QVERIFY2(main_->Status() == row.Status, row.Box);
    }
    if (!*row.MustUse) continue;
    QTest::mouseClick(box, Qt::LeftButton);
    QVERIFY2(main_->Status() == row.MustUse, row.Box);
    QCOMPARE(main_->Hint(), QString());
    QCOMPARE(box->accessibleDescription(),
             QString(row.MustUse));  // people who listen hear it ahead of a click
    main_->PointAt(QPoint(40, 300));
    QCOMPARE(main_->Status(), QString());
    QTest::keyClick(box, Qt::Key_Return);
    QVERIFY2(main_->Status() == row.MustUse, row.Box);
  }
  main_->PointAt(QPoint(60, 300));
  QCOMPARE(main_->Status(), QString());
  QVERIFY(main_->User.Seen.empty());
}

void mainPanelsTest::explainsTheTooth() {
  main_->Open(test::FullDesign(FrostTooth));
  main_->Do("mnuItemToothShape");
  Explain(ToothHints);
}

void mainPanelsTest::explainsTheGeneral() {
  main_->Open(test::VariableDesign());
  main_->Do("mnuItemGeneral");
  Explain(GeneralHints);
}

void mainPanelsTest::explainsTheUnitsByTab() {
  main_->Open(test::FullDesign());
  main_->PointAt(QPoint(40, 300));
  auto* option = Named<QWidget>(*main_->Window, "optImperial");
  QVERIFY(main_->TabTo(option));
  QCOMPARE(main_->Status(), QString("Click to change to imperial measurements."));
  QCOMPARE(option->accessibleDescription(), main_->Status());
  QTest::keyClick(option, Qt::Key_Tab);
  QVERIFY(!option->hasFocus());
  QVERIFY(main_->Status() != option->accessibleDescription());

  // A panel that goes hands its focus on, as if by Tab.
  main_->Do("mnuItemToothShape");
  main_->PointAt(QPoint(40, 300));
  auto* ok = Named<QWidget>(*main_->Window, "cmdToothOK");
  QVERIFY(main_->TabTo(ok));
  QTest::keyClick(ok, Qt::Key_Space);
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QCOMPARE(main_->Status(), QString());
}

/// A quick hand passes over no background between a control and the bar at the foot.
void mainPanelsTest::explainsNothingThatTheMouseHasLeft() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemToothShape");
  auto* clock = Named<QWidget>(*main_->Window, "panTimeDate");
  for (const char* control : {"optImperial", "optMetric", "txtHook", "lblHook", "cmdToothOK", "tlbNew"}) {
    main_->PointAt(Named<QWidget>(*main_->Window, control));
    QVERIFY2(!main_->Status().isEmpty(), control);
    QTest::mouseMove(main_->Window.get(), clock->mapTo(main_->Window.get(), clock->rect().center()));
    QApplication::processEvents();
    QVERIFY2(main_->Status().isEmpty(), control);
    QVERIFY2(main_->Hint().isEmpty(), control);
  }
}

// ---- texts

void mainPanelsTest::takesTypedTexts() {
  BandSaw saw = test::FullDesign();
  saw.ContainsInfo.General = False;
  saw.GeneralInfo.Quantity = 0;
  main_->Open(saw);
  main_->Do("mnuItemGeneral");
  const auto type = [this](const char* box, const QString& text) {
    auto* edit = Named<QLineEdit>(*main_->Window, box);
    QVERIFY(main_->BringUp(edit));
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClicks(edit, text);
  };
  type("txtDesignBy", QString(60, 'a'));
  type("txtCustName", "Oak & Sons");
  type("txtQuantity", "12");
  type("txtAdditional1st", QString(50, 'b'));
  type("txtAdditional2nd", "two");
  type("txtAdditional3rd", "1/2\" too long");
  const BandSaw& now = main_->Saw();
  QCOMPARE(now.CustomerInfo.DesignBy.Trimmed(), std::string(50, 'a'));
  QCOMPARE(now.CustomerInfo.CustName.Trimmed(), std::string("Oak & Sons"));
  QCOMPARE(now.GeneralInfo.Quantity, 12);
  QCOMPARE(now.DesignInfo.Comment1.Trimmed(), std::string(40, 'b'));
  QCOMPARE(now.DesignInfo.Comment2.Trimmed(), std::string("two"));
  QCOMPARE(now.DesignInfo.Comment3.Trimmed(), std::string("1/2\" too long"));
  QCOMPARE(now.ContainsInfo.General, True);
  test::Click(*main_->Window, "cmdGeneralOK");
  main_->Do("mnuItemGeneral");
  QCOMPARE(main_->TextOf("txtAdditional3rd"), "1/2\" too long");
  QCOMPARE(main_->TextOf("txtQuantity"), QString("12"));
}

void mainPanelsTest::takesNothingByBeingOpened() {
  for (const bool blank : {false, true}) {
    main_ = std::make_unique<test::MainWindow>();
    if (blank)
      main_->OpenBlank();
    else
      main_->Open(test::FullDesign());
    const BandSaw before = main_->Saw();
    for (const char* command : {"mnuItemGeneral", "mnuItemToothShape", "mnuItemMain"}) {
      main_->Do(command);
      for (int i = 0; i < 80; ++i) QTest::keyClick(main_->Window->focusWidget(), Qt::Key_Tab);
      QVERIFY(Bytes(main_->Saw()) == Bytes(before));
    }
    QVERIFY(main_->Program.Say.Shown.empty());
    QVERIFY(main_->User.Seen.empty());
  }
}

void mainPanelsTest::ticksBothEdges() {
  main_->Open(test::FullDesign(SquareBack));
  main_->Do("mnuItemGeneral");
  const BandSaw before = main_->Saw();
  test::Click(*main_->Window, "chkBothEdges");
  BandSaw expected = before;
  expected.BothEdges = True;
  QVERIFY(main_->Drawing() == main_->Drawn(expected));
  QVERIFY(Bytes(main_->Saw()) == Bytes(main_->Calculated(expected)));
  test::Click(*main_->Window, "cmdGeneralCancel");
  QVERIFY(main_->Drawing() == main_->Drawn(before));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainPanelsTest)
#include "mainPanels_test.moc"
