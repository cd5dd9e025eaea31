#include <gtest/gtest.h>

#include "app/AppCapabilities.h"

namespace quillmere {
namespace {

TEST(AppCapabilities, AllowNothingUnlessTheApplicationSaysSo) {
  constexpr AppCapabilities none;
  EXPECT_FALSE(none.canExecuteCommands);
  EXPECT_FALSE(none.canReadLiveServices);
  EXPECT_FALSE(none.canPerformCleanup);
  EXPECT_FALSE(none.canStreamCommandOutput);
  EXPECT_FALSE(none.canRunDiagnostics);
}

TEST(AppCapabilities, AllowEverythingInThisBuild) {
  constexpr AppCapabilities all = AppCapabilities::all();
  EXPECT_TRUE(all.canExecuteCommands);
  EXPECT_TRUE(all.canReadLiveServices);
  EXPECT_TRUE(all.canPerformCleanup);
  EXPECT_TRUE(all.canStreamCommandOutput);
  EXPECT_TRUE(all.canRunDiagnostics);
}

TEST(AppCapabilities, DifferWhereAnyFlagDiffers) {
  EXPECT_EQ(AppCapabilities::all(), AppCapabilities::all());
  for (const auto flag :
       {&AppCapabilities::canExecuteCommands, &AppCapabilities::canReadLiveServices,
        &AppCapabilities::canPerformCleanup, &AppCapabilities::canStreamCommandOutput,
        &AppCapabilities::canRunDiagnostics}) {
    AppCapabilities other = AppCapabilities::all();
    other.*flag = false;
    EXPECT_NE(other, AppCapabilities::all());
  }
}

}  // namespace
}  // namespace quillmere
