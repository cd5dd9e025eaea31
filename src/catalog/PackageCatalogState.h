#pragma once

#include <QtCore/QString>

#include <variant>

#include "catalog/PackageCatalog.h"

namespace quillmere {

/// What there is of the catalog to show. A value; the catalog is shared and never changes.
struct PackageCatalogState {
  /// Nothing has been asked for yet.
  struct Idle {
    bool operator==(const Idle&) const = default;
  };

  struct Loading {
    /// What is being done, for the user.
    QString message;

    bool operator==(const Loading&) const = default;
  };

  struct Loaded {
    /// Never null.
    PackageCatalogPtr catalog;

    /// Whether the rows are the same, wherever they are kept.
    friend bool operator==(const Loaded& left, const Loaded& right) {
      return left.catalog == right.catalog || *left.catalog == *right.catalog;
    }
  };

  struct Failed {
    /// The sentence for the user.
    QString message;

    bool operator==(const Failed&) const = default;
  };

  std::variant<Idle, Loading, Loaded, Failed> value;

  bool operator==(const PackageCatalogState&) const = default;

  /// The catalog, if it is loaded; null otherwise.
  [[nodiscard]] PackageCatalogPtr catalog() const {
    const auto* const loaded = std::get_if<Loaded>(&value);
    return loaded != nullptr ? loaded->catalog : nullptr;
  }
};

}  // namespace quillmere
