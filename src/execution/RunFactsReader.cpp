#include "execution/RunFactsReader.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "platform/TerminalText.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Activity = RunFacts::Activity;
using Operation = BrewCommandOperation;

/// In bytes; what a line has beyond is not read.
constexpr qsizetype longestLine = 2048;

/// How lines begin that tell something by themselves.
constexpr auto beginnings = std::to_array<std::string_view>(
    {"==>", "Error:", "Warning:", "Removing:", "Updated ", "Uninstalling ", "Already up", "Would ",
     "Last ", "Your system is ready"});
/// Their first letters.
constexpr std::string_view firsts = "=EWRUALY";
static_assert(std::ranges::all_of(beginnings,
                                  [](std::string_view b) { return firsts.contains(b.front()); }));

}  // namespace

void RunFactsReader::read(QByteArrayView text) {
  section_ = Section::none;
  while (!text.isEmpty()) {
    const qsizetype end = text.indexOf('\n');
    const QByteArrayView line = end < 0 ? text : text.first(end);
    readLine(line.first(std::min(line.size(), longestLine)));
    text = text.sliced(end < 0 ? text.size() : end + 1);
  }
  finishMessage();
  endCaveat();
}

/// Nearly all lines of a long output end here: whether a line can tell something by itself.
bool RunFactsReader::mayMatter(std::string_view line) const {
  if (line.empty()) {
    return false;
  }
  if (line.contains('\x1b')) {
    // Whatever the escape sequences leave of it.
    return line.contains("/Cellar/") || line.contains("successfully") ||
           std::ranges::any_of(beginnings, [line](std::string_view b) { return line.contains(b); });
  }
  if (firsts.contains(line.front()) &&
      std::ranges::any_of(beginnings, [line](std::string_view b) { return line.starts_with(b); })) {
    return true;
  }
  return line.ends_with("ed!") || line.ends_with("still installed.") ||
         (isError_ && line.contains(" Cask ")) ||
         ((line.contains(" files, ") || line.contains(" file, ")) && line.contains("/Cellar/"));
}

void RunFactsReader::readLine(QByteArrayView line) {
  if (line.endsWith('\r')) {
    line.chop(1);
  }
  const std::string_view bytes(line.data(), static_cast<std::size_t>(line.size()));
  if (isList() && !isError_ && facts_.listed.size() >= mostListed && isPackageName(bytes)) {
    ++facts_.listedCount;
    return;
  }
  const bool isWanted = section_ != Section::none || !message_.isEmpty() || isList() ||
                        operation_ == Operation::servicesList || mayMatter(bytes);
  if (isWanted) {
    readText(terminalText(line));
  }
}

void RunFactsReader::readText(const QString& text) {
  if (!message_.isEmpty()) {
    // An error goes on in the next line where its sentence has no end and the line begins small.
    const bool isOpen = messageIsError_ && !message_.endsWith(u'.') && !message_.endsWith(u':') &&
                        !message_.endsWith(u'!') && !message_.endsWith(u'?');
    if (isOpen && !text.isEmpty() && text.front().isLower() &&
        message_.size() + text.size() < longestLine) {
      message_ += u' ' + text.simplified();
      return;
    }
    finishMessage();
  }
  if (text.startsWith("==> "_L1)) {
    readHeading(text.sliced(4).trimmed());
    return;
  }
  if (isError_ && (text.startsWith("Error: "_L1) || text.startsWith("Warning: "_L1))) {
    readMessage(text);
    return;
  }
  if (section_ != Section::none) {
    readSectionLine(text);
  }
  if (section_ != Section::caveats) {
    readStatement(text.trimmed());
  }
}

void RunFactsReader::readMessage(const QString& text) {
  section_ = Section::none;
  messageIsError_ = text.startsWith(u'E');
  message_ = text.section(u": "_s, 1).simplified();
}

void RunFactsReader::finishMessage() {
  const QString message = std::exchange(message_, QString());
  if (message.isEmpty()) {
    return;
  }
  if (messageIsError_) {
    facts_.errors.removeAll(message);
    facts_.errors.append(message);
    if (facts_.errors.size() > mostMessages) {
      facts_.errors.removeFirst();
    }
    return;
  }
  // What curl says of its own tries.
  if (message.contains("Will retry in "_L1) || facts_.warnings.contains(message)) {
    return;
  }
  if (message.contains("already installed"_L1)) {
    readAlreadyInstalled(message);
  }
  ++facts_.warningCount;
  keep(facts_.warnings, message, mostMessages);
}

void RunFactsReader::readAlreadyInstalled(const QString& warning) {
  static const QRegularExpression formula(
      u"^(\\S+) (\\S+) (?:is )?already installed(?: and up-to-date)?\\.?$"_s);
  static const QRegularExpression cask(
      u"^Not upgrading (\\S+), the latest version is already installed\\.?$"_s);
  if (const auto match = formula.match(warning); match.hasMatch()) {
    keep(facts_.alreadyInstalled, {shortName(match.captured(1)), match.captured(2)});
  } else if (const auto caskMatch = cask.match(warning); caskMatch.hasMatch()) {
    keep(facts_.alreadyInstalled, {shortName(caskMatch.captured(1)), QString()});
  }
}

void RunFactsReader::begin(Activity activity, const QString& target) {
  // What standard output tells is nearer to the end than the downloads of standard error.
  if (isError_ && hasBegun_) {
    return;
  }
  hasBegun_ = hasBegun_ || !isError_;
  facts_.activity = activity;
  facts_.activityTarget = target;
}

void RunFactsReader::endCaveat() {
  const QString text = caveatLines_.join(u'\n');
  caveatLines_.clear();
  static const QRegularExpression blankEnds(u"^(?:[ \\t]*\\n)+|\\s+$"_s);
  const QString trimmed = QString(text).remove(blankEnds);
  const auto isSame = [&trimmed](const RunFacts::Caveat& known) { return known.text == trimmed; };
  if (trimmed.isEmpty() || std::ranges::any_of(facts_.caveats, isSame)) {
    return;
  }
  facts_.caveats += {caveatPackage_, trimmed};
}

void RunFactsReader::readHeading(const QString& heading) {
  // At its end Homebrew says all caveats again, each under the name of its package.
  const bool isPackage = std::ranges::any_of(facts_.installed, [&](const NamedVersion& installed) {
    return installed.name == shortName(heading);
  });
  if (section_ == Section::caveats) {
    endCaveat();
    if (isPackage) {
      caveatPackage_ = shortName(heading);
      return;
    }
  }
  section_ = Section::none;
  isAutoremoving_ = false;
  if (!readChangeHeading(heading)) {
    readSectionHeading(heading);
  }
}

/// Headings that say what Homebrew begins.
bool RunFactsReader::readChangeHeading(const QString& heading) {
  static const QRegularExpression change(
      u"^(Installing|Reinstalling|Upgrading|Uninstalling) (?:\\S+ dependency: |Cask )?(\\S+)"
      "(?: from \\S+)?$"_s);
  static const QRegularExpression fetching(u"^Fetching (?:downloads for: )?(.+)$"_s);
  static const QRegularExpression purging(u"^Purging files for version (\\S+) of Cask (\\S+)$"_s);
  static const QRegularExpression freed(u"^This operation has freed approximately (\\S+) of"_s);
  if (const auto match = change.match(heading); match.hasMatch()) {
    const QString name = shortName(match.captured(2));
    const bool upgrades = match.captured(1) == "Upgrading"_L1;
    const bool uninstalls = match.captured(1) == "Uninstalling"_L1;
    begin(upgrades     ? Activity::upgrading
          : uninstalls ? Activity::uninstalling
                       : Activity::installing,
          name);
    caveatPackage_ = name;
    section_ = upgrades ? Section::versions : Section::none;
    if (uninstalls) {
      keep(facts_.uninstalled, {name, QString()});
    }
    return true;
  }
  if (const auto match = fetching.match(heading); match.hasMatch()) {
    begin(Activity::downloading, match.captured(1).simplified());
    return true;
  }
  if (const auto match = purging.match(heading); match.hasMatch()) {
    for (NamedVersion& cask : facts_.uninstalled) {
      if (cask.name == match.captured(2)) {
        cask.version = match.captured(1);
      }
    }
    return true;
  }
  if (const auto match = freed.match(heading); match.hasMatch()) {
    facts_.freed = match.captured(1);
    return true;
  }
  if (heading.startsWith("Updating Homebrew"_L1)) {
    begin(Activity::updating, QString());
    return true;
  }
  if (heading.startsWith("Running `brew cleanup"_L1)) {
    begin(Activity::cleaning, QString());
    return true;
  }
  return false;
}

/// Headings that say what the next lines are.
void RunFactsReader::readSectionHeading(const QString& heading) {
  static const QRegularExpression versions(u"^(?:Would upgrade|Upgrading|Upgraded) \\d+ "_s);
  static const QRegularExpression pinned(u"^\\d+ Pinned "_s);
  static const QRegularExpression news(u"^[A-Z][a-z]+(?: [A-Z][a-z]+)? (?:Formulae|Casks)$"_s);
  static const QRegularExpression staged(u"^Removing all staged versions of Cask '(\\S+)'$"_s);
  if (heading == "Caveats"_L1) {
    section_ = Section::caveats;
  } else if (versions.match(heading).hasMatch()) {
    section_ = Section::versions;
  } else if (pinned.match(heading).hasMatch()) {
    section_ = Section::pinned;
  } else if (heading.startsWith("Autoremoving "_L1)) {
    section_ = Section::autoremoved;
    isAutoremoving_ = true;
  } else if (news.match(heading).hasMatch()) {
    section_ = Section::news;
    if (facts_.news.size() < mostMessages) {
      facts_.news.append({heading, {}});
    }
  } else if (const auto match = staged.match(heading); match.hasMatch()) {
    keep(facts_.uninstalled, {match.captured(1), QString()});
  } else if (heading.startsWith("Would "_L1) || heading.contains(" would free "_L1)) {
    facts_.isRehearsal = true;
  }
}

QString shortName(const QString& name) {
  return name.section(u'/', -1);
}

RunFacts readRunFacts(BrewCommandOperation operation, QByteArrayView standardOutput,
                      QByteArrayView standardError) {
  RunFactsReader reader(operation);
  reader.readOutput(standardOutput);
  reader.readError(standardError);
  return std::move(reader).facts();
}

}  // namespace quillmere
