#include "platform/SanitizedText.h"

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

/// Some ten lines of the widest window; the longest text of the public catalog has 181 characters.
constexpr qsizetype longestText = 2000;

/// The embeddings, overrides and isolates of the bidirectional algorithm.
bool turnsDirection(char16_t character) {
  return (character >= u'\u202A' && character <= u'\u202E') ||
         (character >= u'\u2066' && character <= u'\u2069');
}

QChar shownCharacter(QChar character) {
  const bool isControl = character.category() == QChar::Other_Control;
  if (character == u'\u2028' || character == u'\u2029' || (isControl && character.isSpace())) {
    return u' ';
  }
  return isControl || turnsDirection(character.unicode()) ? QChar(QChar::ReplacementCharacter)
                                                          : character;
}

}  // namespace

QString sanitizedText(QString text) {
  text = elidedText(std::move(text), longestText);
  const auto differs = [](QChar character) { return shownCharacter(character) != character; };
  // Looked at first: hardly any text has to be detached from its copies.
  if (std::ranges::any_of(std::as_const(text), differs)) {
    std::ranges::transform(text, text.begin(), shownCharacter);
  }
  return text;
}

QString sanitizedText(const SharedText& text) {
  return sanitizedText(text.toString());
}

QString elidedText(QString text, qsizetype limit) {
  if (text.size() > limit) {
    text.truncate(text[limit - 1].isHighSurrogate() ? limit - 1 : limit);
    text += QChar(u'\u2026');
  }
  return text;
}

}  // namespace quillmere
