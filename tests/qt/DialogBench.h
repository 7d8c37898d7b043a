#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "entry/frmCDialog.h"
#include "entry/modCalculate.h"
#include "entry/modPresetList.h"
#include "platform/qt/PictureBox.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtText.h"
#include "qt/Controls.h"
#include "support/CollectedMessages.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick::test {

inline const QStringList Controls = {"lblDisplay", "PicDisplay", "ListValues", "txtValue",
                                     "cmdOk",      "cmdCancel",  "cmdHelp",    "lblStatus"};

inline const DisplayFormat MetricFormat{.ImpMetric = Metric};

/// Looks at the window while a message is shown.
class WatchedMessages final : public Messages {
 public:
  Button Show(const Box& box) override {
    Look(box);
    return box.Default;
  }
  std::function<void(const Box&)> Look;
};

/// A dialog for a value in its window, and what a user does with it.
class DialogBench {
 protected:
  /// Around each test.
  void Begin();
  void End();

  void Open(Parameter parameter, const DisplayFormat& format = {}, int toothStyle = SquareBack);
  void Open(Parameter parameter, Messages& messages);
  void Show(ValueDialog dialog);

  void Type(const char* text) { QTest::keyClicks(txtValue_, text); }
  void Press(const char* button) { QTest::mouseClick(Named<QPushButton>(*window_, button), Qt::LeftButton); }
  QPoint PlaceOf(int row);
  void Click(int row) { QTest::mouseClick(ListValues_->viewport(), Qt::LeftButton, {}, PlaceOf(row)); }
  void DoubleClick(int row);
  int RowOfEntry(const char* text);
  QString ChosenEntry();

  void IsOpenAndEmpty();
  void IsClosedWith(const char* result);

  CollectedMessages messages_;
  test::RecordingHelpViewer help_;
  std::unique_ptr<ValueDialog> dialog_;
  std::unique_ptr<frmCDialog> window_;
  QListWidget* ListValues_ = nullptr;
  QLineEdit* txtValue_ = nullptr;
  PictureBox* PicDisplay_ = nullptr;
  QLabel* lblStatus_ = nullptr;
};

inline void DialogBench::Begin() {
  messages_ = {};
  help_ = {};
}

inline void DialogBench::End() {
  window_.reset();
  dialog_.reset();
}

inline void DialogBench::Show(ValueDialog dialog) {
  window_.reset();
  dialog_ = std::make_unique<ValueDialog>(std::move(dialog));
  window_ = std::make_unique<frmCDialog>(*dialog_, help_);
  ListValues_ = Named<QListWidget>(*window_, "ListValues");
  txtValue_ = Named<QLineEdit>(*window_, "txtValue");
  PicDisplay_ = Named<PictureBox>(*window_, "PicDisplay");
  lblStatus_ = Named<QLabel>(*window_, "lblStatus");
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

inline void DialogBench::Open(Parameter parameter, const DisplayFormat& format, int toothStyle) {
  Show(PrepareDialog(parameter, toothStyle, format, messages_));
}

inline void DialogBench::Open(Parameter parameter, Messages& messages) {
  Show(PrepareDialog(parameter, SquareBack, {}, messages));
}

inline QPoint DialogBench::PlaceOf(int row) {
  QListWidgetItem* entry = ListValues_->item(row);
  ListValues_->scrollToItem(entry);
  return ListValues_->visualItemRect(entry).center();
}

inline void DialogBench::DoubleClick(int row) {
  Click(row);
  QTest::mouseDClick(ListValues_->viewport(), Qt::LeftButton, {}, PlaceOf(row));
}

inline int DialogBench::RowOfEntry(const char* text) {
  const QList<QListWidgetItem*> found = ListValues_->findItems(text, Qt::MatchExactly);
  return found.size() == 1 ? ListValues_->row(found.first()) : -1;
}

inline QString DialogBench::ChosenEntry() {
  const QList<QListWidgetItem*> chosen = ListValues_->selectedItems();
  return chosen.isEmpty() ? QString() : chosen.first()->text();
}

inline void DialogBench::IsOpenAndEmpty() {
  QVERIFY(window_->isVisible());
  QVERIFY(dialog_->IsOpen());
  QVERIFY(dialog_->Result().empty());
  QCOMPARE(txtValue_->text(), QString());
}

inline void DialogBench::IsClosedWith(const char* result) {
  QTRY_VERIFY(!window_->isVisible());  // a button pressed by its access key takes a moment
  QVERIFY(!dialog_->IsOpen());
  QCOMPARE(ToQt(dialog_->Result()), QString(result));
}

}  // namespace tarnwick::test
