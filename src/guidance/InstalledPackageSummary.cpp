#include "guidance/InstalledPackageSummary.h"

#include "platform/NameOrdering.h"

namespace quillmere {
namespace {

using InstallReason = InstalledFormula::InstallReason;

std::string_view detailOf(InstallReason reason) {
  switch (reason) {
    case InstallReason::direct:
      return "Installed on request";
    case InstallReason::dependency:
      return "Installed as dependency";
    case InstallReason::unknown:
      break;
  }
  return "Install reason unknown";
}

std::optional<SharedText> added(SharedTextBuilder& texts, const std::optional<QString>& text) {
  return text ? std::optional(texts.add(*text)) : std::nullopt;
}

std::vector<SharedText> added(SharedTextBuilder& texts, const QStringList& list) {
  std::vector<SharedText> result;
  result.reserve(static_cast<std::size_t>(list.size()));
  for (const QString& text : list) {
    result.push_back(texts.add(text));
  }
  return result;
}

InstalledPackageSummary summaryOf(const InstalledFormula& formula, SharedTextBuilder& texts) {
  InstalledPackageSummary summary;
  summary.name = texts.add(formula.name);
  summary.id = packageId(HomebrewPackageSummary::Kind::formula, summary.name.view(), texts);
  summary.kind = HomebrewPackageSummary::Kind::formula;
  summary.installedVersions = added(texts, formula.installedVersions);
  summary.installedVersion = added(texts, formula.currentVersion);
  summary.detail = texts.intern(detailOf(formula.installReason));
  if (const auto& known = formula.catalogFormula) {
    summary.description = known->description;
    summary.latestKnownVersion = known->versions.stable;
    summary.alternateVersion = known->versions.head;
    summary.homepage = known->homepage;
    summary.license = known->license;
    summary.tap = known->tap;
    summary.detailItems = known->dependencies;
  }
  return summary;
}

InstalledPackageSummary summaryOf(const InstalledCask& cask, SharedTextBuilder& texts) {
  const SharedText token = texts.add(cask.token);
  InstalledPackageSummary summary;
  summary.id = packageId(HomebrewPackageSummary::Kind::cask, token.view(), texts);
  summary.kind = HomebrewPackageSummary::Kind::cask;
  summary.installedVersions = added(texts, cask.installedVersions);
  summary.installedVersion = added(texts, cask.currentVersion);
  summary.detail = texts.add("Cask token: ", token.view());
  summary.name = cask.catalogCask ? displayName(*cask.catalogCask) : token;
  if (const auto& known = cask.catalogCask) {
    summary.description = known->description;
    summary.latestKnownVersion = known->version;
    summary.homepage = known->homepage;
    summary.tap = known->tap;
    summary.detailItems = known->artifacts;
  }
  return summary;
}

}  // namespace

HomebrewPackageSummary catalogSummary(const InstalledPackageSummary& package) {
  return {.id = package.id,
          .kind = package.kind,
          .name = package.name,
          .description = package.description,
          .version = package.latestKnownVersion,
          .alternateVersion = package.alternateVersion,
          .homepage = package.homepage,
          .license = package.license,
          .tap = package.tap,
          .detailItems = package.detailItems};
}

std::vector<InstalledPackageSummary> installedPackageSummaries(
    const std::vector<InstalledFormula>& formulae, const std::vector<InstalledCask>& casks) {
  SharedTextBuilder texts;
  std::vector<InstalledPackageSummary> summaries;
  summaries.reserve(formulae.size() + casks.size());
  for (const InstalledFormula& formula : formulae) {
    summaries.push_back(summaryOf(formula, texts));
  }
  for (const InstalledCask& cask : casks) {
    summaries.push_back(summaryOf(cask, texts));
  }
  NameOrdering::forUserLocale().stableSort(
      summaries, [](const InstalledPackageSummary& summary) { return summary.name.toString(); });
  return summaries;
}

bool comesBefore(const InstalledPackageSummary& left, const InstalledPackageSummary& right) {
  return NameOrdering::forUserLocale().compare(left.name.toString(), right.name.toString()) < 0;
}

}  // namespace quillmere
