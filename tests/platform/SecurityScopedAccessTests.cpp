#include <gtest/gtest.h>

#include "platform/SecurityScopedAccess.h"

namespace quillmere {
namespace {

TEST(SecurityScopedAccess, StopsWhatItStarted) {
  const auto before = SecurityScopedAccess::counts();
  {
    const SecurityScopedAccess access(QUrl::fromLocalFile(QStringLiteral("/opt/homebrew")));
    EXPECT_TRUE(access.started());
    EXPECT_EQ(SecurityScopedAccess::counts().started, before.started + 1);
    EXPECT_EQ(SecurityScopedAccess::counts().stopped, before.stopped);
  }
  EXPECT_EQ(SecurityScopedAccess::counts().stopped, before.stopped + 1);
}

TEST(SecurityScopedAccess, StopsNothingThatDidNotStart) {
  const auto before = SecurityScopedAccess::counts();
  {
    const SecurityScopedAccess access{QUrl(QStringLiteral("https://www.example.org/"))};
    EXPECT_FALSE(access.started());
  }
  EXPECT_EQ(SecurityScopedAccess::counts(), before);
}

}  // namespace
}  // namespace quillmere
