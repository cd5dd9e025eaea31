#include "persistence/CatalogCache.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRunnable>
#include <QtCore/QStandardPaths>

#include <cstdio>
#include <utility>

#include "platform/AtomicFile.h"
#include "platform/FileUrl.h"
#include "platform/PrivateFile.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

bool isReadableFile(const QString& path) {
  // A pipe by that name would keep open() waiting.
  return QFileInfo(path).isFile() && QFile(path).open(QIODevice::ReadOnly);
}

void replaceDocument(const QString& path, const QByteArray& document) {
  if (QDir().mkpath(QFileInfo(path).path())) {
    (void)replaceFile(path, document);
  }
}

}  // namespace

CatalogCache::CatalogCache(QUrl directoryURL) : directoryURL_(std::move(directoryURL)) {
  writer_.setMaxThreadCount(1);
  // Earlier versions left them to everybody's eyes.
  restrictToOwner(filePath(formulaURL()));
  restrictToOwner(filePath(caskURL()));
}

QUrl CatalogCache::defaultDirectoryURL() {
  QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  if (base.isEmpty()) {
    base = QDir::tempPath();
  }
  return appendingPath(fileUrl(base), u"Quillmere/CatalogCache/");
}

QUrl CatalogCache::formulaURL() const {
  return appendingPath(directoryURL_, u"formula.json");
}

QUrl CatalogCache::caskURL() const {
  return appendingPath(directoryURL_, u"cask.json");
}

bool CatalogCache::hasFormulae() const {
  return QFile::exists(filePath(formulaURL()));
}

bool CatalogCache::hasCasks() const {
  return QFile::exists(filePath(caskURL()));
}

bool CatalogCache::isReadable() const {
  return isReadableFile(filePath(formulaURL())) || isReadableFile(filePath(caskURL()));
}

QCoro::Task<bool> CatalogCache::save(QByteArray document, QUrl file) {
  const auto clearings = clearings_;
  const int before = *clearings;
  // The writer itself takes back what was cleared: the program may end before the coroutine is
  // resumed, and a later save may have written the file by then.
  auto writeUnlessCleared = [document = std::move(document), path = filePath(file), clearings,
                             before] {
    replaceDocument(path, document);
    if (*clearings != before) {
      (void)QFile::remove(path);
    }
  };
  const QFuture<void> writing = QtConcurrent::run(&writer_, std::move(writeUnlessCleared));
  co_await writing;
  co_return *clearings == before;
}

void CatalogCache::migrate(const QByteArray& document, const QUrl& file) {
  if (!isReadableFile(filePath(file))) {
    write(document, file);
  }
}

void CatalogCache::write(const std::optional<QByteArray>& bytes, const QUrl& file) {
  if (bytes) {
    replaceDocument(filePath(file), *bytes);
  } else {
    remove(filePath(file));
  }
}

void CatalogCache::clear() {
  ++*clearings_;
  remove(filePath(formulaURL()));
  remove(filePath(caskURL()));
}

/// Removing a file of many megabytes takes longer than a frame, renaming it no time. A renamed file
/// that a crash left behind is replaced by the next.
void CatalogCache::remove(const QString& path) {
  const QString aside = path + ".cleared"_L1;
  if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) == 0) {
    writer_.start(QRunnable::create([aside] { (void)QFile::remove(aside); }));
  }
}

}  // namespace quillmere
