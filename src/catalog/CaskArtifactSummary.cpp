#include "catalog/CaskArtifactSummary.h"

#include "catalog/DynamicCodingKey.h"

namespace quillmere {

CaskArtifactSummary CaskArtifactSummary::fromJson(const simdjson::dom::object& json,
                                                  SharedTextBuilder& texts) {
  const auto key = DynamicCodingKey::firstOf(json);
  return {.label = texts.intern(key ? key->stringValue : "artifact")};
}

}  // namespace quillmere
