#include "execution/RunInterruption.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Activity = RunFacts::Activity;

/// How many packages are in "a, b and c".
qsizetype countOf(const QString& names) {
  return names.count(", "_L1) + names.count(" and "_L1) + 1;
}

/// What may be true of a command that was ended in the middle of it.
QLatin1StringView possibleRest(const RunFacts& facts) {
  switch (facts.activity) {
    case Activity::downloading:
      if (countOf(facts.activityTarget) > 1) {
        return "; a part of them may have been left"_L1;
      }
      [[fallthrough]];
    case Activity::installing:
    case Activity::upgrading:
      return "; a part of it may have been left"_L1;
    case Activity::uninstalling:
    case Activity::cleaning:
      return "; a part may be gone already"_L1;
    case Activity::updating:
      return "; a part may be updated already"_L1;
    case Activity::none:
      break;
  }
  return {};
}

}  // namespace

QString underWay(const RunFacts& facts) {
  const QString& target = facts.activityTarget;
  switch (facts.activity) {
    case Activity::downloading:
      return countOf(target) == 1 ? "downloading "_L1 + shortName(target)
                                  : u"downloading %1 packages"_s.arg(countOf(target));
    case Activity::installing:
      return "installing "_L1 + target;
    case Activity::upgrading:
      return "upgrading "_L1 + target;
    case Activity::uninstalling:
      return "uninstalling "_L1 + target;
    case Activity::updating:
      return u"updating Homebrew"_s;
    case Activity::cleaning:
      return u"cleaning up"_s;
    case Activity::none:
      break;
  }
  return {};
}

QString cancellationSentence(const RunFacts& facts, std::int32_t exitCode) {
  constexpr std::int32_t neverLaunched = -1;
  if (exitCode == neverLaunched) {
    return u"Cancelled before Homebrew was started"_s;
  }
  const QString what = underWay(facts);
  return what.isEmpty() ? u"Cancelled before Homebrew had told all"_s
                        : "Cancelled while "_L1 + what + possibleRest(facts);
}

}  // namespace quillmere
