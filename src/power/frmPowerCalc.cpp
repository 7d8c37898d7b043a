#include "power/frmPowerCalc.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

#include "platform/qt/MeasureGrid.h"
#include "platform/qt/QtText.h"
#include "power/modFeedIndex.h"

namespace tarnwick {
namespace {

constexpr int Topic = 430;

QString Suffix(std::size_t side) { return QString("(%1)").arg(side); }

}  // namespace

frmPowerCalc::frmPowerCalc(PowerCalculator& calculator, HelpViewer& help, QWidget* parent)
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
  foot->addLayout(MakeButtons(), 1);
  Arrange(sides, foot);
  if (foot->sizeHint().width() > screen()->availableSize().width()) {
    foot->setDirection(QBoxLayout::TopToBottom);
  }
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
  boxes_[side].AddTo(
      *grid, {HPSawOD, Centers, Length, ToothPitch, NumTeeth, HPPlateThick, HPToothWidth, SideClearance, RPMs,
              SawVelocity, MaxDepth, FeedRate, SpecificEnergy, Bite, HPGulletArea, Capacity, HorsePower});
  QPushButton* cmdClear =
      MakeButton("cmdClear", tr("Clear "), [this, side] { calculator_.PressClear(side); });
  cmdClear->setObjectName("cmdClear" + Suffix(side));
  cmdClear->setAccessibleName(clear);

  auto* column = new QVBoxLayout(frame);
  column->setSpacing(Gap);
  column->addLayout(grid);
  column->addStretch();
  column->addWidget(cmdClear, 0, Qt::AlignRight);
  return frame;
}

QGroupBox* frmPowerCalc::MakeFeedIndex() {
  auto* frame = new QGroupBox(tr("Gullet Feed Index:"));
  frame->setObjectName("fraFeedIndex");
  const QString caption = tr("Percentage of usable gullet:");
  auto* label = new QLabel(caption);
  label->setObjectName("lblFeedIndex");
  label->setTextFormat(Qt::PlainText);
  cboFeedIndex_ = new QComboBox;
  cboFeedIndex_->setObjectName("cboFeedIndex");
  cboFeedIndex_->setAccessibleName(caption.chopped(1));
  for (const std::string& entry : FeedIndexEntries()) cboFeedIndex_->addItem(ToQt(entry));
  connect(cboFeedIndex_, &QComboBox::activated, this, [this](int entry) {
    calculator_.SelectFeedIndex(static_cast<std::size_t>(entry));
    ShowState();
  });
  auto* row = new QHBoxLayout(frame);
  row->setSpacing(Gap);
  row->addWidget(label);
  row->addWidget(cboFeedIndex_);
  row->addStretch();
  return frame;
}

QBoxLayout* frmPowerCalc::MakeButtons() {
  buttons_ = new QHBoxLayout;
  buttons_->setSpacing(Gap);
  buttons_->addStretch();
  buttons_->addWidget(MakeButton("cmdCopy", tr("&Copy"), [this] { calculator_.PressCopy(); }));
  buttons_->addWidget(MakeButton("cmdNew", tr("&New"), [this] { calculator_.PressNew(); }));
  buttons_->addWidget(MakeButton("cmdOpen", tr("&Open"), [this] { calculator_.PressOpen(); }));
  buttons_->addWidget(MakeButton("cmdSave", tr("&Save"), [this] { calculator_.PressSave(); }));
  cmdExit_ = MakeButton("cmdExit", tr("E&xit"), [this] { reject(); });
  buttons_->addWidget(cmdExit_);
  return buttons_;
}

/// Enter presses the button that has the focus, and no other: none of them is what one has come here for.
QPushButton* frmPowerCalc::MakeButton(const char* name, const QString& caption,
                                      std::function<void()> command) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setAccessibleName(QString(caption).remove('&').trimmed());
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, command = std::move(command)] {
    command();
    ShowState();
  });
  return button;
}

void frmPowerCalc::AddPrint(std::function<void()> print) {
  QPushButton* cmdPrint = MakeButton("cmdPrint", tr("&Print"), std::move(print));
  buttons_->insertWidget(buttons_->indexOf(cmdExit_), cmdPrint);
  setTabOrder(findChild<QPushButton*>("cmdSave"), cmdPrint);
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
  // "[*]" is a mark of the toolkit's unless it stands twice.
  setWindowTitle(ToQt(calculator_.Caption()).replace("[*]", "[*][*]"));
  for (std::size_t side = 0; side < Sides; ++side) {
    boxes_[side].ShowTexts(
        [this, side](PowerBox box) -> const std::string& { return calculator_.Text(box, side); });
  }
  const std::optional<std::size_t> entry = calculator_.FeedIndexEntry();
  cboFeedIndex_->setCurrentIndex(entry ? static_cast<int>(*entry) : -1);
}

}  // namespace tarnwick
