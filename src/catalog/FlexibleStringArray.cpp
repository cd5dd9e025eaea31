#include "catalog/FlexibleStringArray.h"

#include <simdjson.h>

namespace quillmere {

FlexibleStringArray FlexibleStringArray::fromJson(const simdjson::dom::element& json,
                                                  SharedTextBuilder& texts) {
  std::string_view text;
  if (json.get(text) == simdjson::SUCCESS) {
    return {.values = {texts.add(text)}};
  }
  FlexibleStringArray result;
  simdjson::dom::array array;
  if (json.get(array) != simdjson::SUCCESS) {
    return result;
  }
  result.values.reserve(array.size());
  for (const simdjson::dom::element element : array) {
    if (element.get(text) != simdjson::SUCCESS) {
      return {};
    }
    result.values.push_back(texts.add(text));
  }
  return result;
}

}  // namespace quillmere
