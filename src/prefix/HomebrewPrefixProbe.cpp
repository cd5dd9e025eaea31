#include "prefix/HomebrewPrefixProbe.h"

#include <QtCore/QDir>

#include <algorithm>

#include "platform/FileUrl.h"
#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere {
namespace {

using Status = HomebrewPrefixProbeResult::Status;

QString whereElse(const HomebrewPrefixFileSystem& disk, const QUrl& folder,
                  HomebrewPrefixLocation::Kind location) {
  for (const QString& place : otherPlacesOf(location)) {
    const QString path =
        QDir::isAbsolutePath(place) ? place : filePath(appendingPath(folder, place));
    if (disk.fileExists(path)) {
      return place;
    }
  }
  return {};
}

HomebrewPrefixProbeResult probeLocation(const HomebrewPrefixFileSystem& disk, const QUrl& folder,
                                        const HomebrewPrefixLocationInfo& info) {
  HomebrewPrefixProbeResult result{.id = QUuid::createUuid(),
                                   .label = info.label,
                                   .relativePath = info.relativePath,
                                   .status = Status::readable,
                                   .itemCount = {},
                                   .foundAt = {}};
  const QUrl url = appendingPath(folder, QString(info.relativePath));
  if (!disk.fileExists(filePath(url))) {
    result.status = Status::missing;
    result.foundAt = whereElse(disk, folder, info.kind);
  } else if (!disk.isReadableFile(filePath(url))) {
    result.status = Status::notReadable;
  } else if (const auto contents = disk.contentsOfDirectory(url)) {
    result.itemCount = contents->size();
  }
  return result;
}

/// Whether a folder lies in another one, however deep.
bool contains(const QUrl& outer, const QUrl& inner) {
  const QString path = QDir::cleanPath(filePath(outer));
  return !outer.isEmpty() &&
         QDir::cleanPath(filePath(inner)).startsWith(path == u"/" ? path : path + u'/');
}

}  // namespace

QStringList otherPlacesOf(HomebrewPrefixLocation::Kind location) {
  using Kind = HomebrewPrefixLocation::Kind;
  switch (location) {
    case Kind::homebrewLibrary:
      return {QStringLiteral("Homebrew/Library/Homebrew")};
    case Kind::taps:
      return {QStringLiteral("Homebrew/Library/Taps")};
    case Kind::cache: {
      QStringList places{qEnvironmentVariable("HOMEBREW_CACHE"),
                         QDir::homePath() + QStringLiteral("/Library/Caches/Homebrew"),
                         QDir::homePath() + QStringLiteral("/.cache/Homebrew")};
      places.removeAll(QString());
      return places;
    }
    case Kind::brewExecutable:
    case Kind::cellar:
    case Kind::caskroom:
    case Kind::linkedFormulae:
      break;
  }
  return {};
}

QString statusText(const HomebrewPrefixProbeResult& result) {
  switch (result.status) {
    case Status::readable:
      return result.itemCount ? QStringLiteral("Readable (%1 items)").arg(*result.itemCount)
                              : QStringLiteral("Readable");
    case Status::missing:
      return QStringLiteral("Missing");
    case Status::notReadable:
      return QStringLiteral("Not readable");
  }
  return {};
}

bool HomebrewPrefixProbeSummary::looksLikeHomebrewPrefix() const {
  return std::ranges::any_of(results, [](const HomebrewPrefixProbeResult& result) {
    return result.relativePath == u"bin/brew" && result.status == Status::readable;
  });
}

QString notAHomebrewPrefixText() {
  return QStringLiteral(
      "That folder does not look like a Homebrew prefix. Select `/opt/homebrew` or another folder "
      "that contains `bin/brew`.");
}

HomebrewPrefixProbeSummary probeHomebrewPrefix(const QUrl& folder) {
  const SecurityScopedAccess access(folder);
  HomebrewPrefixProbeSummary summary{.prefixURL = folder, .scannedAt = {}, .results = {}};
  summary.results.reserve(homebrewPrefixLocations.size());
  for (const HomebrewPrefixLocationInfo& info : homebrewPrefixLocations) {
    summary.results.push_back(probeLocation(*platformFileSystem(), folder, info));
  }
  summary.scannedAt = QDateTime::currentDateTimeUtc();
  return summary;
}

HomebrewPrefixProbeSummary probeChosenFolder(
    const std::function<HomebrewPrefixProbeSummary(const QUrl&)>& probe, const QUrl& chosen,
    const QUrl& shown) {
  HomebrewPrefixProbeSummary summary = probe(chosen);
  if (summary.looksLikeHomebrewPrefix() || !contains(shown, chosen)) {
    return summary;
  }
  const HomebrewPrefixProbeSummary around = probe(shown);
  return around.looksLikeHomebrewPrefix() ? around : summary;
}

}  // namespace quillmere
