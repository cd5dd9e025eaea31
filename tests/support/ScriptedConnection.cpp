#include "support/ScriptedConnection.h"

#include <QtNetwork/QSslSocket>

#include <sys/socket.h>

namespace quillmere::test {
namespace {

/// In chunks of uneven sizes.
QByteArray chunked(const QByteArray& body) {
  constexpr qsizetype largest = 40'000;
  QByteArray framed;
  qsizetype size = 1;
  for (qsizetype from = 0; from < body.size(); from += size) {
    size = std::min(from == 0 ? 1 : largest, body.size() - from);
    framed += QByteArray::number(size, 16) + "\r\n" + body.sliced(from, size) + "\r\n";
  }
  return framed + "0\r\n\r\n";
}

std::optional<Request> parsed(const QByteArray& head) {
  QList<QByteArray> lines = head.split('\n');
  const QList<QByteArray> first = lines.takeFirst().trimmed().split(' ');
  if (first.size() != 3) {
    return std::nullopt;
  }
  Request request{.method = first[0], .path = first[1], .version = first[2], .headers = {}};
  for (const QByteArray& line : lines) {
    const auto colon = line.indexOf(':');
    request.headers.emplaceBack(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
  }
  return request;
}

QByteArray headOf(const Answer& answer, qsizetype bodySize) {
  QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " As scripted\r\n";
  if (answer.gzip) {
    head += "Content-Encoding: gzip\r\n";
  }
  if (answer.framing == Answer::Framing::chunked) {
    head += "Transfer-Encoding: chunked\r\n";
  } else if (answer.framing == Answer::Framing::length && answer.status != 204 &&
             answer.status != 304) {
    head += "Content-Length: " + QByteArray::number(bodySize) + "\r\n";
  }
  for (const auto& [name, value] : answer.headers) {
    head += name + ": " + value + "\r\n";
  }
  return head + "\r\n";
}

/// What `answer` puts on the line.
QByteArray bytesOf(const Answer& answer) {
  const QByteArray body =
      answer.framing == Answer::Framing::chunked ? chunked(answer.body) : answer.body;
  const QByteArray head = headOf(answer, body.size());
  if (answer.headBytes) {
    return head.left(*answer.headBytes);
  }
  return head + (answer.bodyBytes ? body.left(*answer.bodyBytes) : body);
}

}  // namespace

ScriptedConnection::ScriptedConnection(QSslSocket* socket, Script script, bool isReleased)
    : QObject(socket), socket_(socket), script_(std::move(script)), isReleased_(isReleased) {
  connect(socket_, &QSslSocket::readyRead, this, &ScriptedConnection::readRequests);
  connect(socket_, &QSslSocket::disconnected, socket_, &QObject::deleteLater);
  connect(socket_, &QSslSocket::encryptedBytesWritten, this, &ScriptedConnection::endWhenSent);
  connect(&piece_, &QTimer::timeout, this, &ScriptedConnection::send);
  readRequests();
}

void ScriptedConnection::release() {
  isReleased_ = true;
  if (const auto answer = std::exchange(waiting_, std::nullopt)) {
    begin(*answer);
  }
}

void ScriptedConnection::readRequests() {
  received_ += socket_->readAll();
  const auto end = received_.indexOf("\r\n\r\n");
  if (end < 0) {
    return;
  }
  const auto request = parsed(received_.left(end));
  received_.remove(0, end + 4);
  if (!request) {
    socket_->abort();
    return;
  }
  const Answer answer = script_(*request);
  if (answer.waits && !isReleased_) {
    waiting_ = answer;
  } else {
    begin(answer);
  }
}

void ScriptedConnection::begin(const Answer& answer) {
  ending_ = answer.ending;
  if (answer.framing == Answer::Framing::connectionEnd && ending_ == Answer::Ending::keepAlive) {
    ending_ = Answer::Ending::close;
  }
  unsent_ = bytesOf(answer);
  pieceBytes_ = answer.pieceBytes;
  piece_.start(pieceBytes_ > 0 ? answer.pause : std::chrono::milliseconds(0));
}

void ScriptedConnection::send() {
  const auto count = pieceBytes_ > 0 ? std::min(pieceBytes_, unsent_.size()) : unsent_.size();
  socket_->write(unsent_.constData(), count);
  unsent_.remove(0, count);
  if (unsent_.isEmpty()) {
    piece_.stop();
    endWhenSent();
  }
}

void ScriptedConnection::endWhenSent() {
  if (!piece_.isActive() && !waiting_ && unsent_.isEmpty() && socket_->bytesToWrite() == 0 &&
      socket_->encryptedBytesToWrite() == 0) {
    end();
  }
}

void ScriptedConnection::end() {
  const int descriptor = static_cast<int>(socket_->socketDescriptor());
  switch (ending_) {
    case Answer::Ending::keepAlive:
    case Answer::Ending::silence:
      break;
    case Answer::Ending::close:
      socket_->disconnectFromHost();
      break;
    case Answer::Ending::cut:
      shutdown(descriptor, SHUT_RDWR);
      break;
    case Answer::Ending::reset: {
      const linger atOnce{.l_onoff = 1, .l_linger = 0};
      setsockopt(descriptor, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
      socket_->abort();
      break;
    }
  }
}

}  // namespace quillmere::test
