#include "shell/frmColor.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>

#include "platform/qt/ColourSwatch.h"
#include "qt/Controls.h"
#include "qt/Pixels.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {
namespace {

using test::Named;

QStringList Samples() {
  QStringList names;
  for (int number = 0; number < DxfColours; ++number) names.append(QString("lblColor(%1)").arg(number));
  return names;
}

}  // namespace

class frmColorTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();

  void showsEachNumberOnItsColour();
  void marksThePresentNumber();
  void choosesByAClick();
  void choosesByArrows();
  void givesNothingWhenCancelled_data();
  void givesNothingWhenCancelled();
  void opensTheManual();

  void handsTheNumberBack_data();
  void handsTheNumberBack();

  void namesEveryControl();
  void tabsInReadingOrder();
  void clipsNothing_data();
  void clipsNothing();

 private:
  void Open(int present);
  ColourSwatch* Sample(int number) {
    return Named<ColourSwatch>(*window_, qPrintable(QString("lblColor(%1)").arg(number)));
  }
  void Click(int number) { QTest::mouseClick(Sample(number), Qt::LeftButton); }
  void Key(Qt::Key key) { QTest::keyClick(window_->focusWidget(), key); }
  void IsMarked(int number);

  test::RecordingHelpViewer help_;
  std::unique_ptr<DxfColorChoice> choice_;
  std::unique_ptr<frmColor> window_;
};

void frmColorTest::cleanup() {
  window_.reset();
  choice_.reset();
  help_ = {};
}

void frmColorTest::Open(int present) {
  window_.reset();
  choice_ = std::make_unique<DxfColorChoice>(present);
  window_ = std::make_unique<frmColor>(*choice_, help_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

/// The mark lies below its sample, as wide as it is but for the corners.
void frmColorTest::IsMarked(int number) {
  QCOMPARE(choice_->Marked(), number);
  const QRect mark = Named<QLabel>(*window_, "lblSendColor")->geometry();
  const QRect sample = Sample(number)->geometry();
  QVERIFY(Named<QLabel>(*window_, "lblSendColor")->isVisible());
  QCOMPARE(mark.top(), sample.bottom() + 1);
  QCOMPARE(mark.center().x(), sample.center().x());
  QVERIFY(mark.width() > sample.width() * 3 / 4);
  for (int other = 0; other < DxfColours; ++other) {
    QVERIFY(!mark.intersects(Sample(other)->geometry()));
    QCOMPARE(Sample(other)->isChecked(), other == number);
  }
}

void frmColorTest::showsEachNumberOnItsColour() {
  Open(5);
  QCOMPARE(window_->objectName(), QString("frmColor"));
  for (int number = 0; number < DxfColours; ++number) {
    const ColourSwatch* sample = Sample(number);
    QCOMPARE(sample->text(), QString::number(number));
    QVERIFY(sample->Shown() == DxfPaletteColour(number));
    const QImage picture = Sample(number)->grab().toImage();
    QVERIFY(test::CountOf(picture, DxfPaletteColour(number)) > picture.width() * picture.height() / 2);
    const QColor ink = DxfPaletteColour(number).Green() > 100 ? Qt::black : Qt::white;
    QVERIFY2(test::NearestTo(picture, sample->rect().center(), {ink == Qt::white ? White : Black}, 5) < 60,
             qPrintable(sample->text()));
  }
}

void frmColorTest::marksThePresentNumber() {
  for (int number = 0; number < DxfColours; ++number) {
    Open(number);
    IsMarked(number);
    QVERIFY(Sample(number)->hasFocus());
  }
}

void frmColorTest::choosesByAClick() {
  Open(5);
  Click(2);
  IsMarked(2);
  Click(8);
  IsMarked(8);
  QCOMPARE(choice_->Chosen(), 5);
  QTest::mouseClick(Named<QPushButton>(*window_, "cmdOk"), Qt::LeftButton);
  QVERIFY(!window_->isVisible());
  QCOMPARE(choice_->Chosen(), 8);
}

void frmColorTest::choosesByArrows() {
  Open(5);
  Key(Qt::Key_Right);
  IsMarked(6);
  Key(Qt::Key_Up);
  IsMarked(1);
  Key(Qt::Key_Left);
  IsMarked(0);
  Key(Qt::Key_Down);
  IsMarked(5);
  Key(Qt::Key_Right);
  Key(Qt::Key_Return);
  QTRY_VERIFY(!window_->isVisible());
  QCOMPARE(choice_->Chosen(), 6);
}

void frmColorTest::givesNothingWhenCancelled_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("cmdCancel") << 0;
  QTest::newRow("Escape") << 1;
  QTest::newRow("the window's button") << 2;
  QTest::newRow("access key") << 3;
}

void frmColorTest::givesNothingWhenCancelled() {
  QFETCH(int, way);
  Open(5);
  Click(3);
  if (way == 0) QTest::mouseClick(Named<QPushButton>(*window_, "cmdCancel"), Qt::LeftButton);
  if (way == 1) Key(Qt::Key_Escape);
  if (way == 2) QVERIFY(window_->close());
  if (way == 3) QTest::keyClick(window_.get(), Qt::Key_C, Qt::AltModifier);
  QTRY_VERIFY(!window_->isVisible());
  QCOMPARE(choice_->Chosen(), 5);
}

void frmColorTest::opensTheManual() {
  Open(5);
  Key(Qt::Key_F1);
  QCOMPARE(help_.Asked, std::vector<std::string>{"contents"});
  QVERIFY(window_->isVisible());
}

void frmColorTest::handsTheNumberBack_data() {
  QTest::addColumn<int>("clicked");
  QTest::addColumn<bool>("ok");
  QTest::addColumn<int>("colour");
  QTest::addColumn<bool>("differs");
  QTest::newRow("another") << 9 << true << 9 << true;
  QTest::newRow("the same") << 5 << true << 5 << false;
  QTest::newRow("zero") << 0 << true << 0 << true;
  QTest::newRow("cancelled") << 9 << false << 5 << false;
}

void frmColorTest::handsTheNumberBack() {
  QFETCH(int, clicked);
  QFETCH(bool, ok);
  bool seen = false;
  QTimer::singleShot(0, this, [&] {
    QWidget* window = QApplication::activeModalWidget();
    seen = window && window->objectName() == "frmColor";
    if (!seen) return;
    QTest::mouseClick(Named<QWidget>(*window, qPrintable(QString("lblColor(%1)").arg(clicked))),
                      Qt::LeftButton);
    QTest::mouseClick(Named<QPushButton>(*window, ok ? "cmdOk" : "cmdCancel"), Qt::LeftButton);
  });
  int colour = 5;
  const bool differs = GetDxfColor(colour, help_, nullptr);
  QVERIFY(seen);
  QTEST(colour, "colour");
  QTEST(differs, "differs");
}

void frmColorTest::namesEveryControl() {
  Open(5);
  QCOMPARE(test::BadlySpoken(*window_, Samples() << "lblSendColor"
                                                 << "cmdOk"
                                                 << "cmdCancel"),
           QStringList());
  QCOMPARE(Sample(5)->accessibleName(), QString("5 Blue"));
  QCOMPARE(Sample(5)->accessibleDescription(), QString("Red 0, green 0, blue 255"));
  QCOMPARE(test::AccessKeys(*window_).size(), 2);
  QVERIFY(test::AccessKeys(*window_).contains('O') && test::AccessKeys(*window_).contains('C'));
}

void frmColorTest::tabsInReadingOrder() {
  Open(7);
  QCOMPARE(test::TabOrder(*window_), QStringList({"lblColor(7)", "cmdOk", "cmdCancel"}));
}

void frmColorTest::clipsNothing_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 14; ++points) QTest::addRow("%d points", points) << points;
}

void frmColorTest::clipsNothing() {
  QFETCH(int, points);
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPointSize(points);
  QApplication::setFont(font);
  Open(5);
  QCOMPARE(test::Clipped(*window_, Samples() << "cmdOk"
                                             << "cmdCancel")
               .join(", "),
           QString());
  QApplication::setFont(before);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmColorTest)
#include "frmColor_test.moc"
