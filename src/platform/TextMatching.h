#pragma once

#include <QtCore/QLocale>
#include <QtCore/QStringView>

#include <string>
#include <string_view>

namespace quillmere {

/// Search that ignores case and diacritics, in no particular language: fold the text once, fold the
/// query once, and look for the one in the other. Folded texts are UTF-8. Pure; any thread.
///
/// Letters that only look like another with a mark, such as "ø", stay themselves, and
/// so does "ß".
[[nodiscard]] std::string searchableForm(std::string_view utf8);
[[nodiscard]] std::string searchableForm(QStringView text);

/// In the language of `locale`, whose small letters may be others: in Turkish "I" is found by "ı"
/// and not by "i". Text and query take the same locale.
[[nodiscard]] std::string searchableForm(QStringView text, const QLocale& locale);

/// Appends the searchable form to `folded`, without a text in between where `utf8` is ASCII.
void appendSearchableForm(std::string& folded, std::string_view utf8);

/// Whether `query` occurs in `text`, both in searchable form. The empty query occurs everywhere.
[[nodiscard]] bool containsSearchable(std::string_view text, std::string_view query);

}  // namespace quillmere
