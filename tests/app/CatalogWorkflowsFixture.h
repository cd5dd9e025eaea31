#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtNetwork/QNetworkAccessManager>
#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

#include "app/CatalogWorkflows.h"
#include "persistence/LocalPersistenceStore.h"
#include "support/CatalogServer.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"

namespace quillmere {

inline void PrintTo(const CatalogWorkflows::Progress& progress, std::ostream* out) {
  *out << progress.receivedBytes << " of " << progress.expectedBytes.value_or(-1);
}

inline const QByteArray formulaPath = "/api/formula.json";
inline const QByteArray caskPath = "/api/cask.json";

inline const QDateTime monday =
    QDateTime::fromString(QStringLiteral("2026-11-16T08:00:00.000Z"), Qt::ISODateWithMs);
inline const QDateTime friday =
    QDateTime::fromString(QStringLiteral("2026-11-20T20:42:00.000Z"), Qt::ISODateWithMs);

inline QByteArray formulaDocument(const QByteArray& name) {
  return R"([{"name": ")" + name + R"(", "versions": {"stable": "1.0"}}])";
}

inline QByteArray caskDocument(const QByteArray& token) {
  return R"([{"token": ")" + token + R"("}])";
}

/// The workflows over a server, a store and a cache of the test's own. It is Friday; what is in
/// the cache is from Monday.
class CatalogWorkflowsTest : public testing::Test {
 protected:
  CatalogWorkflowsTest() {
    server_.answer(formulaPath, {.body = formulaDocument("wget")});
    server_.answer(caskPath, {.body = caskDocument("firefox")});
  }

  void givenCache(const QString& name, const QByteArray& document) {
    const QString folder = settings_.cacheDirectoryURL().toLocalFile();
    QDir().mkpath(folder);
    QFile file(folder + u'/' + name);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(document) == document.size());
    store_.setCatalogLastRefreshDate(monday);
  }

  void givenBothInCache() {
    givenCache(QStringLiteral("formula.json"), formulaDocument("cached-formula"));
    givenCache(QStringLiteral("cask.json"), caskDocument("cached-cask"));
  }

  [[nodiscard]] QByteArray cached(const QString& name) const {
    QFile file(settings_.cacheDirectoryURL().toLocalFile() + u'/' + name);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }

  void fetch(CatalogScope scope) { QCoro::waitFor(workflows_->fetch(scope)); }

  bool loadCached(CatalogScope scope) { return QCoro::waitFor(workflows_->loadCached(scope)); }

  [[nodiscard]] QStringList shownIDs() const {
    const auto* loaded = std::get_if<PackageCatalogState::Loaded>(&workflows_->state().value);
    QStringList ids;
    for (const auto& package :
         loaded ? loaded->catalog->packages() : std::vector<HomebrewPackageSummary>()) {
      ids += package.id.toString();
    }
    return ids;
  }

  [[nodiscard]] QString failure() const {
    const auto* failed = std::get_if<PackageCatalogState::Failed>(&workflows_->state().value);
    return failed ? failed->message : QStringLiteral("(not failed)");
  }

  [[nodiscard]] QString loadingMessage() const {
    const auto* loading = std::get_if<PackageCatalogState::Loading>(&workflows_->state().value);
    return loading ? loading->message : QStringLiteral("(not loading)");
  }

  void expectOldCache() const {
    EXPECT_EQ(cached(QStringLiteral("formula.json")), formulaDocument("cached-formula"));
    EXPECT_EQ(cached(QStringLiteral("cask.json")), caskDocument("cached-cask"));
    EXPECT_EQ(store_.catalogLastRefreshDate(), monday);
  }

  test::CatalogServer server_;
  test::TemporarySettings settings_;
  LocalPersistenceStore store_{settings_.open(), settings_.cacheDirectoryURL()};
  QNetworkAccessManager session_;
  std::optional<CatalogWorkflows> workflows_{
      std::in_place, store_,
      CatalogWorkflows::Clients{
          .formulae = {.apiURL = server_.url(formulaPath), .session = &session_},
          .casks = {.apiURL = server_.url(caskPath), .session = &session_}},
      [] { return friday; }};
};

}  // namespace quillmere
