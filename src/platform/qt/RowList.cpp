#include "platform/qt/RowList.h"

#include <QAccessible>
#include <QCursor>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/qt/Language.h"
#include "platform/qt/RowListAccess.h"
#include "platform/qt/TabStep.h"
#include "window/modRowScroll.h"
#include "window/modSelect.h"

namespace tarnwick {
namespace {

constexpr int Margin = 6;  // at both sides of a row
constexpr const char* WidestCaption = "Teeth on Both Edges:";

/// The largest letters that a row has room for.
QFont FontOfRows() {
  QFont font;
  font.setFamilies({"Times New Roman", "Liberation Serif", "Nimbus Roman"});
  font.setStyleHint(QFont::Serif);
  int pixels = static_cast<int>(RowHeight);
  do font.setPixelSize(pixels--);
  while (QFontMetrics(font).height() > static_cast<int>(RowHeight));
  return font;
}

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

/// Rows are at fractions of a pixel; their colours begin and end at whole ones.
QRect PixelsOf(const RowBox& box) {
  const int top = static_cast<int>(std::lround(box.Top));
  return {0, top, static_cast<int>(std::lround(box.Right)), static_cast<int>(std::lround(box.Bottom)) - top};
}

}  // namespace

RowList::RowList(QWidget* parent)
    : QWidget(parent), plain_(FontOfRows()), bold_(Bold(plain_)), valueColumn_(LeastValueColumn()) {
  TeachRowLists();
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

RowList::~RowList() { ForgetRows(*this); }

// ---- what is shown

void RowList::ShowRows(SawInfo rows, int toothStyle) {
  rows_ = std::move(rows);
  toothStyle_ = toothStyle;
  held_ = None;
  Highlight(None);
  resizeEvent(nullptr);
  update();
  QAccessibleEvent changed(this, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&changed);
}

int RowList::HeightOfRows() const {
  return rows_.empty() ? 0 : static_cast<int>(std::ceil(rows_.back().Box.Bottom));
}

void RowList::SetValueColumn(int left) {
  valueColumn_ = std::max(left, LeastValueColumn());
  update();
}

int RowList::LeastValueColumn() const {
  return Margin + QFontMetrics(plain_).horizontalAdvance(Translated(WidestCaption)) + Margin;
}

/// A row is as wide as the list.
void RowList::resizeEvent(QResizeEvent*) {
  for (InfoRow& row : rows_) row.Box.Right = width();
}

void RowList::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::white);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (PixelsOf(rows_[i].Box).intersects(event->rect()))
      PaintRow(painter, rows_[i], static_cast<int>(i) == highlighted_);
  }
}

void RowList::PaintRow(QPainter& painter, const InfoRow& row, bool inverse) const {
  const QRect box = PixelsOf(row.Box);
  if (inverse) painter.fillRect(box, Qt::black);
  painter.setPen(inverse ? Qt::white : Qt::black);
  painter.setFont(row.Header ? bold_ : plain_);
  painter.drawText(box.adjusted(Margin, 0, -Margin, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                   Translated(row.Caption));
  const QRect room = box.adjusted(valueColumn_, 0, -Margin, 0);
  painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(Translated(row.Value), Qt::ElideRight, room.width()));
}

// ---- the row lifted out

const InfoRow* RowList::Highlighted() const {
  return highlighted_ == None ? nullptr : &rows_[static_cast<std::size_t>(highlighted_)];
}

void RowList::Highlight(int row) {
  if (row == highlighted_) return;
  highlighted_ = row;
  update();
  const InfoRow* lifted = Highlighted();
  if (lifted && Opens(*lifted))
    setCursor(Qt::PointingHandCursor);
  else
    unsetCursor();
  emit RowHovered(lifted);
}

void RowList::HighlightUnderMouse() {
  if (underMouse()) Highlight(RowAt(mapFromGlobal(QCursor::pos())));
}

bool RowList::Opens(const InfoRow& row) const {
  const BoxAct act = ActOfRow(row.Code, toothStyle_).Act;
  return act == BoxAct::Ask || act == BoxAct::AskSeat;
}

// ---- mouse

int RowList::RowAt(QPointF place) const {
  const InfoRow* row = FindRow(rows_, static_cast<int>(place.x()), static_cast<int>(place.y()));
  return !row || row->Code == RowCode::Blank ? None : row->Row - 1;
}

void RowList::Press(const InfoRow& row) {
  // What follows may make the rows anew, this one with them.
  const InfoRow pressed = row;  // NOLINT(performance-unnecessary-copy-initialization)
  emit RowPressed(pressed);
}

void RowList::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) held_ = RowAt(event->position());
}

/// Answered only now that the button is up: a dialog would take the release for its own.
void RowList::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int row = std::exchange(held_, None);
  if (row == None) return;
  reached_ = row;
  Press(rows_[static_cast<std::size_t>(row)]);
}

void RowList::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) Highlight(RowAt(event->position()));
}

void RowList::leaveEvent(QEvent*) { Highlight(None); }

// ---- keys

int RowList::RowsOfPageNow() const { return RowsOfPage(visibleRegion().boundingRect().height()); }

/// The nearest row in the direction of `step` that says something, `from` included.
int RowList::NextRow(int from, int step) const {
  for (int i = from; i >= 0 && i < Count(); i += step) {
    if (rows_[static_cast<std::size_t>(i)].Code != RowCode::Blank) return i;
  }
  return None;
}

void RowList::Reach(int row) {
  reached_ = row;
  Highlight(row);
  emit RowReached(rows_[static_cast<std::size_t>(row)]);
  QAccessibleEvent focus(this, QAccessible::Focus);
  focus.setChild(row);
  QAccessible::updateAccessibility(&focus);
}

/// To the row itself, or beyond a blank one; at an end it stays at the last.
void RowList::StepTo(int row, int step) {
  if (rows_.empty()) return;
  const int within = std::clamp(row, 0, Count() - 1);
  const int next = NextRow(within, step);
  Reach(next != None ? next : NextRow(within, -step));
}

/// From the row that is lifted out. With none, the first step only shows where one is.
void RowList::Walk(int steps) {
  const bool isWholeWay = std::abs(steps) >= Count();
  const bool begins = highlighted_ == None && !isWholeWay;
  const int from = highlighted_ == None ? reached_ : highlighted_;
  StepTo(std::max(from, 0) + (begins ? 0 : steps), steps < 0 && !begins ? -1 : 1);
}

void RowList::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return Walk(-1);
    case Qt::Key_Down:
      return Walk(1);
    case Qt::Key_PageUp:
      return Walk(-RowsOfPageNow());
    case Qt::Key_PageDown:
      return Walk(RowsOfPageNow());
    case Qt::Key_Home:
      return Walk(-Count());
    case Qt::Key_End:
      return Walk(Count());
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (event->isAutoRepeat()) return;
      return highlighted_ == None ? Walk(1) : Press(*Highlighted());
    default:
      QWidget::keyPressEvent(event);
  }
}

void RowList::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  if (IsTabStep(*event)) StepTo(reached_, 1);
  emit FocusChanged();
}

/// While the dialog of a row is open, the row stays out: the keys go on from it.
void RowList::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  const bool comesBack =
      event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
  if (!comesBack && !underMouse()) Highlight(None);
  emit FocusChanged();
}

}  // namespace tarnwick
