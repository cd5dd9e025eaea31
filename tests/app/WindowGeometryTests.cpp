#include <gtest/gtest.h>

#include "app/WindowGeometry.h"
#include "support/TemporarySettings.h"

namespace quillmere {
namespace {

TEST(WindowGeometry, BeginsWithAComfortableSize) {
  const test::TemporarySettings settings;
  const WindowGeometry geometry(settings.open());
  EXPECT_EQ(geometry.size(), QSize(1120, 760));
  EXPECT_FALSE(geometry.maximized());
}

TEST(WindowGeometry, KnowsTheSizeOfTheLastStart) {
  const test::TemporarySettings settings;
  WindowGeometry(settings.open()).save(QSize(1010, 710), false);
  EXPECT_EQ(WindowGeometry(settings.open()).size(), QSize(1010, 710));
}

TEST(WindowGeometry, KeepsTheSizeFromBeforeTheWindowWasMaximized) {
  const test::TemporarySettings settings;
  WindowGeometry(settings.open()).save(QSize(1010, 710), false);
  WindowGeometry(settings.open()).save(QSize(1920, 1080), true);
  const WindowGeometry geometry(settings.open());
  EXPECT_EQ(geometry.size(), QSize(1010, 710));
  EXPECT_TRUE(geometry.maximized());
}

TEST(WindowGeometry, NeverOpensSmallerThanEverythingStillWorks) {
  const test::TemporarySettings settings;
  WindowGeometry(settings.open()).save(QSize(200, 100), false);
  EXPECT_EQ(WindowGeometry(settings.open()).size(), QSize(900, 600));
}

TEST(WindowGeometry, KeepsItsValuesInTheGroupWindow) {
  const test::TemporarySettings settings;
  WindowGeometry(settings.open()).save(QSize(1010, 710), true);
  EXPECT_EQ(settings.open()->childGroups(), QStringList{QStringLiteral("window")});
}

}  // namespace
}  // namespace quillmere
