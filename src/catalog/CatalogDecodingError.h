#pragma once

#include <QtCore/QString>

#include <optional>

namespace quillmere {

/// Why a catalog document could not be decoded: the first thing that was wrong with it.
struct CatalogDecodingError {
  enum class Document { formulae, casks };

  Document document = Document::formulae;
  /// Of the faulty record, counted from zero; absent when the document as a whole is at fault.
  std::optional<std::size_t> index;
  /// The record's name or token, where it has one.
  std::optional<QString> name;
  /// The key at fault, with a dot between a key and one inside it; absent when the record as a
  /// whole is at fault.
  std::optional<QString> key;
  /// What was wrong, as the end of a sentence: "is missing".
  QString problem;

  bool operator==(const CatalogDecodingError&) const = default;

  /// One sentence for the user, on one line. What it quotes from the document is cut to a readable
  /// length.
  [[nodiscard]] QString description() const;
};

/// `text` in double quotes, on one line and no longer than a reader wants to see.
[[nodiscard]] QString quotedExcerpt(const QString& text);

}  // namespace quillmere
