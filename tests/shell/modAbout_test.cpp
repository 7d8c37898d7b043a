#include "shell/modAbout.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(AboutText, NamesProgramVersionAndMaker) {
  EXPECT_EQ(AboutText(),
            "Tarnwick for Windows Version: 2.1\n\nMade by the Tarnwick makers, www.tarnwick.example");
}

}  // namespace
}  // namespace tarnwick
