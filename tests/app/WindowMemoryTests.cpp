#include <gtest/gtest.h>

#include "app/WindowMemory.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

TEST(WindowMemory, BeginsWithAComfortableSize) {
  const test::TemporarySettings settings;
  const WindowMemory memory(settings.open());
  EXPECT_EQ(memory.size(), QSize(1120, 760));
  EXPECT_FALSE(memory.maximized());
}

TEST(WindowMemory, KnowsTheSizeOfTheLastStart) {
  const test::TemporarySettings settings;
  WindowMemory(settings.open()).remember(QSize(1010, 710), false);
  EXPECT_EQ(WindowMemory(settings.open()).size(), QSize(1010, 710));
}

TEST(WindowMemory, KeepsTheSizeFromBeforeTheWindowWasMaximized) {
  const test::TemporarySettings settings;
  WindowMemory(settings.open()).remember(QSize(1010, 710), false);
  WindowMemory(settings.open()).remember(QSize(1920, 1080), true);
  const WindowMemory memory(settings.open());
  EXPECT_EQ(memory.size(), QSize(1010, 710));
  EXPECT_TRUE(memory.maximized());
}

TEST(WindowMemory, NeverOpensSmallerThanEverythingStillWorks) {
  const test::TemporarySettings settings;
  WindowMemory(settings.open()).remember(QSize(200, 100), false);
  EXPECT_EQ(WindowMemory(settings.open()).size(), QSize(900, 600));
}

TEST(WindowMemory, KeepsItsValuesInTheGroupWindow) {
  const test::TemporarySettings settings;
  WindowMemory(settings.open()).remember(QSize(1010, 710), true);
  EXPECT_EQ(settings.open()->childGroups(), QStringList{QStringLiteral("window")});
}

}  // namespace
}  // namespace quillmere
