#include <QCoroTask>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <algorithm>
#include <benchmark/benchmark.h>

#include "catalog/HomebrewFormulaMetadataClient.h"
#include "support/CatalogServer.h"
#include "support/GeneratedCatalog.h"

namespace quillmere {
namespace {

/// The formula document as Homebrew writes it, or one as large where it or `xz` is not at hand.
QByteArray makeDocument() {
  const QString folder =
      qEnvironmentVariable("QUILLMERE_REAL_DATA", QStringLiteral(QUILLMERE_REAL_DATA));
  QProcess xz;
  xz.start(QStringLiteral("xz"), {QStringLiteral("--decompress"), QStringLiteral("--stdout"),
                                  folder + QStringLiteral("/formula.json.xz")});
  const QByteArray real = xz.waitForFinished() ? xz.readAllStandardOutput() : QByteArray();
  return real.isEmpty() ? generatedFormulaDocument(8554) : real;
}

const QByteArray& document() {
  static const QByteArray made = makeDocument();
  return made;
}

/// Records for how long the event loop of its thread was away at most.
class GapProbe {
 public:
  GapProbe() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.start(1);
    sinceLook_.start();
  }

  double longest() {
    look();
    return static_cast<double>(longest_) / 1e6;
  }

 private:
  void look() {
    longest_ = std::max(longest_, sinceLook_.nsecsElapsed());
    sinceLook_.start();
  }

  QTimer timer_;
  QElapsedTimer sinceLook_;
  qint64 longest_ = 0;
};

QByteArray fetchWithClient(QNetworkAccessManager& session, const QUrl& url) {
  const HomebrewFormulaMetadataClient client{.apiURL = url, .session = &session};
  const MetadataFetchResult result =
      QCoro::waitFor(client.fetch({.expectedBytes = document().size()}));
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
    GapProbe probe;
    const QByteArray arrived = fetch(session, url);
    longest = std::max(longest, probe.longest());
    if (arrived != document()) {
      state.SkipWithError("something else arrived; a generated document packs like a bomb");
      break;
    }
  }
  state.SetBytesProcessed(state.iterations() * document().size());
  state.counters["longestGap_ms"] = longest;
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

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
