#include "window/fraDisplay.h"

#include <QEvent>
#include <QGridLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <cmath>

#include "platform/qt/DrawingSurface.h"
#include "platform/qt/QtCanvas.h"
#include "window/modDraw.h"

namespace tarnwick {
namespace {

constexpr double WheelZoom = 1.25;  // of one notch: as far as one Zoom In

}  // namespace

fraDisplay::fraDisplay(OpenDesign& design, QWidget* parent) : QWidget(parent), design_(design) {
  setObjectName("fraDisplay");
  MakeControls();
  BindBars();
  BindSurface();
  ShowColours();
  setFocusProxy(PicEditor_);
}

void fraDisplay::MakeControls() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  PicEditor_ = new DrawingSurface(this);
  PicEditor_->setObjectName("PicEditor");
  PicEditor_->setAccessibleName(tr("Drawing of the band"));
  PicEditor_->setAccessibleDescription(tr(
      "Arrow keys and page keys move the drawing. A rectangle pulled with the mouse is enlarged, the wheel "
      "zooms, the middle button drags."));
  PicEditor_->installEventFilter(this);
  hscDisplay_ = new QScrollBar(Qt::Horizontal, this);
  hscDisplay_->setObjectName("hscDisplay");
  hscDisplay_->setAccessibleName(tr("Move along the band"));
  vscDisplay_ = new QScrollBar(Qt::Vertical, this);
  vscDisplay_->setObjectName("vscDisplay");
  vscDisplay_->setAccessibleName(tr("Move across the band"));
  grid->addWidget(PicEditor_, 0, 0);
  grid->addWidget(vscDisplay_, 0, 1);
  grid->addWidget(hscDisplay_, 1, 0);
}

void fraDisplay::BindBars() {
  for (QScrollBar* bar : {hscDisplay_, vscDisplay_}) {
    bar->setRange(-Viewport::BarLimit, Viewport::BarLimit);
    bar->setSingleStep(Viewport::LineStep);
    bar->setFocusPolicy(Qt::StrongFocus);
    connect(bar, &QScrollBar::valueChanged, this,
            [this] { Show(design_.View.Scroll(hscDisplay_->value(), vscDisplay_->value())); });
  }
}

void fraDisplay::BindSurface() {
  PicEditor_->SetDrawing([this](Canvas& canvas) {
    DrawSaw(design_.Lines, design_.View.CurrentMapping(), canvas, design_.Settings.Display);
  });
  connect(PicEditor_, &DrawingSurface::Painted, this, &fraDisplay::Painted);
  connect(PicEditor_, &DrawingSurface::Resized, this, [this] {
    design_.View.SetSurface(PicEditor_->SizeInInches());
    Show(false);
  });
  connect(PicEditor_, &DrawingSurface::RectangleBegun, this,
          [this](SurfacePoint corner) { design_.View.BeginRectangle(corner); });
  connect(PicEditor_, &DrawingSurface::RectangleDragged, this,
          [this](SurfacePoint corner) { design_.View.DragRectangle(corner); });
  connect(PicEditor_, &DrawingSurface::RectangleEnded, this, [this](SurfacePoint corner) {
    Show(design_.View.EndRectangle(corner) == Viewport::Gesture::Zoomed);
  });
  connect(PicEditor_, &DrawingSurface::DragBegun, this,
          [this](SurfacePoint place) { design_.View.BeginDrag(place); });
  connect(PicEditor_, &DrawingSurface::DraggedTo, this,
          [this](SurfacePoint place) { Show(design_.View.DragTo(place)); });
  connect(PicEditor_, &DrawingSurface::WheelTurned, this, [this](SurfacePoint place, double notches) {
    Show(design_.View.ZoomAbout(place, std::pow(WheelZoom, notches)));
  });
  connect(PicEditor_, &DrawingSurface::MoveAsked, this,
          [this](Qt::Orientation bar, QAbstractSlider::SliderAction step) {
            (bar == Qt::Horizontal ? hscDisplay_ : vscDisplay_)->triggerAction(step);
          });
}

bool fraDisplay::eventFilter(QObject* watched, QEvent* event) {
  if (watched == PicEditor_ && event->type() == QEvent::Enter) emit Hovered();
  return QWidget::eventFilter(watched, event);
}

void fraDisplay::TakeSize() {
  layout()->activate();  // nothing is laid out unasked before it shows
  design_.View.SetSurface(PicEditor_->SizeInInches());
}

QWidget& fraDisplay::Surface() const { return *PicEditor_; }

void fraDisplay::ShowColours() {
  PicEditor_->SetRectangleColour(ToQt(design_.Settings.Display.ZoomWindowColor));
}

// The controls are brought to the view without taking it for the user's doing.
void fraDisplay::ShowView(bool changed) {
  const QSignalBlocker stillAcross(hscDisplay_), stillDown(vscDisplay_);
  hscDisplay_->setPageStep(design_.View.PageStepAcross());
  vscDisplay_->setPageStep(design_.View.PageStepDown());
  hscDisplay_->setValue(design_.View.Horizontal());
  vscDisplay_->setValue(design_.View.Vertical());
  if (changed) PicEditor_->Redraw();
}

void fraDisplay::Show(bool changed) {
  ShowView(changed);
  emit ViewChanged();
}

}  // namespace tarnwick
