#include "machine/frmBandCalc.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "machine/MachineCommands.h"
#include "platform/qt/DrawingSurface.h"
#include "platform/qt/MeasureBox.h"
#include "platform/qt/QtDialogHost.h"
#include "platform/qt/QtMachineHost.h"
#include "qt/Controls.h"
#include "qt/Pixels.h"
#include "store/modPath.h"
#include "support/Machines.h"
#include "support/NoPanels.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using test::Machine;
using test::Named;

const QStringList BoxNames = {"txtWheelDia", "txtRimWidth", "txtCenters", "txtPlateThick"};
const QStringList RowNames = {"chkLength(0)", "txtLength(0)", "chkLength(1)", "txtLength(1)",
                              "chkLength(2)", "txtLength(2)", "chkLength(3)", "txtLength(3)"};
const QStringList ButtonNames = {"cmdExportDxf", "cmdOk", "cmdCancel"};

/// Lets `user` at the dialog that will be open.
void Await(const std::function<void(QWidget&)>& user) {
  QTimer::singleShot(0, qApp, [user] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || !QTest::qWaitForWindowActive(dialog)) qFatal("no dialog is open");
    user(*dialog);
  });
}

/// Types into the dialog that will be open, and presses Enter.
void Answer(const QString& title, const QString& typed) {
  Await([=](QWidget& dialog) {
    auto* box = Named<QLineEdit>(dialog, "txtValue");
    QTest::keyClicks(box, typed);
    const QString asked = dialog.windowTitle();
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(asked, title);
  });
}

QString Array(const char* name, int row) { return QString("%1(%2)").arg(name).arg(row); }

}  // namespace

class frmBandCalcTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void opensEmptyWithoutAMachine();
  void showsWhatTheDesignHas();
  void showsMetricUnits();

  void asksByItsBoxes_data();
  void asksByItsBoxes();
  void asksByItsLabels_data();
  void asksByItsLabels();
  void asksByTheKeys_data();
  void asksByTheKeys();
  void asksForTheOwnLength();
  void asksForNoOtherLength();
  void opensFromWheelsToALength();

  void ticksOneRow();
  void keepsATickedRowTicked();
  void ticksByTheKeys();
  void ticksNoEmptyRow();

  void drawsTheMachine();
  void drawsTheMachineAnewInAnotherSize();
  void keepsThePictureWideEnough();
  void keepsThePictureWideEnough_data();

  void exportsTheDrawing();
  void waitsAtItsOwnWindowAlone();
  void acceptsByOk();
  void acceptsByEnter();
  void acceptsByEnterInALengthThatIsRead();
  void cancels_data();
  void cancels();
  void givesTheDesignItsLength();

  void hintsAtEachControl_data();
  void hintsAtEachControl();
  void clearsTheHintOverTheWindow();
  void opensTheManual_data();
  void opensTheManual();

  void namesEveryControl();
  void tabsInReadingOrder();
  void hasAccessKeys();
  void alignsItsBoxes();
  void clipsNothing();
  void fitsASmallScreen();

 private:
  void Open(const BandSaw& saw);
  template <class Control>
  Control* Find(const QString& name) {
    return Named<Control>(*window_, qPrintable(name));
  }
  QString Text(const QString& box) { return Find<QLineEdit>(box)->text(); }
  QStringList Lengths();
  void Press(const QString& name) { QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton); }
  void Tick(int row);
  int Ticked();
  QImage Picture() { return Find<QWidget>("picBand")->grab().toImage(); }

  std::unique_ptr<test::TestProgram> program_;
  std::unique_ptr<QtDialogHost> dialogs_;
  std::unique_ptr<QtMachineHost> host_;
  std::unique_ptr<BandCalculator> calculator_;
  std::unique_ptr<frmBandCalc> window_;
};

void frmBandCalcTest::init() {
  program_ = std::make_unique<test::TestProgram>();
  program_->Start();
  dialogs_ = std::make_unique<QtDialogHost>(program_->Help);
  host_ = std::make_unique<QtMachineHost>(program_->Help);
}

void frmBandCalcTest::cleanup() {
  window_.reset();
  calculator_.reset();
}

void frmBandCalcTest::Open(const BandSaw& saw) {
  cleanup();
  calculator_ = std::make_unique<BandCalculator>(program_->Process, *dialogs_, *host_);
  calculator_->GetBandCalcData(saw);
  window_ = std::make_unique<frmBandCalc>(*calculator_, program_->Help);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

QStringList frmBandCalcTest::Lengths() {
  QStringList lengths;
  for (int row = 0; row < LengthRows; ++row) lengths.append(Text(Array("txtLength", row)));
  return lengths;
}

void frmBandCalcTest::Tick(int row) {
  auto* check = Find<QCheckBox>(Array("chkLength", row));
  QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
}

/// The one row that is ticked; -1 when there is not just one.
int frmBandCalcTest::Ticked() {
  int ticked = -1, count = 0;
  for (int row = 0; row < LengthRows; ++row) {
    if (!Find<QCheckBox>(Array("chkLength", row))->isChecked()) continue;
    ticked = row;
    ++count;
  }
  return count == 1 ? ticked : -1;
}

// ---- opening

void frmBandCalcTest::opensEmptyWithoutAMachine() {
  Open({});
  QCOMPARE(window_->windowTitle(), QString("Band Length Calculator"));
  QCOMPARE(Find<QLabel>("lblTitle")->text(), QString("Band Length Calculator"));
  for (const QString& box : BoxNames) QCOMPARE(Text(box), QString());
  QCOMPARE(Lengths(), QStringList({"", "", "", ""}));
  QCOMPARE(Ticked(), 0);
  QVERIFY(window_->isModal());
  const QImage picture = Picture();
  QCOMPARE(test::CountOf(picture, Black), picture.width() * picture.height());
}

void frmBandCalcTest::showsWhatTheDesignHas() {
  BandSaw saw = Machine(5, 10, 0.05);
  saw.Length = 36;
  saw.MachineInfo.Width = 6.5;
  saw.MachineInfo.InCenterOut = 2;
  Open(saw);
  QCOMPARE(Text("txtWheelDia"), QString(" 5.000 ft"));
  QCOMPARE(Text("txtRimWidth"), QString(" 6.500 in"));
  QCOMPARE(Text("txtCenters"), QString(" 10.000 ft"));
  QCOMPARE(Text("txtPlateThick"), QString(" 0.050 in"));
  QCOMPARE(Lengths(), QStringList({" 36.000 ft", " 35.865 ft", " 36.022 ft", " 36.179 ft"}));
  QCOMPARE(Ticked(), 0);
}

void frmBandCalcTest::showsMetricUnits() {
  program_->Process.Design.ImpMetric = Metric;
  Open(Machine(5, 10));
  QCOMPARE(Text("txtWheelDia"), QString(" 1.524 m"));
  QCOMPARE(Text("txtLength(1)"), QString(" 10.884 m"));
}

// ---- boxes

void frmBandCalcTest::asksByItsBoxes_data() {
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("shown");
  QTest::newRow("WheelDia") << "Wheel Diameter"
                            << " 4.000 ft";
  QTest::newRow("RimWidth") << "Rim Width"
                            << " 4.000 in";
  QTest::newRow("Centers") << "Center to Center"
                           << " 5.100 ft";
  QTest::newRow("PlateThick") << "Plate Thickness"
                              << " 4.000 in";
}

void frmBandCalcTest::asksByItsBoxes() {
  QFETCH(QString, title);
  Open(Machine(5, 10));
  Answer(title, "4");
  Press(QString("txt%1").arg(QTest::currentDataTag()));
  QTEST(Text(QString("txt%1").arg(QTest::currentDataTag())), "shown");
}

void frmBandCalcTest::asksByItsLabels_data() { asksByItsBoxes_data(); }

void frmBandCalcTest::asksByItsLabels() {
  QFETCH(QString, title);
  Open(Machine(5, 10));
  Answer(title, "4");
  Press(QString("lbl%1").arg(QTest::currentDataTag()));
  QTEST(Text(QString("txt%1").arg(QTest::currentDataTag())), "shown");
}

void frmBandCalcTest::asksByTheKeys_data() {
  QTest::addColumn<int>("key");
  QTest::newRow("Enter") << int{Qt::Key_Return};
  QTest::newRow("Space") << int{Qt::Key_Space};
}

void frmBandCalcTest::asksByTheKeys() {
  QFETCH(int, key);
  Open(Machine(5, 10));
  QVERIFY(Find<QWidget>("txtWheelDia")->hasFocus());
  Answer("Wheel Diameter", "4");
  QTest::keyClick(window_->focusWidget(), static_cast<Qt::Key>(key));
  QCOMPARE(Text("txtWheelDia"), QString(" 4.000 ft"));
  QVERIFY(window_->isVisible());
}

void frmBandCalcTest::asksForTheOwnLength() {
  Open(Machine(5, 10));
  Answer("Band Saw Length", "24 ft 6 in");
  Press("txtLength(0)");
  QCOMPARE(Text("txtLength(0)"), QString(" 24.500 ft"));
}

void frmBandCalcTest::asksForNoOtherLength() {
  Open(Machine(5, 10, 0.05));
  for (int row = 1; row < LengthRows; ++row) {
    Press(Array("txtLength", row));
    QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == window_.get());
    QCOMPARE(Ticked(), 0);
  }
}

void frmBandCalcTest::opensFromWheelsToALength() {
  Open({});
  Answer("Wheel Diameter", "5");
  Press("txtWheelDia");
  QCOMPARE(Lengths(), QStringList({"", "", "", ""}));
  Answer("Center to Center", "10");
  Press("txtCenters");
  QCOMPARE(Lengths(), QStringList({"", " 35.708 ft", "", ""}));
  QVERIFY(test::CountOf(Picture(), DisplaySettings().SawLineColor) > 1000);
}

// ---- the rows

void frmBandCalcTest::ticksOneRow() {
  Open(Machine(5, 10, 0.05));
  for (const int row : {2, 1, 3, 0, 2}) {
    Tick(row);
    QCOMPARE(Ticked(), row);
  }
}

void frmBandCalcTest::keepsATickedRowTicked() {
  Open(Machine(5, 10, 0.05));
  Tick(1);
  Tick(1);
  QCOMPARE(Ticked(), 1);
}

void frmBandCalcTest::ticksByTheKeys() {
  Open(Machine(5, 10, 0.05));
  Find<QCheckBox>("chkLength(3)")->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Space);
  QCOMPARE(Ticked(), 3);
}

void frmBandCalcTest::ticksNoEmptyRow() {
  Open(Machine(5, 10));
  Tick(1);
  Tick(2);
  QCOMPARE(Ticked(), 1);
  Tick(3);
  QCOMPARE(Ticked(), 1);
}

// ---- the picture

void frmBandCalcTest::drawsTheMachine() {
  Open(Machine(5, 10));
  const QImage picture = Picture();
  const DisplaySettings colours;
  const double high = picture.height();
  const double scale = high * 0.95 / 180;  // pixels of an inch; half of 6.75 ft lie left of the middle
  const QPointF lower(picture.width() / 2.0 + 10.5 * scale, high * 0.97 - 30 * scale);
  QVERIFY(test::HasStroke(picture, lower + QPointF(0, 30 * scale), colours.SawLineColor));
  QVERIFY(test::HasStroke(picture, lower + QPointF(30 * scale, -60 * scale), colours.SawLineColor));
  QVERIFY(test::HasStroke(picture, lower + QPointF(0, -150 * scale), colours.SawLineColor));
  QVERIFY(test::HasStroke(picture, lower + QPointF(-48 * scale, -30 * scale), colours.SawLineColor));
  int ofText = 0;  // of all colours in the picture it alone has red in it
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ofText += picture.pixelColor(x, y).red() > 128 ? 1 : 0;
  QVERIFY(ofText > 50);
}

void frmBandCalcTest::drawsTheMachineAnewInAnotherSize() {
  Open(Machine(5, 10));
  const auto lowest = [this] {
    const QImage picture = Picture();
    for (int y = picture.height() - 1; y > 0; --y)
      for (int x = 0; x < picture.width(); ++x)
        if (picture.pixelColor(x, y) != Qt::black) return y / double(picture.height());
    return 0.0;
  };
  QVERIFY(std::abs(lowest() - 0.97) < 0.01);
  window_->resize(window_->width() + 200, window_->height() + 100);
  QTRY_VERIFY(Find<QWidget>("picBand")->height() > 600);
  QVERIFY(std::abs(lowest() - 0.97) < 0.01);
}

void frmBandCalcTest::keepsThePictureWideEnough_data() {
  QTest::addColumn<QSize>("size");
  QTest::newRow("high") << QSize(700, 1200);
  QTest::newRow("wide") << QSize(1600, 500);
  QTest::newRow("small") << QSize(600, 450);
}

void frmBandCalcTest::keepsThePictureWideEnough() {
  QFETCH(QSize, size);
  Open(Machine(0.5, 0.51));
  window_->resize(size);
  const auto* picture = Find<QWidget>("picBand");
  QVERIFY(picture->width() >= 0.7 * picture->height());
  const QImage drawn = Picture();
  for (int y = 0; y < drawn.height(); ++y) {  // nothing sticks out
    QCOMPARE(drawn.pixelColor(0, y), QColor(Qt::black));
    QCOMPARE(drawn.pixelColor(drawn.width() - 1, y), QColor(Qt::black));
  }
}

// ---- ends

void frmBandCalcTest::exportsTheDrawing() {
  Open(Machine(5, 10));
  program_->Files.Paths.push_back(PathText(program_->Documents / "mill"));
  Press("cmdExportDxf");
  QVERIFY(!test::BytesOf(program_->Documents / "mill.dxf").empty());
  QVERIFY(window_->isVisible());
  QVERIFY(!QGuiApplication::overrideCursor());
}

/// What fails while it waits is told above it, and the message is no time to wait.
void frmBandCalcTest::waitsAtItsOwnWindowAlone() {
  Open(Machine(5, 10));
  host_->SetBusy(true);
  QCOMPARE(window_->cursor().shape(), Qt::WaitCursor);
  QMessageBox failure(window_.get());
  const QPushButton* ok = failure.addButton(QMessageBox::Ok);
  failure.show();
  QVERIFY(!QGuiApplication::overrideCursor());
  QCOMPARE(failure.cursor().shape(), Qt::ArrowCursor);
  QCOMPARE(ok->cursor().shape(), Qt::ArrowCursor);
  failure.hide();
  host_->SetBusy(false);
  QCOMPARE(window_->cursor().shape(), Qt::ArrowCursor);
}

void frmBandCalcTest::acceptsByOk() {
  Open(Machine(5, 10));
  Tick(1);
  Press("cmdOk");
  QVERIFY(!window_->isVisible());
  QVERIFY(calculator_->IsAccepted());
  QCOMPARE(calculator_->Saw().Length, 35.708);
}

void frmBandCalcTest::acceptsByEnter() {
  Open(Machine(5, 10));
  Find<QWidget>("chkLength(0)")->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  QVERIFY(calculator_->IsAccepted());
}

void frmBandCalcTest::acceptsByEnterInALengthThatIsRead() {
  Open(Machine(5, 10));
  Find<QWidget>("txtLength(1)")->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  QVERIFY(calculator_->IsAccepted());
}

void frmBandCalcTest::cancels_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"button", "key", "close"}) QTest::newRow(how) << how;
}

void frmBandCalcTest::cancels() {
  QFETCH(QString, how);
  Open(Machine(5, 10));
  Tick(1);
  if (how == "button") Press("cmdCancel");
  if (how == "key") QTest::keyClick(window_.get(), Qt::Key_Escape);
  if (how == "close") window_->close();
  QVERIFY(!window_->isVisible());
  QVERIFY(!calculator_->IsOpen());
  QVERIFY(!calculator_->IsAccepted());
}

/// The command of the menu, from its window to the design.
void frmBandCalcTest::givesTheDesignItsLength() {
  test::NoPanels panels;
  BandSaw& saw = program_->Process.Design.Saw;
  saw = Machine(5, 10);
  Await([](QWidget& window) {
    QCOMPARE(window.objectName(), QString("frmBandCalc"));
    auto* check = Named<QCheckBox>(window, "chkLength(1)");
    QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    QTest::mouseClick(Named<QPushButton>(window, "cmdOk"), Qt::LeftButton);
  });
  OpenBandCalculator({program_->Process, *dialogs_, *host_, panels});
  QCOMPARE(saw.Length, 35.708);
  QCOMPARE(saw.ContainsInfo.Machine, True);
}

// ---- hints and help

void frmBandCalcTest::hintsAtEachControl_data() {
  QTest::addColumn<QString>("hint");
  const auto row = [](const char* control, const char* hint) { QTest::newRow(control) << hint; };
  row("txtWheelDia", "Click to select wheel diameter!");
  row("lblWheelDia", "Click to select wheel diameter!");
  row("txtRimWidth", "Click to select wheel rim width.");
  row("lblRimWidth", "Click to select wheel rim width.");
  row("txtCenters", "Click to select center to center between wheels!");
  row("lblCenters", "Click to select center to center between wheels!");
  row("txtPlateThick", "Click to select plate thickness!");
  row("lblPlateThick", "Click to select plate thickness!");
  row("chkLength(2)", "Check to select bandsaw length.");
  row("txtLength(0)", "Select to choose your own bandsaw length value.");
  row("txtLength(1)", "Select to choose the inside bandsaw length.");
  row("txtLength(2)", "Select to choose the middle of the bandsaw length.");
  row("txtLength(3)", "Select to choose the outside of the bandsaw length.");
  row("cmdOk", "Click to select calculated values.");
  row("cmdCancel", "Click to quit bandsaw calculator.");
  row("cmdExportDxf", "");
}

void frmBandCalcTest::hintsAtEachControl() {
  Open(Machine(5, 10, 0.05));
  QTest::mouseMove(Find<QWidget>(QTest::currentDataTag()));
  QTEST(Find<QLabel>("lblStatus")->text(), "hint");
}

void frmBandCalcTest::clearsTheHintOverTheWindow() {
  Open({});
  QTest::mouseMove(Find<QWidget>("cmdOk"));
  QVERIFY(!Find<QLabel>("lblStatus")->text().isEmpty());
  QTest::mouseMove(window_.get(), QPoint(4, 4));
  QCOMPARE(Find<QLabel>("lblStatus")->text(), QString());
}

void frmBandCalcTest::opensTheManual_data() {
  QTest::addColumn<int>("topic");
  const auto row = [](const char* control, int topic) { QTest::newRow(control) << topic; };
  row("txtWheelDia", 500);
  row("txtRimWidth", 502);
  row("txtCenters", 501);
  row("txtPlateThick", 35);
  row("txtLength(0)", 201);
  row("txtLength(1)", 510);
  row("chkLength(1)", 510);
  row("cmdOk", 510);
}

void frmBandCalcTest::opensTheManual() {
  QFETCH(int, topic);
  Open(Machine(5, 10));
  Find<QWidget>(QTest::currentDataTag())->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_F1);
  QCOMPARE(program_->Help.Asked, std::vector<std::string>{"topic " + std::to_string(topic)});
}

// ---- looks

void frmBandCalcTest::namesEveryControl() {
  Open({});
  QCOMPARE(test::BadlySpoken(*window_, BoxNames + RowNames + ButtonNames + QStringList{"picBand"}),
           QStringList());
}

void frmBandCalcTest::tabsInReadingOrder() {
  Open(Machine(5, 10, 0.05));
  QCOMPARE(test::TabOrder(*window_), BoxNames + RowNames + ButtonNames);
}

void frmBandCalcTest::hasAccessKeys() {
  Open({});
  QString keys = test::AccessKeys(*window_);
  std::sort(keys.begin(), keys.end());
  QCOMPARE(keys, QString("CEO"));
}

void frmBandCalcTest::alignsItsBoxes() {
  Open(Machine(5, 10, 0.05));
  const auto left = [this](const QString& name) {
    const auto* box = Find<QWidget>(name);
    return std::pair(box->mapTo(window_.get(), QPoint()).x(), box->width());
  };
  for (const QString& name : BoxNames) QCOMPARE(left(name), left("txtWheelDia"));
  for (int row = 0; row < LengthRows; ++row) QCOMPARE(left(Array("txtLength", row)), left("txtWheelDia"));
}

void frmBandCalcTest::clipsNothing() {
  Open(Machine(5, 10, 0.05));
  QStringList checks;
  for (int row = 0; row < LengthRows; ++row) checks.append(Array("chkLength", row));
  QCOMPARE(test::Clipped(*window_, checks + ButtonNames +
                                       QStringList{"lblTitle", "lblWheelDia", "lblCenters", "lblPlateThick",
                                                   "lblStatus"}),
           QStringList());
}

void frmBandCalcTest::fitsASmallScreen() {
  Open(Machine(5, 10, 0.05));
  window_->resize(780, 560);
  QCOMPARE(window_->size(), QSize(780, 560));
  for (const QString& name : BoxNames + RowNames + ButtonNames + QStringList{"picBand"}) {
    const auto* control = Find<QWidget>(name);
    QVERIFY2(window_->rect().contains(QRect(control->mapTo(window_.get(), QPoint()), control->size())),
             qPrintable(name));
  }
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmBandCalcTest)
#include "frmBandCalc_test.moc"
