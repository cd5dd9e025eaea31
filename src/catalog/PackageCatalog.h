#pragma once

#include <QtCore/QByteArray>

#include <expected>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "catalog/CatalogDecodingError.h"
#include "catalog/HomebrewPackageSummary.h"
#include "catalog/PackageSearchIndex.h"
#include "catalog/ReverseDependencies.h"

namespace quillmere {

/// The catalog in memory: its rows in the order of the documents, with what makes searching them
/// and asking for dependants instant. Made whole, off the UI thread; immutable afterwards and
/// shared by all that show it.
class PackageCatalog {
 public:
  PackageCatalog() = default;
  /// Takes the rows and makes the indices, in some ten milliseconds for the real catalog.
  explicit PackageCatalog(std::vector<HomebrewPackageSummary> packages);
  PackageCatalog(PackageCatalog&&) noexcept = default;
  PackageCatalog& operator=(PackageCatalog&&) noexcept = default;
  // The index refers to texts of the rows, which a copy would share: there is just no need for one.
  PackageCatalog(const PackageCatalog&) = delete;
  PackageCatalog& operator=(const PackageCatalog&) = delete;
  ~PackageCatalog() = default;

  /// The catalogs of the two documents, which are decoded side by side, as one: all formulae, then
  /// all casks.
  [[nodiscard]] static PackageCatalog joined(PackageCatalog formulae, PackageCatalog casks);

  [[nodiscard]] const std::vector<HomebrewPackageSummary>& packages() const { return packages_; }

  /// The package of this identity; null where the catalog has none.
  [[nodiscard]] const HomebrewPackageSummary* package(const SharedText& id) const;
  /// The formula of this name; null where the catalog has none.
  [[nodiscard]] const HomebrewPackageSummary* formula(std::string_view name) const;

  [[nodiscard]] const PackageSearchIndex& searchIndex() const { return searchIndex_; }

  /// The names of the formulae that depend on `package`, in the order of their characters and
  /// without its own; absent for a cask, on which nothing is known to depend.
  [[nodiscard]] std::optional<std::vector<SharedText>> reverseDependencyNames(
      const HomebrewPackageSummary& package) const;

  friend bool operator==(const PackageCatalog& left, const PackageCatalog& right) {
    return left.packages_ == right.packages_;
  }

 private:
  std::vector<HomebrewPackageSummary> packages_;
  PackageSearchIndex searchIndex_;
  ReverseDependencies reverseDependencies_;
};

using PackageCatalogPtr = std::shared_ptr<const PackageCatalog>;

/// Catalog documents as they come from the server or the cache; one that was not asked for is
/// absent.
struct CatalogDocuments {
  std::optional<QByteArray> formulae;
  std::optional<QByteArray> casks;
};

/// The catalog of the documents that are there, decoded side by side where both are. What is wrong
/// with the formulae comes before what is wrong with the casks. Slow; any thread.
[[nodiscard]] std::expected<PackageCatalogPtr, CatalogDecodingError> decodeCatalog(
    const CatalogDocuments& documents);

}  // namespace quillmere
