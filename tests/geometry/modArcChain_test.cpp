#include "geometry/modArcChain.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "geometry/modGulletArea.h"
#include "geometry/modOneTooth.h"
#include "geometry/modTooth.h"
#include "support/Outline.h"
#include "support/RandomDesigns.h"
#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

const std::string DivisionMessage = "Division by zero\nError Number = 11";
const std::string OverflowMessage = "Overflow\nError Number = 6";

// ---- corrections of a double radius

struct DoubleRow {
  const char* Name;
  double Radius1, Radius2, Width;
  double WantRadius1, WantWidth;
  friend void PrintTo(const DoubleRow& row, std::ostream* out) { *out << row.Name; }
};
class DoubleRadiusMeasures : public testing::TestWithParam<DoubleRow> {};

TEST_P(DoubleRadiusMeasures, AreBoundInTheRecord) {
  const DoubleRow& row = GetParam();
  Workbench bench;
  bench.Saw.GulletInfo.Radius1 = row.Radius1;
  bench.Saw.GulletInfo.Radius2 = row.Radius2;
  bench.Saw.GulletInfo.Width = row.Width;
  PlaceDoubleRadius(bench.Work);
  EXPECT_DOUBLE_EQ(bench.Saw.GulletInfo.Radius1, row.WantRadius1);
  EXPECT_EQ(bench.Saw.GulletInfo.Radius2, row.Radius2) << "the second radius is never touched";
  EXPECT_DOUBLE_EQ(bench.Saw.GulletInfo.Width, row.WantWidth);
  EXPECT_DOUBLE_EQ(bench.Tooth.FirstArc.Radius, row.WantRadius1);
  EXPECT_EQ(bench.Tooth.SecondArc.Radius, row.Radius2);
  EXPECT_TRUE(bench.Say.Shown.empty());
}

// The least width is r1 * r1 / r2 + r2, the greatest 1.8 * r2; a width outside becomes the least.
INSTANTIATE_TEST_SUITE_P(
    Radii, DoubleRadiusMeasures,
    testing::Values(DoubleRow{"FirstOverHalfTheSecond", 0.5, 0.75, 0, 0.375, 0.9375},
                    DoubleRow{"FirstJustHalfTheSecond", 0.375, 0.75, 0, 0.375, 0.9375},
                    DoubleRow{"FirstTooSmall", 0.01, 0.75, 0, 0.03, 0.7512},
                    DoubleRow{"FirstAtTheLeast", 0.03, 0.75, 0, 0.03, 0.7512},
                    DoubleRow{"HalfOfATinySecondIsNotLifted", 0.25, 0.02, 0, 0.01, 0.025},
                    DoubleRow{"NoWidth", 0.25, 0.5, 0, 0.25, 0.625},
                    DoubleRow{"WidthTooSmall", 0.25, 0.5, 0.62, 0.25, 0.625},
                    DoubleRow{"WidthBetween", 0.25, 0.5, 0.7, 0.25, 0.7},
                    DoubleRow{"WidthAtTheGreatest", 0.25, 0.5, 0.9, 0.25, 0.9},
                    DoubleRow{"WidthTooGreatBecomesTheLeast", 0.25, 0.5, 0.91, 0.25, 0.625}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- placing a double radius

/// Radii of 0.25 and 0.75, centres half an inch apart, hung on (1, 4).
struct DoubleBench : Workbench {
  DoubleBench(double hook, double backAngle, double width) {
    Saw.ToothStyle = DoubleRadius;
    Saw.HookAngle = hook;
    Saw.GulletInfo.BackAngle = backAngle;
    Saw.GulletInfo.Radius1 = 0.25;
    Saw.GulletInfo.Radius2 = 0.75;
    Saw.GulletInfo.Width = width;
    Tooth.DropLine = {{1, 4.25}, {1, 4}};
  }
};

struct TurnRow {
  const char* Name;
  double Width;
  Point SecondCenter;
  double MeetAngle;
  friend void PrintTo(const TurnRow& row, std::ostream* out) { *out << row.Name; }
};
class DoubleRadiusOf : public testing::TestWithParam<TurnRow> {};

TEST_P(DoubleRadiusOf, TurnsTheSecondArcAboutTheFirstToHitTheWidth) {
  DoubleBench bench(0, 20, GetParam().Width);
  PlaceDoubleRadius(bench.Work);
  const ToothArc& first = bench.Tooth.FirstArc;
  const ToothArc& second = bench.Tooth.SecondArc;
  EXPECT_TRUE(Near(first.Center(), {1.25, 4}, 1e-9));
  EXPECT_EQ(first.StartAngle, 180);
  EXPECT_NEAR(first.EndAngle, GetParam().MeetAngle, 1e-6);
  EXPECT_TRUE(Near(second.Center(), GetParam().SecondCenter, 1e-6));
  EXPECT_EQ(second.StartAngle, first.EndAngle);
  EXPECT_EQ(second.EndAngle, 340);
  EXPECT_NEAR(second.CenterX + second.Radius - 1, GetParam().Width, 1e-9)
      << "from the face to the far side of the large circle";
}

// Off by 0.15 of the half inch between the centres: a turn of arcsin 0.3 = 17.457603, 0.476970 upward.
INSTANTIATE_TEST_SUITE_P(Width, DoubleRadiusOf,
                         testing::Values(TurnRow{"SumOfTheRadii", 1, {1.25, 4.5}, 270},
                                         TurnRow{"Narrower", 0.85, {1.1, 4.4769696}, 287.457603},
                                         TurnRow{"Wider", 1.15, {1.4, 4.4769696}, 252.542397}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(PlaceDoubleRadius, LeansWithTheHook) {
  DoubleBench bench(30, 20, 1);
  PlaceDoubleRadius(bench.Work);
  const double c30 = std::sqrt(0.75);
  const Point first{1 + 0.25 * c30, 4 - 0.125};
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), first, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {first.X + 0.25, first.Y + 0.5 * c30}, 1e-12));
  EXPECT_EQ(bench.Tooth.FirstArc.StartAngle, 150);
  EXPECT_EQ(bench.Tooth.FirstArc.EndAngle, 240);
  EXPECT_EQ(bench.Tooth.SecondArc.StartAngle, 240);
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, 310);
}

TEST(PlaceDoubleRadius, BringsAnglesBackOnce) {
  DoubleBench bench(-120, 20, 1);
  PlaceDoubleRadius(bench.Work);
  EXPECT_EQ(bench.Tooth.FirstArc.StartAngle, 300);
  EXPECT_EQ(bench.Tooth.FirstArc.EndAngle, 30);
  EXPECT_EQ(bench.Tooth.SecondArc.StartAngle, 30);
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, 100);
}

// ---- corrections of a triple radius

struct TripleRow {
  const char* Name;
  double Radius1, Radius2, Radius3, Width;
  double Want1, Want2, Want3, WantWidth;
  friend void PrintTo(const TripleRow& row, std::ostream* out) { *out << row.Name; }
};
class TripleRadiusMeasures : public testing::TestWithParam<TripleRow> {};

TEST_P(TripleRadiusMeasures, AreBoundInTheRecord) {
  const TripleRow& row = GetParam();
  Workbench bench;
  BandSaw::Gullet& gullet = bench.Saw.GulletInfo;
  gullet.Radius1 = row.Radius1;
  gullet.Radius2 = row.Radius2;
  gullet.Radius3 = row.Radius3;
  gullet.Width = row.Width;
  PlaceTripleRadius(bench.Work);
  EXPECT_DOUBLE_EQ(gullet.Radius1, row.Want1);
  EXPECT_DOUBLE_EQ(gullet.Radius2, row.Want2);
  EXPECT_DOUBLE_EQ(gullet.Radius3, row.Want3);
  EXPECT_DOUBLE_EQ(gullet.Width, row.WantWidth);
  EXPECT_EQ(bench.Tooth.FirstArc.Radius, gullet.Radius1);
  EXPECT_EQ(bench.Tooth.SecondArc.Radius, gullet.Radius2);
  EXPECT_EQ(bench.Tooth.ThirdArc.Radius, gullet.Radius3);
  EXPECT_TRUE(bench.Say.Shown.empty());
}

// The width lies between r1 + r3 + r2 / 4 and r2 * 1.25, and goes to the nearer of the two.
INSTANTIATE_TEST_SUITE_P(
    Radii, TripleRadiusMeasures,
    testing::Values(TripleRow{"SecondTooSmallBindsTheOthers", 0.5, 0.25, 0.5, 0, 0.09375, 0.375, 0.28125,
                              0.46875},
                    TripleRow{"FirstTooSmall", 0.01, 0.4, 0.2, 0, 0.03, 0.4, 0.2, 0.33},
                    TripleRow{"FirstOverAQuarter", 0.26, 1, 0.5, 1, 0.25, 1, 0.5, 1},
                    TripleRow{"ThirdUnderAQuarter", 0.125, 1, 0.125, 0, 0.125, 1, 0.25, 0.625},
                    TripleRow{"ThirdOverThreeQuarters", 0.125, 1, 0.8, 1.2, 0.125, 1, 0.75, 1.2},
                    TripleRow{"WidthTooSmall", 0.125, 1, 0.5, 0.5, 0.125, 1, 0.5, 0.875},
                    TripleRow{"WidthTooGreat", 0.125, 1, 0.5, 2, 0.125, 1, 0.5, 1.25},
                    TripleRow{"AllWithin", 0.125, 1, 0.5, 1, 0.125, 1, 0.5, 1}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- placing a triple radius

/// Radii of 0.25, 1 and 0.25, as wide as may be: the three centres are three quarters of an inch apart.
struct TripleBench : Workbench {
  explicit TripleBench(double hook, double backAngle = 20) {
    Saw.ToothStyle = TripleRadius;
    Saw.HookAngle = hook;
    Saw.GulletInfo.BackAngle = backAngle;
    Saw.GulletInfo.Radius1 = Saw.GulletInfo.Radius3 = 0.25;
    Saw.GulletInfo.Radius2 = 1;
    Saw.GulletInfo.Width = 1.25;
    Tooth.DropLine = {{1, 4.25}, {1, 4}};
  }
};

struct HookRow {
  const char* Name;
  double Hook;
  double StartOfFirst, StartOfSecond, StartOfThird, EndOfThird;
  friend void PrintTo(const HookRow& row, std::ostream* out) { *out << row.Name; }
};
class TripleRadiusOf : public testing::TestWithParam<HookRow> {};

TEST_P(TripleRadiusOf, LaysTheSecondArcByTheTriangleOfTheCentres) {
  TripleBench bench(GetParam().Hook);
  PlaceTripleRadius(bench.Work);
  const double h = GetParam().Hook * Pi / 180;
  const Point first{1 + 0.25 * std::cos(h), 4 - 0.25 * std::sin(h)};
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), first, 1e-9));
  EXPECT_TRUE(Near(bench.Tooth.ThirdArc.Center(),
                   {first.X + 0.75 * std::cos(h), first.Y - 0.75 * std::sin(h)}, 1e-9));
  const double up = Pi / 3 - h;
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(),
                   {first.X + 0.75 * std::cos(up), first.Y + 0.75 * std::sin(up)}, 2e-5));
  EXPECT_NEAR(bench.Tooth.FirstArc.StartAngle, GetParam().StartOfFirst, 1e-9);
  EXPECT_NEAR(bench.Tooth.SecondArc.StartAngle, GetParam().StartOfSecond, 2e-3);
  EXPECT_NEAR(bench.Tooth.ThirdArc.StartAngle, GetParam().StartOfThird, 2e-3);
  EXPECT_NEAR(bench.Tooth.ThirdArc.EndAngle, GetParam().EndOfThird, 1e-9);
  EXPECT_EQ(bench.Tooth.FirstArc.EndAngle, bench.Tooth.SecondArc.StartAngle);
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, bench.Tooth.ThirdArc.StartAngle);
}

INSTANTIATE_TEST_SUITE_P(Hooks, TripleRadiusOf,
                         testing::Values(HookRow{"Upright", 0, 180, 240, 300, 340},
                                         HookRow{"ThirdCentreBelowTheFirst", 30, 150, 210, 270, 310},
                                         HookRow{"ThirdCentreAboveTheFirst", -30, 210, 270, 330, 10}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(PlaceTripleRadius, GoesOnWhenTheCentresCannotClose) {
  TripleBench bench(0);
  bench.Tooth.DropLine.End = {1e20, 4};  // all centres fall on one point
  PlaceTripleRadius(bench.Work);
  EXPECT_TRUE(bench.Say.Shown.empty());
  EXPECT_TRUE(Near(bench.Tooth.ThirdArc.Center(), bench.Tooth.FirstArc.Center(), 1e-12));
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, bench.Tooth.ThirdArc.StartAngle) << "placed to its end";
}

// ---- tangency

class ArcChain : public testing::TestWithParam<std::int16_t> {};

/// Each arc starts where the one before ends, on the line through both centres, and the first one touches the
/// face.
TEST_P(ArcChain, IsTangentThroughout) {
  test::Dice dice(20251121);
  const PlaneKit fine(10);
  for (int i = 0; i < 500; ++i) {
    Workbench bench(test::PlausibleDesign(dice, GetParam()));
    bench.Saw.HookAngle = dice.Between(-20, 40);
    bench.Saw.GulletInfo.Width = dice.Between(0, 2);
    bench.Tooth.DropLine.End = {dice.Between(-1, 1), dice.Between(2, 8)};
    ToothWork work{bench.Saw, bench.Tooth, fine, bench.Say};
    std::vector<const ToothArc*> chain{&bench.Tooth.FirstArc, &bench.Tooth.SecondArc};
    if (GetParam() == TripleRadius) {
      PlaceTripleRadius(work);
      chain.push_back(&bench.Tooth.ThirdArc);
    } else {
      PlaceDoubleRadius(work);
    }
    ASSERT_TRUE(bench.Say.Shown.empty());
    EXPECT_TRUE(Near(StartOf(*chain.front()), bench.Tooth.DropLine.End, 1e-9)) << i;
    EXPECT_NEAR(Sweep(*chain.front()) + bench.Saw.HookAngle,
                chain.front()->EndAngle - 180 + 2 * bench.Saw.HookAngle, 1e-9)
        << i << ": square to the face at its start";
    for (std::size_t k = 1; k < chain.size(); ++k) {
      EXPECT_TRUE(Near(StartOf(*chain[k]), EndOf(*chain[k - 1]), 1e-7)) << i << ", arc " << k;
      EXPECT_EQ(chain[k]->StartAngle, chain[k - 1]->EndAngle) << i << ", arc " << k;
      EXPECT_NEAR(test::Length(chain[k]->Center(), chain[k - 1]->Center()),
                  std::abs(chain[k]->Radius - chain[k - 1]->Radius), 1e-7)
          << i << ", arc " << k;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, ArcChain,
                         testing::Values(std::int16_t{DoubleRadius}, std::int16_t{TripleRadius}),
                         [](const auto& style) { return "Style" + std::to_string(style.param); });

// ---- depth

TEST(ArcChainDepth, CountsFromTheTipToTheTopOfTheLastCircle) {
  Workbench bench;
  bench.Saw.Width = 5;
  bench.Saw.TipClear = 0.25;
  bench.Tooth.SecondArc = {1, 4, 0.5, 0, 0};
  bench.Tooth.ThirdArc = {1, 3.5, 0.25, 0, 0};
  EXPECT_DOUBLE_EQ(DepthOfArc(bench.Work, bench.Tooth.SecondArc), 1.25);
  EXPECT_DOUBLE_EQ(SecondArcDepth(bench.Work), 1.25);
  EXPECT_DOUBLE_EQ(ThirdArcDepth(bench.Work), 1.5);
}

struct DepthBench : Workbench {
  DepthBench(Flag seat, double depth) {
    Saw.Width = 5;
    Saw.HookAngle = 45;
    Saw.SeatInfo.State = seat;
    Saw.GulletInfo.Depth = depth;
    Tooth.FaceLine = {{0, 5}, {-0.5, 4.5}};
    Tooth.SeatLine = {{-0.5, 4.5}, {-0.25, 4.25}};
    Tooth.DropLine = {{-0.25, 4.25}, {-0.25, 4.25}};
    Tooth.FirstArc = {0, 4, 0.25, 135, 200};
    Tooth.SecondArc = {0.25, 4.25, 0.5, 200, 250};
    Tooth.ThirdArc = {0.5, 4, 0.25, 250, 300};
  }
};

// The second arc lies as deep as 1.25, the third too.
TEST(ApplyDoubleRadiusDepth, MovesBothArcsDownTheFace) {
  DepthBench bench(True, 1.5);
  ApplyDoubleRadiusDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {-0.25, 3.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {0, 4}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.ThirdArc.Center(), {0.5, 4}, 0));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{-0.25, 4.25}, {-0.5, 4}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.FaceLine.End, {-0.5, 4.5}, 0));
}

TEST(ApplyTripleRadiusDepth, MovesAllThreeAndWithoutASeatTheFacesEnd) {
  DepthBench bench(False, 1.5);
  ApplyTripleRadiusDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {-0.25, 3.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {0, 4}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.ThirdArc.Center(), {0.25, 3.75}, 1e-12));
  const Point end{-0.75, 4.25};
  EXPECT_TRUE(Near(bench.Tooth.FaceLine, {{0, 5}, end}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {end, end}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {end, end}, 1e-12));
}

TEST(ApplyArcChainDepth, DoesNothingWhereTheArcsLieDeepEnough) {
  for (const auto apply : {ApplyDoubleRadiusDepth, ApplyTripleRadiusDepth}) {
    for (const double depth : {1.25, 1.0, 0.0}) {
      DepthBench bench(False, depth);
      const ToothProfile before = bench.Tooth;
      apply(bench.Work);
      EXPECT_TRUE(Same(bench.Tooth.SecondArc, before.SecondArc));
      EXPECT_TRUE(Same(bench.Tooth.ThirdArc, before.ThirdArc));
      EXPECT_TRUE(Same(bench.Tooth.FaceLine, before.FaceLine));
      EXPECT_EQ(bench.Saw.GulletInfo.Depth, depth);
    }
  }
}

// ---- area

// The triangle between the two ends and the foot, 0.1875, and two quarter circles less their triangles:
// (0.25² + 0.75²) / 2 * (pi / 2 - 1). A degree counts as 0.01745,
// and each figure is cut to five places, which together costs a ten thousandth.
TEST(AddDoubleRadiusFigures, FillsThePocketOfBothArcs) {
  DoubleBench bench(0, 0, 1);
  PlaceDoubleRadius(bench.Work);
  bench.Tooth.BackLine.Start = {2, 4.5};
  EXPECT_NEAR(AddDoubleRadiusFigures(bench.Work, 3), 3.365874, 2e-4);
}

// A trapezoid of 0.243570 and three segments of sixty degrees: (2 * 0.25² + 1) / 2 * (pi / 3 - sin 60).
TEST(AddTripleRadiusFigures, FillsThePocketOfAllThreeArcs) {
  TripleBench bench(0, 0);
  PlaceTripleRadius(bench.Work);
  bench.Tooth.BackLine.Start = {2.25, 4};
  EXPECT_NEAR(AddTripleRadiusFigures(bench.Work, 3), 3.345479, 2e-4);
}

// ---- failures

TEST(PlaceDoubleRadius, StopsAtAFailureAndSaysSo) {
  DoubleBench bench(-120, 20, 0.5);
  bench.Saw.GulletInfo.Radius2 = 0;  // and so the first becomes 0 too
  PlaceDoubleRadius(bench.Work);
  EXPECT_EQ(bench.Say.Texts(), std::vector{DivisionMessage});
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {1, 4}, 1e-12)) << "what was placed before stays";
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {1, 4}, 1e-12));
  EXPECT_EQ(bench.Tooth.FirstArc.EndAngle, 390) << "the angles were not reached any more";
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, 460);
  EXPECT_EQ(bench.Saw.GulletInfo.Width, 0.5);
  EXPECT_EQ(bench.Saw.GulletInfo.Radius1, 0);
}

TEST(PlaceTripleRadius, StopsAtAFailureAndSaysSo) {
  TripleBench bench(0);
  bench.Saw.GulletInfo.Radius2 = 1.7e308;
  PlaceTripleRadius(bench.Work);
  EXPECT_EQ(bench.Say.Texts(), std::vector{OverflowMessage});
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {1.25, 4}, 1e-12)) << "what was placed before stays";
  EXPECT_DOUBLE_EQ(bench.Saw.GulletInfo.Radius3, 1.7e308 * 0.25);
  EXPECT_EQ(bench.Saw.GulletInfo.Width, 1.25);
  EXPECT_TRUE(Same(bench.Tooth.ThirdArc, {0, 0, 1.7e308 * 0.25, 0, 0}));
  EXPECT_EQ(bench.Tooth.SecondArc.CenterX, 0);
}

TEST(PlaceDoubleRadius, SpeaksOnceARound) {
  Workbench bench;
  bench.Saw.ToothStyle = DoubleRadius;
  bench.Saw.Width = 5;
  bench.Saw.Pitch = 2;
  bench.Saw.NumTeeth = 10;
  bench.Saw.GulletInfo.BackRadius = -1;  // asks for a second round
  CalculateTooth(bench.Work);
  EXPECT_EQ(bench.Say.Texts(), (std::vector{DivisionMessage, DivisionMessage}));
}

TEST(DoubleRadiusBand, WithoutLengthSpeaksAndIsCalculatedAllTheSame) {
  BandSaw saw;
  saw.ToothStyle = DoubleRadius;
  saw.Width = 5;
  saw.GulletInfo.Radius1 = 0.25;
  saw.GulletInfo.Radius2 = 0.5;  // held to three quarters of no pitch
  test::CollectedMessages say;
  const EntityList list = CalculateSaw(saw, {}, say);
  ASSERT_FALSE(say.Shown.empty());
  for (const std::string& text : say.Texts()) EXPECT_EQ(text, DivisionMessage);
  EXPECT_EQ(saw.GulletInfo.Radius2, 0);
  EXPECT_EQ(saw.ContainsInfo.Teeth, True);
  EXPECT_GT(list.Count(), 0U);
}

}  // namespace
}  // namespace tarnwick
