#include "execution/BrewEnvironment.h"

#include <unistd.h>

#include "platform/FileUrl.h"

namespace quillmere {

Environment inheritedEnvironment() {
  Environment environment;
  for (char** entry = environ; entry && *entry; ++entry) {
    const std::string text = *entry;
    if (const auto equals = text.find('='); equals != std::string::npos) {
      environment.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
  }
  return environment;
}

Environment brewEnvironment(Environment inherited, const std::optional<QUrl>& prefixURL) {
  std::string path = "/usr/bin:/bin:/usr/sbin:/sbin";
  if (prefixURL) {
    path.insert(0, filePath(appendingPath(*prefixURL, u"bin")).toStdString() + ':');
  }
  inherited["PATH"] = path;
  inherited["HOMEBREW_NO_ANALYTICS"] = "1";
  inherited["HOMEBREW_NO_AUTO_UPDATE"] = "1";
  inherited["HOMEBREW_NO_ENV_HINTS"] = "1";
  inherited["HOMEBREW_NO_INPUT"] = "1";
  inherited["CLICOLOR"] = "0";
  inherited["NO_COLOR"] = "1";
  return inherited;
}

}  // namespace quillmere
