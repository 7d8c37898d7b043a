#include "window/fraVariable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/qt/Caption.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/MeasureBox.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/PanelWidth.h"
#include "platform/qt/QtText.h"
#include "variable/modSegmentHint.h"

namespace tarnwick {
namespace {

constexpr int CaptionColumn = 0, BoxColumn = 1;
constexpr int PitchColumn = 1, DepthColumn = 2;
constexpr double BoxShare = 0.46;    // of the least width, for a box that stands alone
constexpr double ToothShare = 0.32;  // for one of two side by side

constexpr int ResetHint = 69, OkHint = 66, CancelHint = 67;

/// A list that the wheel does not turn: it scrolls the panel, whatever it comes across.
class StillList final : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

QString Indexed(const char* name, int k) { return QString("%1(%2)").arg(name).arg(k); }

void Write(MeasureBox* box, const std::string& shown) {
  const QString text = ToQt(shown);
  if (box->text() == text) return;
  box->setText(text);
  box->setCursorPosition(0);
}

QGridLayout* MakeGrid() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Gap);
  grid->setVerticalSpacing(RowGap);
  grid->setColumnStretch(CaptionColumn, 1);
  return grid;
}

}  // namespace

fraVariable::fraVariable(QWidget* parent) : PanelFrame(parent) {
  setObjectName("fraVariable");
  setAccessibleName(tr("Variable pitch"));
  auto* column = new QVBoxLayout(Page());
  column->setContentsMargins(PanelMargin, 0, PanelMargin, PanelMargin);
  column->setSpacing(RowGap);
  column->addWidget(MakeHeading(tr("Segment")));
  column->addLayout(MakeSegment());
  column->addWidget(MakeHeading(tr("Pattern")));
  column->addWidget(MakePatterns());
  column->addWidget(MakeHeading(tr("Teeth")));
  column->addWidget(MakeVarDepth());
  column->addLayout(MakeTeeth());
  column->addSpacing(Gap);
  column->addWidget(MakePrint(), 0, Qt::AlignRight);
  column->addStretch(1);
  MakeFoot();
  SetWidth(LeastWidth(), 0);
  Show({}, {});
}

fraVariable::~fraVariable() { EndWatching(); }

// ---- making

void fraVariable::Name(QWidget* control, const QString& name, const QString& spoken) {
  control->setObjectName(name);
  control->setAccessibleName(spoken);
  control->setAccessibleDescription(Translated(SegmentHint(name.toStdString())));
  Watch(control);
}

MeasureBox* fraVariable::MakeBox(const QString& name, const QString& spoken, bool opens) {
  auto* box = new MeasureBox(Page());
  box->SetOpens(opens);
  Name(box, name, spoken);
  connect(box, &MeasureBox::Pressed, this, [this, box] { TellOwner(*box); });
  return box;
}

void fraVariable::AddCaption(QGridLayout* grid, const QString& text) {
  grid->addWidget(new Caption(text, Page()), grid->rowCount(), CaptionColumn);
}

MeasureBox* fraVariable::AddCount(QGridLayout* grid, const char* name, const QString& caption) {
  AddCaption(grid, caption);
  MeasureBox* box = MakeBox(name, Spoken(caption), false);
  grid->addWidget(box, grid->rowCount() - 1, BoxColumn);
  return box;
}

QLayout* fraVariable::MakeSegment() {
  QGridLayout* grid = MakeGrid();
  txtVariableNumTeeth_ = AddCount(grid, "txtVariableNumTeeth", tr("Number Of Teeth:"));
  AddCaption(grid, tr("Teeth in Segment:"));
  cboPattern_ = new StillList(Page());
  Name(cboPattern_, "cboPattern", tr("Teeth in Segment"));
  connect(cboPattern_, &QComboBox::activated, this, &fraVariable::EntryChosen);
  grid->addWidget(cboPattern_, grid->rowCount() - 1, BoxColumn);
  txtNumberOfSegments_ = AddCount(grid, "txtNumberOfSegments", tr("Segments on Band:"));
  txtSegmentSize_ = AddCount(grid, "txtSegmentSize", tr("Length of Segment:"));
  return grid;
}

/// Two by two: the teeth below stay in sight on a small screen.
QWidget* fraVariable::MakePatterns() {
  auto* patterns = new QWidget(Page());
  auto* grid = new QGridLayout(patterns);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(Gap);
  grid->setVerticalSpacing(RowGap);
  for (int index = 0; index < Patterns; ++index) {
    const QString caption = Translated(PatternName(index));
    auto* option = new QRadioButton(caption, patterns);
    Name(option, Indexed("optPattern", index), tr("Pattern %1").arg(Spoken(caption)));
    connect(option, &QRadioButton::clicked, this, [this, index] { emit PatternClicked(index); });
    grid->addWidget(option, index / 2, index % 2);
    optPattern_[static_cast<std::size_t>(index)] = option;
  }
  for (const int column : {0, 1}) grid->setColumnStretch(column, 1);
  return patterns;
}

void fraVariable::AddColumnHead(QGridLayout* grid, int column, const QString& text) {
  auto* head = new QLabel(text, Page());
  head->setTextFormat(Qt::PlainText);
  head->setIndent(2 + fontMetrics().horizontalAdvance(' '));  // where the numbers below begin
  grid->addWidget(head, 0, column);
}

void fraVariable::AddTooth(QGridLayout* grid, int k) {
  static const std::array<QString, Rows> captions{tr("1st Tooth:"), tr("2nd Tooth:"), tr("3rd Tooth:"),
                                                  tr("4th Tooth:"), tr("5th Tooth:"), tr("6th Tooth:"),
                                                  tr("7th Tooth:")};
  const QString& caption = captions[static_cast<std::size_t>(k)];
  ToothRow& row = teeth_[static_cast<std::size_t>(k)];
  row.Pitch = MakeBox(Indexed("txtToothSpace", k), tr("%1 Pitch").arg(Spoken(caption)), true);
  row.Label = new BoxCaption(caption, row.Pitch, Page());
  row.Label->setObjectName(Indexed("lblToothSpace", k));
  Watch(row.Label);
  row.Depth = MakeBox(Indexed("txtToothDepth", k), tr("%1 Depth").arg(Spoken(caption)), true);
  connect(row.Pitch, &MeasureBox::Pressed, this, [this, k] { emit PitchPressed(k); });
  connect(row.Depth, &MeasureBox::Pressed, this, [this, k] { emit DepthPressed(k); });
  const int line = grid->rowCount();
  grid->addWidget(row.Label, line, CaptionColumn);
  grid->addWidget(row.Pitch, line, PitchColumn);
  grid->addWidget(row.Depth, line, DepthColumn);
}

void fraVariable::AddAverages(QGridLayout* grid) {
  AddCaption(grid, tr("Average:"));
  const int line = grid->rowCount() - 1;
  txtAverageSpace_ = MakeBox("txtAverageSpace", tr("Average Pitch"), false);
  txtAverageDepth_ = MakeBox("txtAverageDepth", tr("Average Depth"), false);
  grid->addWidget(txtAverageSpace_, line, PitchColumn);
  grid->addWidget(txtAverageDepth_, line, DepthColumn);
}

QLayout* fraVariable::MakeTeeth() {
  QGridLayout* grid = MakeGrid();
  AddColumnHead(grid, PitchColumn, tr("Pitch"));
  AddColumnHead(grid, DepthColumn, tr("Depth"));
  for (int k = 0; k < Rows; ++k) AddTooth(grid, k);
  AddAverages(grid);
  return grid;
}

QWidget* fraVariable::MakeVarDepth() {
  chkVarDepth_ = new QCheckBox(tr("Variable Depth"), Page());
  Name(chkVarDepth_, "chkVarDepth", tr("Variable Depth"));
  connect(chkVarDepth_, &QCheckBox::clicked, this, &fraVariable::VarDepthTicked);
  return chkVarDepth_;
}

QPushButton* fraVariable::MakePrint() {
  auto* print = new QPushButton(tr("&Print"), Page());
  Name(print, "cmdVariablePrint", tr("Print the segment"));  // the tool bar has a "Print"
  print->setAutoDefault(true);                               // Enter presses it, as the buttons at the foot
  connect(print, &QPushButton::clicked, this, &fraVariable::PrintPressed);
  return print;
}

void fraVariable::MakeFoot() {
  QPushButton* reset = AddButton("cmdVariableReset", tr("&Reset"), tr("Reset"), ResetHint, Side::Left);
  QPushButton* ok = AddButton("cmdVariableOK", tr("&OK"), tr("OK"), OkHint);
  QPushButton* cancel = AddButton("cmdVariableCancel", tr("&Cancel"), tr("Cancel"), CancelHint);
  connect(reset, &QPushButton::clicked, this, &fraVariable::ResetPressed);
  connect(ok, &QPushButton::clicked, this, &fraVariable::Accepted);
  connect(cancel, &QPushButton::clicked, this, &fraVariable::Cancelled);
}

// ---- showing

void fraVariable::SetWidth(int panel, int more) {
  SetFrameWidth(panel);
  const int alone = static_cast<int>(BoxShare * LeastWidth()) + more;
  const int beside = static_cast<int>(ToothShare * LeastWidth()) + more / 2;
  for (QWidget* box : {static_cast<QWidget*>(cboPattern_), static_cast<QWidget*>(txtVariableNumTeeth_),
                       static_cast<QWidget*>(txtNumberOfSegments_), static_cast<QWidget*>(txtSegmentSize_)}) {
    box->setFixedWidth(alone);
  }
  for (const ToothRow& row : teeth_) {
    row.Pitch->setFixedWidth(beside);
    row.Depth->setFixedWidth(beside);
  }
  txtAverageSpace_->setFixedWidth(beside);
  txtAverageDepth_->setFixedWidth(beside);
}

void fraVariable::ShowEntries(const VariableValues& values) {
  QStringList entries;
  for (const std::string& entry : values.Entries) entries.append(Translated(entry));
  QStringList shown;
  for (int entry = 0; entry < cboPattern_->count(); ++entry) shown.append(cboPattern_->itemText(entry));
  const QSignalBlocker quiet(cboPattern_);
  if (entries != shown) {
    cboPattern_->clear();
    cboPattern_->addItems(entries);
  }
  cboPattern_->setCurrentIndex(values.Entry);
}

/// Tab reaches the option that is set, and the arrow keys the others.
void fraVariable::ShowPattern(int pattern) {
  for (int index = 0; index < Patterns; ++index) {
    QRadioButton* option = optPattern_[static_cast<std::size_t>(index)];
    if (index == pattern) option->setChecked(true);
    option->setFocusPolicy(index == pattern ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

void fraVariable::Show(const VariableValues& values, const DisplayFormat& format) {
  ShowEntries(values);
  ShowPattern(values.Pattern);
  chkVarDepth_->setChecked(values.DepthIsVariable);
  for (int k = 0; k < Rows; ++k) {
    const SegmentRow row = values.Row(k);
    const ToothRow& tooth = teeth_[static_cast<std::size_t>(k)];
    tooth.Label->setVisible(row.Shown);
    tooth.Pitch->setVisible(row.Shown);
    tooth.Depth->setVisible(row.Shown);
    tooth.Pitch->SetOpens(row.PitchOpens);
    tooth.Label->setCursor(tooth.Pitch->cursor());
    tooth.Depth->SetOpens(row.DepthOpens);
    Write(tooth.Pitch, values.PitchText(k, format));
    Write(tooth.Depth, values.DepthText(k, format));
  }
  Write(txtAverageSpace_, values.AveragePitchText(format));
  Write(txtAverageDepth_, values.AverageDepthText(format));
  Write(txtVariableNumTeeth_, values.NumTeethText());
  Write(txtNumberOfSegments_, values.NumSegmentsText());
  Write(txtSegmentSize_, values.SegmentSizeText(format));
}

void fraVariable::TellOwner(const QObject& box) {
  const std::string name = box.objectName().toStdString();
  if (const auto text = SegmentMustUse(name); !text.empty())
    emit Hovered(Translated(text), SegmentTopic(name));
}

void fraVariable::TellHover(const QObject* control, bool isOver) {
  const std::string name = isOver ? control->objectName().toStdString() : std::string();
  emit Hovered(Translated(SegmentHint(name)), SegmentTopic(name));
}

}  // namespace tarnwick
