#include "shell/frmCfg.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QString>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>

#include "entry/modFormat.h"
#include "platform/qt/BoxArea.h"
#include "platform/qt/CenterForm.h"
#include "platform/qt/ColourSwatch.h"
#include "platform/qt/Language.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ReachableBar.h"
#include "shell/frmColor.h"

namespace tarnwick {
namespace {

constexpr int Topic = 600;  // of the manual
constexpr int Margin = 12;
constexpr int Gap = 8;            // between neighbours
constexpr int NumberRoom = 10;    // figures in a box for a number
constexpr int LongestLine = 255;  // characters: what the settings read back of a text
constexpr auto ClickWait = std::chrono::milliseconds(20);
constexpr int PageStep = 5;  // of the thickness

/// A caption without its colon, to be spoken.
QString Spoken(QString caption) {
  while (caption.endsWith(':') || caption.endsWith(' ')) caption.chop(1);
  return caption.remove('&');
}

template <class Control>
Control* Name(Control* control, const char* name, const QString& spoken = {}) {
  control->setObjectName(name);
  if (!spoken.isEmpty()) control->setAccessibleName(spoken);
  return control;
}

QGroupBox* Frame(const char* name, const QString& caption) { return Name(new QGroupBox(caption), name); }

/// Every blank of `text` is kept.
QLabel* Caption(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  return label;
}

/// Changes what `control` shows, and nothing else.
template <class Control, class Change>
void Quietly(Control* control, Change change) {
  const QSignalBlocker blocker(control);
  change(*control);
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

frmCfg::frmCfg(OptionsDialog& dialog, ColorDialog& colours, HelpViewer& help, QWidget* parent)
    : QDialog(parent), dialog_(dialog), colours_(colours), help_(help) {
  setObjectName("frmCfg");
  setWindowTitle(tr("Options"));
  setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);

  SSTab1_ = Name(new QTabWidget(this), "SSTab1", tr("Groups of options"));
  SSTab1_->addTab(MakeGeneralPage(), tr("&General"));
  SSTab1_->addTab(MakeColourPage(), tr("Co&lors"));
  SSTab1_->addTab(MakeOutputPage(), tr("&Printer and Dxf"));
  SSTab1_->addTab(MakeUserPage(), tr("&User Information"));
  NameScrollBars();

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(Margin, Margin, Margin, Margin);
  column->setSpacing(Margin);
  column->addWidget(SSTab1_, 1);
  column->addLayout(MakeButtons());

  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
          [this] { help_.ShowTopic(Topic); });
  connect(qApp, &QApplication::focusChanged, this, &frmCfg::LeaveBoxes);
  connect(qApp, &QApplication::focusChanged, this, &frmCfg::ShowFocus);
  ShowState();
  SSTab1_->setFocus();
  CenterForm(*this);
  installEventFilter(this);  // its size is settled ahead of its place
}

/// The focus goes elsewhere as well when the boxes are torn down; nobody is there to read them then.
frmCfg::~frmCfg() { disconnect(qApp, nullptr, this, nullptr); }

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
  QLabel* label = Caption(caption);
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
  QLabel* label = Name(Caption(caption), captionName, caption);
  auto* swatch = Name(new ColourSwatch, swatchName, Spoken(caption));
  label->setBuddy(swatch);
  label->setCursor(Qt::PointingHandCursor);
  label->installEventFilter(this);
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

/// The caption of a sample is as good as the sample.
bool frmCfg::eventFilter(QObject* watched, QEvent* event) {
  if (watched == this && event->type() == QEvent::Show && !fitted_) FitScreen();
  if (event->type() == QEvent::MouseButtonRelease) {
    const auto* click = static_cast<QMouseEvent*>(event);
    const auto* caption = qobject_cast<QLabel*>(watched);
    auto* swatch = caption ? qobject_cast<QAbstractButton*>(caption->buddy()) : nullptr;
    if (swatch && click->button() == Qt::LeftButton && caption->rect().contains(click->pos())) {
      swatch->setFocus(Qt::MouseFocusReason);
      swatch->click();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
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
  lblPrintThick_ = Name(Caption({}), "lblPrintThick");
  lblPrintThick_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblPrintThick_->setMinimumWidth(lblPrintThick_->fontMetrics().horizontalAdvance("00"));
  lblLineThickness_ = Name(new QLabel, "lblLineThickness", tr("Sample of the line"));
  lblLineThickness_->setAutoFillBackground(true);
  lblLineThickness_->setBackgroundRole(QPalette::WindowText);  // ink

  auto* grid = new QGridLayout(frame);
  grid->setHorizontalSpacing(Margin);
  grid->setVerticalSpacing(Gap);
  grid->addWidget(Caption(tr("1 = thin, 20 = thick")), 0, 0);
  grid->setColumnStretch(0, 1);
  grid->addWidget(hscPrintThick_, 1, 0);
  grid->addWidget(lblPrintThick_, 1, 1);
  grid->addWidget(lblLineThickness_, 2, 0, Qt::AlignVCenter);
  grid->setRowMinimumHeight(2, MostLineThick);  // nothing moves as the sample grows
  grid->addWidget(Caption(tr("Use scroll bar to adjust line thickness.")), 3, 0);
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
  lblDxfNumber_ = Name(Caption({}), "lblDxfNumber");
  lblDxfNumber_->setAlignment(Qt::AlignHCenter);

  auto* grid = new QGridLayout(frame);
  grid->setSpacing(Gap);
  grid->addWidget(hscDxfMemory_, 0, 0, 1, 2);
  grid->addWidget(Caption(tr("Small Files   (Faster)")), 1, 0);
  grid->addWidget(Caption(tr("Large Files    (Slower)")), 1, 1, Qt::AlignRight);
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
    form->addRow(Caption(row.Caption), text);
    connect(text, &QLineEdit::textChanged, this, [this, line = row.Line](const QString& typed) {
      dialog_.SetCustomerLine(line, typed.toStdString());
      ShowState();
    });
  }
  return Page({frame});
}

// ---- buttons

QLayout* frmCfg::MakeButtons() {
  cmdOk_ = Name(new QPushButton(tr("&OK"), this), "cmdOk", tr("OK"));
  cmdCancel_ = Name(new QPushButton(tr("&Cancel"), this), "cmdCancel", tr("Cancel"));
  cmdApply_ = Name(new QPushButton(tr("&Apply"), this), "cmdApply", tr("Apply"));
  cmdOk_->setDefault(true);
  connect(cmdOk_, &QPushButton::clicked, this, &frmCfg::PressOk);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmCfg::reject);
  connect(cmdApply_, &QPushButton::clicked, this, [this] {
    dialog_.PressApply();
    ShowState();
  });
  auto* row = new QHBoxLayout;
  row->setSpacing(Gap);
  row->addStretch();
  for (QPushButton* button : {cmdOk_, cmdCancel_, cmdApply_}) row->addWidget(button);
  return row;
}

void frmCfg::PressOk() {
  dialog_.PressOk();
  ShowState();
  if (!dialog_.IsOpen()) accept();
}

void frmCfg::reject() {
  dialog_.PressCancel();
  QDialog::reject();
}

/// Boxes are read when the focus has gone to another control of this window. The buttons see to it themselves
/// when they are pressed, and Cancel does not care.
void frmCfg::LeaveBoxes() {
  // A message in the midst of a click would take the release away from what is clicked.
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    QTimer::singleShot(ClickWait, this, &frmCfg::LeaveBoxes);
    return;
  }
  const QWidget* now = QApplication::focusWidget();
  if (!dialog_.IsOpen() || !now || now->window() != this) return;
  if (now == cmdOk_ || now == cmdCancel_ || now == cmdApply_) return;
  for (const OptionsDialog::NumberBox box : OptionsDialog::AllNumbers) {
    if (now != numbers_[static_cast<std::size_t>(box)]) dialog_.LeaveNumber(box);
  }
  ShowState();
}

// ---- showing

/// The pages need not shrink any more, as they scroll; what they ask for is asked for once, when all frames
/// have found their borders.
void frmCfg::FitScreen() {
  fitted_ = true;
  const QSize room = LayOutForScreen(*this);
  SSTab1_->updateGeometry();  // the pages do not tell it what they have learnt
  ResizeWithin(*this, room);
}

/// Each page has its own; which one it is can only be told by a name.
void frmCfg::NameScrollBars() {
  for (int i = 0; i < SSTab1_->count(); ++i) {
    const auto* page = qobject_cast<QScrollArea*>(SSTab1_->widget(i));
    const QString caption = SSTab1_->tabText(i).remove('&');
    page->horizontalScrollBar()->setAccessibleName(tr("Move %1 sideways").arg(caption));
    page->verticalScrollBar()->setAccessibleName(tr("Move %1 up and down").arg(caption));
  }
}

/// Tab may come to a control that is scrolled out of sight.
void frmCfg::ShowFocus() {
  QWidget* now = QApplication::focusWidget();
  auto* page = qobject_cast<QScrollArea*>(SSTab1_->currentWidget());
  if (now && page && page->isAncestorOf(now)) page->ensureWidgetVisible(now, 0, Margin);
}

void frmCfg::ShowState() {
  ShowGeneral();
  ShowColours();
  ShowOutput();
  cmdApply_->setEnabled(dialog_.ApplyEnabled());
}

void frmCfg::ShowGeneral() {
  const bool metric = dialog_.Shown().MainImpMetric == Metric;
  Quietly(optMetric_, [metric](QRadioButton& option) { option.setChecked(metric); });
  Quietly(optImperial_, [metric](QRadioButton& option) { option.setChecked(!metric); });
  for (const OptionsDialog::NumberBox box : OptionsDialog::AllNumbers) {
    const QString text = QString::fromStdString(dialog_.NumberText(box));
    Quietly(numbers_[static_cast<std::size_t>(box)], [&text](QLineEdit& shown) {
      if (shown.text() != text) shown.setText(text);  // else the cursor stays where it is
    });
  }
  Quietly(chkQuickClick_, [this](QCheckBox& check) { check.setChecked(dialog_.QuickClickTicked()); });
  const QString caption = Translated(dialog_.QuickClickCaption());
  chkQuickClick_->setText(caption);
  chkQuickClick_->setAccessibleName(caption);
  chkQuickClick_->setToolTip(Translated(dialog_.QuickClickHint()));
}

void frmCfg::ShowColours() {
  for (const ColourSample& sample : samples_) {
    sample.Swatch->ShowColour(dialog_.Shown().Display.*sample.Which);
  }
  const int number = dialog_.Shown().Calculation.DxfSaveColor;
  lblDxfColor_->ShowColour(DxfPaletteColour(number));
  lblDxfColor_->setText(QString::number(number));
}

void frmCfg::ShowOutput() {
  const int thickness = dialog_.Shown().PrintLineThick;
  Quietly(hscPrintThick_, [thickness](QScrollBar& bar) { bar.setValue(thickness); });
  lblPrintThick_->setText(QString::number(thickness));
  lblLineThickness_->setFixedHeight(thickness);
  Quietly(chkPrintPowerReq_, [this](QCheckBox& check) { check.setChecked(dialog_.Shown().PrintPowerReq); });
  Quietly(hscDxfMemory_, [this](QScrollBar& bar) { bar.setValue(dialog_.DxfPosition()); });
  lblDxfNumber_->setText(Translated(dialog_.DxfNumberText()));
}

}  // namespace tarnwick
