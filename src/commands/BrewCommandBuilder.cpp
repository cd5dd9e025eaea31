#include "commands/BrewCommandBuilder.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Operation = BrewCommandOperation;
using Kind = BrewCommandTargetKind;
using Risk = BrewCommandRiskLevel;

/// What the texts of one operation are made of. The explanation is the two halves around the name
/// of the package; operations that name none have it all in the first.
struct Row {
  Operation operation = Operation::info;
  QLatin1StringView subcommand;
  Risk risk = Risk::informational;
  QLatin1StringView explanation;
  QLatin1StringView explanationAfterName;
};

/// In the order of the enumeration.
constexpr std::array rows = {
    Row{Operation::info, "info"_L1, Risk::informational, "Shows Homebrew information for "_L1,
        "."_L1},
    Row{Operation::install, "install"_L1, Risk::medium, "Installs "_L1, " with Homebrew."_L1},
    Row{Operation::uninstall, "uninstall"_L1, Risk::destructive, "Uninstalls "_L1,
        " with Homebrew."_L1},
    Row{Operation::update, "update"_L1, Risk::medium, "Updates Homebrew and tap metadata."_L1, {}},
    Row{Operation::upgrade, "upgrade"_L1, Risk::medium, "Upgrades "_L1, " with Homebrew."_L1},
    Row{Operation::outdated,
        "outdated"_L1,
        Risk::informational,
        "Lists outdated Homebrew packages."_L1,
        {}},
    Row{Operation::cleanup,
        "cleanup"_L1,
        Risk::medium,
        "Asks Homebrew to remove old downloads and outdated package versions."_L1,
        {}},
    Row{Operation::dependencies, "deps"_L1, Risk::informational,
        "Lists formula dependencies for "_L1, "."_L1},
    Row{Operation::reverseDependencies, "uses"_L1, Risk::informational,
        "Lists formulae that use "_L1, "."_L1},
    Row{Operation::servicesList,
        "services list"_L1,
        Risk::informational,
        "Lists Homebrew services."_L1,
        {}},
    Row{Operation::doctor, "doctor"_L1, Risk::informational, "Runs Homebrew diagnostics."_L1, {}},
};

static_assert(hasRowForEach(rows, &Row::operation));

const Row& rowOf(Operation operation) {
  return rows[static_cast<std::size_t>(operation)];
}

constexpr bool isAllowed(QChar character) {
  const char16_t c = character.unicode();
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
         std::u16string_view(u"@._+-/").contains(c);
}

/// Whether no character of the name means anything to a shell. The first character and the length
/// are not looked at: `isPlausiblePackageName` does.
bool isValidIdentifier(QStringView identifier) {
  return !identifier.isEmpty() && std::ranges::all_of(identifier, isAllowed);
}

std::optional<BrewCommandBuilderError> problemOf(const BrewCommandTarget& target) {
  if (!isPackageKind(target.kind)) {
    return BrewCommandBuilderError{target.name.value_or(QString(rawValue(target.kind)))};
  }
  const QString name = target.name.value_or(QString());
  return isValidIdentifier(name) ? std::nullopt : std::optional(BrewCommandBuilderError{name});
}

QString explanation(const Row& row, const BrewCommandTarget& target) {
  if (row.operation == Operation::upgrade && target.kind == Kind::global) {
    return u"Upgrades outdated Homebrew packages."_s;
  }
  return row.explanation + target.name.value_or(QString()) + row.explanationAfterName;
}

BrewCommand build(Operation operation, const BrewCommandTarget& target) {
  const Row& row = rowOf(operation);
  return {
      .id = QUuid::createUuid(),
      .commandText = "brew "_L1 + brewWords(operation, target).join(u' '),
      .operation = operation,
      .target = target,
      .riskLevel = row.risk,
      .explanation = explanation(row, target),
      .possibleEffects = possibleEffects(operation, target),
  };
}

BrewCommandBuilder::Result buildForPackage(Operation operation, const BrewCommandTarget& target) {
  if (auto problem = problemOf(target)) {
    return std::unexpected(*std::move(problem));
  }
  return build(operation, target);
}

}  // namespace

QString BrewCommandBuilderError::description() const {
  return "Invalid Homebrew package identifier: "_L1 + invalidPackageIdentifier;
}

QStringList brewWords(Operation operation, const BrewCommandTarget& target) {
  QStringList words = QString(rowOf(operation).subcommand).split(u' ');
  if (target.kind == Kind::cask) {
    words += u"--cask"_s;
  }
  if (isPackageKind(target.kind) && target.name) {
    words += *target.name;
  }
  return words;
}

QStringList possibleEffects(Operation operation, const BrewCommandTarget& target) {
  const QString name = target.name.value_or(u"packages"_s);
  switch (operation) {
    case Operation::info:
    case Operation::outdated:
    case Operation::dependencies:
    case Operation::reverseDependencies:
    case Operation::servicesList:
    case Operation::doctor:
      return {u"Prints information from Homebrew."_s,
              u"Does not install, update, or remove packages by itself."_s};
    case Operation::install:
      return {u"May download package files."_s,
              "May install "_L1 + name + " and required dependencies."_L1};
    case Operation::uninstall:
      return {"May remove "_L1 + name + " from the Homebrew prefix."_L1,
              u"May leave configuration or support files behind depending on Homebrew behavior."_s};
    case Operation::update:
      return {u"May update Homebrew and tap metadata."_s,
              u"May change files inside the selected Homebrew prefix."_s};
    case Operation::upgrade:
      if (target.kind == Kind::global) {
        return {u"May download newer package versions."_s,
                u"May update multiple installed formulae or casks."_s};
      }
      return {u"May download a newer package version."_s,
              "May replace the installed version of "_L1 + name + u'.'};
    case Operation::cleanup:
      return {u"May delete Homebrew cache files."_s,
              u"May remove older package versions no longer linked by Homebrew."_s};
  }
  Q_UNREACHABLE();
}

bool isPlausiblePackageName(QStringView name) {
  constexpr qsizetype longestName = 255;
  const auto parts = name.split(u'/');
  return name.size() <= longestName && std::ranges::all_of(parts, [](QStringView part) {
           return !part.isEmpty() && part.front().unicode() < 0x80 &&
                  part.front().isLetterOrNumber();
         });
}

BrewCommandBuilder::Result BrewCommandBuilder::info(const BrewCommandTarget& target) const {
  return buildForPackage(Operation::info, target);
}

BrewCommandBuilder::Result BrewCommandBuilder::install(const BrewCommandTarget& target) const {
  return buildForPackage(Operation::install, target);
}

BrewCommandBuilder::Result BrewCommandBuilder::uninstall(const BrewCommandTarget& target) const {
  return buildForPackage(Operation::uninstall, target);
}

BrewCommandBuilder::Result BrewCommandBuilder::upgrade(
    const std::optional<BrewCommandTarget>& target) const {
  return target ? buildForPackage(Operation::upgrade, *target)
                : build(Operation::upgrade, {Kind::global, std::nullopt});
}

BrewCommandBuilder::Result BrewCommandBuilder::dependencies(const QString& formulaName) const {
  return buildForPackage(Operation::dependencies, {Kind::formula, formulaName});
}

BrewCommandBuilder::Result BrewCommandBuilder::reverseDependencies(
    const QString& formulaName) const {
  return buildForPackage(Operation::reverseDependencies, {Kind::formula, formulaName});
}

BrewCommand BrewCommandBuilder::servicesList() const {
  return build(Operation::servicesList, {Kind::global, std::nullopt});
}

BrewCommand BrewCommandBuilder::update() const {
  return build(Operation::update, {Kind::global, std::nullopt});
}

BrewCommand BrewCommandBuilder::cleanup() const {
  return build(Operation::cleanup, {Kind::global, std::nullopt});
}

BrewCommand BrewCommandBuilder::outdated() const {
  return build(Operation::outdated, {Kind::global, std::nullopt});
}

BrewCommand BrewCommandBuilder::doctor() const {
  return build(Operation::doctor, {Kind::diagnostic, std::nullopt});
}

}  // namespace quillmere
