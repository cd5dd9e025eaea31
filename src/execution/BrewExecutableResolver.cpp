#include "execution/BrewExecutableResolver.h"

#include <utility>

#include "platform/FileUrl.h"
#include "platform/SecurityScopedAccess.h"
#include "prefix/HomebrewPrefixReader.h"

namespace quillmere {
namespace {

using Status = BrewExecutableResolution::Status;

BrewExecutableResolution resolutionFor(const HomebrewPrefixLocation& brew, const QUrl& prefixURL) {
  switch (brew.status) {
    case HomebrewPrefixLocation::Status::readable:
      return {Status::resolved, prefixURL, brew.url};
    case HomebrewPrefixLocation::Status::missing:
      return {Status::missingExecutable, prefixURL, std::nullopt};
    case HomebrewPrefixLocation::Status::notReadable:
      return {Status::notExecutable, prefixURL, brew.url};
  }
  return {Status::invalidPrefix, prefixURL, std::nullopt};
}

}  // namespace

QString message(BrewExecutableResolution::Status status) {
  switch (status) {
    case Status::resolved:
      return {};
    case Status::noSelectedPrefix:
      return QStringLiteral("Select a Homebrew prefix before running commands.");
    case Status::invalidPrefix:
      return QStringLiteral("The selected folder does not look like a Homebrew prefix.");
    case Status::missingExecutable:
      return QStringLiteral("The selected Homebrew prefix does not contain bin/brew.");
    case Status::notExecutable:
      return QStringLiteral("The selected prefix contains bin/brew, but it is not executable.");
  }
  return {};
}

QString diagnosticText(BrewExecutableResolution::Status status) {
  return status == Status::resolved ? QStringLiteral("resolved") : message(status);
}

BrewExecutableResolver::BrewExecutableResolver(HomebrewPrefixFileSystemPtr fileSystem)
    : fileSystem_(std::move(fileSystem)) {
}

BrewExecutableResolution BrewExecutableResolver::resolve(
    const std::optional<QUrl>& prefixURL) const {
  if (!prefixURL) {
    return {Status::noSelectedPrefix, std::nullopt, std::nullopt};
  }
  const SecurityScopedAccess access(*prefixURL);
  const QString path = filePath(*prefixURL);
  if (!fileSystem_->fileExists(path) || !fileSystem_->isReadableFile(path)) {
    return {Status::invalidPrefix, prefixURL, std::nullopt};
  }
  const HomebrewPrefixReadResult prefix = HomebrewPrefixReader(*prefixURL, fileSystem_).read();
  const HomebrewPrefixLocation* const brew =
      prefix.location(HomebrewPrefixLocation::Kind::brewExecutable);
  return brew == nullptr ? BrewExecutableResolution{Status::invalidPrefix, prefixURL, std::nullopt}
                         : resolutionFor(*brew, *prefixURL);
}

}  // namespace quillmere
