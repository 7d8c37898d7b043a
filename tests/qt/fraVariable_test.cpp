#include "qt/BoundVariable.h"

namespace tarnwick {
namespace {

using test::Bound;
using test::Indexed;
using test::Named;
using test::Rows;

/// A segment of five teeth with depths, as the panel shows it.
VariableValues FiveTeeth() {
  VariableValues values;
  values.IsFilled = true;
  values.ToothPitch = {1.7, 2.18, 2.45, 1.97, 1.7};
  values.ToothDepth = {0.595, 0.763, 0.8575, 0.6895, 0.595};
  values.SegmentTeeth = 5;
  values.AveragePitch = 2;
  values.BaseDepth = 0.7;
  values.SegmentSize = 10;
  values.NumSegments = 24;
  values.NumTeeth = 120;
  values.DepthIsVariable = true;
  values.Entries = SegmentEntries(120);
  values.Entry = 3;
  values.Pattern = MixedPattern;
  return values;
}

}  // namespace

class fraVariableTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { panel_.reset(); }

  void hasEveryControl();
  void isEmptyAtFirst();
  void showsASegment();
  void showsTheRowsOfASegment_data();
  void showsTheRowsOfASegment();
  void showsASegmentThatIsNotOffered();
  void followsTheUnits();
  void firesNothingWhenShown();
  void tellsThePressOfABox();
  void tellsThePressOfACaption();
  void tellsWhoOwnsAFigure();
  void tellsThePatternThatIsClicked();
  void tellsTheEntryThatIsChosen();
  void doesNotTurnTheListByTheWheel();
  void tellsTheTick();
  void tellsTheButtons();
  void hintsAtWhatTheMouseIsOver();
  void hintsAtABoxThatIsOnlyRead();
  void hintsAtWhatTabReaches();
  void tabsInReadingOrder();
  void bringsTheBoxOfTheFocusIntoSight();
  void linesUp_data();
  void linesUp();
  void keepsItsButtonsInSight();
  void givesTheBoxesTheirShareOfTheWidth();

 private:
  std::unique_ptr<fraVariable> panel_;
  QStringList told_;
  QString hint_ = "?";
  int topic_ = -1;
};

void fraVariableTest::init() {
  told_.clear();
  hint_ = "?";
  topic_ = -1;
  panel_ = std::make_unique<fraVariable>();
  const auto note = [this](const char* what) { return [this, what](int k) { told_ += Indexed(what, k); }; };
  const auto press = [this](const char* what) { return [this, what] { told_ += what; }; };
  connect(panel_.get(), &fraVariable::EntryChosen, this, note("entry"));
  connect(panel_.get(), &fraVariable::PatternClicked, this, note("pattern"));
  connect(panel_.get(), &fraVariable::VarDepthTicked, this, note("tick"));
  connect(panel_.get(), &fraVariable::PitchPressed, this, note("pitch"));
  connect(panel_.get(), &fraVariable::DepthPressed, this, note("depth"));
  connect(panel_.get(), &fraVariable::ResetPressed, this, press("reset"));
  connect(panel_.get(), &fraVariable::PrintPressed, this, press("print"));
  connect(panel_.get(), &fraVariable::Accepted, this, press("ok"));
  connect(panel_.get(), &fraVariable::Cancelled, this, press("cancel"));
  connect(panel_.get(), &fraVariable::Hovered, this, [this](const QString& hint, int topic) {
    hint_ = hint;
    topic_ = topic;
  });
  panel_->resize(panel_->width(), 560);
  panel_->Show(FiveTeeth(), {});
  panel_->show();
  QVERIFY(QTest::qWaitForWindowActive(panel_.get()));
}

// ---- what it shows

void fraVariableTest::hasEveryControl() {
  QStringList names{"cboPattern",          "chkVarDepth",         "txtAverageSpace", "txtAverageDepth",
                    "txtVariableNumTeeth", "txtNumberOfSegments", "txtSegmentSize",  "cmdVariableOK",
                    "cmdVariableCancel",   "cmdVariablePrint",    "cmdVariableReset"};
  for (int k = 0; k < Rows; ++k) names << Indexed("txtToothSpace", k) << Indexed("txtToothDepth", k);
  for (int index = 0; index < Patterns; ++index) names << Indexed("optPattern", index);
  QCOMPARE(test::BadlySpoken(*panel_, names), QStringList());
  for (int k = 0; k < Rows; ++k) Named<QLabel>(*panel_, Indexed("lblToothSpace", k).toUtf8());
  QCOMPARE(panel_->objectName(), QString("fraVariable"));
  QCOMPARE(Named<QLabel>(*panel_, "lblToothSpace(0)")->text(), QString("1st Tooth:"));
  QCOMPARE(Named<QLabel>(*panel_, "lblToothSpace(6)")->text(), QString("7th Tooth:"));
  for (int index = 0; index < Patterns; ++index) {
    QCOMPARE(Named<QRadioButton>(*panel_, Indexed("optPattern", index).toUtf8())->text(),
             ToQt(PatternName(index)));
  }
}

void fraVariableTest::isEmptyAtFirst() {
  panel_ = std::make_unique<fraVariable>();
  panel_->show();
  for (const auto* box : panel_->findChildren<MeasureBox*>()) QCOMPARE(box->text(), QString());
  QCOMPARE(Named<QComboBox>(*panel_, "cboPattern")->count(), 0);
  QVERIFY(Named<QRadioButton>(*panel_, "optPattern(0)")->isChecked());
  QVERIFY(!Named<QCheckBox>(*panel_, "chkVarDepth")->isChecked());
  QVERIFY(!Named<QWidget>(*panel_, "txtToothSpace(0)")->isVisible());
}

void fraVariableTest::showsASegment() {
  const auto* list = Named<QComboBox>(*panel_, "cboPattern");
  QCOMPARE(list->currentText(), QString("5 Teeth"));
  QStringList entries;
  for (int entry = 0; entry < list->count(); ++entry) entries += list->itemText(entry);
  QCOMPARE(entries, QStringList({"None", "3 Teeth", "4 Teeth", "5 Teeth", "6 Teeth"}));
  for (int index = 0; index < Patterns; ++index) {
    QCOMPARE(Named<QRadioButton>(*panel_, Indexed("optPattern", index).toUtf8())->isChecked(),
             index == MixedPattern);
  }
  QVERIFY(Named<QCheckBox>(*panel_, "chkVarDepth")->isChecked());
  const std::pair<const char*, const char*> texts[] = {
      {"txtVariableNumTeeth", " 120"},   {"txtNumberOfSegments", " 24"},    {"txtSegmentSize", " 10.000 in"},
      {"txtToothSpace(0)", " 1.700 in"}, {"txtToothSpace(2)", " 2.450 in"}, {"txtToothSpace(4)", " 1.700 in"},
      {"txtToothDepth(1)", " 0.763 in"}, {"txtToothDepth(4)", " 0.595 in"}, {"txtAverageSpace", " 2.000 in"},
      {"txtAverageDepth", " 0.700 in"},
  };
  for (const auto& [box, text] : texts) {
    QCOMPARE(Named<QLineEdit>(*panel_, box)->text(), QString(text));
    QCOMPARE(Named<QLineEdit>(*panel_, box)->cursorPosition(), 0);
  }
}

void fraVariableTest::showsTheRowsOfASegment_data() {
  QTest::addColumn<int>("teeth");
  QTest::addColumn<bool>("depth");
  for (const int teeth : {0, 3, 4, 5, 6, 7}) {
    QTest::addRow("%d teeth", teeth) << teeth << false;
    QTest::addRow("%d teeth with depths", teeth) << teeth << true;
  }
}

/// No box is ever disabled: it could not hint at itself any more.
void fraVariableTest::showsTheRowsOfASegment() {
  QFETCH(int, teeth);
  QFETCH(bool, depth);
  VariableValues values = FiveTeeth();
  values.SegmentTeeth = static_cast<std::int16_t>(teeth);
  values.DepthIsVariable = depth;
  panel_->Show(values, {});
  for (int k = 0; k < Rows; ++k) {
    const auto* label = Named<QLabel>(*panel_, Indexed("lblToothSpace", k).toUtf8());
    const auto* pitch = Named<MeasureBox>(*panel_, Indexed("txtToothSpace", k).toUtf8());
    const auto* box = Named<MeasureBox>(*panel_, Indexed("txtToothDepth", k).toUtf8());
    QCOMPARE(label->isVisible(), k < teeth);
    QCOMPARE(pitch->isVisible(), k < teeth);
    QCOMPARE(box->isVisible(), k < teeth);
    QVERIFY(pitch->isEnabled() && box->isEnabled() && pitch->isReadOnly() && box->isReadOnly());
    QCOMPARE(pitch->Opens(), k < teeth - 1);
    QCOMPARE(box->Opens(), depth && k < teeth);
  }
}

void fraVariableTest::showsASegmentThatIsNotOffered() {
  VariableValues values = FiveTeeth();
  values.Entries = SegmentEntries(63);
  values.Entry = VariableValues::NoEntry;
  panel_->Show(values, {});
  QCOMPARE(Named<QComboBox>(*panel_, "cboPattern")->currentText(), QString());
  QCOMPARE(Named<QComboBox>(*panel_, "cboPattern")->count(), 3);
}

void fraVariableTest::followsTheUnits() {
  panel_->Show(FiveTeeth(), {.ImpMetric = Metric});
  QCOMPARE(Named<QLineEdit>(*panel_, "txtToothSpace(0)")->text(), QString(" 4.318 cm"));
  QCOMPARE(Named<QLineEdit>(*panel_, "txtSegmentSize")->text(), QString(" 25.400 cm"));
}

void fraVariableTest::firesNothingWhenShown() {
  VariableValues values = FiveTeeth();
  values.Entry = 0;
  values.Pattern = LeftToRightPattern;
  values.DepthIsVariable = false;
  values.SegmentTeeth = 0;
  panel_->Show(values, {.ImpMetric = Metric});
  values.Entries = SegmentEntries(98);
  panel_->Show(values, {});
  panel_->Show({}, {});
  panel_->Show(FiveTeeth(), {});
  QCOMPARE(told_, QStringList());
  QCOMPARE(hint_, QString("?"));
}

// ---- what is done to it

void fraVariableTest::tellsThePressOfABox() {
  QStringList expected;
  for (int k = 0; k < 5; ++k) {
    for (const char* box : {"txtToothSpace", "txtToothDepth"}) {
      auto* measure = Named<MeasureBox>(*panel_, Indexed(box, k).toUtf8());
      QTest::mouseClick(measure, Qt::LeftButton);
      QTest::keyClick(measure, Qt::Key_Space);
      QTest::keyClick(measure, Qt::Key_Return);
      for (int i = 0; i < 3; ++i) expected += Indexed(box == QString("txtToothSpace") ? "pitch" : "depth", k);
    }
  }
  QCOMPARE(told_, expected);
}

void fraVariableTest::tellsThePressOfACaption() {
  QStringList expected;
  for (int k = 0; k < 5; ++k) {
    auto* label = Named<QLabel>(*panel_, Indexed("lblToothSpace", k).toUtf8());
    QTest::mouseClick(label, Qt::LeftButton);
    QTest::mouseClick(label, Qt::RightButton);
    expected += Indexed("pitch", k);
    QCOMPARE(panel_->focusWidget()->objectName(), Indexed("txtToothSpace", k));
    QCOMPARE(label->cursor().shape(), k < 4 ? Qt::PointingHandCursor : Qt::ArrowCursor);
  }
  QCOMPARE(told_, expected);
}

void fraVariableTest::tellsWhoOwnsAFigure() {
  for (const char* box : {"txtVariableNumTeeth", "txtAverageSpace", "txtAverageDepth"}) {
    hint_.clear();
    QTest::mouseClick(Named<QWidget>(*panel_, box), Qt::LeftButton);
    QCOMPARE(hint_, QString("To change this value you must use the tooth shape editor."));
    hint_.clear();
    QTest::keyClick(Named<QWidget>(*panel_, box), Qt::Key_Return);
    QCOMPARE(hint_, QString("To change this value you must use the tooth shape editor."));
  }
  hint_.clear();
  QTest::mouseMove(panel_.get(), QPoint(2, panel_->height() - 2));
  hint_ = "?";
  for (const char* box : {"txtSegmentSize", "txtNumberOfSegments"}) {
    QTest::keyClick(Named<QWidget>(*panel_, box), Qt::Key_Space);
    QCOMPARE(hint_, QString("?"));
  }
  QCOMPARE(told_, QStringList());
}

void fraVariableTest::tellsThePatternThatIsClicked() {
  for (const int index : {1, 0, 3, 2, 2}) {
    Bound::Click(Named<QWidget>(*panel_, Indexed("optPattern", index).toUtf8()));
  }
  QCOMPARE(told_, QStringList({"pattern(1)", "pattern(0)", "pattern(3)", "pattern(2)", "pattern(2)"}));
}

void fraVariableTest::tellsTheEntryThatIsChosen() {
  auto* list = Named<QComboBox>(*panel_, "cboPattern");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Up);
  QTest::keyClick(list, Qt::Key_Up);
  QCOMPARE(told_, QStringList({"entry(2)", "entry(1)"}));
  told_.clear();
  for (const int entry : {4, 4}) {  // from the open list, the same again too
    list->showPopup();
    QAbstractItemView* open = list->view();
    QTRY_VERIFY(open->isVisible());
    QTest::qWait(QApplication::doubleClickInterval() + 50);  // a list that has just opened takes no click
    const QRect place = open->visualRect(list->model()->index(entry, 0));
    QTest::mouseMove(open->viewport(), place.center());
    QTest::mouseClick(open->viewport(), Qt::LeftButton, {}, place.center());
    QTRY_VERIFY(!open->isVisible());
  }
  QCOMPARE(told_, QStringList({"entry(4)", "entry(4)"}));
}

void fraVariableTest::doesNotTurnTheListByTheWheel() {
  auto* list = Named<QComboBox>(*panel_, "cboPattern");
  list->setFocus();
  const QPointF middle = QRectF(list->rect()).center();
  QWheelEvent wheel(middle, list->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(list, &wheel);
  QCOMPARE(list->currentText(), QString("5 Teeth"));
  QCOMPARE(told_, QStringList());
}

void fraVariableTest::tellsTheTick() {
  auto* tick = Named<QCheckBox>(*panel_, "chkVarDepth");
  Bound::Click(tick);
  QTest::keyClick(tick, Qt::Key_Space);
  QCOMPARE(told_, QStringList({"tick(0)", "tick(1)"}));
}

void fraVariableTest::tellsTheButtons() {
  QCOMPARE(test::AccessKeys(*panel_).size(), 4);
  QStringList keys = test::AccessKeys(*panel_).split("", Qt::SkipEmptyParts);
  keys.sort();
  QCOMPARE(keys, QStringList({"C", "O", "P", "R"}));
  for (const char* button : {"cmdVariableReset", "cmdVariablePrint", "cmdVariableOK", "cmdVariableCancel"}) {
    QTest::mouseClick(Named<QPushButton>(*panel_, button), Qt::LeftButton);
  }
  for (const auto key : {Qt::Key_R, Qt::Key_P, Qt::Key_O, Qt::Key_C}) {
    const auto before = told_.size();
    QTest::keyClick(panel_.get(), key, Qt::AltModifier);
    QTRY_COMPARE(told_.size(), before + 1);
  }
  QCOMPARE(told_, QStringList({"reset", "print", "ok", "cancel", "reset", "print", "ok", "cancel"}));
  told_.clear();
  for (const char* button : {"cmdVariableReset", "cmdVariablePrint", "cmdVariableOK", "cmdVariableCancel"}) {
    auto* pressed = Named<QPushButton>(*panel_, button);
    pressed->setFocus();
    QTest::keyClick(pressed, Qt::Key_Return);
    QTest::keyClick(pressed, Qt::Key_Space);
  }
  QCOMPARE(told_, QStringList({"reset", "reset", "print", "print", "ok", "ok", "cancel", "cancel"}));
}

// ---- hints, keys

void fraVariableTest::hintsAtWhatTheMouseIsOver() {
  const std::pair<const char*, const char*> hints[] = {
      {"cboPattern", "Select the number of teeth in segment."},
      {"txtSegmentSize", "The length of one segment of variable pitch teeth."},
      {"chkVarDepth", "Check if you want variable depth gullets."},
      {"optPattern(2)", "Click to select the preset right to left tooth pitch pattern."},
      {"txtToothSpace(0)", "Click to activate the first tooth pitch  input box."},
      {"lblToothSpace(1)", "Click to activate the second tooth pitch input box."},
      {"txtToothDepth(2)", "Click to activate the third gullet depth input box."},
      {"txtAverageDepth", "Displays the average gullet depth."},
      {"cmdVariableReset", "Click to reset all variable pitch values."},
      {"cmdVariableOK", "Click to accept the variable pitch values."},
      {"cmdVariableCancel", "Click to discard any variable pitch changes."},
  };
  for (const auto& [control, hint] : hints) {
    auto* widget = Named<QWidget>(*panel_, control);
    QTest::mouseMove(widget, QPoint(8, widget->height() / 2));
    QTRY_COMPARE(hint_, QString(hint));
    const QString name = control;
    QCOMPARE(topic_, name.contains("Space(") ? 202 : name.contains("Depth(") ? 213 : 0);
    if (!name.startsWith("lbl")) QCOMPARE(widget->accessibleDescription(), QString(hint));
  }
  QTest::mouseMove(panel_.get(), QPoint(2, panel_->height() - 2));
  QTRY_COMPARE(hint_, QString());
  QCOMPARE(topic_, 0);
}

void fraVariableTest::hintsAtABoxThatIsOnlyRead() {
  QTest::mouseMove(Named<QWidget>(*panel_, "txtToothSpace(4)"));  // the computed one
  QTRY_COMPARE(hint_, QString("Click to activate the fifth tooth pitch input box."));
}

void fraVariableTest::hintsAtWhatTabReaches() {
  QTest::mouseMove(panel_.get(), QPoint(2, panel_->height() - 2));
  QTest::qWait(10);
  hint_ = "?";
  auto* list = Named<QWidget>(*panel_, "cboPattern");
  list->setFocus();
  QCOMPARE(hint_, QString("?"));  // a panel that comes up says nothing
  QTest::keyClick(list, Qt::Key_Tab);
  QTest::keyClick(panel_->focusWidget(), Qt::Key_Tab);
  QCOMPARE(panel_->focusWidget()->objectName(), QString("txtSegmentSize"));
  QCOMPARE(hint_, QString("The length of one segment of variable pitch teeth."));
}

void fraVariableTest::tabsInReadingOrder() {
  QStringList expected{"txtVariableNumTeeth", "cboPattern",    "txtNumberOfSegments",
                       "txtSegmentSize",      "optPattern(3)", "chkVarDepth"};
  for (int k = 0; k < 5; ++k) expected << Indexed("txtToothSpace", k) << Indexed("txtToothDepth", k);
  expected << "txtAverageSpace"
           << "txtAverageDepth"
           << "cmdVariablePrint"
           << "cmdVariableReset"
           << "cmdVariableOK"
           << "cmdVariableCancel";
  Named<QWidget>(*panel_, "txtVariableNumTeeth")->setFocus();
  QStringList order;
  for (int i = 0; i < expected.size(); ++i) {
    order << panel_->focusWidget()->objectName();
    QTest::keyClick(panel_->focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(order, expected);
  QCOMPARE(panel_->focusWidget()->objectName(), QString("txtVariableNumTeeth"));
}

void fraVariableTest::bringsTheBoxOfTheFocusIntoSight() {
  panel_->resize(panel_->width(), 260);
  QTest::qWait(10);
  auto* last = Named<QWidget>(*panel_, "cmdVariablePrint");
  QVERIFY(last->visibleRegion().isEmpty());
  Named<QWidget>(*panel_, "cmdVariableReset")->setFocus();
  QTest::keyClick(panel_->focusWidget(), Qt::Key_Backtab);
  QVERIFY(last->hasFocus());
  QTRY_COMPARE(last->visibleRegion().boundingRect(), last->rect());
}

// ---- places

void fraVariableTest::linesUp_data() {
  QTest::addColumn<int>("teeth");
  for (const int teeth : {0, 3, 7}) QTest::addRow("%d teeth", teeth) << teeth;
}

/// Captions end at one line, boxes begin and end at one line, and nothing is cut or sticks out.
void fraVariableTest::linesUp() {
  QFETCH(int, teeth);
  VariableValues values = FiveTeeth();
  values.SegmentTeeth = static_cast<std::int16_t>(teeth);
  values.ToothPitch.fill(12.345);
  values.ToothDepth.fill(12.345);
  panel_->Show(values, {.ImpMetric = Metric});
  panel_->resize(panel_->width(), 620);
  QTest::qWait(10);
  const auto* pitch = Named<QWidget>(*panel_, "txtAverageSpace");
  const auto* depth = Named<QWidget>(*panel_, "txtAverageDepth");
  const auto* size = Named<QWidget>(*panel_, "txtSegmentSize");
  QCOMPARE(size->geometry().right(), depth->geometry().right());
  QCOMPARE(Named<QWidget>(*panel_, "cboPattern")->x(), size->x());
  QCOMPARE(Named<QWidget>(*panel_, "cboPattern")->width(), size->width());
  int bottom = 0;
  for (int k = 0; k < teeth; ++k) {
    const auto* space = Named<MeasureBox>(*panel_, Indexed("txtToothSpace", k).toUtf8());
    const auto* gullet = Named<MeasureBox>(*panel_, Indexed("txtToothDepth", k).toUtf8());
    const auto* label = Named<QLabel>(*panel_, Indexed("lblToothSpace", k).toUtf8());
    QCOMPARE(space->x(), pitch->x());
    QCOMPARE(gullet->x(), depth->x());
    QCOMPARE(space->width(), gullet->width());
    QCOMPARE(space->y(), gullet->y());
    QVERIFY(space->y() > bottom);
    bottom = space->geometry().bottom();
    QVERIFY(label->width() >= label->sizeHint().width());
    QVERIFY(label->geometry().right() < space->x());
    for (const MeasureBox* box : {space, gullet}) {
      QVERIFY(box->fontMetrics().horizontalAdvance(box->text()) < box->width() - 8);
    }
  }
  for (const auto* label : panel_->findChildren<QLabel*>()) {
    if (label->isVisible()) QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
  }
  QCOMPARE(test::Clipped(*panel_,
                         {"optPattern(0)", "optPattern(1)", "optPattern(2)", "optPattern(3)", "chkVarDepth"}),
           QStringList());
}

void fraVariableTest::keepsItsButtonsInSight() {
  for (const int height : {120, 480, 1000}) {
    panel_->resize(panel_->width(), height);
    QTest::qWait(10);
    QCOMPARE(test::Clipped(*panel_, {"cmdVariableReset", "cmdVariableOK", "cmdVariableCancel"}),
             QStringList());
  }
}

void fraVariableTest::givesTheBoxesTheirShareOfTheWidth() {
  const auto* alone = Named<QWidget>(*panel_, "txtSegmentSize");
  const auto* beside = Named<QWidget>(*panel_, "txtToothSpace(0)");
  const int least = panel_->LeastWidth(), before = alone->width(), beforeBeside = beside->width();
  QCOMPARE(panel_->width(), least);
  panel_->SetWidth(least + 100, 80);
  QTest::qWait(10);
  QCOMPARE(panel_->width(), least + 100);
  QCOMPARE(alone->width(), before + 80);
  QCOMPARE(beside->width(), beforeBeside + 40);
  panel_->SetWidth(least, 0);
  QTest::qWait(10);
  QCOMPARE(alone->width(), before);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::fraVariableTest)
#include "fraVariable_test.moc"
