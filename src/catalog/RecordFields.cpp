#include "catalog/RecordFields.h"

#include <algorithm>

#include "catalog/CatalogDecodingError.h"

namespace quillmere {
namespace {

constexpr QLatin1StringView aText("a text");

}  // namespace

RecordFields::RecordFields(const simdjson::dom::object& object,
                           std::span<const std::string_view> keys, DecodingContext& context,
                           QLatin1StringView path)
    : keys_(keys), context_(context), path_(path) {
  for (const auto& [key, value] : object) {
    const auto known = std::ranges::find(keys_, key);
    if (known != keys_.end()) {
      fields_[static_cast<std::size_t>(known - keys_.begin())] = value;
    }
  }
}

SharedText RecordFields::requiredText(std::string_view key) {
  const Field value = field(key);
  if (!value) {
    note(key, QStringLiteral("is missing"));
    return {};
  }
  return context_.texts.add(text(key, value).value_or(std::string_view()));
}

std::optional<simdjson::dom::object> RecordFields::requiredObject(std::string_view key) {
  const Field value = field(key);
  if (!value) {
    note(key, QStringLiteral("is missing"));
    return std::nullopt;
  }
  simdjson::dom::object object;
  if (value->get(object) != simdjson::SUCCESS) {
    noteWrongType(key, *value, QLatin1StringView("an object"));
    return std::nullopt;
  }
  return object;
}

std::optional<SharedText> RecordFields::optionalText(std::string_view key) {
  const auto value = text(key, optionalValue(key));
  return value ? std::optional(context_.texts.add(*value)) : std::nullopt;
}

std::optional<SharedText> RecordFields::optionalInternedText(std::string_view key) {
  const auto value = text(key, optionalValue(key));
  return value ? std::optional(context_.texts.intern(*value)) : std::nullopt;
}

std::optional<UrlText> RecordFields::optionalUrl(std::string_view key) {
  const auto address = optionalText(key);
  if (!address) {
    return std::nullopt;
  }
  auto url = UrlText::fromText(*address);
  if (!url) {
    note(key,
         QStringLiteral("holds %1, which is not a URL").arg(quotedExcerpt(address->toString())));
  }
  return url;
}

std::vector<SharedText> RecordFields::optionalTexts(std::string_view key) {
  std::vector<SharedText> texts;
  const auto array = optionalArray(key);
  if (!array) {
    return texts;
  }
  texts.reserve(array->size());
  for (const simdjson::dom::element element : *array) {
    std::string_view text;
    if (element.get(text) != simdjson::SUCCESS) {
      noteWrongType(key, element, aText, texts.size());
      return {};
    }
    texts.push_back(context_.texts.intern(text));
  }
  return texts;
}

std::optional<simdjson::dom::array> RecordFields::optionalArray(std::string_view key) {
  const Field value = optionalValue(key);
  if (!value) {
    return std::nullopt;
  }
  simdjson::dom::array array;
  if (value->get(array) != simdjson::SUCCESS) {
    noteWrongType(key, *value, QLatin1StringView("an array"));
    return std::nullopt;
  }
  return array;
}

std::optional<simdjson::dom::element> RecordFields::optionalValue(std::string_view key) const {
  const Field value = field(key);
  return value && !value->is_null() ? value : std::nullopt;
}

void RecordFields::noteWrongType(std::string_view key, const simdjson::dom::element& found,
                                 QLatin1StringView wanted, std::optional<std::size_t> index) {
  const QString place = index ? QStringLiteral(" at index %1").arg(*index) : QString();
  note(key, QStringLiteral("holds %1%2 where %3 belongs").arg(jsonTypeName(found), place, wanted));
}

RecordFields::Field RecordFields::field(std::string_view key) const {
  const auto known = std::ranges::find(keys_, key);
  Q_ASSERT(known != keys_.end());
  return fields_[static_cast<std::size_t>(known - keys_.begin())];
}

std::optional<std::string_view> RecordFields::text(std::string_view key, const Field& value) {
  if (!value) {
    return std::nullopt;
  }
  std::string_view text;
  if (value->get(text) != simdjson::SUCCESS) {
    noteWrongType(key, *value, aText);
    return std::nullopt;
  }
  return text;
}

void RecordFields::note(std::string_view key, const QString& problem) {
  if (!context_.problem) {
    context_.problem = {.key = path_ + QString::fromUtf8(key), .text = problem};
  }
}

QLatin1StringView jsonTypeName(const simdjson::dom::element& value) {
  switch (value.type()) {
    case simdjson::dom::element_type::ARRAY:
      return QLatin1StringView("an array");
    case simdjson::dom::element_type::OBJECT:
      return QLatin1StringView("an object");
    case simdjson::dom::element_type::STRING:
      return aText;
    case simdjson::dom::element_type::BOOL:
      return QLatin1StringView("a truth value");
    case simdjson::dom::element_type::NULL_VALUE:
      return QLatin1StringView("null");
    default:
      return QLatin1StringView("a number");
  }
}

}  // namespace quillmere
