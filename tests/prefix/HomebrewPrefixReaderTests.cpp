#include <QtTest/QTest>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixReader.h"
#include "support/InMemoryPrefixFileSystem.h"
#include "support/TestPrefix.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::InMemoryPrefixFileSystem;
using test::TestPrefix;
using Kind = HomebrewPrefixLocation::Kind;
using Status = HomebrewPrefixLocation::Status;

const QUrl prefixURL = QUrl(u"file:///opt/homebrew"_s);

std::shared_ptr<InMemoryPrefixFileSystem> emptyDisk() {
  return std::make_shared<InMemoryPrefixFileSystem>();
}

TEST(HomebrewPrefixReader, FindsOnlyBrewInAPrefixThatHoldsNothingElse) {
  const auto disk = emptyDisk();
  disk->withFile(u"/opt/homebrew/bin/brew"_s);
  const HomebrewPrefixReadResult result = HomebrewPrefixReader(prefixURL, disk).read();
  EXPECT_EQ(result.prefixURL, prefixURL);
  ASSERT_EQ(result.locations.size(), 7U);
  for (const HomebrewPrefixLocation& location : result.locations) {
    EXPECT_EQ(location.status,
              location.kind == Kind::brewExecutable ? Status::readable : Status::missing);
    EXPECT_TRUE(location.childNames.isEmpty());
  }
}

TEST(HomebrewPrefixReader, GivesEachLocationItsPlaceLabelAndUrl) {
  const HomebrewPrefixReadResult result = HomebrewPrefixReader(prefixURL, emptyDisk()).read();
  ASSERT_EQ(result.locations.size(), homebrewPrefixLocations.size());
  for (std::size_t i = 0; i < result.locations.size(); ++i) {
    const HomebrewPrefixLocation& location = result.locations[i];
    EXPECT_EQ(location.kind, homebrewPrefixLocations[i].kind);
    EXPECT_EQ(location.label, homebrewPrefixLocations[i].label);
    EXPECT_EQ(location.relativePath, homebrewPrefixLocations[i].relativePath);
    EXPECT_EQ(location.url, QUrl(u"file:///opt/homebrew/"_s + location.relativePath));
  }
}

TEST(HomebrewPrefixReader, AsksInOrderAndNoMoreThanItNeeds) {
  const auto disk = emptyDisk();
  disk->withFolder(u"/opt/homebrew/Cellar/wget"_s).withFolder(u"/opt/homebrew/Caskroom"_s);
  disk->withUnreadable(u"/opt/homebrew/Caskroom"_s);
  static_cast<void>(HomebrewPrefixReader(prefixURL, disk).read());
  EXPECT_EQ(
      disk->asked,
      (QStringList{
          u"fileExists /opt/homebrew/bin/brew"_s, u"fileExists /opt/homebrew/Cellar"_s,
          u"isReadableFile /opt/homebrew/Cellar"_s, u"contentsOfDirectory /opt/homebrew/Cellar"_s,
          u"fileExists /opt/homebrew/Caskroom"_s, u"isReadableFile /opt/homebrew/Caskroom"_s,
          u"fileExists /opt/homebrew/var/homebrew/linked"_s,
          u"fileExists /opt/homebrew/Library/Homebrew"_s,
          u"fileExists /opt/homebrew/Library/Taps"_s,
          u"fileExists /opt/homebrew/var/homebrew/cache"_s}));
}

TEST(HomebrewPrefixReader, SortsChildNamesByCodePoint) {
  const auto disk = emptyDisk();
  for (const QString& name :
       {u"wget"_s, u"abc"_s, u"Zsh"_s, u"openssl@3"_s, u"openssl"_s, u"\u00e9t\u00e9"_s, u"1.10"_s,
        u"1.9"_s, u"\U0001F37A"_s, u"\uFF21"_s, u"\uE000"_s}) {
    disk->withFolder(u"/opt/homebrew/Cellar/"_s + name);
  }
  const HomebrewPrefixReadResult result = HomebrewPrefixReader(prefixURL, disk).read();
  EXPECT_EQ(
      result.location(Kind::cellar)->childNames,
      (QStringList{u"1.10"_s, u"1.9"_s, u"Zsh"_s, u"abc"_s, u"openssl"_s, u"openssl@3"_s, u"wget"_s,
                   u"\u00e9t\u00e9"_s, u"\uE000"_s, u"\uFF21"_s, u"\U0001F37A"_s}));
}

TEST(HomebrewPrefixReader, LeavesOutHiddenEntriesOfTheDisk) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar/wget"_s).withFile(u"Cellar/.DS_Store"_s).withFolder(u"Cellar/Zlib"_s);
  const HomebrewPrefixReadResult result = HomebrewPrefixReader(prefix.url()).read();
  EXPECT_EQ(result.location(Kind::cellar)->status, Status::readable);
  EXPECT_EQ(result.location(Kind::cellar)->childNames, (QStringList{u"Zlib"_s, u"wget"_s}));
}

TEST(HomebrewPrefixReader, ReadsAWholePrefixOfTheDisk) {
  TestPrefix prefix;
  prefix.withAllLocations().withBrew("#!/bin/sh\n");
  const HomebrewPrefixReadResult result = HomebrewPrefixReader(prefix.url()).read();
  for (const HomebrewPrefixLocation& location : result.locations) {
    EXPECT_EQ(location.status, Status::readable) << location.label.toStdString();
    EXPECT_EQ(location.childNames.isEmpty(), location.kind == Kind::brewExecutable)
        << location.label.toStdString();
  }
}

TEST(HomebrewPrefixReader, NeverListsWhatCannotBeRead) {
  const auto disk = emptyDisk();
  disk->withFolder(u"/opt/homebrew/Cellar/wget"_s).withUnreadable(u"/opt/homebrew/Cellar"_s);
  const HomebrewPrefixReadResult result = HomebrewPrefixReader(prefixURL, disk).read();
  EXPECT_EQ(result.location(Kind::cellar)->status, Status::notReadable);
  EXPECT_TRUE(result.location(Kind::cellar)->childNames.isEmpty());
  EXPECT_FALSE(disk->asked.contains(u"contentsOfDirectory /opt/homebrew/Cellar"_s));
}

TEST(HomebrewPrefixReader, FindsAnUnreadableFolderOfTheDiskNotReadable) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar/wget"_s);
  ASSERT_EQ(chmod(prefix.path().toUtf8().constData(), 0755), 0);
  ASSERT_EQ(chmod(prefix.pathOf(u"Cellar"_s).toUtf8().constData(), 0), 0);
  EXPECT_TRUE(test::runUnprivileged([&prefix] {
    const HomebrewPrefixReadResult result = HomebrewPrefixReader(prefix.url()).read();
    return result.location(Kind::cellar)->status == Status::notReadable &&
           result.location(Kind::caskroom)->status == Status::missing;
  }));
  ASSERT_EQ(chmod(prefix.pathOf(u"Cellar"_s).toUtf8().constData(), 0755), 0);
}

TEST(HomebrewPrefixReader, FindsEverythingMissingInAPrefixThatDoesNotExist) {
  const HomebrewPrefixReadResult result =
      HomebrewPrefixReader(QUrl::fromLocalFile(TestPrefix().path() + u"/gone"_s)).read();
  ASSERT_EQ(result.locations.size(), 7U);
  for (const HomebrewPrefixLocation& location : result.locations) {
    EXPECT_EQ(location.status, Status::missing);
  }
}

TEST(HomebrewPrefixReader, FindsTheSameAgainButForTheTime) {
  const auto disk = emptyDisk();
  disk->withFolder(u"/opt/homebrew/Cellar/wget"_s);
  const HomebrewPrefixReader reader(prefixURL, disk);
  const HomebrewPrefixReadResult first = reader.read();
  QTest::qWait(2);
  HomebrewPrefixReadResult second = reader.read();
  EXPECT_NE(first, second);
  EXPECT_GT(second.scannedAt, first.scannedAt);
  second.scannedAt = first.scannedAt;
  EXPECT_EQ(first, second);
}

TEST(HomebrewPrefixReader, TakesTheTimeBeforeItLooks) {
  class SlowDisk final : public HomebrewPrefixFileSystem {
   public:
    mutable QDateTime firstAsked;

    bool fileExists(const QString&) const override {
      if (!firstAsked.isValid()) {
        QTest::qSleep(2);
        firstAsked = QDateTime::currentDateTimeUtc();
      }
      return false;
    }

    bool isReadableFile(const QString&) const override { return false; }

    std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(const QUrl&) const override {
      return std::unexpected(FileSystemError());
    }

    std::expected<QByteArray, FileSystemError> readData(const QUrl&) const override {
      return std::unexpected(FileSystemError());
    }
  };

  const auto disk = std::make_shared<SlowDisk>();
  EXPECT_LT(HomebrewPrefixReader(prefixURL, disk).read().scannedAt, disk->firstAsked);
}

TEST(HomebrewPrefixReader, HoldsAccessToThePrefixWhileItReads) {
  class WatchingDisk final : public HomebrewPrefixFileSystem {
   public:
    mutable SecurityScopedAccess::Counts seen;

    bool fileExists(const QString&) const override {
      seen = SecurityScopedAccess::counts();
      return false;
    }

    bool isReadableFile(const QString&) const override { return false; }

    std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(const QUrl&) const override {
      return std::unexpected(FileSystemError());
    }

    std::expected<QByteArray, FileSystemError> readData(const QUrl&) const override {
      return std::unexpected(FileSystemError());
    }
  };

  const auto before = SecurityScopedAccess::counts();
  const auto disk = std::make_shared<WatchingDisk>();
  static_cast<void>(HomebrewPrefixReader(prefixURL, disk).read());
  EXPECT_EQ(disk->seen.started, before.started + 1);
  EXPECT_EQ(disk->seen.stopped, before.stopped);
  EXPECT_EQ(SecurityScopedAccess::counts().stopped, before.stopped + 1);
}

TEST(HomebrewPrefixReader, ReadsOnWhereAccessIsNotGranted) {
  const auto before = SecurityScopedAccess::counts();
  const QUrl remote(u"https://www.example.org/homebrew"_s);
  EXPECT_EQ(HomebrewPrefixReader(remote, emptyDisk()).read().locations.size(), 7U);
  EXPECT_EQ(SecurityScopedAccess::counts(), before);
}

}  // namespace
}  // namespace quillmere
