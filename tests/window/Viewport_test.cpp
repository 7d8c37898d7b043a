#include "window/Viewport.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr SurfaceSize TenByEight{.Width = 10, .Height = 8};

Extents Box(double minX, double minY, double maxX, double maxY) {
  return {minY, minX, maxY, maxX, (minX + maxX) / 2, (minY + maxY) / 2};
}

Extents LongBox(double length) { return Box(0, -1, length, 1); }
const Extents EmptyBox = Box(0, -1, 0, 1);

Viewport OnTenByEight(double displayScale = 1) {
  Viewport view;
  view.SetSurface(TenByEight);
  view.SetCalibration(displayScale, 5);
  return view;
}

BandSaw Segment(double length, double pitch) {
  BandSaw saw;
  saw.GeneralInfo.VariablePitch = True;
  saw.DesignInfo.SegmentLength = length;
  saw.Pitch = pitch;
  return saw;
}

/// A view at any scale, with a full scale of 200 / `length`.
Viewport At(double scale, double length) {
  Viewport view = OnTenByEight();
  view.FitScale(LongBox(length));
  EXPECT_TRUE(view.ViewSegment(Segment(10 / scale, 0)));
  return view;
}

View Shown(const Viewport& view) { return {view.Horizontal(), view.Vertical(), view.Scale()}; }

}  // namespace

// gtest finds it beside the type
static void PrintTo(const View& view, std::ostream* out) {
  *out << "bars " << view.Horizontal << ", " << view.Vertical << ", scale " << view.Scale;
}

namespace {

// ---- full scale

TEST(FullScale, IsThreeBeforeAnyCalculation) { EXPECT_EQ(Viewport().FullScale(), 3); }

TEST(FullScale, FitsTwoHundredInchesToTheLongerSide) {
  Viewport view;
  view.FitScale(LongBox(40));
  EXPECT_EQ(view.FullScale(), 5);
  view.FitScale(Box(0, -1, 3, 49));
  EXPECT_EQ(view.FullScale(), 4);
}

TEST(FullScale, KeepsVeryLongBandsReadable) {
  Viewport view;
  view.FitScale(LongBox(1000));
  EXPECT_EQ(view.FullScale(), 0.3334);
}

TEST(FullScale, OfAnEmptyDrawingIsAHundred) {
  Viewport view;
  view.FitScale(EmptyBox);
  EXPECT_EQ(view.FullScale(), 100);
}

// ---- mapping

TEST(ViewMapping, StartsAtTrueSizeWithTheOriginInTheMiddle) {
  const Viewport view = OnTenByEight();
  EXPECT_EQ(view.ScaleText(), "1.0");
  EXPECT_EQ(view.CurrentMapping().PixelsPerUnit, 96);
  EXPECT_EQ(view.CurrentMapping().OriginX, 480);
  EXPECT_EQ(view.CurrentMapping().OriginY, 384);
}

TEST(ViewMapping, MovesLeftAndUpAsTheBarsGrow) {
  Viewport view = OnTenByEight();
  view.Scroll(50, 100);
  EXPECT_EQ(view.CurrentMapping().OriginX, 480 - 96);
  EXPECT_EQ(view.CurrentMapping().OriginY, 384 - 192);
}

TEST(ViewMapping, IsCalibratedAndRounded) {
  Viewport view = OnTenByEight(1.23457);
  view.Scroll(1, 0);
  EXPECT_DOUBLE_EQ(view.CurrentMapping().PixelsPerUnit, 118.51872);  // 1.23457 x 96
  EXPECT_DOUBLE_EQ(view.CurrentMapping().OriginX, 4.9753 * 96);      // of 5 - 0.02 x 1.23457 = 4.9753086
  view.SetCalibration(1.23457, 4);
  EXPECT_DOUBLE_EQ(view.CurrentMapping().PixelsPerUnit, 118.5187);
}

TEST(ViewMapping, RoundsAnOriginLeftOfTheSurfaceAsEveryNegativeNumber) {
  Viewport view = OnTenByEight();
  view.Scroll(400, 0);
  EXPECT_DOUBLE_EQ(view.CurrentMapping().OriginX, -2.99999 * 96);
}

// ---- view all

TEST(ViewAll, FillsTheWidthWithALongBandAndCentresIt) {
  Viewport view = OnTenByEight();
  EXPECT_TRUE(view.ViewAll(Box(0, -1, 20, 3)));
  EXPECT_EQ(view.ScaleText(), "0.475");  // 0.95 x 10 / 20
  EXPECT_EQ(view.Horizontal(), 238);     // 50 x 10 x 0.475 = 237.5, to the even one
  EXPECT_EQ(view.Vertical(), -24);       // a band above the origin: negative
  const Spot middle = view.CurrentMapping().ToSurface(10, 1);
  EXPECT_NEAR(middle.X, 480, 1);
  EXPECT_NEAR(middle.Y, 384, 1);
}

TEST(ViewAll, FillsTheHeightWithATallDrawing) {
  Viewport view = OnTenByEight();
  EXPECT_TRUE(view.ViewAll(Box(0, -1, 2, 39)));
  EXPECT_EQ(view.ScaleText(), "0.19");  // 0.95 x 8 / 40
}

TEST(ViewAll, FillsTheHeightWhenTheDrawingIsWideButTheSurfaceWider) {
  Viewport view = OnTenByEight();
  EXPECT_TRUE(view.ViewAll(Box(0, -1, 10, 8.5)));
  EXPECT_EQ(view.ScaleText(), "0.8");  // 0.95 x 8 / 9.5
}

TEST(ViewAll, AllowsForTheCalibration) {
  Viewport view = OnTenByEight(1.25);
  EXPECT_TRUE(view.ViewAll(Box(0, -1, 20, 3)));
  EXPECT_EQ(view.ScaleText(), "0.38");
  EXPECT_EQ(view.Horizontal(), 190);
  EXPECT_DOUBLE_EQ(view.CurrentMapping().ToSurface(10, 0).X, 480);
}

TEST(ViewAll, ChangesNothingForADrawingWithoutWidth) {
  Viewport view = OnTenByEight();
  EXPECT_FALSE(view.ViewAll(EmptyBox));
  EXPECT_EQ(view.ScaleText(), "1.0");
  EXPECT_EQ(view.ThisView(), View());
}

TEST(ViewAll, HasAScaleForEveryLength) {
  Viewport view = OnTenByEight();
  EXPECT_TRUE(view.ViewAll(LongBox(1e9)));
  EXPECT_EQ(view.Scale(), 0.000001);
}

// ---- true size

TEST(ViewOneToOne, PutsBothBarsToTheSurfacesHeight) {
  Viewport view = OnTenByEight();
  view.ViewAll(LongBox(20));
  EXPECT_TRUE(view.ViewOneToOne(nullptr));
  EXPECT_EQ(view.ScaleText(), "1.0");
  EXPECT_EQ(Shown(view), (View{8, 8, 1}));
}

TEST(ViewOneToOne, TakesTheWholeInchesOfTheHeight) {
  Viewport view;
  view.SetSurface({.Width = 10, .Height = 6.7});
  view.ViewOneToOne(nullptr);
  EXPECT_EQ(Shown(view), (View{7, 7, 1}));
}

struct ToothLineRow {
  const char* Name;
  double DisplayScale, Width, Depth;
  int Vertical;
  friend void PrintTo(const ToothLineRow& row, std::ostream* out) { *out << row.Name; }
};
class ToothLineInView : public testing::TestWithParam<ToothLineRow> {};

TEST_P(ToothLineInView, KeepsTheTeethOnTheSurface) {
  const ToothLineRow& row = GetParam();
  Viewport view = OnTenByEight(row.DisplayScale);
  BandSaw saw;
  saw.Width = row.Width;
  saw.GulletInfo.Depth = row.Depth;
  EXPECT_TRUE(view.ViewOneToOne(&saw));
  EXPECT_EQ(Shown(view), (View{8, row.Vertical, 1}));
}

// The origin lies at 4 - 0.16 = 3.84 inches: that much of the band shows above it.
INSTANTIATE_TEST_SUITE_P(Bands, ToothLineInView,
                         testing::Values(ToothLineRow{"narrow", 1, 2, 0.5, 8},
                                         ToothLineRow{"just in", 1, 4.0625, 0.5, 8},
                                         ToothLineRow{"just out", 1, 4.125, 0.5, -194},  // 193.75
                                         ToothLineRow{"wide", 1, 6, 0.5, -288},          // 287.5, to the even
                                         ToothLineRow{"calibrated", 1.5, 3, 0.5, -138}));  // 137.5

// ---- one segment

TEST(ViewSegment, IsForVariablePitchOnly) {
  Viewport view = OnTenByEight();
  BandSaw saw = Segment(18, 2);
  saw.GeneralInfo.VariablePitch = False;
  EXPECT_FALSE(view.ViewSegment(saw));
  EXPECT_EQ(view.ThisView(), View());
}

TEST(ViewSegment, FillsTheWidthWithTheSegmentAndATooth) {
  Viewport view = OnTenByEight();
  BandSaw saw = Segment(18, 2);
  saw.Width = 4;
  saw.GulletInfo.Depth = 1;
  EXPECT_TRUE(view.ViewSegment(saw));
  EXPECT_EQ(Shown(view), (View{238, -88, 0.5}));  // 25 x 9.5 and 25 x 3.5
}

TEST(ViewSegment, AllowsForTheCalibration) {
  Viewport view = OnTenByEight(1.25);
  EXPECT_TRUE(view.ViewSegment(Segment(18, 2)));
  EXPECT_EQ(view.ScaleText(), "0.4");
}

TEST(ViewSegment, MayPassTheZoomLimit) {
  EXPECT_EQ(At(5, 200).ScaleText(), "5");
  Viewport view = At(5, 200);
  EXPECT_FALSE(view.ZoomIn());
}

TEST(ViewSegment, NeedsALength) {
  Viewport view = OnTenByEight();
  EXPECT_FALSE(view.ViewSegment(Segment(0, 0)));
  EXPECT_FALSE(view.ViewSegment(Segment(-2, 2)));
}

// ---- zoom in and out

TEST(ZoomIn, GoesToThreeTimesTheFullScaleAndNoFurther) {
  Viewport view = At(239, 0);  // full scale 100
  EXPECT_TRUE(view.ZoomIn());
  EXPECT_EQ(view.ScaleText(), "298.75");
  EXPECT_TRUE(view.ZoomIn());
  EXPECT_EQ(view.ScaleText(), "300");
  const View before = view.LastView(), now = view.ThisView();
  EXPECT_FALSE(view.ZoomIn());
  EXPECT_EQ(view.LastView(), before);
  EXPECT_EQ(view.ThisView(), now);
}

TEST(ZoomIn, EndsAtALimitThatThreePlacesCannotHold) {
  Viewport view = At(1, 70);  // three times the full scale is 8.571428...
  int steps = 0;
  while (view.ZoomIn() && steps < 100) ++steps;
  EXPECT_EQ(view.ScaleText(), "8.571");
  EXPECT_EQ(steps, 10);  // 1.25 to the tenth is 9.3
}

TEST(ZoomIn, CutsToThreePlaces) {
  Viewport view = At(0.475, 200);
  EXPECT_TRUE(view.ZoomIn());
  EXPECT_EQ(view.ScaleText(), "0.593");  // 0.59375
}

TEST(ZoomIn, GrowsFromTheSmallestScales) {
  Viewport view = At(0.00017, 56000);
  double before = view.Scale();
  int steps = 0;
  while (view.ZoomIn()) {
    ASSERT_GT(view.Scale(), before);
    ASSERT_LT(++steps, 100);
    before = view.Scale();
  }
  EXPECT_EQ(view.ScaleText(), "1.0");  // 1.0002, three places of it
}

TEST(ZoomIn, MultipliesTheBarsAndStopsAtTheirEnds) {
  Viewport view = OnTenByEight();
  view.Scroll(40, -30000);
  EXPECT_TRUE(view.ZoomIn());
  EXPECT_EQ(Shown(view), (View{50, -32767, 1.25}));
}

TEST(ZoomOut, TakesAFifth) {
  Viewport view = OnTenByEight();
  view.Scroll(40, -30000);
  EXPECT_TRUE(view.ZoomOut());
  EXPECT_EQ(Shown(view), (View{32, -24000, 0.8}));
}

TEST(ZoomOut, StopsAtAHundredth) {
  Viewport view = At(0.011, 200);
  EXPECT_TRUE(view.ZoomOut());
  EXPECT_EQ(view.ScaleText(), "0.008");
  EXPECT_FALSE(view.ZoomOut());
  EXPECT_FALSE(At(0.01, 200).ZoomOut());
}

// ---- the wheel

TEST(ZoomAbout, LeavesThePlaceWhereItIs) {
  Viewport view = OnTenByEight(1.25);
  view.Scroll(120, -60);
  const SurfacePoint place{.X = 8, .Y = 1};
  const auto designX = [&] {
    return (place.X * 96 - view.CurrentMapping().OriginX) / view.CurrentMapping().PixelsPerUnit;
  };
  const auto designY = [&] {
    return (view.CurrentMapping().OriginY - place.Y * 96) / view.CurrentMapping().PixelsPerUnit;
  };
  const double x = designX(), y = designY();
  EXPECT_TRUE(view.ZoomAbout(place, 2));
  EXPECT_EQ(view.ScaleText(), "2");
  EXPECT_NEAR(designX(), x, 0.01);  // a bar's step is a fiftieth
  EXPECT_NEAR(designY(), y, 0.01);
}

TEST(ZoomAbout, KeepsTheLimitsOfZoomInAndOut) {
  Viewport view = At(2, 200);
  EXPECT_TRUE(view.ZoomAbout({}, 10));
  EXPECT_EQ(view.ScaleText(), "3");
  EXPECT_FALSE(view.ZoomAbout({}, 1.1));
  EXPECT_FALSE(At(0.01, 200).ZoomAbout({}, 0.5));
  EXPECT_TRUE(At(0.02, 200).ZoomAbout({}, 0.5));
}

TEST(ZoomAbout, NeedsAFactor) {
  Viewport view = OnTenByEight();
  EXPECT_FALSE(view.ZoomAbout({}, 1));
  EXPECT_FALSE(view.ZoomAbout({}, 0));
  EXPECT_FALSE(view.ZoomAbout({}, -2));
  EXPECT_FALSE(view.ZoomAbout({}, std::nan("")));
}

// ---- last view

TEST(LastView, DoesNothingBeforeThereWasAnother) {
  Viewport view = OnTenByEight();
  EXPECT_FALSE(view.ShowLastView());
  view.ViewOneToOne(nullptr);
  EXPECT_FALSE(view.ShowLastView());
  EXPECT_EQ(Shown(view), (View{8, 8, 1}));
}

TEST(LastView, SwapsBetweenTwoViews) {
  Viewport view = OnTenByEight();
  view.ViewOneToOne(nullptr);
  view.ViewAll(Box(0, -1, 20, 3));
  const View all{238, -24, 0.475};
  EXPECT_TRUE(view.ShowLastView());
  EXPECT_EQ(Shown(view), (View{8, 8, 1}));
  EXPECT_EQ(view.ScaleText(), "1.0");
  EXPECT_TRUE(view.ShowLastView());
  EXPECT_EQ(Shown(view), all);
}

TEST(LastView, IsNotLostWhenTheSameViewIsAskedForAgain) {
  Viewport view = OnTenByEight();
  view.ViewAll(Box(0, -1, 20, 3));
  view.ViewOneToOne(nullptr);
  view.ViewOneToOne(nullptr);
  EXPECT_EQ(view.LastView(), (View{238, -24, 0.475}));
}

// ---- scroll bars

TEST(ScrollBars, MoveByHalfAnInchOrNineTenthsOfWhatIsSeen) {
  EXPECT_EQ(Viewport::LineStep, 25);
  EXPECT_EQ(OnTenByEight().PageStepAcross(), 450);
  EXPECT_EQ(OnTenByEight().PageStepDown(), 360);
}

TEST(ScrollBars, RememberEveryMoveOnce) {
  Viewport view = OnTenByEight();
  view.ViewOneToOne(nullptr);
  EXPECT_TRUE(view.Scroll(33, 8));
  EXPECT_FALSE(view.Scroll(33, 8));
  EXPECT_EQ(view.ThisView(), (View{33, 8, 1}));
  EXPECT_EQ(view.LastView(), (View{8, 8, 1}));
}

TEST(ScrollBars, StopAtTheirEnds) {
  Viewport view = OnTenByEight();
  EXPECT_TRUE(view.Scroll(40000, -40000));
  EXPECT_EQ(Shown(view), (View{32767, -32767, 1}));
}

// ---- zoom rectangle

Viewport::Gesture Pull(Viewport& view, SurfacePoint from, SurfacePoint to) {
  view.BeginRectangle(from);
  view.DragRectangle({9, 9});
  return view.EndRectangle(to);
}

TEST(ZoomRectangle, FollowsTheMouse) {
  Viewport view = OnTenByEight();
  view.BeginRectangle({1, 2});
  EXPECT_EQ(view.RectangleTo().X, 1);
  view.DragRectangle({3, 4});
  EXPECT_EQ(view.RectangleFrom().Y, 2);
  EXPECT_EQ(view.RectangleTo().Y, 4);
}

TEST(ZoomRectangle, IsAClickWhenTheMouseHardlyMoved) {
  Viewport view = OnTenByEight();
  EXPECT_EQ(Pull(view, {1, 1}, {1, 1}), Viewport::Gesture::Click);
  EXPECT_EQ(Pull(view, {0, 0}, {0.05, 0.05}), Viewport::Gesture::Click);
  EXPECT_EQ(view.ThisView(), View());
}

TEST(ZoomRectangle, WithoutAreaDoesNothing) {
  Viewport view = OnTenByEight();
  EXPECT_EQ(Pull(view, {1, 1}, {1, 3}), Viewport::Gesture::None);
  EXPECT_EQ(Pull(view, {1, 1}, {3, 1}), Viewport::Gesture::None);
  EXPECT_EQ(view.ThisView(), View());
}

class ZoomRectangleCorners : public testing::TestWithParam<std::pair<SurfacePoint, SurfacePoint>> {};

TEST_P(ZoomRectangleCorners, BringsItsCentreToTheMiddle) {
  Viewport view = OnTenByEight();
  view.FitScale(EmptyBox);
  view.ViewOneToOne(nullptr);
  EXPECT_EQ(Pull(view, GetParam().first, GetParam().second), Viewport::Gesture::Zoomed);
  // The smaller of 10 / 2 and 8 / 1; (8 + (-3 - 1) x 25) x 5 and (8 + (-2 - 1) x 25) x 5.
  EXPECT_EQ(Shown(view), (View{-460, -335, 5}));
}

INSTANTIATE_TEST_SUITE_P(AnyTwo, ZoomRectangleCorners,
                         testing::Values(std::pair(SurfacePoint{2, 2}, SurfacePoint{4, 3}),
                                         std::pair(SurfacePoint{4, 3}, SurfacePoint{2, 2}),
                                         std::pair(SurfacePoint{4, 2}, SurfacePoint{2, 3})));

TEST(ZoomRectangle, AllowsForTheCalibration) {
  Viewport view = OnTenByEight(1.25);
  view.FitScale(EmptyBox);
  view.ViewOneToOne(nullptr);
  Pull(view, {2, 2}, {4, 3});
  EXPECT_EQ(Shown(view), (View{-360, -260, 5}));  // (8 - 4 x 20) x 5 and (8 - 3 x 20) x 5
}

TEST(ZoomRectangle, StopsAtThreeTimesTheFullScale) {
  Viewport view = OnTenByEight();
  view.FitScale(LongBox(200));
  view.ViewOneToOne(nullptr);
  EXPECT_EQ(Pull(view, {1, 1}, {1.25, 1.25}), Viewport::Gesture::Zoomed);
  // Not 32-fold but 3-fold, the bars too: (8 - 193.75) x 3 and (8 - 143.75) x 3.
  EXPECT_EQ(Shown(view), (View{-557, -407, 3}));
}

TEST(ZoomRectangle, OnlyMovesAViewBeyondTheLimit) {
  Viewport view = At(5, 200);
  view.Scroll(100, 200);
  EXPECT_EQ(Pull(view, {2, 2}, {4, 3}), Viewport::Gesture::Zoomed);
  EXPECT_EQ(Shown(view), (View{0, 125, 5}));
}

TEST(ZoomRectangle, ComesBackByLastView) {
  Viewport view = OnTenByEight();
  view.FitScale(LongBox(70));
  view.ViewOneToOne(nullptr);
  Pull(view, {1, 1}, {1.25, 1.25});
  const View zoomed = Shown(view);
  EXPECT_EQ(view.ScaleText(), "8.571428");
  view.ShowLastView();
  view.ShowLastView();
  EXPECT_EQ(Shown(view), zoomed);
}

// ---- before the window is laid out

TEST(ViewWithoutASurface, FitsNothing) {
  Viewport view;
  EXPECT_FALSE(view.ViewAll(LongBox(20)));
  EXPECT_FALSE(view.ViewSegment(Segment(18, 2)));
  EXPECT_EQ(Pull(view, {1, 1}, {2, 2}), Viewport::Gesture::None);
  EXPECT_TRUE(view.ViewOneToOne(nullptr));
  EXPECT_EQ(Shown(view), (View{0, 0, 1}));
}

TEST(Dragging, MovesTheDrawingWithTheHand) {
  Viewport view = OnTenByEight();
  view.Scroll(100, -40);
  view.BeginDrag({5, 4});
  EXPECT_TRUE(view.DragTo({6, 3.5}));  // an inch to the right, half an inch up
  EXPECT_EQ(view.Horizontal(), 100 - 50);
  EXPECT_EQ(view.Vertical(), -40 + 25);
}

TEST(Dragging, BackToWhereItBeganChangesNothing) {
  Viewport view = OnTenByEight();
  view.BeginDrag({5, 4});
  for (const double x : {5.003, 5.017, 5.123, 4.0}) view.DragTo({x, 4 - x / 3});
  view.DragTo({5, 4});
  EXPECT_EQ(view.Horizontal(), 0);
  EXPECT_EQ(view.Vertical(), 0);
}

TEST(Dragging, TakesFewerStepsOnAScreenThatIsCalibratedLarger) {
  Viewport view = OnTenByEight(1.25);
  view.BeginDrag({0, 0});
  view.DragTo({1, 0});
  EXPECT_EQ(view.Horizontal(), -40);  // fifty to the inch, over 1.25
}

}  // namespace
}  // namespace tarnwick
