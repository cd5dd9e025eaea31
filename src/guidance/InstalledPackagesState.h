#pragma once

#include <QtCore/QString>

#include <algorithm>
#include <memory>
#include <variant>
#include <vector>

#include "guidance/InstalledPackageSummary.h"

namespace quillmere {

/// How far the program is with the local inventory. A value; the list is shared and never changes.
struct InstalledPackagesState {
  /// Nothing has been scanned yet.
  struct Idle {
    bool operator==(const Idle&) const = default;
  };

  /// No readable prefix has been selected.
  struct AccessNeeded {
    bool operator==(const AccessNeeded&) const = default;
  };

  struct Loading {
    bool operator==(const Loading&) const = default;
  };

  struct Loaded {
    /// Ordered by name; never null.
    std::shared_ptr<const std::vector<InstalledPackageSummary>> packages;

    /// Whether the lists are the same, wherever they are kept.
    friend bool operator==(const Loaded& left, const Loaded& right) {
      return left.packages == right.packages || *left.packages == *right.packages;
    }
  };

  struct Failed {
    /// The sentence for the user.
    QString message;

    bool operator==(const Failed&) const = default;
  };

  std::variant<Idle, AccessNeeded, Loading, Loaded, Failed> value;

  bool operator==(const InstalledPackagesState&) const = default;

  /// The packages, if they are loaded; null otherwise.
  [[nodiscard]] const std::vector<InstalledPackageSummary>* packages() const {
    const auto* const loaded = std::get_if<Loaded>(&value);
    return loaded != nullptr ? loaded->packages.get() : nullptr;
  }

  /// The installed package of this identity; null where none is known.
  [[nodiscard]] const InstalledPackageSummary* package(const SharedText& id) const {
    const auto* const all = packages();
    if (all == nullptr) {
      return nullptr;
    }
    const auto found = std::ranges::find(*all, id, &InstalledPackageSummary::id);
    return found != all->end() ? &*found : nullptr;
  }
};

}  // namespace quillmere
