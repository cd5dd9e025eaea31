#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QLatin1StringView>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

#include <array>
#include <vector>

#include "platform/RawValues.h"

namespace quillmere {

/// One of the seven well-known places inside a prefix, as found at one moment.
struct HomebrewPrefixLocation {
  enum class Kind {
    brewExecutable,
    cellar,
    caskroom,
    linkedFormulae,
    homebrewLibrary,
    taps,
    cache
  };
  enum class Status { readable, missing, notReadable };

  Kind kind = Kind::brewExecutable;
  QString label;
  /// Relative to the prefix.
  QString relativePath;
  QUrl url;
  Status status = Status::missing;
  /// Names of the visible entries in ascending code order; empty unless the location is a readable
  /// folder.
  QStringList childNames;

  bool operator==(const HomebrewPrefixLocation&) const = default;
};

template <>
inline constexpr auto rawValues<HomebrewPrefixLocation::Kind> =
    std::to_array<RawValue<HomebrewPrefixLocation::Kind>>({
        {HomebrewPrefixLocation::Kind::brewExecutable, QLatin1StringView("brewExecutable")},
        {HomebrewPrefixLocation::Kind::cellar, QLatin1StringView("cellar")},
        {HomebrewPrefixLocation::Kind::caskroom, QLatin1StringView("caskroom")},
        {HomebrewPrefixLocation::Kind::linkedFormulae, QLatin1StringView("linkedFormulae")},
        {HomebrewPrefixLocation::Kind::homebrewLibrary, QLatin1StringView("homebrewLibrary")},
        {HomebrewPrefixLocation::Kind::taps, QLatin1StringView("taps")},
        {HomebrewPrefixLocation::Kind::cache, QLatin1StringView("cache")},
    });

/// One line of the table of well-known locations.
struct HomebrewPrefixLocationInfo {
  HomebrewPrefixLocation::Kind kind;
  QLatin1StringView label;
  QLatin1StringView relativePath;
};

/// The seven locations in the order in which they are probed and shown.
inline constexpr auto homebrewPrefixLocations = std::to_array<HomebrewPrefixLocationInfo>({
    {HomebrewPrefixLocation::Kind::brewExecutable, QLatin1StringView("brew executable"),
     QLatin1StringView("bin/brew")},
    {HomebrewPrefixLocation::Kind::cellar, QLatin1StringView("Formula Cellar"),
     QLatin1StringView("Cellar")},
    {HomebrewPrefixLocation::Kind::caskroom, QLatin1StringView("Caskroom"),
     QLatin1StringView("Caskroom")},
    {HomebrewPrefixLocation::Kind::linkedFormulae, QLatin1StringView("Linked formulae"),
     QLatin1StringView("var/homebrew/linked")},
    {HomebrewPrefixLocation::Kind::homebrewLibrary, QLatin1StringView("Homebrew Library"),
     QLatin1StringView("Library/Homebrew")},
    {HomebrewPrefixLocation::Kind::taps, QLatin1StringView("Tap metadata"),
     QLatin1StringView("Library/Taps")},
    {HomebrewPrefixLocation::Kind::cache, QLatin1StringView("Cache"),
     QLatin1StringView("var/homebrew/cache")},
});

/// A prefix as found at one moment.
struct HomebrewPrefixReadResult {
  QUrl prefixURL;
  /// When the read began.
  QDateTime scannedAt;
  /// One per kind, in the order of `homebrewPrefixLocations`.
  std::vector<HomebrewPrefixLocation> locations;

  bool operator==(const HomebrewPrefixReadResult&) const = default;

  /// The first location of this kind; null where there is none.
  [[nodiscard]] const HomebrewPrefixLocation* location(HomebrewPrefixLocation::Kind kind) const;
};

}  // namespace quillmere
