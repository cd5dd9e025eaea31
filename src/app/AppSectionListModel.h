#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The sections of the sidebar, in order. Never changes. UI thread only.
class AppSectionListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role { SectionRole = Qt::UserRole, TitleRole, SymbolNameRole };

  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

}  // namespace quillmere
