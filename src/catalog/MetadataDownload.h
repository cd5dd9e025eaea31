#pragma once

#include <QCoroTask>
#include <QtCore/QByteArray>
#include <QtCore/QUrl>

#include <expected>

#include "catalog/MetadataFetchError.h"
#include "catalog/MetadataFetchOptions.h"
#include "platform/QCoroExpected.h"

class QNetworkAccessManager;

namespace quillmere {

using MetadataFetchResult = std::expected<QByteArray, MetadataFetchError>;

/// One GET of `url` through `session`, which is borrowed. UI thread only, like the session.
/// The result is the whole body of an answer with a status from 200 to 299, unpacked, with
/// `parserPadding` of capacity behind it. A body that is known to be cut is an error even where
/// the platform takes it for whole.
///
/// Nothing is tried again, kept on disk, or sent back as a cookie, and nothing in the request tells
/// one user from another. Redirects are followed to HTTPS only. The UI thread is held for a few
/// milliseconds at a time. When the session goes first, the fetch ends as cancelled.
[[nodiscard]] QCoro::Task<MetadataFetchResult> downloadMetadata(QNetworkAccessManager* session,
                                                                QUrl url,
                                                                MetadataFetchOptions options);

/// The URL that a text written in the program spells; the process ends when it spells none.
[[nodiscard]] QUrl urlLiteral(const QString& text);

}  // namespace quillmere
