#pragma once

#include <QtCore/QUrl>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

namespace quillmere::test {

/// Listens on this machine and counts who comes: nobody knows its address but from a text that is
/// to be shown and not followed. Lives on the thread that made it, whose event loop it needs.
class HoneypotServer {
 public:
  HoneypotServer() {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
      ++visits_;
      server_.nextPendingConnection()->abort();
    });
  }

  Q_DISABLE_COPY_MOVE(HoneypotServer)
  ~HoneypotServer() = default;

  [[nodiscard]] QUrl url() const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1/x").arg(server_.serverPort()));
  }

  [[nodiscard]] int visits() const { return visits_; }

 private:
  QTcpServer server_;
  int visits_ = 0;
};

}  // namespace quillmere::test
