#pragma once

#include <QCoroTask>
#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QThreadPool>
#include <QtCore/QUrl>

#include <atomic>
#include <memory>
#include <optional>

namespace quillmere {

/// The catalog documents as they were downloaded, one file each in a folder of their own. No call
/// reports an error: a document that could not be written is downloaded again. UI thread only; the
/// destructor waits until every save that was asked for has been written.
class CatalogCache {
 public:
  explicit CatalogCache(QUrl directoryURL);

  /// "Quillmere/CatalogCache" under the user's application data.
  [[nodiscard]] static QUrl defaultDirectoryURL();

  [[nodiscard]] const QUrl& directoryURL() const { return directoryURL_; }

  [[nodiscard]] QUrl formulaURL() const;
  [[nodiscard]] QUrl caskURL() const;

  [[nodiscard]] bool hasFormulae() const;
  [[nodiscard]] bool hasCasks() const;
  /// Whether one of the documents can be read, so that there is something to clear.
  [[nodiscard]] bool isReadable() const;

  /// Replaces `file` on the cache's own thread, in the order of the calls. Returns whether the
  /// cache was not cleared meanwhile; where it was, the document is gone again.
  QCoro::Task<bool> save(QByteArray document, QUrl file);
  /// Keeps a document that an older version kept elsewhere, unless `file` can be read. Blocks on
  /// the disk.
  void migrate(const QByteArray& document, const QUrl& file);
  /// Replaces `file`, making its folder first, or removes it when there are no bytes. Blocks on the
  /// disk while it writes.
  void write(const std::optional<QByteArray>& bytes, const QUrl& file);
  /// Removes both documents, and those of the saves that are under way as soon as they are written.
  void clear();

 private:
  void remove(const QString& path);

  QUrl directoryURL_;
  /// Counts how often the cache was cleared. Shared with the saves under way, which may be resumed
  /// after the cache is gone.
  std::shared_ptr<std::atomic_int> clearings_ = std::make_shared<std::atomic_int>(0);
  /// One thread, so that writes keep their order; its end waits for them.
  QThreadPool writer_;
};

}  // namespace quillmere
