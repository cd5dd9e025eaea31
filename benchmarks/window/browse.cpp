#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtQuick/QQuickItem>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <map>

#include "LongestGap.h"
#include "support/CatalogServer.h"
#include "window/BenchmarkHome.h"
#include "window/SeenWindow.h"

namespace quillmere {
namespace {

/// The real catalog, where it is at hand, or made-up ones of so many times its size.
const CatalogBytes& catalogOfSize(std::int64_t times) {
  static std::map<std::int64_t, CatalogBytes> made;
  if (times == 1 && !realCatalog().isEmpty()) {
    return realCatalog();
  }
  CatalogBytes& documents = made[times];
  if (documents.isEmpty()) {
    documents = generatedCatalog(static_cast<int>(times));
  }
  return documents;
}

/// A home that keeps such a catalog.
const BenchmarkHome& homeWithCatalog(std::int64_t times) {
  static std::map<std::int64_t, BenchmarkHome> homes;
  const auto [home, isNew] = homes.try_emplace(times);
  if (isNew) {
    home->second.keepCatalog(catalogOfSize(times));
  }
  return home->second;
}

bool isListed(SeenWindow& window) {
  return window.content().browse()->state() == FormulaCatalogViewModel::Listed;
}

double loadCachedAll(benchmark::State& state, SeenWindow& window) {
  return window.secondsUntilSeen(
      state, "the catalog", [&] { window.content().browse()->loadCachedAll(); },
      [&] { return isListed(window); });
}

void showCachedCatalog(benchmark::State& state) {
  const BenchmarkHome& home = homeWithCatalog(state.range(0));
  double longest = 0;
  for (auto _ : state) {
    SeenWindow window(home.surroundings());
    window.content().select(AppSection::browse);
    window.settle();
    LongestGap gap;
    state.SetIterationTime(loadCachedAll(state, window));
    longest = std::max(longest, gap.milliseconds());
  }
  state.counters["longestGapMs"] = longest;
}

BENCHMARK(showCachedCatalog)->Arg(1)->Arg(10)->UseManualTime()->Unit(benchmark::kMillisecond);

QByteArray contentOf(const QString& path) {
  QFile file(path);
  if (!file.open(QFile::ReadOnly)) {
    qFatal("cannot read %s", qUtf8Printable(path));
  }
  return file.readAll();
}

/// The floor: both files read and parsed, nothing kept, nothing shown.
void readAndParseCachedCatalog(benchmark::State& state) {
  const BenchmarkHome& home = homeWithCatalog(state.range(0));
  for (auto _ : state) {
    parsePlainly(contentOf(home.formulaFile()));
    parsePlainly(contentOf(home.caskFile()));
  }
}

BENCHMARK(readAndParseCachedCatalog)->Arg(1)->Arg(10)->UseRealTime()->Unit(benchmark::kMillisecond);

/// A window that lists the catalog.
class BrowsingWindow : public SeenWindow {
 public:
  BrowsingWindow(benchmark::State& state, std::int64_t times)
      : SeenWindow(homeWithCatalog(times).surroundings()) {
    content().select(AppSection::browse);
    loadCachedAll(state, *this);
    settle();
  }

  /// Types a text into the search field, over what stands there.
  void enter(const QString& query) {
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Delete);
    type(query);
    settle();
  }

  double secondsFromReturnToResults(benchmark::State& state, const QString& query) {
    FormulaCatalogViewModel& browse = *content().browse();
    return secondsUntilSeen(
        state, "the results", [this] { press(Qt::Key_Return); },
        [&] { return browse.search()->searchText() == query && !browse.isFiltering(); });
  }
};

void returnToResults(benchmark::State& state, const QString& query, std::int64_t times) {
  BrowsingWindow window(state, times);
  double longest = 0;
  for (auto _ : state) {
    window.enter(query);
    const double seconds = window.secondsFromReturnToResults(state, query);
    state.SetIterationTime(seconds);
    longest = std::max(longest, seconds);
    window.enter({});
    window.secondsFromReturnToResults(state, {});
    window.settle();
  }
  state.counters["longestMs"] = longest * 1000;
}

/// Early and late answers, few and many, and none.
[[maybe_unused]] const bool registered = [] {
  for (const std::int64_t times : {1, 10}) {
    for (const char* query : {"e", "lib", "python", "postgresql", "zsh-", "nothing-like-it"}) {
      const std::string name =
          "returnToResults/" + std::to_string(times) + '/' + std::string(query);
      benchmark::RegisterBenchmark(name.c_str(),
                                   [query, times](benchmark::State& state) {
                                     returnToResults(state, QString::fromLatin1(query), times);
                                   })
          ->UseManualTime()
          ->Iterations(4)
          ->Unit(benchmark::kMillisecond);
    }
  }
  return true;
}();

/// Walks through what is listed, each step until it is seen; the counter is the longest of them.
template <typename IsThere, typename Step>
void scroll(benchmark::State& state, const IsThere& isThere, const Step& step) {
  BrowsingWindow window(state, state.range(0));
  // From the search down to its results.
  window.press(Qt::Key_F, Qt::ControlModifier);
  window.press(Qt::Key_Down);
  window.settle();
  QQuickItem* const list = window.find("PackageList_");
  double longest = 0;
  int frames = 0;
  for (auto _ : state) {
    window.press(Qt::Key_Home);
    window.settle();
    double seconds = 0;
    while (!isThere(*list) && !state.error_occurred()) {
      const double frame = step(window, *list);
      longest = std::max(longest, frame);
      seconds += frame;
      ++frames;
    }
    state.SetIterationTime(seconds);
  }
  state.counters["longestFrameMs"] = longest * 1000;
  state.counters["frames"] = frames;
}

bool isAtEnd(const QQuickItem& list) {
  return list.property("atYEnd").toBool();
}

bool isOnLastRow(const QQuickItem& list) {
  return list.property("currentIndex").toInt() == list.property("count").toInt() - 1;
}

void scrollByKey(benchmark::State& state) {
  scroll(state, isOnLastRow, [&state](SeenWindow& window, const QQuickItem& list) {
    const int row = list.property("currentIndex").toInt();
    return window.secondsUntilSeen(
        state, "the next row", [&] { window.press(Qt::Key_Down); },
        [&] { return list.property("currentIndex").toInt() == row + 1; });
  });
}

void scrollByPage(benchmark::State& state) {
  scroll(state, isAtEnd, [&state](SeenWindow& window, const QQuickItem& list) {
    const qreal place = list.property("contentY").toReal();
    return window.secondsUntilSeen(
        state, "the next page", [&] { window.press(Qt::Key_PageDown); },
        [&] { return list.property("contentY").toReal() > place; });
  });
}

void scrollByWheel(benchmark::State& state) {
  scroll(state, isAtEnd, [&state](SeenWindow& window, const QQuickItem& list) {
    const qreal place = list.property("contentY").toReal();
    return window.secondsUntilSeen(
        state, "the rows below", [&] { window.turnWheel(list); },
        [&] { return list.property("contentY").toReal() > place; });
  });
}

BENCHMARK(scrollByKey)
    ->Arg(1)
    ->Arg(10)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(scrollByPage)
    ->Arg(1)
    ->Arg(10)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(scrollByWheel)
    ->Arg(1)
    ->Arg(10)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

/// A server on this machine that has the catalog, packed as the real one sends it.
struct ServedCatalog {
  explicit ServedCatalog(const CatalogBytes& documents) {
    server.answer("/formula.json", {.body = documents.formulae, .gzip = true});
    server.answer("/cask.json", {.body = documents.casks, .gzip = true});
  }

  [[nodiscard]] QUrl formulae() const { return server.url("/formula.json"); }

  [[nodiscard]] QUrl casks() const { return server.url("/cask.json"); }

  test::CatalogServer server;
};

void fetchToList(benchmark::State& state) {
  const ServedCatalog served(catalogOfSize(1));
  double longest = 0;
  for (auto _ : state) {
    const BenchmarkHome home;
    AppEnvironment surroundings = home.surroundings();
    surroundings.formulaeURL = served.formulae();
    surroundings.casksURL = served.casks();
    SeenWindow window(std::move(surroundings));
    window.content().select(AppSection::browse);
    window.settle();
    LongestGap gap;
    state.SetIterationTime(window.secondsUntilSeen(
        state, "the catalog", [&] { window.content().browse()->fetchAll(); },
        [&] { return isListed(window); }));
    longest = std::max(longest, gap.milliseconds());
  }
  state.counters["longestGapMs"] = longest;
}

BENCHMARK(fetchToList)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The floor: both downloads side by side by the platform's own client, each parsed when it is
/// there, nothing kept.
void downloadAndParsePlainly(benchmark::State& state) {
  const ServedCatalog served(catalogOfSize(1));
  for (auto _ : state) {
    // As a program that was just started.
    QNetworkAccessManager session;
    QEventLoop loop;
    int underWay = 2;
    for (const QUrl& url : {served.formulae(), served.casks()}) {
      QNetworkRequest request(url);
      request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
      QNetworkReply* const reply = session.get(request);
      QObject::connect(reply, &QNetworkReply::finished, &loop, [&, reply] {
        parsePlainly(reply->readAll());
        reply->deleteLater();
        if (--underWay == 0) {
          loop.quit();
        }
      });
    }
    loop.exec();
  }
}

BENCHMARK(downloadAndParsePlainly)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillmere
