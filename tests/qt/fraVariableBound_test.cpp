#include "qt/BoundVariable.h"

namespace tarnwick {

using namespace test;

// The panel of the variable pitch at work with what is behind it.
class fraVariableBoundTest : public QObject {
  Q_OBJECT

 private slots:
  void makesABandVariable();
  void takesAPitch();
  void takesADepth();
  void unticksItselfWithoutASegment();
  void goesBackToNone();
  void resets();
  void isLeftByOkAndCancel();
  void goesThroughPatternsByKeys();
};

void fraVariableBoundTest::makesABandVariable() {
  Bound bound;
  QCOMPARE(bound.List()->currentText(), QString("3 Teeth"));
  QVERIFY(bound.Option(0)->isChecked());
  Bound::Click(bound.Option(1));
  QCOMPARE(bound.Drawn, 1);
  QCOMPARE(bound.General().NumVariables, std::int16_t{3});
  QCOMPARE(bound.TextOf("txtToothSpace", 0), QString(" 2.226 in"));
  QCOMPARE(bound.TextOf("txtToothSpace", 2), QString(" 1.782 in"));
  bound.List()->setFocus();
  QTest::keyClick(bound.List(), Qt::Key_Down);
  QCOMPARE(bound.General().NumVariables, std::int16_t{4});
  QCOMPARE(bound.TextOf("txtToothSpace", 3), QString(" 1.648 in"));
  QCOMPARE(bound.TextOf("txtNumberOfSegments"), QString(" 30"));
  QCOMPARE(bound.TextOf("txtSegmentSize"), QString(" 8.000 in"));
}

void fraVariableBoundTest::takesAPitch() {
  Bound bound;
  bound.Host.Text = "9";
  Bound::Click(bound.Box("txtToothSpace", 0));
  QCOMPARE(bound.Host.Asked, QStringList("Tooth Space"));
  QCOMPARE(bound.TextOf("txtToothSpace", 0), QString(" 2.600 in"));
  QCOMPARE(bound.TextOf("txtToothSpace", 2), QString(" 1.400 in"));
  Bound::Click(bound.Box("txtToothSpace", 2));
  QTest::keyClick(bound.Box("txtToothSpace", 2), Qt::Key_Space);
  QCOMPARE(bound.Host.Asked.size(), 1);  // that one is worked out
  Bound::Click(bound.Box("txtToothSpace", 1));
  QCOMPARE(bound.TextOf("txtToothSpace", 0), QString(" 2.000 in"));  // has given
}

void fraVariableBoundTest::takesADepth() {
  Bound bound;
  bound.Host.Text = "0.8";
  Bound::Click(bound.Box("txtToothDepth", 0));
  QCOMPARE(bound.Host.Asked, QStringList());
  Bound::Click(bound.Tick());
  Bound::Click(bound.Box("txtToothDepth", 0));
  QCOMPARE(bound.Host.Asked, QStringList("Gullet Depth"));
  QCOMPARE(bound.TextOf("txtToothDepth", 0), QString(" 0.800 in"));
  QCOMPARE(bound.General().VarDepth[0], 0.8);
}

void fraVariableBoundTest::unticksItselfWithoutASegment() {
  Bound bound;
  bound.List()->setFocus();
  QTest::keyClick(bound.List(), Qt::Key_Up);
  QCOMPARE(bound.List()->currentText(), QString("None"));
  Bound::Click(bound.Tick());
  QVERIFY(!bound.Tick()->isChecked());
  QTest::keyClick(bound.Tick(), Qt::Key_Space);
  QVERIFY(!bound.Tick()->isChecked());
}

void fraVariableBoundTest::goesBackToNone() {
  Bound bound;
  Bound::Click(bound.Option(3));
  bound.List()->setFocus();
  QTest::keyClick(bound.List(), Qt::Key_Up);
  QVERIFY(bound.Option(0)->isChecked());
  QVERIFY(!bound.Box("txtToothSpace", 0)->isVisible());
  QCOMPARE(bound.General().VariablePitch, False);
}

void fraVariableBoundTest::resets() {
  Bound bound;
  Bound::Click(bound.Option(2));
  Bound::Click(bound.Tick());
  Bound::Click(Named<QWidget>(bound.Panel, "cmdVariableReset"));
  QVERIFY(bound.Option(0)->isChecked());
  QVERIFY(!bound.Tick()->isChecked());
  QCOMPARE(bound.List()->currentText(), QString("None"));
  QCOMPARE(bound.General().VariablePitch, False);
}

void fraVariableBoundTest::isLeftByOkAndCancel() {
  Bound bound;
  QCOMPARE(bound.Shown, Panel::Variable);
  Bound::Click(bound.Option(2));
  Bound::Click(Named<QWidget>(bound.Panel, "cmdVariableCancel"));
  QCOMPARE(bound.Shown, Panel::Main);
  QCOMPARE(bound.General().VariablePitch, False);
  bound.Commands.OpenVariable();
  QVERIFY(bound.Option(0)->isChecked());
  Bound::Click(bound.Option(2));
  Bound::Click(Named<QWidget>(bound.Panel, "cmdVariableOK"));
  QCOMPARE(bound.Design().SawEdit.GeneralInfo.VariablePitch, True);
}

void fraVariableBoundTest::goesThroughPatternsByKeys() {
  Bound bound;
  bound.Option(0)->setFocus();
  QTest::keyClick(bound.Option(0), Qt::Key_Right);
  QVERIFY(bound.Option(1)->isChecked());
  QCOMPARE(bound.Design().Saw.DesignInfo.VarPattern, std::int16_t{LeftToRightPattern});
  QTest::keyClick(bound.Option(1), Qt::Key_Down);
  QVERIFY(bound.Option(3)->isChecked());
  QCOMPARE(bound.TextOf("txtToothSpace", 1), QString(" 2.226 in"));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::fraVariableBoundTest)
#include "fraVariableBound_test.moc"
