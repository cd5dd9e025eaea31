#pragma once

#include <vector>

#include "catalog/JsonForward.h"
#include "platform/SharedText.h"

namespace quillmere {

/// A list of texts that may also be written as one text alone.
struct FlexibleStringArray {
  std::vector<SharedText> values;

  bool operator==(const FlexibleStringArray&) const = default;

  /// Empty for whatever is neither text nor list of texts.
  [[nodiscard]] static FlexibleStringArray fromJson(const simdjson::dom::element& json,
                                                    SharedTextBuilder& texts);
};

}  // namespace quillmere
