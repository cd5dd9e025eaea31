#include "catalog/PackageCatalog.h"

#include <algorithm>
#include <future>
#include <iterator>
#include <utility>

#include "catalog/CatalogDecoding.h"

namespace quillmere {
namespace {

/// The catalog of one document; an empty one where there is no document.
template <auto Decode>
std::expected<PackageCatalog, CatalogDecodingError> catalogOf(
    const std::optional<QByteArray>& document) {
  if (!document) {
    return PackageCatalog();
  }
  auto records = Decode(*document);
  if (!records) {
    return std::unexpected(std::move(records).error());
  }
  return PackageCatalog(packageSummaries(*std::move(records)));
}

}  // namespace

PackageCatalog::PackageCatalog(std::vector<HomebrewPackageSummary> packages)
    : packages_(std::move(packages)), searchIndex_(packages_), reverseDependencies_(packages_) {
}

PackageCatalog PackageCatalog::joined(PackageCatalog formulae, PackageCatalog casks) {
  // The dependants' positions stay right, because the formulae stay where they are and casks
  // depend on nothing.
  formulae.packages_.reserve(formulae.packages_.size() + casks.packages_.size());
  std::ranges::move(casks.packages_, std::back_inserter(formulae.packages_));
  formulae.searchIndex_.append(casks.searchIndex_);
  return formulae;
}

const HomebrewPackageSummary* PackageCatalog::package(const SharedText& id) const {
  const auto found = std::ranges::find(packages_, id, &HomebrewPackageSummary::id);
  return found != packages_.end() ? &*found : nullptr;
}

const HomebrewPackageSummary* PackageCatalog::formula(std::string_view name) const {
  SharedTextBuilder texts;
  return package(packageId(HomebrewPackageSummary::Kind::formula, name, texts));
}

std::optional<std::vector<SharedText>> PackageCatalog::reverseDependencyNames(
    const HomebrewPackageSummary& package) const {
  if (package.kind != HomebrewPackageSummary::Kind::formula) {
    return std::nullopt;
  }
  std::vector<SharedText> names;
  for (const std::uint32_t position : reverseDependencies_.dependantsOf(package.name.view())) {
    const SharedText& name = packages_[position].name;
    if (name != package.name) {
      names.push_back(name);
    }
  }
  // Documents are sorted already, as a rule.
  if (!std::ranges::is_sorted(names, {}, &SharedText::view)) {
    std::ranges::sort(names, {}, &SharedText::view);
  }
  return names;
}

std::expected<PackageCatalogPtr, CatalogDecodingError> decodeCatalog(
    const CatalogDocuments& documents) {
  auto decodingCasks = std::async(std::launch::async, &catalogOf<decodeCasks>, documents.casks);
  auto formulae = catalogOf<decodeFormulae>(documents.formulae);
  auto casks = decodingCasks.get();
  if (!formulae) {
    return std::unexpected(std::move(formulae).error());
  }
  if (!casks) {
    return std::unexpected(std::move(casks).error());
  }
  return std::make_shared<const PackageCatalog>(
      PackageCatalog::joined(*std::move(formulae), *std::move(casks)));
}

}  // namespace quillmere
