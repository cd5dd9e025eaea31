#pragma once

#include <QtCore/QByteArray>

#include <expected>
#include <vector>

#include "catalog/CatalogDecodingError.h"
#include "catalog/HomebrewCask.h"
#include "catalog/HomebrewFormula.h"

namespace quillmere {

/// Decode a whole catalog document: an array with one object per package. One faulty record fails
/// the document, and so does anything that is not JSON in UTF-8, in keys that are of no interest
/// too; so do numbers beyond 64 bits and values more than a thousand levels deep, which no catalog
/// has.
///
/// A document of thirty megabytes takes some fifty milliseconds and a hundred megabytes, which
/// are given back, so call these off the UI thread; they are pure and run side by side. A document
/// that has `parserPadding` of capacity behind it is not copied first.
[[nodiscard]] std::expected<std::vector<HomebrewFormula>, CatalogDecodingError> decodeFormulae(
    const QByteArray& document);
[[nodiscard]] std::expected<std::vector<HomebrewCask>, CatalogDecodingError> decodeCasks(
    const QByteArray& document);

/// The records without those whose name, or token, an earlier one has.
[[nodiscard]] std::vector<HomebrewFormula> withoutDuplicates(std::vector<HomebrewFormula> formulae);
[[nodiscard]] std::vector<HomebrewCask> withoutDuplicates(std::vector<HomebrewCask> casks);

}  // namespace quillmere
