#include "catalog/DownloadFixture.h"
#include "catalog/HomebrewCaskMetadataClient.h"
#include "platform/RegularFile.h"

namespace quillmere::test {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

class MetadataClient : public Download {};

TEST(MetadataClientDefaults, AreThePublicDocuments) {
  EXPECT_EQ(HomebrewFormulaMetadataClient().apiURL.toString(),
            QStringLiteral("https://formulae.brew.sh/api/formula.json"));
  EXPECT_EQ(HomebrewCaskMetadataClient().apiURL.toString(),
            QStringLiteral("https://formulae.brew.sh/api/cask.json"));
}

TEST(MetadataClientDefaults, EndTheProcessWhenTheFixedTextIsNoUrl) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH((void)urlLiteral(QStringLiteral("https://bad host/")), "is not a URL");
}

TEST_F(MetadataClient, HandsOnTheBodyAsItIs) {
  EXPECT_EQ(fetch({.body = " [1, 2]\n"}), " [1, 2]\n");
  EXPECT_THAT(requestedPaths(), ElementsAre(path));
}

TEST_F(MetadataClient, FetchesCasksToo) {
  server.answer("/api/cask.json", {.body = "[]"});
  const HomebrewCaskMetadataClient casks{.apiURL = server.url("/api/cask.json"),
                                         .session = &session};
  EXPECT_EQ(QCoro::waitFor(casks.fetch()), "[]");
  EXPECT_THAT(requestedPaths(), ElementsAre("/api/cask.json"));
}

TEST_F(MetadataClient, UnpacksAndJoinsWhateverWayTheBodyComes) {
  for (const auto framing :
       {Answer::Framing::length, Answer::Framing::chunked, Answer::Framing::connectionEnd}) {
    for (const bool gzip : {false, true}) {
      const auto result = fetch({.body = document, .gzip = gzip, .framing = framing});
      ASSERT_EQ(told(result), "");
      EXPECT_TRUE(result == document);
    }
  }
}

TEST_F(MetadataClient, LeavesRoomBehindTheDocumentForItsReader) {
  const auto hasRoom = [this](const QByteArray& body, qint64 maximumBytes) {
    const auto result = fetch({.body = body}, {.maximumBytes = maximumBytes});
    ASSERT_EQ(told(result), "");
    EXPECT_TRUE(result == body);
    EXPECT_GE(result->capacity(), result->size() + parserPadding);
  };
  hasRoom("[]", 2);
  // Ends within the padding of what is set aside at first.
  const QByteArray spaces(48 * 1024 * 1024, ' ');
  hasRoom('[' + spaces + ']', 2 * spaces.size());
}

TEST_F(MetadataClient, DoesNotJudgeTheContentType) {
  EXPECT_EQ(fetch({.body = "<html>", .headers = {{"Content-Type", "text/html"}}}), "<html>");
}

TEST_F(MetadataClient, TakesStatusesFrom200To299) {
  EXPECT_EQ(fetch({.status = 200, .body = "[]"}), "[]");
  EXPECT_EQ(fetch({.status = 204}), "");
  EXPECT_EQ(fetch({.status = 299, .body = "[]"}), "[]");
}

TEST_F(MetadataClient, RefusesOtherStatusesWithOneRequestEach) {
  const std::vector<int> codes = {300, 304, 400, 401, 403, 404, 407, 410, 429, 500, 503, 599};
  for (const int code : codes) {
    const auto result = fetch({.status = code, .body = code == 304 ? "" : "an apology"});
    EXPECT_EQ(result,
              MetadataFetchResult(std::unexpected(HomebrewFormulaMetadataError::httpStatus(code))));
    EXPECT_EQ(told(result), "Homebrew returned HTTP status " + std::to_string(code) + ".");
  }
  EXPECT_EQ(requestedPaths().size(), codes.size());
}

TEST_F(MetadataClient, RefusesWhatIsNotHttp) {
  QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("formula.json")));
  ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("[]") == 2);
  file.close();
  for (const QUrl& url : {QUrl(QStringLiteral("data:,[]")), QUrl::fromLocalFile(file.fileName())}) {
    EXPECT_EQ(told(fetch(url)), "Homebrew returned an invalid response.");
  }
}

TEST_F(MetadataClient, SendsNothingThatTellsOneUserFromAnother) {
  (void)fetch({.body = "[]"});
  const Request request = server.requests().value(0);
  EXPECT_EQ(request.method, "GET");
  EXPECT_EQ(request.version, "HTTP/1.1");
  // All that the platform adds. It would put the desktop's language where "en,*" is.
  const QByteArray host = server.url(path).authority().toLatin1();
  EXPECT_THAT(
      request.headers,
      UnorderedElementsAre(Pair("host", host), Pair("accept-language", "en,*"),
                           Pair("accept-encoding", testing::_), Pair("connection", "Keep-Alive"),
                           Pair("user-agent", "Mozilla/5.0")));
}

TEST_F(MetadataClient, BringsNoCookieBack) {
  (void)fetch({.body = "[]", .headers = {{"Set-Cookie", "visitor=1; Path=/"}}});
  (void)fetch();
  ASSERT_EQ(server.requests().size(), 2);
  for (const auto& [name, value] : server.requests().at(1).headers) {
    EXPECT_NE(name, "cookie");
  }
}

TEST_F(MetadataClient, FollowsRedirectsToHttps) {
  server.answer("/moved", {.body = "[2]"});
  for (const int status : {301, 302, 303, 307, 308}) {
    Answer moved = redirect(server.url("/moved"), status);
    moved.body = "[\"not this\"]";
    EXPECT_EQ(fetch(moved), "[2]");
  }
}

TEST_F(MetadataClient, RefusesARedirectToPlainHttp) {
  EXPECT_EQ(told(fetch(redirect(QUrl(QStringLiteral("http://127.0.0.1:1/"))))),
            "Insecure redirect");
}

TEST_F(MetadataClient, LeavesALoopOfRedirects) {
  EXPECT_EQ(told(fetch(redirect(server.url(path)))), "Too many redirects");
}

TEST_F(MetadataClient, ReportsProgressInBytesOfTheDocument) {
  for (const bool gzip : {false, true}) {
    std::vector<MetadataProgress> reports;
    const auto result = fetch(
        {.body = document, .gzip = gzip},
        {.onProgress = [&reports](MetadataProgress progress) { reports.push_back(progress); }});
    ASSERT_EQ(told(result), "");
    ASSERT_GE(reports.size(), 2);
    for (std::size_t i = 0; i < reports.size(); ++i) {
      EXPECT_EQ(reports[i].totalBytes,
                gzip ? std::nullopt : std::optional<qint64>(document.size()));
      EXPECT_TRUE(i == 0 || reports[i].receivedBytes >= reports[i - 1].receivedBytes);
    }
    EXPECT_EQ(reports.back().receivedBytes, document.size());
  }
}

TEST_F(MetadataClient, ReportsProgressAtMostThirtyTimesASecond) {
  int reports = 0;
  QElapsedTimer clock;
  clock.start();
  const auto result =
      fetch({.body = document, .pieceBytes = document.size() / 200},
            {.onProgress = [&reports](MetadataProgress /*progress*/) { ++reports; }});
  ASSERT_EQ(told(result), "");
  // One at once, one at the end.
  EXPECT_LE(reports, clock.elapsed() / 33 + 2);
}

TEST_F(MetadataClient, FetchesManyAtOnce) {
  constexpr int count = 20;
  std::vector<QCoro::Task<MetadataFetchResult>> fetches;
  for (int i = 0; i < count; ++i) {
    const QByteArray each = "/" + QByteArray::number(i);
    server.answer(each, {.body = document + QByteArray(i, ' '), .gzip = i % 2 == 0});
    fetches.push_back(client(server.url(each)).fetch());
  }
  for (int i = 0; i < count; ++i) {
    const auto result = QCoro::waitFor(fetches[static_cast<std::size_t>(i)]);
    ASSERT_EQ(told(result), "");
    EXPECT_EQ(result->size(), document.size() + i);
  }
  EXPECT_EQ(server.requests().size(), count);
}

}  // namespace
}  // namespace quillmere::test
