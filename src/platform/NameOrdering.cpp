#include "platform/NameOrdering.h"

#include <QtCore/QLocale>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace quillmere {
namespace {

QLocale languageOf(const QLocale& locale) {
  const bool hasLanguage =
      locale.language() != QLocale::C && locale.language() != QLocale::AnyLanguage;
  return hasLanguage ? locale : QLocale(QLocale::English, QLocale::UnitedStates);
}

bool isPrintableAscii(QStringView text) {
  return std::ranges::all_of(text, [](QChar c) { return c >= u' ' && c <= u'~'; });
}

/// Splits `order` into its longest ascending runs and returns the end of each. A run in strictly
/// descending order is reversed first.
template <typename ComesBefore>
std::vector<std::ptrdiff_t> endsOfRuns(std::vector<std::size_t>& order,
                                       const ComesBefore& comesBefore) {
  std::vector<std::ptrdiff_t> ends;
  for (auto begin = order.begin(); begin != order.end();) {
    const auto isNext = [&comesBefore](std::size_t left, std::size_t right) {
      return comesBefore(right, left);
    };
    auto end = std::adjacent_find(begin, order.end(), isNext);
    end = end == order.end() ? end : std::next(end);
    if (end == std::next(begin)) {
      const auto isNoLonger = [&comesBefore](std::size_t left, std::size_t right) {
        return !comesBefore(right, left);
      };
      end = std::adjacent_find(begin, order.end(), isNoLonger);
      end = end == order.end() ? end : std::next(end);
      std::reverse(begin, end);
    }
    begin = end;
    ends.push_back(end - order.begin());
  }
  return ends;
}

}  // namespace

NameOrdering::NameOrdering(const QLocale& locale) : collator_(languageOf(locale)) {
  collator_.setNumericMode(true);
  collator_.setCaseSensitivity(Qt::CaseInsensitive);
}

const NameOrdering& NameOrdering::forUserLocale() {
  thread_local const NameOrdering ordering{QLocale::system().collation()};
  return ordering;
}

int NameOrdering::compare(QStringView left, QStringView right) const {
  // QCollator::compare is not a strict weak ordering: in numeric mode some languages compare digits
  // of two scripts inconsistently, and an empty name differs from one that holds only characters
  // which the language ignores. Sort keys are consistent, but cost as much as several comparisons,
  // so they are used only where it matters.
  if (isPrintableAscii(left) && isPrintableAscii(right)) {
    return collator_.compare(left, right);
  }
  return sortKey(left.toString()).compare(sortKey(right.toString()));
}

QCollatorSortKey NameOrdering::sortKey(const QString& name) const {
  return collator_.sortKey(name);
}

std::vector<std::size_t> NameOrdering::stableOrder(const std::vector<QCollatorSortKey>& keys) {
  // A natural merge sort: lists come nearly in order and comparing keys is slow, so runs that are
  // in order already are only merged. std::stable_sort does not make use of such runs, and its
  // libstdc++ version does not build with clang without a warning.
  const auto comesBefore = [&keys](std::size_t left, std::size_t right) {
    return keys[left].compare(keys[right]) < 0;
  };
  std::vector<std::size_t> order(keys.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::vector<std::ptrdiff_t> ends = endsOfRuns(order, comesBefore);
  std::vector<std::size_t> merged(order.size());
  while (ends.size() > 1) {
    std::vector<std::ptrdiff_t> mergedEnds;
    std::ptrdiff_t begin = 0;
    for (std::size_t run = 0; run < ends.size(); run += 2) {
      const std::ptrdiff_t middle = ends[run];
      const std::ptrdiff_t end = run + 1 < ends.size() ? ends[run + 1] : middle;
      std::merge(order.begin() + begin, order.begin() + middle, order.begin() + middle,
                 order.begin() + end, merged.begin() + begin, comesBefore);
      mergedEnds.push_back(begin = end);
    }
    std::swap(order, merged);
    std::swap(ends, mergedEnds);
  }
  return order;
}

}  // namespace quillmere
