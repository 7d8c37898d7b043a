#include "platform/qt/ToolBar.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <memory>

#include "qt/Controls.h"
#include "shell/modToolCommands.h"

namespace tarnwick {
namespace {

struct Item {
  const char* Name;
  const char* Caption;
  const char* Key;
};

constexpr Item Items[] = {
    {"mnuItemOut", "Zoom Out", "Ctrl+O"},  // not in the bar's order: the bar has one of its own
    {"mnuItemVarSegment", "View Variable Segment", "Ctrl+S"},
    {"mnuItemMain", "Main Screen", ""},
    {"mnuItemNew", "&New", ""},
    {"mnuItemStepByStep", "Ne&w Step by Step", ""},
    {"mnuItemAll", "View All", "Ctrl+A"},
    {"mnuItemExit", "E&xit", ""},
};

const QStringList Buttons{"tlbNew", "tlbStepByStep", "tlbMain", "tlbViewAll", "tlbViewVar", "tlbViewMinus"};

}  // namespace

// A window with a few commands, a place to work in, and the bar between.
class ToolBarTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { window_.reset(); }

  void hasAButtonForEachCommandThereIs();
  void goesByTheOrderOfTheHints();
  void isGrouped();
  void staysWhereItIs();
  void namesItsButtons();
  void tellsCaptionAndKey();
  void followsItsCommand();
  void showsADrawingOnEachButton();
  void runsTheCommandWithTheFocusOnTheWork();
  void runsNothingForACommandThatIsOff();
  void hints_data();
  void hints();
  void hintsAlsoWhereACommandIsOff();
  void isOneStopOfTheTabKey();
  void goesAlongByArrows();
  void goesBackToWhereItWas();
  void skipsWhatCannotBeUsed();
  void forgetsNoPlaceWhileAFileIsRead();
  void isReachedByF10();
  void pressesByKey();
  void showsWhereTheFocusIs();
  void followsTheColoursOfItsWindow();

 private:
  QAction* Command(const char* name) { return Named<QAction>(name); }
  template <typename T>
  T* Named(const char* name) {
    auto* found = window_->findChild<T*>(name);
    if (!found) qFatal("there is no %s", name);
    return found;
  }
  QToolButton* ButtonNamed(const char* name) { return Named<QToolButton>(name); }
  QString Focus() {
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
  }
  void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  /// How far from the nearest button to the left a button stands.
  int GapBefore(const char* name);

  std::unique_ptr<QMainWindow> window_;
  ToolBar* bar_ = nullptr;
  QWidget* before_ = nullptr;
  QWidget* work_ = nullptr;
};

void ToolBarTest::init() {
  window_ = std::make_unique<QMainWindow>();
  for (const Item& item : Items) {
    auto* command = new QAction(item.Caption, window_.get());
    command->setObjectName(item.Name);
    command->setShortcut(QKeySequence(item.Key));
  }
  work_ = new QWidget(window_.get());
  work_->setObjectName("PicEditor");
  work_->setFocusPolicy(Qt::StrongFocus);
  window_->setCentralWidget(work_);
  bar_ = new ToolBar(*work_, window_.get());
  bar_->AddCommandsOf(*window_);
  window_->addToolBar(bar_);
  window_->resize(800, 600);
  window_->show();
  work_->setFocus();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void ToolBarTest::hasAButtonForEachCommandThereIs() {
  QStringList names;
  for (const auto* button : bar_->findChildren<QToolButton*>()) {
    if (button->defaultAction()) names.append(button->objectName());
  }
  QCOMPARE(names, Buttons);
  for (const char* name : {"tlbOpen", "tlbPower", "tlbViewOne"}) QVERIFY(!window_->findChild<QWidget*>(name));
}

void ToolBarTest::goesByTheOrderOfTheHints() {
  int right = 0;
  for (const QString& name : Buttons) {
    const QToolButton* button = ButtonNamed(qPrintable(name));
    QVERIFY(button->isVisible());
    QVERIFY(button->x() >= right);
    right = button->geometry().right();
  }
  int hint = 22;
  for (const ToolCommand& row : ToolCommands) {
    if (row.Hint != 0) QCOMPARE(row.Hint, hint++);
  }
  QCOMPARE(hint, 35);
}

int ToolBarTest::GapBefore(const char* name) {
  const QToolButton* button = ButtonNamed(name);
  const auto place = Buttons.indexOf(name);
  return button->x() - ButtonNamed(qPrintable(Buttons[place - 1]))->geometry().right() - 1;
}

void ToolBarTest::isGrouped() {
  for (const char* first : {"tlbMain", "tlbViewAll"})
    for (const char* inside : {"tlbStepByStep", "tlbViewVar", "tlbViewMinus"})
      QVERIFY(GapBefore(first) >= GapBefore(inside) + 4);
  // Nothing stands before the first.
  QVERIFY(!bar_->actions().first()->isSeparator());
}

void ToolBarTest::staysWhereItIs() {
  QVERIFY(!bar_->isMovable());
  QCOMPARE(bar_->contextMenuPolicy(), Qt::PreventContextMenu);
  QCOMPARE(bar_->objectName(), QString("tlbViewer"));
}

void ToolBarTest::namesItsButtons() {
  QCOMPARE(test::BadlySpoken(*window_, Buttons + QStringList{"tlbViewer"}), QStringList());
  QCOMPARE(ButtonNamed("tlbNew")->accessibleName(), QString("New"));
  QCOMPARE(ButtonNamed("tlbStepByStep")->accessibleName(), QString("New Step by Step"));
}

void ToolBarTest::tellsCaptionAndKey() {
  QCOMPARE(ButtonNamed("tlbNew")->toolTip(), QString("New"));
  QCOMPARE(ButtonNamed("tlbViewAll")->toolTip(), QString("View All (Ctrl+A)"));
}

void ToolBarTest::followsItsCommand() {
  Command("mnuItemAll")->setEnabled(false);
  QVERIFY(!ButtonNamed("tlbViewAll")->isEnabled());
  QCOMPARE(ButtonNamed("tlbViewAll")->toolTip(), QString("View All (Ctrl+A)"));
  Command("mnuItemAll")->setText("View &Everything");
  Command("mnuItemAll")->setShortcut(QKeySequence());
  QCOMPARE(ButtonNamed("tlbViewAll")->toolTip(), QString("View Everything"));
  QCOMPARE(ButtonNamed("tlbViewAll")->accessibleName(), QString("View Everything"));
}

void ToolBarTest::showsADrawingOnEachButton() {
  for (const QString& name : Buttons) {
    const QToolButton* button = ButtonNamed(qPrintable(name));
    QCOMPARE(button->icon().name(), name.mid(3));
    QCOMPARE(button->defaultAction()->icon().name(), name.mid(3));
    QCOMPARE(bar_->iconSize(), QSize(24, 24));
    QVERIFY(button->height() >= 24);
  }
}

void ToolBarTest::runsTheCommandWithTheFocusOnTheWork() {
  QStringList focus;
  connect(Command("mnuItemNew"), &QAction::triggered, this, [this, &focus] { focus.append(Focus()); });
  bar_->setFocusPolicy(Qt::StrongFocus);
  bar_->setFocus();
  QTest::mouseClick(ButtonNamed("tlbNew"), Qt::LeftButton);
  QCOMPARE(focus, QStringList{"PicEditor"});
}

void ToolBarTest::runsNothingForACommandThatIsOff() {
  QSignalSpy runs(Command("mnuItemNew"), &QAction::triggered);
  Command("mnuItemNew")->setEnabled(false);
  QTest::mouseClick(ButtonNamed("tlbNew"), Qt::LeftButton);
  QCOMPARE(runs.size(), 0);
}

void ToolBarTest::hints_data() {
  QTest::addColumn<QString>("button");
  QTest::addColumn<QString>("hint");
  QTest::newRow("New") << "tlbNew"
                       << "Click to start a new blank bandsaw.";
  QTest::newRow("StepByStep") << "tlbStepByStep"
                              << "Click to start a new bandsaw step by step.";
  QTest::newRow("Main") << "tlbMain"
                        << "Click to display the main information window.";
  QTest::newRow("ViewAll") << "tlbViewAll"
                           << "Click to fit bandsaw to the display window.";
  QTest::newRow("ViewVar") << "tlbViewVar"
                           << "View Variable Segment";
  QTest::newRow("ViewMinus") << "tlbViewMinus"
                             << "Zoom Out";
}

void ToolBarTest::hints() {
  QFETCH(QString, button);
  QFETCH(QString, hint);
  QTest::mouseMove(work_);
  QCoreApplication::processEvents();
  QSignalSpy pointed(bar_, &ToolBar::Pointed);
  QTest::mouseMove(ButtonNamed(qPrintable(button)));
  QTRY_VERIFY(!pointed.isEmpty());
  QCOMPARE(pointed.last().first().toString(), hint);
  QCOMPARE(ButtonNamed(qPrintable(button))->accessibleDescription(), hint);
  QTest::mouseMove(work_);
  QTRY_COMPARE(pointed.last().first().toString(), QString());
}

void ToolBarTest::hintsAlsoWhereACommandIsOff() {
  Command("mnuItemNew")->setEnabled(false);
  QTest::mouseMove(work_);
  QCoreApplication::processEvents();
  QSignalSpy pointed(bar_, &ToolBar::Pointed);
  QTest::mouseMove(ButtonNamed("tlbNew"));
  QTRY_VERIFY(!pointed.isEmpty());
  QCOMPARE(pointed.last().first().toString(), QString("Click to start a new blank bandsaw."));
}

void ToolBarTest::isOneStopOfTheTabKey() {
  QSignalSpy pointed(bar_, &ToolBar::Pointed);
  Key(Qt::Key_Tab);
  QCOMPARE(Focus(), QString("tlbNew"));
  QCOMPARE(pointed.last().first().toString(), QString("Click to start a new blank bandsaw."));
  Key(Qt::Key_Tab);
  QCOMPARE(Focus(), QString("PicEditor"));
  QCOMPARE(pointed.last().first().toString(), QString());
  Key(Qt::Key_Backtab);
  QCOMPARE(Focus(), QString("tlbNew"));
}

void ToolBarTest::goesAlongByArrows() {
  Key(Qt::Key_Tab);
  QStringList way;
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_End, Qt::Key_Right,
                            Qt::Key_Left, Qt::Key_Home, Qt::Key_Down}) {
    Key(key);
    way.append(Focus());
  }
  QCOMPARE(way, (QStringList{"tlbStepByStep", "tlbMain", "tlbStepByStep", "tlbViewMinus", "tlbNew",
                             "tlbViewMinus", "tlbNew", "tlbNew"}));
  window_->setLayoutDirection(Qt::RightToLeft);
  Key(Qt::Key_Left);
  QCOMPARE(Focus(), QString("tlbStepByStep"));
}

void ToolBarTest::goesBackToWhereItWas() {
  Key(Qt::Key_Tab);
  Key(Qt::Key_Right);
  Key(Qt::Key_Escape);
  QCOMPARE(Focus(), QString("PicEditor"));
  Key(Qt::Key_Tab);
  QCOMPARE(Focus(), QString("tlbStepByStep"));
}

void ToolBarTest::skipsWhatCannotBeUsed() {
  Command("mnuItemNew")->setEnabled(false);
  Command("mnuItemMain")->setEnabled(false);
  Key(Qt::Key_Tab);
  QCOMPARE(Focus(), QString("tlbStepByStep"));
  Key(Qt::Key_Right);
  QCOMPARE(Focus(), QString("tlbViewAll"));
  Key(Qt::Key_Escape);
  for (const Item& item : Items) Command(item.Name)->setEnabled(false);
  Key(Qt::Key_Tab);
  Key(Qt::Key_F10);
  QCOMPARE(Focus(), QString("PicEditor"));
  Command("mnuItemMain")->setEnabled(true);
  Key(Qt::Key_Tab);
  QCOMPARE(Focus(), QString("tlbMain"));
}

void ToolBarTest::forgetsNoPlaceWhileAFileIsRead() {
  const auto readAFile = [this] {
    for (const bool on : {false, true}) {
      for (const char* name : {"mnuItemNew", "mnuItemStepByStep"}) Command(name)->setEnabled(on);
    }
  };
  readAFile();
  Key(Qt::Key_Tab);
  QCOMPARE(Focus(), QString("tlbNew"));
  Key(Qt::Key_Right);
  Key(Qt::Key_Escape);
  readAFile();
  Key(Qt::Key_Tab);
  QCOMPARE(Focus(), QString("tlbStepByStep"));
}

void ToolBarTest::isReachedByF10() {
  Key(Qt::Key_F10);
  QCOMPARE(Focus(), QString("tlbNew"));
}

void ToolBarTest::pressesByKey() {
  QStringList focus;
  connect(Command("mnuItemNew"), &QAction::triggered, this, [this, &focus] { focus.append(Focus()); });
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    Key(Qt::Key_F10);
    Key(key);
    QCOMPARE(Focus(), QString("PicEditor"));
  }
  QCOMPARE(focus, (QStringList{"PicEditor", "PicEditor", "PicEditor"}));
}

void ToolBarTest::showsWhereTheFocusIs() {
  QPalette palette = window_->palette();
  palette.setColor(QPalette::Highlight, Qt::magenta);
  window_->setPalette(palette);
  QToolButton* button = ButtonNamed("tlbNew");
  QVERIFY(button->grab().toImage().pixelColor(1, 1) != QColor(Qt::magenta));
  Key(Qt::Key_F10);
  QCOMPARE(button->grab().toImage().pixelColor(1, 1), QColor(Qt::magenta));
  Key(Qt::Key_Escape);
  QVERIFY(button->grab().toImage().pixelColor(1, 1) != QColor(Qt::magenta));
}

void ToolBarTest::followsTheColoursOfItsWindow() {
  for (const QColor ink : {QColor(Qt::green), QColor(Qt::white)}) {
    QPalette palette = window_->palette();
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, ink);
    window_->setPalette(palette);
    const QImage picture = ButtonNamed("tlbNew")->grab().toImage();
    int inked = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) inked += picture.pixelColor(x, y) == ink ? 1 : 0;
    }
    QVERIFY(inked > 20);
  }
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::ToolBarTest)
#include "ToolBar_test.moc"
