#include "machine/frmBandCalc.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/DrawingSurface.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/HintLine.h"
#include "platform/qt/Language.h"
#include "platform/qt/MeasureBox.h"
#include "platform/qt/MeasureGrid.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/QtText.h"

namespace tarnwick {
namespace {

constexpr int Topic = 510;
constexpr double TitleScale = 1.4;  // of the window's font

QString ArrayName(const char* array, int index) { return QString("%1(%2)").arg(array).arg(index); }

/// The surface of the machine, as high as there is room, but never so narrow that the machine would stick out
/// of it.
class PictureFrame final : public QWidget {
 public:
  explicit PictureFrame(QWidget* picture) : picture_(picture) {
    picture->setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(280, 360);
  }
  [[nodiscard]] QSize sizeHint() const override { return {440, 560}; }

 protected:
  void resizeEvent(QResizeEvent*) override {
    constexpr double LeastShape = 0.72;  // width to height
    const int high = std::min(height(), static_cast<int>(width() / LeastShape));
    picture_->setGeometry(0, (height() - high) / 2, width(), high);
  }

 private:
  QWidget* picture_;
};

}  // namespace

frmBandCalc::frmBandCalc(BandCalculator& calculator, HelpViewer& help, QWidget* parent)
    : FormWindow("frmBandCalc", tr("Band Length Calculator"), Topic, help, parent), calculator_(calculator) {
  QLabel* lblTitle = MakeLabel("lblTitle", tr("Band Length Calculator"));
  QFont large = lblTitle->font();
  large.setPointSizeF(large.pointSizeF() * TitleScale);
  large.setBold(true);
  lblTitle->setFont(large);

  auto* right = new QVBoxLayout;
  right->setSpacing(Margin);
  right->addWidget(lblTitle);
  right->addWidget(MakeMachine());
  right->addWidget(MakeLengths());
  AlignBoxes();
  right->addStretch();
  auto* row = new QHBoxLayout;
  row->setSpacing(Margin);
  row->addWidget(MakePicture(), 1);  // what the window is pulled wider goes to the picture
  row->addLayout(right);
  Arrange(row, MakeFoot());
  lblStatus_->Watch(*this);
  ShowState();
  boxes_.front().Shown->setFocus();
}

// ---- making

QWidget* frmBandCalc::MakePicture() {
  picBand_ = new DrawingSurface;
  picBand_->setObjectName("picBand");
  picBand_->setAccessibleName(tr("Picture of the machine"));
  picBand_->setFocusPolicy(Qt::NoFocus);  // it is looked at
  picBand_->setAttribute(Qt::WA_TransparentForMouseEvents);
  picBand_->SetDrawing([this](Canvas& canvas) { calculator_.DrawPicture(canvas); });
  return new PictureFrame(picBand_);
}

QGroupBox* frmBandCalc::MakeMachine() {
  auto* frame = new QGroupBox(tr("Machine"));
  auto* grid = new MeasureGrid(frame);
  grids_.push_back(grid);
  for (const MachineBox& box : MachineBoxes()) {
    const QString caption = Translated(box.Caption);
    MeasureBox* shown =
        grid->AddBox(ToQt(box.Control), caption, Spoken(caption), MeasureGrid::Press::BoxAndCaption);
    SetTopic(shown, RowOf(box.Asked).HelpTopic);
    connect(shown, &MeasureBox::Pressed, this, [this, measure = box.Asked] {
      calculator_.Click(measure);
      ShowState();
    });
    boxes_.push_back({box.Asked, shown});
  }
  return frame;
}

QGroupBox* frmBandCalc::MakeLengths() {
  auto* frame = new QGroupBox(tr("Band Length"));
  auto* grid = new QGridLayout(frame);
  grids_.push_back(grid);
  grid->setHorizontalSpacing(Gap);
  grid->setVerticalSpacing(RowGap);
  grid->setColumnStretch(1, 1);
  for (int row = OwnLength; row < LengthRows; ++row) {
    grid->addWidget(MakeCheck(row), row, 0);
    grid->addWidget(MakeLength(row), row, 1);
  }
  return frame;
}

/// The boxes of both frames begin in one line.
void frmBandCalc::AlignBoxes() {
  int captions = 0;
  for (const QGridLayout* grid : grids_) {
    for (int row = 0; row < grid->rowCount(); ++row) {
      const QLayoutItem* caption = grid->itemAtPosition(row, 0);
      if (caption) captions = std::max(captions, caption->sizeHint().width());
    }
  }
  for (QGridLayout* grid : grids_) grid->setColumnMinimumWidth(0, captions);
}

/// Together they are a choice of one; which of them is ticked the calculator says.
QCheckBox* frmBandCalc::MakeCheck(int row) {
  const QString caption = Translated(LengthCaptions[row]);
  auto* check = new QCheckBox(caption);
  check->setObjectName(ArrayName("chkLength", row));
  check->setAccessibleName(tr("Take %1").arg(Spoken(caption)));
  connect(check, &QCheckBox::clicked, this, [this, row] {
    calculator_.TickLength(row);
    ShowState();
  });
  chkLength_[static_cast<std::size_t>(row)] = check;
  return check;
}

MeasureBox* frmBandCalc::MakeLength(int row) {
  auto* box = new MeasureBox;
  box->setObjectName(ArrayName("txtLength", row));
  box->setAccessibleName(Spoken(Translated(LengthCaptions[row])));
  box->SetOpens(row == OwnLength);
  if (row == OwnLength) {
    SetTopic(box, RowOf(Parameter::BandLength).HelpTopic);
  } else {
    box->PassEnterOn();
  }
  connect(box, &MeasureBox::Pressed, this, [this, row] {
    calculator_.ClickLength(row);
    ShowState();
  });
  txtLength_[static_cast<std::size_t>(row)] = box;
  return box;
}

QVBoxLayout* frmBandCalc::MakeFoot() {
  lblStatus_ =
      new HintLine([](const QString& control) { return Translated(BandCalcHint(control.toStdString())); });
  lblStatus_->setObjectName("lblStatus");
  auto* foot = new QVBoxLayout;
  foot->setSpacing(Gap);
  foot->addLayout(MakeButtons());
  foot->addWidget(lblStatus_);
  return foot;
}

QHBoxLayout* frmBandCalc::MakeButtons() {
  QPushButton* cmdExportDxf = MakeButton("cmdExportDxf", tr("&Export to Dxf..."));
  QPushButton* cmdOk = MakeButton("cmdOk", tr("&OK"));
  QPushButton* cmdCancel = MakeButton("cmdCancel", tr("&Cancel"));
  cmdOk->setDefault(true);
  connect(cmdExportDxf, &QPushButton::clicked, this, [this] {
    calculator_.PressExportDxf();
    ShowState();
  });
  connect(cmdOk, &QPushButton::clicked, this, [this] {
    calculator_.PressOk();
    accept();
  });
  connect(cmdCancel, &QPushButton::clicked, this, &frmBandCalc::reject);

  auto* row = new QHBoxLayout;
  row->setSpacing(Gap);
  row->addWidget(cmdExportDxf);
  row->addStretch();
  row->addWidget(cmdOk);
  row->addWidget(cmdCancel);
  return row;
}

// ---- what is done to it

void frmBandCalc::reject() {
  calculator_.PressCancel();
  FormWindow::reject();
}

void frmBandCalc::ShowState() {
  for (const Box& box : boxes_) box.Shown->setText(ToQt(calculator_.Text(box.Measure)));
  for (int row = OwnLength; row < LengthRows; ++row) {
    const auto i = static_cast<std::size_t>(row);
    txtLength_[i]->setText(ToQt(calculator_.LengthText(row)));
    chkLength_[i]->setChecked(calculator_.IsTicked(row));  // which is no click
  }
  picBand_->Redraw();
}

}  // namespace tarnwick
