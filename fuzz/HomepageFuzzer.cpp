#include <algorithm>
#include <cstdint>

#include "platform/UrlText.h"
#include "platform/WebUrl.h"
#include "require.h"

namespace quillmere {
namespace {

/// Stands in an address as it is, also where a program takes the address for one of its words.
bool isPlain(char character) {
  return character > ' ' && character < '\x7f' &&
         !QByteArrayView("\"<>\\^`{|}").contains(character);
}

/// What is kept of a homepage is the text and its address; what a browser gets of it is the address
/// of a host of the web, in plain characters.
void check(const QString& text) {
  const auto homepage = UrlText::fromText(SharedText(QStringView(text)));
  if (!homepage) {
    return;
  }
  const QUrl url = homepage->url();
  require(homepage->text().toString() == text && url.isValid() && !url.isEmpty());
  if (!isWebUrl(url)) {
    return;
  }
  const QByteArray address = url.toEncoded();
  require(address.startsWith("http://") || address.startsWith("https://"));
  require(std::ranges::all_of(address, isPlain));
  require(!url.host().isEmpty() && url.userInfo().isEmpty());
  require(isWebUrl(QUrl::fromEncoded(address)));
  require(QUrl::fromEncoded(address).host() == url.host());
}

}  // namespace
}  // namespace quillmere

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArrayView bytes(data, static_cast<qsizetype>(size));
  const QString text = QString::fromUtf8(bytes);
  quillmere::check(text);
  // Few inputs have a scheme that counts.
  quillmere::check(QStringLiteral("https://") + text);
  quillmere::check(QStringLiteral("http://brew.sh/") + text);
  return 0;
}
