#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>

#include "CatalogWorkflowsFixture.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using State = PackageCatalogState;
using testing::ElementsAre;

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

TEST_F(CatalogWorkflowsTest, SayWhyTheCacheIsShownUntilTheNextFetch) {
  givenBothInCache();
  EXPECT_EQ(workflows_->failure(), std::nullopt);
  server_.answer(caskPath, {.status = 503});
  fetch(CatalogScope::casks);
  const CatalogWorkflows::Failure unavailable{CatalogScope::casks,
                                              u"Homebrew returned HTTP status 503."_s};
  EXPECT_EQ(workflows_->failure(), unavailable);
  EXPECT_TRUE(loadCached(CatalogScope::all));
  EXPECT_EQ(workflows_->failure(), unavailable);
  fetch(CatalogScope::formulae);
  EXPECT_EQ(workflows_->failure(), std::nullopt);
}

TEST_F(CatalogWorkflowsTest, SayNothingBesideTheErrorWhereThereIsNoCache) {
  server_.answer(formulaPath, {.status = 503});
  fetch(CatalogScope::all);
  EXPECT_EQ(workflows_->failure(), std::nullopt);
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

}  // namespace
}  // namespace quillmere
