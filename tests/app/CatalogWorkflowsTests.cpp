#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtNetwork/QNetworkAccessManager>
#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

#include "app/CatalogWorkflows.h"
#include "persistence/LocalPersistenceStore.h"
#include "support/CatalogServer.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

using namespace Qt::StringLiterals;

namespace quillmere {

using Progress = CatalogWorkflows::Progress;
using State = PackageCatalogState;

[[maybe_unused]] static void PrintTo(const Progress& progress, std::ostream* out) {
  *out << progress.receivedBytes << " of " << progress.expectedBytes.value_or(-1);
}

namespace {

using test::Answer;
using testing::ElementsAre;
const QByteArray formulaPath = "/api/formula.json";
const QByteArray caskPath = "/api/cask.json";

const QDateTime monday =
    QDateTime::fromString(QStringLiteral("2026-11-16T08:00:00.000Z"), Qt::ISODateWithMs);
const QDateTime friday =
    QDateTime::fromString(QStringLiteral("2026-11-20T20:42:00.000Z"), Qt::ISODateWithMs);

QByteArray formulaDocument(const QByteArray& name) {
  return R"([{"name": ")" + name + R"(", "versions": {"stable": "1.0"}}])";
}

QByteArray caskDocument(const QByteArray& token) {
  return R"([{"token": ")" + token + R"("}])";
}

/// The workflows over a server, a store and a cache of the test's own. It is Friday; what is in
/// the cache is from Monday.
class CatalogWorkflowsTest : public testing::Test {
 protected:
  CatalogWorkflowsTest() {
    server_.answer(formulaPath, {.body = formulaDocument("wget")});
    server_.answer(caskPath, {.body = caskDocument("firefox")});
  }

  void givenCache(const QString& name, const QByteArray& document) {
    const QString folder = settings_.cacheDirectoryURL().toLocalFile();
    QDir().mkpath(folder);
    QFile file(folder + u'/' + name);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(document) == document.size());
    store_.setCatalogLastRefreshDate(monday);
  }

  void givenBothInCache() {
    givenCache(u"formula.json"_s, formulaDocument("cached-formula"));
    givenCache(u"cask.json"_s, caskDocument("cached-cask"));
  }

  [[nodiscard]] QByteArray cached(const QString& name) const {
    QFile file(settings_.cacheDirectoryURL().toLocalFile() + u'/' + name);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }

  void fetch(CatalogScope scope) { QCoro::waitFor(workflows_->fetch(scope)); }

  bool loadCached(CatalogScope scope) { return QCoro::waitFor(workflows_->loadCached(scope)); }

  [[nodiscard]] QStringList shownIDs() const {
    const auto* loaded = std::get_if<State::Loaded>(&workflows_->state().value);
    QStringList ids;
    for (const auto& package :
         loaded ? loaded->catalog->packages() : std::vector<HomebrewPackageSummary>()) {
      ids += package.id.toString();
    }
    return ids;
  }

  [[nodiscard]] QString failure() const {
    const auto* failed = std::get_if<State::Failed>(&workflows_->state().value);
    return failed ? failed->message : u"(not failed)"_s;
  }

  [[nodiscard]] QString loadingMessage() const {
    const auto* loading = std::get_if<State::Loading>(&workflows_->state().value);
    return loading ? loading->message : u"(not loading)"_s;
  }

  void expectOldCache() const {
    EXPECT_EQ(cached(u"formula.json"_s), formulaDocument("cached-formula"));
    EXPECT_EQ(cached(u"cask.json"_s), caskDocument("cached-cask"));
    EXPECT_EQ(store_.catalogLastRefreshDate(), monday);
  }

  test::CatalogServer server_;
  test::TemporarySettings settings_;
  LocalPersistenceStore store_{settings_.open(), settings_.cacheDirectoryURL()};
  QNetworkAccessManager session_;
  std::optional<CatalogWorkflows> workflows_{
      std::in_place, store_,
      CatalogWorkflows::Clients{
          .formulae = {.apiURL = server_.url(formulaPath), .session = &session_},
          .casks = {.apiURL = server_.url(caskPath), .session = &session_}},
      [] { return friday; }};
};

TEST_F(CatalogWorkflowsTest, BeginWithNothing) {
  EXPECT_EQ(workflows_->state(), State{State::Idle{}});
  EXPECT_EQ(workflows_->fetchProgress(), std::nullopt);
}

// --- Fetching ---

struct FetchCase {
  CatalogScope scope;
  QString loadingMessage;
  QStringList ids;
  QList<QByteArray> requests;
};

TEST_F(CatalogWorkflowsTest, FetchShowAndKeepTheDocumentsOfTheirScope) {
  for (const FetchCase& row : {FetchCase{CatalogScope::all,
                                         u"Fetching Homebrew package metadata..."_s,
                                         {u"formula:wget"_s, u"cask:firefox"_s},
                                         {formulaPath, caskPath}},
                               FetchCase{CatalogScope::formulae,
                                         u"Fetching Homebrew formula metadata..."_s,
                                         {u"formula:wget"_s},
                                         {formulaPath}},
                               FetchCase{CatalogScope::casks,
                                         u"Fetching Homebrew cask metadata..."_s,
                                         {u"cask:firefox"_s},
                                         {caskPath}}}) {
    SCOPED_TRACE(row.loadingMessage.toStdString());
    store_.clearCacheMarkers();
    const qsizetype earlier = server_.requests().size();
    auto fetching = workflows_->fetch(row.scope);
    EXPECT_EQ(loadingMessage(), row.loadingMessage);
    QCoro::waitFor(fetching);
    EXPECT_EQ(shownIDs(), row.ids);
    QList<QByteArray> requests;
    for (const test::Request& request : server_.requests().sliced(earlier)) {
      requests += request.path;
    }
    EXPECT_EQ(requests, row.requests);
    EXPECT_EQ(cached(u"formula.json"_s),
              row.requests.contains(formulaPath) ? formulaDocument("wget") : "(none)");
    EXPECT_EQ(cached(u"cask.json"_s),
              row.requests.contains(caskPath) ? caskDocument("firefox") : "(none)");
    EXPECT_EQ(store_.catalogLastRefreshDate(), friday);
  }
}

TEST_F(CatalogWorkflowsTest, FetchFormulaeInPlaceOfAMixedCatalog) {
  fetch(CatalogScope::all);
  fetch(CatalogScope::formulae);
  EXPECT_EQ(shownIDs(), QStringList(u"formula:wget"_s));
}

TEST_F(CatalogWorkflowsTest, KeepTheOrderOfTheDocuments) {
  server_.answer(formulaPath, {.body = R"([{"name": "zlib", "versions": {}},
                                           {"name": "abc", "versions": {}}])"});
  server_.answer(caskPath, {.body = R"([{"token": "y"}, {"token": "b"}])"});
  fetch(CatalogScope::all);
  EXPECT_THAT(shownIDs(),
              ElementsAre(u"formula:zlib"_s, u"formula:abc"_s, u"cask:y"_s, u"cask:b"_s));
}

// --- Falling back ---

TEST_F(CatalogWorkflowsTest, ShowTheCacheWithoutAnErrorWhereTheNetworkFails) {
  givenBothInCache();
  server_.answer(caskPath, {.status = 503});
  fetch(CatalogScope::all);
  EXPECT_EQ(shownIDs(), QStringList({u"formula:cached-formula"_s, u"cask:cached-cask"_s}));
  expectOldCache();
}

TEST_F(CatalogWorkflowsTest, ShowTheCacheOfTheSameScope) {
  givenBothInCache();
  server_.answer(formulaPath, {.status = 404});
  server_.answer(caskPath, {.status = 404});
  fetch(CatalogScope::formulae);
  EXPECT_EQ(shownIDs(), QStringList(u"formula:cached-formula"_s));
  fetch(CatalogScope::casks);
  EXPECT_EQ(shownIDs(), QStringList(u"cask:cached-cask"_s));
}

TEST_F(CatalogWorkflowsTest, DoNotGiveTheGoodDocumentForOneThatCannotBeDecoded) {
  givenBothInCache();
  server_.answer(caskPath, {.body = "<html>Please log in to the hotel's network</html>"});
  fetch(CatalogScope::all);
  EXPECT_EQ(shownIDs(), QStringList({u"formula:cached-formula"_s, u"cask:cached-cask"_s}));
  expectOldCache();
}

TEST_F(CatalogWorkflowsTest, TellTheErrorOfTheFetchWhereThereIsNoCache) {
  server_.answer(formulaPath, {.status = 503});
  fetch(CatalogScope::all);
  EXPECT_EQ(failure(), u"Homebrew returned HTTP status 503."_s);
  server_.answer(formulaPath, {.body = "<html>"});
  fetch(CatalogScope::formulae);
  EXPECT_EQ(failure(), u"The formula document is not valid JSON."_s);
  EXPECT_EQ(cached(u"formula.json"_s), "(none)");
  EXPECT_EQ(store_.catalogLastRefreshDate(), std::nullopt);
}

TEST_F(CatalogWorkflowsTest, NeedBothCachedDocumentsToFallBackOn) {
  givenCache(u"formula.json"_s, formulaDocument("cached-formula"));
  server_.answer(formulaPath, {.status = 404});
  fetch(CatalogScope::all);
  EXPECT_EQ(failure(), u"Homebrew returned HTTP status 404."_s);
}

TEST_F(CatalogWorkflowsTest, FailAfterACatalogWasLoaded) {
  fetch(CatalogScope::formulae);
  store_.clearCacheMarkers();
  server_.answer(formulaPath, {.status = 500});
  fetch(CatalogScope::formulae);
  EXPECT_EQ(failure(), u"Homebrew returned HTTP status 500."_s);
}

// --- The cache ---

TEST_F(CatalogWorkflowsTest, LoadTheCachedDocumentsOfTheirScope) {
  givenBothInCache();
  EXPECT_TRUE(loadCached(CatalogScope::all));
  EXPECT_EQ(shownIDs(), QStringList({u"formula:cached-formula"_s, u"cask:cached-cask"_s}));
  EXPECT_TRUE(loadCached(CatalogScope::formulae));
  EXPECT_EQ(shownIDs(), QStringList(u"formula:cached-formula"_s));
  EXPECT_TRUE(loadCached(CatalogScope::casks));
  EXPECT_EQ(shownIDs(), QStringList(u"cask:cached-cask"_s));
  EXPECT_TRUE(server_.requests().isEmpty());
  expectOldCache();
}

TEST_F(CatalogWorkflowsTest, LoadTheCacheWithoutALoadingStateInBetween) {
  givenBothInCache();
  const QSignalSpy states(&*workflows_, &CatalogWorkflows::stateChanged);
  loadCached(CatalogScope::all);
  EXPECT_EQ(states.size(), 1);
}

TEST_F(CatalogWorkflowsTest, SayWhyTheCacheCannotBeRead) {
  EXPECT_FALSE(loadCached(CatalogScope::all));
  EXPECT_EQ(failure(),
            u"Cached package metadata could not be read: formula.json: No such file or "
            "directory"_s);
  EXPECT_FALSE(loadCached(CatalogScope::formulae));
  EXPECT_EQ(failure(),
            u"Cached formula metadata could not be read: formula.json: No such file or "
            "directory"_s);
  EXPECT_FALSE(loadCached(CatalogScope::casks));
  EXPECT_EQ(failure(),
            u"Cached cask metadata could not be read: cask.json: No such file or directory"_s);
}

TEST_F(CatalogWorkflowsTest, SayWhyTheCacheCannotBeDecoded) {
  givenCache(u"formula.json"_s, "[{}]");
  givenCache(u"cask.json"_s, "[");
  EXPECT_FALSE(loadCached(CatalogScope::formulae));
  EXPECT_EQ(failure(),
            u"Cached formula metadata could not be read: The formula document's record "
            "at index 0 is faulty: \"name\" is missing."_s);
  EXPECT_FALSE(loadCached(CatalogScope::casks));
  EXPECT_EQ(failure(),
            u"Cached cask metadata could not be read: The cask document is not valid "
            "JSON."_s);
}

// --- Cancelling ---

TEST_F(CatalogWorkflowsTest, LeaveEverythingAsItWasWhenCancelled) {
  givenBothInCache();
  for (const bool isLoaded : {false, true}) {
    SCOPED_TRACE(isLoaded);
    if (isLoaded) {
      loadCached(CatalogScope::casks);
    }
    const State before = workflows_->state();
    server_.answer(caskPath, {.body = caskDocument("firefox"), .waits = true});
    auto fetching = workflows_->fetch(CatalogScope::all);
    EXPECT_EQ(loadingMessage(), u"Fetching Homebrew package metadata..."_s);
    workflows_->cancelFetches();
    QCoro::waitFor(fetching);
    EXPECT_EQ(workflows_->state(), before);
    EXPECT_EQ(workflows_->fetchProgress(), std::nullopt);
    expectOldCache();
  }
}

TEST_F(CatalogWorkflowsTest, MayBeCancelledAtAnyMoment) {
  givenBothInCache();
  for (int turns = 0; turns < 60; ++turns) {
    auto fetching = workflows_->fetch(CatalogScope::all);
    for (int turn = 0; turn < turns; ++turn) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    workflows_->cancelFetches();
    QCoro::waitFor(fetching);
    ASSERT_FALSE(std::holds_alternative<State::Loading>(workflows_->state().value));
    const bool isFetched = store_.catalogLastRefreshDate() == friday;
    EXPECT_EQ(cached(u"formula.json"_s),
              isFetched ? formulaDocument("wget") : formulaDocument("cached-formula"));
    EXPECT_EQ(cached(u"cask.json"_s),
              isFetched ? caskDocument("firefox") : caskDocument("cached-cask"));
    EXPECT_EQ(std::holds_alternative<State::Loaded>(workflows_->state().value), isFetched);
  }
}

TEST_F(CatalogWorkflowsTest, MayGoInTheMiddleOfAFetch) {
  server_.answer(caskPath, {.body = caskDocument("firefox"), .waits = true});
  auto fetching = workflows_->fetch(CatalogScope::all);
  workflows_.reset();
  QCoro::waitFor(fetching);
  EXPECT_EQ(cached(u"cask.json"_s), "(none)");
}

// --- Several at once ---

TEST_F(CatalogWorkflowsTest, HaveTheLastToFinishWriteTheState) {
  server_.answer(formulaPath, {.body = formulaDocument("wget"), .waits = true});
  auto slow = workflows_->fetch(CatalogScope::formulae);
  auto fast = workflows_->fetch(CatalogScope::casks);
  EXPECT_EQ(loadingMessage(), u"Fetching Homebrew cask metadata..."_s);
  QCoro::waitFor(fast);
  EXPECT_EQ(shownIDs(), QStringList(u"cask:firefox"_s));
  server_.release();
  QCoro::waitFor(slow);
  EXPECT_EQ(shownIDs(), QStringList(u"formula:wget"_s));
}

TEST_F(CatalogWorkflowsTest, ShowTheCacheWhileAFetchGoesOn) {
  givenBothInCache();
  server_.answer(formulaPath, {.body = formulaDocument("wget"), .waits = true});
  auto fetching = workflows_->fetch(CatalogScope::formulae);
  loadCached(CatalogScope::casks);
  EXPECT_EQ(shownIDs(), QStringList(u"cask:cached-cask"_s));
  server_.release();
  QCoro::waitFor(fetching);
  EXPECT_EQ(shownIDs(), QStringList(u"formula:wget"_s));
}

TEST_F(CatalogWorkflowsTest, AreNotLeftLoadingByAnyOrderOfEnds) {
  givenBothInCache();
  server_.answer(formulaPath, {.body = formulaDocument("wget"), .waits = true});
  auto first = workflows_->fetch(CatalogScope::formulae);
  auto second = workflows_->fetch(CatalogScope::formulae);
  loadCached(CatalogScope::casks);
  auto third = workflows_->fetch(CatalogScope::formulae);
  workflows_->cancelFetches();
  QCoro::waitFor(third);
  QCoro::waitFor(first);
  QCoro::waitFor(second);
  EXPECT_EQ(shownIDs(), QStringList(u"cask:cached-cask"_s));
  EXPECT_EQ(workflows_->fetchProgress(), std::nullopt);
}

// --- Progress ---

TEST_F(CatalogWorkflowsTest, CountTheBytesOfAllDocumentsTogether) {
  const QByteArray formulae = formulaDocument(QByteArray(300'000, 'f'));
  const QByteArray casks = caskDocument(QByteArray(200'000, 'c'));
  server_.answer(formulaPath, {.body = formulae});
  server_.answer(caskPath, {.body = casks});
  std::vector<Progress> heard;
  QObject::connect(&*workflows_, &CatalogWorkflows::fetchProgressChanged, [&] {
    if (workflows_->fetchProgress()) {
      heard.push_back(*workflows_->fetchProgress());
    }
  });
  fetch(CatalogScope::all);
  ASSERT_FALSE(heard.empty());
  EXPECT_EQ(heard.front(), (Progress{.receivedBytes = 0, .expectedBytes = std::nullopt}));
  const qint64 total = formulae.size() + casks.size();
  EXPECT_EQ(heard.back(), (Progress{.receivedBytes = total, .expectedBytes = total}));
  for (std::size_t i = 1; i < heard.size(); ++i) {
    EXPECT_GE(heard[i].receivedBytes, heard[i - 1].receivedBytes);
  }
  EXPECT_EQ(workflows_->fetchProgress(), std::nullopt);
}

TEST_F(CatalogWorkflowsTest, ExpectAsManyBytesAsLastTimeWhereTheServerDoesNotSay) {
  givenBothInCache();
  const qint64 lastTime = cached(u"formula.json"_s).size() + cached(u"cask.json"_s).size();
  auto fetching = workflows_->fetch(CatalogScope::all);
  EXPECT_EQ(workflows_->fetchProgress(), (Progress{.receivedBytes = 0, .expectedBytes = lastTime}));
  QCoro::waitFor(fetching);
}

}  // namespace
}  // namespace quillmere
