#include "window/Viewport.h"

#include <algorithm>
#include <cmath>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr double BarStepsPerInch = 50;
constexpr int ScalePlaces = 6;
constexpr int ZoomedScalePlaces = 3;
constexpr double LeastScale = 0.000001;  // a scale of 0 would have no way back

constexpr double LongestFullView = 200;
constexpr double LeastFullScale = 0.3334;  // keeps very long bands readable
constexpr double MostZoom = 3;             // times the full scale
constexpr double LastFullStep = 2.4;       // times the full scale: from here a full step would pass the limit
constexpr double ZoomStep = 1.25;
constexpr double ZoomOutEnd = 0.01;

constexpr double ShareOfSurface = 0.95;  // that View All fills
constexpr double ClickReach = 0.05;      // inches: corners no further apart are a click

/// A bar's value: a whole number, halves to the even one, within the bar.
int BarValue(double value) {
  constexpr double limit = Viewport::BarLimit;
  return std::isnan(value) ? 0 : static_cast<int>(std::nearbyint(std::clamp(value, -limit, limit)));
}

double ToothLine(const BandSaw& saw) { return saw.Width - saw.GulletInfo.Depth / 2; }

}  // namespace

void Viewport::SetCalibration(double displayScale, int decimalPlaces) {
  displayScale_ = displayScale;
  decimalPlaces_ = decimalPlaces;
}

double Viewport::Scale() const { return ReadNumber(scaleText_); }

void Viewport::ShowScale(double scale) {
  const double shown = std::max(scale, LeastScale);
  scaleText_ = shown == 1 ? "1.0" : GeneralText(shown);
}

void Viewport::ShowBars(double horizontal, double vertical) {
  horizontal_ = BarValue(horizontal);
  vertical_ = BarValue(vertical);
}

void Viewport::Center(double x, double y) {
  const double stepsPerUnit = BarStepsPerInch * Scale();
  ShowBars(stepsPerUnit * x, -stepsPerUnit * y);
}

void Viewport::RememberView() {
  const View shown{horizontal_, vertical_, RoundTo(Scale(), ScalePlaces)};
  if (shown == thisView_) return;
  lastView_ = thisView_;
  thisView_ = shown;
}

int Viewport::PageStepAcross() const { return BarValue(0.9 * BarStepsPerInch * surface_.Width); }
int Viewport::PageStepDown() const { return BarValue(0.9 * BarStepsPerInch * surface_.Height); }

Mapping Viewport::CurrentMapping() const {
  const Rounding round(decimalPlaces_);
  const auto origin = [&](double size, int bar) {
    return round(size / 2 - (bar / BarStepsPerInch) * displayScale_) * PixelsPerInch;
  };
  return {.PixelsPerUnit = round(RoundTo(Scale() * displayScale_, ScalePlaces) * PixelsPerInch),
          .OriginX = origin(surface_.Width, horizontal_),
          .OriginY = origin(surface_.Height, vertical_)};
}

void Viewport::FitScale(const Extents& extents) {
  const double longer =
      std::max(std::abs(extents.MaxX - extents.MinX), std::abs(extents.MaxY - extents.MinY));
  fullScale_ = std::max(Quotient(LongestFullView, longer).OrZero(), LeastFullScale);
}

bool Viewport::ViewAll(const Extents& extents) {
  const double width = std::abs(extents.MaxX - extents.MinX) * displayScale_;
  const double height = std::abs(extents.MaxY - extents.MinY) * displayScale_;
  if (width == 0 || height == 0 || !HasSurface()) return false;
  ShowScale(
      RoundTo(ShareOfSurface * std::min(surface_.Width / width, surface_.Height / height), ScalePlaces));
  Center(extents.CenterX, extents.CenterY);
  RememberView();
  return true;
}

bool Viewport::ViewOneToOne(const BandSaw* saw) {
  ShowScale(1);
  ShowBars(surface_.Height, surface_.Height);  // of both: the origin a hair left of the middle and above it
  if (saw != nullptr && !ShowsHeight(ToothLine(*saw))) {
    ShowBars(horizontal_, -BarStepsPerInch * ToothLine(*saw));
  }
  RememberView();
  return true;
}

bool Viewport::ShowsHeight(double y) const {
  const double below = CurrentMapping().ToSurface(0, y).Y;
  return below >= 0 && below <= surface_.Height * PixelsPerInch;
}

bool Viewport::ViewSegment(const BandSaw& saw) {
  if (saw.GeneralInfo.VariablePitch == False || !HasSurface()) return false;
  const double length = saw.DesignInfo.SegmentLength;
  const Checked scale = Quotient(surface_.Width / displayScale_, length + saw.Pitch);
  if (!scale.Ok()) return false;
  const Rounding round(decimalPlaces_);
  ShowScale(round(scale.OrZero()));
  Center(round((saw.Pitch / 2 + length) / 2), ToothLine(saw));
  RememberView();
  return true;
}

double Viewport::ZoomLimit() const { return RoundTo(MostZoom * fullScale_, ZoomedScalePlaces); }

bool Viewport::ZoomIn() {
  const double scale = Scale();
  if (scale >= ZoomLimit()) return false;
  return ZoomBy(scale < LastFullStep * fullScale_ ? ZoomStep : MostZoom * fullScale_ / scale);
}

bool Viewport::ZoomOut() { return Scale() > ZoomOutEnd && ZoomBy(1 / ZoomStep); }

bool Viewport::ZoomBy(double factor) {
  const double target = Scale() * factor;
  const double shown = RoundTo(target, ZoomedScalePlaces);
  // Three places would hold a very small scale, that of a whole long band, for ever, or make it 0.
  const bool lost = factor > 1 && shown <= Scale();
  ShowScale(lost ? RoundTo(target, ScalePlaces) : shown);
  ShowBars(horizontal_ * factor, vertical_ * factor);
  RememberView();
  return true;
}

bool Viewport::ShowLastView() {
  if (lastView_.Scale == 0) return false;  // there was none yet
  ShowScale(lastView_.Scale);
  ShowBars(lastView_.Horizontal, lastView_.Vertical);
  RememberView();
  return true;
}

bool Viewport::Scroll(int horizontal, int vertical) {
  const int across = horizontal_, down = vertical_;
  ShowBars(horizontal, vertical);
  RememberView();
  return across != horizontal_ || down != vertical_;
}

void Viewport::BeginDrag(SurfacePoint place) {
  dragFrom_ = place;
  dragView_ = {horizontal_, vertical_, Scale()};
}

bool Viewport::DragTo(SurfacePoint place) {
  // Reckoned from where the drag began, so that roundings on the way do not add up.
  const double steps = BarStepsPerInch / displayScale_;
  return Scroll(BarValue(dragView_.Horizontal - (place.X - dragFrom_.X) * steps),
                BarValue(dragView_.Vertical - (place.Y - dragFrom_.Y) * steps));
}

bool Viewport::ZoomAbout(SurfacePoint place, double factor) {
  const double scale = Scale();
  const bool possible = factor > 1 ? scale < ZoomLimit() : factor > 0 && factor < 1 && scale > ZoomOutEnd;
  if (!possible) return false;
  ShowScale(std::min(RoundTo(scale * factor, ScalePlaces), ZoomLimit()));
  const double change = Scale() / scale;
  const double across = (place.X - surface_.Width / 2) * BarStepsPerInch / displayScale_;
  const double down = (place.Y - surface_.Height / 2) * BarStepsPerInch / displayScale_;
  ShowBars((horizontal_ + across) * change - across, (vertical_ + down) * change - down);
  RememberView();
  return true;
}

void Viewport::BeginRectangle(SurfacePoint corner) { zoomFrom_ = zoomTo_ = corner; }

void Viewport::DragRectangle(SurfacePoint corner) { zoomTo_ = corner; }

Viewport::Gesture Viewport::EndRectangle(SurfacePoint corner) {
  zoomTo_ = corner;
  const double width = std::abs(zoomTo_.X - zoomFrom_.X);
  const double height = std::abs(zoomTo_.Y - zoomFrom_.Y);
  if (width <= ClickReach && height <= ClickReach) return Gesture::Click;
  return ZoomWindow() ? Gesture::Zoomed : Gesture::None;
}

bool Viewport::ZoomWindow() {
  const double width = std::abs(zoomTo_.X - zoomFrom_.X);
  const double height = std::abs(zoomTo_.Y - zoomFrom_.Y);
  if (width == 0 || height == 0 || !HasSurface()) return false;
  const double scale = Scale();
  const double limit = MostZoom * fullScale_;
  if (scale < limit) {  // above it, where View Segment may have gone, the rectangle is only centred
    const double factor = std::min(surface_.Width / width, surface_.Height / height);
    ShowScale(RoundTo(std::min(scale * factor, limit), ScalePlaces));
  }
  // The rectangle's centre is half the sum of its corners: 25 steps for an inch of each.
  const double stepsPerCorner = BarStepsPerInch / 2 / displayScale_;
  const double across = (zoomFrom_.X + zoomTo_.X - surface_.Width) * stepsPerCorner;
  const double down = (zoomFrom_.Y + zoomTo_.Y - surface_.Height) * stepsPerCorner;
  const double change = Scale() / scale;
  ShowBars((horizontal_ + across) * change, (vertical_ + down) * change);
  RememberView();
  return true;
}

}  // namespace tarnwick
