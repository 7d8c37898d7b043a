#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QMenu>
#include <QMessageBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "platform/qt/QtMessages.h"
#include "qt/EveryWindow.h"

namespace tarnwick {
namespace {

/// A widget that the toolkit puts into a control of ours, which speaks for it.
bool IsPart(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return widget.objectName().startsWith("qt_") || qobject_cast<const QLineEdit*>(parent) ||
         qobject_cast<const QTabBar*>(parent) || qobject_cast<const QComboBox*>(parent) ||
         qobject_cast<const QAbstractScrollArea*>(parent ? parent->parentWidget() : nullptr);
}

/// Whether it is pressed, chosen from, typed into or read.
bool IsControl(const QWidget& widget) {
  if (qobject_cast<const QMenu*>(&widget)) return false;
  if (qobject_cast<const QTabWidget*>(&widget)) return false;  // its tabs have names
  return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(&widget) ||
         qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QAbstractSlider*>(&widget);
}

QString NameOf(QWidget* control) {
  const QAccessibleInterface* access = QAccessible::queryAccessibleInterface(control);
  return access ? access->text(QAccessible::Name).trimmed() : QString();
}

/// What is the matter with the names of the controls that are shown at the moment.
QStringList BadNames(QWidget& window, int& controls) {
  QStringList bad;
  QHash<QString, QString> spoken;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if (!control->isVisible() || IsPart(*control) || !IsControl(*control)) continue;
    ++controls;
    const QString own = control->objectName() + " (" + control->metaObject()->className() + ")";
    const QString name = NameOf(control);
    if (name.isEmpty()) bad += window.objectName() + ": " + own + " has no name";
    if (spoken.contains(name))
      bad += window.objectName() + ": " + own + " and " + spoken[name] + " are both " + name;
    spoken.insert(name, own);
  }
  return bad;
}

const QScrollArea* AreaOf(const QWidget& control) {
  const QWidget* parent = control.parentWidget();
  while (parent && !qobject_cast<const QScrollArea*>(parent)) parent = parent->parentWidget();
  return qobject_cast<const QScrollArea*>(parent);
}

/// Of a register the row of its tabs.
QRect PlaceOf(const QWidget& control) {
  const auto* tabs = qobject_cast<const QTabWidget*>(&control);
  const QWidget& seen = tabs ? *tabs->tabBar() : control;
  return {seen.mapTo(control.window(), QPoint()), seen.size()};
}

/// As one sees it from `other`: what scrolls is where its area is.
QRect PlaceFrom(const QWidget& other, const QWidget& control) {
  const QScrollArea* area = AreaOf(control);
  return area && area != AreaOf(other) ? PlaceOf(*area) : PlaceOf(control);
}

/// Whether somebody who reads comes to `next` after `before`: below it, beside it, or at the top of another
/// column.
bool Follows(const QWidget& nextControl, const QWidget& control) {
  const QRect next = PlaceFrom(control, nextControl), before = PlaceFrom(nextControl, control);
  const bool isBelow = next.top() > before.center().y();
  const bool isBeside = next.left() >= before.right();
  return isBelow || isBeside;
}

/// Of options that belong together Tab comes to the one that is set.
bool IsStop(const QWidget& control, const QWidget& window) {
  const auto* option = qobject_cast<const QRadioButton*>(&control);
  return control.isVisible() && control.isEnabled() && !IsPart(control) && control.window() == &window &&
         (control.focusPolicy() & Qt::TabFocus) && (!option || option->isChecked());
}

/// Where Tab goes back though somebody who reads would go on. Once round, it has to go back one time.
QStringList StepsBack(QWidget& window) {
  QWidgetList stops;
  for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
    if (IsStop(*at, window)) stops += at;
  }
  QStringList back;
  for (qsizetype i = 0; i < stops.size(); ++i) {
    const QWidget* before = stops[i];
    const QWidget* next = stops[(i + 1) % stops.size()];
    if (stops.size() > 1 && !Follows(*next, *before))
      back += before->objectName() + " to " + next->objectName();
  }
  return back;
}

}  // namespace

class accessibleNamesTest : public QObject {
  Q_OBJECT

 private slots:
  void namesEveryControlOfEveryWindow();
  void namesTheButtonsOfAMessage();
  void tabsThroughEveryWindowInReadingOrder();
};

void accessibleNamesTest::namesEveryControlOfEveryWindow() {
  QStringList bad;
  QSet<QString> windows;
  int controls = 0;
  test::VisitEveryWindow([&](QWidget& window) {
    windows.insert(window.objectName());
    bad += BadNames(window, controls);
    if (window.isWindow() && window.windowTitle().isEmpty()) bad += window.objectName() + " has no title";
  });
  bad.removeDuplicates();
  QVERIFY2(bad.isEmpty(), qPrintable(bad.join('\n')));
  QCOMPARE(windows,
           QSet<QString>({"frmMain", "frmCDialog", "frmBDialog", "frmPower", "frmPowerCalc", "frmPowerEst",
                          "frmBandCalc", "frmGauge", "frmCfg", "frmColor", "frmPrinter", "frmPrinterPage",
                          "frmPrintMsg", "frmSplash", "frmAnime", "frmAbout", "frmHelp"}));
  QVERIFY2(controls > 1000, qPrintable(QString::number(controls)));
}

void accessibleNamesTest::namesTheButtonsOfAMessage() {
  QStringList names, tabs;
  QString title, text;
  QTimer::singleShot(0, this, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !QTest::qWaitForWindowActive(box)) return;
    for (QAbstractButton* button : box->buttons()) names += NameOf(button);
    title = NameOf(box);
    for (int i = 0; i < 3; ++i) {
      tabs += NameOf(box->focusWidget());
      QTest::keyClick(box, Qt::Key_Tab);
    }
    for (QLabel* label : box->findChildren<QLabel*>()) {
      if (label->isVisible() && !label->text().isEmpty()) text = NameOf(label);
    }
    box->reject();
  });
  QtMessages messages;
  QCOMPARE(
      messages.Show(
          {.Title = "Save File.", .Text = "Save?", .Offer = Buttons::YesNoCancel, .Default = Button::Yes}),
      Button::Cancel);
  for (QString& name : names) name.remove('&');
  for (QString& name : tabs) name.remove('&');
  QCOMPARE(names.size(), 3);
  QCOMPARE(QSet<QString>(names.begin(), names.end()), QSet<QString>({"Yes", "No", "Cancel"}));
  QCOMPARE(QSet<QString>(tabs.begin(), tabs.end()).size(), 3);
  QCOMPARE(tabs.first(), QString("Yes"));
  QCOMPARE(title, QString("Save File."));
  QCOMPARE(text, QString("Save?"));
}

void accessibleNamesTest::tabsThroughEveryWindowInReadingOrder() {
  QStringList bad;
  test::VisitEveryWindow([&](QWidget& window) {
    const QStringList back = StepsBack(window);
    if (back.size() > 1) bad += window.objectName() + ": " + back.join(", ");
  });
  bad.removeDuplicates();
  QVERIFY2(bad.isEmpty(), qPrintable(bad.join('\n')));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::accessibleNamesTest)
#include "accessibleNames_test.moc"
