#include "dxf/modDXF.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;
namespace fs = std::filesystem;

using Pair = std::pair<std::string, std::string>;
using Pairs = std::vector<Pair>;

/// The pairs of a drawing file. Every line must end with CR LF, every code stand between two blanks.
Pairs PairsOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    if (end == std::string::npos) {
      ADD_FAILURE() << "the last line has no end";
      break;
    }
    lines.push_back(text.substr(at, end - at));
    EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos);
    at = end + 2;
  }
  EXPECT_EQ(lines.size() % 2, 0u);
  Pairs pairs;
  for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
    const std::string& code = lines[i];
    EXPECT_TRUE(code.size() >= 3 && code.front() == ' ' && code.back() == ' ') << '"' << code << '"';
    pairs.emplace_back(code.substr(1, code.size() - 2), lines[i + 1]);
  }
  return pairs;
}

Pairs Head(const std::string& maxX, const std::string& maxY, const std::string& centerX,
           const std::string& centerY, const std::string& size) {
  return {
      {"0", "SECTION"},    {"2", "HEADER"},     {"9", "$INSBASE"},   {"10", "0.0000"},
      {"20", "0.0000"},    {"9", "$EXTMIN"},    {"10", "0.0000"},    {"20", "0.0000"},
      {"9", "$EXTMAX"},    {"10", maxX},        {"20", maxY},        {"9", "$LIMMIN"},
      {"10", "0.0000"},    {"20", "0.0000"},    {"9", "$VIEWCTR"},   {"10", centerX},
      {"20", centerY},     {"9", "$VIEWSIZE"},  {"40", size},        {"9", "$TEXTSTYLE"},
      {"7", "STANDARD"},   {"9", "$CLAYER"},    {"8", "Default"},    {"0", "ENDSEC"},
      {"0", "SECTION"},    {"2", "TABLES"},     {"0", "TABLE"},      {"2", "LTYPE"},
      {"70", "     2"},    {"0", "LTYPE"},      {"2", "CONTINUOUS"}, {"70", "    64"},
      {"3", "Solid Line"}, {"72", "    65"},    {"73", "     0"},    {"40", "0.0"},
      {"0", "LTYPE"},      {"2", "DOT"},        {"70", "    64"},    {"3", std::string(47, '.')},
      {"72", "    65"},    {"73", "     2"},    {"40", "0.25"},      {"49", "0.0"},
      {"49", "-0.25"},     {"0", "ENDTAB"},     {"0", "TABLE"},      {"2", "LAYER"},
      {"70", "     1"},    {"0", "LAYER"},      {"2", "Default"},    {"70", "    64"},
      {"62", "     7"},    {"6", "CONTINUOUS"}, {"0", "ENDTAB"},     {"0", "TABLE"},
      {"2", "VIEW"},       {"70", "     0"},    {"0", "ENDTAB"},     {"0", "ENDSEC"},
      {"0", "SECTION"},    {"2", "BLOCKS"},     {"0", "ENDSEC"},     {"0", "SECTION"},
      {"2", "ENTITIES"},
  };
}

constexpr std::size_t HeadPairs = 65;
constexpr std::size_t TailPairs = 2;

Pairs Drawing(const EntityList& list, const CalculationSettings& settings = {}) {
  const auto text = DxfText(list, settings);
  EXPECT_TRUE(text.has_value());
  return PairsOf(text.value_or(""));
}

Pairs EntitiesOf(const EntityList& list, const CalculationSettings& settings = {}) {
  const Pairs all = Drawing(list, settings);
  if (all.size() < HeadPairs + TailPairs) return {};
  return {all.begin() + HeadPairs, all.end() - TailPairs};
}

EntityList ListOf(std::vector<Entity> entities) {
  EntityList list;
  list.Entities = std::move(entities);
  return list;
}

// ---- head and tail

TEST(DrawingFile, HasAFixedHeadAndTail) {
  EntityList list;
  list.Header = {120.125, 4.5, 60.0625, 2.25};
  Pairs want = Head("120.125", "4.5", "60.0625", "2.25", "90.09375");
  ASSERT_EQ(want.size(), HeadPairs);
  want.emplace_back("0", "ENDSEC");
  want.emplace_back("0", "EOF");
  const Pairs got = Drawing(list);
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t i = 0; i < want.size(); ++i) EXPECT_EQ(got[i], want[i]) << "pair " << i;
}

TEST(DrawingFile, HasNoUpperLimits) {
  const auto text = DxfText(EntityList{}, {});
  EXPECT_EQ(text->find("$LIMMAX"), std::string::npos) << "the view's centre stands in its place";
}

TEST(DrawingFile, IsLegalWithoutEntities) {
  Pairs want = Head("0", "0", "0", "0", "0");
  want.emplace_back("0", "ENDSEC");
  want.emplace_back("0", "EOF");
  EXPECT_EQ(Drawing(EntityList{}), want);
}

TEST(DrawingFile, BeginsWithItsFirstSectionAndEndsWithALineEnd) {
  const std::string text = DxfText(EntityList{}, {}).value_or("");
  EXPECT_EQ(text.substr(0, 24), " 0 \r\nSECTION\r\n 2 \r\nHEADE");
  EXPECT_TRUE(text.ends_with(" 0 \r\nENDSEC\r\n 0 \r\nEOF\r\n"));
}

TEST(DrawingFile, OfOneLineIsThis) {
  EntityList list = ListOf({LineEntity{0, 0, 12, 0.5}});
  list.Header = {12, 1.25, 6, 0.625};
  const std::string text = DxfText(list, {}).value_or("");
  EXPECT_NE(text.find(" 9 \r\n$EXTMAX\r\n 10 \r\n12\r\n 20 \r\n1.25\r\n 9 \r\n$LIMMIN\r\n"),
            std::string::npos);
  EXPECT_NE(text.find(" 9 \r\n$VIEWCTR\r\n 10 \r\n6\r\n 20 \r\n0.625\r\n 9 \r\n$VIEWSIZE\r\n 40 \r\n9\r\n"),
            std::string::npos);
  EXPECT_TRUE(text.ends_with(
      " 2 \r\nENTITIES\r\n 0 \r\nLINE\r\n 8 \r\ndefault\r\n 62 \r\n5\r\n 10 \r\n0\r\n 20 \r\n0\r\n"
      " 11 \r\n12\r\n 21 \r\n0.5\r\n 0 \r\nENDSEC\r\n 0 \r\nEOF\r\n"));
}

// ---- entities

TEST(DrawnLine, GoesFromItsFirstToItsFourthCorner) {
  const Pairs want{{"0", "LINE"}, {"8", "default"}, {"62", "5"}, {"10", "1"},
                   {"20", "2.5"}, {"11", "-3.25"},  {"21", "0"}};
  EXPECT_EQ(EntitiesOf(ListOf({LineEntity{1, 2.5, -3.25, 0}})), want);
  EXPECT_EQ(EntitiesOf(ListOf({LineEntity{1, 2.5, -3.25, 0, true, false}})), want) << "an outline is a line";
}

TEST(DrawnLine, NamesItsTypeBeforeTheColourWhenItIsDotted) {
  const Pairs want{{"0", "LINE"}, {"8", "default"}, {"6", "DOT"}, {"62", "5"},
                   {"10", "1"},   {"20", "2.5"},    {"11", "3"},  {"21", "4"}};
  EXPECT_EQ(EntitiesOf(ListOf({LineEntity{1, 2.5, 3, 4, true, true}})), want);
}

TEST(DrawnArc, HasCentreRadiusAndAngles) {
  const Pairs want{{"0", "ARC"}, {"8", "default"}, {"62", "5"},   {"10", "1"},
                   {"20", "2"},  {"40", "0.25"},   {"50", "170"}, {"51", "330.12345"}};
  EXPECT_EQ(EntitiesOf(ListOf({ArcEntity{1, 2, 0.25, 170, 330.12345}})), want);
}

TEST(DrawnCircle, HasCentreAndRadius) {
  const Pairs want{{"0", "CIRCLE"}, {"8", "default"}, {"62", "5"}, {"10", "1"}, {"20", "2"}, {"40", "30"}};
  EXPECT_EQ(EntitiesOf(ListOf({CircleEntity{1, 2, 30}})), want);
}

TEST(DrawnSolid, HasItsCornersInOrder) {
  const Pairs want{{"0", "SOLID"}, {"8", "default"}, {"62", "5"}, {"10", "1"}, {"20", "2"}, {"11", "3"},
                   {"21", "4"},    {"12", "5"},      {"22", "6"}, {"13", "7"}, {"23", "8"}};
  EXPECT_EQ(EntitiesOf(ListOf({SolidEntity{1, 2, 3, 4, 5, 6, 7, 8}})), want);
}

TEST(DrawnText, HasNoColourAndAllItsTwentyCharacters) {
  TextEntity label{1, 2, 3.5, 0, {}};
  label.Text.Assign("120 in");
  const Pairs want{{"0", "TEXT"}, {"8", "default"}, {"10", "1"},
                   {"20", "2"},   {"40", "3.5"},    {"1", "120 in              "}};
  EXPECT_EQ(EntitiesOf(ListOf({label})), want);
}

TEST(Drawing, ShowsTheEntitiesInTheirOrder) {
  const Pairs got = EntitiesOf(
      ListOf({ArcEntity{}, LineEntity{}, TextEntity{}, SolidEntity{}, CircleEntity{}, LineEntity{}}));
  std::vector<std::string> kinds;
  for (const auto& [code, value] : got)
    if (code == "0") kinds.push_back(value);
  EXPECT_EQ(kinds, (std::vector<std::string>{"ARC", "LINE", "TEXT", "SOLID", "CIRCLE", "LINE"}));
}

class DrawnColour : public testing::TestWithParam<int> {};

TEST_P(DrawnColour, IsTheOneOfTheSettings) {
  CalculationSettings settings;
  settings.DxfSaveColor = static_cast<std::int16_t>(GetParam());
  const Pairs pairs =
      EntitiesOf(ListOf({LineEntity{}, ArcEntity{}, CircleEntity{}, SolidEntity{}}), settings);
  int colours = 0;
  for (const auto& [code, value] : pairs) {
    if (code != "62") continue;
    ++colours;
    EXPECT_EQ(value, std::to_string(GetParam()));
  }
  EXPECT_EQ(colours, 4);
}

INSTANTIATE_TEST_SUITE_P(Colours, DrawnColour, testing::Values(0, 5, 9));

struct NumberRow {
  const char* Name;
  double Value;
  const char* Want;
  friend void PrintTo(const NumberRow& row, std::ostream* out) { *out << row.Name; }
};
class DrawnNumber : public testing::TestWithParam<NumberRow> {};

TEST_P(DrawnNumber, IsThePlainOne) {
  const Pairs pairs = EntitiesOf(ListOf({LineEntity{GetParam().Value, 0, 0, 0}}));
  ASSERT_EQ(pairs.size(), 7u);
  EXPECT_EQ(pairs[3], (Pair{"10", GetParam().Want}));
}

INSTANTIATE_TEST_SUITE_P(Numbers, DrawnNumber,
                         testing::Values(NumberRow{"Whole", 12, "12"},                 //
                                         NumberRow{"Fraction", 0.25, "0.25"},          //
                                         NumberRow{"Negative", -0.00123, "-0.00123"},  //
                                         NumberRow{"NegativeZero", -0.0, "0"},         //
                                         NumberRow{"Sum", 0.1 + 0.2, "0.3"},           //
                                         NumberRow{"FifteenDigits", 2.0 / 3, "0.666666666666667"},
                                         NumberRow{"Small", 0.00001, "1E-05"},  //
                                         NumberRow{"Large", 1e15, "1E+15"}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- the limit

/// A list that needs just `pairs` pairs: lines of 7, arcs of 8, a text of 6.
EntityList ListOfPairs(int pairs) {
  EntityList list;
  int left = pairs - static_cast<int>(HeadPairs + TailPairs);
  for (; left % 7 != 0; left -= 8) list.Entities.push_back(ArcEntity{0, 0, 1, 0, 90});
  for (; left > 0; left -= 7) list.Entities.push_back(LineEntity{0, 0, 1, 1});
  return list;
}

TEST(DrawingLimit, LetsTheLastPairStandAtTheMemorySize) {
  CalculationSettings settings;
  settings.MemorySize = 8000;
  const auto text = DxfText(ListOfPairs(8001), settings);  // indexes 0 to 8000
  ASSERT_TRUE(text.has_value());
  EXPECT_EQ(PairsOf(*text).size(), 8001u);
}

TEST(DrawingLimit, RefusesOnePairMore) {
  CalculationSettings settings;
  settings.MemorySize = 8000;
  EXPECT_FALSE(DxfText(ListOfPairs(8002), settings).has_value());
  settings.MemorySize = 8001;
  EXPECT_TRUE(DxfText(ListOfPairs(8002), settings).has_value());
}

TEST(DrawingLimit, HoldsSixteenThousandEntitiesByDefault) {
  EntityList list;
  list.Entities.assign(15990, ArcEntity{0, 0, 1, 0, 90});
  EXPECT_TRUE(DxfText(list, {}).has_value());
  list.Entities.assign(16000, ArcEntity{0, 0, 1, 0, 90});
  EXPECT_FALSE(DxfText(list, {}).has_value());
}

TEST(DrawingFile, LetsTheWindowLiveWhileItIsWritten) {
  int times = 0;
  (void)DxfText(ListOfPairs(20067), {}, [&] { ++times; });
  EXPECT_GT(times, 1);
}

// ---- writing

class WritingADrawing : public testing::Test {
 protected:
  void SetUp() override {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = fs::path(testing::TempDir()) / (std::string("tarnwick-dxf-") + info->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  [[nodiscard]] fs::path In(const std::string& name) const { return folder_ / name; }

  static std::string Read(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  static void Write(const fs::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
  }

  EntityList list_ = ListOf({LineEntity{0, 0, 12, 0.5}});
  CalculationSettings settings_;
  CollectedMessages say_;

 private:
  fs::path folder_;
};

TEST_F(WritingADrawing, PutsTheWholeTextIntoTheFile) {
  EXPECT_TRUE(WriteDxf(list_, In("band.dxf"), settings_, say_));
  EXPECT_EQ(Read(In("band.dxf")), DxfText(list_, settings_));
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(WritingADrawing, ReplacesAFileThatIsThere) {
  Write(In("band.dxf"), std::string(100000, 'x'));
  EXPECT_TRUE(WriteDxf(list_, In("band.dxf"), settings_, say_));
  EXPECT_EQ(Read(In("band.dxf")), DxfText(list_, settings_));
}

TEST_F(WritingADrawing, SaysSoWhenTheListIsTooLargeAndWritesNothing) {
  settings_.MemorySize = 8000;
  EXPECT_FALSE(WriteDxf(ListOfPairs(8002), In("band.dxf"), settings_, say_));
  ASSERT_EQ(say_.Texts(), std::vector<std::string>{"File is two large"});
  EXPECT_EQ(say_.Shown[0].Offer, Buttons::Ok);
  EXPECT_FALSE(fs::exists(In("band.dxf")));
}

TEST_F(WritingADrawing, KeepsTheOldFileWhenTheListIsTooLarge) {
  Write(In("band.dxf"), "old");
  settings_.MemorySize = 8000;
  EXPECT_FALSE(WriteDxf(ListOfPairs(8002), In("band.dxf"), settings_, say_));
  EXPECT_EQ(Read(In("band.dxf")), "old");
}

void ExpectOneNumberedError(const CollectedMessages& say) {
  ASSERT_EQ(say.Shown.size(), 1u);
  const std::string& text = say.Shown[0].Text;
  ASSERT_TRUE(text.starts_with("Error ")) << text;
  const std::string number = text.substr(6);
  EXPECT_FALSE(number.empty());
  EXPECT_EQ(number.find_first_not_of("0123456789"), std::string::npos) << text;
}

TEST_F(WritingADrawing, ShowsAnErrorForAFolderThatIsNotThere) {
  EXPECT_FALSE(WriteDxf(list_, In("missing") / "band.dxf", settings_, say_));
  ExpectOneNumberedError(say_);
}

TEST_F(WritingADrawing, ShowsAnErrorForAFolderInPlaceOfTheFile) {
  fs::create_directory(In("band.dxf"));
  Write(In("band.dxf") / "inside", "kept");
  EXPECT_FALSE(WriteDxf(list_, In("band.dxf"), settings_, say_));
  ExpectOneNumberedError(say_);
  EXPECT_EQ(Read(In("band.dxf") / "inside"), "kept");
}

TEST_F(WritingADrawing, ShowsAnErrorForAnEmptyName) {
  EXPECT_FALSE(WriteDxf(list_, {}, settings_, say_));
  ExpectOneNumberedError(say_);
}

}  // namespace
}  // namespace tarnwick
