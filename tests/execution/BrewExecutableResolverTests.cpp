#include <gtest/gtest.h>
#include <sys/stat.h>

#include "execution/BrewExecutableResolver.h"
#include "platform/SecurityScopedAccess.h"
#include "support/InMemoryPrefixFileSystem.h"
#include "support/TestPrefix.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::InMemoryPrefixFileSystem;
using test::TestPrefix;
using Status = BrewExecutableResolution::Status;

const QUrl prefixURL = QUrl(u"file:///opt/homebrew"_s);
const QUrl brewURL = QUrl(u"file:///opt/homebrew/bin/brew"_s);

std::shared_ptr<InMemoryPrefixFileSystem> diskWithBrew() {
  const auto disk = std::make_shared<InMemoryPrefixFileSystem>();
  disk->withFile(u"/opt/homebrew/bin/brew"_s);
  return disk;
}

TEST(BrewExecutableResolver, AsksNothingWithoutAPrefix) {
  const auto disk = diskWithBrew();
  const auto before = SecurityScopedAccess::counts();
  EXPECT_EQ(BrewExecutableResolver(disk).resolve(std::nullopt),
            (BrewExecutableResolution{Status::noSelectedPrefix, std::nullopt, std::nullopt}));
  EXPECT_TRUE(disk->asked.isEmpty());
  EXPECT_EQ(SecurityScopedAccess::counts(), before);
}

TEST(BrewExecutableResolver, FindsAReadableBrew) {
  EXPECT_EQ(BrewExecutableResolver(diskWithBrew()).resolve(prefixURL),
            (BrewExecutableResolution{Status::resolved, prefixURL, brewURL}));
}

TEST(BrewExecutableResolver, RefusesAPrefixThatDoesNotExist) {
  const auto disk = std::make_shared<InMemoryPrefixFileSystem>();
  EXPECT_EQ(BrewExecutableResolver(disk).resolve(prefixURL),
            (BrewExecutableResolution{Status::invalidPrefix, prefixURL, std::nullopt}));
  EXPECT_EQ(disk->asked, (QStringList{u"fileExists /opt/homebrew"_s}));
}

TEST(BrewExecutableResolver, RefusesAnUnreadablePrefix) {
  const auto disk = diskWithBrew();
  disk->withUnreadable(u"/opt/homebrew"_s);
  EXPECT_EQ(BrewExecutableResolver(disk).resolve(prefixURL),
            (BrewExecutableResolution{Status::invalidPrefix, prefixURL, std::nullopt}));
  EXPECT_EQ(disk->asked,
            (QStringList{u"fileExists /opt/homebrew"_s, u"isReadableFile /opt/homebrew"_s}));
}

TEST(BrewExecutableResolver, SaysThatBrewIsMissing) {
  const auto disk = std::make_shared<InMemoryPrefixFileSystem>();
  disk->withFolder(u"/opt/homebrew/bin"_s).withFile(u"/usr/bin/brew"_s);
  EXPECT_EQ(BrewExecutableResolver(disk).resolve(prefixURL),
            (BrewExecutableResolution{Status::missingExecutable, prefixURL, std::nullopt}));
}

TEST(BrewExecutableResolver, CallsAnUnreadableBrewNotExecutable) {
  const auto disk = diskWithBrew();
  disk->withUnreadable(u"/opt/homebrew/bin/brew"_s);
  EXPECT_EQ(BrewExecutableResolver(disk).resolve(prefixURL),
            (BrewExecutableResolution{Status::notExecutable, prefixURL, brewURL}));
}

TEST(BrewExecutableResolver, CallsAnUnreadableBrewOfTheDiskNotExecutable) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\n");
  ASSERT_EQ(chmod(prefix.path().toUtf8().constData(), 0755), 0);
  ASSERT_EQ(chmod(prefix.pathOf(u"bin/brew"_s).toUtf8().constData(), 0), 0);
  EXPECT_TRUE(test::runUnprivileged([&prefix] {
    return BrewExecutableResolver().resolve(prefix.url()).status == Status::notExecutable;
  }));
}

TEST(BrewExecutableResolver, AsksForNoExecutePermission) {
  TestPrefix prefix;
  prefix.withFile(u"bin/brew"_s, "#!/bin/sh\n");
  ASSERT_EQ(chmod(prefix.pathOf(u"bin/brew"_s).toUtf8().constData(), 0644), 0);
  EXPECT_EQ(BrewExecutableResolver().resolve(prefix.url()).status, Status::resolved);
}

TEST(BrewExecutableResolver, ReadsNoFile) {
  const auto disk = diskWithBrew();
  static_cast<void>(BrewExecutableResolver(disk).resolve(prefixURL));
  EXPECT_TRUE(disk->asked.filter(u"readData"_s).isEmpty());
}

TEST(BrewExecutableResolver, StopsTheAccessThatItStartedOnEveryWay) {
  const auto missing = std::make_shared<InMemoryPrefixFileSystem>();
  const auto unreadable = diskWithBrew();
  unreadable->withUnreadable(u"/opt/homebrew"_s);
  for (const auto& disk : {missing, unreadable, diskWithBrew()}) {
    const auto before = SecurityScopedAccess::counts();
    static_cast<void>(BrewExecutableResolver(disk).resolve(prefixURL));
    const auto after = SecurityScopedAccess::counts();
    EXPECT_GT(after.started, before.started);
    EXPECT_EQ(after.started - before.started, after.stopped - before.stopped);
  }
}

TEST(BrewExecutableResolution, IsEqualOnlyWhenStatusAndBothUrlsAre) {
  const BrewExecutableResolution resolution{Status::resolved, prefixURL, brewURL};
  const QUrl other(u"file:///usr/local"_s);
  EXPECT_EQ(resolution, (BrewExecutableResolution{Status::resolved, prefixURL, brewURL}));
  EXPECT_NE(resolution, (BrewExecutableResolution{Status::notExecutable, prefixURL, brewURL}));
  EXPECT_NE(resolution, (BrewExecutableResolution{Status::resolved, other, brewURL}));
  EXPECT_NE(resolution, (BrewExecutableResolution{Status::resolved, prefixURL, other}));
  EXPECT_NE(resolution, (BrewExecutableResolution{Status::resolved, prefixURL, std::nullopt}));
  EXPECT_NE(resolution, (BrewExecutableResolution{Status::resolved, std::nullopt, brewURL}));
  EXPECT_EQ(BrewExecutableResolution(), BrewExecutableResolution());
}

struct Row {
  Status status;
  const char* message;
  const char* diagnosticText;
};

constexpr Row table[] = {
    {Status::resolved, "", "resolved"},
    {Status::noSelectedPrefix, "Select a Homebrew prefix before running commands.",
     "Select a Homebrew prefix before running commands."},
    {Status::invalidPrefix, "The selected folder does not look like a Homebrew prefix.",
     "The selected folder does not look like a Homebrew prefix."},
    {Status::missingExecutable, "The selected Homebrew prefix does not contain bin/brew.",
     "The selected Homebrew prefix does not contain bin/brew."},
    {Status::notExecutable, "The selected prefix contains bin/brew, but it is not executable.",
     "The selected prefix contains bin/brew, but it is not executable."},
};

class BrewExecutableResolutionTable : public testing::TestWithParam<Row> {};

TEST_P(BrewExecutableResolutionTable, HasAMessageForEachStatus) {
  EXPECT_EQ(message(GetParam().status).toStdString(), GetParam().message);
  EXPECT_EQ(diagnosticText(GetParam().status).toStdString(), GetParam().diagnosticText);
}

INSTANTIATE_TEST_SUITE_P(Statuses, BrewExecutableResolutionTable, testing::ValuesIn(table));

}  // namespace
}  // namespace quillmere
