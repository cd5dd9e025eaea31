#include <QtCore/QRegularExpression>

#include <algorithm>
#include <optional>

#include "execution/RunFactsReader.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Activity = RunFacts::Activity;
using Operation = BrewCommandOperation;

constexpr qsizetype mostVersions = 200;
/// In characters, of all caveats together.
constexpr qsizetype longestCaveats = 32'768;

std::optional<NamedVersion> kegIn(const QString& text, const QRegularExpression& form) {
  const auto match = form.match(text);
  return match.hasMatch() ? std::optional(NamedVersion{match.captured(1), match.captured(2)})
                          : std::nullopt;
}

/// "/…/Cellar/wget/1.25.0... (92 files, 4.6MB)"
std::optional<NamedVersion> removedKeg(const QString& text) {
  static const QRegularExpression form(u"/Cellar/([^/\\s]+)/([^/\\s]+)\\.\\.\\. "_s);
  return kegIn(text, form);
}

/// "🍺  /…/Cellar/wget/1.25.0: 92 files, 4.6MB"; the mug may be another sign, or missing.
std::optional<NamedVersion> installedKeg(const QString& text) {
  static const QRegularExpression form(u"/Cellar/([^/\\s]+)/([^/\\s]+): [\\d,]+ files?, "_s);
  return text.contains("/Cellar/"_L1) ? kegIn(text, form) : std::nullopt;
}

}  // namespace

bool isPackageName(std::string_view text) {
  constexpr std::size_t longestName = 200;
  const auto isPlain = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
  };
  return !text.empty() && text.size() <= longestName && isPlain(text.front()) &&
         std::ranges::all_of(text, [isPlain](char c) {
           return isPlain(c) || std::string_view("@+._/-").contains(c);
         });
}

bool isPackageName(QStringView text) {
  return isPackageName(std::string_view(text.toUtf8()));
}

bool RunFactsReader::isList() const {
  return operation_ == Operation::outdated || operation_ == Operation::dependencies ||
         operation_ == Operation::reverseDependencies;
}

void RunFactsReader::readSectionLine(const QString& text) {
  const QString trimmed = text.trimmed();
  switch (section_) {
    case Section::caveats:
      caveatsLength_ += text.size() + 1;
      if (caveatsLength_ < longestCaveats) {
        caveatLines_ += text;
      } else {
        section_ = Section::none;
      }
      break;
    case Section::versions:
      readVersions(trimmed);
      break;
    case Section::pinned:
      if (const QString name = trimmed.section(u' ', 0, 0); isPackageName(name)) {
        keep(facts_.pinned, shortName(name));
      } else {
        section_ = Section::none;
      }
      break;
    case Section::autoremoved:
      if (isPackageName(trimmed)) {
        keep(facts_.autoremoved, {shortName(trimmed), QString()});
      } else {
        section_ = Section::none;
      }
      break;
    case Section::news:
      readNews(trimmed);
      break;
    case Section::buildLog:
      if (trimmed.contains("error:"_L1, Qt::CaseInsensitive)) {
        facts_.buildError = trimmed;
      }
      break;
    case Section::none:
      break;
  }
}

/// "wget", "wget: what it is" or "old -> new".
void RunFactsReader::readNews(const QString& text) {
  const QString name = text.section(u' ', 0, 0).section(u':', 0, 0);
  const bool isNews =
      isPackageName(name) && (name == text || text.contains(": "_L1) || text.contains(" -> "_L1));
  if (isNews) {
    keep(facts_.news.last().second, text.contains(" -> "_L1) ? text : name);
  } else {
    section_ = Section::none;
  }
}

/// "wget 1.24 -> 1.25", or without the name under the heading of one package.
void RunFactsReader::readVersions(const QString& text) {
  static const QRegularExpression change(u"^(?:(\\S+)\\s+)?(\\S+) -> (\\S+)$"_s);
  const auto match = change.match(text);
  if (!match.hasMatch()) {
    section_ = Section::none;
    return;
  }
  const QString name =
      match.captured(1).isEmpty() ? facts_.activityTarget : shortName(match.captured(1));
  if (!name.isEmpty() && facts_.versionsBefore.size() < mostVersions) {
    facts_.versionsBefore.insert(name, match.captured(2));
  }
}

/// Lines that tell something by themselves, wherever they stand.
void RunFactsReader::readStatement(const QString& text) {
  static const QRegularExpression cask(u"(\\S+) was successfully (?:installed|upgraded)!$"_s);
  static const QRegularExpression caskFile(u"^\\S+ Cask (\\S+) \\((.+)\\)$"_s);
  static const QRegularExpression log(u"^Last \\d+ lines from .*/Logs/([^/]+)/"_s);
  if (isList() && !isError_) {
    readListed(text);
    return;
  }
  if (operation_ == Operation::servicesList && !isError_) {
    readService(text);
    return;
  }
  if (text.startsWith("Removing: "_L1) || text.startsWith("Uninstalling "_L1)) {
    readRemoval(text);
  } else if (const auto keg = installedKeg(text)) {
    facts_.installedCount += facts_.installed.contains(*keg) ? 0 : 1;
    keep(facts_.installed, *keg);
    facts_.activity = Activity::none;
    caveatPackage_ = keg->name;
  } else if (const auto match = cask.match(text); match.hasMatch()) {
    ++facts_.installedCount;
    keep(facts_.installed, {shortName(match.captured(1)), QString()});
    facts_.activity = Activity::none;
  } else if (const auto file = caskFile.match(text); isError_ && file.hasMatch()) {
    for (NamedVersion& installed : facts_.installed) {
      if (installed.version.isEmpty() && installed.name == shortName(file.captured(1))) {
        installed.version = file.captured(2);
      }
    }
  } else if (text.startsWith("Already up-to-date"_L1)) {
    facts_.isUpToDate = true;
  } else if (text.startsWith("Updated "_L1) && text.endsWith(u'.')) {
    keep(facts_.updates, text, mostMessages);
  } else if (text.startsWith("Would "_L1)) {
    facts_.isRehearsal = true;
  } else if (text.endsWith("still installed."_L1)) {
    keep(facts_.stillInstalled, text, mostMessages);
  } else if (text.startsWith("Your system is ready to brew"_L1)) {
    facts_.isReady = true;
  } else if (const auto failed = log.match(text); failed.hasMatch()) {
    facts_.notBuilt = failed.captured(1);
    section_ = Section::buildLog;
  }
}

void RunFactsReader::readRemoval(const QString& text) {
  const auto keg = removedKeg(text);
  if (text.startsWith(u'R')) {
    begin(Activity::cleaning, QString());
    if (keg) {
      keep(facts_.oldVersionsRemoved, *keg);
    } else {
      ++facts_.othersRemoved;
    }
    return;
  }
  const NamedVersion removed =
      keg ? *keg : NamedVersion{text.section(u' ', 1).section(u"..."_s, 0, 0), QString()};
  if (!isAutoremoving_) {
    begin(Activity::uninstalling, removed.name);
    keep(facts_.uninstalled, removed);
    return;
  }
  facts_.autoremoved.removeAll({removed.name, QString()});
  keep(facts_.autoremoved, removed);
}

void RunFactsReader::readListed(const QString& text) {
  if (text.isEmpty()) {
    return;
  }
  static const QRegularExpression versions(u"^(\\S+) \\(.+\\) (?:<|!=) \\S+(?: \\[.+\\])?$"_s);
  const auto match = versions.match(text);
  const QString name =
      operation_ == Operation::outdated && match.hasMatch() ? match.captured(1) : text;
  if (!isPackageName(name)) {
    ++facts_.otherLineCount;
    return;
  }
  ++facts_.listedCount;
  if (facts_.listed.size() < mostListed) {
    facts_.listed += name;
  }
}

void RunFactsReader::readService(const QString& text) {
  const QStringList columns = text.simplified().split(u' ', Qt::SkipEmptyParts);
  if (columns.size() < 2) {
    facts_.otherLineCount += columns.size();
  } else if (columns[0] == "Name"_L1 && columns[1] == "Status"_L1) {
    facts_.hasServiceHeader = true;
  } else if (facts_.hasServiceHeader && isPackageName(columns[0]) && isPackageName(columns[1])) {
    ++facts_.listedCount;
    if (facts_.serviceStates.size() < mostMessages) {
      ++facts_.serviceStates[columns[1]];
    }
  } else {
    ++facts_.otherLineCount;
  }
}

}  // namespace quillmere
