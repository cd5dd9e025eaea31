#include <QtCore/QTimer>
#include <QtNetwork/QNetworkReply>

#include <random>
#include <thread>

#include "catalog/DownloadFixture.h"

namespace quillmere::test {
namespace {

using namespace std::chrono_literals;

const MetadataFetchResult cancelled = std::unexpected(MetadataFetchCancelled{});

class CancelledDownload : public Download {
 protected:
  /// The answers of a download that stands still: before its head, in it, in the body.
  const std::vector<Answer> standingStill = {
      {.headBytes = 0, .ending = Answer::Ending::silence},
      {.body = document, .headBytes = 20, .ending = Answer::Ending::silence},
      {.body = document, .bodyBytes = 100'000, .ending = Answer::Ending::silence},
      {.body = document, .gzip = true, .bodyBytes = 1'000, .ending = Answer::Ending::silence}};
};

TEST_F(CancelledDownload, AsksNobodyWhenItIsCancelledBefore) {
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(fetch({.stop = stop.get_token()}), cancelled);
  EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(CancelledDownload, EndsAtOnceWhereverItStands) {
  for (const Answer& answer : standingStill) {
    server.answer(path, answer);
    std::stop_source stop;
    QTimer::singleShot(100ms, [&stop] { stop.request_stop(); });
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(fetch({.stop = stop.get_token()}), cancelled);
    EXPECT_LT(clock.elapsed(), 10'000);
    settle();
    EXPECT_TRUE(session.findChildren<QNetworkReply*>().isEmpty());
  }
}

TEST_F(CancelledDownload, EndsFromAnotherThread) {
  server.answer(path, standingStill.back());
  std::stop_source stop;
  const std::jthread other([&stop] {
    std::this_thread::sleep_for(50ms);
    stop.request_stop();
  });
  EXPECT_EQ(fetch({.stop = stop.get_token()}), cancelled);
}

TEST_F(CancelledDownload, ReportsNothingAfterwards) {
  std::stop_source stop;
  int reports = 0;
  const auto result = fetch({.body = document, .pieceBytes = 10'000, .pause = 10ms},
                            {.stop = stop.get_token(), .onProgress = [&](MetadataProgress) {
                               ++reports;
                               stop.request_stop();
                             }});
  EXPECT_EQ(result, cancelled);
  EXPECT_EQ(reports, 1);
}

TEST_F(CancelledDownload, IsCancelledEvenByTheLastReport) {
  std::stop_source stop;
  const auto result =
      fetch({.body = document}, {.stop = stop.get_token(), .onProgress = [&](MetadataProgress now) {
                                   if (now.receivedBytes == document.size()) {
                                     stop.request_stop();
                                   }
                                 }});
  EXPECT_EQ(result, cancelled);
}

TEST_F(CancelledDownload, KeepsADocumentThatIsThere) {
  std::stop_source stop;
  const auto result = fetch({.body = "[]"}, {.stop = stop.get_token()});
  stop.request_stop();
  EXPECT_EQ(result, "[]");
}

TEST_F(CancelledDownload, EndsWhollyOrNotAtAllAtAnyMoment) {
  std::minstd_rand random(1);
  std::uniform_int_distribution<int> microseconds(0, 20'000);
  int cancels = 0;
  for (int i = 0; i < 200; ++i) {
    server.answer(path, {.body = document, .gzip = i % 2 == 0, .pieceBytes = i % 3 * 50'000});
    std::stop_source stop;
    const std::jthread other([&stop, pause = std::chrono::microseconds(microseconds(random))] {
      std::this_thread::sleep_for(pause);
      stop.request_stop();
    });
    const auto result = fetch({.stop = stop.get_token()});
    ASSERT_TRUE(result == cancelled || result == document) << told(result);
    cancels += result ? 0 : 1;
  }
  EXPECT_GT(cancels, 0);
  settle();
  EXPECT_TRUE(session.findChildren<QNetworkReply*>().isEmpty());
}

TEST_F(CancelledDownload, SurvivesTheEndOfItsSession) {
  for (const Answer& answer : standingStill) {
    server.answer(path, answer);
    auto shortLived = std::make_unique<QNetworkAccessManager>();
    QTimer::singleShot(100ms, [&shortLived] { shortLived.reset(); });
    const HomebrewFormulaMetadataClient borrowing{.apiURL = server.url(path),
                                                  .session = shortLived.get()};
    EXPECT_EQ(QCoro::waitFor(borrowing.fetch()), cancelled);
    settle();
  }
}

TEST_F(CancelledDownload, SurvivesTheEndOfItsSessionInAReport) {
  server.answer(path, {.body = document});
  auto shortLived = std::make_unique<QNetworkAccessManager>();
  const HomebrewFormulaMetadataClient borrowing{.apiURL = server.url(path),
                                                .session = shortLived.get()};
  const auto result = QCoro::waitFor(
      borrowing.fetch({.onProgress = [&shortLived](MetadataProgress) { shortLived.reset(); }}));
  EXPECT_EQ(result, cancelled);
}

TEST_F(CancelledDownload, GoesOnWhenNobodyKeepsTheTask) {
  server.answer(path, {.body = document, .waits = true});
  bool isWhole = false;
  {
    const auto task = client().fetch({.onProgress = [&](MetadataProgress now) {
      isWhole = now.receivedBytes == document.size();
    }});
  }
  server.release();
  QElapsedTimer clock;
  clock.start();
  while (!isWhole && clock.elapsed() < 20'000) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  EXPECT_TRUE(isWhole);
  settle();
}

}  // namespace
}  // namespace quillmere::test
