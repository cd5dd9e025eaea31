#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtNetwork/QSslSocket>
#include <QtNetwork/QTcpServer>

#include <cstdio>
#include <map>

#include "support/ScriptedConnection.h"
#include "support/TestCertificates.h"

using namespace Qt::StringLiterals;

namespace quillmere::test {
namespace {

void say(const QByteArray& line) {
  std::puts(line.constData());
  std::fflush(stdout);
}

/// The public catalog behind a proxy, for a program that runs by itself and asks for the real host:
/// whoever connects through it meets a server that the tests' authority vouches for.
class ProxiedCatalog : public QTcpServer {
 public:
  explicit ProxiedCatalog(std::map<QByteArray, Answer> answers) : answers_(std::move(answers)) {}

 protected:
  void incomingConnection(qintptr descriptor) override {
    auto* const socket = new QSslSocket(this);
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QSslSocket::readyRead, this, [this, socket] { openTunnel(socket); });
    socket->setSslConfiguration(serverConfiguration(ServerIdentity::catalogHost));
    socket->setSocketDescriptor(descriptor);
  }

 private:
  void openTunnel(QSslSocket* socket) {
    const QByteArray head = socket->peek(socket->bytesAvailable());
    if (!head.contains("\r\n\r\n")) {
      return;
    }
    const QByteArray line = socket->readAll().split('\r').first();
    if (!line.startsWith("CONNECT ")) {
      socket->abort();
      return;
    }
    disconnect(socket, &QSslSocket::readyRead, this, nullptr);
    connect(socket, &QSslSocket::encrypted, this, [this, socket] {
      new ScriptedConnection(
          socket, [this](const Request& request) { return answer(request); }, true);
    });
    socket->write("HTTP/1.1 200 Connected\r\n\r\n");
    socket->flush();
    socket->startServerEncryption();
  }

  Answer answer(const Request& request) const {
    say(request.method + ' ' + request.path);
    const auto found = answers_.find(request.path);
    return found == answers_.end() ? Answer{.status = 404} : found->second;
  }

  std::map<QByteArray, Answer> answers_;
};

Answer readAnswer(const QString& file, const QCommandLineParser& options) {
  QFile document(file);
  if (!document.open(QFile::ReadOnly)) {
    qFatal("%s: %s", qUtf8Printable(file), qUtf8Printable(document.errorString()));
  }
  return {.body = document.readAll(),
          .pieceBytes = options.value(u"piece"_s).toLongLong(),
          .pause = std::chrono::milliseconds(options.value(u"pause"_s).toInt())};
}

int serve(const QCommandLineParser& options) {
  QFile authority(options.value(u"authority"_s));
  if (!authority.open(QFile::WriteOnly) || authority.write(testAuthority()) < 0) {
    return EXIT_FAILURE;
  }
  authority.close();

  std::map<QByteArray, Answer> answers;
  for (const QString& document : options.positionalArguments()) {
    const auto equals = document.indexOf(u'=');
    answers[document.left(equals).toUtf8()] = readAnswer(document.mid(equals + 1), options);
  }
  ProxiedCatalog server(std::move(answers));
  if (!server.listen(QHostAddress::LocalHost)) {
    return EXIT_FAILURE;
  }
  say("port " + QByteArray::number(server.serverPort()));
  return QCoreApplication::exec();
}

}  // namespace
}  // namespace quillmere::test

// Serves the documents that are named to whoever asks for the public catalog through it, prints
// the port of the proxy and then every request, and lives until it is killed.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCommandLineParser options;
  options.addOptions(
      {{u"authority"_s, u"Where to write the certificate to trust."_s, u"file"_s},
       {u"piece"_s, u"Bytes that are sent at a time; all if 0."_s, u"bytes"_s, u"0"_s},
       {u"pause"_s, u"Milliseconds between pieces."_s, u"ms"_s, u"1"_s}});
  options.addPositionalArgument(u"documents"_s, u"PATH=FILE, as many as there are."_s);
  options.process(application);
  return quillmere::test::serve(options);
}
