#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <memory>

#include "platform/CollectedMessages.h"
#include "platform/qt/ColourSwatch.h"
#include "platform/qt/QtColorDialog.h"
#include "platform/qt/QtMessages.h"
#include "qt/Controls.h"
#include "shell/frmCfg.h"
#include "support/RecordingHelpViewer.h"
#include "support/ScriptedColorDialog.h"

namespace tarnwick::test {

// The options by their pages.

enum Page { General, Colors, PrinterAndDxf, UserInformation };
inline constexpr int Pages = 4;

inline const QStringList NumberNames = {"txtDecimalPlaces", "txtDisplayPlaces", "txtDisplayScale"};
inline const QStringList CustomerNames = {"txtName",     "txtAddress", "txtCity",
                                          "txtProvince", "txtCountry", "txtPostalCode",
                                          "txtPhone",    "txtFax",     "txtEmail"};
inline const QStringList SwatchNames = {"lblBackSample",   "lblSawSample",  "lblTextSample",
                                        "lblCenterSample", "lblZoomSample", "lblDxfColor"};
inline const QStringList ButtonNames = {"cmdOk", "cmdCancel", "cmdApply"};

inline QStringList PageControls(int page) {
  switch (page) {
    case General:
      return QStringList{"optImperial", "optMetric"} + NumberNames + QStringList{"chkQuickClick"};
    case Colors:
      return SwatchNames;
    case PrinterAndDxf:
      return {"hscPrintThick", "chkPrintPowerReq", "hscDxfMemory"};
    default:
      return CustomerNames;
  }
}

inline constexpr Colour Orange = Rgb(255, 128, 0);

/// The options window over settings of its own, and what a user does in it.
class OptionsBench {
 protected:
  /// Ahead of each test.
  void Begin();
  void Open() { Open(messages_); }
  void Open(Messages& messages) { Open(messages, colours_); }
  void Open(Messages& messages, ColorDialog& colours);
  void Close();
  void TurnTo(int page);
  void TurnToPageOf(const QString& name);

  template <class Control>
  Control* Find(const QString& name) {
    return Named<Control>(*window_, qPrintable(name));
  }
  QLineEdit* Box(const QString& name) { return Find<QLineEdit>(name); }
  void Type(const QString& name, const QString& text);
  void Press(const char* button) { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }
  void Tick(const char* box);
  void Change(const QString& name);
  bool ApplyEnabled() { return Find<QPushButton>("cmdApply")->isEnabled(); }
  QString TextOf(const char* label) { return Find<QLabel>(label)->text(); }

  Config inForce_;
  int applied_ = 0;
  CollectedMessages messages_;
  test::ScriptedColorDialog colours_;
  test::RecordingHelpViewer help_;
  std::unique_ptr<OptionsDialog> dialog_;
  std::unique_ptr<frmCfg> window_;
};

inline void OptionsBench::Begin() {
  inForce_ = {};
  applied_ = 0;
  messages_ = {};
  colours_ = {};
  help_ = {};
}

inline void OptionsBench::Close() {
  window_.reset();
  dialog_.reset();
}

inline void OptionsBench::Open(Messages& messages, ColorDialog& colours) {
  Close();
  dialog_ = std::make_unique<OptionsDialog>(
      inForce_, [this] { ++applied_; }, messages);
  window_ = std::make_unique<frmCfg>(*dialog_, colours, help_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

inline void OptionsBench::TurnTo(int page) {
  auto* bar = Find<QTabWidget>("SSTab1")->tabBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(page).center());
  QCOMPARE(bar->currentIndex(), page);
  QApplication::processEvents();
}

inline void OptionsBench::TurnToPageOf(const QString& name) {
  for (int page = 0; page < Pages; ++page) {
    if (PageControls(page).contains(name)) TurnTo(page);
  }
  QVERIFY(Find<QWidget>(name)->isVisible());
}

inline void OptionsBench::Type(const QString& name, const QString& text) {
  QLineEdit* box = Box(name);
  QTest::mouseClick(box, Qt::LeftButton);
  box->selectAll();
  if (text.isEmpty())
    QTest::keyClick(box, Qt::Key_Delete);
  else
    QTest::keyClicks(box, text);
}

inline void OptionsBench::Tick(const char* box) {
  const QPoint mark(8, Find<QCheckBox>(box)->height() / 2);
  QTest::mouseClick(Find<QCheckBox>(box), Qt::LeftButton, {}, mark);
}

/// Changes what a control shows, as a user would.
inline void OptionsBench::Change(const QString& name) {
  auto* control = Find<QWidget>(name);
  if (auto* text = qobject_cast<QLineEdit*>(control)) {
    QTest::mouseClick(text, Qt::LeftButton);
    QTest::keyClicks(text, "7");
  } else if (qobject_cast<QScrollBar*>(control)) {
    control->setFocus();
    QTest::keyClick(control, Qt::Key_Right);
  } else if (qobject_cast<QCheckBox*>(control) || qobject_cast<QRadioButton*>(control)) {
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
  } else {
    QTest::mouseClick(control, Qt::LeftButton);
  }
}

}  // namespace tarnwick::test
