#include "screens/installed/InstalledPackagesViewModel.h"

#include <utility>

#include "guidance/FreshnessIndicator.h"
#include "platform/TextMatching.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Kind = HomebrewPackageSummary::Kind;

QString freshnessLabel() {
  return u"Inventory"_s;
}

bool passes(PackageCatalogFilter filter, Kind kind) {
  return filter == PackageCatalogFilter::all ||
         (filter == PackageCatalogFilter::formulae) == (kind == Kind::formula);
}

/// All that is known of a package, as one text. Addresses and other packages' names are left out:
/// they would make every other package match.
QString searchText(const InstalledPackageSummary& package) {
  QString text = package.name.toString() + u' ' + displayLabel(package.kind);
  for (const auto* const field :
       {&package.description, &package.installedVersion, &package.latestKnownVersion,
        &package.alternateVersion, &package.license, &package.tap}) {
    if (*field) {
      text += u' ' + (*field)->toString();
    }
  }
  return text + u' ' + package.detail.toString();
}

}  // namespace

std::vector<std::size_t> matchingPackages(const std::vector<InstalledPackageSummary>& packages,
                                          const QString& query, PackageCatalogFilter filter,
                                          const QLocale& locale) {
  const std::string sought = searchableForm(query, locale);
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < packages.size(); ++place) {
    const InstalledPackageSummary& package = packages[place];
    if (passes(filter, package.kind) &&
        (sought.empty() ||
         containsSearchable(searchableForm(searchText(package), locale), sought))) {
      places.push_back(place);
    }
  }
  return places;
}

QString scanInvitation(const std::optional<QString>& selectedPrefixPath) {
  return selectedPrefixPath ? "Selected prefix: "_L1 + *selectedPrefixPath +
                                  ". Scan local formula and cask directories in read-only mode."_L1
                            : u"Select a Homebrew prefix before scanning installed packages."_s;
}

InstalledPackagesViewModel::InstalledPackagesViewModel(Clock clock, QObject* parent)
    : LocalInventoryViewModel(std::move(clock), parent) {
  connect(&search_, &PackageSearch::changed, this, [this] {
    filter();
    notifyChanges();
  });
}

auto InstalledPackagesViewModel::state() const -> State {
  if (!inputs().selectedPrefixPath) {
    return NeedsAccess;
  }
  switch (phase()) {
    case AccessNeeded:
      return NeedsAccess;
    case Idle:
      return NotScanned;
    case Loading:
      return Scanning;
    case Failed:
      return ScanFailed;
    case Loaded:
      break;
  }
  if (inventory()->empty()) {
    return NothingInstalled;
  }
  return packages_.rowCount() == 0 ? NoMatch : Listed;
}

QString InstalledPackagesViewModel::symbolName() const {
  switch (state()) {
    case ScanFailed:
      return u"externaldrive.badge.exclamationmark"_s;
    case NoMatch:
      return u"magnifyingglass"_s;
    case NeedsAccess:
    case NotScanned:
    case Scanning:
    case NothingInstalled:
    case Listed:
      break;
  }
  return u"shippingbox"_s;
}

QString InstalledPackagesViewModel::title() const {
  switch (state()) {
    case NeedsAccess:
      return u"Local Access Needed"_s;
    case NotScanned:
      return u"Scan Installed Packages"_s;
    case Scanning:
      return u"Scanning selected Homebrew prefix..."_s;
    case ScanFailed:
      return u"Could Not Scan Installed Packages"_s;
    case NothingInstalled:
      return u"No Installed Packages Found"_s;
    case NoMatch:
      return u"No Installed Packages Match"_s;
    case Listed:
      return {};
  }
  Q_UNREACHABLE();
}

QString InstalledPackagesViewModel::text() const {
  switch (state()) {
    case NeedsAccess:
      return u"Installed packages require access to your selected Homebrew prefix. Quillmere scans "
             "local package metadata without writing to Homebrew files."_s;
    case NotScanned:
      return scanInvitation(inputs().selectedPrefixPath);
    case ScanFailed:
      return failure();
    case NothingInstalled:
      return u"Quillmere did not find readable formulae or casks in the selected prefix. Catalog "
             "browsing is still available."_s;
    case NoMatch:
      return u"Try a different search term or package type filter."_s;
    case Scanning:
    case Listed:
      return {};
  }
  Q_UNREACHABLE();
}

QString InstalledPackagesViewModel::summary() const {
  const auto packages = inventory();
  return packages ? u"Showing %1 of %2 packages"_s.arg(QString::number(packages_.rowCount()),
                                                       QString::number(packages->size()))
                  : QString();
}

QString InstalledPackagesViewModel::accessibleSummary() const {
  return summary() + " - "_L1 +
         inventoryFreshness(inputs().lastScanDate, now()).shortText(freshnessLabel());
}

QString InstalledPackagesViewModel::freshnessText() const {
  return inventoryFreshness(inputs().lastScanDate, now()).longText(freshnessLabel());
}

void InstalledPackagesViewModel::applyInputs(const LocalInventoryInputs& previous) {
  if (!(inputs().state == previous.state)) {
    filter();
  }
}

void InstalledPackagesViewModel::open(int row) {
  if (row >= 0 && row < packages_.rowCount()) {
    // A copy: whoever opens it may have the list changed.
    const InstalledPackageSummary package = packages_.package(row);
    Q_EMIT packageChosen(package);
  }
}

/// What was found, wherever else the screen is; null before.
InstalledPackagesPtr InstalledPackagesViewModel::inventory() const {
  const auto* const loaded = std::get_if<InstalledPackagesState::Loaded>(&inputs().state.value);
  return loaded != nullptr ? loaded->packages : nullptr;
}

void InstalledPackagesViewModel::filter() {
  const InstalledPackagesPtr packages = inventory();
  packages_.setPackages(packages, packages
                                      ? matchingPackages(*packages, search_.searchText().trimmed(),
                                                         search_.packageFilter())
                                      : std::vector<std::size_t>());
}

QString InstalledPackagesViewModel::spokenResult() const {
  return state() == Listed ? summary() : title();
}

}  // namespace quillmere
