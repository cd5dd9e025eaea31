#pragma once

#include <memory>
#include <vector>

#include "guidance/InstalledPackageSummary.h"
#include "screens/components/ReplaceableListModel.h"

namespace quillmere {

using InstalledPackagesPtr = std::shared_ptr<const std::vector<InstalledPackageSummary>>;

/// Rows of the local inventory, as places in the shared list: their texts are made when a row comes
/// into view. Owned by `InstalledPackagesViewModel`; UI thread only.
class InstalledPackageListModel : public quillmere::ReplaceableListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    NameRole = Qt::UserRole,
    KindRole,
    InstalledVersionRole,
    LatestKnownVersionRole,
    /// The description, or how the package came to be installed where there is none.
    DescriptionRole,
    AccessibleLabelRole,
  };

  using ReplaceableListModel::ReplaceableListModel;

  /// Shows the packages at these places of `packages`, which may be null only where there are none.
  void setPackages(InstalledPackagesPtr packages, std::vector<std::size_t> places);

  /// The package in this row, which there must be.
  [[nodiscard]] const InstalledPackageSummary& package(int row) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  InstalledPackagesPtr packages_;
  std::vector<std::size_t> places_;
};

/// What a screen reader says of an installed package: what is not known is left out.
[[nodiscard]] QString accessibleLabel(const InstalledPackageSummary& package);

}  // namespace quillmere
