#include <QtCore/QFile>
#include <QtCore/QSet>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixProbe.h"
#include "support/TestPrefix.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::TestPrefix;
using Status = HomebrewPrefixProbeResult::Status;

const HomebrewPrefixProbeResult& row(const HomebrewPrefixProbeSummary& summary,
                                     QStringView relativePath) {
  return *std::ranges::find(summary.results, relativePath,
                            &HomebrewPrefixProbeResult::relativePath);
}

TEST(HomebrewPrefixProbe, ShowsTheSevenLocationsInOrder) {
  const TestPrefix prefix;
  const HomebrewPrefixProbeSummary summary = probeHomebrewPrefix(prefix.url());
  EXPECT_EQ(summary.prefixURL, prefix.url());
  ASSERT_EQ(summary.results.size(), homebrewPrefixLocations.size());
  for (std::size_t i = 0; i < summary.results.size(); ++i) {
    EXPECT_EQ(summary.results[i].label, homebrewPrefixLocations[i].label);
    EXPECT_EQ(summary.results[i].relativePath, homebrewPrefixLocations[i].relativePath);
  }
}

TEST(HomebrewPrefixProbe, AcceptsAFolderWithReadableBrewAndNothingElse) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\n");
  const HomebrewPrefixProbeSummary summary = probeHomebrewPrefix(prefix.url());
  EXPECT_TRUE(summary.looksLikeHomebrewPrefix());
  for (const HomebrewPrefixProbeResult& result : summary.results) {
    EXPECT_EQ(statusText(result), result.relativePath == u"bin/brew" ? u"Readable" : u"Missing");
  }
}

TEST(HomebrewPrefixProbe, RejectsAFolderWithUnreadableBrew) {
  TestPrefix prefix;
  prefix.withBrew("#!/bin/sh\n");
  ASSERT_EQ(chmod(prefix.path().toUtf8().constData(), 0755), 0);
  ASSERT_EQ(chmod(prefix.pathOf(u"bin/brew"_s).toUtf8().constData(), 0), 0);
  EXPECT_TRUE(test::runUnprivileged([&prefix] {
    const HomebrewPrefixProbeSummary summary = probeHomebrewPrefix(prefix.url());
    return !summary.looksLikeHomebrewPrefix() &&
           statusText(row(summary, u"bin/brew")) == u"Not readable" &&
           !row(summary, u"bin/brew").itemCount;
  }));
}

TEST(HomebrewPrefixProbe, RejectsAFolderThatHasEverythingButBrew) {
  TestPrefix prefix;
  prefix.withAllLocations();
  EXPECT_FALSE(probeHomebrewPrefix(prefix.url()).looksLikeHomebrewPrefix());
}

TEST(HomebrewPrefixProbe, CountsAnEmptyFolderAsNoItems) {
  TestPrefix prefix;
  prefix.withFolder(u"Cellar"_s);
  const HomebrewPrefixProbeSummary summary = probeHomebrewPrefix(prefix.url());
  const HomebrewPrefixProbeResult& cellar = row(summary, u"Cellar");
  EXPECT_EQ(cellar.itemCount, 0);
  EXPECT_EQ(statusText(cellar), u"Readable (0 items)");
}

TEST(HomebrewPrefixProbe, CountsVisibleItems) {
  TestPrefix prefix;
  prefix.withFolder(u"Caskroom/firefox"_s).withFolder(u"Caskroom/.metadata"_s);
  prefix.withFolder(u"Cellar/wget"_s).withFolder(u"Cellar/zlib"_s).withFile(u"Cellar/notes"_s);
  const HomebrewPrefixProbeSummary summary = probeHomebrewPrefix(prefix.url());
  EXPECT_EQ(statusText(row(summary, u"Caskroom")), u"Readable (1 items)");
  EXPECT_EQ(statusText(row(summary, u"Cellar")), u"Readable (3 items)");
}

/// Only a listing would tell what stands in the place of a location, and nobody waits for it.
TEST(HomebrewPrefixProbe, WaitsForNoPipeAndNoCircle) {
  TestPrefix prefix;
  prefix.withFolder(u"bin"_s).withFolder(u"var/homebrew"_s).withFolder(u"Library"_s);
  const auto pathOf = [&prefix](const QString& name) {
    return QFile::encodeName(prefix.pathOf(name));
  };
  for (const QString& name : {u"bin/brew"_s, u"Cellar"_s, u"var/homebrew/cache"_s}) {
    ASSERT_EQ(mkfifo(pathOf(name).constData(), 0644), 0);
  }
  ASSERT_EQ(symlink("Caskroom", pathOf(u"Caskroom"_s).constData()), 0);
  ASSERT_EQ(symlink("/dev/zero", pathOf(u"Library/Homebrew"_s).constData()), 0);
  ASSERT_EQ(symlink("..", pathOf(u"Library/Taps"_s).constData()), 0);
  QStringList texts;
  for (const HomebrewPrefixProbeResult& result : probeHomebrewPrefix(prefix.url()).results) {
    texts += statusText(result);
  }
  EXPECT_EQ(texts, (QStringList{u"Readable"_s, u"Readable"_s, u"Missing"_s, u"Missing"_s,
                                u"Readable"_s, u"Readable (5 items)"_s, u"Readable"_s}));
}

TEST(HomebrewPrefixProbe, GivesEachRowOfEachProbeItsOwnIdentity) {
  const TestPrefix prefix;
  QSet<QUuid> identifiers;
  for (int probe = 0; probe < 2; ++probe) {
    const HomebrewPrefixProbeSummary summary = probeHomebrewPrefix(prefix.url());
    for (const HomebrewPrefixProbeResult& result : summary.results) {
      identifiers.insert(result.id);
    }
  }
  EXPECT_EQ(identifiers.size(), 14);
}

TEST(HomebrewPrefixProbe, TakesTheTimeOfTheProbe) {
  const TestPrefix prefix;
  const QDateTime before = QDateTime::currentDateTimeUtc();
  const QDateTime scannedAt = probeHomebrewPrefix(prefix.url()).scannedAt;
  EXPECT_GE(scannedAt, before);
  EXPECT_LE(scannedAt, QDateTime::currentDateTimeUtc());
}

TEST(HomebrewPrefixProbe, StartsAndStopsAccessOnce) {
  const TestPrefix prefix;
  const auto before = SecurityScopedAccess::counts();
  static_cast<void>(probeHomebrewPrefix(prefix.url()));
  EXPECT_EQ(SecurityScopedAccess::counts().started, before.started + 1);
  EXPECT_EQ(SecurityScopedAccess::counts().stopped, before.stopped + 1);
}

struct StatusTextRow {
  Status status;
  std::optional<qsizetype> itemCount;
  QString text;
};

TEST(HomebrewPrefixProbe, PutsEachStatusInWords) {
  const std::vector<StatusTextRow> table{
      {Status::readable, std::nullopt, u"Readable"_s},
      {Status::readable, 0, u"Readable (0 items)"_s},
      {Status::readable, 1, u"Readable (1 items)"_s},
      {Status::readable, 1234, u"Readable (1234 items)"_s},
      {Status::missing, std::nullopt, u"Missing"_s},
      {Status::notReadable, std::nullopt, u"Not readable"_s},
  };
  for (const auto& [status, itemCount, text] : table) {
    HomebrewPrefixProbeResult result;
    result.status = status;
    result.itemCount = itemCount;
    EXPECT_EQ(statusText(result), text);
  }
}

TEST(HomebrewPrefixProbe, SaysWhereAMissingLocationReallyIs) {
  TestPrefix prefix;
  prefix.withFile(u"bin/brew"_s).withFolder(u"Homebrew/Library/Homebrew"_s);
  const auto results = probeHomebrewPrefix(prefix.url()).results;
  const auto foundAt = [&results](QStringView relativePath) {
    return std::ranges::find(results, relativePath, &HomebrewPrefixProbeResult::relativePath)
        ->foundAt;
  };
  EXPECT_EQ(foundAt(u"Library/Homebrew"), u"Homebrew/Library/Homebrew"_s);
  EXPECT_EQ(foundAt(u"Library/Taps"), QString()) << "it is not there either";
  EXPECT_EQ(foundAt(u"bin/brew"), QString()) << "it is not missing";
}

TEST(HomebrewPrefixProbe, LooksForTheCacheWhereHomebrewKeepsIt) {
  const auto places = otherPlacesOf(HomebrewPrefixLocation::Kind::cache);
  EXPECT_EQ(places.last(), QDir::homePath() + u"/.cache/Homebrew"_s);
  EXPECT_TRUE(places.contains(QDir::homePath() + u"/Library/Caches/Homebrew"_s));
}

/// The folder that is taken where `prefix` is the only one that is a prefix.
QString taken(const QString& prefix, const QString& chosen, const QString& shown) {
  const auto probe = [&prefix](const QUrl& folder) {
    const auto status = folder == QUrl::fromLocalFile(prefix)
                            ? HomebrewPrefixProbeResult::Status::readable
                            : HomebrewPrefixProbeResult::Status::missing;
    return HomebrewPrefixProbeSummary{
        .prefixURL = folder,
        .scannedAt = {},
        .results = {{.id = {}, .label = {}, .relativePath = u"bin/brew"_s, .status = status}}};
  };
  return probeChosenFolder(probe, QUrl::fromLocalFile(chosen), QUrl::fromLocalFile(shown))
      .prefixURL.toLocalFile();
}

TEST(ChosenFolder, IsTheOneThatWasChosenWhereThatIsAPrefix) {
  EXPECT_EQ(taken(u"/opt/homebrew"_s, u"/opt/homebrew"_s, u"/opt"_s), u"/opt/homebrew"_s);
}

TEST(ChosenFolder, IsThePrefixAroundWhatIsHighlightedInTheChooser) {
  EXPECT_EQ(taken(u"/opt/homebrew"_s, u"/opt/homebrew/bin"_s, u"/opt/homebrew"_s),
            u"/opt/homebrew"_s);
  EXPECT_EQ(taken(u"/opt/homebrew"_s, u"/opt/homebrew/var/log"_s, u"/opt/homebrew"_s),
            u"/opt/homebrew"_s);
}

TEST(ChosenFolder, IsNotAPrefixElsewhereThatTheChooserHappensToShow) {
  EXPECT_EQ(taken(u"/opt/homebrew"_s, u"/home/anna"_s, u"/opt/homebrew"_s), u"/home/anna"_s);
  EXPECT_EQ(taken(u"/opt/homebrew"_s, u"/opt/homebrew2"_s, u"/opt/homebrew"_s),
            u"/opt/homebrew2"_s);
  EXPECT_EQ(taken(u"/opt/homebrew"_s, u"/opt"_s, u"/opt/homebrew"_s), u"/opt"_s);
  EXPECT_EQ(taken(u"/opt/homebrew"_s, u"/opt/homebrew/../anna"_s, u"/opt/homebrew"_s),
            u"/opt/homebrew/../anna"_s);
}

}  // namespace
}  // namespace quillmere
