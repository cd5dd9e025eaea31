#include "window/BenchmarkHome.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace quillmere {
namespace {

void writeFile(const QString& path, const QByteArray& content) {
  QFile file(path);
  if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
    qFatal("cannot write %s", qUtf8Printable(path));
  }
}

}  // namespace

BenchmarkHome::BenchmarkHome() {
  LocalPersistenceStore(settings_.open(), settings_.cacheDirectoryURL())
      .setHasCompletedOnboarding(true);
}

void BenchmarkHome::keepCatalog(const CatalogBytes& documents) const {
  QDir().mkpath(settings_.cacheDirectoryURL().toLocalFile());
  writeFile(formulaFile(), documents.formulae);
  writeFile(caskFile(), documents.casks);
}

void BenchmarkHome::keepHistory(const CommandHistory& history) const {
  LocalPersistenceStore(settings_.open(), settings_.cacheDirectoryURL()).setCommandHistory(history);
}

void BenchmarkHome::keepPrefix(const QUrl& prefix) const {
  LocalPersistenceStore(settings_.open(), settings_.cacheDirectoryURL()).selectPrefix(prefix);
}

QString BenchmarkHome::formulaFile() const {
  return settings_.cacheDirectoryURL().toLocalFile() + QStringLiteral("/formula.json");
}

QString BenchmarkHome::caskFile() const {
  return settings_.cacheDirectoryURL().toLocalFile() + QStringLiteral("/cask.json");
}

AppEnvironment BenchmarkHome::surroundings() const {
  return {.settings = [this] { return settings_.open(); },
          .cacheDirectoryURL = settings_.cacheDirectoryURL()};
}

}  // namespace quillmere
