// What holds for every band, whatever its measures: over many random designs, the same ones each time.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <variant>
#include <vector>

#include "dxf/modDXF.h"
#include "geometry/modTooth.h"
#include "model/modFields.h"
#include "model/modZoom.h"
#include "support/CollectedMessages.h"
#include "support/DegenerateDesigns.h"
#include "support/RandomDesigns.h"
#include "support/Shapes.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;
using test::Dice;

// ---- points of a drawing

Point OnArc(const ArcEntity& arc, double degrees) {
  const double angle = degrees * 3.14159265358979 / 180;
  return {arc.CenterX + arc.Radius * std::cos(angle), arc.CenterY + arc.Radius * std::sin(angle)};
}

std::array<Point, 2> EndsOf(const Entity& entity) {
  if (const auto* line = std::get_if<LineEntity>(&entity))
    return {Point{line->Corner1X, line->Corner1Y}, Point{line->Corner4X, line->Corner4Y}};
  const auto& arc = std::get<ArcEntity>(entity);
  return {OnArc(arc, arc.StartAngle), OnArc(arc, arc.EndAngle)};
}

/// Ends, and for an arc a point each degree.
std::vector<Point> PointsOf(const Entity& entity) {
  const auto ends = EndsOf(entity);
  std::vector<Point> points(ends.begin(), ends.end());
  if (const auto* arc = std::get_if<ArcEntity>(&entity)) {
    double end = arc->EndAngle;
    if (end < arc->StartAngle) end += 360;
    for (double angle = arc->StartAngle; angle < end; ++angle) points.push_back(OnArc(*arc, angle));
  }
  return points;
}

bool IsOutline(const Entity& entity) {
  const auto* line = std::get_if<LineEntity>(&entity);
  return line && line->IsOutline;
}

/// The pieces of the teeth, in the order of the list.
std::vector<Entity> TeethOf(const EntityList& list) {
  std::vector<Entity> pieces;
  std::copy_if(list.Entities.begin(), list.Entities.end(), std::back_inserter(pieces),
               [](const Entity& entity) { return !IsOutline(entity); });
  return pieces;
}

double Far(Point p, Point q) { return std::hypot(p.X - q.X, p.Y - q.Y); }

/// The widest gap between a piece and the next one, walked from end to end: each piece is entered at the end
/// that lies nearer, and left at its other one.
double WidestGap(const std::vector<Entity>& pieces) {
  double widest = 0;
  if (pieces.size() < 2) return widest;
  const auto first = EndsOf(pieces[0]), second = EndsOf(pieces[1]);
  const auto nearest = [](Point p, const std::array<Point, 2>& ends) {
    return std::min(Far(p, ends[0]), Far(p, ends[1]));
  };
  Point at = nearest(first[0], second) < nearest(first[1], second) ? first[0] : first[1];
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    const auto ends = EndsOf(pieces[i]);
    const bool turned = Far(at, ends[1]) < Far(at, ends[0]);
    widest = std::max(widest, turned ? Far(at, ends[1]) : Far(at, ends[0]));
    at = turned ? ends[0] : ends[1];
  }
  return widest;
}

std::string Told(const BandSaw& saw) {
  std::string told;
  ForEachField(saw, [&](const char* name, const auto& field) {
    if constexpr (std::is_arithmetic_v<std::decay_t<decltype(field)>>) {
      if (field != 0) told += std::string(name) + "=" + testing::PrintToString(+field) + " ";
    }
  });
  return told;
}

// ---- bands that somebody could order

constexpr int Bands = 400;

class PlausibleBand : public testing::TestWithParam<std::int16_t> {
 protected:
  /// Calls `check(saw, list)` for each random band of the style; `vary` may change a design beforehand.
  template <class Vary, class Check>
  void ForEachBand(const CalculationSettings& settings, Vary&& vary, Check&& check) {
    Dice dice(20 + static_cast<std::uint64_t>(GetParam()));
    for (int i = 0; i < Bands && !HasFailure(); ++i) {
      BandSaw saw = test::PlausibleDesign(dice, GetParam());
      vary(saw);
      const BandSaw design = saw;
      CollectedMessages say;
      const EntityList list = CalculateSaw(saw, settings, say);
      SCOPED_TRACE("band " + std::to_string(i) + ": " + Told(design));
      ASSERT_GT(list.Count(), 0u);
      check(saw, list);
    }
  }
};

// What five places leave of a crossing. Two pieces of an orderable band of these styles never lie further
// apart. Where nobody can order the band, the rules themselves leave gaps: back and top that do not meet keep
// their full lengths, and an arc raised further than its radius passes the seat by.
constexpr double Rounded = 5e-5;

TEST_P(PlausibleBand, IsOneUnbrokenLineOfTeeth) {
  ForEachBand(
      {}, [](BandSaw&) {},
      [](const BandSaw&, const EntityList& list) { EXPECT_LT(WidestGap(TeethOf(list)), Rounded); });
}

TEST_P(PlausibleBand, BeginsAtZeroAndEndsAtItsLastJoin) {
  for (const std::int16_t direction : {std::int16_t{1}, RightToLeft}) {
    CalculationSettings settings;
    settings.TeethDirection = direction;
    ForEachBand(
        settings, [](BandSaw&) {},
        [&](const BandSaw& saw, const EntityList& list) {
          double left = std::numeric_limits<double>::infinity(), right = -left;
          for (const Entity& entity : TeethOf(list)) {
            for (const Point p : PointsOf(entity)) {
              left = std::min(left, p.X);
              right = std::max(right, p.X);
            }
          }
          EXPECT_NEAR(left, 0, Rounded);
          EXPECT_NEAR(right, list.Header.MaxX, Rounded);
          EXPECT_NEAR(list.Header.MaxX, saw.NumTeeth * saw.Pitch, Rounded);
        });
  }
}

std::vector<Point> AllEnds(const EntityList& list) {
  std::vector<Point> ends;
  for (const Entity& entity : TeethOf(list)) {
    for (const Point p : EndsOf(entity)) ends.push_back(p);
  }
  return ends;
}

TEST_P(PlausibleBand, IsItsOwnMirrorWhenItIsTurnedAround) {
  CalculationSettings turned;
  turned.TeethDirection = RightToLeft;
  ForEachBand(
      {}, [](BandSaw&) {},
      [&](const BandSaw& saw, const EntityList& list) {
        BandSaw again = saw;
        CollectedMessages say;
        const EntityList other = CalculateSaw(again, turned, say);
        EXPECT_TRUE(SameSaw(saw, again)) << "the direction is no measure of the design";
        EXPECT_EQ(other.Count(), list.Count());
        EXPECT_NEAR(other.Header.MaxX, list.Header.MaxX, Rounded);
        const std::vector<Point> mirrored = AllEnds(other);
        for (const Point p : AllEnds(list)) {
          const Point want{list.Header.MaxX - p.X, p.Y};
          EXPECT_TRUE(std::any_of(mirrored.begin(), mirrored.end(),
                                  [&](Point q) { return Far(want, q) < 2 * Rounded; }))
              << "nothing at " << testing::PrintToString(want);
        }
      });
}

TEST_P(PlausibleBand, HasTwiceThePiecesWithTeethOnBothEdges) {
  std::vector<std::size_t> single;
  ForEachBand(
      {}, [](BandSaw&) {},
      [&](const BandSaw&, const EntityList& list) { single.push_back(TeethOf(list).size()); });
  std::size_t i = 0;
  ForEachBand(
      {}, [](BandSaw& saw) { saw.BothEdges = True; },
      [&](const BandSaw&, const EntityList& list) { EXPECT_EQ(TeethOf(list).size(), 2 * single[i++]); });
}

TEST_P(PlausibleBand, LiesWithinItsBox) {
  for (const Flag bothEdges : {False, True}) {
    ForEachBand(
        {}, [&](BandSaw& saw) { saw.BothEdges = bothEdges; },
        [](const BandSaw&, const EntityList& list) {
          const Extents box = ComputeExtents(list);
          constexpr double tolerance = 2e-6;  // two units of the box's last place
          for (const Entity& entity : list.Entities) {
            for (const Point p : PointsOf(entity)) {
              ASSERT_GE(p.X, box.MinX - tolerance);
              ASSERT_LE(p.X, box.MaxX + tolerance);
              ASSERT_GE(p.Y, box.MinY - tolerance);
              ASSERT_LE(p.Y, box.MaxY + tolerance);
            }
          }
        });
  }
}

TEST_P(PlausibleBand, MarksTheLapOfAnOverlapItsLengthAwayFromTheEnds) {
  ForEachBand(
      {},
      [](BandSaw& saw) {
        saw.DesignInfo.JoinStyle = OverlapJoin;
        saw.GeneralInfo.PlateThick = 0.05;
      },
      [](const BandSaw& saw, const EntityList& list) {
        std::vector<double> dotted;
        for (const Entity& entity : list.Entities) {
          if (const auto* line = std::get_if<LineEntity>(&entity); line && line->IsDotted)
            dotted.push_back(line->Corner1X);
        }
        ASSERT_EQ(dotted.size(), 2u);
        EXPECT_NEAR(dotted[0], saw.Length * 12, Rounded);
        EXPECT_NEAR(dotted[1], list.Header.MaxX - saw.Length * 12, Rounded);
        EXPECT_NEAR(list.Header.MaxX, saw.NumTeeth * saw.Pitch + 0.625, Rounded);
      });
}

INSTANTIATE_TEST_SUITE_P(Styles, PlausibleBand, testing::Values(SquareBack, RoundBack), [](const auto& row) {
  return row.param == SquareBack ? "SquareBack" : "RoundBack";
});

// ---- bands that nobody could order

void ExpectFinite(const BandSaw& saw) {
  ForEachField(saw, [](const char* name, const auto& field) {
    using Field = std::decay_t<decltype(field)>;
    if constexpr (std::is_same_v<Field, double>) {
      EXPECT_TRUE(std::isfinite(field)) << name;
    } else if constexpr (std::is_same_v<Field, SegmentMeasures>) {
      for (const double measure : field) EXPECT_TRUE(std::isfinite(measure)) << name;
    }
  });
}

void ExpectFinite(const EntityList& list) {
  const auto finite = [](std::initializer_list<double> numbers) {
    return std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isfinite(number); });
  };
  const ListHeader& header = list.Header;
  EXPECT_TRUE(finite({header.MaxX, header.MaxY, header.ViewCenterX, header.ViewCenterY}));
  for (const Entity& entity : list.Entities) {
    if (const auto* line = std::get_if<LineEntity>(&entity)) {
      ASSERT_TRUE(finite({line->Corner1X, line->Corner1Y, line->Corner4X, line->Corner4Y}));
    } else {
      const auto& arc = std::get<ArcEntity>(entity);
      ASSERT_TRUE(finite({arc.CenterX, arc.CenterY, arc.Radius, arc.StartAngle, arc.EndAngle}));
    }
  }
  const Extents box = ComputeExtents(list);
  EXPECT_TRUE(finite({box.MinX, box.MaxX, box.MinY, box.MaxY, box.CenterX, box.CenterY}));
}

class DegenerateBand : public testing::TestWithParam<int> {};

TEST_P(DegenerateBand, EndsInFiniteNumbersEverywhere) {
  Dice dice(500 + static_cast<std::uint64_t>(GetParam()));
  for (int i = 0; i < Bands && !HasFailure(); ++i) {
    BandSaw saw = test::DegenerateDesign(dice, static_cast<std::int16_t>(GetParam()));
    CalculationSettings settings;
    settings.TeethDirection = dice.Chance(0.5) ? RightToLeft : std::int16_t{1};
    settings.DecimalPlaces = static_cast<std::int16_t>(dice.Whole(4, 10));
    const BandSaw design = saw;
    CollectedMessages say;
    const EntityList list = CalculateSaw(saw, settings, say);
    SCOPED_TRACE("band " + std::to_string(i) + ": " + Told(design));
    ExpectFinite(saw);
    ExpectFinite(list);
    if (const auto text = DxfText(list, settings)) {
      EXPECT_EQ(text->find("nan"), std::string::npos);
      EXPECT_EQ(text->find("inf"), std::string::npos);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, DegenerateBand, testing::Range(0, 11));

}  // namespace
}  // namespace tarnwick
