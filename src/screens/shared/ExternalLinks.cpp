#include "screens/shared/ExternalLinks.h"

#include <QtCore/QString>
#include <QtGui/QDesktopServices>

#include <utility>

#include "platform/WebUrl.h"

namespace quillmere {
namespace {

/// Where the program's own pages live. Whoever builds the program names the host.
constexpr QLatin1StringView site(QUILLMERE_SITE);

QUrl ownPage(QLatin1StringView path) {
  return QUrl(site + path);
}

}  // namespace

ExternalLinks::ExternalLinks(QObject* parent) : ExternalLinks(&QDesktopServices::openUrl, parent) {
}

ExternalLinks::ExternalLinks(Opener opener, QObject* parent)
    : QObject(parent), opener_(std::move(opener)) {
}

QUrl ExternalLinks::privacyPolicy() const {
  return ownPage(QLatin1StringView("/quillmere/privacy.html"));
}

QUrl ExternalLinks::support() const {
  return ownPage(QLatin1StringView("/quillmere/support.html"));
}

QUrl ExternalLinks::homebrew() const {
  return QUrl(QStringLiteral("https://brew.sh"));
}

bool ExternalLinks::open(const QUrl& page) const {
  return isWebUrl(page) && opener_(page);
}

}  // namespace quillmere
