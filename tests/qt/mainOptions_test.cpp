#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "dxf/modDXF.h"
#include "model/modDecim.h"
#include "platform/qt/ColourSwatch.h"
#include "platform/qt/DrawingSurface.h"
#include "platform/qt/QtHosts.h"
#include "qt/Controls.h"
#include "qt/Pixels.h"
#include "store/modSave.h"
#include "support/Designs.h"
#include "support/TestProgram.h"
#include "window/frmMain.h"

namespace tarnwick {
namespace {

using test::Named;

enum Page { General, Colors, PrinterAndDxf };

constexpr Colour Cyan = Rgb(0, 255, 255);  // of lines, by default
constexpr Colour Paper = Rgb(240, 230, 210), Ink = Rgb(60, 20, 120), Red = Rgb(255, 0, 0);

/// A pitch without an end shows every place, and 700 teeth make a large drawing.
BandSaw ManyTeeth() {
  BandSaw saw = test::PlainDesign();
  saw.Length = 100;
  saw.NumTeeth = 700;
  return saw;
}

void TurnTo(QWidget& options, int page) { Named<QTabWidget>(options, "SSTab1")->setCurrentIndex(page); }

void Press(QWidget& options, const char* button) {
  QTest::mouseClick(Named<QPushButton>(options, button), Qt::LeftButton);
}

void Type(QWidget& options, const char* box, const QString& text) {
  Named<QLineEdit>(options, box)->selectAll();
  QTest::keyClicks(Named<QLineEdit>(options, box), text);
}

void Click(QWidget& options, const char* control) {
  auto* widget = Named<QWidget>(options, control);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}

}  // namespace

// What the options do to the main window, to the open design and to the store. The options window is found as
// a user finds it: by its command, above the main window, while that waits.
class mainOptionsTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void opensTheOptionsByKeys();

  void paintsTheDrawingInItsColours();
  void paintsTheCentreLinesInTheirColour();
  void paintsTheHintStripInItsColours();
  void paintsTheZoomRectangleInItsColour();
  void drawsInTheDisplayScale();
  void appliesAtOnceAndKeepsIt();
  void changesNothingWhenCancelled();

  void exportsInTheDxfColour();
  void exportsNoMoreThanTheDxfSize();
  void calculatesWithTheDecimalPlaces();
  void formatsWithTheDisplayPlaces();
  void keepsTheUnitsOfTheOpenDesign();

  void savesTheSettings_data();
  void savesTheSettings();
  void tellsWhenTheStoreFails();
  void savesTheSettingsWhenItCloses();
  void closesThoughTheStoreFails();

 private:
  using Play = std::function<void(QDialog&)>;
  void Open();
  /// Plays on the options window while it is open; one that is left open is closed.
  void Await(const Play& play);
  void InOptions(const Play& play);
  OpenDesign& Design() { return program_->Process.Design; }
  std::string Setting(const char* key) { return program_->Store.Settings()[key]; }
  QImage Picture() { return PicEditor_->grab().toImage(); }
  QColor Corner() { return Picture().pixelColor(PicEditor_->width() - 3, 3); }

  std::unique_ptr<test::TestProgram> program_;
  std::unique_ptr<QtHosts> hosts_;
  std::unique_ptr<frmMain> window_;
  DrawingSurface* PicEditor_ = nullptr;
  bool seen_ = false;  // the options window
};

void mainOptionsTest::init() {
  program_ = std::make_unique<test::TestProgram>();
  hosts_ = std::make_unique<QtHosts>(program_->Process);
  program_->Start(program_->Documents.File("head.bsw", BandSawText(ManyTeeth())).string());
  Open();
}

void mainOptionsTest::cleanup() {
  window_.reset();
  program_.reset();
}

void mainOptionsTest::Open() {
  seen_ = false;
  window_ = std::make_unique<frmMain>(program_->Process, hosts_->All());
  PicEditor_ = Named<DrawingSurface>(*window_, "PicEditor");
  window_->show();
  QTRY_COMPARE(window_->windowTitle(), QString("head.bsw - Tarnwick"));
  QVERIFY(program_->Say.Shown.empty());
}

void mainOptionsTest::Await(const Play& play) {
  auto* timer = new QTimer(window_.get());
  connect(timer, &QTimer::timeout, this, [this, timer, play] {
    auto* options = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!options || options->objectName() != "frmCfg") return;
    timer->stop();
    seen_ = true;
    play(*options);
    if (options->isVisible()) options->reject();
  });
  timer->start(10);
}

void mainOptionsTest::InOptions(const Play& play) {
  seen_ = false;
  Await(play);
  Named<QAction>(*window_, "mnuItemOptions")->trigger();
  QVERIFY(seen_);
}

void mainOptionsTest::opensTheOptionsByKeys() {
  const QWidget* owner = nullptr;
  Await([&owner](QDialog& options) { owner = options.parentWidget(); });
  QTest::keyClick(window_.get(), Qt::Key_T, Qt::AltModifier);
  QTRY_VERIFY(QApplication::activePopupWidget());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
  QTRY_VERIFY(seen_);
  QCOMPARE(owner, window_.get());
}

// ---- on the screen

void mainOptionsTest::paintsTheDrawingInItsColours() {
  QVERIFY(test::CountOf(Picture(), Cyan) > 100);
  program_->Colors.Answers = {Paper, Ink};
  InOptions([](QDialog& options) {
    TurnTo(options, Colors);
    for (const char* sample : {"lblBackSample", "lblSawSample"}) Click(options, sample);
    Press(options, "cmdOk");
  });
  QCOMPARE(Corner(), ToQt(Paper));
  QVERIFY(test::CountOf(Picture(), Ink) > 100);
  QCOMPARE(test::CountOf(Picture(), Cyan), 0);
}

void mainOptionsTest::paintsTheCentreLinesInTheirColour() {
  program_->Colors.Answers = {Red};
  InOptions([](QDialog& options) {
    TurnTo(options, Colors);
    Click(options, "lblCenterSample");
    Press(options, "cmdOk");
  });
  const QImage picture = Picture();
  const double middle = Design().View.CurrentMapping().OriginX;
  int down = 0;
  for (int y = 0; y < picture.height(); ++y) {
    down += test::NearestTo(picture, {middle, y + 0.5}, Red) < 200 ? 1 : 0;  // nothing else has any red
  }
  QVERIFY(down > picture.height() / 4);
}

void mainOptionsTest::paintsTheHintStripInItsColours() {
  program_->Colors.Answers = {Paper, Ink};
  InOptions([](QDialog& options) {
    TurnTo(options, Colors);
    for (const char* sample : {"lblBackSample", "lblTextSample"}) Click(options, sample);
    Press(options, "cmdOk");
  });
  auto* hint = Named<QLabel>(*window_, "lblHint");
  hint->setText("Type the number of bandsaws required.");
  const QImage strip = hint->parentWidget()->grab().toImage();
  QCOMPARE(strip.pixelColor(1, 1), ToQt(Paper));
  QVERIFY(test::CountOf(strip, Ink) > 10);
}

void mainOptionsTest::paintsTheZoomRectangleInItsColour() {
  program_->Colors.Answers = {Red};
  InOptions([](QDialog& options) {
    TurnTo(options, Colors);
    Click(options, "lblZoomSample");
    Press(options, "cmdOk");
  });
  QTest::mousePress(PicEditor_, Qt::RightButton, {}, {300, 200});
  QTest::mouseMove(PicEditor_, {400, 260});
  QVERIFY(test::CountOf(Picture(), Red) > 100);
  QTest::mouseRelease(PicEditor_, Qt::RightButton, {}, {400, 260});
  QCOMPARE(test::CountOf(Picture(), Red), 0);
}

void mainOptionsTest::drawsInTheDisplayScale() {
  const QImage before = Picture();
  const double pixels = Design().View.CurrentMapping().PixelsPerUnit;
  InOptions([](QDialog& options) {
    Type(options, "txtDisplayScale", "0.75");
    Press(options, "cmdOk");
  });
  QCOMPARE(Design().View.CurrentMapping().PixelsPerUnit, 0.75 * pixels);
  QVERIFY(Picture() != before);
  const Mapping mapping = Design().View.CurrentMapping();
  int seen = 0;
  for (const Entity& entity : Design().Lines.Entities) {
    const auto* line = std::get_if<LineEntity>(&entity);
    if (!line || line->IsOutline) continue;
    const Spot middle =
        mapping.ToSurface((line->Corner1X + line->Corner4X) / 2, (line->Corner1Y + line->Corner4Y) / 2);
    if (!QRectF(before.rect()).contains(middle.X, middle.Y)) continue;
    ++seen;
    QVERIFY(test::HasStroke(Picture(), {middle.X, middle.Y}, Cyan));
  }
  QVERIFY(seen > 5);
}

void mainOptionsTest::appliesAtOnceAndKeepsIt() {
  program_->Colors.Answers = {Paper, Red};
  InOptions([this](QDialog& options) {
    TurnTo(options, Colors);
    Click(options, "lblBackSample");
    QCOMPARE(Corner(), ToQt(Black));
    Press(options, "cmdApply");
    QCOMPARE(Corner(), ToQt(Paper));
    Click(options, "lblBackSample");
    Press(options, "cmdCancel");
  });
  QCOMPARE(Corner(), ToQt(Paper));
}

void mainOptionsTest::changesNothingWhenCancelled() {
  const QImage before = Picture();
  program_->Colors.Answers = {Paper};
  InOptions([](QDialog& options) {
    Type(options, "txtDisplayScale", "0.75");
    TurnTo(options, Colors);
    Click(options, "lblBackSample");
    Press(options, "cmdCancel");
  });
  QCOMPARE(Picture(), before);
}

// ---- in the design

void mainOptionsTest::exportsInTheDxfColour() {
  const auto exported = [this] {
    return DxfText(Design().Lines, Design().Settings.Calculation).value_or("");
  };
  const QByteArray five = " 62 \r\n5\r\n", three = " 62 \r\n3\r\n";
  QVERIFY(QByteArray::fromStdString(exported()).contains(five));
  InOptions([](QDialog& options) {
    TurnTo(options, Colors);
    QTimer::singleShot(0, &options, [&options] {
      QWidget* choice = QApplication::activeModalWidget();
      if (choice == &options) return;
      Click(*choice, "lblColor(3)");
      Press(*choice, "cmdOk");
    });
    Click(options, "lblDxfColor");
    Press(options, "cmdOk");
  });
  const QByteArray text = QByteArray::fromStdString(exported());
  QVERIFY(text.contains(three));
  QVERIFY(!text.contains(five));
}

void mainOptionsTest::exportsNoMoreThanTheDxfSize() {
  const auto fits = [this] { return DxfText(Design().Lines, Design().Settings.Calculation).has_value(); };
  QVERIFY(fits());
  InOptions([](QDialog& options) {
    TurnTo(options, PrinterAndDxf);
    auto* bar = Named<QScrollBar>(options, "hscDxfMemory");
    bar->setFocus();
    QTest::keyClick(bar, Qt::Key_Home);
    Press(options, "cmdOk");
  });
  QCOMPARE(Design().Settings.Calculation.MemorySize, 8000);
  QVERIFY(!fits());
}

void mainOptionsTest::calculatesWithTheDecimalPlaces() {
  QCOMPARE(GeneralText(Design().Saw.Pitch), std::string("1.71428"));
  InOptions([](QDialog& options) {
    Type(options, "txtDecimalPlaces", "8");
    Press(options, "cmdOk");
  });
  Design().Recalculate(program_->Say);
  QCOMPARE(GeneralText(Design().Saw.Pitch), std::string("1.71428571"));
}

void mainOptionsTest::formatsWithTheDisplayPlaces() {
  InOptions([](QDialog& options) {
    Type(options, "txtDisplayPlaces", "2");
    Press(options, "cmdOk");
  });
  QCOMPARE(Design().Format().DisplayPlaces, std::int16_t{2});
}

void mainOptionsTest::keepsTheUnitsOfTheOpenDesign() {
  InOptions([](QDialog& options) {
    Click(options, "optMetric");
    Press(options, "cmdOk");
  });
  QCOMPARE(Design().ImpMetric, std::int16_t{Imperial});
  QCOMPARE(Design().Saw.ImpMetric, std::int16_t{Imperial});
  QVERIFY(SameSaw(Design().Saw, Design().SawSaved));
  Design().ClearSaw();
  QCOMPARE(Design().ImpMetric, std::int16_t{Metric});
}

// ---- in the store

void mainOptionsTest::savesTheSettings_data() {
  QTest::addColumn<QStringList>("buttons");
  QTest::addColumn<QString>("places");
  QTest::newRow("OK") << QStringList{"cmdOk"} << " 9";
  QTest::newRow("Apply, Cancel") << QStringList{"cmdApply", "cmdCancel"} << " 9";
  QTest::newRow("Cancel") << QStringList{"cmdCancel"} << " 5";
}

void mainOptionsTest::savesTheSettings() {
  QFETCH(QStringList, buttons);
  QFETCH(QString, places);
  program_->Store.Sections.clear();
  InOptions([&buttons](QDialog& options) {
    Type(options, "txtDecimalPlaces", "9");
    for (const QString& button : buttons) Press(options, qPrintable(button));
  });
  QCOMPARE(QString::fromStdString(Setting("DecimalPlaces")), places);
  QCOMPARE(QString::fromStdString(Setting("PrintLineThick")), QString(" 1"));
  QVERIFY(program_->Say.Shown.empty());
}

void mainOptionsTest::tellsWhenTheStoreFails() {
  program_->Store.FinishFailure = std::make_error_code(std::errc::no_space_on_device);
  InOptions([](QDialog& options) {
    Click(options, "optMetric");
    Press(options, "cmdOk");
  });
  QVERIFY((program_->Say.Texts() == std::vector<std::string>{"Error 28", "Unable to save config file"}));
  QCOMPARE(program_->Say.Shown.back().Title, std::string("Error"));
  QCOMPARE(Design().Settings.MainImpMetric, std::int16_t{Metric});
}

void mainOptionsTest::savesTheSettingsWhenItCloses() {
  program_->Store.Sections.clear();
  Design().Settings.PrintLineThick = 4;
  QVERIFY(window_->close());
  QCOMPARE(Setting("PrintLineThick"), std::string(" 4"));
}

void mainOptionsTest::closesThoughTheStoreFails() {
  program_->Store.SetFailure = std::make_error_code(std::errc::permission_denied);
  QVERIFY(window_->close());
  QVERIFY(!window_->isVisible());
  QCOMPARE(program_->Say.Shown.back().Title, std::string("Error"));
  QCOMPARE(program_->Say.Shown.back().Text, std::string("Unable to save config file"));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainOptionsTest)
#include "mainOptions_test.moc"
