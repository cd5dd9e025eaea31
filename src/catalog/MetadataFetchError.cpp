#include "catalog/MetadataFetchError.h"

namespace quillmere {
namespace {

QString describe(const HomebrewFormulaMetadataError& error) {
  return error.description();
}

QString describe(const MetadataTransportError& error) {
  return error.message;
}

QString describe(const MetadataFetchCancelled& /*error*/) {
  return QStringLiteral("The download was cancelled.");
}

}  // namespace

QString HomebrewFormulaMetadataError::description() const {
  return statusCode ? QStringLiteral("Homebrew returned HTTP status %1.").arg(*statusCode)
                    : QStringLiteral("Homebrew returned an invalid response.");
}

QString description(const MetadataFetchError& error) {
  return std::visit([](const auto& alternative) { return describe(alternative); }, error);
}

}  // namespace quillmere
