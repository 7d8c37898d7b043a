#pragma once

#include <QDialog>

class QCloseEvent;
class QLabel;

namespace tarnwick {

/// The notice that a job runs, in the middle of the screen. It has no button, and whoever showed it takes it
/// away: no key closes it.
class frmPrintMsg final : public QDialog {
  Q_OBJECT

 public:
  explicit frmPrintMsg(QWidget* parent = nullptr);

  /// Shows the page in hand, and comes back once it can be seen.
  void ShowPage(int page, int pages);

  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void WaitUntilSeen();

  QLabel* lblPage_ = nullptr;
  bool seen_ = false;
};

}  // namespace tarnwick
