#include "platform/qt/HelpWindow.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHelpContentItem>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QKeySequence>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "platform/qt/HelpBrowser.h"
#include "platform/qt/HelpFindBar.h"
#include "platform/qt/HelpSearchPane.h"
#include "platform/qt/RoomyRows.h"

namespace tarnwick {
namespace {

constexpr auto FirstPage = "contents";
constexpr auto PageOnSearching = "search";

// In lines of text, so that the window suits every screen.
constexpr int Wide = 64;
constexpr int High = 48;
constexpr int PanesWide = 17;

}  // namespace

HelpWindow::HelpWindow(const HelpFiles& files) : collection_(files) {
  setObjectName("frmHelp");
  setWindowTitle(tr("Tarnwick Help"));
  setAttribute(Qt::WA_QuitOnClose, false);  // the program ends with its main window
  auto* column = new QVBoxLayout(this);
  page_ = new HelpBrowser(this);
  column->addWidget(MakeTools());
  auto* split = new QSplitter(this);
  split->setObjectName("splHelp");
  split->setChildrenCollapsible(false);
  column->addWidget(split, 1);
  if (collection_.Engine()) split->addWidget(MakePanes());
  split->addWidget(MakePageSide());
  split->setStretchFactor(split->count() - 1, 1);
  const int line = fontMetrics().height();
  split->setSizes({PanesWide * line, (Wide - PanesWide) * line});
  resize(QSize(Wide * line, High * line).boundedTo(screen()->availableSize() * 0.9));
  MakeKeys();
  BindBrowser();
  if (collection_.Engine()) {
    collection_.Engine()->setupData();  // fills contents and index, and reads the pages for the search
  } else {
    SayFailure();
  }
}

// ---- making

QToolBar* HelpWindow::MakeTools() {
  auto* bar = new QToolBar(this);
  bar->setObjectName("tlbHelp");
  bar->layout()->setContentsMargins(0, 0, 0, 0);
  back_ = AddTool(bar, "cmdHelpBack", tr("Back"), {QKeySequence(Qt::ALT | Qt::Key_Left)});
  forward_ = AddTool(bar, "cmdHelpForward", tr("Forward"), {QKeySequence(Qt::ALT | Qt::Key_Right)});
  home_ = AddTool(bar, "cmdHelpHome", tr("Home"),
                  {QKeySequence(Qt::ALT | Qt::Key_Home), QKeySequence(Qt::ALT | Qt::Key_Up)});
  connect(home_, &QAction::triggered, this, [this] { Open(FirstPage); });
  bar->addSeparator();
  const QAction* smaller =
      AddTool(bar, "cmdHelpSmaller", tr("Smaller"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)});
  QAction* normal = AddTool(bar, "cmdHelpNormal", tr("100 %"), {QKeySequence(Qt::CTRL | Qt::Key_0)});
  normal->setToolTip(tr("Usual size (%1)").arg(normal->shortcut().toString(QKeySequence::NativeText)));
  bar->widgetForAction(normal)->setAccessibleName(tr("Usual size"));
  const QAction* larger =
      AddTool(bar, "cmdHelpLarger", tr("Larger"),
              {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  connect(smaller, &QAction::triggered, page_, [this] { page_->ZoomBy(-1); });
  connect(normal, &QAction::triggered, page_, [this] { page_->SetZoom(100); });
  connect(larger, &QAction::triggered, page_, [this] { page_->ZoomBy(+1); });
  connect(page_, &HelpBrowser::Zoomed, normal,
          [normal](int percent) { normal->setText(tr("%1 %").arg(percent)); });
  return bar;
}

QAction* HelpWindow::AddTool(QToolBar* bar, const char* name, const QString& caption,
                             const QList<QKeySequence>& keys) {
  QAction* action = bar->addAction(caption);
  action->setShortcuts(keys);
  action->setToolTip(QString("%1 (%2)").arg(caption, keys.first().toString(QKeySequence::NativeText)));
  auto* button = static_cast<QToolButton*>(bar->widgetForAction(action));
  button->setObjectName(name);
  button->setAutoRaise(false);
  return action;
}

QWidget* HelpWindow::MakePanes() {
  panes_ = new QTabWidget(this);
  panes_->setObjectName("tabHelp");
  contents_ = collection_.Engine()->contentWidget();
  contents_->setObjectName("treHelpContents");
  contents_->setAccessibleName(tr("Contents of the manual"));
  contents_->setFrameShape(QFrame::NoFrame);  // the pane has one
  contents_->setItemDelegate(new RoomyRows(contents_));
  panes_->addTab(contents_, tr("&Contents"));
  panes_->addTab(MakeIndexPane(), tr("&Index"));
  search_ = new HelpSearchPane(panes_);
  search_->SetEngine(collection_.Engine()->searchEngine());
  panes_->addTab(search_, tr("&Search"));
  const auto open = [this](const QUrl& page) { page_->setSource(page); };
  connect(contents_, &QHelpContentWidget::linkActivated, page_, open);
  connect(contents_, &QHelpContentWidget::clicked, page_, [this](const QModelIndex& index) {
    const QHelpContentItem* item = collection_.Engine()->contentModel()->contentItemAt(index);
    if (item) page_->setSource(item->url());
  });
  connect(collection_.Engine()->contentModel(), &QHelpContentModel::contentsCreated, contents_, [this] {
    contents_->expandToDepth(0);
    FollowContents();
  });
  connect(search_, &HelpSearchPane::PageChosen, page_, open);
  return panes_;
}

QWidget* HelpWindow::MakeIndexPane() {
  indexPane_ = new QWidget(panes_);
  indexWords_ = new QLineEdit(indexPane_);
  indexWords_->setObjectName("txtHelpIndex");
  indexWords_->setAccessibleName(tr("Word to look up"));
  indexWords_->setPlaceholderText(tr("Word to look up"));
  indexWords_->setClearButtonEnabled(true);
  QHelpIndexWidget* list = collection_.Engine()->indexWidget();
  list->setObjectName("lstHelpIndex");
  list->setAccessibleName(tr("Index of the manual"));
  list->setItemDelegate(new RoomyRows(list));
  auto* column = new QVBoxLayout(indexPane_);
  column->addWidget(indexWords_);
  column->addWidget(list);
  indexPane_->setFocusProxy(indexWords_);
  connect(indexWords_, &QLineEdit::textChanged, list,
          [list](const QString& words) { list->filterIndices(words); });
  connect(indexWords_, &QLineEdit::returnPressed, list, &QHelpIndexWidget::activateCurrentItem);
  connect(list, &QHelpIndexWidget::clicked, list, &QHelpIndexWidget::activateCurrentItem);
  connect(list, &QHelpIndexWidget::documentActivated, page_,
          [this](const QHelpLink& page) { page_->setSource(page.url); });
  connect(list, &QHelpIndexWidget::documentsActivated, page_,
          [this](const QList<QHelpLink>& pages) { page_->setSource(pages.first().url); });
  return indexPane_;
}

QWidget* HelpWindow::MakePageSide() {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(page_, 1);
  find_ = new HelpFindBar(*page_, side);
  column->addWidget(find_);
  return side;
}

void HelpWindow::MakeKeys() {
  const auto bind = [this](const QKeySequence& key, auto* receiver, auto command) {
    connect(new QShortcut(key, this), &QShortcut::activated, receiver, command);
  };
  bind(QKeySequence(Qt::Key_Escape), this, &HelpWindow::Leave);
  bind(QKeySequence(Qt::CTRL | Qt::Key_F), find_, &HelpFindBar::Begin);
  bind(QKeySequence(Qt::Key_F3), find_, &HelpFindBar::FindNext);
  bind(QKeySequence(Qt::SHIFT | Qt::Key_F3), find_, &HelpFindBar::FindPrevious);
}

void HelpWindow::BindBrowser() {
  page_->setObjectName("txtHelpPage");
  page_->setAccessibleName(tr("Page of the manual"));
  page_->SetEngine(collection_.Engine());
  back_->setEnabled(false);
  forward_->setEnabled(false);
  connect(back_, &QAction::triggered, page_, &QTextBrowser::backward);
  connect(forward_, &QAction::triggered, page_, &QTextBrowser::forward);
  connect(page_, &QTextBrowser::backwardAvailable, back_, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward_, &QAction::setEnabled);
  connect(page_, &QTextBrowser::historyChanged, this, &HelpWindow::FollowContents);
}

void HelpWindow::SayFailure() {
  home_->setEnabled(false);
  page_->setPlainText(tr("The manual cannot be opened.\n\n%1").arg(collection_.Failure()));
}

// ---- pages

/// Marks the page that is open in the contents. A page that stands there twice stays marked where it was
/// chosen.
void HelpWindow::FollowContents() {
  if (!contents_) return;
  const QHelpContentModel* contents = collection_.Engine()->contentModel();
  if (contents->isCreatingContents()) return;
  const QHelpContentItem* marked = contents->contentItemAt(contents_->currentIndex());
  if (marked && marked->url().matches(page_->source(), QUrl::RemoveFragment)) return;
  const QModelIndex place = contents_->indexOf(page_->source());
  if (place.isValid()) contents_->setCurrentIndex(place);
}

void HelpWindow::Open(const QString& name) {
  const QUrl page = collection_.PageOf(name);
  page_->setSource(page.isEmpty() ? collection_.PageOf(FirstPage) : page);
}

void HelpWindow::ShowPage(const QString& name) {
  if (collection_.Engine()) Open(name);
  Present();
  page_->setFocus();
}

void HelpWindow::ShowContents() {
  ShowPage(FirstPage);
  if (panes_) panes_->setCurrentWidget(contents_);
}

void HelpWindow::ShowIndex() {
  if (page_->source().isEmpty() && collection_.Engine()) Open(PageOnSearching);
  Present();
  if (!panes_) return;
  panes_->setCurrentWidget(indexPane_);
  indexWords_->setFocus();
  indexWords_->selectAll();
}

void HelpWindow::Leave() {
  if (find_->isVisible()) {
    find_->hide();
    page_->setFocus();
  } else {
    close();
  }
}

// ---- beside dialogs

void HelpWindow::Present() {
  const QWidget* dialog = QApplication::activeModalWidget();
  if (dialog && windowHandle() && OwnsDialog(*dialog)) dialog = nullptr;
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  ComeAs(dialog);
  StandWith(dialog);
  show();
  raise();
  activateWindow();
}

/// Asked for from a dialog, the help stays above it, or else the next word typed into the dialog would bring
/// the main window to the front and the help behind it. Beside the main window it is a window like any other.
void HelpWindow::ComeAs(const QWidget* dialog) {
  const Qt::WindowType kind = dialog ? Qt::Dialog : Qt::Window;
  if (windowType() == kind && (!dialog || (isVisible() && belongsTo_ == dialog))) return;
  const bool placed = isVisible();
  const QPoint place = pos();
  hide();  // desktops look at these things when a window comes
  setWindowFlags(kind | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                 Qt::WindowCloseButtonHint);
  belongsTo_ = dialog;
  if (placed) {
    move(place);
  } else if (dialog) {
    PlaceBeside(*dialog);
  }
}

/// As far beside the dialog as there is room: what is asked there stays in sight.
void HelpWindow::PlaceBeside(const QWidget& dialog) {
  const QRect desk = dialog.screen()->availableGeometry();
  const QRect taken = dialog.frameGeometry();
  const QSize frame = taken.size() - dialog.size();
  const int left = taken.left() - desk.left();
  const int right = desk.right() - taken.right();
  resize(std::clamp(std::max(left, right) - frame.width(), width() * 2 / 3, width()), height());
  const QSize whole = size() + frame;
  const int x = right >= left ? std::min(taken.right() + 1, desk.right() + 1 - whole.width())
                              : std::max(taken.left() - whole.width(), desk.left());
  const int y = std::min(taken.top(), desk.bottom() + 1 - whole.height());
  move(x, std::max(y, desk.top()));
}

bool HelpWindow::OwnsDialog(const QWidget& dialog) const {
  return dialog.windowHandle() &&
         windowHandle()->isAncestorOf(dialog.windowHandle(), QWindow::IncludeTransients);
}

/// A modal dialog keeps every window from its input but those that belong to it, so the help is made to
/// belong to the dialog in use. It is no child of it: it stays when the dialog goes.
void HelpWindow::StandWith(const QWidget* dialog) {
  create();
  if (dialog && OwnsDialog(*dialog)) return;
  windowHandle()->setTransientParent(dialog ? dialog->windowHandle() : nullptr);
}

void HelpWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  qApp->installEventFilter(this);
}

void HelpWindow::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!isVisible()) qApp->removeEventFilter(this);  // a window laid aside as an icon still watches
}

/// Dialogs come and go while the help is open. The event of showing arrives before the dialog takes the input
/// away from the other windows, that of hiding after it gave it back.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
  if ((event->type() == QEvent::Show || event->type() == QEvent::Hide) && watched->isWidgetType()) {
    const auto* dialog = static_cast<const QWidget*>(watched);
    if (dialog->isWindow() && dialog->isModal()) {
      StandWith(event->type() == QEvent::Show ? dialog : QApplication::activeModalWidget());
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tarnwick
