// Segments that nobody could order: whatever stands in a design, band and picture end soon and in finite
// numbers.

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <string>
#include <type_traits>
#include <variant>

#include "dxf/modDXF.h"
#include "geometry/modTooth.h"
#include "model/modFields.h"
#include "support/CollectedMessages.h"
#include "support/RandomDesigns.h"

namespace tarnwick {
namespace {

using test::Dice;

constexpr double OddMeasures[] = {0,   -1,   -0.25, 1e-12, 1e-6, 0.00004, 0.5,
                                  100, 1e15, 1e160, 1e300, -1e6, -1e300};
constexpr double OddAngles[] = {0, 90, -90, 89.999, 180, 270, 359.5, 360, 540, -270, -400, 1e6, 1e300};

void Spoil(Dice& dice, BandSaw& saw) {
  const auto spoil = [&](const char*, auto& field) {
    using Field = std::remove_reference_t<decltype(field)>;
    if constexpr (std::is_same_v<Field, double>) {
      if (dice.Chance(0.08)) field = dice.Choice(OddMeasures);
    } else if constexpr (std::is_same_v<Field, SegmentMeasures>) {
      for (double& measure : field) {
        if (dice.Chance(0.08)) measure = dice.Choice(OddMeasures);
      }
    }
  };
  ForEachField(saw, spoil);
  for (double* angle :
       {&saw.HookAngle, &saw.ClearAngle, &saw.GulletInfo.BackAngle, &saw.GulletInfo.FrostAngle})
    if (dice.Chance(0.1)) *angle = dice.Choice(OddAngles);
  constexpr std::int16_t counts[] = {-32768, -5, -1, 0, 1, 2, 3, 7, 60};
  if (dice.Chance(0.2)) saw.NumTeeth = dice.Choice(counts);
  constexpr std::int16_t variables[] = {-32768, -2, -1, 0, 1, 2, 3, 8, 9, 10, 11, 32767};
  if (dice.Chance(0.3)) saw.GeneralInfo.NumVariables = dice.Choice(variables);
  if (std::abs(saw.Length * 12) > 2000 * saw.Pitch) saw.Pitch = 0;  // thousands of teeth only take long
}

void ExpectFinite(const BandSaw& saw) {
  ForEachField(saw, [](const char* name, const auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    if constexpr (std::is_same_v<Field, double>) {
      EXPECT_TRUE(std::isfinite(field)) << name;
    } else if constexpr (std::is_same_v<Field, SegmentMeasures>) {
      for (const double measure : field) EXPECT_TRUE(std::isfinite(measure)) << name;
    }
  });
}

void ExpectFinite(const EntityList& list) {
  for (const Entity& entity : list.Entities) {
    double sum = 0;  // of magnitudes: finite only if each of them is
    if (const auto* line = std::get_if<LineEntity>(&entity)) {
      for (const double n : {line->Corner1X, line->Corner1Y, line->Corner4X, line->Corner4Y})
        sum += std::abs(n) * 0.1;
    } else {
      const auto& arc = std::get<ArcEntity>(entity);
      for (const double n : {arc.CenterX, arc.CenterY, arc.Radius, arc.StartAngle, arc.EndAngle})
        sum += std::abs(n) * 0.1;
    }
    ASSERT_TRUE(std::isfinite(sum));
  }
  const ListHeader& header = list.Header;
  for (const double n : {header.MaxX, header.MaxY, header.ViewCenterX, header.ViewCenterY})
    EXPECT_TRUE(std::isfinite(n));
}

class DegenerateSegment : public testing::TestWithParam<std::int16_t> {};

TEST_P(DegenerateSegment, EndsSoonAndInFiniteNumbers) {
  using Clock = std::chrono::steady_clock;
  constexpr int designs = 500;
  constexpr auto longest = std::chrono::seconds(5);  // far more than one needs, far less than a hang
  Dice dice(static_cast<std::uint64_t>(700 + GetParam()));
  for (int i = 0; i < designs && !HasFailure(); ++i) {
    SCOPED_TRACE("design " + std::to_string(i));
    BandSaw saw = test::PlausibleDesign(dice, GetParam());
    if (dice.Chance(0.8)) test::MakeVariable(dice, saw, dice.Whole(3, 7), dice.Chance(0.6) ? True : False);
    if (dice.Chance(0.3)) saw.BothEdges = True;
    if (dice.Chance(0.3)) saw.DesignInfo.JoinStyle = OverlapJoin;
    Spoil(dice, saw);
    CalculationSettings settings;
    settings.TeethDirection = dice.Chance(0.5) ? RightToLeft : std::int16_t{1};
    settings.DecimalPlaces = static_cast<std::int16_t>(dice.Whole(4, 10));
    for (const bool segment : {false, true}) {
      BandSaw calculated = saw;
      test::CollectedMessages say;
      const auto begun = Clock::now();
      const EntityList list =
          segment ? CalculateSegment(calculated, settings, say) : CalculateSaw(calculated, settings, say);
      EXPECT_LT(Clock::now() - begun, longest);
      ExpectFinite(calculated);
      ExpectFinite(list);
      const auto text = DxfText(list, settings);
      if (!text) continue;  // refused as too large
      EXPECT_EQ(text->find("nan"), std::string::npos);
      EXPECT_EQ(text->find("inf"), std::string::npos);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, DegenerateSegment, testing::ValuesIn(test::AllStyles),
                         [](const auto& style) { return "Style" + std::to_string(style.param); });

}  // namespace
}  // namespace tarnwick
