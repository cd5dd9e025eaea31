#pragma once

#include "catalog/JsonForward.h"
#include "platform/SharedText.h"

namespace quillmere {

/// A licence as the catalog's generations have written it: a text, a list of texts, or a compound
/// expression as an object, which is not taken apart.
struct FlexibleLicense {
  SharedText value;

  bool operator==(const FlexibleLicense&) const = default;

  /// A list is joined with ", "; whatever is neither text nor list of texts gives "Unknown".
  [[nodiscard]] static FlexibleLicense fromJson(const simdjson::dom::element& json,
                                                SharedTextBuilder& texts);
};

}  // namespace quillmere
