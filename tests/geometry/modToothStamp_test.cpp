#include "geometry/modToothStamp.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <type_traits>
#include <variant>

#include "geometry/modBand.h"
#include "geometry/modTooth.h"
#include "model/modZoom.h"
#include "support/CollectedMessages.h"
#include "support/DegenerateDesigns.h"
#include "support/Pieces.h"

namespace tarnwick {
namespace {

using test::Dice;

/// A text in which every bit of an entity's numbers shows.
struct Telling {
  std::string operator()(const LineEntity& line) const {
    return "line" + Numbers({line.Corner1X, line.Corner1Y, line.Corner4X, line.Corner4Y}) +
           (line.IsOutline ? " outline" : "") + (line.IsDotted ? " dotted" : "");
  }
  std::string operator()(const ArcEntity& arc) const {
    return "arc" + Numbers({arc.CenterX, arc.CenterY, arc.Radius, arc.StartAngle, arc.EndAngle});
  }
  template <class Other>
  std::string operator()(const Other& /*entity*/) const {
    return "other";
  }
  static std::string Numbers(std::initializer_list<double> numbers) {
    std::string text;
    char digits[40];
    for (const double number : numbers) {
      std::snprintf(digits, sizeof digits, " %a", number);
      text += digits;
    }
    return text;
  }
};

std::string Told(const Entity& entity) { return std::visit(Telling{}, entity); }

/// Whether `next` is `entity` again, no further left.
template <class Kind, class NextKind>
bool Repeats(const Kind& entity, const NextKind& next) {
  if constexpr (!std::is_same_v<Kind, NextKind>) {
    return false;
  } else if constexpr (std::is_same_v<Kind, LineEntity>) {
    return entity.Corner1Y == next.Corner1Y && entity.Corner4Y == next.Corner4Y &&
           entity.Corner1X <= next.Corner1X && entity.Corner4X <= next.Corner4X;
  } else if constexpr (std::is_same_v<Kind, ArcEntity>) {
    return entity.CenterY == next.CenterY && entity.Radius == next.Radius &&
           entity.StartAngle == next.StartAngle && entity.EndAngle == next.EndAngle &&
           entity.CenterX <= next.CenterX;
  } else {
    return false;
  }
}

void ExpectSame(const EntityList& got, const EntityList& want) {
  ASSERT_EQ(got.Entities.size(), want.Entities.size());
  for (std::size_t i = 0; i < got.Entities.size(); ++i) {
    ASSERT_EQ(Told(got.Entities[i]), Told(want.Entities[i])) << "entity " << i;
  }
}

/// What every tooth of a band adds when each is made whole.
EntityList ToothByTooth(const PlaneKit& kit, const BandTeeth& teeth) {
  EntityList list;
  PieceList pieces(kit, list, RoomFor(static_cast<int>(teeth.Size()), PiecesPerTooth));
  for (std::size_t i = 0; i < teeth.Size(); ++i) AddTooth(pieces, teeth.Tooth(i));
  return list;
}

TEST(ToothStamp, TellsWhichLinesExistWhereItStands) {
  const PlaneKit kit(5);
  ToothProfile shape;
  shape.FaceLine = {{0, 0}, {0.00001, 0}};  // ends that some offsets round to one place
  shape.TopLine = {{1, 0}, {2, 0}};
  BandTeeth teeth(kit, {shape});
  teeth.Repeat(1, 0, 3);
  teeth.Repeat(2, 0, -3.000005);
  EntityList list;
  PieceList pieces(kit, list, 100);
  const ToothStamp stamp(teeth.ShapeAt(teeth.Place(1)), teeth.Tooth(1));
  for (const std::size_t i : {1U, 2U}) {
    EntityList one;
    PieceList piecesOfOne(kit, one, 100);
    AddTooth(piecesOfOne, teeth.Tooth(i));
    EXPECT_EQ(stamp.Add(pieces, teeth, teeth.Place(i)), one.Entities.size() == 2 ? 3U : 1U) << i;
  }
  ExpectSame(list, [&] {
    EntityList both;
    PieceList piecesOfBoth(kit, both, 100);
    for (const std::size_t i : {1U, 2U}) AddTooth(piecesOfBoth, teeth.Tooth(i));
    return both;
  }());
}

class StampedBand : public testing::TestWithParam<std::int16_t> {};

TEST_P(StampedBand, IsWhatItsTeethAddOneByOne) {
  Dice dice(static_cast<std::uint64_t>(4711 + GetParam()));
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    SCOPED_TRACE("design " + std::to_string(i));
    const PlaneKit kit(dice.Whole(4, 10));
    ToothProfile first = test::FullTooth();
    first.BothEdges = dice.Chance(0.5) ? True : False;
    BandSaw saw =
        dice.Chance(0.7) ? test::PlausibleDesign(dice, GetParam()) : test::DegenerateDesign(dice, GetParam());
    if (saw.NumTeeth < 0) continue;
    CalculationSettings settings;
    settings.TeethDirection = dice.Chance(0.5) ? RightToLeft : std::int16_t{1};
    const BandTeeth teeth = LayOutBand(kit, saw, first, settings);
    EntityList whole = BuildBandEntities(kit, saw, teeth);
    const EntityList want = ToothByTooth(kit, teeth);
    ASSERT_GE(whole.Entities.size(), want.Entities.size());
    whole.Entities.resize(want.Entities.size());  // without the outline
    ExpectSame(whole, want);
  }
}

TEST_P(StampedBand, RepeatsWhatItSaysAndHasTheBoxOfAllItsPieces) {
  Dice dice(static_cast<std::uint64_t>(815 + GetParam()));
  std::size_t repetitions = 0;
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    SCOPED_TRACE("design " + std::to_string(i));
    BandSaw saw =
        dice.Chance(0.7) ? test::PlausibleDesign(dice, GetParam()) : test::DegenerateDesign(dice, GetParam());
    if (dice.Chance(0.4) && saw.NumTeeth > 0) test::MakeVariable(dice, saw, dice.Whole(3, 7), True);
    if (dice.Chance(0.4)) saw.BothEdges = True;
    CalculationSettings settings;
    settings.TeethDirection = dice.Chance(0.5) ? RightToLeft : std::int16_t{1};
    settings.DecimalPlaces = static_cast<std::int16_t>(dice.Whole(4, 10));
    test::CollectedMessages say;
    EntityList list = CalculateSaw(saw, settings, say);

    repetitions += list.Repetitions.size();
    for (const Repetition& part : list.Repetitions) {
      ASSERT_GT(part.Times, 1U);
      ASSERT_LE(part.End(), list.Entities.size());
      for (std::size_t k = part.First; k + part.Size < part.End(); ++k) {
        const auto repeats = [](const auto& entity, const auto& next) { return Repeats(entity, next); };
        EXPECT_TRUE(std::visit(repeats, list.Entities[k], list.Entities[k + part.Size])) << k;
      }
    }
    const Extents quick = ComputeExtents(list);
    list.Repetitions.clear();
    const Extents slow = ComputeExtents(list);
    EXPECT_EQ(quick.MinX, slow.MinX);
    EXPECT_EQ(quick.MaxX, slow.MaxX);
    EXPECT_EQ(quick.MinY, slow.MinY);
    EXPECT_EQ(quick.MaxY, slow.MaxY);
  }
  EXPECT_GT(repetitions, 100U);
}

INSTANTIATE_TEST_SUITE_P(Styles, StampedBand, testing::ValuesIn(test::AllStyles),
                         [](const auto& style) { return "Style" + std::to_string(style.param); });

}  // namespace
}  // namespace tarnwick
