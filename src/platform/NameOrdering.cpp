#include "platform/NameOrdering.h"

#include <QtCore/QLocale>

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

}  // namespace quillmere
