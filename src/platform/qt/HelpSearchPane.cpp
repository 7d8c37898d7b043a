#include "platform/qt/HelpSearchPane.h"

#include <QHelpSearchEngine>
#include <QHelpSearchResult>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <chrono>

#include "platform/qt/RoomyRows.h"

namespace tarnwick {
namespace {

constexpr auto Pause = std::chrono::milliseconds(200);

/// What is asked of the engine: the last word may still be in the writing.
QString QueryOf(const QString& typed) {
  const QString words = typed.trimmed();
  return !words.isEmpty() && words.back().isLetterOrNumber() ? words + '*' : words;
}

}  // namespace

HelpSearchPane::HelpSearchPane(QWidget* parent) : QWidget(parent) {
  words_ = new QLineEdit(this);
  words_->setObjectName("txtHelpSearch");
  words_->setAccessibleName(tr("Words to search for"));
  words_->setPlaceholderText(tr("Words to search for"));
  words_->setClearButtonEnabled(true);
  pages_ = new QListWidget(this);
  pages_->setObjectName("lstHelpSearch");
  pages_->setAccessibleName(tr("Pages found"));
  pages_->setItemDelegate(new RoomyRows(pages_));
  count_ = new QLabel(this);
  count_->setObjectName("lblHelpSearch");
  auto* column = new QVBoxLayout(this);
  column->addWidget(words_);
  column->addWidget(pages_);
  column->addWidget(count_);
  setFocusProxy(words_);

  pause_.setSingleShot(true);
  pause_.setInterval(Pause);
  connect(&pause_, &QTimer::timeout, this, &HelpSearchPane::Search);
  connect(words_, &QLineEdit::textChanged, this, [this] {
    openFirst_ = false;
    pause_.start();
  });
  connect(words_, &QLineEdit::returnPressed, this, [this] {
    openFirst_ = true;
    Search();
  });
  connect(pages_, &QListWidget::itemClicked, this, &HelpSearchPane::ChooseCurrent);
  connect(pages_, &QListWidget::itemActivated, this, &HelpSearchPane::ChooseCurrent);
}

void HelpSearchPane::SetEngine(QHelpSearchEngine* engine) {
  engine_ = engine;
  // Words may be typed before all pages have been read for the first time.
  connect(engine_, &QHelpSearchEngine::indexingFinished, this, &HelpSearchPane::Search);
  connect(engine_, &QHelpSearchEngine::searchingFinished, this, &HelpSearchPane::ShowPages);
}

void HelpSearchPane::Search() {
  pause_.stop();
  if (!engine_) return;
  const QString query = QueryOf(words_->text());
  if (query.isEmpty()) {
    pages_->clear();
    count_->clear();
  } else {
    engine_->search(query);
  }
}

void HelpSearchPane::ShowPages() {
  pages_->clear();
  const QList<QHelpSearchResult> found = engine_->searchResults(0, engine_->searchResultCount());
  for (const QHelpSearchResult& page : found) {
    auto* item = new QListWidgetItem(page.title(), pages_);
    item->setData(Qt::UserRole, page.url());
  }
  count_->setText(found.isEmpty() ? tr("No page has these words.") : tr("Pages found: %1").arg(found.size()));
  pages_->setCurrentRow(0);
  if (!openFirst_ || found.isEmpty()) return;
  openFirst_ = false;
  ChooseCurrent();
}

void HelpSearchPane::ChooseCurrent() {
  if (const QListWidgetItem* item = pages_->currentItem()) emit PageChosen(item->data(Qt::UserRole).toUrl());
}

}  // namespace tarnwick
