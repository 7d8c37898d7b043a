// The pages of the options.

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "platform/qt/BoxArea.h"
#include "platform/qt/Caption.h"
#include "platform/qt/ColourSwatch.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ReachableBar.h"
#include "shell/frmCfg.h"
#include "shell/frmColor.h"

namespace tarnwick {
namespace {

constexpr int NumberRoom = 10;    // figures in a box for a number
constexpr int LongestLine = 255;  // characters: what the settings read back of a text
constexpr int PageStep = 5;       // of the thickness

template <class Control>
Control* Name(Control* control, const char* name, const QString& spoken = {}) {
  control->setObjectName(name);
  if (!spoken.isEmpty()) control->setAccessibleName(spoken);
  return control;
}

QGroupBox* Frame(const char* name, const QString& caption) { return Name(new QGroupBox(caption), name); }

/// Every blank of `text` is kept.
QLabel* PlainLabel(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  return label;
}

/// A page of frames one below the other, which scrolls where the letters are too large for the screen.
QWidget* Page(std::initializer_list<QWidget*> frames) {
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(Margin, Margin, Margin, Margin);
  column->setSpacing(Margin);
  for (QWidget* frame : frames) column->addWidget(frame);
  column->addStretch();
  return new BoxArea(page);
}

}  // namespace

// ---- General

QWidget* frmCfg::MakeGeneralPage() {
  using NumberBox = OptionsDialog::NumberBox;
  return Page(
      {MakeUnits(),
       MakeNumber(NumberBox::DecimalPlaces, Frame("Frame1", tr("Accuracy:")), "txtDecimalPlaces",
                  tr("Number of Decimal Places Used For Calculations:")),
       MakeNumber(NumberBox::DisplayPlaces, Frame("fraDecimal", tr("Decimal Places:")), "txtDisplayPlaces",
                  tr("Number of Decimal Places Used For Displaying Values:")),
       MakeNumber(NumberBox::DisplayScale, Frame("fraScales", tr("Scaling Factors")), "txtDisplayScale",
                  tr("Change to Alter Scaling Factor of Graphics to be Displayed")),
       MakeQuickClick()});
}

QGroupBox* frmCfg::MakeUnits() {
  QGroupBox* frame = Frame("fraUnits", tr("Units"));
  optImperial_ = Name(new QRadioButton(tr("Imperial")), "optImperial", tr("Imperial"));
  optMetric_ = Name(new QRadioButton(tr("Metric")), "optMetric", tr("Metric"));
  auto* row = new QHBoxLayout(frame);
  row->setSpacing(2 * Margin);
  row->addWidget(optImperial_);
  row->addWidget(optMetric_);
  row->addStretch();
  connect(optMetric_, &QRadioButton::toggled, this, [this](bool metric) {
    dialog_.SetMetric(metric);
    ShowState();
  });
  return frame;
}

QGroupBox* frmCfg::MakeNumber(OptionsDialog::NumberBox box, QGroupBox* frame, const char* name,
                              const QString& caption) {
  auto* text = Name(new QLineEdit, name, Spoken(caption));
  text->setAlignment(Qt::AlignRight);
  text->setFixedWidth(NumberRoom * text->fontMetrics().horizontalAdvance('0'));
  QLabel* label = PlainLabel(caption);
  label->setBuddy(text);
  auto* row = new QHBoxLayout(frame);
  row->setSpacing(2 * Margin);
  row->addWidget(label);
  row->addStretch();
  row->addWidget(text);
  connect(text, &QLineEdit::textChanged, this, [this, box](const QString& typed) {
    dialog_.TypeNumber(box, typed.toStdString());
    ShowState();
  });
  numbers_[static_cast<std::size_t>(box)] = text;
  return frame;
}

QGroupBox* frmCfg::MakeQuickClick() {
  QGroupBox* frame = Frame("Frame2", tr("Bandsaw Information Window"));
  chkQuickClick_ = Name(new QCheckBox, "chkQuickClick");
  (new QVBoxLayout(frame))->addWidget(chkQuickClick_);
  connect(chkQuickClick_, &QCheckBox::toggled, this, [this](bool ticked) {
    dialog_.TickQuickClick(ticked);
    ShowState();
  });
  return frame;
}

// ---- Colors

QWidget* frmCfg::MakeColourPage() {
  struct Row {
    const char* CaptionName;
    QString Caption;
    const char* SwatchName;
    Colour DisplaySettings::*Which;
  };
  const Row rows[] = {
      {"lblBackColor", tr("Background Color of View Windows:"), "lblBackSample",
       &DisplaySettings::BackGroundColor},
      {"lblSawColor", tr("Saw Outline Color in View Windows:"), "lblSawSample",
       &DisplaySettings::SawLineColor},
      {"lblTextColor", tr("Text Color in View Windows:"), "lblTextSample", &DisplaySettings::TextColor},
      {"lblCenterColor", tr("Center Line Color in View Windows:"), "lblCenterSample",
       &DisplaySettings::CenterLineColor},
      {"lblZoomColor", tr("Right Mouse Button Zoom Window Color:"), "lblZoomSample",
       &DisplaySettings::ZoomWindowColor},
  };
  QGroupBox* frame = Frame("fracolors", tr("Colors"));
  auto* grid = new QGridLayout(frame);
  grid->setSpacing(Gap);
  grid->setColumnStretch(0, 1);
  for (const Row& row : rows) {
    ColourSwatch* swatch = AddColour(grid, row.CaptionName, row.Caption, row.SwatchName);
    connect(swatch, &ColourSwatch::clicked, this, [this, which = row.Which] {
      dialog_.PickColour(which, colours_);
      ShowState();
    });
    samples_.push_back({swatch, row.Which});
  }
  lblDxfColor_ = AddColour(grid, "lblDxfSaveColor", tr("Color to save Dxf files with :"), "lblDxfColor");
  connect(lblDxfColor_, &ColourSwatch::clicked, this, &frmCfg::PickDxfColour);
  return Page({frame});
}

ColourSwatch* frmCfg::AddColour(QGridLayout* grid, const char* captionName, const QString& caption,
                                const char* swatchName) {
  auto* swatch = Name(new ColourSwatch, swatchName, Spoken(caption));
  auto* label = Name(new BoxCaption(caption, swatch), captionName, caption);
  label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label->setBuddy(swatch);
  label->setCursor(Qt::PointingHandCursor);
  connect(label, &BoxCaption::Pressed, swatch, &ColourSwatch::click);
  const int row = grid->rowCount();
  grid->addWidget(label, row, 0);
  grid->addWidget(swatch, row, 1);
  return swatch;
}

void frmCfg::PickDxfColour() {
  int number = dialog_.Shown().Calculation.DxfSaveColor;
  if (GetDxfColor(number, help_, this)) dialog_.SetDxfSaveColor(number);
  ShowState();
}

// ---- Printer and Dxf

QWidget* frmCfg::MakeOutputPage() {
  return Page({MakeLineThickness(), MakePowerRequirements(), MakeDxfSize()});
}

QGroupBox* frmCfg::MakeLineThickness() {
  QGroupBox* frame = Frame("fraLineThick", tr("Printer Line Thickness"));
  hscPrintThick_ = Name(new ReachableBar, "hscPrintThick", tr("Printer line thickness"));
  hscPrintThick_->setRange(LeastLineThick, MostLineThick);
  hscPrintThick_->setPageStep(PageStep);
  lblPrintThick_ = MakeLabel("lblPrintThick", {});
  lblPrintThick_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblPrintThick_->setMinimumWidth(lblPrintThick_->fontMetrics().horizontalAdvance("00"));
  lblLineThickness_ = Name(new QLabel, "lblLineThickness", tr("Sample of the line"));
  lblLineThickness_->setAutoFillBackground(true);
  lblLineThickness_->setBackgroundRole(QPalette::WindowText);  // ink

  auto* grid = new QGridLayout(frame);
  grid->setHorizontalSpacing(Margin);
  grid->setVerticalSpacing(Gap);
  grid->addWidget(PlainLabel(tr("1 = thin, 20 = thick")), 0, 0);
  grid->setColumnStretch(0, 1);
  grid->addWidget(hscPrintThick_, 1, 0);
  grid->addWidget(lblPrintThick_, 1, 1);
  grid->addWidget(lblLineThickness_, 2, 0, Qt::AlignVCenter);
  grid->setRowMinimumHeight(2, MostLineThick);  // nothing moves as the sample grows
  grid->addWidget(PlainLabel(tr("Use scroll bar to adjust line thickness.")), 3, 0);
  connect(hscPrintThick_, &QScrollBar::valueChanged, this, [this](int thickness) {
    dialog_.SetPrintLineThick(thickness);
    ShowState();
  });
  return frame;
}

QGroupBox* frmCfg::MakePowerRequirements() {
  QGroupBox* frame = Frame("fraPrintPowerReq", tr("Power Requirements"));
  const QString caption = tr("Include Power Requirements on Printout");
  chkPrintPowerReq_ = Name(new QCheckBox(caption), "chkPrintPowerReq", caption);
  (new QVBoxLayout(frame))->addWidget(chkPrintPowerReq_);
  connect(chkPrintPowerReq_, &QCheckBox::toggled, this, [this](bool print) {
    dialog_.SetPrintPowerReq(print);
    ShowState();
  });
  return frame;
}

QGroupBox* frmCfg::MakeDxfSize() {
  QGroupBox* frame = Frame("fraDxfMemory", tr("Dxf File Size"));
  hscDxfMemory_ = Name(new ReachableBar, "hscDxfMemory", tr("Size of Dxf files"));
  hscDxfMemory_->setRange(OptionsDialog::LeastDxfPosition, OptionsDialog::MostDxfPosition);
  hscDxfMemory_->setPageStep(1);
  lblDxfNumber_ = MakeLabel("lblDxfNumber", {});
  lblDxfNumber_->setAlignment(Qt::AlignHCenter);

  auto* grid = new QGridLayout(frame);
  grid->setSpacing(Gap);
  grid->addWidget(hscDxfMemory_, 0, 0, 1, 2);
  grid->addWidget(PlainLabel(tr("Small Files   (Faster)")), 1, 0);
  grid->addWidget(PlainLabel(tr("Large Files    (Slower)")), 1, 1, Qt::AlignRight);
  grid->addWidget(lblDxfNumber_, 2, 0, 1, 2);
  connect(hscDxfMemory_, &QScrollBar::valueChanged, this, [this](int position) {
    dialog_.SetDxfPosition(position);
    ShowState();
  });
  return frame;
}

// ---- User Information

QWidget* frmCfg::MakeUserPage() {
  struct Row {
    const char* Name;
    QString Caption;
    std::string CustomerLines::*Line;
  };
  const Row rows[] = {
      {"txtName", tr("Name:"), &CustomerLines::Name},
      {"txtAddress", tr("Address:"), &CustomerLines::Address},
      {"txtCity", tr("City:"), &CustomerLines::City},
      {"txtProvince", tr("Prov/State:"), &CustomerLines::Province},
      {"txtCountry", tr("Country:"), &CustomerLines::Country},
      {"txtPostalCode", tr("Postal/Zip Code:"), &CustomerLines::PostalCode},
      {"txtPhone", tr("Phone:"), &CustomerLines::Phone},
      {"txtFax", tr("Fax:"), &CustomerLines::Fax},
      {"txtEmail", tr("E-mail:"), &CustomerLines::Email},
  };
  QGroupBox* frame = Frame("fraCustomer", tr("User Information:"));
  auto* form = new QFormLayout(frame);
  form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  form->setHorizontalSpacing(Gap);
  form->setVerticalSpacing(Gap);
  for (const Row& row : rows) {
    auto* text = Name(new QLineEdit(ToQt(dialog_.Shown().Customer.*row.Line)), row.Name, Spoken(row.Caption));
    text->setMaxLength(LongestLine);
    form->addRow(PlainLabel(row.Caption), text);
    connect(text, &QLineEdit::textChanged, this, [this, line = row.Line](const QString& typed) {
      dialog_.SetCustomerLine(line, typed.toStdString());
      ShowState();
    });
  }
  return Page({frame});
}

}  // namespace tarnwick
