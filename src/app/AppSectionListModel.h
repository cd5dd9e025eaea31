#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <array>

#include "app/AppSection.h"

namespace quillmere {

/// The sections of the sidebar, in order, some with a count of what is in them. UI thread only.
class AppSectionListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role { SectionRole = Qt::UserRole, TitleRole, SymbolNameRole, CountRole, CountTextRole };

  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// What stands beside a section: `text` says in words what is counted. Zero shows nothing.
  void setCount(AppSection section, int count, const QString& text);

 private:
  struct Count {
    int count = 0;
    QString text;

    bool operator==(const Count&) const = default;
  };

  std::array<Count, allAppSections.size()> counts_;
};

}  // namespace quillmere
