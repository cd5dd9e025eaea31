#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <functional>
#include <optional>

#include "support/CatalogServer.h"

class QSslSocket;

namespace quillmere::test {

/// One connection to a `CatalogServer`, in the server's thread: reads requests and sends the
/// scripted answers. Deletes itself with its socket, which it owns.
class ScriptedConnection : public QObject {
  Q_OBJECT
 public:
  /// The answer to a request.
  using Script = std::function<Answer(const Request&)>;

  ScriptedConnection(QSslSocket* socket, Script script, bool isReleased);

  /// Sends what waits.
  void release();

 private:
  void readRequests();
  void begin(const Answer& answer);
  void send();
  void endWhenSent();
  void end();

  QSslSocket* socket_;
  Script script_;
  bool isReleased_;
  QByteArray received_;
  std::optional<Answer> waiting_;
  Answer::Ending ending_ = Answer::Ending::keepAlive;
  QByteArray unsent_;
  qsizetype pieceBytes_ = 0;
  QTimer piece_;
};

}  // namespace quillmere::test
