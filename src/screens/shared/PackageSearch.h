#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

#include "catalog/PackageCatalogFilter.h"

namespace quillmere {

/// What narrows a list of packages: a committed search text and a type. Owned by the view model of
/// the list, which searches anew when it changes; UI thread only.
class PackageSearch : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the view model of a list")
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY changed)
  Q_PROPERTY(QList<QString> filterTitles READ filterTitles CONSTANT)
  Q_PROPERTY(int filterIndex READ filterIndex WRITE setFilterIndex NOTIFY changed)

 public:
  using QObject::QObject;

  [[nodiscard]] const QString& searchText() const { return searchText_; }

  /// Commits a search.
  void setSearchText(const QString& text);

  Q_INVOKABLE void clear() { setSearchText(QString()); }

  [[nodiscard]] PackageCatalogFilter packageFilter() const { return packageFilter_; }

  void setPackageFilter(PackageCatalogFilter filter);

  // The types as the choices of a picker, in their order.
  [[nodiscard]] QStringList filterTitles() const;

  [[nodiscard]] int filterIndex() const { return static_cast<int>(packageFilter_); }

  void setFilterIndex(int index);

 Q_SIGNALS:
  void changed();

 private:
  QString searchText_;
  PackageCatalogFilter packageFilter_ = PackageCatalogFilter::all;
};

}  // namespace quillmere
