#pragma once

#include "catalog/JsonForward.h"
#include "platform/SharedText.h"

namespace quillmere {

/// What is kept of one artifact of a cask: the word that says what it is.
struct CaskArtifactSummary {
  SharedText label;

  bool operator==(const CaskArtifactSummary&) const = default;

  /// The label is the artifact's first key in the order of the document, which is its kind; what
  /// follows are options such as "target". An artifact without keys is an "artifact".
  [[nodiscard]] static CaskArtifactSummary fromJson(const simdjson::dom::object& json,
                                                    SharedTextBuilder& texts);
};

}  // namespace quillmere
