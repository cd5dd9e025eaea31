#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalog/HomebrewPackageSummary.h"

namespace quillmere {

/// The searched texts of a list of packages in searchable form: name, description, version, tap,
/// the word for the kind and the detail items of each. They stand in one piece, one after the
/// other, so that a search is one look through memory instead of a visit to a hundred thousand
/// texts. Made once per catalog, off the UI thread; an immutable value afterwards, any thread.
class PackageSearchIndex {
 public:
  PackageSearchIndex() = default;
  explicit PackageSearchIndex(std::span<const HomebrewPackageSummary> packages);

  /// Puts the packages of `other` behind those that are here.
  void append(const PackageSearchIndex& other);

  /// The position of the first package from `first` on that has `query`, which is in searchable
  /// form, within one of its texts; absent when there is none.
  [[nodiscard]] std::optional<std::size_t> find(std::string_view query, std::size_t first) const;

  /// All texts, for measuring what a search cannot be faster than.
  [[nodiscard]] std::string_view text() const { return text_; }

 private:
  void add(std::string_view field);

  /// Each field ends in a byte that no text holds, so that no match reaches from one into another.
  std::string text_;
  /// Where the text of each package ends.
  std::vector<std::uint32_t> ends_;
};

}  // namespace quillmere
