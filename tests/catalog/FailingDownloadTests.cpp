#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include "catalog/DownloadFixture.h"

namespace quillmere::test {
namespace {

using namespace std::chrono_literals;
using testing::AnyOf;
using testing::HasSubstr;

class FailingDownload : public Download {
 protected:
  const std::vector<Answer::Ending> endings = {Answer::Ending::close, Answer::Ending::cut,
                                               Answer::Ending::reset};
  /// The platform's words, where it notices by itself.
  const std::string closed = "Connection closed";
  const std::string refused = "The remote host closed the connection";
};

TEST_F(FailingDownload, SaysThatAPlainBodyIsCut) {
  for (const auto ending : endings) {
    for (const qsizetype bytes :
         {qsizetype{0}, qsizetype{1}, document.size() / 2, document.size() - 1}) {
      EXPECT_EQ(told(fetch({.body = document, .bodyBytes = bytes, .ending = ending})), closed);
    }
  }
}

TEST_F(FailingDownload, SaysThatAChunkedBodyIsCut) {
  for (const auto ending : endings) {
    for (const qsizetype bytes : {qsizetype{1}, qsizetype{20}, qsizetype{40'100},
                                  document.size() / 2, document.size() - 1}) {
      for (const bool gzip : {false, true}) {
        const auto result = fetch({.body = document,
                                   .gzip = gzip,
                                   .framing = Answer::Framing::chunked,
                                   .bodyBytes = gzip ? bytes / 100 : bytes,
                                   .ending = ending});
        EXPECT_FALSE(result) << bytes << ' ' << gzip;
        EXPECT_THAT(told(result), AnyOf(closed, endedEarly, refused)) << bytes << ' ' << gzip;
      }
    }
  }
}

TEST_F(FailingDownload, SaysThatAPackedBodyIsCut) {
  for (const auto ending : endings) {
    for (const qsizetype bytes : {100, 1'000, 3'000}) {
      EXPECT_THAT(
          told(fetch({.body = document, .gzip = true, .bodyBytes = bytes, .ending = ending})),
          AnyOf(closed, endedEarly));
    }
  }
}

TEST_F(FailingDownload, SaysThatABodyWithoutLengthIsCut) {
  for (const qsizetype bytes : {qsizetype{1}, document.size() / 2, document.size() - 1}) {
    EXPECT_EQ(told(fetch({.body = " \n" + document,
                          .framing = Answer::Framing::connectionEnd,
                          .bodyBytes = bytes + 2,
                          .ending = Answer::Ending::close})),
              endedEarly);
  }
  // Blanks around the whole document are no loss.
  const QByteArray spaced = " \n" + document + "\r\n ";
  EXPECT_TRUE(fetch({.body = spaced, .framing = Answer::Framing::connectionEnd}) == spaced);
}

TEST_F(FailingDownload, PassesOnThatTheConnectionEndsInTheHead) {
  for (const auto ending : endings) {
    for (const qsizetype bytes : {0, 10, 30}) {
      EXPECT_THAT(told(fetch({.body = document, .headBytes = bytes, .ending = ending})),
                  AnyOf(closed, refused));
    }
  }
}

TEST_F(FailingDownload, RefusesABomb) {
  const auto result = fetch({.body = "[" + QByteArray(30'000'000, ' ') + "]", .gzip = true});
  EXPECT_THAT(told(result), HasSubstr("Decompression failed"));
}

TEST_F(FailingDownload, RefusesABodyThatIsNotPackedAsItSays) {
  EXPECT_THAT(told(fetch({.body = document, .headers = {{"Content-Encoding", "gzip"}}})),
              HasSubstr("Decompression failed"));
}

TEST_F(FailingDownload, RefusesADocumentBeyondTheLimitBeforeItsEnd) {
  const QByteArray large = "[" + QByteArray(6 * 1024 * 1024, '1');
  const std::string tooLarge = "The document is too large: more than 2 MiB.";
  for (const auto framing :
       {Answer::Framing::length, Answer::Framing::chunked, Answer::Framing::connectionEnd}) {
    // The server stops behind the limit and says no more: only who gives up at once gets an answer.
    const auto result = fetch({.body = large,
                               .framing = framing,
                               .bodyBytes = 3 * 1024 * 1024,
                               .ending = Answer::Ending::silence},
                              {.maximumBytes = 2 * 1024 * 1024});
    EXPECT_EQ(told(result), tooLarge);
  }
  EXPECT_EQ(told(fetch({.body = large, .gzip = true}, {.maximumBytes = 2 * 1024 * 1024})),
            tooLarge);
}

TEST_F(FailingDownload, HasALimitThatTenTimesAsManyPackagesDoNotReach) {
  constexpr qint64 largestToday = 31'000'000;
  EXPECT_GT(MetadataFetchOptions().maximumBytes, 10 * largestToday);
}

TEST_F(FailingDownload, LosesPatienceWithASilentServer) {
  const StallLimit stallLimit{.window = 100ms, .bytes = 1'000};
  EXPECT_EQ(
      told(fetch({.headBytes = 0, .ending = Answer::Ending::silence}, {.stallLimit = stallLimit})),
      lostPatience);
  EXPECT_EQ(told(fetch({.body = document, .headBytes = 20, .ending = Answer::Ending::silence},
                       {.stallLimit = stallLimit})),
            lostPatience);
  EXPECT_EQ(told(fetch({.body = document, .bodyBytes = 500, .ending = Answer::Ending::silence},
                       {.stallLimit = stallLimit})),
            lostPatience);
}

TEST_F(FailingDownload, LosesPatienceWithATrickle) {
  EXPECT_EQ(told(fetch({.body = document, .pieceBytes = 1, .pause = 5ms},
                       {.stallLimit = {.window = 300ms, .bytes = 10'000}})),
            lostPatience);
}

TEST_F(FailingDownload, KeepsPatienceWhileEnoughArrives) {
  QElapsedTimer clock;
  clock.start();
  const auto result = fetch({.body = document, .pieceBytes = document.size() / 60, .pause = 50ms},
                            {.stallLimit = {.window = 2s, .bytes = 1'000}});
  EXPECT_EQ(told(result), "");
  EXPECT_GE(clock.elapsed(), 2'000);
}

TEST_F(FailingDownload, HasPatienceForAMinute) {
  EXPECT_EQ(StallLimit().window, 60s);
  EXPECT_EQ(StallLimit().bytes, 60 * 1024);
}

TEST_F(FailingDownload, PassesOnThatNobodyListens) {
  QTcpServer unused;
  ASSERT_TRUE(unused.listen(QHostAddress::LocalHost));
  const auto url = QUrl(QStringLiteral("https://127.0.0.1:%1/").arg(unused.serverPort()));
  unused.close();
  EXPECT_EQ(told(fetch(url)), "Connection refused");
}

TEST_F(FailingDownload, PassesOnThatTheServerHangsUpAtOnce) {
  QTcpServer rude;
  ASSERT_TRUE(rude.listen(QHostAddress::LocalHost));
  QObject::connect(&rude, &QTcpServer::newConnection, &rude, [&rude] {
    while (QTcpSocket* socket = rude.nextPendingConnection()) {
      socket->abort();
      socket->deleteLater();
    }
  });
  const auto result = fetch(QUrl(QStringLiteral("https://127.0.0.1:%1/").arg(rude.serverPort())));
  ASSERT_FALSE(result);
  EXPECT_TRUE(std::holds_alternative<MetadataTransportError>(result.error()));
  EXPECT_NE(told(result), "");
}

TEST_F(FailingDownload, TrustsNoUnknownAuthority) {
  const CatalogServer impostor(ServerIdentity::selfSigned);
  EXPECT_EQ(told(fetch(impostor.url(path))),
            "SSL handshake failed: The certificate is self-signed, and untrusted");
  EXPECT_TRUE(impostor.requests().isEmpty());
}

TEST_F(FailingDownload, TrustsNoCertificateOfAnotherHost) {
  const CatalogServer impostor(ServerIdentity::otherHost);
  EXPECT_EQ(told(fetch(impostor.url(path))),
            "SSL handshake failed: The host name did not match any of the valid hosts for this "
            "certificate");
  EXPECT_TRUE(impostor.requests().isEmpty());
}

}  // namespace
}  // namespace quillmere::test
