#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "commands/BrewCommand.h"

namespace quillmere {

/// A package as Homebrew named it, without its tap; the version is empty where none was named.
struct NamedVersion {
  QString name;
  QString version;

  bool operator==(const NamedVersion&) const = default;
};

/// What the lines of a run tell for certain. However much a run prints, this stays small: each list
/// has a longest length, and counts go on where a list is full.
struct RunFacts {
  struct Caveat {
    QString package;
    QString text;
  };

  /// What Homebrew said last that it was doing.
  enum class Activity {
    none,
    downloading,
    installing,
    upgrading,
    uninstalling,
    updating,
    cleaning
  };

  QList<NamedVersion> installed;
  qsizetype installedCount = 0;
  /// The versions that upgraded packages had before, by name.
  QMap<QString, QString> versionsBefore;
  QList<NamedVersion> alreadyInstalled;
  QList<NamedVersion> uninstalled;
  QStringList stillInstalled;
  QList<NamedVersion> autoremoved;
  QList<NamedVersion> oldVersionsRemoved;
  qsizetype othersRemoved = 0;
  QString freed;
  /// Whether Homebrew told what it would do, and not what it did.
  bool isRehearsal = false;
  QStringList pinned;
  QStringList errors;
  QStringList warnings;
  qsizetype warningCount = 0;
  QList<Caveat> caveats;
  Activity activity = Activity::none;
  QString activityTarget;
  bool isUpToDate = false;
  QStringList updates;
  /// Names under a heading of an update, for example "New Formulae".
  QList<std::pair<QString, QStringList>> news;
  /// The package whose build failed, and the last error in its log.
  QString notBuilt;
  QString buildError;
  QStringList listed;
  qsizetype listedCount = 0;
  /// Lines of standard output that name no package.
  qsizetype otherLineCount = 0;
  bool hasServiceHeader = false;
  QMap<QString, qsizetype> serviceStates;
  bool isReady = false;
};

/// Reads one run: its whole standard output first, then its whole standard error, both UTF-8. Pure;
/// any thread.
[[nodiscard]] RunFacts readRunFacts(BrewCommandOperation operation, QByteArrayView standardOutput,
                                    QByteArrayView standardError);

/// The name without the tap before it.
[[nodiscard]] QString shortName(const QString& name);

}  // namespace quillmere
