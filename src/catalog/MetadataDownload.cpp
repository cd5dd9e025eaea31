#include "catalog/MetadataDownload.h"

#include <QCoroFuture>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QPromise>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <algorithm>
#include <utility>

#include "platform/RegularFile.h"

namespace quillmere {
namespace {

/// How many bytes QNetworkReply may receive before we read them. It decompresses them at once on
/// the UI thread; JSON grows to some seven times the size.
constexpr qint64 readBufferBytes = qint64{64} * 1024;
constexpr qint64 progressInterval = 34;
constexpr qint64 mebibyte = qint64{1024} * 1024;
/// More than either document has. The pages of it that stay untouched cost nothing, while a buffer
/// that has to grow may be copied, which keeps the UI thread for longer than a frame.
constexpr qint64 roomAtFirst = 48 * mebibyte;

MetadataFetchResult transportError(const QString& message) {
  return std::unexpected(MetadataTransportError{message});
}

MetadataFetchResult cancelled() {
  return std::unexpected(MetadataFetchCancelled{});
}

QNetworkRequest requestFor(const QUrl& url) {
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  // One document at a time gains nothing from a connection for many.
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::NoLessSafeRedirectPolicy);
  // Qt would send the language of the user's desktop. This is what it sends if there is none.
  request.setRawHeader("Accept-Language", "en,*");
  return request;
}

/// One transfer: collects the body as it arrives and then has a result. Whoever waits is resumed
/// from the event loop, so that no method of this object is on the stack when it is destroyed.
class Download : public QObject {
 public:
  Download(QNetworkAccessManager& session, const QUrl& url, MetadataFetchOptions options);
  ~Download() override;
  Q_DISABLE_COPY_MOVE(Download)

  [[nodiscard]] QFuture<void> ended() const { return ended_.future(); }

  [[nodiscard]] MetadataFetchResult takeResult();

 private:
  void connectReply();
  void step();
  qint64 takeBytes();
  void reserve(qint64 bytes);
  void reportProgress();
  [[nodiscard]] QVariant status() const;
  [[nodiscard]] bool isPacked() const;
  [[nodiscard]] std::optional<qint64> statedLength() const;
  [[nodiscard]] bool isCut() const;
  [[nodiscard]] MetadataFetchResult judge();
  void end(MetadataFetchResult result);

  MetadataFetchOptions options_;
  // The session deletes it when the session goes.
  QPointer<QNetworkReply> reply_;
  QByteArray body_;
  bool replyHasEnded_ = false;
  QTimer nextStep_;
  QTimer stallLimit_;
  qint64 bytesInWindow_ = 0;
  QElapsedTimer sinceProgress_;
  QPromise<void> ended_;
  std::optional<MetadataFetchResult> result_;
  std::optional<std::stop_callback<std::function<void()>>> onStop_;
};

Download::Download(QNetworkAccessManager& session, const QUrl& url, MetadataFetchOptions options)
    : options_(std::move(options)), reply_(session.get(requestFor(url))) {
  ended_.start();
  reserve(std::min(roomAtFirst, options_.maximumBytes));
  // A slot must not delete the reply that called it, and our callbacks might. So the reply's
  // signals only schedule the next step. They do so with a timer: of posted calls that each post
  // the next one, Qt would deliver all before it returns to the event loop.
  nextStep_.setSingleShot(true);
  connect(&nextStep_, &QTimer::timeout, this, &Download::step);
  stallLimit_.setSingleShot(true);
  connect(&stallLimit_, &QTimer::timeout, this, [this] {
    end(transportError(
        QStringLiteral("The server sent too little for too long, so the download was given up.")));
  });
  stallLimit_.start(options_.stallLimit.window);
  connectReply();
  // Called on the thread that asks; the end of `onStop_` waits for a call that is under way.
  onStop_.emplace(options_.stop, [this] {
    const auto stop = [this] { end(cancelled()); };
    QMetaObject::invokeMethod(this, stop, Qt::QueuedConnection);
  });
}

Download::~Download() {
  onStop_.reset();
  end(cancelled());
}

void Download::connectReply() {
  // Bounds what is unpacked at once; the connection waits meanwhile.
  reply_->setReadBufferSize(readBufferBytes);
  const auto stepSoon = [this] { nextStep_.start(0); };
  const auto lastStepSoon = [this] {
    replyHasEnded_ = true;
    nextStep_.start(0);
  };
  connect(reply_, &QNetworkReply::readyRead, this, stepSoon);
  connect(reply_, &QNetworkReply::errorOccurred, this, lastStepSoon);
  connect(reply_, &QNetworkReply::finished, this, lastStepSoon);
  connect(reply_, &QObject::destroyed, this, [this] { end(cancelled()); });
}

void Download::step() {
  if (result_ || options_.stop.stop_requested()) {
    end(cancelled());
    return;
  }
  const bool hasFailed = reply_->error() != QNetworkReply::NoError;
  const qint64 taken = hasFailed ? 0 : takeBytes();
  if (std::max(qint64{body_.size()}, statedLength().value_or(0)) > options_.maximumBytes) {
    end(transportError(QStringLiteral("The document is too large: more than %1 MiB.")
                           .arg(options_.maximumBytes / mebibyte)));
  } else if (taken > 0) {
    nextStep_.start(0);
    if (!sinceProgress_.isValid() || sinceProgress_.hasExpired(progressInterval)) {
      reportProgress();
    }
  } else if (replyHasEnded_) {
    MetadataFetchResult result = judge();
    if (result) {
      reportProgress();
    }
    end(std::move(result));
  }
}

/// Appends everything that the reply has ready to `body_`, without a buffer in between. Reading
/// less would not help: QNetworkReply refills its buffer after every read, however small, so unread
/// bytes would pile up, and at ten megabytes of them it starts to decompress from the beginning
/// again.
qint64 Download::takeBytes() {
  const qint64 available = reply_->bytesAvailable();
  if (available <= 0) {
    return 0;
  }
  const qsizetype before = body_.size();
  if (before + available + parserPadding > body_.capacity()) {
    reserve(std::max(before + available, 2 * qint64{before}));
  }
  body_.resize(before + available);
  const qint64 count = std::max(reply_->read(body_.data() + before, available), qint64{0});
  body_.resize(before + count);
  bytesInWindow_ += count;
  if (bytesInWindow_ >= options_.stallLimit.bytes) {
    bytesInWindow_ = 0;
    stallLimit_.start();
  }
  return count;
}

void Download::reserve(qint64 bytes) {
  body_.reserve(bytes + parserPadding);
}

void Download::reportProgress() {
  sinceProgress_.start();
  if (options_.onProgress) {
    options_.onProgress({.receivedBytes = body_.size(), .totalBytes = statedLength()});
  }
}

/// The status of an HTTP response; invalid for any other, although Qt makes up a status for files.
QVariant Download::status() const {
  return reply_->url().scheme().startsWith(u"http")
             ? reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute)
             : QVariant();
}

/// The document's size as the server states it; absent for a compressed body, of which the server
/// states only the compressed size.
std::optional<qint64> Download::statedLength() const {
  const QVariant length = reply_->header(QNetworkRequest::ContentLengthHeader);
  return length.isValid() && !isPacked() ? std::optional(length.toLongLong()) : std::nullopt;
}

bool Download::isPacked() const {
  return reply_->hasRawHeader("Content-Encoding");
}

/// Whether the end of the body is missing. Qt takes a chunked or compressed body for complete
/// wherever the connection ends, so we look at the document: an array that begins must end. One
/// that was cut right behind an inner bracket passes here and is refused by the decoder.
bool Download::isCut() const {
  if (const auto length = statedLength()) {
    return body_.size() < *length;
  }
  const QByteArrayView document = QByteArrayView(body_).trimmed();
  return document.startsWith('[') && !document.endsWith(']');
}

/// What came of a reply that has ended.
MetadataFetchResult Download::judge() {
  const int code = status().toInt();
  const QNetworkReply::NetworkError error = reply_->error();
  // Qt reports an HTTP status from 400 on as a network error too.
  const bool isStatus = code >= 400 && (error == QNetworkReply::ProxyAuthenticationRequiredError ||
                                        error >= QNetworkReply::ContentAccessDenied);
  if (error != QNetworkReply::NoError && !isStatus) {
    return transportError(reply_->errorString());
  }
  if (!status().isValid()) {
    return std::unexpected(HomebrewFormulaMetadataError::invalidResponse());
  }
  if (code < 200 || code > 299) {
    return std::unexpected(HomebrewFormulaMetadataError::httpStatus(code));
  }
  if (isCut()) {
    return transportError(
        QStringLiteral("The connection ended before the whole document had arrived."));
  }
  return body_;
}

void Download::end(MetadataFetchResult result) {
  if (result_) {
    return;
  }
  result_ = std::move(result);
  nextStep_.stop();
  stallLimit_.stop();
  if (reply_) {
    disconnect(reply_, nullptr, this, nullptr);
    // Deleting it aborts the transfer.
    reply_->deleteLater();
    reply_.clear();
  }
  ended_.finish();
}

MetadataFetchResult Download::takeResult() {
  return options_.stop.stop_requested() ? cancelled() : std::move(result_).value_or(cancelled());
}

}  // namespace

QCoro::Task<MetadataFetchResult> downloadMetadata(QNetworkAccessManager* session, QUrl url,
                                                  MetadataFetchOptions options) {
  if (options.stop.stop_requested()) {
    co_return cancelled();
  }
  Download download(*session, url, std::move(options));
  const QFuture<void> ended = download.ended();
  co_await ended;
  co_return download.takeResult();
}

QUrl urlLiteral(const QString& text) {
  QUrl url(text, QUrl::StrictMode);
  if (!url.isValid() || url.isRelative()) {
    qFatal("\"%s\" is not a URL.", qUtf8Printable(text));
  }
  return url;
}

}  // namespace quillmere
