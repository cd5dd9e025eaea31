#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <expected>
#include <optional>

#include "commands/BrewCommand.h"

namespace quillmere {

/// Why no command was built.
struct BrewCommandBuilderError {
  /// The identifier that was refused, whole and unchanged.
  QString invalidPackageIdentifier;

  bool operator==(const BrewCommandBuilderError&) const = default;

  /// The sentence for the user.
  [[nodiscard]] QString description() const;
};

/// The words after "brew". Both the text of a command and the arguments of its process are made of
/// them. A package's name is the last word. Pure; any thread.
[[nodiscard]] QStringList brewWords(BrewCommandOperation operation,
                                    const BrewCommandTarget& target);

/// What running such a command may do, in the order in which it is shown. A target without a name
/// stands for "packages" in general.
[[nodiscard]] QStringList possibleEffects(BrewCommandOperation operation,
                                          const BrewCommandTarget& target);

/// False for names that Homebrew would read as an option or a path ("--force", "../x") and for
/// names longer than a folder name may be (255). Pure; any thread.
[[nodiscard]] bool isPlausiblePackageName(QStringView name);

/// The only place where a package name reaches a command line. It refuses every character that
/// means something to a shell, so that the text needs no quoting when it is copied and run.
/// Stateless; each operation is a pure function but for the command's fresh `id`. Any thread.
class BrewCommandBuilder {
 public:
  using Result = std::expected<BrewCommand, BrewCommandBuilderError>;

  [[nodiscard]] Result info(const BrewCommandTarget& target) const;
  [[nodiscard]] Result install(const BrewCommandTarget& target) const;
  [[nodiscard]] Result uninstall(const BrewCommandTarget& target) const;
  /// Upgrades one package, or with no target everything that is outdated.
  [[nodiscard]] Result upgrade(const std::optional<BrewCommandTarget>& target) const;
  [[nodiscard]] Result dependencies(const QString& formulaName) const;
  [[nodiscard]] Result reverseDependencies(const QString& formulaName) const;
  [[nodiscard]] BrewCommand servicesList() const;
  [[nodiscard]] BrewCommand update() const;
  [[nodiscard]] BrewCommand cleanup() const;
  [[nodiscard]] BrewCommand outdated() const;
  [[nodiscard]] BrewCommand doctor() const;
};

}  // namespace quillmere
