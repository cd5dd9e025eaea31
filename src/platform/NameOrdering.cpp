#include "platform/NameOrdering.h"

#include <QtCore/QLocale>

#include <numeric>

namespace quillmere {
namespace {

QLocale languageOf(const QLocale& locale) {
  const bool hasLanguage =
      locale.language() != QLocale::C && locale.language() != QLocale::AnyLanguage;
  return hasLanguage ? locale : QLocale(QLocale::English, QLocale::UnitedStates);
}

}  // namespace

NameOrdering::NameOrdering(const QLocale& locale) : collator_(languageOf(locale)) {
  collator_.setNumericMode(true);
  collator_.setCaseSensitivity(Qt::CaseInsensitive);
}

const NameOrdering& NameOrdering::ofUser() {
  thread_local const NameOrdering ordering{QLocale::system().collation()};
  return ordering;
}

int NameOrdering::compare(QStringView left, QStringView right) const {
  return collator_.compare(left, right);
}

QCollatorSortKey NameOrdering::sortKey(const QString& name) const {
  return collator_.sortKey(name);
}

std::vector<std::size_t> NameOrdering::stableOrder(const std::vector<QCollatorSortKey>& keys) {
  std::vector<std::size_t> order(keys.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  // With the place as the last word, nothing is equal; the library's own stable sort does not build
  // with clang without a warning.
  std::ranges::sort(order, [&keys](std::size_t left, std::size_t right) {
    const int compared = keys[left].compare(keys[right]);
    return compared < 0 || (compared == 0 && left < right);
  });
  return order;
}

}  // namespace quillmere
