#include "screens/updates/UpdatesViewModel.h"

#include <utility>

#include "commands/BrewCommandBuilder.h"
#include "guidance/FreshnessIndicator.h"
#include "platform/Plural.h"
#include "platform/SanitizedText.h"
#include "screens/shared/PackageTarget.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

constexpr auto sourceScreen = "Updates"_L1;

QString idleText(const std::optional<QString>& prefix) {
  return prefix ? "Selected prefix: "_L1 + *prefix +
                      ". Scan local packages in read-only mode to compare installed versions with "
                      "latest-known metadata."_L1
                : u"Select a Homebrew prefix before deriving update guidance."_s;
}

QString noUpdatesText(int reviewCount) {
  return reviewCount > 0
             ? "No comparable outdated packages were found. "_L1 +
                   pluralized(reviewCount, u"package"_s) +
                   " have missing, newer, or non-comparable version data."_L1
             : u"All comparable installed packages match the latest-known catalog versions. This "
               "is based on cached/public metadata, not live brew output."_s;
}

}  // namespace

UpdatesViewModel::UpdatesViewModel(PreviewCallback previewCallback, Clock clock, QObject* parent)
    : LocalInventoryViewModel(std::move(clock), parent),
      previewCallback_(std::move(previewCallback)) {
}

void UpdatesViewModel::applyInputs(const LocalInventoryInputs& previous) {
  // A scan reports its progress many times a second: only another list is worth comparing again.
  if (!(inputs().state == previous.state)) {
    upgradeProblem_.clear();
    const auto* const packages = inputs().state.packages();
    packages_.setPackages(packages != nullptr ? packageUpdateSummaries(*packages)
                                              : std::vector<PackageUpdateSummary>());
  }
}

QString UpdatesViewModel::spokenResult() const {
  return "Scan finished. "_L1 + updatesText() + ", "_L1 + reviewText();
}

QString UpdatesViewModel::title() const {
  switch (phase()) {
    case Idle:
      return u"Scan For Updates"_s;
    case AccessNeeded:
      return u"Local Access Needed"_s;
    case Loading:
      return u"Scanning installed packages before deriving update guidance..."_s;
    case Failed:
      return u"Could Not Derive Updates"_s;
    case Loaded:
      break;
  }
  return reviewCount() > 0 ? u"No Comparable Updates Found"_s : u"No Updates Found"_s;
}

QString UpdatesViewModel::text() const {
  switch (phase()) {
    case Idle:
      return idleText(inputs().selectedPrefixPath);
    case AccessNeeded:
      return u"Update guidance needs read-only local inventory plus latest-known public catalog "
             "metadata. Quillmere Direct can run approved update and upgrade commands after prefix "
             "selection and required confirmation."_s;
    case Loading:
      return {};
    case Failed:
      return failure();
    case Loaded:
      break;
  }
  return noUpdatesText(reviewCount());
}

QString UpdatesViewModel::symbolName() const {
  switch (phase()) {
    case Failed:
      return u"externaldrive.badge.exclamationmark"_s;
    case Loaded:
      // Without a catalog, or with an older one, nothing says that all is well.
      if (inputs().catalogLastRefreshDate && rescanWarning().isEmpty()) {
        return u"checkmark.circle"_s;
      }
      break;
    case Idle:
    case AccessNeeded:
    case Loading:
      break;
  }
  return u"arrow.triangle.2.circlepath"_s;
}

QString UpdatesViewModel::scanTitle() const {
  switch (phase()) {
    case Idle:
      return u"Scan Read-Only Inventory"_s;
    case Failed:
      return u"Scan"_s;
    case AccessNeeded:
    case Loading:
    case Loaded:
      break;
  }
  return u"Scan Again"_s;
}

QString UpdatesViewModel::catalogFreshnessText() const {
  return catalogFreshness(inputs().catalogLastRefreshDate, now())
      .longText(u"Latest-known catalog metadata"_s);
}

QString UpdatesViewModel::sourcesText() const {
  const QDateTime date = now();
  return inventoryFreshness(inputs().lastScanDate, date).shortText(u"Local inventory"_s) +
         u"  \u00b7  "_s +
         catalogFreshness(inputs().catalogLastRefreshDate, date)
             .shortText(u"Latest-known catalog metadata"_s);
}

QString UpdatesViewModel::updatesText() const {
  return pluralized(updateCount(), u"update"_s);
}

QString UpdatesViewModel::reviewText() const {
  return QString::number(reviewCount()) + " need review"_L1;
}

QString UpdatesViewModel::upToDateText() const {
  return QString::number(upToDateCount()) + " up to date"_L1;
}

void UpdatesViewModel::previewUpgrade(int row) {
  const InstalledPackageSummary* const package = packages_.package(row);
  if (package == nullptr) {
    return;
  }
  const auto target = packageTarget(package->kind, package->id);
  const auto command = target ? BrewCommandBuilder().upgrade(*target)
                              : BrewCommandBuilder::Result(std::unexpected(target.error()));
  upgradeProblem_ = command ? QString() : sanitizedText(command.error().description());
  Q_EMIT changed();
  if (command) {
    previewCallback_(*command, sourceScreen);
  } else {
    Q_EMIT announced(upgradeProblem_);
  }
}

void UpdatesViewModel::previewUpdate() {
  previewCallback_(BrewCommandBuilder().update(), sourceScreen);
}

}  // namespace quillmere
