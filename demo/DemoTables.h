#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace quillmere::demo {

/// One package of the demo's catalog that is built from source or poured from a bottle.
struct Formula {
  QString name;
  /// Absent for one that nobody has released yet.
  std::optional<QString> version;
  int revision = 0;
  bool hasHead = false;
  std::optional<QString> description;
  std::optional<QString> homepage;
  QString license;
  QStringList dependencies;
  qint64 kilobytes = 0;

  bool operator==(const Formula&) const = default;
};

/// One application of the demo's catalog.
struct Cask {
  QString token;
  QString version;
  QStringList names;
  std::optional<QString> description;
  QString homepage;
  /// The kinds of what it installs, such as "app".
  QStringList artifacts;
  qint64 kilobytes = 0;

  bool operator==(const Cask&) const = default;
};

/// One package of the demo's prefix.
struct InstalledPackage {
  enum class Reason { request, dependency, unknown };

  bool isCask = false;
  QString name;
  /// Oldest first.
  QStringList versions;
  Reason reason = Reason::unknown;
  QString tap;
  /// The versions whose downloads still lie in the cache.
  QStringList downloads;

  bool operator==(const InstalledPackage&) const = default;
};

/// A table as the demo's `brew` reads it, too.
[[nodiscard]] QByteArray tableText(QLatin1StringView fileName);

/// The packages of the demo, in the order of their tables. Pure; any thread.
[[nodiscard]] std::vector<Formula> formulae();
[[nodiscard]] std::vector<Cask> casks();
[[nodiscard]] std::vector<InstalledPackage> installedPackages();

}  // namespace quillmere::demo
