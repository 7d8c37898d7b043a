#include "shell/frmColor.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QString>
#include <QVBoxLayout>
#include <array>

#include "platform/qt/CenterForm.h"
#include "platform/qt/ColourSwatch.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/NamedControls.h"

namespace tarnwick {
namespace {

constexpr int Columns = 5;
constexpr int MarkHeight = 3;  // of the bar below the marked sample

/// In words, for people who listen.
std::array<QString, DxfColours> SpokenColours() {
  return {frmColor::tr("By block"),  frmColor::tr("Red"),   frmColor::tr("Yellow"),
          frmColor::tr("Green"),     frmColor::tr("Cyan"),  frmColor::tr("Blue"),
          frmColor::tr("Magenta"),   frmColor::tr("White"), frmColor::tr("Dark grey"),
          frmColor::tr("Light grey")};
}

}  // namespace

frmColor::frmColor(DxfColorChoice& choice, HelpViewer& help, QWidget* parent)
    : QDialog(parent), choice_(choice) {
  setObjectName("frmColor");
  setWindowTitle(tr("Dxf Color"));
  setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(Margin, Margin, Margin, Margin);
  column->setSpacing(Margin);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addLayout(MakeSamples());
  column->addLayout(MakeButtons());
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
          [&help] { help.ShowContents(); });
  samples_->button(choice_.Marked())->setFocus();
  CenterForm(*this);
}

QLayout* frmColor::MakeSamples() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Gap / 2);
  grid->setVerticalSpacing(Gap);
  samples_ = new QButtonGroup(this);  // arrow keys go from one to the next
  const std::array<QString, DxfColours> spoken = SpokenColours();
  for (int number = 0; number < DxfColours; ++number) {
    auto* sample = new ColourSwatch(this);
    sample->setObjectName(QString("lblColor(%1)").arg(number));
    sample->setText(QString::number(number));
    sample->setAccessibleName(tr("%1 %2").arg(number).arg(spoken[static_cast<std::size_t>(number)]));
    sample->ShowColour(DxfPaletteColour(number));
    sample->setCheckable(true);
    samples_->addButton(sample, number);
    grid->addWidget(sample, number / Columns, number % Columns);
  }
  samples_->button(choice_.Marked())->setChecked(true);

  lblSendColor_ = new QLabel(this);
  lblSendColor_->setObjectName("lblSendColor");
  lblSendColor_->setAutoFillBackground(true);
  lblSendColor_->setBackgroundRole(QPalette::WindowText);
  lblSendColor_->setAttribute(Qt::WA_TransparentForMouseEvents);
  connect(samples_, &QButtonGroup::idToggled, this, [this](int number, bool on) {
    if (!on) return;
    choice_.Mark(number);
    ShowMark();
  });
  return grid;
}

QLayout* frmColor::MakeButtons() {
  QPushButton* cmdOk = MakeButton("cmdOk", tr("&OK"));
  cmdOk->setDefault(true);
  connect(cmdOk, &QPushButton::clicked, this, [this] {
    choice_.PressOk();
    accept();
  });
  QPushButton* cmdCancel = MakeButton("cmdCancel", tr("&Cancel"));
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* row = new QHBoxLayout;
  row->setSpacing(Gap);
  row->addStretch();
  row->addWidget(cmdOk);
  row->addWidget(cmdCancel);
  return row;
}

/// The mark lies below its sample, wherever the layout puts that.
bool frmColor::event(QEvent* event) {
  const bool done = QDialog::event(event);
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) ShowMark();
  return done;
}

void frmColor::ShowMark() {
  const QRect sample = samples_->button(choice_.Marked())->geometry();
  lblSendColor_->setGeometry(sample.x() + MarkHeight, sample.bottom() + 1, sample.width() - 2 * MarkHeight,
                             MarkHeight);
  lblSendColor_->setAccessibleName(tr("Chosen: %1").arg(choice_.Marked()));
}

bool GetDxfColor(int& colour, HelpViewer& help, QWidget* parent) {
  const int before = colour;
  DxfColorChoice choice(before);
  frmColor(choice, help, parent).exec();
  colour = choice.Chosen();
  return colour != before;
}

}  // namespace tarnwick
