#include "execution/RunOutcome.h"

#include <algorithm>

#include "execution/RunFacts.h"
#include "execution/RunInterruption.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Kind = RunOutcome::Kind;
using Operation = BrewCommandOperation;

constexpr qsizetype mostInASentence = 3;
constexpr qsizetype mostInADetail = 60;
constexpr qsizetype mostOtherErrors = 5;

/// "a, b and c"; of a long list the first ones and how many more.
QString listing(QStringList items, qsizetype count = 0) {
  const qsizetype more = std::max(count, items.size()) - std::min(items.size(), mostInADetail);
  if (more > 0) {
    items = items.first(std::min(items.size(), mostInADetail));
    items += u"%1 more"_s.arg(more);
  }
  const QString last = items.isEmpty() ? QString() : items.takeLast();
  return items.isEmpty() ? last : items.join(u", "_s) + " and "_L1 + last;
}

QString counted(qsizetype count, QLatin1StringView singular, QLatin1StringView plural) {
  return u"%1 %2"_s.arg(count).arg(count == 1 ? singular : plural);
}

QString text(const NamedVersion& package) {
  return package.version.isEmpty() ? package.name : package.name + u' ' + package.version;
}

QStringList texts(const QList<NamedVersion>& packages) {
  QStringList list;
  std::ranges::transform(packages, std::back_inserter(list), &text);
  return list;
}

void addListing(QStringList& details, QLatin1StringView begin, const QStringList& items) {
  if (!items.isEmpty()) {
    details += begin + listing(items);
  }
}

/// "28.9KB" with a blank before its unit.
QString spacedSize(QString size) {
  const auto unit = std::ranges::find_if(size, [](QChar c) { return c.isLetter(); });
  return size.insert(unit - size.begin(), u' ');
}

QString withoutEnd(QString message) {
  if (message.endsWith(u'.') || message.endsWith(u':')) {
    message.chop(1);
  }
  return message;
}

/// Sentence and details of one run, found from its facts.
class Teller {
 public:
  Teller(const EndedRun& run, const RunFacts& facts) : run_(run), facts_(facts) {}

  [[nodiscard]] RunOutcome outcome() &&;

 private:
  void tellEnd();
  void tellFailure();
  void tellCancellation();
  void tellAnswer();
  void tellInstalled();
  void tellUninstalled();
  void tellCleanup();
  void tellUpdate();
  void tellList();
  void tellServices();
  void tellDoctor();
  void tellRemoved();
  void tellDoneBefore();
  void tellMessages();
  [[nodiscard]] QStringList made(bool upgraded) const;
  [[nodiscard]] QString madeText(const NamedVersion& package) const;
  [[nodiscard]] bool isUpgrade(const NamedVersion& package) const;
  [[nodiscard]] QString message(const QString& text) const;

  const EndedRun& run_;
  const RunFacts& facts_;
  RunOutcome outcome_;
};

RunOutcome Teller::outcome() && {
  if (run_.wasCancelled && run_.exitCode != 0) {
    tellCancellation();
  } else if (run_.exitCode != 0) {
    tellFailure();
  } else {
    tellEnd();
    if (run_.wasCancelled && outcome_.sentence.isEmpty()) {
      tellCancellation();
    }
  }
  tellMessages();
  return std::move(outcome_);
}

void Teller::tellEnd() {
  switch (run_.operation) {
    case Operation::install:
    case Operation::upgrade:
      tellInstalled();
      tellRemoved();
      break;
    case Operation::uninstall:
      tellUninstalled();
      break;
    case Operation::update:
      tellUpdate();
      break;
    case Operation::cleanup:
      tellCleanup();
      break;
    case Operation::outdated:
    case Operation::dependencies:
    case Operation::reverseDependencies:
      tellList();
      break;
    case Operation::servicesList:
      tellServices();
      break;
    case Operation::doctor:
      tellDoctor();
      break;
    case Operation::info:
      break;
  }
}

bool Teller::isUpgrade(const NamedVersion& package) const {
  return facts_.versionsBefore.contains(package.name);
}

QString Teller::madeText(const NamedVersion& package) const {
  if (!isUpgrade(package)) {
    return text(package);
  }
  const QString before = package.name + u' ' + facts_.versionsBefore[package.name];
  return package.version.isEmpty() ? before : before + " to "_L1 + package.version;
}

QStringList Teller::made(bool upgraded) const {
  QStringList list;
  for (const NamedVersion& package : facts_.installed) {
    if (isUpgrade(package) == upgraded) {
      list += madeText(package);
    }
  }
  return list;
}

void Teller::tellInstalled() {
  outcome_.kind = Kind::success;
  const QString target = shortName(run_.target);
  const auto asked = std::ranges::find(facts_.installed, target, &NamedVersion::name);
  QStringList upgraded = made(true);
  QStringList installed = made(false);
  if (asked != facts_.installed.end()) {
    outcome_.sentence = (isUpgrade(*asked) ? "Upgraded "_L1 : "Installed "_L1) + madeText(*asked);
    upgraded.removeOne(madeText(*asked));
    installed.removeOne(madeText(*asked));
  } else if (!upgraded.isEmpty()) {
    outcome_.sentence =
        "Upgraded "_L1 + (upgraded.size() <= mostInASentence
                              ? listing(std::exchange(upgraded, {}))
                              : counted(upgraded.size(), "package"_L1, "packages"_L1));
  } else if (!installed.isEmpty()) {
    outcome_.sentence =
        "Installed "_L1 + (installed.size() <= mostInASentence
                               ? listing(std::exchange(installed, {}))
                               : counted(facts_.installedCount, "package"_L1, "packages"_L1));
  } else if (!facts_.alreadyInstalled.isEmpty()) {
    outcome_.sentence = "Already installed: "_L1 + listing(texts(facts_.alreadyInstalled));
  } else if (run_.operation == Operation::upgrade && facts_.versionsBefore.isEmpty() &&
             facts_.errors.isEmpty()) {
    outcome_.kind = Kind::information;
    outcome_.sentence = u"Homebrew reported nothing to upgrade"_s;
  }
  const bool isAlso = asked != facts_.installed.end();
  addListing(outcome_.details, isAlso ? "Also upgraded: "_L1 : "Upgraded: "_L1, upgraded);
  addListing(outcome_.details, isAlso ? "Also installed: "_L1 : "Installed: "_L1, installed);
}

/// What went besides: old versions, downloads, formulae that nothing needs.
void Teller::tellRemoved() {
  const auto& orphans = facts_.autoremoved;
  addListing(outcome_.details,
             orphans.size() == 1 ? "Also removed, because nothing needs it: "_L1
                                 : "Also removed, because nothing needs them: "_L1,
             texts(orphans));
  addListing(outcome_.details, "Old versions removed: "_L1, texts(facts_.oldVersionsRemoved));
  if (facts_.othersRemoved > 0) {
    outcome_.details += u"Other files and folders removed: %1"_s.arg(facts_.othersRemoved);
  }
  outcome_.details += facts_.stillInstalled;
}

void Teller::tellUninstalled() {
  outcome_.kind = Kind::success;
  if (!facts_.uninstalled.isEmpty()) {
    outcome_.sentence = "Uninstalled "_L1 + listing(texts(facts_.uninstalled));
  }
  tellRemoved();
}

void Teller::tellCleanup() {
  outcome_.kind = Kind::success;
  const qsizetype removed = facts_.oldVersionsRemoved.size() + facts_.othersRemoved;
  tellRemoved();
  if (!facts_.freed.isEmpty()) {
    outcome_.sentence = "Freed about "_L1 + spacedSize(facts_.freed);
  } else if (removed > 0) {
    outcome_.sentence = "Removed "_L1 + counted(removed, "item"_L1, "items"_L1);
  } else if (!facts_.autoremoved.isEmpty()) {
    outcome_.sentence = "Removed what nothing needs: "_L1 + listing(texts(facts_.autoremoved));
    outcome_.details.clear();
  } else if (!facts_.isRehearsal) {
    outcome_.kind = Kind::information;
    outcome_.sentence = u"Homebrew reported nothing to clean up"_s;
  }
}

void Teller::tellUpdate() {
  outcome_.kind = Kind::success;
  QStringList updates;
  std::ranges::transform(facts_.updates, std::back_inserter(updates), &withoutEnd);
  const auto own = std::ranges::find_if(
      updates, [](const QString& line) { return line.startsWith("Updated Homebrew"_L1); });
  if (!updates.isEmpty()) {
    outcome_.sentence = own == updates.end() ? updates.constFirst() : *own;
    updates.removeOne(outcome_.sentence);
    outcome_.details += updates;
  } else if (facts_.isUpToDate) {
    outcome_.sentence = u"Homebrew is up to date"_s;
  }
  for (const auto& [heading, names] : facts_.news) {
    if (!names.isEmpty()) {
      outcome_.details += heading.first(1) + heading.sliced(1).toLower() + ": "_L1 + listing(names);
    }
  }
}

void Teller::tellList() {
  const qsizetype count = facts_.listedCount;
  if (facts_.otherLineCount > 0) {
    return;
  }
  if (count == 0 && !facts_.warnings.isEmpty()) {
    outcome_.sentence = u"Homebrew listed nothing"_s;
    return;
  }
  const QString target = run_.target.isEmpty() ? u"the package"_s : shortName(run_.target);
  if (run_.operation == Operation::outdated) {
    outcome_.sentence = count == 0
                            ? u"Homebrew lists no outdated package"_s
                            : counted(count, "package is outdated"_L1, "packages are outdated"_L1);
  } else if (run_.operation == Operation::dependencies) {
    outcome_.sentence =
        count == 0 ? "Homebrew lists no dependencies of "_L1 + target
                   : target + " has "_L1 + counted(count, "dependency"_L1, "dependencies"_L1);
  } else {
    outcome_.sentence = count == 0
                            ? "Homebrew lists no package that uses "_L1 + target
                            : counted(count, "package uses "_L1, "packages use "_L1) + target;
  }
  if (count > 0) {
    outcome_.details += listing(facts_.listed, count);
  }
}

void Teller::tellServices() {
  if (facts_.otherLineCount > 0) {
    return;
  }
  if (facts_.listedCount == 0) {
    outcome_.sentence = u"Homebrew lists no services"_s;
    return;
  }
  QStringList states;
  for (const auto& [state, count] : facts_.serviceStates.asKeyValueRange()) {
    const QString word = state == "none"_L1 ? u"not started"_s : state;
    states += facts_.listedCount == 1 ? word : u"%1 %2"_s.arg(count).arg(word);
  }
  outcome_.sentence =
      counted(facts_.listedCount, "service: "_L1, "services: "_L1) + states.join(u", "_s);
}

void Teller::tellDoctor() {
  if (facts_.isReady) {
    outcome_.kind = Kind::success;
    outcome_.sentence = u"Your system is ready to brew"_s;
  } else if (facts_.warningCount > 0) {
    outcome_.kind = Kind::information;
    outcome_.sentence =
        "Homebrew gave "_L1 + counted(facts_.warningCount, "warning"_L1, "warnings"_L1);
  }
}

/// What was done all the same before a run failed or was cancelled.
void Teller::tellDoneBefore() {
  addListing(outcome_.details, "Upgraded: "_L1, made(true));
  addListing(outcome_.details, "Installed: "_L1, made(false));
  tellRemoved();
}

/// A message of Homebrew; where it announces the pinned packages, with their names.
QString Teller::message(const QString& text) const {
  const bool isAboutPinned = text.startsWith("Not upgrading "_L1) && text.endsWith(u':') &&
                             text.contains(" pinned "_L1) && !facts_.pinned.isEmpty();
  return isAboutPinned ? text + u' ' + listing(facts_.pinned) : withoutEnd(text);
}

void Teller::tellFailure() {
  outcome_.kind = Kind::failure;
  if (run_.operation == Operation::doctor && facts_.errors.isEmpty()) {
    tellDoctor();
    return;
  }
  QStringList errors = facts_.errors;
  if (!errors.isEmpty()) {
    const QString last = message(errors.takeLast());
    outcome_.sentence = last.startsWith("Failed "_L1) ? last : "Failed: "_L1 + last;
  } else if (!facts_.notBuilt.isEmpty()) {
    outcome_.sentence = u"Failed: %1 could not be built"_s.arg(facts_.notBuilt);
  } else if (const QString what = underWay(facts_); !what.isEmpty()) {
    outcome_.sentence = "Failed while "_L1 + what;
  }
  if (!facts_.buildError.isEmpty()) {
    outcome_.details += facts_.buildError;
  }
  std::ranges::reverse(errors);
  for (const QString& error : errors.first(std::min(errors.size(), mostOtherErrors))) {
    outcome_.details += message(error);
  }
  tellDoneBefore();
}

void Teller::tellCancellation() {
  outcome_.kind = Kind::cancellation;
  outcome_.sentence = cancellationSentence(facts_, run_.exitCode);
  tellDoneBefore();
}

void Teller::tellMessages() {
  for (const RunFacts::Caveat& caveat : facts_.caveats) {
    const bool isNamed = facts_.caveats.size() > 1 && !caveat.package.isEmpty();
    outcome_.caveats += (outcome_.caveats.isEmpty() ? QString() : u"\n\n"_s) +
                        (isNamed ? caveat.package + u'\n' : QString()) + caveat.text;
  }
  const bool isAlready = outcome_.sentence.startsWith("Already installed"_L1);
  for (const QString& warning : facts_.warnings) {
    const bool isSaid =
        isAlready && warning.contains("already installed"_L1) && !warning.contains("not linked"_L1);
    if (!isSaid) {
      outcome_.warnings += message(warning);
    }
  }
  const qsizetype more = facts_.warningCount - facts_.warnings.size();
  if (more > 0) {
    outcome_.warnings += counted(more, "more warning"_L1, "more warnings"_L1);
  }
}

}  // namespace

RunOutcome makeRunOutcome(const EndedRun& run) {
  const RunFacts facts = readRunFacts(run.operation, run.standardOutput, run.standardError);
  return Teller(run, facts).outcome();
}

}  // namespace quillmere
