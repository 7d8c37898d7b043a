#pragma once

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "dxf/modDXF.h"
#include "geometry/modTooth.h"
#include "platform/qt/DrawingSurface.h"
#include "platform/qt/QtHosts.h"
#include "platform/qt/QtText.h"
#include "qt/Controls.h"
#include "store/modSave.h"
#include "support/TestProgram.h"
#include "window/frmMain.h"

namespace tarnwick::test {

/// A resaw band of every measure that its style can have, with a seat, and with something in every section.
inline BandSaw FullDesign(int style = TripleRadius) {
  BandSaw saw;
  saw.ToothStyle = static_cast<std::int16_t>(style);
  saw.Length = 40;
  saw.NumTeeth = 240;
  saw.Width = 10;
  saw.HookAngle = 28;
  saw.ClearAngle = 12;
  saw.TipClear = 0.03;
  saw.SeatInfo = {True, 0.04, 0.12};
  BandSaw::Gullet& g = saw.GulletInfo;
  g.Radius = 0.35;
  g.Depth = 0.8;
  g.BackAngle = 20;
  g.BackRadius = style >= RoundBack ? 0.25 : 0;
  g.Radius1 = 0.2;
  g.Radius2 = 0.45;
  g.Radius3 = style == TripleRadius ? 0.3 : 0;
  g.Width = 0.68;
  g.BottomAngle = style == FlatBottom ? 5 : 0;
  g.FrostWidth = 0.12;
  g.FrostHeight = 0.25;
  g.FrostRadius = 0.05;
  g.FrostAngle = 25;
  saw.ContainsInfo.General = True;
  saw.GeneralInfo.Quantity = 4;
  saw.GeneralInfo.TipType = 2;
  saw.GeneralInfo.PlateThick = 0.065;
  saw.GeneralInfo.Kerf = 0.125;
  saw.GeneralInfo.SideClear = 0.03;
  saw.ContainsInfo.Machine = True;
  saw.MachineInfo.WheelDia = 5;
  saw.MachineInfo.CenterToCenter = 8;
  saw.MachineInfo.Width = 8;
  saw.ContainsInfo.Power = True;
  saw.GeneralInfo.ShaftSpeed = 600;
  saw.DesignInfo.SawVelocity = 9425;
  saw.GeneralInfo.DepthOfCut = 20;
  saw.GeneralInfo.FeedRate = 200;
  g.Bite = 0.042;
  saw.GeneralInfo.WoodType.Assign("Cedar");
  saw.GeneralInfo.HorsePower = 75;
  return saw;
}

/// The same with a segment of three teeth.
inline BandSaw VariableDesign() {
  BandSaw saw = FullDesign(DoubleRadius);
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {1.9, 2.0, 2.1};
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.VarDepth = {0.75, 0.8, 0.85};
  saw.DesignInfo.SegmentLength = 6;
  return saw;
}

/// Answers the dialogs that open, as a user does: each act has one dialog before it. A dialog that nobody
/// planned, and one that is left open, are closed and noted.
class DialogUser final : public QObject {
 public:
  using Act = std::function<void(QDialog&)>;

  DialogUser() {
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
    timer_.start(2);
  }

  /// Within an act: clicks a control of its dialog, which opens another one.
  void Answer(QDialog& dialog, const char* control, const Act& act) {
    QTimer above;  // a timer whose turn has not ended has no other
    QObject::connect(&above, &QTimer::timeout, this, [this] { Look(); });
    above.start(2);
    const QDialog* before = std::exchange(Window, &dialog);
    Acts.push_front(act);
    busy_ = false;
    QTest::mouseClick(Named<QWidget>(dialog, control), Qt::LeftButton);
    busy_ = true;
    Window = before;
  }

  std::deque<Act> Acts;
  QStringList Seen;                 // "frmCDialog: Band Saw Length", in order; and complaints
  const QDialog* Window = nullptr;  // the one that is tested; no answer is due to it

 private:
  void Look() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (busy_ || !dialog || !dialog->isVisible() || dialog == Window) return;
    if (dialog->objectName() == "frmPrintMsg") return;  // a notice
    busy_ = true;
    Seen += dialog->objectName() + ": " + dialog->windowTitle();
    if (Acts.empty()) {
      Seen += "not expected";
    } else {
      const Act act = Acts.front();
      Acts.pop_front();
      act(*dialog);
      if (dialog->isVisible()) Seen += "left open";
    }
    if (dialog->isVisible()) dialog->reject();
    busy_ = false;
  }

  QTimer timer_;
  bool busy_ = false;
};

// What a user does in a dialog.

inline void Click(QWidget& window, const char* control) {
  auto* widget = Named<QWidget>(window, control);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}

/// Types where the focus is, then clicks OK.
inline DialogUser::Act Types(const QString& text) {
  return [text](QDialog& dialog) {
    QTest::keyClicks(dialog.focusWidget(), text);
    Click(dialog, "cmdOk");
  };
}

/// The same by the keyboard alone.
inline DialogUser::Act TypesAndEnters(const QString& text) {
  return [text](QDialog& dialog) {
    QTest::keyClicks(dialog.focusWidget(), text);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  };
}

inline DialogUser::Act Cancels() {
  return [](QDialog& dialog) {
    if (auto* box = dialog.findChild<QLineEdit*>("txtValue")) QTest::keyClicks(box, "7");
    Click(dialog, "cmdCancel");
  };
}

inline DialogUser::Act Escapes() {
  return [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
}

/// Of the question for the seat.
inline DialogUser::Act Says(const char* option) {
  return [option](QDialog& dialog) {
    Click(dialog, option);
    Click(dialog, "cmdOk");
  };
}

/// The main window on a design, with its real dialogs.
class MainWindow {
 public:
  void Open(const BandSaw& saw) { OpenFile(Folder.File("head.bsw", BandSawText(saw)).string()); }
  void OpenBlank() { OpenFile({}); }
  /// Starts the program as a desktop does, on a file or on none.
  void OpenFile(const std::string& path) {
    Program.Start(path);
    Window = std::make_unique<frmMain>(Program.Process, Hosts.All());
    Window->show();
    if (!QTest::qWaitForWindowActive(Window.get())) qFatal("the window does not come up");
    QTest::qWait(5);  // the design is opened when the window is there
  }

  OpenDesign& Design() { return Program.Process.Design; }
  const BandSaw& Saw() { return Design().Saw; }
  void Do(const char* command) { Named<QAction>(*Window, command)->trigger(); }
  QString Status() { return Named<QLabel>(*Window, "lblStatus")->text(); }
  QString Hint() { return Named<QLabel>(*Window, "lblHint")->text(); }
  QString TextOf(const char* box) { return Named<QLineEdit>(*Window, box)->text(); }
  QImage Picture() { return Named<DrawingSurface>(*Window, "PicEditor")->grab().toImage(); }

  /// The panel that shows: "fraMain", "fraToothShape", "fraVariable", "fraGeneral".
  QString Panel() {
    QStringList shown;
    for (const char* panel : {"fraMain", "fraToothShape", "fraVariable", "fraGeneral"}) {
      if (Named<QWidget>(*Window, panel)->isVisible()) shown += panel;
    }
    return shown.join(' ');
  }

  /// The control brought into sight, if it was scrolled out of it. False: something covers it, or it is not
  /// there to be clicked.
  bool BringUp(QWidget* control) {
    for (QWidget* parent = control->parentWidget(); parent; parent = parent->parentWidget()) {
      if (auto* area = qobject_cast<QScrollArea*>(parent)) area->ensureWidgetVisible(control);
    }
    return Window->childAt(control->mapTo(Window.get(), control->rect().center())) == control;
  }

  /// Presses Tab until the focus is there.
  bool TabTo(const QWidget* control) {
    for (int i = 0; i < 200; ++i) {
      if (Window->focusWidget() == control) return true;
      QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
    }
    return false;
  }

  /// Moves the mouse onto it, from elsewhere.
  void PointAt(QWidget* control) { PointAt(control->mapTo(Window.get(), control->rect().center())); }
  void PointAt(QPoint place) {
    QTest::mouseMove(Window.get(), QPoint(40, Window->height() / 2));
    QTest::mouseMove(Window.get(), place);
    QApplication::processEvents();
  }

  /// What the calculation makes of a design.
  BandSaw Calculated(BandSaw saw) {
    CollectedMessages ignored;
    (void)CalculateSaw(saw, Design().Settings.Calculation, ignored);
    return saw;
  }
  /// The drawing of it, as a text to compare.
  std::string Drawn(BandSaw saw) {
    CollectedMessages ignored;
    const CalculationSettings& settings = Design().Settings.Calculation;
    return DxfText(CalculateSaw(saw, settings, ignored), settings).value_or("");
  }
  std::string Drawing() { return DxfText(Design().Lines, Design().Settings.Calculation).value_or(""); }

  TemporaryFolder Folder;
  TestProgram Program;
  QtHosts Hosts{Program.Process};
  std::unique_ptr<frmMain> Window;
  DialogUser User;
};

}  // namespace tarnwick::test
