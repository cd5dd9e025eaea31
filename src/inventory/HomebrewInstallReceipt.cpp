#include "inventory/HomebrewInstallReceipt.h"

#include <simdjson.h>
#include <string_view>

#include "platform/RegularFile.h"

namespace quillmere {
namespace {

static_assert(parserPadding >= simdjson::SIMDJSON_PADDING);

/// The value of `wanted`; of its last occurrence, if the document repeats the key.
std::optional<simdjson::dom::element> lastValue(const simdjson::dom::object& object,
                                                std::string_view wanted) {
  std::optional<simdjson::dom::element> found;
  for (const auto& [key, value] : object) {
    if (key == wanted) {
      found = value;
    }
  }
  return found;
}

std::optional<HomebrewInstallReceipt> receiptOf(const simdjson::dom::element& root) {
  simdjson::dom::object object;
  if (root.get(object) != simdjson::SUCCESS) {
    return std::nullopt;
  }
  const auto value = lastValue(object, "installed_on_request");
  HomebrewInstallReceipt receipt;
  if (value && !value->is_null()) {
    bool installedOnRequest = false;
    if (value->get(installedOnRequest) != simdjson::SUCCESS) {
      return std::nullopt;
    }
    receipt.installedOnRequest = installedOnRequest;
  }
  return receipt;
}

}  // namespace

class HomebrewInstallReceiptReader::Parser {
 public:
  std::optional<HomebrewInstallReceipt> read(QByteArrayView json, bool copies) {
    if (json.isEmpty()) {
      return std::nullopt;  // the parser would copy from data(), which may be null
    }
    simdjson::dom::element root;
    const auto error =
        parser_.parse(json.data(), static_cast<std::size_t>(json.size()), copies).get(root);
    return error == simdjson::SUCCESS ? receiptOf(root) : std::nullopt;
  }

 private:
  simdjson::dom::parser parser_;
};

HomebrewInstallReceiptReader::HomebrewInstallReceiptReader() : parser_(std::make_unique<Parser>()) {
}

HomebrewInstallReceiptReader::~HomebrewInstallReceiptReader() = default;

std::optional<HomebrewInstallReceipt> HomebrewInstallReceiptReader::read(const QByteArray& json) {
  return parser_->read(json, !hasParserPadding(json));
}

}  // namespace quillmere
