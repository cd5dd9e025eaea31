#pragma once

#include <vector>

#include "catalog/PackageCatalog.h"
#include "screens/components/ReplaceableListModel.h"

namespace quillmere {

/// Rows of the catalog, as places in the shared snapshot: their texts are made when a row comes
/// into view. Owned by `FormulaCatalogViewModel`; UI thread only.
class PackageListModel : public quillmere::ReplaceableListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    NameRole = Qt::UserRole,
    KindRole,
    VersionRole,
    DescriptionRole,
    AccessibleLabelRole,
  };

  using ReplaceableListModel::ReplaceableListModel;

  /// Shows the packages at these places of `catalog`, which may be null only where there are none.
  void setPackages(PackageCatalogPtr catalog, std::vector<std::size_t> places);

  /// The package in this row, which there must be.
  [[nodiscard]] const HomebrewPackageSummary& package(int row) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  PackageCatalogPtr catalog_;
  std::vector<std::size_t> places_;
};

/// What a screen reader says of a package of the catalog.
[[nodiscard]] QString accessibleLabel(const HomebrewPackageSummary& package);

}  // namespace quillmere
