#include "window/frmMain.h"

#include <QAction>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QWindow>
#include <chrono>
#include <cmath>

#include "platform/qt/DrawingSurface.h"
#include "platform/qt/QtCanvas.h"
#include "shell/modTimeDate.h"
#include "shell/modWindowSize.h"
#include "window/modDraw.h"

namespace tarnwick {
namespace {

constexpr auto ClockStep = std::chrono::seconds(1);
constexpr double WheelZoom = 1.25;  // of one notch: as far as one Zoom In

WindowSize SizeOf(const QSize& size) { return {size.width(), size.height()}; }
QSize ToQt(const WindowSize& size) { return {size.Width, size.Height}; }

}  // namespace

frmMain::frmMain(const Start& start, Messages& messages, Clock& clock)
    : display_(start.Display), commandFile_(start.CommandFile), messages_(messages), clock_(clock) {
  setObjectName("frmMain");
  design_.Settings = start.Calculation;
  design_.View.SetCalibration(display_.DisplayScale, start.Calculation.DecimalPlaces);
  MakeDrawing();
  MakeMenu();
  MakeStatusBar();
  ShowCaption();
  FillWorkArea();
  DrawIf(design_.ViewOneToOne());
}

// ---- making

void frmMain::MakeDrawing() {
  auto* centre = new QWidget(this);
  auto* grid = new QGridLayout(centre);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  PicEditor_ = new DrawingSurface(centre);
  PicEditor_->setObjectName("PicEditor");
  PicEditor_->setAccessibleName(tr("Drawing of the band"));
  PicEditor_->setAccessibleDescription(tr(
      "Arrow keys and page keys move the drawing. A rectangle pulled with the mouse is enlarged, the wheel "
      "zooms, the middle button drags."));
  hscDisplay_ = new QScrollBar(Qt::Horizontal, centre);
  hscDisplay_->setObjectName("hscDisplay");
  hscDisplay_->setAccessibleName(tr("Move along the band"));
  vscDisplay_ = new QScrollBar(Qt::Vertical, centre);
  vscDisplay_->setObjectName("vscDisplay");
  vscDisplay_->setAccessibleName(tr("Move across the band"));
  grid->addWidget(PicEditor_, 0, 0);
  grid->addWidget(vscDisplay_, 0, 1);
  grid->addWidget(hscDisplay_, 1, 0);
  setCentralWidget(centre);
  PicEditor_->setFocus();
  BindBars();
  BindSurface();
}

void frmMain::BindBars() {
  for (QScrollBar* bar : {hscDisplay_, vscDisplay_}) {
    bar->setRange(-Viewport::BarLimit, Viewport::BarLimit);
    bar->setSingleStep(Viewport::LineStep);
    bar->setFocusPolicy(Qt::StrongFocus);
    connect(bar, &QScrollBar::valueChanged, this,
            [this] { DrawIf(design_.View.Scroll(hscDisplay_->value(), vscDisplay_->value())); });
  }
}

void frmMain::BindSurface() {
  PicEditor_->SetRectangleColour(ToQt(display_.ZoomWindowColor));
  PicEditor_->SetDrawing(
      [this](Canvas& canvas) { DrawSaw(design_.Lines, design_.View.CurrentMapping(), canvas, display_); });
  connect(PicEditor_, &DrawingSurface::Painted, this, &frmMain::BeginSoon);
  connect(PicEditor_, &DrawingSurface::Resized, this, [this] {
    design_.View.SetSurface(PicEditor_->SizeInInches());
    ShowView();
  });
  connect(PicEditor_, &DrawingSurface::RectangleBegun, this,
          [this](SurfacePoint corner) { design_.View.BeginRectangle(corner); });
  connect(PicEditor_, &DrawingSurface::RectangleDragged, this,
          [this](SurfacePoint corner) { design_.View.DragRectangle(corner); });
  connect(PicEditor_, &DrawingSurface::RectangleEnded, this, [this](SurfacePoint corner) {
    DrawIf(design_.View.EndRectangle(corner) == Viewport::Gesture::Zoomed);
  });
  connect(PicEditor_, &DrawingSurface::DragBegun, this,
          [this](SurfacePoint place) { design_.View.BeginDrag(place); });
  connect(PicEditor_, &DrawingSurface::DraggedTo, this,
          [this](SurfacePoint place) { DrawIf(design_.View.DragTo(place)); });
  connect(PicEditor_, &DrawingSurface::WheelTurned, this, [this](SurfacePoint place, double notches) {
    DrawIf(design_.View.ZoomAbout(place, std::pow(WheelZoom, notches)));
  });
  connect(PicEditor_, &DrawingSurface::MoveAsked, this,
          [this](Qt::Orientation bar, QAbstractSlider::SliderAction step) {
            (bar == Qt::Horizontal ? hscDisplay_ : vscDisplay_)->triggerAction(step);
          });
}

QAction* frmMain::AddItem(QMenu* menu, const char* name, const char* caption, const char* key) {
  QAction* item = menu->addAction(tr(caption));
  item->setObjectName(name);
  item->setShortcut(QKeySequence(key));
  item->setMenuRole(QAction::NoRole);
  return item;
}

void frmMain::AddViewItem(QMenu* menu, const char* name, const char* caption, const char* key,
                          std::function<bool()> command) {
  connect(AddItem(menu, name, caption, key), &QAction::triggered, this,
          [this, command = std::move(command)] { DrawIf(command()); });
}

void frmMain::MakeMenu() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->setObjectName("mnuFile");
  connect(AddItem(file, "mnuItemExit", "E&xit"), &QAction::triggered, this, &QWidget::close);

  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->setObjectName("mnuView");
  OpenDesign& d = design_;
  AddViewItem(view, "mnuItemAll", "View All", "Ctrl+A", [&d] { return d.ViewAll(); });
  AddViewItem(view, "mnuItemFullScale", "View Full Scale 1/1", "Ctrl+F", [&d] { return d.ViewOneToOne(); });
  AddViewItem(view, "mnuItemVarSegment", "View Variable Segment", "Ctrl+S", [&d] { return d.ViewSegment(); });
  AddViewItem(view, "mnuItemLast", "Last View", "Ctrl+L", [&d] { return d.View.ShowLastView(); });
  AddViewItem(view, "mnuItemIn", "Zoom In", "Ctrl+I", [&d] { return d.View.ZoomIn(); });
  AddViewItem(view, "mnuItemOut", "Zoom Out", "Ctrl+O", [&d] { return d.View.ZoomOut(); });
}

/// A panel of the status bar: a text that is read, by eye or by ear, and never has the focus.
QLineEdit* frmMain::AddPanel(const char* name, const char* caption, const char* widest) {
  auto* panel = new QLineEdit(this);
  panel->setObjectName(name);
  panel->setAccessibleName(tr(caption));
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
  txtScale_ = AddPanel("txtScale", "Scale", "300.000000");
  panTimeDate_ = AddPanel("panTimeDate", "Time and date", "00:00 pm  Mmm 00, 0000");
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

// ---- starting

void frmMain::FillWorkArea() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  KeepWithin(*screen);
  setGeometry(screen->availableGeometry());
  layout()->activate();  // a window that is not shown yet lays out nothing unasked
  centralWidget()->layout()->activate();
  design_.View.SetSurface(PicEditor_->SizeInInches());
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
  if (commandFile_.empty()) return;
  design_.OpenPath(commandFile_, messages_);
  commandFile_.clear();
  ShowCaption();
  DrawIf(true);
}

// ---- showing

void frmMain::ShowCaption() {
  // "[*]" is a mark of the toolkit's unless it stands twice.
  setWindowTitle(QString::fromStdString(design_.Caption()).replace("[*]", "[*][*]"));
}

/// Brings the controls to what the view is now, without their taking it for the user's doing.
void frmMain::ShowView() {
  const QSignalBlocker stillAcross(hscDisplay_), stillDown(vscDisplay_);
  hscDisplay_->setPageStep(design_.View.PageStepAcross());
  vscDisplay_->setPageStep(design_.View.PageStepDown());
  hscDisplay_->setValue(design_.View.Horizontal());
  vscDisplay_->setValue(design_.View.Vertical());
  txtScale_->setText(QString::fromStdString(design_.View.ScaleText()));
}

void frmMain::ShowTimeDate() {
  const QString text = QString::fromStdString(TimeDateText(clock_.Now()));
  if (panTimeDate_->text() != text) panTimeDate_->setText(text);
}

void frmMain::DrawIf(bool changed) {
  ShowView();
  if (changed) PicEditor_->Redraw();
}

}  // namespace tarnwick
