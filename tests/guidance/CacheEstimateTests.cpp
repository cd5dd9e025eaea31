#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "guidance/CleanupGuidance.h"
#include "platform/FileDescriptor.h"
#include "platform/FileUrl.h"
#include "platform/SecurityScopedAccess.h"
#include "support/Printers.h"
#include "support/Rounds.h"
#include "support/TestPrefix.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::TestPrefix;
using CacheState = CleanupGuidanceSummary::CacheState;

const QString cache = u"var/homebrew/cache"_s;

std::optional<qint64> sizeOf(const TestPrefix& prefix) {
  return estimatedSize(fileUrl(prefix.pathOf(cache)));
}

QByteArray encodedPath(const TestPrefix& prefix, const QString& relativePath) {
  return QFile::encodeName(prefix.pathOf(relativePath));
}

TEST(CacheEstimate, AddsUpTheFilesOfAllFolders) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/wget.tar.gz"_s, QByteArray(1000, 'x'));
  prefix.withFile(cache + u"/downloads/a b%20\u00e9.tar.gz"_s, QByteArray(200, 'x'));
  prefix.withFile(cache + u"/downloads/deep/er/still"_s, QByteArray(30, 'x'));
  prefix.withFile(cache + u"/empty"_s).withFolder(cache + u"/nothing"_s);
  EXPECT_EQ(sizeOf(prefix), 1230);
}

TEST(CacheEstimate, IsZeroForAnEmptyFolder) {
  TestPrefix prefix;
  prefix.withFolder(cache);
  EXPECT_EQ(sizeOf(prefix), 0);
}

TEST(CacheEstimate, DoesNotCountHiddenFilesNorWhatIsInHiddenFolders) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/.cleaned"_s, QByteArray(1000, 'x'));
  prefix.withFile(cache + u"/.git/objects/pack"_s, QByteArray(1000, 'x'));
  EXPECT_EQ(sizeOf(prefix), 0);
}

TEST(CacheEstimate, NeitherCountsNorFollowsLinks) {
  TestPrefix prefix;
  prefix.withFile(u"elsewhere/large"_s, QByteArray(1000, 'x'));
  prefix.withFile(cache + u"/file"_s, QByteArray(7, 'x'));
  for (const auto& [target, name] :
       {std::pair(prefix.pathOf(u"elsewhere"_s), u"/folder"_s),
        std::pair(prefix.pathOf(u"elsewhere/large"_s), u"/link"_s),
        std::pair(u"nothing"_s, u"/dangling"_s), std::pair(u"."_s, u"/loop"_s)}) {
    ASSERT_TRUE(QFile::link(target, prefix.pathOf(cache + name)));
  }
  EXPECT_EQ(sizeOf(prefix), 7);
}

TEST(CacheEstimate, CountsACacheThatIsItselfALink) {
  TestPrefix prefix;
  prefix.withFile(u"large-disk/file"_s, QByteArray(7, 'x')).withFolder(u"var/homebrew"_s);
  ASSERT_TRUE(QFile::link(prefix.pathOf(u"large-disk"_s), prefix.pathOf(cache)));
  EXPECT_EQ(sizeOf(prefix), 7);
}

TEST(CacheEstimate, CountsRegularFilesOnlyAndOpensNone) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/file"_s, QByteArray(7, 'x'));
  // Opening either of them would wait or fail.
  ASSERT_EQ(mkfifo(encodedPath(prefix, cache + u"/pipe"_s).constData(), 0644), 0);
  ASSERT_EQ(mkfifo(encodedPath(prefix, cache + u"/pipe2"_s).constData(), 0), 0);
  EXPECT_EQ(sizeOf(prefix), 7);
}

TEST(CacheEstimate, CountsFilesThatMayNotBeReadAndLeavesOutFoldersThatMayNotBeListed) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/file"_s, QByteArray(7, 'x'));
  prefix.withFile(cache + u"/secret"_s, QByteArray(20, 'x'));
  prefix.withFile(cache + u"/closed/file"_s, QByteArray(300, 'x'));
  ASSERT_EQ(chmod(encodedPath(prefix, cache + u"/secret"_s).constData(), 0), 0);
  ASSERT_EQ(chmod(encodedPath(prefix, cache + u"/closed"_s).constData(), 0), 0);
  EXPECT_TRUE(test::runUnprivileged([&prefix] { return sizeOf(prefix) == 27; }));
  ASSERT_EQ(chmod(encodedPath(prefix, cache + u"/closed"_s).constData(), 0755), 0);
}

TEST(CacheEstimate, CountsNothingWhereFilesMayNotBeLookedAt) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/file"_s, QByteArray(7, 'x'));
  ASSERT_EQ(chmod(encodedPath(prefix, cache).constData(), 0444), 0);
  EXPECT_TRUE(test::runUnprivileged([&prefix] { return sizeOf(prefix) == 0; }));
  ASSERT_EQ(chmod(encodedPath(prefix, cache).constData(), 0755), 0);
}

TEST(CacheEstimate, IsAbsentWhereThereIsNoFolderToList) {
  TestPrefix prefix;
  EXPECT_EQ(sizeOf(prefix), std::nullopt);
  prefix.withFile(cache, "x");
  EXPECT_EQ(sizeOf(prefix), std::nullopt);
}

TEST(CacheEstimate, GoesDeeperThanFilesMayBeOpen) {
  TestPrefix prefix;
  QString folder = cache;
  for (int depth = 0; depth < 1500; ++depth) {
    folder += u"/d"_s;
  }
  prefix.withFile(folder + u"/file"_s, QByteArray(7, 'x'));
  EXPECT_EQ(sizeOf(prefix), 7);
}

/// A name of every path is a file to a process only up to the length that a path may have: deeper
/// files do not count.
TEST(CacheEstimate, EndsInATreeThatIsDeeperThanAPathIsLong) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/file"_s, QByteArray(7, 'x'));
  const QByteArray name(250, 'd');
  FileDescriptor folder(open(encodedPath(prefix, cache).constData(), O_RDONLY | O_DIRECTORY));
  for (int depth = 0; depth < 100; ++depth) {
    ASSERT_EQ(mkdirat(folder.get(), name.constData(), 0755), 0);
    const FileDescriptor file(openat(folder.get(), "small", O_CREAT | O_WRONLY, 0644));
    ASSERT_EQ(write(file.get(), "x", 1), 1);
    folder = FileDescriptor(openat(folder.get(), name.constData(), O_RDONLY | O_DIRECTORY));
    ASSERT_TRUE(folder.isOpen());
  }
  const auto bytes = sizeOf(prefix);
  // Qt's own removal goes by paths as well.
  std::filesystem::remove_all(encodedPath(prefix, cache).toStdString());
  ASSERT_TRUE(bytes);
  EXPECT_GT(*bytes, 7);
  EXPECT_LE(*bytes, 107);
}

TEST(CacheEstimate, CountsManyFilesOnceAmongLinksInCircles) {
  TestPrefix prefix;
  const int count = test::rounds(2000, 100'000);
  prefix.withFolder(cache + u"/downloads"_s);
  for (int i = 0; i < count; ++i) {
    const QByteArray path = encodedPath(prefix, cache + u"/downloads/%1"_s.arg(i));
    const FileDescriptor file(open(path.constData(), O_CREAT | O_WRONLY, 0644));
    ASSERT_EQ(write(file.get(), "x", 1), 1);
    if (i % 100 == 0) {
      ASSERT_EQ(symlink("..", (path + "-up").constData()), 0);
      ASSERT_EQ(symlink("/", (path + "-root").constData()), 0);
    }
  }
  EXPECT_EQ(sizeOf(prefix), count);
}

TEST(CacheEstimate, GivesBackTheAccessThatItWasGranted) {
  TestPrefix prefix;
  prefix.withFolder(cache);
  const auto before = SecurityScopedAccess::counts();
  static_cast<void>(sizeOf(prefix));
  static_cast<void>(estimatedSize(QUrl(u"https://www.example.org/cache"_s)));
  const auto after = SecurityScopedAccess::counts();
  EXPECT_EQ(after.started - before.started, 1);
  EXPECT_EQ(after.stopped - before.stopped, 1);
}

TEST(CacheEstimateDeathTest, StopsWhereTheSumIsBeyondANumber) {
  // Begun anew in the process that dies, the test would leave its folder behind.
  GTEST_FLAG_SET(death_test_style, "fast");
  // A disk in memory takes files of any size that hold nothing.
  QTemporaryDir folder(u"/dev/shm/quillmere-XXXXXX"_s);
  for (const QString& name : {u"one"_s, u"two"_s}) {
    QFile file(folder.filePath(name));
    if (!folder.isValid() || !file.open(QFile::WriteOnly) ||
        ftruncate(file.handle(), 0x7000'0000'0000'0000) != 0) {
      GTEST_SKIP() << "no disk here takes files of such a size";
    }
  }
  EXPECT_DEATH(static_cast<void>(estimatedSize(fileUrl(folder.path()))), "larger than a number");
}

TEST(CleanupCacheState, IsReadableWithTheSize) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/file"_s, QByteArray(7, 'x'));
  EXPECT_EQ(cleanupCacheState(prefix.url()),
            (CacheState{CacheState::Readable{.path = prefix.pathOf(cache), .estimatedBytes = 7}}));
}

TEST(CleanupCacheState, IsReadableWithoutASizeWhereThereIsAFile) {
  TestPrefix prefix;
  prefix.withFile(cache, "x");
  EXPECT_EQ(cleanupCacheState(prefix.url()),
            (CacheState{CacheState::Readable{.path = prefix.pathOf(cache),
                                             .estimatedBytes = std::nullopt}}));
}

TEST(CleanupCacheState, IsMissing) {
  const TestPrefix prefix;
  EXPECT_EQ(cleanupCacheState(prefix.url()),
            (CacheState{CacheState::Missing{prefix.pathOf(cache)}}));
}

TEST(CleanupCacheState, IsNotReadable) {
  TestPrefix prefix;
  prefix.withFile(cache + u"/file"_s, "x");
  ASSERT_EQ(chmod(encodedPath(prefix, cache).constData(), 0), 0);
  EXPECT_TRUE(test::runUnprivileged([&prefix] {
    return cleanupCacheState(prefix.url()) ==
           CacheState{CacheState::NotReadable{prefix.pathOf(cache)}};
  }));
  ASSERT_EQ(chmod(encodedPath(prefix, cache).constData(), 0755), 0);
}

}  // namespace
}  // namespace quillmere
