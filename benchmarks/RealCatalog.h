#pragma once

#include <QtCore/QByteArray>

namespace quillmere {

struct CatalogBytes {
  QByteArray formulae;
  QByteArray casks;

  [[nodiscard]] bool isEmpty() const { return formulae.isEmpty() || casks.isEmpty(); }

  [[nodiscard]] qint64 size() const { return formulae.size() + casks.size(); }
};

/// The catalog documents as Homebrew writes them, as they come out of the cache; empty where they
/// or `xz` are not at hand. The environment variable QUILLMERE_REAL_DATA names their folder.
[[nodiscard]] const CatalogBytes& realCatalog();

/// The real documents, or, where they are not at hand, made-up ones of as many packages.
[[nodiscard]] const CatalogBytes& catalogAtHand();

/// As many made-up packages, `times` over.
[[nodiscard]] CatalogBytes generatedCatalog(int times);

/// The floor of every decoding: the document is parsed and nothing of it kept.
void parsePlainly(const QByteArray& document);

}  // namespace quillmere
