#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/qt/HelpCollection.h"

class QAction;
class QHelpContentWidget;
class QHelpIndexWidget;
class QKeySequence;
class QLineEdit;
class QTabWidget;
class QToolBar;

namespace tarnwick {

class HelpBrowser;
class HelpFindBar;
class HelpSearchPane;

/// The window of the manual: contents, index and search at the left, a page at the right. It stays usable
/// while a dialog of the program waits for an answer, since that is when most questions come up.
class HelpWindow final : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(const HelpFiles& files);

  /// Shows the window with the page of this name, or with the first page of the manual when none has it.
  void ShowPage(const QString& name);
  /// Shows the window with the contents at the left, or with the index.
  void ShowContents();
  void ShowIndex();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolBar* MakeTools();
  QWidget* MakePanes();
  QWidget* MakePageSide();
  QWidget* MakeIndexPane();
  void MakeKeys();
  QAction* AddTool(QToolBar* bar, const char* name, const QString& caption, const QList<QKeySequence>& keys);
  void BindBrowser();
  void FollowContents();
  void Open(const QString& name);
  void SayFailure();
  void Present();
  void ComeAs(const QWidget* dialog);
  void PlaceBeside(const QWidget& dialog);
  [[nodiscard]] bool OwnsDialog(const QWidget& dialog) const;
  void StandWith(const QWidget* dialog);
  void Leave();

  HelpCollection collection_;
  QPointer<const QWidget> belongsTo_;  // the dialog that the window came for
  HelpBrowser* page_ = nullptr;
  HelpFindBar* find_ = nullptr;
  QTabWidget* panes_ = nullptr;
  QHelpContentWidget* contents_ = nullptr;
  QWidget* indexPane_ = nullptr;
  QLineEdit* indexWords_ = nullptr;
  HelpSearchPane* search_ = nullptr;
  QAction* back_ = nullptr;
  QAction* forward_ = nullptr;
  QAction* home_ = nullptr;
};

}  // namespace tarnwick
