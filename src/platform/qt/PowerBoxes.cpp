#include "platform/qt/PowerBoxes.h"

#include <QFontMetrics>
#include <algorithm>
#include <utility>

#include "platform/qt/FormWindow.h"
#include "platform/qt/Language.h"
#include "platform/qt/MeasureBox.h"
#include "platform/qt/MeasureGrid.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/QtText.h"
#include "power/modWood.h"

namespace tarnwick {
namespace {

constexpr const char* LongFigure = " 1.234.567 in²";

/// Room for the longest text that a box may have to show, and for its frame.
int RoomFor(PowerBox box, const MeasureBox& shown) {
  const QFontMetrics metrics = shown.fontMetrics();
  int text = metrics.horizontalAdvance(LongFigure);
  if (box == PowerBox::SpecificEnergy) {
    for (const Wood& wood : Woods()) text = std::max(text, metrics.horizontalAdvance(ToQt(wood.Name)));
  }
  return text + 2 * metrics.averageCharWidth();
}

/// The page on a measure is that of the question for it, whoever asks it; 0: it is never asked for.
int TopicOf(PowerBox box) {
  for (const PowerBoxRow& row : PowerCalculatorBoxes()) {
    if (row.Box == box && row.Asked) return RowOf(*row.Asked).HelpTopic;
  }
  return 0;
}

MeasureGrid::Press PressOf(const PowerBoxRow& row) {
  if (!row.Asked) return MeasureGrid::Press::Result;
  return row.LabelAsks ? MeasureGrid::Press::BoxAndCaption : MeasureGrid::Press::Box;
}

}  // namespace

PowerBoxes::PowerBoxes(std::span<const PowerBoxRow> rows, Side side, Press press)
    : rows_(rows), side_(std::move(side)), press_(std::move(press)) {}

void PowerBoxes::AddTo(MeasureGrid& grid, std::initializer_list<PowerBox> boxes) {
  for (const PowerBox box : boxes) {
    const auto row = std::find_if(rows_.begin(), rows_.end(), [box](const auto& r) { return r.Box == box; });
    if (row != rows_.end()) Add(grid, *row);
  }
}

void PowerBoxes::Add(MeasureGrid& grid, const PowerBoxRow& row) {
  MeasureBox* box =
      grid.AddBox(ToQt(row.Control) + side_.Suffix, Translated(row.Caption), SpokenOf(row), PressOf(row));
  box->setMinimumWidth(RoomFor(row.Box, *box));
  if (row.Box == PowerBox::SpecificEnergy) {  // a name has no blank ahead as the numbers have
    box->setTextMargins(box->fontMetrics().horizontalAdvance(' '), 0, 0, 0);
  }
  if (const int topic = TopicOf(row.Box)) FormWindow::SetTopic(box, topic);
  QObject::connect(box, &MeasureBox::Pressed, box, [press = press_, which = row.Box, box] {
    press(which);
    box->deselect();
  });
  made_.push_back({row.Box, box});
}

QString PowerBoxes::SpokenOf(const PowerBoxRow& row) const {
  QString caption = Spoken(Translated(row.Caption));
  if (!row.Frame.empty()) caption = Spoken(Translated(row.Frame)) + ", " + caption;
  return side_.Spoken.arg(caption);
}

void PowerBoxes::ShowTexts(const TextOf& textOf) {
  for (const Made& made : made_) {
    const QString text = ToQt(textOf(made.Box));
    if (made.Shown->text() == text) continue;
    made.Shown->setText(text);
    made.Shown->setCursorPosition(0);  // of a long text the beginning shows
  }
}

}  // namespace tarnwick
