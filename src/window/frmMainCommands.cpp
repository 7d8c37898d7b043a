// Commands at work in the main window, and what the document commands ask of it.

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QWidgetList>

#include "platform/qt/NamedControls.h"
#include "platform/qt/QtText.h"
#include "shell/frmAnime.h"
#include "window/fraDisplay.h"
#include "window/fraToothShape.h"
#include "window/frmMain.h"

namespace tarnwick {
namespace {

/// What cannot be picked while a file is read or written.
constexpr const char* BusyItems[] = {"mnuItemAbout",      "mnuItemSplash",  "mnuItemNew",
                                     "mnuItemStepByStep", "mnuItemOptions", "mnuItemPrintShape"};

/// The windows that go with the main window, in this order. Some are no windows of their own on this toolkit
/// (frmDialog is the desktop's dialog for files), and one that is not open is passed over.
constexpr const char* OtherWindows[] = {"frmAbout",   "frmAnime", "frmBandCalc", "frmBDialog",
                                        "frmCDialog", "frmCfg",   "frmColor",    "frmDialog",
                                        "frmGauge",   "frmPower", "frmPowerEst", "frmSplash"};

/// A path as a menu shows it: "&" would mark an access key. A path that is too long for the screen loses its
/// middle, so that the name at its end is read.
QString MenuText(const std::string& path, const QMenu& menu) {
  const int edges = 8 * menu.fontMetrics().height();  // of the menu, with its icons
  const int room = menu.screen()->availableSize().width() - edges;
  return menu.fontMetrics().elidedText(ToQt(path), Qt::ElideMiddle, room).replace('&', "&&");
}

}  // namespace

// ---- running and ending

void frmMain::Run(std::string_view procedure, const std::function<void()>& command) {
  if (commands_.IsRunning()) return;
  commands_.Run(procedure, command);
  if (!toClose_) return;
  toClose_ = false;
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

/// A window that is asked to close while a command runs is asked again when that is over.
void frmMain::closeEvent(QCloseEvent* event) {
  bool goes = false;
  toClose_ = commands_.IsRunning();
  Run("Form_Unload", [&] {
    goes = documents_.MayClose();
    toClose_ = false;  // it has been answered
  });
  event->setAccepted(goes);
  if (goes) End();
}

void frmMain::End() {
  tmrRecovery_.stop();
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (const char* name : OtherWindows) {
    for (QWidget* window : windows) {
      if (window->objectName() == name) window->close();
    }
  }
}

// ---- what the document commands ask of the window

void frmMain::ShowCaption() { setWindowTitle(AsTitle(ToQt(design_.Caption()))); }

void frmMain::ShowRecentFiles() {
  const RecentFiles& files = design_.Settings.Recent;
  const auto count = static_cast<qsizetype>(files.size());
  while (mnuRecentFiles_.size() <= count) AddRecentItem();
  mnuRecentFiles_[0]->setVisible(count > 0);
  for (qsizetype i = 1; i < mnuRecentFiles_.size(); ++i) {
    mnuRecentFiles_[i]->setVisible(i <= count);
    if (i > count) continue;
    mnuRecentFiles_[i]->setText(MenuText(files[static_cast<std::size_t>(i) - 1].Path(), *mnuFile_));
  }
}

void frmMain::ShowTeethDirection() {
  const bool isRightLeft = design_.Settings.Calculation.TeethDirection == RightToLeft;
  mnuItemLeftRight_->setChecked(!isRightLeft);
  mnuItemRightLeft_->setChecked(isRightLeft);
}

/// The tooth shape cannot be used meanwhile; whoever was typing there goes on where he was.
void frmMain::SetBusy(bool busy) {
  if (busy) focusBeforeBusy_ = fraToothShape_->isAncestorOf(focusWidget()) ? focusWidget() : nullptr;
  fraToothShape_->setEnabled(!busy);
  for (const char* name : BusyItems) {
    if (auto* item = findChild<QAction*>(name)) item->setEnabled(!busy);
  }
  if (busy) {
    setCursor(Qt::WaitCursor);
  } else {
    unsetCursor();
    if (focusBeforeBusy_ && focusBeforeBusy_->isVisible()) focusBeforeBusy_->setFocus();
  }
  display_->Surface().setCursor(busy ? Qt::WaitCursor : Qt::CrossCursor);
}

void frmMain::ShowAnimation() { frmAnime_->Play(); }

void frmMain::HideAnimation() {
  frmAnime_->Hide();
  DrawSaw();
}

void frmMain::LetEventsRun() { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

}  // namespace tarnwick
