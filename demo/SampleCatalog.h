#pragma once

#include <QtCore/QByteArray>

#include "screens/browse/CatalogInputs.h"
#include "screens/shared/LocalInventoryInputs.h"

namespace quillmere::demo {

/// Catalog documents with well-known packages, and with such as try a layout: without a description
/// or a version, with a name of 60 and a description of 300 characters, from right to left.
[[nodiscard]] QByteArray sampleFormulaDocument();
[[nodiscard]] QByteArray sampleCaskDocument();

/// Of a catalog that was loaded just now.
[[nodiscard]] CatalogInputs loadedCatalog(const CatalogDocuments& documents);

/// Of a prefix in which the packages of the demo documents are installed, some in versions that the
/// catalog has left behind, and some that it does not know.
[[nodiscard]] LocalInventoryInputs scannedInventory();

}  // namespace quillmere::demo
