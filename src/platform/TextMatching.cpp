#include "platform/TextMatching.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>

#include <algorithm>
#include <cstring>

namespace quillmere {
namespace {

bool isAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Not `tolower`, which asks the locale.
char lowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Without the marks that combine with the letter before them. A vowel sign that stands for a
/// sound of its own has no combining class and stays.
QString withoutDiacritics(const QString& text) {
  QList<uint> characters = text.normalized(QString::NormalizationForm_D).toUcs4();
  characters.removeIf([](uint character) {
    return QChar::category(character) == QChar::Mark_NonSpacing &&
           QChar::combiningClass(character) != 0;
  });
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()),
                           characters.size());
}

QString folded(const QString& text) {
  // Folding the case may bring marks of its own.
  return withoutDiacritics(withoutDiacritics(text).toCaseFolded())
      .normalized(QString::NormalizationForm_C);
}

}  // namespace

std::string searchableForm(std::string_view utf8) {
  std::string result;
  appendSearchableForm(result, utf8);
  return result;
}

std::string searchableForm(QStringView text) {
  return searchableForm(std::string_view(QByteArrayView(text.toUtf8())));
}

std::string searchableForm(QStringView text, const QLocale& locale) {
  return searchableForm(locale.toLower(text.toString()));
}

void appendSearchableForm(std::string& folded, std::string_view utf8) {
  if (isAscii(utf8)) {
    const std::size_t start = folded.size();
    folded.resize(start + utf8.size());
    std::ranges::transform(utf8, folded.begin() + static_cast<std::ptrdiff_t>(start), lowerAscii);
    return;
  }
  folded += quillmere::folded(QString::fromUtf8(utf8)).toStdString();
}

bool containsSearchable(std::string_view text, std::string_view query) {
  return query.empty() || memmem(text.data(), text.size(), query.data(), query.size()) != nullptr;
}

}  // namespace quillmere
