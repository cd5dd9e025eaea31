#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/FileUrl.h"
#include "prefix/HomebrewPrefixFileSystem.h"
#include "support/ForkedProcess.h"
#include "support/TestPrefix.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::TestPrefix;

QStringList namesIn(const QString& folder) {
  QStringList names;
  const auto contents = platformFileSystem()->contentsOfDirectory(fileUrl(folder));
  for (const QUrl& url : contents.value()) {
    names += filePath(url).sliced(folder.size() + 1);
  }
  names.sort();
  return names;
}

void setMode(const QString& path, mode_t mode) {
  ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
}

TEST(PlatformFileSystem, SeesFilesFoldersAndWhatLinksLeadTo) {
  TestPrefix prefix;
  prefix.withFile(u"file"_s);
  ASSERT_TRUE(QFile::link(prefix.pathOf(u"file"_s), prefix.pathOf(u"link"_s)));
  ASSERT_TRUE(QFile::link(prefix.pathOf(u"nothing"_s), prefix.pathOf(u"dangling"_s)));
  const auto disk = platformFileSystem();
  EXPECT_TRUE(disk->fileExists(prefix.path()));
  EXPECT_TRUE(disk->fileExists(prefix.pathOf(u"file"_s)));
  EXPECT_TRUE(disk->isReadableFile(prefix.pathOf(u"link"_s)));
  EXPECT_FALSE(disk->fileExists(prefix.pathOf(u"dangling"_s)));
  EXPECT_FALSE(disk->fileExists(prefix.pathOf(u"nothing"_s)));
  EXPECT_FALSE(disk->isReadableFile(prefix.pathOf(u"nothing"_s)));
}

TEST(PlatformFileSystem, TellsWhatMayNotBeRead) {
  TestPrefix prefix;
  prefix.withFile(u"secret"_s, "x");
  setMode(prefix.path(), 0755);
  setMode(prefix.pathOf(u"secret"_s), 0);
  EXPECT_TRUE(test::runUnprivileged([&] {
    const QString secret = prefix.pathOf(u"secret"_s);
    const auto disk = platformFileSystem();
    return disk->fileExists(secret) && !disk->isReadableFile(secret) &&
           !disk->readData(fileUrl(secret));
  }));
}

TEST(PlatformFileSystem, ListsAllButHiddenEntries) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar/wget"_s).withFile(u"Cellar/.DS_Store"_s).withFile(u"Cellar/a b%20c"_s);
  prefix.withFolder(u"Cellar/\u00e9t\u00e9"_s).withFolder(u"Cellar/.metadata"_s);
  ASSERT_TRUE(QFile::link(prefix.pathOf(u"nothing"_s), prefix.pathOf(u"Cellar/dangling"_s)));
  EXPECT_EQ(namesIn(prefix.pathOf(u"Cellar"_s)),
            (QStringList{u"a b%20c"_s, u"dangling"_s, u"wget"_s, u"\u00e9t\u00e9"_s}));
}

TEST(PlatformFileSystem, ListsAnEmptyFolder) {
  EXPECT_TRUE(namesIn(TestPrefix().path()).isEmpty());
}

TEST(PlatformFileSystem, RefusesToListWhatIsNoFolder) {
  TestPrefix prefix;
  prefix.withFile(u"file"_s);
  const auto disk = platformFileSystem();
  const auto file = disk->contentsOfDirectory(fileUrl(prefix.pathOf(u"file"_s)));
  EXPECT_FALSE(file.has_value());
  EXPECT_FALSE(file.error().message.isEmpty());
  EXPECT_FALSE(disk->contentsOfDirectory(fileUrl(prefix.pathOf(u"nothing"_s))).has_value());
}

TEST(PlatformFileSystem, RefusesToListAnUnreadableFolder) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar/wget"_s);
  setMode(prefix.path(), 0755);
  setMode(prefix.pathOf(u"Cellar"_s), 0);
  EXPECT_TRUE(test::runUnprivileged([&] {
    return !platformFileSystem()->contentsOfDirectory(fileUrl(prefix.pathOf(u"Cellar"_s)));
  }));
  setMode(prefix.pathOf(u"Cellar"_s), 0755);
}

TEST(PlatformFileSystem, ReadsAWholeFile) {
  TestPrefix prefix;
  const QByteArray content = QByteArray("\0\xFF receipt\n", 11).repeated(50'000);
  prefix.withFile(u"file"_s, content).withFile(u"empty"_s);
  const auto disk = platformFileSystem();
  EXPECT_EQ(disk->readData(fileUrl(prefix.pathOf(u"file"_s))).value(), content);
  EXPECT_EQ(disk->readData(fileUrl(prefix.pathOf(u"empty"_s))).value(), QByteArray());
}

TEST(PlatformFileSystem, ReadsNoMissingFileAndNoFolder) {
  TestPrefix prefix;
  const auto disk = platformFileSystem();
  const auto missing = disk->readData(fileUrl(prefix.pathOf(u"nothing"_s)));
  EXPECT_EQ(missing.error().message, u"No such file or directory"_s);
  EXPECT_EQ(disk->readData(prefix.url()).error().message, u"Is a directory"_s);
}

TEST(PlatformFileSystem, RefusesAPipeInsteadOfWaitingForIt) {
  TestPrefix prefix;
  const QString pipe = prefix.pathOf(u"INSTALL_RECEIPT.json"_s);
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
  EXPECT_FALSE(platformFileSystem()->readData(fileUrl(pipe)).has_value());
}

TEST(PlatformFileSystem, RefusesADevice) {
  EXPECT_FALSE(platformFileSystem()->readData(fileUrl(u"/dev/zero"_s)).has_value());
}

TEST(PlatformFileSystem, FindsNothingThatIsNotOfThisMachine) {
  const QUrl remote(u"https://www.example.org/etc"_s);
  EXPECT_FALSE(platformFileSystem()->contentsOfDirectory(remote).has_value());
  EXPECT_FALSE(platformFileSystem()->readData(remote).has_value());
}

TEST(PlatformFileSystem, IsThereThoughTheProgramIsEnding) {
  EXPECT_TRUE(platformFileSystem()->fileExists(u"/"_s));  // what is made once is made now
  EXPECT_TRUE(test::exitedCleanly(
      test::runForkedAtExit([] { return platformFileSystem()->fileExists(u"/"_s); })));
}

}  // namespace
}  // namespace quillmere
