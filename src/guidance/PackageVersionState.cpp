#include "guidance/PackageVersionState.h"

#include <QtCore/QString>

#include "platform/NameOrdering.h"

namespace quillmere {
namespace {

using Status = PackageVersionState::Status;

QString trimmed(const std::optional<SharedText>& version) {
  return version ? version->toString().trimmed() : QString();
}

/// Also holds for the words that stand for a version, such as "latest", in any spelling.
bool hasNoDigit(QStringView text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size();
    const bool isDigit =
        isPair ? QChar::isDigit(QChar::surrogateToUcs4(text[i], text[i + 1])) : text[i].isDigit();
    if (isDigit) {
      return false;
    }
  }
  return true;
}

}  // namespace

Status packageVersionStatus(const std::optional<SharedText>& current,
                            const std::optional<SharedText>& latest) {
  const QString installed = trimmed(current);
  const QString known = trimmed(latest);
  if (installed.isEmpty() || known.isEmpty()) {
    return Status::unknown;
  }
  if (hasNoDigit(installed) || hasNoDigit(known)) {
    return Status::notComparable;
  }
  const int order = NameOrdering::forUserLocale().compare(installed, known);
  if (order == 0) {
    return Status::upToDate;
  }
  return order < 0 ? Status::outdated : Status::newerThanCatalog;
}

bool isRebuild(const std::optional<SharedText>& current, const std::optional<SharedText>& latest) {
  if (!current || !latest || !current->view().starts_with(latest->view())) {
    return false;
  }
  const std::string_view revision = current->view().substr(latest->view().size());
  return revision.size() > 1 && revision.front() == '_' &&
         revision.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

}  // namespace quillmere
