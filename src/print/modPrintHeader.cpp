#include "print/modPrintHeader.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr double TitleCenter = 5700, TitleTop = SheetRow;
constexpr double CompanyTop = 2 * SheetRow, AddressTop = 3.25 * SheetRow;
constexpr double LabelTop = 2.5 * SheetRow;  // of a label without a company above it; the date's too
constexpr double SegmentLabelAhead = 1400;   // of the date: beyond the names of most companies
constexpr double LeastCompanyPoints = 6;

void AppendText(PrintSheet& sheet, double x, double y, std::string text, PrintFont font = {TextPoints}) {
  sheet.push_back(SheetText{{x, y}, std::move(text), font});
}

void AppendTitle(PrintSheet& sheet, const std::string& title, const TextRuler& ruler) {
  const PrintFont font{TitlePoints, true};
  const double left = TitleCenter - ruler.TextSize(title, font).Width / 2;
  // One that has no room loses its end, not its beginning.
  AppendText(sheet, std::max(left, SideMargin), TitleTop, title, font);
}

/// The company's line reaches down to the row of the date and of a label: a long name is written smaller
/// rather than over them.
double PointsOfCompany(const std::string& name, double room, const TextRuler& ruler) {
  double points = CompanyPoints;
  while (points > LeastCompanyPoints && ruler.TextSize(name, {points}).Width > room) --points;
  return points;
}

/// @param right  where other texts begin
/// @return the top of the line below the company; where there is none, that of the label alone
double AppendCompany(PrintSheet& sheet, const CustomerLines& customer, double right, const TextRuler& ruler) {
  const std::vector<std::string> lines = CompanyBlock(customer);
  if (lines.empty()) return LabelTop;
  const double left = LabelX(1, PrintPage());
  const double points = PointsOfCompany(lines.front(), right - left - SideMargin, ruler);
  AppendText(sheet, left, CompanyTop, lines.front(), {points});
  double top = AddressTop;
  for (std::size_t i = 1; i < lines.size(); ++i, top += SheetRow) AppendText(sheet, left, top, lines[i]);
  return top;
}

double DateX(const PrintPage& page) { return ValueX(2, page); }

double AppendTitleAndCompany(PrintSheet& sheet, const PrintHeader& header, const PrintPage& page,
                             double right, const TextRuler& ruler) {
  AppendTitle(sheet, header.Title, ruler);
  AppendText(sheet, DateX(page), LabelTop, header.Date);
  return AppendCompany(sheet, header.Customer, right, ruler);
}

/// Appends `part` behind `separator`, if there is anything to separate.
void Join(std::string& line, std::string_view separator, const std::string& part) {
  if (part.empty()) return;
  if (!line.empty()) line += separator;
  line += part;
}

std::string CityLine(const CustomerLines& customer) {
  std::string line = customer.City;
  Join(line, ",", customer.Province);
  Join(line, ",  ", customer.PostalCode);
  return line;
}

std::string Named(const char* name, const std::string& value) { return value.empty() ? value : name + value; }

std::string PhoneLine(const CustomerLines& customer) {
  std::string line = Named("Phone: ", customer.Phone);
  Join(line, "    ", Named("Fax: ", customer.Fax));
  return line;
}

}  // namespace

std::vector<std::string> CompanyBlock(const CustomerLines& customer) {
  if (customer.Name.empty()) return {};
  std::vector<std::string> lines{customer.Name,    customer.Address,    CityLine(customer),
                                 customer.Country, PhoneLine(customer), Named("E-mail: ", customer.Email)};
  lines.erase(std::remove(lines.begin(), lines.end(), std::string()), lines.end());
  return lines;
}

std::string PageLabel(int page, int pages) {
  return "Page " + std::to_string(page) + " of " + std::to_string(pages);
}

std::string SegmentLabel(int page, int pages) {
  return "Pg" + DecimalText(page) + " of" + DecimalText(pages);
}

double AppendHeader(PrintSheet& sheet, const PrintHeader& header, const std::string& pageLabel,
                    const PrintPage& page, const TextRuler& ruler) {
  const double top = AppendTitleAndCompany(sheet, header, page, DateX(page), ruler);
  AppendText(sheet, LabelX(1, page), top, pageLabel);
  return top + SheetRow;
}

void AppendSegmentHeader(PrintSheet& sheet, const PrintHeader& header, const std::string& segmentLabel,
                         const PrintPage& page, const TextRuler& ruler) {
  const double left = DateX(page) - SegmentLabelAhead;
  AppendTitleAndCompany(sheet, header, page, left, ruler);
  AppendText(sheet, left, LabelTop, segmentLabel);
}

}  // namespace tarnwick
