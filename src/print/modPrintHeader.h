#pragma once

#include <string>
#include <vector>

#include "print/modPrintPage.h"
#include "print/modPrintSheet.h"
#include "store/modCfg.h"

namespace tarnwick {

// What stands on every sheet, in its top margin.

inline constexpr double TitlePoints = TextPoints + 4;
inline constexpr double CompanyPoints = TextPoints + 2;

struct PrintHeader {
  std::string Title;  // file name of the design, or a heading of the command
  std::string Date;
  CustomerLines Customer;
};

/// The customer as he is printed, company first; nothing without a company. What is not set takes no line.
[[nodiscard]] std::vector<std::string> CompanyBlock(const CustomerLines& customer);

/// "Page 1 of 2".
[[nodiscard]] std::string PageLabel(int page, int pages);

/// "Pg 1 of 2", of the sheets of one segment that are laid side by side.
[[nodiscard]] std::string SegmentLabel(int page, int pages);

/// Title, date and company, and below them the label of the page.
/// @return where the header ends
double AppendHeader(PrintSheet& sheet, const PrintHeader& header, const std::string& pageLabel,
                    const PrintPage& page, const TextRuler& ruler);

/// The same with the label of a segment's sheet, which has a place of its own.
void AppendSegmentHeader(PrintSheet& sheet, const PrintHeader& header, const std::string& segmentLabel,
                         const PrintPage& page, const TextRuler& ruler);

}  // namespace tarnwick
