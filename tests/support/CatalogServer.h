#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QUrl>

#include <chrono>
#include <memory>
#include <optional>
#include <utility>

#include "support/TestCertificates.h"

namespace quillmere::test {

using HttpHeaders = QList<std::pair<QByteArray, QByteArray>>;

/// What a `CatalogServer` sends when it is asked, down to the byte at which it stops.
struct Answer {
  /// How the client is told where the body ends.
  enum class Framing { length, chunked, connectionEnd };
  /// What becomes of the connection behind the last byte that is sent.
  enum class Ending {
    keepAlive,
    /// An orderly end.
    close,
    /// The line goes dead without a farewell of TLS, as when a proxy dies.
    cut,
    /// The operating system refuses the connection from now on.
    reset,
    /// It stays open and nothing more comes.
    silence,
  };

  int status = 200;
  QByteArray body;
  /// Beside those that the answer needs for its framing.
  HttpHeaders headers;
  /// Packs the body.
  bool gzip = false;
  Framing framing = Framing::length;
  /// Only so many bytes of the head are sent, and nothing of the body.
  std::optional<qsizetype> headBytes;
  /// Only so many bytes of the body are sent, as they go over the line.
  std::optional<qsizetype> bodyBytes;
  Ending ending = Ending::keepAlive;
  /// The body is sent in pieces of so many bytes, one per `pause`; all at once if zero.
  qsizetype pieceBytes = 0;
  std::chrono::milliseconds pause{1};
  /// Nothing is sent before `CatalogServer::release`.
  bool waits = false;
};

/// An answer that sends the client elsewhere.
[[nodiscard]] Answer redirect(const QUrl& target, int status = 302);

/// One request, as it came.
struct Request {
  QByteArray method;
  QByteArray path;
  QByteArray version;
  /// Their names in small letters.
  HttpHeaders headers;
};

/// A real HTTPS server on this machine, in a thread of its own, that answers by script and
/// misbehaves on demand. While there is one, this process trusts it. Any thread may call it.
class CatalogServer {
 public:
  explicit CatalogServer(ServerIdentity identity = ServerIdentity::trusted);
  /// Drops every connection.
  ~CatalogServer();
  Q_DISABLE_COPY_MOVE(CatalogServer)

  /// From now on every request of `path` is answered so; others get a 404.
  void answer(const QByteArray& path, Answer answer);
  /// Lets the answers go that wait, and those that would.
  void release();

  [[nodiscard]] QUrl url(const QByteArray& path) const;
  /// In the order of their arrival.
  [[nodiscard]] QList<Request> requests() const;

 private:
  class Private;
  std::unique_ptr<Private> d_;
};

}  // namespace quillmere::test
