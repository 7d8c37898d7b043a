#include "power/frmPowerEst.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/NamedControls.h"

namespace tarnwick {
namespace {

constexpr int Topic = 420;
constexpr int LinesShown = 24;
constexpr int LineAir = 2;     // above and below a text
constexpr int ColumnGap = 24;  // between the labels and what stands beside them
constexpr int LabelRole = Qt::UserRole, TextRole = Qt::UserRole + 1, HeadingRole = Qt::UserRole + 2;

/// Draws a line with its label at the left and its text in a column of its own.
class LinePainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// Both columns as wide as the lines need.
  void Fit(const QListWidget& lines) {
    const QFontMetrics plain = lines.fontMetrics(), bold(Bold(lines.font()));
    label_ = text_ = heading_ = 0;
    for (int i = 0; i < lines.count(); ++i) {
      const QListWidgetItem* line = lines.item(i);
      const QString label = line->data(LabelRole).toString();
      if (line->data(HeadingRole).toBool()) {
        heading_ = std::max(heading_, bold.horizontalAdvance(label));
      } else {
        label_ = std::max(label_, plain.horizontalAdvance(label));
        text_ = std::max(text_, plain.horizontalAdvance(line->data(TextRole).toString()));
      }
    }
  }

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    const int margin = MarginOf(option);
    return {std::max(heading_, label_ + ColumnGap + text_) + 2 * margin,
            option.fontMetrics.height() + 2 * LineAir};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem plain = option;
    initStyleOption(&plain, index);
    plain.text.clear();
    const QWidget* widget = option.widget;
    widget->style()->drawControl(QStyle::CE_ItemViewItem, &plain, painter, widget);

    const bool isSelected = option.state & QStyle::State_Selected;
    painter->save();
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    const QRect room = option.rect.adjusted(MarginOf(option), 0, -MarginOf(option), 0);
    if (index.data(HeadingRole).toBool()) painter->setFont(Bold(option.font));
    painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine, index.data(LabelRole).toString());
    painter->drawText(room.adjusted(label_ + ColumnGap, 0, 0, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                      index.data(TextRole).toString());
    painter->restore();
  }

 private:
  static QFont Bold(QFont font) {
    font.setBold(true);
    return font;
  }
  static int MarginOf(const QStyleOptionViewItem& option) { return option.fontMetrics.averageCharWidth(); }

  int label_ = 0, text_ = 0, heading_ = 0;  // widths
};

/// All lines at their full height. What they stand in moves them.
class LineSheet final : public QListWidget {
 public:
  LineSheet() {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAutoScroll(false);
  }

  [[nodiscard]] int LineHeight() const { return sizeHintForRow(0); }
  [[nodiscard]] QSize sizeHint() const override { return {sizeHintForColumn(0), count() * LineHeight()}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  /// A page is what shows of the sheet, not the whole of it.
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers keys) override {
    const bool isUp = action == MovePageUp;
    if (!isUp && action != MovePageDown) return QListWidget::moveCursor(action, keys);
    const int page = std::max(parentWidget()->height() / LineHeight() - 1, 1);
    int row = std::clamp(currentRow() + (isUp ? -page : page), 0, count() - 1);
    while (item(row)->flags() == Qt::NoItemFlags) row += isUp ? -1 : 1;  // neither end is a blank line
    return model()->index(row, 0);
  }
};

/// As wide as the lines in it, and as high as a good part of them.
class LineRoom final : public QScrollArea {
 public:
  explicit LineRoom(LineSheet* lines) : lines_(lines) {
    setWidget(lines);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    connect(lines, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* now) {
      const QRect line = lines_->visualItemRect(now);
      if (now) ensureVisible(0, line.center().y(), 0, line.height());
    });
  }

  [[nodiscard]] QSize sizeHint() const override {
    const int frame = 2 * frameWidth();
    return {lines_->sizeHint().width() + verticalScrollBar()->sizeHint().width() + frame,
            std::min(LinesShown, std::max(lines_->count(), 1)) * lines_->LineHeight() + frame};
  }

 private:
  LineSheet* lines_;
};

/// A line for those who listen, to whom an asterisk says nothing.
QString SpokenLine(const PowerLine& line) {
  const QString spoken = (Translated(line.Label) + ' ' + Translated(line.Text)).simplified();
  return line.Changed ? frmPowerEst::tr("%1, changed").arg(spoken) : spoken;
}

}  // namespace

frmPowerEst::frmPowerEst(PowerEstimateList& estimates, HelpViewer& help, std::function<void()> print,
                         QWidget* parent)
    : FormWindow("frmPowerEst", tr("Power Estimates"), Topic, help, parent), estimates_(estimates) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(Margin, Margin, Margin, Margin);
  column->setSpacing(Gap);
  column->addWidget(MakeLabel("lblHeading", Translated(estimates_.Heading())));
  column->addWidget(MakeLines(), 1);
  column->addWidget(MakeLabel("lblNote", Translated(PowerEstimateList::Note())));
  column->addLayout(MakeFoot(std::move(print)));
  DisplayPowerSets();
  picPowerEst_->setFocus();
}

QWidget* frmPowerEst::MakeLines() {
  auto* lines = new LineSheet;
  lines->setObjectName("picPowerEst");
  lines->setAccessibleName(tr("Power estimates"));
  lines->setItemDelegate(new LinePainter(lines));
  picPowerEst_ = lines;

  auto* room = new LineRoom(lines);
  room->viewport()->setObjectName("picContain");
  room->verticalScrollBar()->setObjectName("vscPowerInfo");
  room->verticalScrollBar()->setAccessibleName(tr("Move the estimates"));
  return room;
}

void frmPowerEst::DisplayPowerSets() {
  picPowerEst_->clear();
  for (const PowerLine& line : estimates_.Lines()) {
    // The wood has no blank ahead as the numbers have: in their column all begin alike.
    const QString label = Translated(line.Label), text = Translated(line.MarkedText()).trimmed();
    auto* shown = new QListWidgetItem((label + ' ' + text).trimmed(), picPowerEst_);
    shown->setData(LabelRole, label);
    shown->setData(TextRole, text);
    shown->setData(HeadingRole, line.Is == PowerLine::Role::Heading);
    shown->setData(Qt::AccessibleTextRole, SpokenLine(line));
    if (line.Is == PowerLine::Role::Blank) shown->setFlags(Qt::NoItemFlags);  // the keys pass it over
  }
  static_cast<LinePainter*>(picPowerEst_->itemDelegate())->Fit(*picPowerEst_);
}

QHBoxLayout* frmPowerEst::MakeFoot(std::function<void()> print) {
  QPushButton* cmdPrint = MakeButton("cmdPrint", tr("&Print"));
  connect(cmdPrint, &QPushButton::clicked, this, std::move(print));
  QPushButton* cmdOk = MakeButton("cmdOk", tr("&OK"));
  cmdOk->setDefault(true);
  connect(cmdOk, &QPushButton::clicked, this, &frmPowerEst::accept);
  auto* foot = new QHBoxLayout;
  foot->setSpacing(Gap);
  foot->addStretch();
  foot->addWidget(cmdPrint);
  foot->addWidget(cmdOk);
  return foot;
}

void frmPowerEst::done(int result) {
  estimates_.PressOk();
  FormWindow::done(result);
}

}  // namespace tarnwick
