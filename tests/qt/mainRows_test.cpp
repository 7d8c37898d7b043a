#include <QScrollBar>
#include <map>

#include "model/modDecim.h"
#include "platform/qt/RowList.h"
#include "qt/MainWindow.h"
#include "window/modDisplay.h"

namespace tarnwick {
namespace {

using test::Named;

const QString UseLength = "To change this value you must use the bandsaw length calculator.";
const QString UseVariable = "To change this value you must use the variable pitch editor.";
const QString UsePower = "To change this value you must use the power requirements editor.";
const QString UseGeneral = "To change this value you must use the general information editor.";

/// What a row does: the dialog that a click opens, or what it says, or nothing.
struct Act {
  QString Dialog, MustUse, Status, Hint;
};

Act Asks(const char* title, const char* status, const char* hint = "") {
  return {QString("frmCDialog: ") + title, {}, status, hint};
}
Act Owned(const QString& mustUse, const char* status = "") { return {{}, mustUse, status, {}}; }

const std::map<std::string, Act> Acts{
    {"Tooth Style:", Asks("BandSaw Tooth Style", "Click to activate tooth style input box.")},
    {"Length:", Asks("Band Saw Length", "Click to activate bandSaw length input box.")},
    {"Band Saw Width:", Asks("Band Saw Width", "Click to activate the bandsaw width input box.")},
    {"Number Of Teeth:", Asks("Number of Teeth", "Click to activate number of teeth input box.")},
    {"Tooth Spacing:", Asks("Tooth Pitch", "Click to activate the tooth pitch input box.")},
    {"Hook Angle:", Asks("Hook Angle", "Click to activate hook angle input box.",
                         "Hint: Add one degree to hook if BandSaw has a seat.")},
    {"Clearance Angle:", Asks("Clearance Angle", "Click to activate clearance angle input box.")},
    {"Sharpness Angle:", {}},
    {"1st Gullet Radius:",
     Asks("First Gullet Radius", "Click to activate the first gullet radius input box.")},
    {"2nd Gullet Radius:",
     Asks("Second Gullet Radius", "Click to activate the second gullet radius input box.")},
    {"3rd Gullet Radius:",
     Asks("Third Gullet Radius", "Click to activate the third gullet radius input box.")},
    {"Gullet Radius:", Asks("Gullet Radius", "Click to activate gullet radius input box.")},
    {"Gullet Width:", Asks("Gullet Width", "Click to activate the gullet width input box.")},
    {"Gullet Bottom Angle:", Asks("Gullet Bottom Angle", "Click to activate the bottom angle input box.")},
    {"Gullet Back Angle:", Asks("Gullet Back Angle", "Click to activate the tooth back angle input box.")},
    {"Frost Notch Width:", Asks("Frost Notch Width", "")},
    {"Frost Notch Height:", Asks("Frost Notch Height", "")},
    {"Frost Notch Radius:", Asks("Frost Notch Radius", "")},
    {"Frost Notch Angle:", Asks("Frost Notch Angle", "")},
    {"Gullet Depth:", Asks("Gullet Depth", "Click to activate the gullet depth input box.")},
    {"Gullet Back Radius:", Asks("Gullet Back Radius", "Click to activate the back radius input box.")},
    {"Gullet Area:", {{}, {}, "The area or average area of the tooth gullet.", {}}},
    {"Seat:", {"frmBDialog: Seat", {}, "Click to activate the seat input box.", {}}},
    {"Seat Width:", Asks("Seat Width", "Click to activate the seat width input box.")},
    {"Seat Height:", Asks("Seat Height", "Click to activate the seat height input box.")},
    {"Tip Clearance:", Asks("Tip Clearance", "Click to activate the tip clearance input box.")},
    {"Face Length:", {}},
    {"Teeth in Segment:", Owned(UseVariable)},
    {"Length of Segment:", Owned(UseVariable)},
    {"1st Tooth:", Owned(UseVariable)},
    {"2nd Tooth:", Owned(UseVariable)},
    {"3rd Tooth:", Owned(UseVariable)},
    {"    Pitch:", Owned(UseVariable)},
    {"    Depth:", Owned(UseVariable)},
    {"    Area:", Owned(UseVariable)},
    {"Number Of Saws:", Owned(UseGeneral, "Type the number of bandsaws required.")},
    {"Type of Tip:", Asks("BandSaw Tip Type", "Click to activate the type of tip input box.")},
    {"Join Bandsaw Ends:", Asks("BandSaw Join Style", "")},
    {"Teeth on Both Edges:", Owned(UseGeneral)},
    {"Plate Thickness:", Asks("Plate Thickness", "Click to activate the plate thickness input box.")},
    {"Cut Width (Kerf):", Asks("Tip Kerf", "Click to activate the tip kerf input box.")},
    {"Side Clearance:", {}},
    {"Wheel Diameter:", Owned(UseLength)},
    {"Center to Center:", Owned(UseLength)},
    {"Wheel Rim Width:", Owned(UseLength)},
    {"Wheel RPMs:", Owned(UsePower)},
    {"Tooth Speed:", Owned(UsePower)},
    {"Depth of Cut (Max):", Owned(UsePower)},
    {"Feed Rate:", Owned(UsePower)},
    {"Bite:", Owned(UsePower)},
    {"Type of Wood:", Owned(UsePower)},
    {"Horsepower:", Owned(UsePower)},
};

Act ActOf(const InfoRow& row, int style) {
  if (row.Header) return {};
  const auto found = Acts.find(row.Caption);
  if (found == Acts.end()) qFatal("nobody knows the row \"%s\"", row.Caption.c_str());
  Act act = found->second;
  const bool isResult = style == NarrowStyle || style == OShape;
  if (row.Caption == "Clearance Angle:" && isResult) act.Dialog.clear();
  return act;
}

/// A row, what is typed into its dialog, and what comes of it.
struct Typed {
  const char* Caption;
  const char* Text;
  const char* Shown;                    // the row's value then; empty: as it comes
  std::function<void(BandSaw&)> Store;  // ahead of the calculation
  int Style = TripleRadius;
};

using Saw = BandSaw;

const Typed Answers[] = {
    {"Tooth Style:", "Flat Bottom", " Flat Bottom", [](Saw& s) { s.ToothStyle = 6; }},
    {"Length:", "41", " 41.000 ft", [](Saw& s) { s.Length = 41, s.Pitch = 0; }},
    {"Number Of Teeth:", "200", " 200", [](Saw& s) { s.NumTeeth = 200, s.Pitch = 2.4; }},
    {"Number Of Teeth:", "9", " 9", [](Saw& s) { s.NumTeeth = 9, s.Pitch = 53.33333; }},
    {"Number Of Teeth:", "0", "", [](Saw& s) { s.NumTeeth = 0, s.Length = 0; }},
    {"Tooth Spacing:", "1.75", " 1.752 in", [](Saw& s) { s.NumTeeth = 274, s.Pitch = 1.75182; }},
    {"Band Saw Width:", "8 1/2", " 8.500 in", [](Saw& s) { s.Width = 8.5; }},
    {"Hook Angle:", "0", " 0.000 deg", [](Saw& s) { s.HookAngle = 0; }},
    {"Clearance Angle:", "9", " 9.000 deg", [](Saw& s) { s.ClearAngle = 9; }},
    {"1st Gullet Radius:", ".02", "", [](Saw& s) { s.GulletInfo.Radius1 = 0.02; }},
    {"2nd Gullet Radius:", ".2", "", [](Saw& s) { s.GulletInfo.Radius2 = 0.2; }},
    {"3rd Gullet Radius:", ".02", "", [](Saw& s) { s.GulletInfo.Radius3 = 0.02; }},
    {"Gullet Width:", ".75", "", [](Saw& s) { s.GulletInfo.Width = 0.75; }},
    {"Gullet Back Angle:", "22", " 22.000 deg", [](Saw& s) { s.GulletInfo.BackAngle = 22; }},
    {"Gullet Depth:", ".85", " 0.850 in", [](Saw& s) { s.GulletInfo.Depth = 0.85; }},
    {"Gullet Back Radius:", ".2", " 0.200 in", [](Saw& s) { s.GulletInfo.BackRadius = 0.2; }},
    {"Seat Width:", ".05", " 0.050 in", [](Saw& s) { s.SeatInfo.Width = 0.05; }},
    {"Seat Height:", ".1", " 0.100 in", [](Saw& s) { s.SeatInfo.Height = 0.1; }},
    {"Tip Clearance:", ".02", " 0.020 in", [](Saw& s) { s.TipClear = 0.02; }},
    {"Type of Tip:", "Stellite", " Stellite", [](Saw& s) { s.GeneralInfo.TipType = 1; }},
    {"Join Bandsaw Ends:", "Overlaped Join", " Overlap Join", [](Saw& s) { s.DesignInfo.JoinStyle = 1; }},
    {"Plate Thickness:", ".049", " 0.049 in",
     [](Saw& s) { s.GeneralInfo.PlateThick = 0.049, s.GeneralInfo.SideClear = 0.038; }},
    {"Cut Width (Kerf):", ".165", " 0.165 in",
     [](Saw& s) { s.GeneralInfo.Kerf = 0.165, s.GeneralInfo.SideClear = 0.05; }},
    {"Gullet Radius:", ".3", " 0.300 in", [](Saw& s) { s.GulletInfo.Radius = 0.3; }, SquareBack},
    {"Gullet Radius:", ".3", " 0.300 in", [](Saw& s) { s.GulletInfo.Radius = 0.3; }, NarrowStyle},
    {"1st Gullet Radius:", ".22", " 0.220 in", [](Saw& s) { s.GulletInfo.Radius1 = 0.22; }, OShape},
    {"Gullet Bottom Angle:", "8", " 8.000 deg", [](Saw& s) { s.GulletInfo.BottomAngle = 8; }, FlatBottom},
    {"Frost Notch Width:", "5", "", [](Saw& s) { s.GulletInfo.FrostWidth = 5; }, FrostTooth},
    {"Frost Notch Height:", ".3", " 0.300 in", [](Saw& s) { s.GulletInfo.FrostHeight = 0.3; }, FrostTooth},
    {"Frost Notch Radius:", ".04", " 0.040 in", [](Saw& s) { s.GulletInfo.FrostRadius = 0.04; }, FrostTooth},
    {"Frost Notch Angle:", "20", " 20.000 deg", [](Saw& s) { s.GulletInfo.FrostAngle = 20; }, FrostTooth},
};

}  // namespace

// The rows of the information panel: each at its place, by mouse and by keys, with its real dialog.
class mainRowsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void answersEveryRow_data() { Designs(); }
  void answersEveryRow();
  void answersEveryRowByKeys_data() { Designs(); }
  void answersEveryRowByKeys();
  void storesWhatIsTyped_data();
  void storesWhatIsTyped();
  void asksForTheSeat();

  void showsNothingOfABlankDesign();
  void beginsAnewAtTheTop();
  void liftsOutOneRow();
  void doesNothingOnOtherButtons();
  void opensNothingWhereThePressBeganElsewhere();

 private:
  void Designs();
  void Open();
  const SawInfo& Rows() { return rows_->Rows(); }
  /// Scrolls a row into sight and says where it is in the window.
  QPoint PlaceOf(const InfoRow& row);
  const InfoRow& RowCalled(const std::string& caption);
  QImage PictureOf(const InfoRow& row);

  std::unique_ptr<test::MainWindow> main_;
  RowList* rows_ = nullptr;
  QScrollBar* bar_ = nullptr;
};

void mainRowsTest::Designs() {
  QTest::addColumn<int>("style");  // 0: with a segment
  for (const int style : {0, 1, 2, 4, 5, 6, 7, 8, 9}) QTest::addRow("style %d", style) << style;
}

void mainRowsTest::Open() {
  QFETCH(int, style);
  BandSaw saw = style ? test::FullDesign(style) : test::VariableDesign();
  saw.BothEdges = style == RoundBack ? True : False;
  main_->Open(saw);
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  bar_ = Named<QScrollBar>(*main_->Window, "vscSawInfo");
  main_->Window->resize(900, 600);  // some rows are out of sight
  QApplication::processEvents();
}

QPoint mainRowsTest::PlaceOf(const InfoRow& row) {
  const auto* frame = Named<QWidget>(*main_->Window, "PicSlide");
  const QPoint middle(60, static_cast<int>((row.Box.Top + row.Box.Bottom) / 2));
  bar_->setValue(0);
  while (!frame->rect().adjusted(0, 0, 0, -20).contains(rows_->mapTo(frame, middle)) &&
         bar_->value() > bar_->minimum())
    QTest::keyClick(bar_, Qt::Key_Down);
  return rows_->mapTo(main_->Window.get(), middle);
}

const InfoRow& mainRowsTest::RowCalled(const std::string& caption) {
  for (const InfoRow& row : Rows()) {
    if (row.Caption == caption) return row;
  }
  qFatal("there is no row \"%s\"", caption.c_str());
}

QImage mainRowsTest::PictureOf(const InfoRow& row) {
  const QImage all = rows_->grab().toImage();
  return all.copy(0, static_cast<int>(std::lround(row.Box.Top)) + 1, all.width(), 14);
}

void mainRowsTest::answersEveryRow() {
  Open();
  QVERIFY(Rows().size() > 30);
  QVERIFY(bar_->minimum() < 0);
  const BandSaw before = main_->Saw();
  for (int i = 0; i < static_cast<int>(Rows().size()); ++i) {
    const InfoRow row = Rows()[static_cast<std::size_t>(i)];
    const QPoint place = PlaceOf(row);
    QVERIFY2(main_->Window->childAt(place) == rows_, row.Caption.c_str());
    main_->PointAt(place);
    if (row.Caption.empty()) {
      QVERIFY(!rows_->Highlighted());
      QTest::mouseClick(rows_, Qt::LeftButton, {}, rows_->mapFrom(main_->Window.get(), place));
      continue;
    }
    const Act act = ActOf(row, before.ToothStyle);
    QVERIFY2(rows_->Highlighted() && rows_->Highlighted()->Row == row.Row, row.Caption.c_str());
    QCOMPARE(PictureOf(row).pixelColor(2, 2), QColor(Qt::black));
    QVERIFY2(main_->Status() == act.Status || (row.Caption == "Clearance Angle:" && act.Dialog.isEmpty()),
             row.Caption.c_str());
    QVERIFY2(main_->Hint() == act.Hint, row.Caption.c_str());
    QCOMPARE(rows_->cursor().shape(), act.Dialog.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    main_->User.Seen.clear();
    if (!act.Dialog.isEmpty()) main_->User.Acts = {test::Cancels()};
    QTest::mouseClick(rows_, Qt::LeftButton, {}, rows_->mapFrom(main_->Window.get(), place));
    const QStringList dialogs = act.Dialog.isEmpty() ? QStringList() : QStringList{act.Dialog};
    QCOMPARE(main_->User.Seen, dialogs);
    if (!act.MustUse.isEmpty()) QCOMPARE(main_->Status(), act.MustUse);
    QVERIFY(BandSawText(main_->Saw()) == BandSawText(before));
  }
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainRowsTest::answersEveryRowByKeys() {
  Open();
  const auto* frame = Named<QWidget>(*main_->Window, "PicSlide");
  main_->PointAt(QPoint(60, 200));
  QVERIFY(main_->TabTo(rows_));
  QTest::keyClick(rows_, Qt::Key_Home);
  const BandSaw before = main_->Saw();
  for (int i = 0; i < static_cast<int>(Rows().size()); ++i) {
    const InfoRow row = Rows()[static_cast<std::size_t>(i)];
    if (row.Caption.empty()) continue;
    QVERIFY2(rows_->Highlighted() && rows_->Highlighted()->Row == row.Row, row.Caption.c_str());
    const QRect box(0, static_cast<int>(row.Box.Top), 10, 16);
    QVERIFY2(frame->rect().contains(QRect(rows_->mapTo(frame, box.topLeft()), box.size())),
             row.Caption.c_str());
    const Act act = ActOf(row, before.ToothStyle);
    QVERIFY2(main_->Hint() == act.Hint, row.Caption.c_str());
    main_->User.Seen.clear();
    if (!act.Dialog.isEmpty()) main_->User.Acts = {test::Escapes()};
    QTest::keyClick(rows_, i % 2 ? Qt::Key_Return : Qt::Key_Space);
    const QStringList dialogs = act.Dialog.isEmpty() ? QStringList() : QStringList{act.Dialog};
    QCOMPARE(main_->User.Seen, dialogs);
    if (!act.MustUse.isEmpty()) QCOMPARE(main_->Status(), act.MustUse);
    QVERIFY(BandSawText(main_->Saw()) == BandSawText(before));
    QTest::keyClick(main_->Window->focusWidget(), Qt::Key_Down);
  }
}

void mainRowsTest::storesWhatIsTyped_data() {
  QTest::addColumn<const Typed*>("row");
  for (const Typed& row : Answers)
    QTest::addRow("%s %s of style %d", row.Caption, row.Text, row.Style) << &row;
}

void mainRowsTest::storesWhatIsTyped() {
  QFETCH(const Typed*, row);
  main_->Open(test::FullDesign(row->Style));
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  bar_ = Named<QScrollBar>(*main_->Window, "vscSawInfo");
  const BandSaw before = main_->Saw(), edit = main_->Design().SawEdit;
  const std::string drawn = main_->Drawing();
  const InfoRow pressed = RowCalled(row->Caption);
  const QPoint place = PlaceOf(pressed);
  main_->User.Acts = {test::Types(row->Text)};
  QTest::mouseClick(rows_, Qt::LeftButton, {}, rows_->mapFrom(main_->Window.get(), place));
  QCOMPARE(main_->User.Seen, QStringList{ActOf(pressed, row->Style).Dialog});

  BandSaw expected = before;
  row->Store(expected);
  QVERIFY(main_->Drawing() == main_->Drawn(expected));
  expected = main_->Calculated(expected);
  QVERIFY(BandSawText(main_->Saw()) == BandSawText(expected));
  const SawInfo shown = BuildSawInfo(expected, main_->Design().Format(), rows_->width());
  QCOMPARE(Rows().size(), shown.size());
  for (std::size_t i = 0; i < shown.size(); ++i) {
    QCOMPARE(Rows()[i].Caption, shown[i].Caption);
    QCOMPARE(Rows()[i].Value, shown[i].Value);
  }
  if (*row->Shown) QCOMPARE(RowCalled(row->Caption).Value, std::string(row->Shown));
  QCOMPARE(bar_->value(), 0);

  // What the last editor accepted has not moved, so the next command asks.
  QVERIFY(BandSawText(main_->Design().SawEdit) == BandSawText(edit));
  main_->Do("mnuItemToothShape");
  if (SameSaw(expected, edit)) {
    QVERIFY(main_->Program.Say.Shown.empty());
    return;
  }
  QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(1));
  const Box& asked = main_->Program.Say.Shown.front();
  QCOMPARE(asked.Title, std::string("Changed"));
  QCOMPARE(asked.Text, std::string("Bandsaw has been changed!\nDo you wish to keep the existing changes?\n"));
  QVERIFY(asked.Offer == Buttons::YesNoCancel && asked.Shown == Icon::Question &&
          asked.Default == Button::Cancel);
  QCOMPARE(main_->Panel(), QString("fraMain"));
}

void mainRowsTest::asksForTheSeat() {
  main_->Open(test::FullDesign());
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  bar_ = Named<QScrollBar>(*main_->Window, "vscSawInfo");
  BandSaw expected = main_->Saw();
  const QPoint place = PlaceOf(RowCalled("Seat:"));
  main_->User.Acts = {test::Says("optNo")};
  QTest::mouseClick(rows_, Qt::LeftButton, {}, rows_->mapFrom(main_->Window.get(), place));
  expected.SeatInfo.State = False;
  QVERIFY(BandSawText(main_->Saw()) == BandSawText(main_->Calculated(expected)));
  for (const InfoRow& row : Rows()) QVERIFY(row.Caption.find("Seat") == std::string::npos);
}

void mainRowsTest::showsNothingOfABlankDesign() {
  main_->OpenBlank();
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  QVERIFY(Rows().empty());
  QTest::mouseClick(rows_, Qt::LeftButton, {}, {30, 30});
  QVERIFY(main_->TabTo(rows_));
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Return})
    QTest::keyClick(rows_, key);
  QVERIFY(main_->User.Seen.empty());
}

void mainRowsTest::beginsAnewAtTheTop() {
  main_->Open(test::VariableDesign());
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  bar_ = Named<QScrollBar>(*main_->Window, "vscSawInfo");
  main_->Window->resize(800, 600);
  QApplication::processEvents();
  QVERIFY(bar_->minimum() < -5);
  QCOMPARE(bar_->maximum(), 0);
  QCOMPARE(rows_->y(), 1);  // 12 units of 15 to the pixel
  QTest::keyClick(bar_, Qt::Key_Down);
  QCOMPARE(bar_->value(), -1);
  QCOMPARE(rows_->y(), -16);  // -238 units
  for (int i = 0; i < 10; ++i) QTest::keyClick(bar_, Qt::Key_PageDown);
  QCOMPARE(bar_->value(), bar_->minimum());
  const auto* frame = Named<QWidget>(*main_->Window, "PicSlide");
  const double foot = rows_->y() + Rows().back().Box.Bottom;
  QVERIFY(foot <= frame->height() && foot > frame->height() - 2 * RowHeight);
  main_->Window->resize(800, 620);
  QApplication::processEvents();
  QCOMPARE(bar_->value(), 0);
}

void mainRowsTest::liftsOutOneRow() {
  main_->Open(test::FullDesign());
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  bar_ = Named<QScrollBar>(*main_->Window, "vscSawInfo");
  const InfoRow first = RowCalled("Length:"), second = RowCalled("Hook Angle:");
  const QImage plain = PictureOf(first);
  main_->PointAt(PlaceOf(first));
  const QImage lifted = PictureOf(first);
  QVERIFY(lifted != plain);
  QImage inverse = plain;
  inverse.invertPixels();
  QCOMPARE(lifted.pixelColor(2, 2), inverse.pixelColor(2, 2));
  QTest::mouseMove(main_->Window.get(), PlaceOf(second));
  QCOMPARE(PictureOf(first), plain);
  QTest::mouseMove(main_->Window.get(), QPoint(40, 200));
  QApplication::processEvents();
  QVERIFY(!rows_->Highlighted());
  QCOMPARE(main_->Status(), QString());
}

void mainRowsTest::doesNothingOnOtherButtons() {
  main_->Open(test::FullDesign());
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
    QTest::mouseClick(rows_, button, {}, {60, 40});
  QVERIFY(main_->User.Seen.empty());
}

void mainRowsTest::opensNothingWhereThePressBeganElsewhere() {
  main_->Open(test::FullDesign());
  rows_ = Named<RowList>(*main_->Window, "picSawData");
  QTest::mouseRelease(rows_, Qt::LeftButton, {}, {60, 40});
  QVERIFY(main_->User.Seen.empty());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainRowsTest)
#include "mainRows_test.moc"
