#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "catalog/JsonForward.h"

namespace quillmere {

/// A key of an object whose keys are not known beforehand.
struct DynamicCodingKey {
  /// A view into the parsed document.
  std::string_view stringValue;
  /// The position of an element of an array; the keys of an object have none.
  std::optional<std::int64_t> intValue;

  bool operator==(const DynamicCodingKey&) const = default;

  /// The first key in the order of the document; absent for an object without keys.
  [[nodiscard]] static std::optional<DynamicCodingKey> firstOf(const simdjson::dom::object& object);
};

}  // namespace quillmere
