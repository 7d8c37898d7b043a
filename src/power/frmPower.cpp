#include "power/frmPower.h"

#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "platform/qt/FeedIndexList.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/MeasureGrid.h"
#include "platform/qt/NamedControls.h"
#include "shell/modString.h"

namespace tarnwick {
namespace {

constexpr int Topic = 400;
constexpr int ColumnGap = 32;
constexpr int PercentRoom = 12;              // characters
constexpr int OkHint = 74, CancelHint = 75;  // numbered texts

bool IsEnter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

frmPower::frmPower(PowerEditor& editor, HelpViewer& help, std::function<void()> print, QWidget* parent)
    : FormWindow("frmPower", tr("Power Requirements"), Topic, help, parent),
      editor_(editor),
      boxes_(PowerEditorBoxes(), {}, [this](PowerBox box) {
        editor_.Click(box);
        ShowState();
      }) {
  auto* column = new QVBoxLayout;
  column->setSpacing(Margin);
  column->addWidget(MakeFigures());
  column->addWidget(MakeEstimates(std::move(print)));
  column->addStretch();
  Arrange(column, MakeFoot());
  ShowState();
}

// ---- making

/// The cutting conditions and the saw at the left, what comes of them at the right.
QGroupBox* frmPower::MakeFigures() {
  using enum PowerBox;
  auto* frame = new QGroupBox(tr("Power Requirements:"));
  frame->setObjectName("fraPower");
  auto* given = new MeasureGrid;
  boxes_.AddTo(*given, {RPMs, MaxDepth, FeedRate, SpecificEnergy});
  given->AddGap();
  boxes_.AddTo(*given, {HPSawOD, ToothPitch, HPPlateThick, HPToothWidth, SideClearance, HPGulletArea});
  auto* results = new MeasureGrid;
  boxes_.AddTo(*results, {SawVelocity, Bite, HorsePower, MaxFeedRate});

  auto* right = new QVBoxLayout;
  right->setSpacing(Margin);
  right->addLayout(results);
  right->addWidget(MakeGulletCapacity());
  right->addStretch();
  auto* columns = new QHBoxLayout(frame);
  columns->setSpacing(ColumnGap);
  columns->addLayout(given, 1);
  columns->addLayout(right, 1);
  MayStack(columns);
  return frame;
}

QGroupBox* frmPower::MakeGulletCapacity() {
  auto* frame = new QGroupBox(tr("Gullet Capacity:"));
  frame->setObjectName("fraGulletCapacity");
  frame->setAccessibleName(tr("Gullet Capacity"));  // else a frame in a frame is called like that
  cboFeedIndex_ = new FeedIndexList(tr("Gullet feed index"));
  connect(cboFeedIndex_, &FeedIndexList::activated, this, [this](int entry) {
    editor_.SelectFeedIndex(static_cast<std::size_t>(entry));
    ShowState();
  });
  QLabel* note =
      MakeLabel("lblFeedIndex", tr("Values based on the selected percent of the total gullet area."));
  note->setBuddy(cboFeedIndex_);
  note->setWordWrap(true);

  auto* grid = new MeasureGrid;
  boxes_.AddTo(*grid, {PowerBox::AreaBelowTip, PowerBox::Capacity});
  auto* column = new QVBoxLayout(frame);
  column->setSpacing(Gap);
  column->addWidget(cboFeedIndex_);
  column->addWidget(note);
  column->addLayout(grid);
  return frame;
}

QGroupBox* frmPower::MakeEstimates(std::function<void()> print) {
  auto* frame = new QGroupBox(tr("Estimated Feed Rates:"));
  frame->setObjectName("fraEstimates");
  cboPercent_ = new QComboBox;
  cboPercent_->setObjectName("cboPercent");
  cboPercent_->setAccessibleName(tr("Increase Feed Rate"));
  for (const std::string& entry : PowerEditor::PercentEntries()) cboPercent_->addItem(Translated(entry));
  cboPercent_->setEditable(true);
  cboPercent_->setInsertPolicy(QComboBox::NoInsert);
  cboPercent_->setCompleter(nullptr);  // "1" is not to become "10 Percent"
  cboPercent_->setMinimumContentsLength(PercentRoom);
  cboPercent_->lineEdit()->setAccessibleName(tr("Percent to increase the feed rate by"));
  cboPercent_->setCurrentIndex(-1);
  cboPercent_->installEventFilter(this);
  connect(cboPercent_, &QComboBox::editTextChanged, this,
          [this](const QString& text) { editor_.TypePercent(text.toStdString()); });
  QLabel* caption = MakeLabel("lblPercent", tr("Increase Feed Rate "));
  caption->setBuddy(cboPercent_);

  auto* row = new QHBoxLayout(frame);
  row->setSpacing(Gap);
  row->addWidget(caption);
  row->addWidget(cboPercent_);
  row->addWidget(MakeEstimateButton("cmdView", tr("View Results"), [this] { editor_.PressView(); }));
  row->addWidget(MakeEstimateButton("cmdPrint", tr("Print Results"), std::move(print)));
  row->addStretch();
  return frame;
}

QPushButton* frmPower::MakeEstimateButton(const char* name, const QString& caption,
                                          std::function<void()> command) {
  QPushButton* button = MakeButton(name, caption);
  button->setMinimumWidth(button->sizeHint().width() + 2 * Gap);
  connect(button, &QPushButton::clicked, this, [this, command = std::move(command)] {
    command();
    ShowState();
  });
  return button;
}

QHBoxLayout* frmPower::MakeFoot() {
  QPushButton* cmdOk = MakeButton("cmdOk", tr("&OK"));
  cmdOk->setDefault(true);
  connect(cmdOk, &QPushButton::clicked, this, [this] {
    editor_.PressOk();
    accept();
  });
  QPushButton* cmdCancel = MakeButton("cmdCancel", tr("&Cancel"));
  connect(cmdCancel, &QPushButton::clicked, this, &frmPower::reject);

  auto* foot = new QHBoxLayout;
  foot->setSpacing(Gap);
  foot->addStretch();
  for (const auto& [button, hint] : {std::pair{cmdOk, OkHint}, std::pair{cmdCancel, CancelHint}}) {
    button->setAccessibleDescription(Translated(NumberedText(hint)));
    button->setToolTip(Translated(NumberedText(hint)));
    foot->addWidget(button);
  }
  return foot;
}

// ---- what is done to it

void frmPower::reject() {
  editor_.PressCancel();
  FormWindow::reject();
}

/// Enter in the box for the percent ends the typing, not the window.
bool frmPower::eventFilter(QObject* watched, QEvent* event) {
  if (watched == cboPercent_ && event->type() == QEvent::FocusOut) LeavePercent();
  if (watched == cboPercent_ && IsEnter(*event)) {
    LeavePercent();
    return true;
  }
  return FormWindow::eventFilter(watched, event);
}

void frmPower::LeavePercent() {
  editor_.LeavePercent();
  ShowState();
}

void frmPower::ShowState() {
  boxes_.ShowTexts([this](PowerBox box) -> const std::string& { return editor_.Text(box); });
  cboFeedIndex_->ShowEntry(editor_.FeedIndexEntry());
  const QString percent = Translated(editor_.PercentText());
  if (cboPercent_->currentText() != percent) cboPercent_->setEditText(percent);
}

}  // namespace tarnwick
