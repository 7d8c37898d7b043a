#pragma once

#include <string>

#include "model/modBandSaw.h"
#include "model/modZoom.h"
#include "window/modMapping.h"

namespace tarnwick {

/// What the user sees of a design, and how large: the numbers that stand in the controls themselves.
struct View {
  int Horizontal{};  // value of hscDisplay, -32767 to 32767: fiftieths of an inch of the scaled drawing, at
                     // the surface's middle
  int Vertical{};    // value of vscDisplay; grows downward, so a band above Y = 0 has a negative value
  double Scale{};    // number of txtScale; 1 is true size on the screen
  bool operator==(const View&) const = default;
};

/// Size of the drawing surface, or a place on it, in inches of 96 pixels; Y downward.
struct SurfaceSize {
  double Width{}, Height{};
};
struct SurfacePoint {
  double X{}, Y{};
};

/// The rules by which the drawing is moved and scaled. A window shows ScaleText() in txtScale and the two
/// values in its scroll bars after every call, and redraws when a call answers true.
class Viewport {
 public:
  static constexpr int BarLimit = 32767;
  static constexpr int LineStep = 25;  // single step of both bars: half an inch

  void SetSurface(SurfaceSize size) { surface_ = size; }
  /// `displayScale` 0.5 to 1.5, see DisplaySettings; `decimalPlaces` of the mapping's roundings.
  void SetCalibration(double displayScale, int decimalPlaces);

  /// True size reads "1.0", every other scale is the shortest decimal.
  [[nodiscard]] const std::string& ScaleText() const { return scaleText_; }
  [[nodiscard]] double Scale() const;
  [[nodiscard]] int Horizontal() const { return horizontal_; }
  [[nodiscard]] int Vertical() const { return vertical_; }
  [[nodiscard]] int PageStepAcross() const;  // 45 an inch of the surface: nine tenths of what is seen
  [[nodiscard]] int PageStepDown() const;
  [[nodiscard]] Mapping CurrentMapping() const;

  /// The scale that the zoom limits are reckoned from: 200 / the longer side of the extents, not below
  /// 0.3334. Taken anew after each calculation.
  void FitScale(const Extents& extents);
  [[nodiscard]] double FullScale() const { return fullScale_; }

  // Commands. True: redraw. Bars stop at their ends.

  /// The whole drawing in the middle, nineteen twentieths of the surface across or down.
  bool ViewAll(const Extents& extents);
  /// True size, the design's origin a hair left of the middle and above it. A band so wide that its tooth
  /// line would lie off the surface has that line in the middle instead: a band opens with teeth to see.
  /// `saw`: the design that is listed, or nullptr for an empty drawing.
  bool ViewOneToOne(const BandSaw* saw);
  /// One segment of a variable pitch band across the surface; nothing for any other band.
  bool ViewSegment(const BandSaw& saw);
  /// By a quarter, up to three times the full scale. The scale is cut to three places, but to six where
  /// three would not let it grow.
  bool ZoomIn();
  /// By a fifth, as long as the scale is above 0.01.
  bool ZoomOut();
  /// The view before this one; again, and this one is back. Nothing while there was no other.
  bool ShowLastView();
  /// The user moved a bar.
  bool Scroll(int horizontal, int vertical);
  /// Zoom by `factor` about a place of the surface that stays where it is (the wheel); within the limits of
  /// ZoomIn and ZoomOut.
  bool ZoomAbout(SurfacePoint place, double factor);

  /// The hand takes hold of the drawing at a place of the surface; from then on the drawing follows it.
  void BeginDrag(SurfacePoint place);
  bool DragTo(SurfacePoint place);

  // The zoom rectangle.
  /// None: the rectangle has no width or no height; nothing changed.
  enum class Gesture { None, Click, Zoomed };
  void BeginRectangle(SurfacePoint corner);
  void DragRectangle(SurfacePoint corner);
  /// Click: the corners lie within 0.05 inch of each other, nothing changed. Zoomed: redraw.
  Gesture EndRectangle(SurfacePoint corner);
  [[nodiscard]] SurfacePoint RectangleFrom() const { return zoomFrom_; }
  [[nodiscard]] SurfacePoint RectangleTo() const { return zoomTo_; }

  [[nodiscard]] View ThisView() const { return thisView_; }
  [[nodiscard]] View LastView() const { return lastView_; }

 private:
  /// Notes the view that the controls now show, if it is another one, and the one before it.
  void RememberView();

  /// False before the window has been laid out: nothing can be fitted then.
  [[nodiscard]] bool HasSurface() const { return surface_.Width > 0 && surface_.Height > 0; }
  void ShowScale(double scale);
  void ShowBars(double horizontal, double vertical);
  /// The bars that bring a point of the design to the middle of the surface, at the scale shown.
  void Center(double x, double y);
  [[nodiscard]] bool ShowsHeight(double y) const;

  [[nodiscard]] double ZoomLimit() const;
  bool ZoomBy(double factor);
  bool ZoomWindow();

  SurfaceSize surface_;
  double displayScale_ = 1.0;
  int decimalPlaces_ = 5;
  std::string scaleText_ = "1.0";
  int horizontal_ = 0, vertical_ = 0;
  double fullScale_ = 3.0;
  View lastView_, thisView_;
  SurfacePoint zoomFrom_, zoomTo_;
  SurfacePoint dragFrom_;
  View dragView_;  // as it was when the drawing was taken hold of
};

}  // namespace tarnwick
