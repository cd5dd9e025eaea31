#pragma once

#include <QtCore/QCollator>
#include <QtCore/QString>

#include <algorithm>
#include <utility>
#include <vector>

namespace quillmere {

/// How names and versions are ordered, everywhere: by the rules of a language, without regard to
/// case, and with the numbers in them by value, so that "1.9" comes before "1.10". Case follows the
/// language as well: to a Turkish reader the capital of "i" is not "I".
///
/// The C locale orders by character codes and knows neither case nor numbers, so American English
/// takes its place. Make one per thread: `QCollator` is not thread-safe.
class NameOrdering {
 public:
  explicit NameOrdering(const QLocale& locale);

  /// The ordering of the user's language, made when the calling thread first asks and kept for that
  /// thread.
  [[nodiscard]] static const NameOrdering& forUserLocale();

  /// Negative, zero or positive as `left` comes before, with or after `right`.
  [[nodiscard]] int compare(QStringView left, QStringView right) const;
  /// Faster than `compare` for a name that is compared many times.
  [[nodiscard]] QCollatorSortKey sortKey(const QString& name) const;

  /// Sorts `items` stably by `nameOf(item)`, which returns a `QString` and is called at most twice
  /// per item. If the items are in order already this costs one comparison per item.
  template <typename Items, typename NameOf>
  void stableSort(Items& items, const NameOf& nameOf) const {
    // Making a sort key costs as much as several comparisons, and most lists come in order.
    if (isInOrder(items, nameOf)) {
      return;
    }
    std::vector<QCollatorSortKey> keys;
    keys.reserve(static_cast<std::size_t>(items.size()));
    for (const auto& item : std::as_const(items)) {
      keys.push_back(sortKey(nameOf(item)));
    }
    Items sorted;
    sorted.reserve(items.size());
    for (const std::size_t index : stableOrder(keys)) {
      sorted.push_back(std::move(items[static_cast<decltype(items.size())>(index)]));
    }
    items = std::move(sorted);
  }

 private:
  template <typename Items, typename NameOf>
  [[nodiscard]] bool isInOrder(const Items& items, const NameOf& nameOf) const {
    QString previous;
    return std::ranges::all_of(items, [&](const auto& item) {
      const QString last = std::exchange(previous, nameOf(item));
      return compare(last, previous) <= 0;
    });
  }

  /// The indexes of `keys`, sorted stably by key.
  [[nodiscard]] static std::vector<std::size_t> stableOrder(
      const std::vector<QCollatorSortKey>& keys);

  QCollator collator_;
};

}  // namespace quillmere
