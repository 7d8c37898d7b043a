#include "qt/OptionsBench.h"

namespace tarnwick {

using namespace test;

// Numbers typed into the options.
class frmCfgNumbersTest : public QObject, private OptionsBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { Close(); }

  void readsANumberWhenItsBoxIsLeft_data();
  void readsANumberWhenItsBoxIsLeft();
  void readsANumberOnItsWayElsewhere_data();
  void readsANumberOnItsWayElsewhere();
  void putsARefusedNumberBack();
  void staysWhenANumberIsRefused_data();
  void staysWhenANumberIsRefused();
  void showsTheMessageAboveItself();
  void saysNothingOnTheWayOut_data();
  void saysNothingOnTheWayOut();
  void keepsTheBoxWhenAnotherWindowIsInUse();
};

// ---- numbers

void frmCfgNumbersTest::readsANumberWhenItsBoxIsLeft_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("shown");
  const auto row = [](const char* name, const char* typed, const char* shown) {
    QTest::addRow("%s %s", name, typed) << name << typed << shown;
  };
  row("txtDecimalPlaces", "3", "4");
  row("txtDecimalPlaces", "11", "10");
  row("txtDecimalPlaces", "10", "10");
  row("txtDecimalPlaces", "2*4", "8");
  row("txtDisplayPlaces", "1", "2");
  row("txtDisplayPlaces", "6", "5");
  row("txtDisplayPlaces", "2", "2");
  row("txtDisplayScale", "1.6", "1");
  row("txtDisplayScale", "1.5", "1.5");
  row("txtDisplayScale", "1/2", "0.5");
  row("txtDisplayScale", "", "1");
}

void frmCfgNumbersTest::readsANumberWhenItsBoxIsLeft() {
  QFETCH(QString, name);
  QFETCH(QString, typed);
  Open();
  Type(name, typed);
  QCOMPARE(Box(name)->text(), typed);
  QVERIFY(ApplyEnabled());
  QTest::keyClick(Box(name), Qt::Key_Tab);
  QTEST(Box(name)->text(), "shown");
  QVERIFY(ApplyEnabled());
  QVERIFY(messages_.Shown.empty());
}

void frmCfgNumbersTest::readsANumberOnItsWayElsewhere_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("back") << 0;
  QTest::newRow("click on another box") << 1;
  QTest::newRow("click on a check box") << 2;
  QTest::newRow("another page") << 3;
  QTest::newRow("Apply") << 4;
  QTest::newRow("OK") << 5;
  QTest::newRow("Enter") << 6;
}

void frmCfgNumbersTest::readsANumberOnItsWayElsewhere() {
  QFETCH(int, way);
  Open();
  Type("txtDecimalPlaces", "3");
  if (way == 0) QTest::keyClick(Box("txtDecimalPlaces"), Qt::Key_Backtab);
  if (way == 1) QTest::mouseClick(Box("txtDisplayScale"), Qt::LeftButton);
  if (way == 2) Tick("chkQuickClick");
  if (way == 3) QTest::keyClick(window_->focusWidget(), Qt::Key_L, Qt::AltModifier);
  if (way == 4) Press("cmdApply");
  if (way == 5) Press("cmdOk");
  if (way == 6) QTest::keyClick(Box("txtDecimalPlaces"), Qt::Key_Return);
  QTRY_COMPARE(Box("txtDecimalPlaces")->text(), QString("4"));
  QCOMPARE(applied_, way >= 4 ? 1 : 0);
  QCOMPARE(window_->isVisible(), way < 5);
}

void frmCfgNumbersTest::putsARefusedNumberBack() {
  for (const QString& name : NumberNames) {
    init();
    Open();
    const QString before = Box(name)->text();
    Type(name, "many");
    QTest::keyClick(Box(name), Qt::Key_Tab);
    QCOMPARE(Box(name)->text(), before);
    QCOMPARE(messages_.Texts(), std::vector<std::string>{"Not a valid equation!"});
    QVERIFY(!Box(name)->hasFocus());
    Press("cmdOk");
    QCOMPARE(messages_.Shown.size(), std::size_t{1});
    QVERIFY(!window_->isVisible());
  }
}

void frmCfgNumbersTest::staysWhenANumberIsRefused_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("OK") << 0;
  QTest::newRow("Apply") << 1;
  QTest::newRow("Enter") << 2;
  QTest::newRow("access key of OK") << 3;
}

void frmCfgNumbersTest::staysWhenANumberIsRefused() {
  QFETCH(int, way);
  Open();
  Type("txtDisplayScale", "many");
  if (way == 0) Press("cmdOk");
  if (way == 1) Press("cmdApply");
  if (way == 2) QTest::keyClick(Box("txtDisplayScale"), Qt::Key_Enter);
  if (way == 3) QTest::keyClick(window_.get(), Qt::Key_O, Qt::AltModifier);
  QTRY_COMPARE(messages_.Texts(), std::vector<std::string>{"Not a valid equation!"});
  QTest::qWait(150);  // a button pressed by its access key takes a moment
  QCOMPARE(messages_.Shown.size(), std::size_t{1});
  QVERIFY(window_->isVisible());
  QCOMPARE(Box("txtDisplayScale")->text(), QString("1"));
  QCOMPARE(applied_, 0);
}

void frmCfgNumbersTest::showsTheMessageAboveItself() {
  QtMessages messages;
  Open(messages);
  Type("txtDecimalPlaces", "many");
  const QWidget* owner = nullptr;
  QString text;
  int boxes = 0;
  QTimer watch;
  connect(&watch, &QTimer::timeout, this, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    ++boxes;
    owner = box->parentWidget();
    text = box->text();
    box->button(QMessageBox::Ok)->click();
  });
  watch.start(10);
  // It waits for the end of the click, which counts.
  auto* other = Find<QCheckBox>("chkQuickClick");
  const QPoint mark(8, other->height() / 2);
  QTest::mousePress(other, Qt::LeftButton, {}, mark);
  QTest::qWait(60);
  QCOMPARE(boxes, 0);
  QTest::mouseRelease(other, Qt::LeftButton, {}, mark);
  QTRY_COMPARE(boxes, 1);
  QCOMPARE(owner, window_.get());
  QCOMPARE(text, QString("Not a valid equation!"));
  QCOMPARE(Box("txtDecimalPlaces")->text(), QString("5"));
  QVERIFY(other->isChecked());
  QVERIFY(!other->isDown());
  QTest::qWait(60);
  QCOMPARE(boxes, 1);
}

void frmCfgNumbersTest::saysNothingOnTheWayOut_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("cmdCancel") << 0;
  QTest::newRow("Escape") << 1;
  QTest::newRow("the window's button") << 2;
  QTest::newRow("access key") << 3;
  QTest::newRow("cmdCancel by keys") << 4;
}

void frmCfgNumbersTest::saysNothingOnTheWayOut() {
  QFETCH(int, way);
  Open();
  Type("txtDisplayScale", "many");
  if (way == 0) Press("cmdCancel");
  if (way == 1) QTest::keyClick(Box("txtDisplayScale"), Qt::Key_Escape);
  if (way == 2) QVERIFY(window_->close());
  if (way == 3) QTest::keyClick(window_.get(), Qt::Key_C, Qt::AltModifier);
  if (way == 4) {
    Find<QPushButton>("cmdCancel")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Space);
  }
  QTRY_VERIFY(!window_->isVisible());
  QTest::qWait(20);
  QVERIFY(messages_.Shown.empty());
  QVERIFY(!dialog_->IsOpen());
  QCOMPARE(applied_, 0);
}

void frmCfgNumbersTest::keepsTheBoxWhenAnotherWindowIsInUse() {
  Open();
  Type("txtDecimalPlaces", "3");
  QDialog other(window_.get());
  other.show();
  other.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&other));
  QCOMPARE(Box("txtDecimalPlaces")->text(), QString("3"));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmCfgNumbersTest)
#include "frmCfgNumbers_test.moc"
