#include "support/CatalogServer.h"

#include <QtCore/QEventLoop>
#include <QtNetwork/QSslServer>
#include <QtNetwork/QSslSocket>

#include <future>
#include <map>
#include <mutex>
#include <thread>

#include "support/ScriptedConnection.h"
#include "support/ToolOutput.h"

namespace quillmere::test {

Answer redirect(const QUrl& target, int status) {
  return {.status = status, .headers = {{"Location", target.toEncoded()}}};
}

/// A thread of the standard library, and not of Qt: the thread sanitizer sees what it hands over.
class CatalogServer::Private {
 public:
  explicit Private(ServerIdentity identity) {
    std::promise<quint16> port;
    std::future<quint16> listening = port.get_future();
    thread_ = std::jthread(
        [this, configuration = serverConfiguration(identity), promise = std::move(port)]() mutable {
          serve(configuration, std::move(promise));
        });
    port_ = listening.get();
  }

  ~Private() {
    post([this] { loop_->quit(); });
    thread_.join();
  }

  Q_DISABLE_COPY_MOVE(Private)

  void answer(const QByteArray& path, Answer answer) {
    const std::scoped_lock lock(mutex_);
    answers_[path] = std::move(answer);
  }

  void release() {
    post([this] {
      isReleased_ = true;
      for (ScriptedConnection* connection : server_->findChildren<ScriptedConnection*>()) {
        connection->release();
      }
    });
  }

  [[nodiscard]] quint16 port() const { return port_; }

  [[nodiscard]] QList<Request> requests() const {
    const std::scoped_lock lock(mutex_);
    return requests_;
  }

 private:
  template <typename Call>
  void post(Call call) {
    QMetaObject::invokeMethod(server_, std::move(call), Qt::QueuedConnection);
  }

  void serve(const QSslConfiguration& configuration, std::promise<quint16> port) {
    QEventLoop loop;
    QSslServer server;
    loop_ = &loop;
    server_ = &server;
    server.setSslConfiguration(configuration);
    QObject::connect(&server, &QSslServer::pendingConnectionAvailable, &server, [this] {
      while (QTcpSocket* socket = server_->nextPendingConnection()) {
        new ScriptedConnection(
            static_cast<QSslSocket*>(socket),
            [this](const Request& request) { return answerTo(request); }, isReleased_);
      }
    });
    if (!server.listen(QHostAddress::LocalHost)) {
      qFatal("listen: %s", qUtf8Printable(server.errorString()));
    }
    port.set_value(server.serverPort());
    loop.exec();
  }

  Answer answerTo(const Request& request) {
    const std::scoped_lock lock(mutex_);
    requests_ += request;
    const auto found = answers_.find(request.path);
    return found == answers_.end() ? Answer{.status = 404} : found->second;
  }

  mutable std::mutex mutex_;
  std::map<QByteArray, Answer> answers_;
  QList<Request> requests_;
  quint16 port_ = 0;
  // Of the server's own thread.
  QEventLoop* loop_ = nullptr;
  QSslServer* server_ = nullptr;
  bool isReleased_ = false;
  std::jthread thread_;
};

CatalogServer::CatalogServer(ServerIdentity identity) {
  trustTestAuthority();
  d_ = std::make_unique<Private>(identity);
}

CatalogServer::~CatalogServer() = default;

void CatalogServer::answer(const QByteArray& path, Answer answer) {
  if (answer.gzip) {
    answer.body = toolOutput(QStringLiteral("gzip"), {QStringLiteral("-c")}, answer.body);
  }
  d_->answer(path, std::move(answer));
}

void CatalogServer::release() {
  d_->release();
}

QUrl CatalogServer::url(const QByteArray& path) const {
  return QUrl(
      QStringLiteral("https://127.0.0.1:%1%2").arg(d_->port()).arg(QString::fromLatin1(path)));
}

QList<Request> CatalogServer::requests() const {
  return d_->requests();
}

}  // namespace quillmere::test
