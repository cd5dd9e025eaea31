#include "persistence/Secrets.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

QString hidden() {
  return u"•••"_s;
}

const QRegularExpression& secretName() {
  static const QRegularExpression expression(
      u"TOKEN|PASSWORD|PASSWD|SECRET|CREDENTIAL|(API|ACCESS|PRIVATE)_?KEY"_s,
      QRegularExpression::CaseInsensitiveOption);
  return expression;
}

/// What stands before the host of an address, and the tokens of the host of most taps.
const QRegularExpression& secretLook() {
  static const QRegularExpression expression(
      uR"((?<=://)[^/@\s]+(?=@)|\b(?:gh[oprsu]|github_pat)_\w{10,})"_s);
  return expression;
}

}  // namespace

Secrets::Secrets(const QProcessEnvironment& environment) {
  // "1" or "yes" is no secret, and hiding it would hide half of a text.
  constexpr qsizetype shortest = 6;
  for (const QString& name : environment.keys()) {
    const QString value = environment.value(name);
    if (value.size() >= shortest && secretName().match(name).hasMatch()) {
      values_ += value;
      longest_ = std::max(longest_, value.size());
    }
  }
  // One that holds another has to go first.
  std::ranges::sort(values_, std::ranges::greater(), &QString::size);
}

QString Secrets::redacted(QString text) const {
  for (const QString& value : values_) {
    text.replace(value, hidden());
  }
  return text.replace(secretLook(), hidden());
}

}  // namespace quillmere
