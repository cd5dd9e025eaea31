#pragma once

namespace quillmere {

/// Which documents of the catalog a workflow is about.
enum class CatalogScope { all, formulae, casks };

[[nodiscard]] constexpr bool hasFormulae(CatalogScope scope) {
  return scope != CatalogScope::casks;
}

[[nodiscard]] constexpr bool hasCasks(CatalogScope scope) {
  return scope != CatalogScope::formulae;
}

}  // namespace quillmere
