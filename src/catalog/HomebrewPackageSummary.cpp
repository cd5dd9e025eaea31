#include "catalog/HomebrewPackageSummary.h"

#include <utility>

namespace quillmere {
namespace {

constexpr std::string_view leadOf(HomebrewPackageSummary::Kind kind) {
  return kind == HomebrewPackageSummary::Kind::formula ? "formula:" : "cask:";
}

HomebrewPackageSummary summaryOf(HomebrewFormula&& formula, SharedTextBuilder& texts) {
  return {
      .id = packageId(HomebrewPackageSummary::Kind::formula, formula.name.view(), texts),
      .kind = HomebrewPackageSummary::Kind::formula,
      .name = std::move(formula.name),
      .description = std::move(formula.description),
      .version = std::move(formula.versions.stable),
      .alternateVersion = std::move(formula.versions.head),
      .homepage = std::move(formula.homepage),
      .license = std::move(formula.license),
      .tap = std::move(formula.tap),
      .detailItems = std::move(formula.dependencies),
  };
}

HomebrewPackageSummary summaryOf(HomebrewCask&& cask, SharedTextBuilder& texts) {
  return {
      .id = packageId(HomebrewPackageSummary::Kind::cask, cask.token.view(), texts),
      .kind = HomebrewPackageSummary::Kind::cask,
      .name = displayName(cask),
      .description = std::move(cask.description),
      .version = std::move(cask.version),
      .alternateVersion = std::nullopt,
      .homepage = std::move(cask.homepage),
      .license = std::nullopt,
      .tap = std::move(cask.tap),
      .detailItems = std::move(cask.artifacts),
  };
}

template <typename Record>
std::vector<HomebrewPackageSummary> summariesOf(std::vector<Record>&& records) {
  SharedTextBuilder texts;
  std::vector<HomebrewPackageSummary> summaries;
  summaries.reserve(records.size());
  for (Record& record : records) {
    summaries.push_back(summaryOf(std::move(record), texts));
  }
  return summaries;
}

}  // namespace

SharedText packageId(HomebrewPackageSummary::Kind kind, std::string_view name,
                     SharedTextBuilder& texts) {
  return texts.add(leadOf(kind), name);
}

std::string_view nameInPackageId(HomebrewPackageSummary::Kind kind, const SharedText& id) {
  const std::string_view lead = leadOf(kind);
  std::string_view name = id.view();
  if (name.starts_with(lead)) {
    name.remove_prefix(lead.size());
  }
  return name;
}

const SharedText& displayName(const HomebrewCask& cask) {
  return cask.names.empty() ? cask.token : cask.names.front();
}

QLatin1StringView displayLabel(HomebrewPackageSummary::Kind kind) {
  return kind == HomebrewPackageSummary::Kind::formula ? QLatin1StringView("Formula")
                                                       : QLatin1StringView("Cask");
}

std::vector<HomebrewPackageSummary> packageSummaries(std::vector<HomebrewFormula> formulae) {
  return summariesOf(std::move(formulae));
}

std::vector<HomebrewPackageSummary> packageSummaries(std::vector<HomebrewCask> casks) {
  return summariesOf(std::move(casks));
}

}  // namespace quillmere
