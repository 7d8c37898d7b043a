#include "window/frmMain.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>
#include <QWindow>
#include <chrono>

#include "platform/qt/Language.h"
#include "platform/qt/NamedControls.h"
#include "shell/frmAnime.h"
#include "shell/modString.h"
#include "shell/modWindowSize.h"
#include "window/fraDisplay.h"
#include "window/fraGeneral.h"
#include "window/fraMain.h"
#include "window/fraToothShape.h"
#include "window/fraVariable.h"

namespace tarnwick {
namespace {

constexpr auto ClockStep = std::chrono::seconds(1);
constexpr int ImperialHint = 43, MetricHint = 44;

WindowSize SizeOf(const QSize& size) { return {size.width(), size.height()}; }
QSize ToQt(const WindowSize& size) { return {size.Width, size.Height}; }

}  // namespace

frmMain::frmMain(Program& program, const WindowHosts& hosts)
    : program_(program),
      design_(program.Design),
      hosts_(hosts),
      editors_(program, hosts.Dialogs, *this),
      variable_(program, hosts.Dialogs, *this),
      documents_({program, hosts.Dialogs, *this, *this}),
      commands_(program.Out.Say) {
  setObjectName("frmMain");
  MakeCentre();
  MakeMenu();
  MakeStatusBar();
  BindPanels();
  ShowColours();
  ShowCaption();
  ShowTeethDirection();
  ShowUnits();
  fraMain_->ShowQuickClick(design_.Settings.QuickClick);
  ShowRecentFiles();
  FillWorkArea();
  ShowView(design_.ViewOneToOne());
  ShowPanel(Panel::Main);
  ShowSawInfo();
  FillBoxes();
  display_->setFocus();
}

/// What the parts say while they go would reach a window that is no longer one.
frmMain::~frmMain() {
  for (QObject* part : findChildren<QObject*>()) part->disconnect(this);
}

// ---- making

void frmMain::MakeCentre() {
  auto* centre = new QWidget(this);
  auto* grid = new QGridLayout(centre);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  display_ = new fraDisplay(design_, centre);
  frmAnime_ = new frmAnime(display_->Surface(), program_.Out.Time);
  grid->addWidget(display_, 0, 0);
  grid->addWidget(MakePanels(), 0, 1);
  grid->addWidget(MakeHintStrip(), 1, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(0, 1);
  setCentralWidget(centre);
}

/// One panel shows at a time; the units stand below whichever does.
QWidget* frmMain::MakePanels() {
  panelColumn_ = new QWidget(this);
  auto* column = new QVBoxLayout(panelColumn_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  panels_ = new QStackedWidget(panelColumn_);
  fraMain_ = new fraMain(panels_);
  fraToothShape_ = new fraToothShape(panels_);
  fraGeneral_ = new fraGeneral(panels_);
  fraVariable_ = new fraVariable(panels_);
  for (QWidget* panel : {static_cast<QWidget*>(fraMain_), static_cast<QWidget*>(fraToothShape_),
                         static_cast<QWidget*>(fraGeneral_), static_cast<QWidget*>(fraVariable_)}) {
    panels_->addWidget(panel);
  }
  column->addWidget(panels_, 1);
  column->addWidget(MakeUnits());
  return panelColumn_;
}

QWidget* frmMain::MakeUnits() {
  auto* units = new QWidget(panelColumn_);
  units->setObjectName("fraUnits");
  units->installEventFilter(this);
  auto* row = new QHBoxLayout(units);
  const auto add = [&](const char* name, const QString& caption, int hint) {
    auto* option = new QRadioButton(caption, units);
    option->setObjectName(name);
    option->setAccessibleName(Spoken(caption));
    option->setAccessibleDescription(Translated(NumberedText(hint)));
    option->installEventFilter(this);
    row->addWidget(option);
    return option;
  };
  row->addStretch();
  optImperial_ = add("optImperial", tr("&Imperial"), ImperialHint);
  optMetric_ = add("optMetric", tr("&Metric"), MetricHint);
  row->addStretch();
  connect(optImperial_, &QRadioButton::clicked, this, [this] { TakeUnits(Imperial); });
  connect(optMetric_, &QRadioButton::clicked, this, [this] { TakeUnits(Metric); });
  return units;
}

/// The line below the drawing that says what the control under the mouse is for.
QWidget* frmMain::MakeHintStrip() {
  hintStrip_ = new QWidget(this);
  hintStrip_->setAutoFillBackground(true);
  hintRow_ = new QGridLayout(hintStrip_);
  hintRow_->setContentsMargins(6, 2, 6, 2);
  lblStatus_ = MakeLabel("lblStatus", {});
  lblStatus_->setAccessibleName(tr("Status"));
  lblHint_ = MakeLabel("lblHint", {});
  lblHint_->setAccessibleName(tr("Hint"));
  lblHint_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  hintRow_->addWidget(lblStatus_, 0, 0);
  hintRow_->addWidget(lblHint_, 0, 1);
  hintRow_->setColumnStretch(1, 1);
  return hintStrip_;
}

/// A panel of the status bar: a text that is read, by eye or by ear, and never has the focus.
QLineEdit* frmMain::AddPanel(const char* name, const QString& caption, const char* widest) {
  auto* panel = new QLineEdit(this);
  panel->setObjectName(name);
  panel->setAccessibleName(caption);
  panel->setReadOnly(true);
  panel->setFrame(false);
  panel->setFocusPolicy(Qt::NoFocus);
  panel->setContextMenuPolicy(Qt::NoContextMenu);
  panel->setCursor(Qt::ArrowCursor);
  QPalette quiet = panel->palette();
  quiet.setColor(QPalette::Base, Qt::transparent);
  panel->setPalette(quiet);
  panel->setFixedWidth(panel->fontMetrics().horizontalAdvance(widest) +
                       panel->fontMetrics().averageCharWidth() * 2);
  return panel;
}

void frmMain::MakeStatusBar() {
  txtScale_ = AddPanel("txtScale", tr("Scale"), "300.000000");
  panTimeDate_ = AddPanel("panTimeDate", tr("Time and date"), "00:00 pm  Mmm 00, 0000");
  panTimeDate_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* caption = new QLabel(tr("Scale"), this);
  caption->setContentsMargins(caption->fontMetrics().averageCharWidth(), 0, 0, 0);
  statusBar()->addWidget(caption);
  statusBar()->addWidget(txtScale_);
  statusBar()->addPermanentWidget(panTimeDate_);
  ShowTimeDate();
  tmrClock_.setObjectName("tmrClock");
  connect(&tmrClock_, &QTimer::timeout, this, &frmMain::ShowTimeDate);
  tmrClock_.start(ClockStep);
}

void frmMain::BindEditor(FieldPanel& panel, void (Editors::*ok)(), void (Editors::*cancel)()) {
  connect(&panel, &FieldPanel::Pressed, this, [this, &panel](const PanelField& field) {
    Run(field.Control, [&] {
      if (editors_.ClickBox(field)) panel.ShowAccepted(field, design_.Saw, design_.Format());
    });
  });
  connect(&panel, &FieldPanel::Typed, this, [this](const PanelField& field, const QString& text) {
    editors_.TypeInto(field, text.toStdString());
  });
  connect(&panel, &FieldPanel::TypingEnded, this, [this] { FillBoxes(); });  // "12x" saws are 12
  connect(&panel, &FieldPanel::Ticked, this, [this](bool ticked) {
    Run("chkBothEdges", [&] { editors_.TickBothEdges(ticked); });
    FillBoxes();  // a click turns the mark by itself, whatever comes of the command
  });
  connect(&panel, &FieldPanel::Accepted, this, [this, ok] { Run("cmdOk", [&] { (editors_.*ok)(); }); });
  connect(&panel, &FieldPanel::Cancelled, this,
          [this, cancel] { Run("cmdCancel", [&] { (editors_.*cancel)(); }); });
  connect(&panel, &FieldPanel::Hovered, this, &frmMain::ShowHint);
  connect(&panel, &FieldPanel::ButtonHovered, this, [this](int text) { ShowStatus(NumberedText(text), ""); });
}

/// Ticks, options and the list turn by themselves, whatever comes of the command.
void frmMain::BindVariable() {
  const auto bind = [this](auto signal, const char* control, auto command) {
    connect(fraVariable_, signal, this, [this, control, command](auto... what) {
      Run(control, [&] { (variable_.*command)(what...); });
      FillBoxes();
    });
  };
  bind(&fraVariable::EntryChosen, "cboPattern", &VariableCommands::ChooseEntry);
  bind(&fraVariable::PatternClicked, "optPattern", &VariableCommands::ClickPattern);
  bind(&fraVariable::VarDepthTicked, "chkVarDepth", &VariableCommands::TickVarDepth);
  bind(&fraVariable::PitchPressed, "txtToothSpace", &VariableCommands::ClickPitch);
  bind(&fraVariable::DepthPressed, "txtToothDepth", &VariableCommands::ClickDepth);
  bind(&fraVariable::ResetPressed, "cmdVariableReset", &VariableCommands::PressVariableReset);
  bind(&fraVariable::Accepted, "cmdVariableOK", &VariableCommands::PressVariableOk);
  bind(&fraVariable::Cancelled, "cmdVariableCancel", &VariableCommands::PressVariableCancel);
  connect(fraVariable_, &fraVariable::PrintPressed, this,
          [this] { Run("cmdVariablePrint", [this] { hosts_.Printing.PrintVariableSegment(); }); });
  connect(fraVariable_, &fraVariable::Hovered, this, [this](const QString& hint, int topic) {
    helpTopic_ = topic;
    Say(hint);
  });
}

void frmMain::BindPanels() {
  connect(display_, &fraDisplay::ViewChanged, this, [this] { ShowView(false); });
  connect(display_, &fraDisplay::Painted, this, &frmMain::BeginSoon);
  connect(display_, &fraDisplay::Hovered, this, [this] { ShowHint(nullptr); });
  connect(fraMain_, &fraMain::RowPressed, this,
          [this](const InfoRow& row) { Run("picSawData", [&] { editors_.PressRow(InfoRow(row)); }); });
  connect(fraMain_, &fraMain::RowHovered, this, &frmMain::ShowHintOfRow);
  connect(fraMain_, &fraMain::QuickClickAsked, this,
          [this] { Run("cmdQuickClick", [this] { TurnQuickClickOn(); }); });
  BindEditor(*fraToothShape_, &Editors::PressToothOk, &Editors::PressToothCancel);
  BindEditor(*fraGeneral_, &Editors::PressGeneralOk, &Editors::PressGeneralCancel);
  BindVariable();
}

// ---- starting

void frmMain::FillWorkArea() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  KeepWithin(*screen);
  setGeometry(screen->availableGeometry());
  Arrange();
  layout()->activate();  // a window that is not shown yet lays out nothing unasked
  centralWidget()->layout()->activate();
  display_->TakeSize();
}

void frmMain::KeepWithin(const QScreen& screen) {
  const WindowLimits limits = MainWindowLimits(screen.size().width(), SizeOf(screen.availableSize()));
  const QMargins frame = windowHandle() ? windowHandle()->frameMargins() : QMargins();
  setMinimumSize(ToQt(limits.Least).shrunkBy(frame));
  setMaximumSize(ToQt(limits.Most).shrunkBy(frame));
}

/// Only a window that is there knows its frame: what the frame pushed out of the work area comes back.
void frmMain::StayOnScreen() {
  const QRect area = screen()->availableGeometry();
  const QMargins frame = windowHandle()->frameMargins();
  KeepWithin(*screen());
  if (!area.contains(geometry().marginsAdded(frame))) setGeometry(area.marginsRemoved(frame));
  connect(windowHandle(), &QWindow::screenChanged, this, [this](QScreen* now) {
    if (now) KeepWithin(*now);
  });
}

// A window without a window manager is never activated, but it is painted. Whichever comes first begins.
bool frmMain::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) BeginSoon();
  return QMainWindow::event(event);
}

void frmMain::BeginSoon() {
  if (begun_) return;
  begun_ = true;
  QMetaObject::invokeMethod(this, &frmMain::BeginWork, Qt::QueuedConnection);
}

void frmMain::BeginWork() {
  StayOnScreen();
  Run("Form_Activate", [this] { documents_.Begin(); });
  tmrRecovery_.setObjectName("tmrRecovery");
  connect(&tmrRecovery_, &QTimer::timeout, this, [this] { documents_.NoteForRecovery(); });
  tmrRecovery_.start(RecoveryInterval);
}

}  // namespace tarnwick
