#pragma once

#include <QtCore/QString>

#include <array>
#include <optional>
#include <simdjson.h>
#include <span>
#include <string_view>
#include <vector>

#include "platform/SharedText.h"
#include "platform/UrlText.h"

namespace quillmere {

/// What the decoding of one document hands from record to record.
struct DecodingContext {
  struct Problem {
    /// With the keys of the objects around it, "versions.stable".
    QString key;
    /// The end of a sentence that begins with the key: "is missing".
    QString text;
  };

  SharedTextBuilder texts;
  /// The first one of the record at hand.
  std::optional<Problem> problem;
};

/// The fields of one JSON object, asked for by key and type; keys that nobody asks for are passed
/// over, and of a key that stands twice the last one counts. A field that is not what was asked
/// for leaves a problem in the context and gives an empty value, so that a record is read as the
/// plain list of its fields and looked over for a problem once, at the end.
///
/// Made on the stack for one object, on the thread that decodes; the parsed document, the keys and
/// the context outlive it.
class RecordFields {
 public:
  static constexpr std::size_t maximumKeys = 8;

  /// `keys` are all that will be asked for; `path` stands before a key that has a problem.
  template <std::size_t KeyCount>
    requires(KeyCount <= maximumKeys)
  RecordFields(const simdjson::dom::object& object,
               const std::array<std::string_view, KeyCount>& keys, DecodingContext& context,
               QLatin1StringView path = {})
      : RecordFields(object, std::span<const std::string_view>(keys), context, path) {}

  [[nodiscard]] SharedText requiredText(std::string_view key);
  [[nodiscard]] std::optional<simdjson::dom::object> requiredObject(std::string_view key);

  // Absent or empty when the key is missing or its value null.
  [[nodiscard]] std::optional<SharedText> optionalText(std::string_view key);
  /// For a text that other records are likely to hold as well.
  [[nodiscard]] std::optional<SharedText> optionalInternedText(std::string_view key);
  [[nodiscard]] std::optional<UrlText> optionalUrl(std::string_view key);
  /// Common texts as well.
  [[nodiscard]] std::vector<SharedText> optionalTexts(std::string_view key);
  [[nodiscard]] std::optional<simdjson::dom::array> optionalArray(std::string_view key);
  /// Anything but null.
  [[nodiscard]] std::optional<simdjson::dom::element> optionalValue(std::string_view key) const;

  /// Notes that `key` holds `found` where `wanted` belongs, at a place of its array if there is
  /// one.
  void noteWrongType(std::string_view key, const simdjson::dom::element& found,
                     QLatin1StringView wanted, std::optional<std::size_t> index = {});

 private:
  using Field = std::optional<simdjson::dom::element>;

  RecordFields(const simdjson::dom::object& object, std::span<const std::string_view> keys,
               DecodingContext& context, QLatin1StringView path);

  [[nodiscard]] Field field(std::string_view key) const;
  [[nodiscard]] std::optional<std::string_view> text(std::string_view key, const Field& value);
  void note(std::string_view key, const QString& problem);

  std::span<const std::string_view> keys_;
  std::array<Field, maximumKeys> fields_;
  DecodingContext& context_;
  QLatin1StringView path_;
};

/// What a value is, for a sentence: "a number".
[[nodiscard]] QLatin1StringView jsonTypeName(const simdjson::dom::element& value);

}  // namespace quillmere
