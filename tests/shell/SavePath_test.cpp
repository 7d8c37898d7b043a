#include "shell/SavePath.h"

#include <gtest/gtest.h>

#include "support/CollectedMessages.h"
#include "support/ScriptedFileDialogs.h"

namespace tarnwick {
namespace {

TEST(ExportName, IsThatOfTheDesignUpToItsFirstPoint) {
  EXPECT_EQ(ExportName("oak.bsw", ".pdf"), "oak.pdf");
  EXPECT_EQ(ExportName("oak.v2.bsw", ".dxf"), "oak.dxf");
  EXPECT_EQ(ExportName("oak", ".txt"), "oak.txt");
  EXPECT_EQ(ExportName(".bsw", ".pdf"), ".pdf");
}

TEST(ExportPath, GetsItsEndingWhereItHoldsNone) {
  const struct {
    const char *Chosen, *Want;
  } rows[] = {{"/no/such/oak", "/no/such/oak.pdf"},
              {"/no/such/oak.PDF", "/no/such/oak.PDF"},
              {"/no/such/oak.pdf.old", "/no/such/oak.pdf.old"},
              {"/no/such/oakpdf", "/no/such/oakpdf.pdf"},
              {"/no/such/oak.bsw", "/no/such/oak.bsw.pdf"}};
  for (const auto& row : rows) {
    test::ScriptedFileDialogs files;
    test::CollectedMessages say;
    files.Paths = {row.Chosen};
    EXPECT_EQ(AskExportPath(files, say, {}, ".pdf"), row.Want);
    EXPECT_TRUE(say.Shown.empty());
  }
}

}  // namespace
}  // namespace tarnwick
