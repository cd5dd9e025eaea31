#include <gtest/gtest.h>

#include "execution/DirectCommandRunnerError.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Status = BrewExecutableResolution::Status;

TEST(DirectCommandRunnerError, SaysWhatTheResolutionSays) {
  for (const Status status : {Status::noSelectedPrefix, Status::invalidPrefix,
                              Status::missingExecutable, Status::notExecutable}) {
    EXPECT_EQ(description(UnresolvedBrewExecutable{status}), message(status));
  }
}

TEST(DirectCommandRunnerError, HasASentenceForAResolutionWithoutALocation) {
  EXPECT_EQ(description(UnresolvedBrewExecutable{Status::resolved}),
            u"The location of the selected prefix's bin/brew is not known."_s);
}

TEST(DirectCommandRunnerError, NamesTheKindOfAnUnsupportedTarget) {
  EXPECT_EQ(description(UnsupportedTarget{BrewCommandTargetKind::diagnostic}),
            u"This command cannot be run for a diagnostic target."_s);
}

TEST(DirectCommandRunnerError, SaysWhyTheLaunchFailed) {
  EXPECT_EQ(description(SystemFailure{std::make_error_code(std::errc::permission_denied)}),
            u"Permission denied"_s);
}

}  // namespace
}  // namespace quillmere
