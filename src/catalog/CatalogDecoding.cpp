#include "catalog/CatalogDecoding.h"

#include <simdjson.h>
#include <unordered_set>
#include <utility>

#include "catalog/CaskArtifactSummary.h"
#include "catalog/FlexibleLicense.h"
#include "catalog/FlexibleStringArray.h"
#include "catalog/RecordFields.h"
#include "platform/RegularFile.h"

namespace quillmere {
namespace {

using Document = CatalogDecodingError::Document;

HomebrewFormula::Versions versionsOf(const simdjson::dom::object& json, DecodingContext& context) {
  static constexpr auto keys = std::to_array<std::string_view>({"stable", "head"});
  RecordFields fields(json, keys, context, QLatin1StringView("versions."));
  return {.stable = fields.optionalText("stable"), .head = fields.optionalInternedText("head")};
}

HomebrewFormula::Versions versionsIn(RecordFields& fields, DecodingContext& context) {
  const auto json = fields.requiredObject("versions");
  return json ? versionsOf(*json, context) : HomebrewFormula::Versions();
}

std::optional<SharedText> licenseIn(const RecordFields& fields, DecodingContext& context) {
  const auto json = fields.optionalValue("license");
  return json ? std::optional(FlexibleLicense::fromJson(*json, context.texts).value) : std::nullopt;
}

std::vector<SharedText> namesIn(const RecordFields& fields, DecodingContext& context) {
  const auto json = fields.optionalValue("name");
  return json ? FlexibleStringArray::fromJson(*json, context.texts).values
              : std::vector<SharedText>();
}

std::vector<SharedText> artifactsIn(RecordFields& fields, DecodingContext& context) {
  std::vector<SharedText> labels;
  const auto array = fields.optionalArray("artifacts");
  if (!array) {
    return labels;
  }
  labels.reserve(array->size());
  for (const simdjson::dom::element element : *array) {
    simdjson::dom::object object;
    if (element.get(object) != simdjson::SUCCESS) {
      fields.noteWrongType("artifacts", element, QLatin1StringView("an object"), labels.size());
      return {};
    }
    labels.push_back(CaskArtifactSummary::fromJson(object, context.texts).label);
  }
  return labels;
}

/// What the decoding of both documents needs to know of a kind of record.
template <typename Record>
struct RecordKind;

template <>
struct RecordKind<HomebrewFormula> {
  static constexpr Document document = Document::formulae;
  static constexpr auto keys = std::to_array<std::string_view>(
      {"name", "desc", "versions", "homepage", "license", "tap", "dependencies"});

  static const SharedText& nameOf(const HomebrewFormula& formula) { return formula.name; }

  static HomebrewFormula read(RecordFields& fields, DecodingContext& context) {
    return {
        .name = fields.requiredText("name"),
        .description = fields.optionalText("desc"),
        .versions = versionsIn(fields, context),
        .homepage = fields.optionalUrl("homepage"),
        .license = licenseIn(fields, context),
        .tap = fields.optionalInternedText("tap"),
        .dependencies = fields.optionalTexts("dependencies"),
    };
  }
};

template <>
struct RecordKind<HomebrewCask> {
  static constexpr Document document = Document::casks;
  static constexpr auto keys = std::to_array<std::string_view>(
      {"token", "name", "desc", "version", "homepage", "tap", "artifacts"});

  static const SharedText& nameOf(const HomebrewCask& cask) { return cask.token; }

  static HomebrewCask read(RecordFields& fields, DecodingContext& context) {
    return {
        .token = fields.requiredText("token"),
        .names = namesIn(fields, context),
        .description = fields.optionalText("desc"),
        .version = fields.optionalText("version"),
        .homepage = fields.optionalUrl("homepage"),
        .tap = fields.optionalInternedText("tap"),
        .artifacts = artifactsIn(fields, context),
    };
  }
};

QString problemOf(simdjson::error_code error) {
  switch (error) {
    case simdjson::EMPTY:
      return QStringLiteral("is empty");
    case simdjson::UTF8_ERROR:
      return QStringLiteral("is not valid UTF-8");
    case simdjson::MEMALLOC:
    case simdjson::CAPACITY:
      return QStringLiteral("is too large");
    case simdjson::DEPTH_ERROR:
      return QStringLiteral("is nested too deeply");
    case simdjson::NUMBER_ERROR:
      return QStringLiteral("holds a malformed or too large number");
    case simdjson::STRING_ERROR:
    case simdjson::UNCLOSED_STRING:
    case simdjson::UNESCAPED_CHARS:
      return QStringLiteral("holds a malformed text");
    default:
      return QStringLiteral("is not valid JSON");
  }
}

/// What is wrong with the record that `fields` were read from, if anything.
std::optional<CatalogDecodingError> errorOf(Document document, std::size_t index,
                                            const SharedText& name,
                                            const DecodingContext& context) {
  if (!context.problem) {
    return std::nullopt;
  }
  return CatalogDecodingError{
      .document = document,
      .index = index,
      .name = name.isEmpty() ? std::nullopt : std::optional(name.toString()),
      .key = context.problem->key,
      .problem = context.problem->text,
  };
}

template <typename Record>
std::expected<std::vector<Record>, CatalogDecodingError> decodeRecords(
    const simdjson::dom::array& array) {
  using Kind = RecordKind<Record>;
  std::vector<Record> records;
  records.reserve(array.size());
  DecodingContext context;
  for (const simdjson::dom::element element : array) {
    simdjson::dom::object object;
    if (element.get(object) != simdjson::SUCCESS) {
      return std::unexpected(CatalogDecodingError{
          .document = Kind::document,
          .index = records.size(),
          .problem = QStringLiteral("is %1 where an object belongs").arg(jsonTypeName(element))});
    }
    RecordFields fields(object, Kind::keys, context);
    Record record = Kind::read(fields, context);
    if (auto error = errorOf(Kind::document, records.size(), Kind::nameOf(record), context)) {
      return std::unexpected(std::move(*error));
    }
    records.push_back(std::move(record));
  }
  return records;
}

template <typename Record>
std::expected<std::vector<Record>, CatalogDecodingError> decodeDocument(
    const QByteArray& document) {
  const auto failure = [](const QString& problem) {
    return std::unexpected(
        CatalogDecodingError{.document = RecordKind<Record>::document, .problem = problem});
  };
  if (document.isEmpty()) {
    return failure(problemOf(simdjson::EMPTY));
  }
  static_assert(parserPadding >= qsizetype{simdjson::SIMDJSON_PADDING});
  const bool isPadded = hasParserPadding(document);
  simdjson::dom::parser parser;
  simdjson::dom::element root;
  const auto error =
      parser.parse(document.constData(), static_cast<std::size_t>(document.size()), !isPadded)
          .get(root);
  if (error != simdjson::SUCCESS) {
    return failure(problemOf(error));
  }
  simdjson::dom::array array;
  if (root.get(array) != simdjson::SUCCESS) {
    return failure(QStringLiteral("is %1 where an array belongs").arg(jsonTypeName(root)));
  }
  return decodeRecords<Record>(array);
}

template <typename Record>
std::vector<Record> firstOfEachName(std::vector<Record>&& records) {
  std::unordered_set<std::string_view> names;
  names.reserve(records.size());
  std::vector<Record> kept;
  kept.reserve(records.size());
  for (Record& record : records) {
    // The name's bytes stay where they are when the record moves.
    if (names.insert(RecordKind<Record>::nameOf(record).view()).second) {
      kept.push_back(std::move(record));
    }
  }
  return kept;
}

}  // namespace

std::expected<std::vector<HomebrewFormula>, CatalogDecodingError> decodeFormulae(
    const QByteArray& document) {
  return decodeDocument<HomebrewFormula>(document);
}

std::expected<std::vector<HomebrewCask>, CatalogDecodingError> decodeCasks(
    const QByteArray& document) {
  return decodeDocument<HomebrewCask>(document);
}

std::vector<HomebrewFormula> withoutDuplicates(std::vector<HomebrewFormula> formulae) {
  return firstOfEachName(std::move(formulae));
}

std::vector<HomebrewCask> withoutDuplicates(std::vector<HomebrewCask> casks) {
  return firstOfEachName(std::move(casks));
}

}  // namespace quillmere
