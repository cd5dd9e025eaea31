#include "screens/package/PackageDetailViewModel.h"

#include <utility>

#include "guidance/FreshnessIndicator.h"
#include "platform/SanitizedText.h"
#include "platform/WebUrl.h"
#include "screens/shared/PackageTarget.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

QString listed(const std::optional<SharedText>& value) {
  return value && !value->isEmpty() ? sanitizedText(*value)
                                    : PackageDetailViewModel::notListedText();
}

QStringList strings(const std::vector<SharedText>& texts) {
  QStringList result;
  result.reserve(static_cast<qsizetype>(texts.size()));
  for (const SharedText& text : texts) {
    result += sanitizedText(text);
  }
  return result;
}

}  // namespace

PackageDetailViewModel::PackageDetailViewModel(Inputs inputs, PreviewCallback previewCallback,
                                               Clock clock, UrlOpener openUrl, QObject* parent)
    : QObject(parent),
      inputs_(std::move(inputs)),
      previewCallback_(std::move(previewCallback)),
      clock_(std::move(clock)),
      openUrl_(std::move(openUrl)),
      commands_(packageCommands(inputs_.package.kind, inputs_.package.id)) {
}

void PackageDetailViewModel::update(Inputs inputs) {
  if (inputs == inputs_) {
    return;
  }
  const Inputs previous = std::exchange(inputs_, std::move(inputs));
  Q_EMIT changed();
  if (previous.package.detailItems != inputs_.package.detailItems ||
      previous.reverseDependencyNames != inputs_.reverseDependencyNames) {
    Q_EMIT listsChanged();
  }
}

QString PackageDetailViewModel::name() const {
  return sanitizedText(inputs_.package.name);
}

QString PackageDetailViewModel::kindText() const {
  return displayLabel(inputs_.package.kind);
}

QString PackageDetailViewModel::versionText() const {
  return sanitizedText(inputs_.package.version.value_or(SharedText()));
}

QString PackageDetailViewModel::descriptionText() const {
  const auto& description = inputs_.package.description;
  return description && !description->isEmpty()
             ? sanitizedText(*description)
             : u"No description is available for this package."_s;
}

QString PackageDetailViewModel::notListedText() {
  return u"Not listed"_s;
}

QString PackageDetailViewModel::latestKnownText() const {
  return listed(inputs_.package.version);
}

QString PackageDetailViewModel::headVersionText() const {
  return listed(inputs_.package.alternateVersion);
}

QString PackageDetailViewModel::homepageText() const {
  const auto& homepage = inputs_.package.homepage;
  return homepage ? sanitizedText(homepage->text()) : notListedText();
}

QString PackageDetailViewModel::licenseText() const {
  return listed(inputs_.package.license);
}

QString PackageDetailViewModel::tapText() const {
  return listed(inputs_.package.tap);
}

bool PackageDetailViewModel::canOpenHomepage() const {
  return inputs_.package.homepage && isWebUrl(inputs_.package.homepage->url());
}

QString PackageDetailViewModel::installedVersionText() const {
  if (!inputs_.installedPackage) {
    return u"Not installed or unknown"_s;
  }
  const auto& versions = inputs_.installedPackage->installedVersions;
  if (!versions.empty()) {
    return sanitizedText(strings(versions).join(", "_L1));
  }
  const auto& version = inputs_.installedPackage->installedVersion;
  return version ? sanitizedText(*version) : u"Unknown"_s;
}

QString PackageDetailViewModel::localSourceText() const {
  if (inputs_.installedPackage) {
    return sanitizedText(inputs_.installedPackage->detail);
  }
  return inputs_.hasInventory ? u"Not found in local scan"_s : u"No local package record"_s;
}

bool PackageDetailViewModel::isFormula() const {
  return inputs_.package.kind == HomebrewPackageSummary::Kind::formula;
}

QString PackageDetailViewModel::detailTitle() const {
  return isFormula() ? u"Dependencies"_s : u"Artifacts"_s;
}

QString PackageDetailViewModel::detailSymbolName() const {
  return isFormula() ? u"doc.text.magnifyingglass"_s : u"point.3.connected.trianglepath.dotted"_s;
}

QString PackageDetailViewModel::detailText() const {
  if (!inputs_.package.detailItems.empty()) {
    return {};
  }
  return isFormula() ? u"No dependencies are listed in the available metadata."_s
                     : u"No cask artifacts are listed in the available metadata."_s;
}

QStringList PackageDetailViewModel::detailItems() const {
  return strings(inputs_.package.detailItems);
}

QString PackageDetailViewModel::reverseDependencyText() const {
  if (!inputs_.reverseDependencyNames) {
    return inputs_.reverseDependencyUnavailableText;
  }
  return inputs_.reverseDependencyNames->empty()
             ? u"No formulae in the loaded catalog list this package as a dependency."_s
             : u"Formulae in the loaded catalog that list this package as a dependency:"_s;
}

QStringList PackageDetailViewModel::reverseDependencyNames() const {
  return inputs_.reverseDependencyNames ? strings(*inputs_.reverseDependencyNames) : QStringList();
}

QString PackageDetailViewModel::catalogFreshnessText() const {
  return catalogFreshness(inputs_.catalogLastRefreshDate, clock_()).longText(u"Catalog metadata"_s);
}

QString PackageDetailViewModel::inventoryFreshnessText() const {
  return inventoryFreshness(inputs_.localInventoryLastScanDate, clock_())
      .longText(u"Local inventory"_s);
}

QString PackageDetailViewModel::commandsText() const {
  return commands_.rowCount() == 0
             ? u"Command previews are unavailable because this package identifier is not "
               "recognized."_s
             : u"Preview exact Homebrew commands before copying or running approved actions from "
               "the selected prefix. Mutating actions require confirmation; uninstall remains "
               "preview-only."_s;
}

void PackageDetailViewModel::openHomepage() {
  const auto& homepage = inputs_.package.homepage;
  if (!homepage || !isWebUrl(homepage->url())) {
    return;
  }
  const bool opened = openUrl_(homepage->url());
  homepageProblem_ =
      opened ? QString() : u"No browser could be opened. Copy the address instead."_s;
  Q_EMIT homepageProblemChanged();
}

void PackageDetailViewModel::reportUnknownFormula(const QString& name) {
  formulaProblem_ = name + " is not in the loaded catalog."_L1;
  Q_EMIT formulaProblemChanged();
}

void PackageDetailViewModel::previewCommand(int row) {
  if (const BrewCommand* const command = commands_.command(row)) {
    previewCallback_(*command, inputs_.sourceScreen);
  }
}

}  // namespace quillmere
