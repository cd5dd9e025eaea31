#include "demo/SampleCatalog.h"

#include <memory>
#include <utility>

#include "platform/NameOrdering.h"

namespace quillmere::demo {
namespace {

using namespace Qt::StringLiterals;

QByteArray longDescription() {
  return QByteArray("Describes itself at great length and finds no end to it. ")
      .repeated(6)
      .left(300);
}

SharedText shared(const QString& text) {
  return SharedText(QStringView(text));
}

InstalledPackageSummary installed(const HomebrewPackageSummary& package, std::size_t place) {
  // Every third is behind the catalog.
  const SharedText version =
      place % 3 == 0 || !package.version ? shared(u"0.9.1"_s) : *package.version;
  return {.id = package.id,
          .kind = package.kind,
          .name = package.name,
          .description = package.description,
          .installedVersions = {version},
          .installedVersion = version,
          .latestKnownVersion = package.version,
          .alternateVersion = package.alternateVersion,
          .homepage = package.homepage,
          .license = package.license,
          .tap = package.tap,
          .detailItems = package.detailItems,
          .detail = shared(u"Installed on request"_s)};
}

}  // namespace

QByteArray sampleFormulaDocument() {
  return R"([
    {"name": "curl", "desc": "Get a file from an HTTP, HTTPS or FTP server", "tap": "homebrew/core",
     "license": "curl", "versions": {"stable": "8.17.0", "head": "HEAD"},
     "dependencies": ["openssl@3"]},
    {"name": "ffmpeg", "desc": "Play, record, convert, and stream audio and video",
     "tap": "homebrew/core", "versions": {"stable": "8.0.1"}},
    {"name": "a-)" +
         QByteArray(58, 'n') + R"(", "desc": ")" + longDescription() + R"(",
     "versions": {"stable": "2026.11.21-beta.1+a-long-build-name"}},
    {"name": "openssl@3", "desc": "Cryptography and SSL/TLS Toolkit", "tap": "homebrew/core",
     "versions": {"stable": "3.6.0"}},
    {"name": "shalom", "desc": "שלום לכולם, זהו תיאור שנכתב מימין לשמאל",
     "versions": {"stable": "1.0"}},
    {"name": "silent", "desc": null, "versions": {}},
    {"name": "vietcalc", "desc": "Máy tính cho người Việt", "versions": {"stable": "2.4"}},
    {"name": "wget", "desc": "Internet file retriever", "tap": "homebrew/core",
     "versions": {"stable": "1.25.0"}, "dependencies": ["openssl@3", "own-tool"]}])";
}

QByteArray sampleCaskDocument() {
  return R"([
    {"token": "firefox", "name": ["Mozilla Firefox"], "desc": "Web browser", "version": "145.0.1",
     "tap": "homebrew/cask"},
    {"token": "gimp", "name": ["GIMP"], "desc": "Free and open-source image editor",
     "version": "3.0.6,1", "tap": "homebrew/cask"}])";
}

CatalogInputs loadedCatalog(const CatalogDocuments& documents) {
  return {.state = {PackageCatalogState::Loaded{decodeCatalog(documents).value()}},
          .receivedBytes = 0,
          .expectedBytes = {},
          .hasCachedFormulae = true,
          .hasCachedCasks = true,
          .lastRefreshDate = QDateTime::currentDateTimeUtc()};
}

LocalInventoryInputs scannedInventory() {
  const auto catalog =
      decodeCatalog({.formulae = sampleFormulaDocument(), .casks = sampleCaskDocument()}).value();
  auto packages = std::make_shared<std::vector<InstalledPackageSummary>>();
  for (const HomebrewPackageSummary& package : catalog->packages()) {
    packages->push_back(installed(package, packages->size()));
  }
  InstalledPackageSummary unknown;
  unknown.id = shared(u"formula:of-my-own"_s);
  unknown.name = shared(u"of-my-own"_s);
  unknown.detail = shared(u"Install reason unknown"_s);
  packages->push_back(unknown);
  NameOrdering::forUserLocale().stableSort(
      *packages, [](const InstalledPackageSummary& package) { return package.name.toString(); });
  const QString prefix = u"/home/linuxbrew/.linuxbrew"_s;
  return {.state = {InstalledPackagesState::Loaded{std::move(packages)}},
          .scannedPackages = 0,
          .totalPackages = 0,
          .selectedPrefixPath = prefix,
          .selectedPrefixURL = QUrl::fromLocalFile(prefix),
          .lastScanDate = QDateTime::currentDateTimeUtc(),
          .catalogLastRefreshDate = {}};
}

}  // namespace quillmere::demo
