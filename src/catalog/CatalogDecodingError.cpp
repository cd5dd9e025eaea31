#include "catalog/CatalogDecodingError.h"

#include <algorithm>

#include "platform/SanitizedText.h"

namespace quillmere {
namespace {

constexpr qsizetype longestExcerpt = 80;

}  // namespace

QString quotedExcerpt(const QString& text) {
  QString line = elidedText(text, longestExcerpt);
  std::ranges::replace_if(
      line, [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Control; },
      QChar(u' '));
  return u'"' + sanitizedText(line) + u'"';
}

QString CatalogDecodingError::description() const {
  QString sentence = document == Document::formulae ? QStringLiteral("The formula document")
                                                    : QStringLiteral("The cask document");
  if (index) {
    sentence += QStringLiteral("'s record at index %1").arg(*index);
    if (name) {
      sentence += QStringLiteral(", ") + quotedExcerpt(*name) + QStringLiteral(",");
    }
    if (key) {
      sentence += QStringLiteral(" is faulty: \"%1\"").arg(*key);
    }
  }
  return sentence + u' ' + problem + u'.';
}

}  // namespace quillmere
