#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

#include "prefix/HomebrewPrefixProbe.h"

namespace quillmere {

/// The rows of a prefix's report, one per well-known location. UI thread only.
class HomebrewPrefixLocationListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role {
    LabelRole = Qt::UserRole,
    RelativePathRole,
    StatusTextRole,
    TintRole,
    FoundAtTextRole
  };

  using QAbstractListModel::QAbstractListModel;

  /// Shows another report; none is an empty list.
  void setResults(std::vector<HomebrewPrefixProbeResult> results);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 private:
  std::vector<HomebrewPrefixProbeResult> results_;
};

}  // namespace quillmere
