#pragma once

#include <QTimer>
#include <QWidget>

class QHelpSearchEngine;
class QLabel;
class QLineEdit;
class QListWidget;

namespace tarnwick {

/// Search in the text of all pages: a box for the words, and the pages that have them.
class HelpSearchPane final : public QWidget {
  Q_OBJECT

 public:
  explicit HelpSearchPane(QWidget* parent = nullptr);

  /// What searches; it must outlive the pane.
  void SetEngine(QHelpSearchEngine* engine);

 signals:
  void PageChosen(const QUrl& page);

 private:
  void Search();
  void ShowPages();
  void ChooseCurrent();

  QHelpSearchEngine* engine_ = nullptr;
  QTimer pause_;            // searches when the typing pauses
  bool openFirst_ = false;  // Enter was pressed: the first page found opens
  QLineEdit* words_ = nullptr;
  QListWidget* pages_ = nullptr;
  QLabel* count_ = nullptr;
};

}  // namespace tarnwick
