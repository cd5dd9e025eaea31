#pragma once

#include <QtCore/QCollator>
#include <QtCore/QString>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace quillmere {

/// How names and versions are ordered, everywhere: by the rules of a language, without regard to
/// case, and with the numbers in them by value, so that "1.9" comes before "1.10". Case follows the
/// language as well: to a Turkish reader the capital of "i" is not "I".
///
/// The C locale orders by character codes and knows neither case nor numbers; a fixed language
/// stands in for it. Make one per thread: the collator underneath is not for sharing.
class NameOrdering {
 public:
  explicit NameOrdering(const QLocale& locale);

  /// The ordering of the user's language, as it was when the calling thread first asked; it stays
  /// the thread's.
  [[nodiscard]] static const NameOrdering& ofUser();

  /// Negative, zero or positive as `left` comes before, with or after `right`.
  [[nodiscard]] int compare(QStringView left, QStringView right) const;
  /// What the comparison needs to know of `name`, for comparing it often.
  [[nodiscard]] QCollatorSortKey sortKey(const QString& name) const;

  /// Sorts `items` by what `nameOf(item)` gives as a `QString`, asked once for each; those that are
  /// equal keep their order.
  template <typename T, typename NameOf>
  void stableSort(std::vector<T>& items, const NameOf& nameOf) const {
    std::vector<QCollatorSortKey> keys;
    keys.reserve(items.size());
    for (const T& item : items) {
      keys.push_back(sortKey(nameOf(item)));
    }
    std::vector<std::size_t> order(items.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&keys](std::size_t left, std::size_t right) {
      return keys[left].compare(keys[right]) < 0;
    });
    std::vector<T> sorted;
    sorted.reserve(items.size());
    for (const std::size_t index : order) {
      sorted.push_back(std::move(items[index]));
    }
    items = std::move(sorted);
  }

 private:
  QCollator collator_;
};

}  // namespace quillmere
