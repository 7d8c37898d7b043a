#include "qt/OptionsBench.h"

namespace tarnwick {

using namespace test;

// Colours picked in the options.
class frmCfgColoursTest : public QObject, private OptionsBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { Close(); }

  void picksEachColour_data();
  void picksEachColour();
  void keepsAColourWhenCancelled();
  void picksTheDxfColour_data();
  void picksTheDxfColour();
  void opensTheColourDialogAboveItself();
};

// ---- colours

void frmCfgColoursTest::picksEachColour_data() {
  QTest::addColumn<QString>("sample");
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("which");
  const auto row = [](const char* caption, const char* sample, const char* text, int which) {
    QTest::newRow(caption) << sample << text << which;
  };
  row("lblBackColor", "lblBackSample", "Background Color of View Windows:", 0);
  row("lblSawColor", "lblSawSample", "Saw Outline Color in View Windows:", 1);
  row("lblTextColor", "lblTextSample", "Text Color in View Windows:", 2);
  row("lblCenterColor", "lblCenterSample", "Center Line Color in View Windows:", 3);
  row("lblZoomColor", "lblZoomSample", "Right Mouse Button Zoom Window Color:", 4);
}

void frmCfgColoursTest::picksEachColour() {
  constexpr Colour DisplaySettings::*settings[] = {
      &DisplaySettings::BackGroundColor, &DisplaySettings::SawLineColor, &DisplaySettings::TextColor,
      &DisplaySettings::CenterLineColor, &DisplaySettings::ZoomWindowColor};
  QFETCH(QString, sample);
  QFETCH(int, which);
  const Colour before = inForce_.Display.*settings[which];
  const Colour first = Rgb(1, 2, 3), second = Rgb(4, 5, 6), third = Rgb(7, 8, 9);
  colours_.Answers = {first, second, third};
  Open();
  TurnTo(Colors);
  auto* caption = Find<QLabel>(QTest::currentDataTag());
  auto* swatch = Find<ColourSwatch>(sample);
  QTEST(caption->text(), "text");
  QVERIFY(swatch->Shown() == before);
  QTest::mouseClick(caption, Qt::LeftButton);
  QVERIFY(swatch->Shown() == first);
  QTest::mouseClick(swatch, Qt::LeftButton);
  QVERIFY(swatch->Shown() == second);
  QVERIFY(swatch->hasFocus());
  QTest::keyClick(swatch, Qt::Key_Space);
  QVERIFY(swatch->Shown() == third);
  QVERIFY(colours_.OpenedOn == std::vector<Colour>({before, first, second}));
  QVERIFY(inForce_.Display.*settings[which] == before);
  Press("cmdOk");
  QVERIFY(inForce_.Display.*settings[which] == third);
}

void frmCfgColoursTest::keepsAColourWhenCancelled() {
  Open();
  TurnTo(Colors);
  QTest::mouseClick(Find<ColourSwatch>("lblSawSample"), Qt::LeftButton);
  QCOMPARE(colours_.OpenedOn.size(), std::size_t{1});
  QVERIFY(Find<ColourSwatch>("lblSawSample")->Shown() == inForce_.Display.SawLineColor);
  QVERIFY(!ApplyEnabled());
}

void frmCfgColoursTest::picksTheDxfColour_data() {
  QTest::addColumn<bool>("ok");
  for (const char* name : {"lblDxfSaveColor", "lblDxfColor"}) {
    QTest::addRow("%s", name) << true;
    QTest::addRow("%s, cancelled", name) << false;
  }
}

void frmCfgColoursTest::picksTheDxfColour() {
  QFETCH(bool, ok);
  const QString name = QString(QTest::currentDataTag()).section(',', 0, 0);
  Open();
  TurnTo(Colors);
  QCOMPARE(TextOf("lblDxfSaveColor"), QString("Color to save Dxf files with :"));
  const QWidget* owner = nullptr;
  QTimer::singleShot(0, this, [&] {
    QWidget* window = QApplication::activeModalWidget();
    if (!window || window->objectName() != "frmColor") return;
    owner = window->parentWidget();
    QTest::mouseClick(Named<QWidget>(*window, "lblColor(1)"), Qt::LeftButton);
    QTest::mouseClick(Named<QPushButton>(*window, ok ? "cmdOk" : "cmdCancel"), Qt::LeftButton);
  });
  QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton);
  QCOMPARE(owner, window_.get());
  QVERIFY(colours_.OpenedOn.empty());
  const int number = ok ? 1 : 5;
  QCOMPARE(Find<ColourSwatch>("lblDxfColor")->text(), QString::number(number));
  QVERIFY(Find<ColourSwatch>("lblDxfColor")->Shown() == DxfPaletteColour(number));
  QCOMPARE(ApplyEnabled(), ok);
  Press("cmdOk");
  QCOMPARE(int(inForce_.Calculation.DxfSaveColor), number);
}

void frmCfgColoursTest::opensTheColourDialogAboveItself() {
  QtColorDialog colours;
  Open(messages_, colours);
  TurnTo(Colors);
  const auto answer = [this](bool ok) {
    QTimer::singleShot(0, this, [this, ok] {
      auto* chooser = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
      if (!chooser) return;
      QCOMPARE(chooser->parentWidget(), window_.get());
      QCOMPARE(chooser->currentColor(), QColor(0, 255, 255));
      chooser->setCurrentColor(QColor(255, 128, 0));
      if (ok)
        chooser->accept();
      else
        chooser->reject();
    });
    QTest::mouseClick(Find<ColourSwatch>("lblSawSample"), Qt::LeftButton);
  };
  answer(false);
  QVERIFY(Find<ColourSwatch>("lblSawSample")->Shown() == Rgb(0, 255, 255));
  QVERIFY(!ApplyEnabled());
  answer(true);
  QVERIFY(Find<ColourSwatch>("lblSawSample")->Shown() == Orange);
  QVERIFY(ApplyEnabled());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmCfgColoursTest)
#include "frmCfgColours_test.moc"
