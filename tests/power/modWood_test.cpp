#include "power/modWood.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "model/modBandSaw.h"

namespace tarnwick {
namespace {

struct WoodRow {
  const char* Name;
  double Energy;
  friend void PrintTo(const WoodRow& row, std::ostream* out) { *out << row.Name; }
};

// Written out once more: names are keys in saved designs, figures are what customers were told.
const WoodRow EveryWood[] = {{"Softwoods:", 0},
                             {"Cedar (Eastern Red)", 0.44},
                             {"Cedar (Northern White)", 0.29},
                             {"Cedar (Soutern Red)", 0.42},
                             {"Cedar (Western Red)", 0.31},
                             {"Cypress", 0.42},
                             {"Douglas Fir (Coast)", 0.45},
                             {"Douglas Fir (Rocky Mt)", 0.4},
                             {"Fir (Alpine)", 0.31},
                             {"Fir (California Red)", 0.37},
                             {"Fir (Silver)", 0.35},
                             {"Fir (White)", 0.35},
                             {"Hemlock (Eastern)", 0.38},
                             {"Hemlock (Mountain)", 0.43},
                             {"Hemlock (Western)", 0.38},
                             {"Larch", 0.51},
                             {"Pine (Eastern White)", 0.34},
                             {"Pine (Jack)", 0.4},
                             {"Pine (Lodgepole)", 0.38},
                             {"Pine (Northern White)", 0.34},
                             {"Pine (Ponderosa)", 0.38},
                             {"Pine (Western White)", 0.36},
                             {"Redwood", 0.38},
                             {"Spruce (Engelmann)", 0.32},
                             {"Spruce (Red)", 0.38},
                             {"Spruce (White)", 0.37},
                             {"Tamarack", 0.49},
                             {"Hardwoods:", 0},
                             {"Alder", 0.37},
                             {"Ash (White)", 0.55},
                             {"Aspen", 0.35},
                             {"Beech", 0.56},
                             {"Birch (Yellow)", 0.55},
                             {"Cherry (Black)", 0.47},
                             {"Chestnut", 0.4},
                             {"Cottonwood (Eastern)", 0.37},
                             {"Elm (American White)", 0.46},
                             {"Hickory", 0.62},
                             {"Maple (Black)", 0.52},
                             {"Maple (Red)", 0.49},
                             {"Maple (Silver)", 0.44},
                             {"Oak (Black)", 0.56},
                             {"Oak (Northern Red)", 0.56},
                             {"Oak (Southern Red)", 0.52},
                             {"Oak (White)", 0.6},
                             {"Popular", 0.4},
                             {"Walnut", 0.51},
                             {"Willow (Black)", 0.34}};

class Species : public testing::TestWithParam<WoodRow> {};

TEST_P(Species, HasItsEnergy) { EXPECT_EQ(SpecificEnergy(GetParam().Name), GetParam().Energy); }

TEST_P(Species, IsFoundBetweenBlanks) {
  EXPECT_EQ(SpecificEnergy("   " + std::string(GetParam().Name) + " "), GetParam().Energy);
  decltype(BandSaw::General::WoodType) stored;
  stored.Assign(GetParam().Name);
  EXPECT_EQ(SpecificEnergy(stored.View()), GetParam().Energy);
}

INSTANTIATE_TEST_SUITE_P(Woods, Species, testing::ValuesIn(EveryWood));

TEST(Woods, StandInTheOrderOfTheLists) {
  ASSERT_EQ(Woods().size(), std::size(EveryWood));
  for (std::size_t i = 0; i < Woods().size(); ++i) {
    EXPECT_EQ(Woods()[i].Name, EveryWood[i].Name);
    EXPECT_EQ(Woods()[i].SpecificEnergy, EveryWood[i].Energy);
  }
}

TEST(Woods, AreTwoHeadingsAndTheirSpecies) {
  for (const Wood& wood : Woods()) {
    EXPECT_EQ(wood.IsHeading(), wood.Name == "Softwoods:" || wood.Name == "Hardwoods:") << wood.Name;
  }
}

TEST(Woods, FitIntoADesignAndStandOnce) {
  std::set<std::string_view> names;
  for (const Wood& wood : Woods()) {
    EXPECT_LE(wood.Name.size(), decltype(BandSaw::General::WoodType)().Bytes.size());
    EXPECT_TRUE(names.insert(wood.Name).second) << wood.Name;
  }
}

TEST(SpecificEnergy, IsZeroForAnyOtherName) {
  for (const char* name : {"", " ", "oak (white)", "OAK (WHITE)", "Oak", "Oak (White", "Oak  (White)",
                           "Cedar (Southern Red)", "Poplar", "Softwoods", "Oak (White)."}) {
    EXPECT_EQ(SpecificEnergy(name), 0) << name;
  }
  EXPECT_EQ(SpecificEnergy(BandSaw().GeneralInfo.WoodType.View()), 0);  // never assigned
}

TEST(SpecificEnergy, PassesOverBlanksOnly) {
  EXPECT_EQ(SpecificEnergy("\tCypress"), 0);
  EXPECT_EQ(SpecificEnergy(std::string_view("Cypress\0", 8)), 0);
}

}  // namespace
}  // namespace tarnwick
