#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "platform/qt/MeasureBox.h"
#include "platform/qt/QtText.h"
#include "qt/Controls.h"
#include "support/Designs.h"
#include "support/TestProgram.h"
#include "variable/VariableCommands.h"
#include "window/fraVariable.h"

namespace tarnwick::test {

inline constexpr int Rows = VariableValues::Rows;

inline QString Indexed(const char* name, int k) { return QString("%1(%2)").arg(name).arg(k); }

/// Somebody who types the same into every dialog.
class Typist final : public DialogHost {
 public:
  void Run(ValueDialog& dialog) override {
    Asked += ToQt(dialog.Title());
    dialog.Type(Text);
    dialog.PressOk();
  }
  void Run(YesNoDialog& dialog) override { dialog.PressCancel(); }

  std::string Text;
  QStringList Asked;
};

/// The panel with what is behind it, bound as the main window binds it.
class Bound final : public MainView {
 public:
  Bound() {
    Process.Start();
    Open(test::PlainDesign());
    QObject::connect(&Panel, &fraVariable::EntryChosen, &Panel,
                     [this](int entry) { Commands.ChooseEntry(entry); });
    QObject::connect(&Panel, &fraVariable::PatternClicked, &Panel,
                     [this](int index) { Commands.ClickPattern(index); });
    QObject::connect(&Panel, &fraVariable::VarDepthTicked, &Panel,
                     [this](bool on) { Commands.TickVarDepth(on); });
    QObject::connect(&Panel, &fraVariable::PitchPressed, &Panel, [this](int k) { Commands.ClickPitch(k); });
    QObject::connect(&Panel, &fraVariable::DepthPressed, &Panel, [this](int k) { Commands.ClickDepth(k); });
    QObject::connect(&Panel, &fraVariable::ResetPressed, &Panel, [this] { Commands.PressVariableReset(); });
    QObject::connect(&Panel, &fraVariable::Accepted, &Panel, [this] { Commands.PressVariableOk(); });
    QObject::connect(&Panel, &fraVariable::Cancelled, &Panel, [this] { Commands.PressVariableCancel(); });
    Panel.resize(Panel.width(), 640);
    Panel.show();
    if (!QTest::qWaitForWindowActive(&Panel)) qFatal("the panel does not come up");
  }

  void Open(const BandSaw& saw) {
    Design().Saw = saw;
    Design().Recalculate(Process.Say);
    Design().KeepAsSaved();
    Commands.OpenVariable();
  }

  void ShowPanel(tarnwick::Panel panel) override { Shown = panel; }
  [[nodiscard]] tarnwick::Panel CurrentPanel() const override { return tarnwick::Panel::Main; }
  void ShowSawInfo() override {}
  void FillBoxes() override { Panel.Show(Commands.Values(), Design().Format()); }
  void ShowUnits() override {}
  void DrawSaw() override { ++Drawn; }
  void ShowStatus(std::string_view, std::string_view) override {}

  OpenDesign& Design() { return Process.Process.Design; }
  const BandSaw::General& General() { return Design().Saw.GeneralInfo; }
  QString TextOf(const char* box) { return Named<QLineEdit>(Panel, box)->text(); }
  QString TextOf(const char* box, int k) { return Named<QLineEdit>(Panel, Indexed(box, k).toUtf8())->text(); }
  MeasureBox* Box(const char* box, int k) { return Named<MeasureBox>(Panel, Indexed(box, k).toUtf8()); }
  QRadioButton* Option(int index) {
    return Named<QRadioButton>(Panel, Indexed("optPattern", index).toUtf8());
  }
  QComboBox* List() { return Named<QComboBox>(Panel, "cboPattern"); }
  QCheckBox* Tick() { return Named<QCheckBox>(Panel, "chkVarDepth"); }

  static void Click(QWidget* control) {
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
  }

  test::TestProgram Process;
  Typist Host;
  fraVariable Panel;
  VariableCommands Commands{Process.Process, Host, *this};
  tarnwick::Panel Shown = tarnwick::Panel::None;
  int Drawn = 0;
};

}  // namespace tarnwick::test
