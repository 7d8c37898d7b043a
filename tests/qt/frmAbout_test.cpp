#include "shell/frmAbout.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <memory>

#include "platform/qt/BandPicture.h"
#include "qt/Controls.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {
namespace {

using test::Named;

const QStringList Controls = {"PicAbout", "lblAbout", "cmdOk"};

}  // namespace

class frmAboutTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();

  void saysWhatTheProgramIs();
  void closesByItsButtonAndByKeys_data();
  void closesByItsButtonAndByKeys();
  void opensTheManual();
  void blocksItsWindowAndStandsInTheMiddle();
  void showsTheBandOnItsGround();
  void namesEveryControl();
  void clipsNothing_data();
  void clipsNothing();

 private:
  void Open(QWidget* parent = nullptr);

  test::RecordingHelpViewer help_;
  std::unique_ptr<frmAbout> window_;
};

void frmAboutTest::cleanup() {
  window_.reset();
  help_ = {};
}

void frmAboutTest::Open(QWidget* parent) {
  window_ = std::make_unique<frmAbout>(help_, parent);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void frmAboutTest::saysWhatTheProgramIs() {
  Open();
  QCOMPARE(window_->objectName(), QString("frmAbout"));
  QCOMPARE(window_->windowTitle(), QString("About Tarnwick"));
  const QString text = Named<QLabel>(*window_, "lblAbout")->text();
  QCOMPARE(text, QString("Tarnwick for Windows Version: 2.1\n\n"
                         "Made by the Tarnwick makers, www.tarnwick.example"));
}

void frmAboutTest::closesByItsButtonAndByKeys_data() {
  QTest::addColumn<int>("way");
  QTest::addColumn<int>("result");
  QTest::newRow("cmdOk") << 0 << int(QDialog::Accepted);
  QTest::newRow("Enter") << 1 << int(QDialog::Accepted);
  QTest::newRow("Escape") << 2 << int(QDialog::Rejected);
  QTest::newRow("access key") << 3 << int(QDialog::Accepted);
}

void frmAboutTest::closesByItsButtonAndByKeys() {
  QFETCH(int, way);
  Open();
  if (way == 0) QTest::mouseClick(Named<QPushButton>(*window_, "cmdOk"), Qt::LeftButton);
  if (way == 1) QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  if (way == 2) QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  if (way == 3) QTest::keyClick(window_.get(), Qt::Key_O, Qt::AltModifier);
  QTRY_VERIFY(!window_->isVisible());
  QTEST(window_->result(), "result");
}

void frmAboutTest::opensTheManual() {
  Open();
  QTest::keyClick(window_->focusWidget(), Qt::Key_F1);
  QCOMPARE(help_.Asked, std::vector<std::string>{"contents"});
  QVERIFY(window_->isVisible());
}

void frmAboutTest::blocksItsWindowAndStandsInTheMiddle() {
  QMainWindow owner;
  owner.setGeometry(20, 300, 300, 200);
  owner.show();
  QVERIFY(QTest::qWaitForWindowExposed(&owner));
  Open(&owner);
  QCOMPARE(QApplication::activeModalWidget(), window_.get());
  const QPoint off = window_->frameGeometry().center() - owner.screen()->availableGeometry().center();
  QVERIFY(off.manhattanLength() <= 2);
  window_.reset();
}

void frmAboutTest::showsTheBandOnItsGround() {
  Open();
  auto* box = Named<BandPicture>(*window_, "PicAbout");
  QCOMPARE(box->width(), window_->width());
  QCOMPARE(box->height(), box->heightForWidth(box->width()));
  const QImage picture = box->grab().toImage();
  QCOMPARE(picture.pixelColor(1, 1), PictureGround);
  QVERIFY(picture.pixelColor(picture.width() / 2, picture.height() / 2).lightness() > 150);  // steel
}

void frmAboutTest::namesEveryControl() {
  Open();
  QCOMPARE(test::BadlySpoken(*window_, Controls), QStringList());
  QCOMPARE(test::TabOrder(*window_), QStringList("cmdOk"));
  QCOMPARE(test::AccessKeys(*window_), QString("O"));
}

void frmAboutTest::clipsNothing_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 14; ++points) QTest::addRow("%d points", points) << points;
}

void frmAboutTest::clipsNothing() {
  QFETCH(int, points);
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPointSize(points);
  QApplication::setFont(font);
  Open();
  QCOMPARE(test::Clipped(*window_, Controls).join(", "), QString());
  QApplication::setFont(before);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmAboutTest)
#include "frmAbout_test.moc"
