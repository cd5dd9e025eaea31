#include "CatalogWorkflowsFixture.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Progress = CatalogWorkflows::Progress;
using State = PackageCatalogState;

// Fetches that are cancelled, that overlap, and how far they have come.

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
