#pragma once

#include <QCoroTask>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QNetworkAccessManager>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "catalog/HomebrewFormulaMetadataClient.h"
#include "support/CatalogServer.h"
#include "support/GeneratedCatalog.h"
#include "support/Printers.h"

namespace quillmere::test {

/// A server, a session, and a client between them.
class Download : public testing::Test {
 protected:
  [[nodiscard]] HomebrewFormulaMetadataClient client(const QUrl& url) {
    return {.apiURL = url, .session = &session};
  }

  [[nodiscard]] HomebrewFormulaMetadataClient client() { return client(server.url(path)); }

  MetadataFetchResult fetch(MetadataFetchOptions options = {}) {
    return QCoro::waitFor(client().fetch(std::move(options)));
  }

  MetadataFetchResult fetch(Answer answer, MetadataFetchOptions options = {}) {
    server.answer(path, std::move(answer));
    return fetch(std::move(options));
  }

  MetadataFetchResult fetch(const QUrl& url) { return QCoro::waitFor(client(url).fetch()); }

  /// What a user is told of a fetch: its error's text, or nothing.
  static std::string told(const MetadataFetchResult& result) {
    return result ? std::string() : description(result.error()).toStdString();
  }

  [[nodiscard]] std::vector<QByteArray> requestedPaths() const {
    std::vector<QByteArray> paths;
    for (const Request& request : server.requests()) {
      paths.push_back(request.path);
    }
    return paths;
  }

  /// Runs the event loop until everything that was let go of is gone.
  static void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  inline static const QByteArray path = "/api/formula.json";
  inline static const std::string endedEarly =
      "The connection ended before the whole document had arrived.";
  inline static const std::string lostPatience =
      "The server sent too little for too long, so the download was given up.";
  /// Some four hundred kilobytes, as a packed answer a few.
  const QByteArray document = generatedFormulaDocument(100);
  CatalogServer server;
  QNetworkAccessManager session;
};

}  // namespace quillmere::test
