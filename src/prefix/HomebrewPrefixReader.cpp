#include "prefix/HomebrewPrefixReader.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/FileUrl.h"
#include "platform/SecurityScopedAccess.h"

namespace quillmere {
namespace {

/// The rank of a UTF-16 unit in an order by code points: surrogates, which stand for what lies
/// beyond U+FFFF, come last.
constexpr int codePointRank(QChar unit) {
  return unit.isSurrogate() ? unit.unicode() + 0x10000 : unit.unicode();
}

bool comesBefore(const QString& left, const QString& right) {
  const auto [leftRest, rightRest] = std::ranges::mismatch(left, right);
  return rightRest != right.end() &&
         (leftRest == left.end() || codePointRank(*leftRest) < codePointRank(*rightRest));
}

QStringList sortedChildNames(const HomebrewPrefixFileSystem& fileSystem, const QUrl& url) {
  QStringList names = childNames(fileSystem, url);
  std::ranges::sort(names, comesBefore);
  return names;
}

HomebrewPrefixLocation readLocation(const HomebrewPrefixFileSystem& fileSystem,
                                    const QUrl& prefixURL, const HomebrewPrefixLocationInfo& info) {
  using Status = HomebrewPrefixLocation::Status;
  HomebrewPrefixLocation location{.kind = info.kind,
                                  .label = info.label,
                                  .relativePath = info.relativePath,
                                  .url = appendingPath(prefixURL, QString(info.relativePath)),
                                  .status = Status::readable,
                                  .childNames = {}};
  const QString path = filePath(location.url);
  if (!fileSystem.fileExists(path)) {
    location.status = Status::missing;
  } else if (!fileSystem.isReadableFile(path)) {
    location.status = Status::notReadable;
  } else {
    location.childNames = sortedChildNames(fileSystem, location.url);
  }
  return location;
}

}  // namespace

QStringList childNames(const HomebrewPrefixFileSystem& fileSystem, const QUrl& folder) {
  QStringList names;
  if (const auto contents = fileSystem.contentsOfDirectory(folder)) {
    names.reserve(contents->size());
    std::ranges::transform(*contents, std::back_inserter(names), lastPathComponent);
  }
  return names;
}

HomebrewPrefixReader::HomebrewPrefixReader(QUrl prefixURL, HomebrewPrefixFileSystemPtr fileSystem)
    : prefixURL_(std::move(prefixURL)), fileSystem_(std::move(fileSystem)) {
}

HomebrewPrefixReadResult HomebrewPrefixReader::read() const {
  const SecurityScopedAccess access(prefixURL_);
  HomebrewPrefixReadResult result{
      .prefixURL = prefixURL_, .scannedAt = QDateTime::currentDateTimeUtc(), .locations = {}};
  result.locations.reserve(homebrewPrefixLocations.size());
  for (const HomebrewPrefixLocationInfo& info : homebrewPrefixLocations) {
    result.locations.push_back(readLocation(*fileSystem_, prefixURL_, info));
  }
  return result;
}

}  // namespace quillmere
