#include <QScrollBar>
#include <QSignalSpy>

#include "model/modZoom.h"
#include "qt/MainWindow.h"
#include "shell/frmCfg.h"

namespace tarnwick {
namespace {

using test::Named;

std::string Bytes(const BandSaw& saw) { return BandSawText(saw); }

struct Command {
  const char* Item;
  const char* Caption;
  const char* Button;  // of the tool bar
  const char* Panel;
};

const Command Commands[] = {
    {"mnuItemMain", "Main Screen", "tlbMain", "fraMain"},
    {"mnuItemGeneral", "General Information", "tlbGeneral", "fraGeneral"},
    {"mnuItemToothShape", "Tooth Shape Editor", "tlbTeeth", "fraToothShape"},
};

}  // namespace

// Going from editor to editor, and out of them, by menu, tool bar and buttons; units, quick click and help.
class mainEditorsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void opensAPanelByMenuAndButton_data() { Panels(); }
  void opensAPanelByMenuAndButton();
  void asksAboutChanges_data() { Panels(); }
  void asksAboutChanges();
  void asksAgainAfterYesOnTheSamePanel();
  void goesToTrueSizeForTheTooth();

  void acceptsTheTooth();
  void cancelsTheTooth();
  void acceptsTheGeneral();
  void cancelsTheGeneral();
  void cancelsToTheLastOk();

  void changesTheUnits();
  void opensAMetricDesign();
  void restoresTheUnitsOnCancel();
  void typesInTheUnitsThatShow();

  void turnsTheQuickClickOffAndOn();
  void opensTheHelpOfTheFocus();
  void drawsOnlyForAChange();
  void viewsBesideEveryPanel();

 private:
  void Panels();
  void Answer(const char* box, const QString& text) {
    main_->User.Acts = {test::Types(text)};
    QTest::mouseClick(Named<QWidget>(*main_->Window, box), Qt::LeftButton);
  }
  std::string RowText() {
    std::string text;
    for (const InfoRow& row : BuildSawInfo(main_->Saw(), main_->Design().Format(), 100))
      text += row.Caption + row.Value + '\n';
    return text;
  }

  std::unique_ptr<test::MainWindow> main_;
};

void mainEditorsTest::Panels() {
  QTest::addColumn<int>("number");
  for (int i = 0; i < 3; ++i) QTest::newRow(Commands[i].Panel) << i;
}

// ---- commands

void mainEditorsTest::opensAPanelByMenuAndButton() {
  QFETCH(int, number);
  const Command& command = Commands[number];
  main_->Open(test::FullDesign());
  const BandSaw before = main_->Saw();
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QCOMPARE(Named<QAction>(*main_->Window, command.Item)->text(), QString(command.Caption));
  main_->Do(command.Item);
  QCOMPARE(main_->Panel(), QString(command.Panel));
  main_->Do(Commands[(number + 1) % 3].Item);
  auto* button = Named<QWidget>(*main_->Window, command.Button);
  QVERIFY(main_->BringUp(button));
  QTest::mouseClick(button, Qt::LeftButton);
  QCOMPARE(main_->Panel(), QString(command.Panel));
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainEditorsTest::asksAboutChanges() {
  QFETCH(int, number);
  const Command& command = Commands[number];
  const char* from = number == 2 ? "mnuItemGeneral" : "mnuItemToothShape";
  const char* panel = number == 2 ? "fraGeneral" : "fraToothShape";
  for (const Button answer : {Button::Yes, Button::No, Button::Cancel}) {
    main_ = std::make_unique<test::MainWindow>();
    main_->Open(test::FullDesign());
    const BandSaw before = main_->Saw();
    const std::string drawn = main_->Drawing();
    main_->Do(from);
    if (number == 2)
      Answer("txtTipType", "Carbide");
    else
      Answer("txtHook", "15");
    const BandSaw edited = main_->Saw();
    QVERIFY(!SameSaw(edited, before));

    main_->Program.Say.Answers = {answer};
    main_->Do(command.Item);
    QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(1));
    const Box& asked = main_->Program.Say.Shown.front();
    QCOMPARE(asked.Title, std::string("Changed"));
    QCOMPARE(asked.Text,
             std::string("Bandsaw has been changed!\nDo you wish to keep the existing changes?\n"));
    QVERIFY(asked.Offer == Buttons::YesNoCancel && asked.Shown == Icon::Question &&
            asked.Default == Button::Cancel);

    const BandSaw& now = answer == Button::No ? before : edited;
    QVERIFY(Bytes(main_->Saw()) == Bytes(now));
    QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(answer == Button::Cancel ? before : now));
    QCOMPARE(main_->Panel(), QString(answer == Button::Cancel ? panel : command.Panel));
    if (answer == Button::No) QVERIFY(main_->Drawing() == drawn);
    QCOMPARE(main_->TextOf("txtHook"), QString(now.HookAngle == 15 ? " 15.000 deg" : " 28.000 deg"));
    QCOMPARE(main_->TextOf("txtTipType"), QString(now.GeneralInfo.TipType == 3 ? " Carbide" : " Swagged"));
  }
}

void mainEditorsTest::asksAgainAfterYesOnTheSamePanel() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemToothShape");
  const BandSaw before = main_->Saw();
  Answer("txtHook", "15");
  main_->Program.Say.Answers = {Button::Yes, Button::Yes, Button::No};
  for (std::size_t asked = 1; asked <= 3; ++asked) {
    main_->Do("mnuItemToothShape");
    QCOMPARE(main_->Program.Say.Shown.size(), asked);
    QCOMPARE(main_->Panel(), QString("fraToothShape"));
  }
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QCOMPARE(main_->TextOf("txtHook"), QString(" 28.000 deg"));
  main_->Do("mnuItemToothShape");
  QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(3));
}

void mainEditorsTest::goesToTrueSizeForTheTooth() {
  main_->Open(test::FullDesign());
  const QString trueSize = main_->TextOf("txtScale");
  main_->Do("mnuItemAll");
  QVERIFY(main_->TextOf("txtScale") != trueSize);
  const QString all = main_->TextOf("txtScale");
  main_->Do("mnuItemGeneral");
  QCOMPARE(main_->TextOf("txtScale"), all);
  main_->Do("mnuItemToothShape");
  QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
}

// ---- OK and Cancel

void mainEditorsTest::acceptsTheTooth() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemToothShape");
  Answer("txtHook", "15");
  Answer("txtGulletDepth", ".9");
  const BandSaw edited = main_->Saw();
  main_->Program.Time.Waited.clear();
  test::Click(*main_->Window, "cmdToothOK");
  QCOMPARE(main_->Program.Time.Waited.size(), std::size_t(1));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(edited));
  QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(edited));
  QVERIFY(RowText().find("Hook Angle: 15.000 deg") != std::string::npos);
  main_->Do("mnuItemGeneral");
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainEditorsTest::cancelsTheTooth() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemToothShape");
  const BandSaw before = main_->Saw();
  const QImage picture = main_->Picture();
  Answer("txtToothStyle", "Round Back");
  Answer("txtHook", "15");
  QVERIFY(main_->Picture() != picture);
  test::Click(*main_->Window, "cmdToothCancel");
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QVERIFY(main_->Picture() == picture);
  main_->Do("mnuItemToothShape");
  QVERIFY(main_->Program.Say.Shown.empty());
  QCOMPARE(main_->TextOf("txtToothStyle"), QString(" Triple Radius"));
  QVERIFY(Named<QWidget>(*main_->Window, "txt3rdGulletRad")->isVisible());
}

void mainEditorsTest::acceptsTheGeneral() {
  BandSaw saw = test::FullDesign();
  saw.GeneralInfo.SideClear = 0.7;  // not what plate and kerf make
  main_->Open(saw);
  main_->Do("mnuItemGeneral");
  test::Click(*main_->Window, "cmdGeneralOK");
  QCOMPARE(main_->Saw().GeneralInfo.SideClear, 0.03);
  QVERIFY(SameSaw(main_->Saw(), main_->Design().SawEdit));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(RowText().find("Side Clearance: 0.030 in") != std::string::npos);
}

void mainEditorsTest::cancelsTheGeneral() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemGeneral");
  const BandSaw before = main_->Saw();
  Answer("txtKerf", ".2");
  auto* quantity = Named<QLineEdit>(*main_->Window, "txtQuantity");
  quantity->selectAll();
  QTest::keyClicks(quantity, "99");
  QCOMPARE(main_->Saw().GeneralInfo.Quantity, 99);
  test::Click(*main_->Window, "cmdGeneralCancel");
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  main_->Do("mnuItemGeneral");
  QCOMPARE(main_->TextOf("txtQuantity"), QString("4"));
  QCOMPARE(main_->TextOf("txtKerf"), QString(" 0.125 in"));
}

void mainEditorsTest::cancelsToTheLastOk() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemToothShape");
  Answer("txtHook", "15");
  test::Click(*main_->Window, "cmdToothOK");
  const BandSaw accepted = main_->Saw();
  main_->Do("mnuItemGeneral");
  Answer("txtTipType", "Carbide");
  test::Click(*main_->Window, "cmdGeneralCancel");
  QVERIFY(Bytes(main_->Saw()) == Bytes(accepted));
  QVERIFY(!SameSaw(main_->Saw(), main_->Design().SawSaved));
}

// ---- units

void mainEditorsTest::changesTheUnits() {
  main_->Open(test::FullDesign());
  auto* metric = Named<QRadioButton>(*main_->Window, "optMetric");
  auto* imperial = Named<QRadioButton>(*main_->Window, "optImperial");
  QVERIFY(imperial->isChecked());
  const BandSaw before = main_->Saw();
  const std::string drawn = main_->Drawing();
  test::Click(*main_->Window, "optMetric");
  QVERIFY(metric->isChecked());
  QCOMPARE(main_->Saw().ImpMetric, std::int16_t(1));
  QVERIFY(RowText().find("Length: 12.192 m\n") != std::string::npos);
  QVERIFY(main_->Drawing() == drawn);
  main_->Design().SawEdit = main_->Saw();
  main_->Do("mnuItemToothShape");
  QCOMPARE(main_->TextOf("txtLength"), QString(" 12.192 m"));
  QCOMPARE(main_->TextOf("txtWidth"), QString(" 25.400 cm"));
  QCOMPARE(main_->TextOf("txtSeatWidth"), QString(" 1.016 mm"));
  QCOMPARE(main_->TextOf("txtGulletArea").right(4), QString::fromUtf8(" cm²"));
  test::Click(*main_->Window, "optImperial");
  QCOMPARE(main_->TextOf("txtLength"), QString(" 40.000 ft"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
}

void mainEditorsTest::opensAMetricDesign() {
  BandSaw saw = test::FullDesign();
  saw.ImpMetric = 1;
  main_->Open(saw);
  QVERIFY(Named<QRadioButton>(*main_->Window, "optMetric")->isChecked());
  QVERIFY(RowText().find("Band Saw Width: 25.400 cm\n") != std::string::npos);
  QVERIFY(SameSaw(main_->Saw(), main_->Design().SawSaved));
}

void mainEditorsTest::restoresTheUnitsOnCancel() {
  main_->Open(test::FullDesign());
  for (const char* editor : {"mnuItemGeneral", "mnuItemToothShape"}) {
    main_->Do(editor);
    test::Click(*main_->Window, "optMetric");
    test::Click(*main_->Window, QString(editor) == "mnuItemGeneral" ? "cmdGeneralCancel" : "cmdToothCancel");
    QVERIFY(Named<QRadioButton>(*main_->Window, "optImperial")->isChecked());
    QCOMPARE(main_->Design().ImpMetric, std::int16_t(0));
    QVERIFY(RowText().find("Length: 40.000 ft\n") != std::string::npos);
  }
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainEditorsTest::typesInTheUnitsThatShow() {
  BandSaw saw = test::FullDesign();
  saw.ImpMetric = 1;
  main_->Open(saw);
  main_->Do("mnuItemToothShape");
  Answer("txtLength", "12");
  QCOMPARE(main_->TextOf("txtLength"), QString(" 12.000 m"));
  Answer("txtWidth", "20");
  QCOMPARE(main_->TextOf("txtWidth"), QString(" 20.000 cm"));
  Answer("txtSeatWidth", "1.5");
  QCOMPARE(main_->TextOf("txtSeatWidth"), QString(" 1.500 mm"));
  QVERIFY(std::abs(main_->Saw().SeatInfo.Width - 1.5 / 25.4) < 1e-5);
}

// ---- quick click, help, drawing

void mainEditorsTest::turnsTheQuickClickOffAndOn() {
  main_->Open(test::FullDesign());
  auto* rows = Named<QWidget>(*main_->Window, "picSawData");
  QVERIFY(rows->isVisible());
  main_->User.Acts = {[](QDialog& options) {
    test::Click(options, "chkQuickClick");
    test::Click(options, "cmdOk");
  }};
  main_->Do("mnuItemOptions");
  QVERIFY(!rows->isVisible());
  QVERIFY(!Named<QWidget>(*main_->Window, "vscSawInfo")->isVisible());
  QVERIFY(!main_->Design().Settings.QuickClick);
  const std::string off = main_->Program.Store.Settings()["QuickClick"];
  auto* back = Named<QPushButton>(*main_->Window, "cmdQuickClick");
  QCOMPARE(back->text(), QString("Turn Quick Click Display On"));
  QVERIFY(main_->BringUp(back));
  QTest::mouseClick(back, Qt::LeftButton);
  QVERIFY(rows->isVisible());
  QVERIFY(!back->isVisible());
  QVERIFY(main_->Program.Store.Settings()["QuickClick"] != off);
}

void mainEditorsTest::opensTheHelpOfTheFocus() {
  main_->Open(test::FullDesign());
  auto& asked = main_->Program.Help.Asked;
  const auto topic = [&](const char* control) {
    asked.clear();
    main_->PointAt(QPoint(60, 200));
    if (!main_->TabTo(Named<QWidget>(*main_->Window, control))) return std::string("not reached");
    QTest::keyClick(main_->Window->focusWidget(), Qt::Key_F1);
    return asked.size() == 1 ? asked.front() : std::string("none");
  };
  QCOMPARE(topic("picSawData"), std::string("topic 0"));  // on the heading
  QTest::keyClick(main_->Window->focusWidget(), Qt::Key_Down);
  QTest::keyClick(main_->Window->focusWidget(), Qt::Key_Down);
  QTest::keyClick(main_->Window->focusWidget(), Qt::Key_F1);
  QCOMPARE(asked.back(), std::string("topic 201"));
  main_->Do("mnuItemToothShape");
  QCOMPARE(topic("txtToothStyle"), std::string("topic 200"));
  QCOMPARE(topic("txtHook"), std::string("topic 204"));
  QCOMPARE(topic("txtSeat"), std::string("topic 216"));
  QCOMPARE(topic("txtToothKerf"), std::string("topic 0"));
  QCOMPARE(topic("cmdToothOK"), std::string("topic 0"));
  main_->Do("mnuItemGeneral");
  QCOMPARE(topic("txtKerf"), std::string("topic 36"));
  QCOMPARE(topic("txtDesignBy"), std::string("topic 0"));
  QCOMPARE(topic("txtJoinStyle"), std::string("topic 37"));

  // A box keeps its topic while it has the focus, wherever the mouse goes.
  main_->User.Acts = {test::Escapes()};
  QTest::mouseClick(Named<QWidget>(*main_->Window, "txtPlateThick"), Qt::LeftButton);
  main_->PointAt(QPoint(60, 200));
  asked.clear();
  QTest::keyClick(main_->Window->focusWidget(), Qt::Key_F1);
  QCOMPARE(asked, std::vector<std::string>{"topic 35"});
}

void mainEditorsTest::drawsOnlyForAChange() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemToothShape");
  auto* surface = Named<DrawingSurface>(*main_->Window, "PicEditor");
  QTest::qWait(20);
  QSignalSpy painted(surface, &DrawingSurface::Painted);
  main_->PointAt(Named<QWidget>(*main_->Window, "txtHook"));
  main_->User.Acts = {test::Escapes()};
  QTest::mouseClick(Named<QWidget>(*main_->Window, "txtHook"), Qt::LeftButton);
  QTest::qWait(20);
  QVERIFY2(painted.count() <= 1, qPrintable(QString::number(painted.count())));
  painted.clear();
  Answer("txtHook", "15");
  QTRY_VERIFY(painted.count() >= 1);
}

void mainEditorsTest::viewsBesideEveryPanel() {
  main_->Open(test::FullDesign());
  const auto* surface = Named<DrawingSurface>(*main_->Window, "PicEditor");
  const auto* across = Named<QScrollBar>(*main_->Window, "hscDisplay");
  for (const Command& command : Commands) {
    main_->Do(command.Item);
    QCOMPARE(main_->Panel(), QString(command.Panel));
    const QRect panel(Named<QWidget>(*main_->Window, command.Panel)->mapTo(main_->Window.get(), QPoint()),
                      Named<QWidget>(*main_->Window, command.Panel)->size());
    const QRect drawing(surface->mapTo(main_->Window.get(), QPoint()), surface->size());
    QVERIFY(!panel.intersects(drawing));
    main_->Do("mnuItemAll");
    // 95 parts of 100 of the surface, which is the drawing's own, are the band.
    const Extents extents = ComputeExtents(main_->Design().Lines);
    const double band = extents.MaxX - extents.MinX;
    const double pixels = band * main_->TextOf("txtScale").toDouble() * 96;
    QVERIFY(std::abs(pixels / surface->width() - 0.95) < 0.01);
    const QString scale = main_->TextOf("txtScale");
    main_->Do("mnuItemIn");
    QVERIFY(main_->TextOf("txtScale") != scale);
    main_->Do("mnuItemLast");
    QCOMPARE(main_->TextOf("txtScale"), scale);
    const int value = across->value();
    QTest::keyClick(Named<QWidget>(*main_->Window, "PicEditor"), Qt::Key_Right);
    QCOMPARE(across->value(), value + 25);
    main_->Do("mnuItemFullScale");
    QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
  }
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainEditorsTest)
#include "mainEditors_test.moc"
