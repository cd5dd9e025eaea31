#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include "inventory/HomebrewInstallReceipt.h"
#include "platform/RegularFile.h"
#include "require.h"

namespace quillmere {
namespace {

/// Whether what was decoded is what Qt's own reader finds, where that one takes the document, too.
bool agreesWithQt(const HomebrewInstallReceipt& receipt, const QByteArray& json) {
  const QJsonDocument document = QJsonDocument::fromJson(json);
  if (document.isNull()) {
    return true;
  }
  const QJsonValue value = document.object().value(QLatin1StringView("installed_on_request"));
  return document.isObject() &&
         (receipt.installedOnRequest
              ? value.isBool() && value.toBool() == receipt.installedOnRequest
              : value.isNull() || value.isUndefined());
}

/// Whatever lies where a receipt belongs, it is read or refused, the same with room behind it and
/// without.
void check(const QByteArray& json) {
  const auto receipt = HomebrewInstallReceiptReader().read(json);
  require(!receipt || agreesWithQt(*receipt, json));
  static HomebrewInstallReceiptReader reader;
  QByteArray padded;
  padded.reserve(json.size() + parserPadding);
  padded += json;
  require(reader.read(padded) == receipt);
}

}  // namespace
}  // namespace quillmere

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const auto bytes =
      QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  quillmere::check(bytes);
  // Few inputs are whole documents; more of them are whole values.
  quillmere::check("{\"installed_on_request\":" + bytes + '}');
  return 0;
}
