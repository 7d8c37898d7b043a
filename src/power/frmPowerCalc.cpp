#include "power/frmPowerCalc.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/qt/FeedIndexList.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/MeasureGrid.h"
#include "platform/qt/NamedControls.h"

namespace tarnwick {
namespace {

constexpr int Topic = 430;
constexpr int TightRowGap = 2;  // seventeen rows, on the smallest screen too
constexpr int ButtonAir = 24;   // beside a caption, both sides
constexpr int FrameGap = 4;     // above and below what is in a frame

/// All as wide as the longest caption asks for: six of the usual width are too many for the smallest screen.
void MakeSlim(const QList<QPushButton*>& buttons) {
  int widest = 0;
  for (const QPushButton* button : buttons) {
    widest = std::max(widest, button->fontMetrics().horizontalAdvance(button->text()));
  }
  for (QPushButton* button : buttons) button->setFixedWidth(widest + ButtonAir);
}

QString Suffix(std::size_t side) { return QString("(%1)").arg(side); }

}  // namespace

frmPowerCalc::frmPowerCalc(PowerCalculator& calculator, HelpViewer& help, std::function<void()> print,
                           QWidget* parent)
    : FormWindow("frmPowerCalc", tr("Power Calculator"), Topic, help, parent),
      calculator_(calculator),
      boxes_{MakeBoxes(0, tr("%1 of the first calculation")),
             MakeBoxes(1, tr("%1 of the second calculation"))} {
  auto* sides = new QHBoxLayout;
  sides->setSpacing(Margin);
  sides->addWidget(MakeSide(0, tr("First Power Calculation:"), tr("Clear the first calculation")), 1);
  sides->addWidget(MakeSide(1, tr("Second Power Calculation:"), tr("Clear the second calculation")), 1);

  auto* foot = new QBoxLayout(QBoxLayout::LeftToRight);
  foot->setSpacing(Margin);
  foot->addWidget(MakeFeedIndex());
  QBoxLayout* buttons = MakeButtons(std::move(print));
  foot->addLayout(buttons, 1);
  foot->setAlignment(buttons, Qt::AlignBottom);
  MayStack(sides);
  MayStack(foot);
  Arrange(sides, foot);
  ShowState();
}

// ---- making

PowerBoxes frmPowerCalc::MakeBoxes(std::size_t side, const QString& spoken) {
  return {PowerCalculatorBoxes(), {Suffix(side), spoken}, [this, side](PowerBox box) {
            calculator_.Click(box, side);
            ShowState();
          }};
}

QGroupBox* frmPowerCalc::MakeSide(std::size_t side, const QString& caption, const QString& clear) {
  using enum PowerBox;
  auto* frame = new QGroupBox(caption);
  frame->setObjectName("fraPowerCalc" + Suffix(side));
  auto* grid = new MeasureGrid;
  grid->setVerticalSpacing(TightRowGap);
  boxes_[side].AddTo(
      *grid, {HPSawOD, Centers, Length, ToothPitch, NumTeeth, HPPlateThick, HPToothWidth, SideClearance, RPMs,
              SawVelocity, MaxDepth, FeedRate, SpecificEnergy, Bite, HPGulletArea, Capacity, HorsePower});
  QPushButton* cmdClear =
      AddCommand("cmdClear", tr("Clear "), [this, side] { calculator_.PressClear(side); });
  cmdClear->setObjectName("cmdClear" + Suffix(side));
  cmdClear->setAccessibleName(clear);

  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(Gap, FrameGap, Gap, FrameGap);
  column->setSpacing(FrameGap);
  column->addLayout(grid);
  column->addStretch();
  column->addWidget(cmdClear, 0, Qt::AlignRight);
  return frame;
}

QGroupBox* frmPowerCalc::MakeFeedIndex() {
  auto* frame = new QGroupBox(tr("Gullet Feed Index:"));
  frame->setObjectName("fraFeedIndex");
  const QString caption = tr("Percentage of usable gullet:");
  QLabel* label = MakeLabel("lblFeedIndex", caption);
  cboFeedIndex_ = new FeedIndexList(Spoken(caption));
  label->setBuddy(cboFeedIndex_);
  connect(cboFeedIndex_, &FeedIndexList::activated, this, [this](int entry) {
    calculator_.SelectFeedIndex(static_cast<std::size_t>(entry));
    ShowState();
  });
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(Gap, FrameGap, Gap, FrameGap);
  row->setSpacing(Gap);
  row->addWidget(label);
  row->addWidget(cboFeedIndex_);
  row->addStretch();
  return frame;
}

QBoxLayout* frmPowerCalc::MakeButtons(std::function<void()> print) {
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(Gap);
  buttons->setContentsMargins(0, 0, 0, 2 * FrameGap);  // in line with the list beside them
  buttons->addStretch();
  QPushButton* cmdExit = AddCommand("cmdExit", tr("E&xit"), [this] { reject(); });
  const QList<QPushButton*> all{AddCommand("cmdCopy", tr("&Copy"), [this] { calculator_.PressCopy(); }),
                                AddCommand("cmdNew", tr("&New"), [this] { calculator_.PressNew(); }),
                                AddCommand("cmdOpen", tr("&Open"), [this] { calculator_.PressOpen(); }),
                                AddCommand("cmdSave", tr("&Save"), [this] { calculator_.PressSave(); }),
                                AddCommand("cmdPrint", tr("&Print"), std::move(print)),
                                cmdExit};
  for (QPushButton* button : all) {
    if (button == cmdExit) buttons->addSpacing(Margin);
    buttons->addWidget(button);
  }
  MakeSlim(all);
  return buttons;
}

/// Enter presses the button that has the focus, and no other: none of them is what one has come here for.
QPushButton* frmPowerCalc::AddCommand(const char* name, const QString& caption,
                                      std::function<void()> command) {
  QPushButton* button = MakeButton(name, caption);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, command = std::move(command)] {
    command();
    ShowState();
  });
  return button;
}

// ---- what is done to it

void frmPowerCalc::reject() {
  calculator_.PressExit();
  FormWindow::reject();
}

void frmPowerCalc::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (isEnter && button)
    button->click();
  else
    FormWindow::keyPressEvent(event);
}

void frmPowerCalc::ShowState() {
  setWindowTitle(AsTitle(Translated(calculator_.Caption())));
  for (std::size_t side = 0; side < Sides; ++side) {
    boxes_[side].ShowTexts(
        [this, side](PowerBox box) -> const std::string& { return calculator_.Text(box, side); });
  }
  cboFeedIndex_->ShowEntry(calculator_.FeedIndexEntry());
}

}  // namespace tarnwick
