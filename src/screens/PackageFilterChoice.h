#pragma once

#include <QtCore/QStringList>

#include "catalog/PackageCatalogFilter.h"

namespace quillmere {

/// The choices of a picker over `PackageCatalogFilter`, in its order.
[[nodiscard]] inline QStringList packageFilterTitles() {
  QStringList titles;
  for (const auto& filter : rawValues<PackageCatalogFilter>) {
    titles += filter.text;
  }
  return titles;
}

/// The place of `filter` among the choices.
[[nodiscard]] inline int packageFilterIndex(PackageCatalogFilter filter) {
  return static_cast<int>(filter);
}

/// The choice at this place, which there must be.
[[nodiscard]] inline PackageCatalogFilter packageFilterAt(int index) {
  return rawValues<PackageCatalogFilter>.at(static_cast<std::size_t>(index)).value;
}

}  // namespace quillmere
