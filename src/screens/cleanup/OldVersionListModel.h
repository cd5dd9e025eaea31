#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

#include "guidance/CleanupGuidance.h"

namespace quillmere {

/// The packages that keep old versions, in the order of their names. Owned by
/// `CleanupGuidanceViewModel`; UI thread only.
class OldVersionListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role { NameRole = Qt::UserRole, KindTextRole, VersionsTextRole, AccessibleLabelRole };

  using QAbstractListModel::QAbstractListModel;

  void setPackages(std::vector<CleanupGuidanceSummary::OldVersionPackage> packages);

  [[nodiscard]] const std::vector<CleanupGuidanceSummary::OldVersionPackage>& packages() const {
    return packages_;
  }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  std::vector<CleanupGuidanceSummary::OldVersionPackage> packages_;
};

}  // namespace quillmere
