#include "catalog/DynamicCodingKey.h"

#include <simdjson.h>

namespace quillmere {

std::optional<DynamicCodingKey> DynamicCodingKey::firstOf(const simdjson::dom::object& object) {
  const auto first = object.begin();
  return first == object.end()
             ? std::nullopt
             : std::optional(DynamicCodingKey{.stringValue = first.key(), .intValue = {}});
}

}  // namespace quillmere
