#include "print/modPrintHeader.h"

#include <gtest/gtest.h>

#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

using test::Texts;

CustomerLines Mill() {
  return {.Name = "North Creek Lumber",
          .Address = "12 Mill Road",
          .City = "Vancouver",
          .Province = "BC",
          .Country = "Canada",
          .PostalCode = "V5K 0A1",
          .Phone = "604 555 0101",
          .Fax = "604 555 0102",
          .Email = "saws@example.org"};
}

struct BlockRow {
  const char* Name;
  CustomerLines Customer;
  Texts Want;
  friend void PrintTo(const BlockRow& row, std::ostream* out) { *out << row.Name; }
};
class Company : public testing::TestWithParam<BlockRow> {};

TEST_P(Company, HasALineForAllThatIsSet) { EXPECT_EQ(CompanyBlock(GetParam().Customer), GetParam().Want); }

INSTANTIATE_TEST_SUITE_P(
    Lines, Company,
    testing::Values(
        BlockRow{"All",
                 Mill(),
                 {"North Creek Lumber", "12 Mill Road", "Vancouver,BC,  V5K 0A1", "Canada",
                  "Phone: 604 555 0101    Fax: 604 555 0102", "E-mail: saws@example.org"}},
        BlockRow{"NoNameNoBlock", {"", "12 Mill Road", "", "", "", "", "1", "", "a@b"}, {}},
        BlockRow{"NameAlone", {"N", "", "", "", "", "", "", "", ""}, {"N"}},
        BlockRow{"CityAlone", {"N", "", "C", "", "", "", "", "", ""}, {"N", "C"}},
        BlockRow{"ProvinceAlone", {"N", "", "", "P", "", "", "", "", ""}, {"N", "P"}},
        BlockRow{"PostalCodeAlone", {"N", "", "", "", "", "1", "", "", ""}, {"N", "1"}},
        BlockRow{"CityAndProvince", {"N", "", "C", "P", "", "", "", "", ""}, {"N", "C,P"}},
        BlockRow{"CityAndPostalCode", {"N", "", "C", "", "", "1", "", "", ""}, {"N", "C,  1"}},
        BlockRow{"ProvinceAndPostalCode", {"N", "", "", "P", "", "1", "", "", ""}, {"N", "P,  1"}},
        BlockRow{"NoPhoneNoFaxNoEmptyRow", {"N", "", "C", "", "", "", "", "", "e"}, {"N", "C", "E-mail: e"}},
        BlockRow{"PhoneAlone", {"N", "", "", "", "", "", "1", "", ""}, {"N", "Phone: 1"}},
        BlockRow{"FaxAlone", {"N", "", "", "", "", "", "", "2", ""}, {"N", "Fax: 2"}}),
    [](const auto& row) { return std::string(row.param.Name); });

struct Printed {
  PrintSheet Sheet;
  double End{};
};

Printed HeaderOf(const CustomerLines& customer, const std::string& title = "oak.bsw",
                 const PrintPage& page = PageFor({})) {
  Printed printed;
  printed.End =
      AppendHeader(printed.Sheet, {title, "Nov, 21/26", customer}, PageLabel(1, 2), page, test::EvenRuler());
  return printed;
}

void ExpectText(const PrintSheet& sheet, const std::string& words, double x, double y, PrintFont font) {
  const SheetText* text = test::FindText(sheet, words);
  ASSERT_NE(text, nullptr) << words;
  EXPECT_NEAR(text->TopLeft.X, x, 1e-9) << words;
  EXPECT_NEAR(text->TopLeft.Y, y, 1e-9) << words;
  EXPECT_EQ(text->Font, font) << words;
}

TEST(PrintHeader, StandsOnItsRows) {
  const Printed printed = HeaderOf(Mill());
  const PrintFont plain{TextPoints};
  const double title = test::EvenRuler::SizeOf("oak.bsw", {TextPoints + 4, true}).Width;
  ExpectText(printed.Sheet, "oak.bsw", 5700 - title / 2, 265, {TextPoints + 4, true});
  ExpectText(printed.Sheet, "Nov, 21/26", 10100, 662.5, plain);
  ExpectText(printed.Sheet, "North Creek Lumber", 1100, 530, {TextPoints + 2});
  ExpectText(printed.Sheet, "12 Mill Road", 1100, 861.25, plain);
  ExpectText(printed.Sheet, "Vancouver,BC,  V5K 0A1", 1100, 1126.25, plain);
  ExpectText(printed.Sheet, "Canada", 1100, 1391.25, plain);
  ExpectText(printed.Sheet, "Phone: 604 555 0101    Fax: 604 555 0102", 1100, 1656.25, plain);
  ExpectText(printed.Sheet, "E-mail: saws@example.org", 1100, 1921.25, plain);
  ExpectText(printed.Sheet, "Page 1 of 2", 1100, 2186.25, plain);
  EXPECT_EQ(printed.Sheet.size(), 9U);
  EXPECT_EQ(printed.End, 2451.25);
}

TEST(PrintHeader, ClosesUpWhereALineIsNotSet) {
  CustomerLines customer = Mill();
  customer.Phone.clear();
  customer.Fax.clear();
  const Printed printed = HeaderOf(customer);
  ExpectText(printed.Sheet, "Canada", 1100, 1391.25, {TextPoints});
  ExpectText(printed.Sheet, "E-mail: saws@example.org", 1100, 1656.25, {TextPoints});
  ExpectText(printed.Sheet, "Page 1 of 2", 1100, 1921.25, {TextPoints});
}

TEST(PrintHeader, HasTheLabelAloneWithoutACompany) {
  const Printed printed = HeaderOf({});
  EXPECT_EQ(test::TextsOf(printed.Sheet), (Texts{"oak.bsw", "Nov, 21/26", "Page 1 of 2"}));
  ExpectText(printed.Sheet, "Page 1 of 2", 1100, 662.5, {TextPoints});
  EXPECT_EQ(printed.End, 927.5);
}

TEST(PrintHeader, MovesTheDateWithTheColumns) {
  const Printed printed = HeaderOf({}, "oak.bsw", PageFor({.Turned = PaperOrientation::Landscape}));
  ExpectText(printed.Sheet, "Nov, 21/26", 9900, 662.5, {TextPoints});
}

TEST(PrintHeader, KeepsTheBeginningOfATitleThatIsTooLong) {
  const std::string title(200, 'w');
  ExpectText(HeaderOf({}, title).Sheet, title, SideMargin, 265, {TextPoints + 4, true});
}

TEST(SegmentHeader, HasItsLabelBesideTheCompany) {
  PrintSheet sheet;
  AppendSegmentHeader(sheet, {"oak.bsw", "Nov, 21/26", Mill()}, SegmentLabel(2, 3), PageFor({}),
                      test::EvenRuler());
  ExpectText(sheet, "Pg 2 of 3", 8700, 662.5, {TextPoints});
  ExpectText(sheet, "E-mail: saws@example.org", 1100, 1921.25, {TextPoints});
  EXPECT_EQ(sheet.size(), 9U) << "one label only";
}

TEST(SegmentHeader, KeepsACompanyOfALongNameClearOfItsLabel) {
  CustomerLines customer = Mill();
  for (const std::size_t letters : {45U, 90U, 120U}) {
    customer.Name = std::string(letters, 'n');
    PrintSheet sheet, other;
    AppendSegmentHeader(sheet, {"oak.bsw", "Nov, 21/26", customer}, SegmentLabel(2, 3), PageFor({}),
                        test::EvenRuler());
    AppendHeader(other, {"oak.bsw", "Nov, 21/26", customer}, PageLabel(2, 3), PageFor({}), test::EvenRuler());
    const auto end = [&](const PrintSheet& printed) {
      const SheetText* name = test::FindText(printed, customer.Name);
      return name ? name->TopLeft.X + test::EvenRuler::SizeOf(name->Text, name->Font).Width : 1e9;
    };
    EXPECT_LT(end(sheet), 8700) << letters;
    EXPECT_LT(end(other), 10100) << letters;
  }
}

}  // namespace
}  // namespace tarnwick
