#include "platform/qt/FieldPanel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "platform/qt/Caption.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/MeasureBox.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/PanelWidth.h"
#include "platform/qt/QtText.h"
#include "shell/modString.h"

namespace tarnwick {
namespace {

constexpr int CaptionColumn = 0, BoxColumn = 1;
constexpr double BoxShare = 0.46;  // of the least width

/// "txtLength" has the caption "lblLength".
QString CaptionName(std::string_view control) { return "lbl" + ToQt(control.substr(3)); }

/// What is told of a box to people who listen; of a figure of another editor, which one that is.
QString SpokenHint(const PanelField& field) {
  return Translated(field.Act == BoxAct::MustUse ? NumberedText(field.Text) : HintOfBox(field).Status);
}

/// What somebody has typed is his own, whatever it says.
QString Shown(const PanelField& field, const BandSaw& saw, const DisplayFormat& format) {
  const std::string text = field.Shown(saw, format);
  return field.Act == BoxAct::Type ? ToQt(text) : Translated(text);
}

bool OpensSomething(const PanelField& field) {
  return field.Act == BoxAct::Ask || field.Act == BoxAct::AskSeat;
}

}  // namespace

FieldPanel::FieldPanel(std::span<const PanelField> fields, Button ok, Button cancel, QWidget* parent)
    : PanelFrame(parent) {
  MakePage(fields);
  MakeFoot(ok, cancel);
  SetWidth(LeastWidth(), 0);
}

FieldPanel::~FieldPanel() { EndWatching(); }

// ---- making

void FieldPanel::MakePage(std::span<const PanelField> fields) {
  auto* grid = new QGridLayout(Page());
  grid->setContentsMargins(PanelMargin, 0, PanelMargin, PanelMargin);
  grid->setHorizontalSpacing(Gap);
  grid->setVerticalSpacing(RowGap);
  grid->setColumnStretch(CaptionColumn, 1);
  lines_.reserve(fields.size());
  std::string_view group;
  for (const PanelField& field : fields) {
    if (field.Group != std::exchange(group, field.Group)) {
      grid->addWidget(MakeHeading(Translated(field.Group)), grid->rowCount(), CaptionColumn, 1, 2);
    }
    AddLine(grid, field);
  }
  grid->setRowStretch(grid->rowCount(), 1);
}

void FieldPanel::MakeFoot(Button ok, Button cancel) {
  buttons_ = {{AddButton(ok.Name, tr("&OK"), tr("OK"), ok.Hint), ok.Hint},
              {AddButton(cancel.Name, tr("&Cancel"), tr("Cancel"), cancel.Hint), cancel.Hint}};
  connect(buttons_[0].Pressed, &QPushButton::clicked, this, &FieldPanel::Accepted);
  connect(buttons_[1].Pressed, &QPushButton::clicked, this, &FieldPanel::Cancelled);
}

void FieldPanel::AddLine(QGridLayout* grid, const PanelField& field) {
  const int row = grid->rowCount();
  const bool isTicked = field.Act == BoxAct::Tick;
  Line line{&field, nullptr, MakeBox(field)};
  if (!isTicked) line.Caption = MakeCaption(field, line.Box);
  line.Box->setObjectName(ToQt(field.Control));
  line.Box->setAccessibleName(Spoken(Translated(field.Caption)));
  line.Box->setAccessibleDescription(SpokenHint(field));
  Watch(line.Box);
  if (line.Caption) grid->addWidget(line.Caption, row, CaptionColumn);
  grid->addWidget(line.Box, row, BoxColumn);
  lines_.push_back(line);
}

QLabel* FieldPanel::MakeCaption(const PanelField& field, QWidget* box) {
  const QString text = Translated(field.Caption);
  auto* measure = qobject_cast<MeasureBox*>(box);
  auto* caption = measure ? new BoxCaption(text, measure) : new BoxCaption(text, box);
  caption->setObjectName(CaptionName(field.Control));
  if (!OpensSomething(field)) caption->unsetCursor();
  Watch(caption);
  return caption;
}

QWidget* FieldPanel::MakeBox(const PanelField& field) {
  if (field.Act == BoxAct::Tick) {
    auto* box = new QCheckBox(Translated(field.Caption));
    connect(box, &QCheckBox::clicked, this, &FieldPanel::Ticked);
    return box;
  }
  if (field.Act == BoxAct::Type) {
    auto* box = new QLineEdit;
    box->setMaxLength(field.MostCharacters);
    box->setTextMargins(fontMetrics().horizontalAdvance(' '), 0, 0,
                        0);  // as the measures, with a blank ahead
    connect(box, &QLineEdit::textEdited, this,
            [this, &field](const QString& text) { emit Typed(field, text); });
    connect(box, &QLineEdit::editingFinished, this, &FieldPanel::TypingEnded);
    return box;
  }
  auto* box = new MeasureBox;
  box->SetOpens(OpensSomething(field));
  connect(box, &MeasureBox::Pressed, this, [this, &field] { emit Pressed(field); });
  return box;
}

// ---- showing

void FieldPanel::SetWidth(int panel, int more) {
  SetFrameWidth(panel);
  int box = static_cast<int>(BoxShare * LeastWidth());
  for (const Line& line : lines_) {
    if (qobject_cast<QCheckBox*>(line.Box)) box = std::max(box, line.Box->sizeHint().width());
  }
  for (const Line& line : lines_) line.Box->setFixedWidth(box + more);
}

void FieldPanel::Write(QLineEdit& box, const QString& text) {
  if (box.text() == text) return;
  box.setText(text);
  box.setCursorPosition(0);  // of a long text the beginning shows
}

/// A box that shows zero has the record's number, although a zero is not written.
bool FieldPanel::KeepsZero(const Line& line, const BandSaw& saw, const DisplayFormat& format) const {
  const auto* box = qobject_cast<MeasureBox*>(line.Box);
  return box && isVisible() && !box->text().isEmpty() && line.Field->Shown(saw, format).empty() &&
         box->text() == Translated(AcceptedText(*line.Field, saw, format));
}

void FieldPanel::FillBoxes(const BandSaw& saw, const DisplayFormat& format) {
  for (const Line& line : lines_) {
    if (KeepsZero(line, saw, format)) continue;
    const QString text = Shown(*line.Field, saw, format);
    if (auto* tick = qobject_cast<QCheckBox*>(line.Box)) {
      tick->setChecked(!text.isEmpty());
    } else {
      Write(*static_cast<QLineEdit*>(line.Box), text);
    }
  }
}

void FieldPanel::ShowAccepted(const PanelField& field, const BandSaw& saw, const DisplayFormat& format) {
  for (const Line& line : lines_) {
    if (line.Field != &field) continue;
    if (auto* box = qobject_cast<MeasureBox*>(line.Box))
      Write(*box, Translated(AcceptedText(field, saw, format)));
  }
}

void FieldPanel::ShowState(const PanelField& field, BoxState state) {
  for (const Line& line : lines_) {
    if (line.Field != &field) continue;
    const bool opens = state == BoxState::Clickable && OpensSomething(field);
    if (auto* box = qobject_cast<MeasureBox*>(line.Box)) box->SetOpens(opens);
    for (QWidget* part : {static_cast<QWidget*>(line.Caption), line.Box}) {
      if (!part) continue;
      part->setVisible(state != BoxState::Hidden);
      if (opens) part->setCursor(Qt::PointingHandCursor);
    }
    if (line.Caption && !opens) line.Caption->unsetCursor();
  }
}

// ---- what is done to it

const FieldPanel::Line* FieldPanel::LineOf(const QObject* control) const {
  const auto found = std::find_if(lines_.begin(), lines_.end(), [control](const Line& line) {
    return line.Caption == control || line.Box == control;
  });
  return found == lines_.end() ? nullptr : &*found;
}

void FieldPanel::TellHover(const QObject* control, bool isOver) {
  if (const Line* line = LineOf(control)) emit Hovered(isOver ? line->Field : nullptr);
  for (const Foot& button : buttons_) {
    if (button.Pressed == control) emit ButtonHovered(isOver ? button.Hint : 0);
  }
}

}  // namespace tarnwick
