#include "geometry/modBandTeeth.h"

#include <gtest/gtest.h>

#include <string>

#include "geometry/modToothMoves.h"
#include "support/Pieces.h"
#include "support/Shapes.h"

namespace tarnwick {
namespace {

using test::ForEachPiece;
using test::FullTooth;
using test::Same;

const PlaneKit Kit(5);

void ExpectSame(const ToothProfile& got, const ToothProfile& want) {
  ForEachPiece(got, want,
               [](const char* name, const auto& a, const auto& b) { EXPECT_TRUE(Same(a, b)) << name; });
  EXPECT_EQ(got.JoinPoint, want.JoinPoint);
}

ToothProfile Moved(const ToothProfile& tooth, double dx, double dy = 0) {
  ToothProfile moved;
  TranslateTooth(Kit, tooth, moved, dx, dy);
  return moved;
}

/// A first tooth and three more of its shape, 2 inches apart.
BandTeeth FourTeeth() {
  BandTeeth teeth(Kit, {FullTooth()});
  for (std::size_t i = 1; i < 4; ++i) teeth.Repeat(i, 0, 2.0 * static_cast<double>(i));
  return teeth;
}

TEST(BandTeeth, LeavesTeethThatWerePlacedWhereTheyAre) {
  ToothProfile rough = FullTooth();
  rough.TopLine.End.X = -1.0000001;  // a move would round it
  const BandTeeth teeth(Kit, {FullTooth(), rough});
  ASSERT_EQ(teeth.Size(), 2U);
  ExpectSame(teeth.Tooth(0), FullTooth());
  ExpectSame(teeth.Tooth(1), rough);
}

TEST(BandTeeth, MovesARepeatedToothEvenByNothing) {
  ToothProfile shape = FullTooth();
  shape.TopLine.End.X = -1;  // each move takes a unit of the last place
  BandTeeth teeth(Kit, {shape});
  teeth.Repeat(1, 0, 0);
  EXPECT_EQ(teeth.Tooth(0).TopLine.End.X, -1);
  EXPECT_EQ(teeth.Tooth(1).TopLine.End.X, -0.99999);
  ExpectSame(teeth.Tooth(1), Moved(shape, 0));
}

TEST(BandTeeth, RepeatsTheShapeAndNotTheToothThatTookItsPlace) {
  BandTeeth teeth = FourTeeth();
  ToothProfile cut = FullTooth();
  cut.FaceLine = {};
  teeth.SetTooth(0, cut);
  ExpectSame(teeth.Tooth(0), cut);
  ExpectSame(teeth.Tooth(2), Moved(FullTooth(), 4));
}

TEST(BandTeeth, GrowsByTeethWithoutPieces) {
  BandTeeth teeth(Kit, {FullTooth()});
  teeth.Repeat(3, 0, 6);
  ASSERT_EQ(teeth.Size(), 4U);
  ExpectSame(teeth.Tooth(2), {});
  teeth.Resize(2);
  EXPECT_EQ(teeth.Size(), 2U);
}

TEST(BandTeeth, TurnsAroundEachToothAfterItHasBeenMoved) {
  BandTeeth teeth = FourTeeth();
  teeth.TurnAround(3, 10);
  for (std::size_t i = 0; i < 4; ++i) {
    SCOPED_TRACE(i);
    const ToothProfile straight = FourTeeth().Tooth(3 - i);
    ToothProfile turned;
    MirrorToothX(Kit, straight, turned);
    TranslateTooth(Kit, turned, turned, 10, 0);
    ExpectSame(teeth.Tooth(i), turned);
  }
}

TEST(BandTeeth, TurnsOverEachToothOfTheOtherEdgeAboutItsTip) {
  BandTeeth teeth = FourTeeth();
  teeth.AddOtherEdge();
  ASSERT_EQ(teeth.Size(), 8U);
  for (std::size_t i = 0; i < 4; ++i) {
    SCOPED_TRACE(i);
    const ToothProfile upper = teeth.Tooth(i);
    ToothProfile lower;
    MirrorToothY(Kit, Moved(upper, 0, -upper.FaceLine.Start.Y), lower);
    ExpectSame(teeth.Tooth(4 + i), lower);
  }
}

TEST(MovedX, IsTheXOfTheToothItself) {
  for (const bool turned : {false, true}) {
    for (const bool otherEdge : {false, true}) {
      ToothProfile shape = FullTooth();
      shape.FaceLine.Start.X = -3.0000049;
      shape.FirstArc.CenterX = -0.123454999;
      BandTeeth teeth(Kit, {shape});
      for (std::size_t i = 1; i < 4; ++i) teeth.Repeat(i, 0, 1.0000019 * static_cast<double>(i));
      if (turned) teeth.TurnAround(3, 3.1234567);
      if (otherEdge) teeth.AddOtherEdge();
      for (std::size_t i = 0; i < teeth.Size(); ++i) {
        const ToothPlace& place = teeth.Place(i);
        if (!place.Repeated) continue;
        SCOPED_TRACE(std::to_string(i) + (turned ? " turned" : "") + (otherEdge ? " other edge" : ""));
        const ToothProfile tooth = teeth.Tooth(i), from = teeth.ShapeAt(place);
        ForEachPiece(tooth, from, [&](const char* name, const auto& made, const auto& piece) {
          if constexpr (test::IsLine<decltype(made)>) {
            if (Same(piece, ToothLine{})) return;  // a notch that the mirror has left out
            EXPECT_EQ(teeth.MovedX(place, piece.Start.X), made.Start.X) << name;
            EXPECT_EQ(teeth.MovedX(place, piece.End.X), made.End.X) << name;
          } else if (made.Radius > 0) {
            EXPECT_EQ(teeth.MovedX(place, piece.CenterX), made.CenterX) << name;
          }
        });
      }
    }
  }
}

TEST(MovedX, KeepsWhatIsNoNumberOutOfTheBand) {
  BandTeeth teeth(Kit, {FullTooth()});
  teeth.Repeat(1, 0, 1.7e308);
  EXPECT_EQ(teeth.MovedX(teeth.Place(1), 1.7e308), 0) << "as a statement that is skipped";
}

// ---- runs

TEST(RunFrom, FindsTeethOfOneShape) {
  BandTeeth teeth = FourTeeth();
  const ToothRun run = teeth.RunFrom(1);
  EXPECT_EQ(run.Teeth, 1U);
  EXPECT_EQ(run.Times, 3U);
}

TEST(RunFrom, FindsSegmentsOfSeveralShapes) {
  BandTeeth teeth(Kit, Teeth(4, FullTooth()));
  for (std::size_t i = 4; i < 12; ++i) teeth.Repeat(i, 1 + (i - 4) % 3, static_cast<double>((i - 4) / 3));
  const ToothRun run = teeth.RunFrom(4);
  EXPECT_EQ(run.Teeth, 3U);
  EXPECT_EQ(run.Times, 2U) << "the third is not whole";
  EXPECT_EQ(teeth.RunFrom(10).Times, 1U);
}

TEST(RunFrom, EndsAtAToothThatIsCut) {
  BandTeeth teeth = FourTeeth();
  teeth.SetTooth(3, FullTooth());
  EXPECT_EQ(teeth.RunFrom(1).Times, 2U);
}

TEST(RunFrom, EndsWithItsEdge) {
  BandTeeth teeth = FourTeeth();
  teeth.Repeat(0, 0, 0);
  teeth.AddOtherEdge();
  EXPECT_EQ(teeth.RunFrom(0).Times, 4U);
  EXPECT_EQ(teeth.RunFrom(4).Times, 4U);
}

TEST(RunFrom, GoesByWhatStandsFurtherRight) {
  BandTeeth teeth = FourTeeth();
  teeth.Repeat(3, 0, -6);
  EXPECT_EQ(teeth.RunFrom(1).Times, 2U);
  teeth.Repeat(3, 0, 6);
  teeth.TurnAround(3, 10);  // the offsets fall now, and the teeth still stand from left to right
  EXPECT_EQ(teeth.RunFrom(0).Times, 3U);
}

}  // namespace
}  // namespace tarnwick
