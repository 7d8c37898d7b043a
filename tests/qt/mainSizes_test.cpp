#include <QAbstractButton>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>

#include "qt/MainWindow.h"

namespace tarnwick {
namespace {

using test::Named;

const char* const Commands[] = {"mnuItemMain", "mnuItemToothShape", "mnuItemGeneral"};

struct Size {
  int Width, Height;
};

constexpr Size Sizes[] = {{800, 600}, {801, 601}, {1280, 900}, {1920, 1080}, {2560, 1440}, {3840, 2160}};

}  // namespace

// The window from its smallest to a large screen, and with letters of several sizes.
class mainSizesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() {
    main_.reset();
    QApplication::setFont(font_);
  }

  void fillsALargeScreen();
  void sharesTheWidth_data();
  void sharesTheWidth();
  void reachesEverything_data();
  void reachesEverything();
  void keepsStatusAndHintApart_data() { sharesTheWidth_data(); }
  void keepsStatusAndHintApart();

 private:
  QRect In(const char* name) {
    auto* control = Named<QWidget>(*main_->Window, name);
    return {control->mapTo(main_->Window.get(), QPoint()), control->size()};
  }
  void Resize(int width, int height) {
    const QSize frame = main_->Window->frameSize() - main_->Window->size();
    main_->Window->resize(QSize(width, height) - frame);
    QApplication::processEvents();
  }

  std::unique_ptr<test::MainWindow> main_;
  const QFont font_ = QApplication::font();
};

void mainSizesTest::fillsALargeScreen() {
  main_->OpenBlank();
  QCOMPARE(main_->Window->frameGeometry(), QRect(0, 0, 3840, 2160));
  QCOMPARE(In("lblStatus").height(), In("lblHint").height());
}

void mainSizesTest::sharesTheWidth_data() {
  QTest::addColumn<int>("width");
  QTest::addColumn<int>("height");
  for (const Size& size : Sizes)
    QTest::addRow("%d x %d", size.Width, size.Height) << size.Width << size.Height;
}

// A quarter of what the window is wider than at its smallest goes to the panel, a fifth to its boxes, two
// fifths to the status.
void mainSizesTest::sharesTheWidth() {
  QFETCH(int, width);
  QFETCH(int, height);
  main_->Open(test::FullDesign());
  Resize(800, 600);
  main_->Do("mnuItemToothShape");
  QApplication::processEvents();
  const QRect box = In("txtLength"), panel = In("fraToothShape"), status = In("lblStatus");
  Resize(width, height);
  QCOMPARE(main_->Window->frameSize(), QSize(width, height));
  const int extra = main_->Window->width() - main_->Window->minimumWidth();
  QCOMPARE(extra, width - 800);
  QCOMPARE(In("fraToothShape").width() - panel.width(), qRound(extra / 4.0));
  QCOMPARE(In("txtLength").width() - box.width(), qRound(extra / 5.0));
  QCOMPARE(In("lblStatus").width() - status.width(), qRound(extra / 2.5));
  QCOMPARE(In("fraToothShape").right(), main_->Window->width() - 1);
  QVERIFY(In("PicEditor").width() > In("fraToothShape").width() / 2);
  QCOMPARE(In("PicEditor").left(), 0);
  for (const char* editor : Commands) {
    main_->Do(editor);
    QApplication::processEvents();
    QCOMPARE(In(main_->Panel().toUtf8().constData()).width(), panel.width() + qRound(extra / 4.0));
  }
}

void mainSizesTest::reachesEverything_data() {
  QTest::addColumn<int>("points");
  QTest::addColumn<int>("width");
  QTest::addColumn<int>("height");
  for (const int points : {9, 10, 12, 14}) {
    for (const Size& size : {Sizes[0], Sizes[2], Sizes[5]})
      QTest::addRow("%d pt, %d x %d", points, size.Width, size.Height) << points << size.Width << size.Height;
  }
}

void mainSizesTest::reachesEverything() {
  QFETCH(int, points);
  QFETCH(int, width);
  QFETCH(int, height);
  QFont font = font_;
  font.setPointSize(points);
  QApplication::setFont(font);
  main_->Open(test::VariableDesign());
  Resize(width, height);
  QCOMPARE(main_->Window->frameSize(), QSize(width, height));
  const QRect inside = main_->Window->rect();
  for (const char* editor : Commands) {
    main_->Do(editor);
    QApplication::processEvents();
    auto* panel = Named<QWidget>(*main_->Window, main_->Panel().toUtf8().constData());
    for (QWidget* control : panel->findChildren<QWidget*>()) {
      const bool isControl = qobject_cast<QLineEdit*>(control) || qobject_cast<QAbstractButton*>(control) ||
                             (qobject_cast<QLabel*>(control) && !control->objectName().isEmpty());
      if (!isControl || !control->isVisible() || control->objectName().isEmpty()) continue;
      const QByteArray name = control->objectName().toUtf8();
      QVERIFY2(main_->BringUp(control), name.constData());
      const QRect place(control->mapTo(main_->Window.get(), QPoint()), control->size());
      QVERIFY2(inside.contains(place), name.constData());
      if (!qobject_cast<QLineEdit*>(control))
        QVERIFY2(control->width() >= control->sizeHint().width(), name.constData());
      else if (const auto* box = qobject_cast<QLineEdit*>(control); box->isReadOnly())
        QVERIFY2(box->fontMetrics().horizontalAdvance(box->text()) + 4 <= box->width(), name.constData());
      QVERIFY2(control->height() >= control->sizeHint().height(), name.constData());
    }
  }
  for (const char* name : {"optImperial", "optMetric", "txtScale", "panTimeDate", "lblStatus", "lblHint"})
    QVERIFY2(inside.contains(In(name)), name);
  QVERIFY(In("PicEditor").width() >= 150 && In("PicEditor").height() >= 150);
}

void mainSizesTest::keepsStatusAndHintApart() {
  QFETCH(int, width);
  QFETCH(int, height);
  main_->Open(test::VariableDesign());
  Resize(width, height);
  main_->Do("mnuItemToothShape");
  auto* hook = Named<QWidget>(*main_->Window, "txtHook");
  QVERIFY(main_->BringUp(hook));
  main_->PointAt(hook);
  QTest::qWait(1);
  QVERIFY(!main_->Hint().isEmpty());
  const auto fits = [this](const char* name) {
    const auto* label = Named<QLabel>(*main_->Window, name);
    return label->fontMetrics().horizontalAdvance(label->text()) <= label->width();
  };
  QVERIFY(!In("lblStatus").intersects(In("lblHint")));
  QVERIFY(fits("lblStatus") && fits("lblHint"));
  main_->Do("mnuItemGeneral");
  auto* wheel = Named<QWidget>(*main_->Window, "txtGenWheelDia");
  QVERIFY(main_->BringUp(wheel));
  QTest::mouseClick(wheel, Qt::LeftButton);
  QTest::qWait(1);
  QCOMPARE(main_->Status(), QString("To change this value you must use the bandsaw length calculator."));
  QVERIFY(fits("lblStatus"));
}

}  // namespace tarnwick

/// On a screen larger than that of the other tests.
int main(int argc, char** argv) {
  const QTemporaryDir folder;
  QFile config(folder.filePath("screen.json"));
  if (!config.open(QIODevice::WriteOnly)) return 1;
  config.write(R"({"screens": [{"name": "wall", "x": 0, "y": 0, "width": 3840, "height": 2160,
    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  config.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.fileName().toUtf8());
  QApplication application(argc, argv);
  tarnwick::mainSizesTest test;
  QTEST_SET_MAIN_SOURCE_PATH
  return QTest::qExec(&test, argc, argv);
}

#include "mainSizes_test.moc"
