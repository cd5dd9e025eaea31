#include "platform/WebUrl.h"

#include <QtCore/QString>

namespace quillmere {

bool isWebUrl(const QUrl& address) {
  const QString scheme = address.scheme();
  const bool isOfTheWeb =
      scheme == QLatin1StringView("https") || scheme == QLatin1StringView("http");
  return isOfTheWeb && !address.host().isEmpty() && address.userInfo().isEmpty();
}

}  // namespace quillmere
