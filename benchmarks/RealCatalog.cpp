#include "RealCatalog.h"

#include <QtCore/QProcess>
#include <QtCore/QString>

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include "platform/RegularFile.h"
#include "support/GeneratedCatalog.h"

namespace quillmere {
namespace {

QByteArray realDocument(const QString& name) {
  const QString folder =
      qEnvironmentVariable("QUILLMERE_REAL_DATA", QStringLiteral(QUILLMERE_REAL_DATA));
  QProcess xz;
  xz.start(QStringLiteral("xz"), {QStringLiteral("--decompress"), QStringLiteral("--stdout"),
                                  folder + u'/' + name + QStringLiteral(".json.xz")});
  QByteArray document = xz.waitForFinished() ? xz.readAllStandardOutput() : QByteArray();
  document.reserve(document.size() + parserPadding);
  return document;
}

}  // namespace

const CatalogBytes& realCatalog() {
  static const CatalogBytes documents = {.formulae = realDocument(QStringLiteral("formula")),
                                         .casks = realDocument(QStringLiteral("cask"))};
  return documents;
}

const CatalogBytes& catalogAtHand() {
  static const CatalogBytes documents =
      realCatalog().isEmpty() ? generatedCatalog(1) : realCatalog();
  return documents;
}

CatalogBytes generatedCatalog(int times) {
  return {.formulae = generatedFormulaDocument(8554 * times),
          .casks = generatedCaskDocument(7701 * times)};
}

void parsePlainly(const QByteArray& document) {
  simdjson::dom::parser parser;
  benchmark::DoNotOptimize(
      parser.parse(document.constData(), static_cast<std::size_t>(document.size())).error());
}

}  // namespace quillmere
