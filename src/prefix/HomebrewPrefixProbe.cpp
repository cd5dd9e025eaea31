#include "prefix/HomebrewPrefixProbe.h"

#include <algorithm>

#include "platform/FileUrl.h"
#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixFileSystem.h"

namespace quillmere {
namespace {

using Status = HomebrewPrefixProbeResult::Status;

HomebrewPrefixProbeResult probeLocation(const HomebrewPrefixFileSystem& disk, const QUrl& folder,
                                        const HomebrewPrefixLocationInfo& info) {
  HomebrewPrefixProbeResult result{.id = QUuid::createUuid(),
                                   .label = info.label,
                                   .relativePath = info.relativePath,
                                   .status = Status::readable,
                                   .itemCount = {}};
  const QUrl url = appendingPath(folder, QString(info.relativePath));
  if (!disk.fileExists(filePath(url))) {
    result.status = Status::missing;
  } else if (!disk.isReadableFile(filePath(url))) {
    result.status = Status::notReadable;
  } else if (const auto contents = disk.contentsOfDirectory(url)) {
    result.itemCount = contents->size();
  }
  return result;
}

}  // namespace

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
  if (summary.looksLikeHomebrewPrefix() || shown.isEmpty() || shown == chosen) {
    return summary;
  }
  const HomebrewPrefixProbeSummary around = probe(shown);
  return around.looksLikeHomebrewPrefix() ? around : summary;
}

}  // namespace quillmere
