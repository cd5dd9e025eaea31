#include "guidance/PackageUpdateSummary.h"

#include <QtCore/QStringList>

#include "platform/NameOrdering.h"
#include "platform/SanitizedText.h"

namespace quillmere {
namespace {

QString spoken(const QString& lead, const std::optional<SharedText>& value) {
  return lead + (value ? sanitizedText(*value) : QStringLiteral("unknown"));
}

PackageUpdateSummary updateOf(const InstalledPackageSummary& package) {
  return {.package = package,
          .versionState = {.kind = package.kind,
                           .name = package.name,
                           .currentVersion = package.installedVersion,
                           .latestKnownVersion = package.latestKnownVersion,
                           .status = packageVersionStatus(package.installedVersion,
                                                          package.latestKnownVersion)}};
}

}  // namespace

std::vector<PackageUpdateSummary> packageUpdateSummaries(
    const std::vector<InstalledPackageSummary>& inventory) {
  std::vector<PackageUpdateSummary> updates;
  updates.reserve(inventory.size());
  for (const InstalledPackageSummary& package : inventory) {
    updates.push_back(updateOf(package));
  }
  NameOrdering::forUserLocale().stableSort(
      updates, [](const PackageUpdateSummary& update) { return update.package.name.toString(); });
  return updates;
}

QString accessibleLabel(const PackageUpdateSummary& update) {
  const PackageVersionState& state = update.versionState;
  return QStringList{sanitizedText(update.package.name),
                     displayLabel(update.package.kind),
                     rawValue(state.status),
                     spoken(QStringLiteral("installed "), state.currentVersion),
                     spoken(QStringLiteral("latest known "), state.latestKnownVersion),
                     spoken(QStringLiteral("tap "), update.package.tap)}
      .join(QStringLiteral(", "));
}

}  // namespace quillmere
