#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

#include "guidance/PackageUpdateSummary.h"

namespace quillmere {

/// The packages that look outdated, then those that a person must look at, each in the order of
/// their names. Texts are made for the rows in view only. Owned by `UpdatesViewModel`; UI thread
/// only.
class PackageUpdateListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    NameRole = Qt::UserRole,
    KindTextRole,
    StatusTextRole,
    TintRole,
    InstalledTextRole,
    LatestKnownTextRole,
    AccessibleLabelRole,
    UpgradeLabelRole,
    HeadingRole,
    NoteRole,
  };

  using QAbstractListModel::QAbstractListModel;

  /// Leaves out what is up to date.
  void setPackages(std::vector<PackageUpdateSummary> summaries);

  [[nodiscard]] int updateCount() const { return updateCount_; }

  [[nodiscard]] int reviewCount() const { return rowCount() - updateCount_; }

  [[nodiscard]] int upToDateCount() const { return upToDateCount_; }

  /// The package of a row; null where there is no such row.
  [[nodiscard]] const InstalledPackageSummary* package(int row) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  [[nodiscard]] QString heading(int row) const;

  std::vector<PackageUpdateSummary> rows_;
  int updateCount_ = 0;
  int upToDateCount_ = 0;
};

}  // namespace quillmere
