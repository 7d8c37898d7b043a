#include "store/modRecoveryCopy.h"

#include <gtest/gtest.h>

#include "store/modSave.h"
#include "support/FieldChanges.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::DesignOfEveryField;

std::string Text() { return RecoveryText("Säge 木.bsw", "/home/sawyer/a\nb/", DesignOfEveryField()); }

TEST(RecoveryCopy, HoldsNameFolderAndEveryField) {
  const auto copy = ReadRecovery(Text());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->FileName, "Säge 木.bsw");
  EXPECT_EQ(copy->Folder, "/home/sawyer/a\nb/");
  EXPECT_EQ(ChangedFields(DesignOfEveryField(), copy->Saw), std::set<std::string>{});
}

TEST(RecoveryCopy, IsLaidOutThus) {
  const std::string text = RecoveryText("a.bsw", "/b/", BandSaw{});
  EXPECT_EQ(text.substr(0, 25), "Tarnwick recovery copy 1\n");
  EXPECT_EQ(text.substr(33), std::string("\5\0\0\0a.bsw\3\0\0\0/b/", 16) + BandSawText(BandSaw{}));
}

TEST(RecoveryCopy, MayLackNameAndFolder) {
  const auto copy = ReadRecovery(RecoveryText("", "", BandSaw{}));
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->FileName + copy->Folder, "");
}

TEST(RecoveryCopy, IsNoneWhereverItWasTorn) {
  const std::string text = Text();
  for (std::size_t size = 0; size < text.size(); ++size) {
    ASSERT_FALSE(ReadRecovery(text.substr(0, size))) << size << " bytes";
  }
}

TEST(RecoveryCopy, IsNoneWithAnyByteChanged) {
  std::string text = Text();
  for (char& byte : text) {
    const char before = byte;
    byte = static_cast<char>(byte ^ 1);
    ASSERT_FALSE(ReadRecovery(text)) << "byte " << &byte - text.data();
    byte = before;
  }
  EXPECT_TRUE(ReadRecovery(text));
}

TEST(RecoveryCopy, IsNoneWithMoreBehindIt) { EXPECT_FALSE(ReadRecovery(Text() + '\0')); }

TEST(RecoveryCopy, IsNoOtherFile) {
  EXPECT_FALSE(ReadRecovery(BandSawText(DesignOfEveryField())));
  EXPECT_FALSE(ReadRecovery(std::string(5000, '\0')));
}

}  // namespace
}  // namespace tarnwick
