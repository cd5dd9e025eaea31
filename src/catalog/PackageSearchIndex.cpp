#include "catalog/PackageSearchIndex.h"

#include <QtCore/QtGlobal>

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/TextMatching.h"

namespace quillmere {
namespace {

/// Never part of UTF-8.
constexpr char fieldEnd = '\xFF';

}  // namespace

PackageSearchIndex::PackageSearchIndex(std::span<const HomebrewPackageSummary> packages) {
  constexpr std::size_t usualLength = 128;
  text_.reserve(packages.size() * usualLength);
  ends_.reserve(packages.size());
  for (const HomebrewPackageSummary& package : packages) {
    add(package.name.view());
    for (const auto* field : {&package.description, &package.version, &package.tap}) {
      if (*field) {
        add((*field)->view());
      }
    }
    add(std::string_view(displayLabel(package.kind)));
    for (const SharedText& item : package.detailItems) {
      add(item.view());
    }
    Q_ASSERT(text_.size() <= std::numeric_limits<std::uint32_t>::max());
    ends_.push_back(static_cast<std::uint32_t>(text_.size()));
  }
  text_.shrink_to_fit();
}

void PackageSearchIndex::add(std::string_view field) {
  appendSearchableForm(text_, field);
  text_ += fieldEnd;
}

void PackageSearchIndex::append(const PackageSearchIndex& other) {
  const auto shift = static_cast<std::uint32_t>(text_.size());
  text_ += other.text_;
  ends_.reserve(ends_.size() + other.ends_.size());
  std::ranges::transform(other.ends_, std::back_inserter(ends_),
                         [shift](std::uint32_t end) { return end + shift; });
}

std::optional<std::size_t> PackageSearchIndex::find(std::string_view query,
                                                    std::size_t first) const {
  if (first >= ends_.size()) {
    return std::nullopt;
  }
  const std::size_t begin = first == 0 ? 0 : ends_[first - 1];
  const auto* const match = static_cast<const char*>(
      memmem(text_.data() + begin, text_.size() - begin, query.data(), query.size()));
  if (match == nullptr) {
    return std::nullopt;
  }
  const auto offset = static_cast<std::uint32_t>(match - text_.data());
  const auto end =
      std::upper_bound(ends_.begin() + static_cast<std::ptrdiff_t>(first), ends_.end(), offset);
  return static_cast<std::size_t>(end - ends_.begin());
}

}  // namespace quillmere
