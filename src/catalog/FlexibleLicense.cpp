#include "catalog/FlexibleLicense.h"

#include <optional>
#include <simdjson.h>
#include <string>

namespace quillmere {
namespace {

std::optional<std::string> joined(const simdjson::dom::array& array) {
  std::string text;
  bool first = true;
  for (const simdjson::dom::element element : array) {
    std::string_view part;
    if (element.get(part) != simdjson::SUCCESS) {
      return std::nullopt;
    }
    text.append(first ? "" : ", ").append(part);
    first = false;
  }
  return text;
}

}  // namespace

FlexibleLicense FlexibleLicense::fromJson(const simdjson::dom::element& json,
                                          SharedTextBuilder& texts) {
  std::string_view text;
  if (json.get(text) == simdjson::SUCCESS) {
    return {.value = texts.intern(text)};
  }
  simdjson::dom::array array;
  const auto list = json.get(array) == simdjson::SUCCESS ? joined(array) : std::nullopt;
  return {.value = texts.intern(list ? std::string_view(*list) : "Unknown")};
}

}  // namespace quillmere
