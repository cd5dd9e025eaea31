#include <QCoroTask>
#include <QtCore/QEventLoop>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <algorithm>
#include <benchmark/benchmark.h>

#include "LongestGap.h"
#include "RealCatalog.h"
#include "catalog/HomebrewFormulaMetadataClient.h"
#include "support/CatalogServer.h"

namespace quillmere {
namespace {

const QByteArray& document() {
  return catalogAtHand().formulae;
}

QByteArray fetchWithClient(QNetworkAccessManager& session, const QUrl& url) {
  const HomebrewFormulaMetadataClient client{.apiURL = url, .session = &session};
  const MetadataFetchResult result = QCoro::waitFor(client.fetch());
  return result.value_or(QByteArray());
}

/// The floor: the platform's own client, which gathers everything and hands it over in the end.
QByteArray fetchPlainly(QNetworkAccessManager& session, const QUrl& url) {
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  QNetworkReply* reply = session.get(request);
  QEventLoop loop;
  QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
  loop.exec();
  reply->deleteLater();
  return reply->readAll();
}

using Fetch = QByteArray (*)(QNetworkAccessManager&, const QUrl&);

/// The server has a thread of its own, so that what it does is not seen here.
void download(benchmark::State& state, Fetch fetch, bool packed) {
  test::CatalogServer server;
  server.answer("/document", {.body = document(), .gzip = packed});
  const QUrl url = server.url("/document");
  QNetworkAccessManager session;
  double longest = 0;
  for (auto _ : state) {
    LongestGap gap;
    const QByteArray arrived = fetch(session, url);
    longest = std::max(longest, gap.milliseconds());
    if (arrived != document()) {
      state.SkipWithError("something else arrived");
      break;
    }
  }
  state.SetBytesProcessed(state.iterations() * document().size());
  state.counters["longestGapMs"] = longest;
}

BENCHMARK_CAPTURE(download, packed, fetchWithClient, true)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(download, packedFloor, fetchPlainly, true)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(download, plain, fetchWithClient, false)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(download, plainFloor, fetchPlainly, false)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace quillmere
