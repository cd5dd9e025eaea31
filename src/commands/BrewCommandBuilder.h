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

/// The words behind "brew": what is shown of a command and what is run are both made of them. The
/// name of a package is one word, the last. Pure; any thread.
[[nodiscard]] QStringList brewWords(BrewCommandOperation operation,
                                    const BrewCommandTarget& target);

/// What running such a command may do, in the order in which it is shown. A target without a name
/// stands for "packages" in general.
[[nodiscard]] QStringList possibleEffects(BrewCommandOperation operation,
                                          const BrewCommandTarget& target);

/// Whether Homebrew can take `name` for nothing but a package. The builder's identifiers mean
/// nothing to a shell, but "--force" would be an option to Homebrew, "../x" a file, and neither
/// names a package: of those, each part between slashes begins with a letter or a digit. Nor is one
/// longer than the folder that is made for it may be called. Pure; any thread.
[[nodiscard]] bool couldBePackage(QStringView name);

/// The only place where a package name reaches a command line: it refuses every character that a
/// shell could take for anything but itself, so that the text can be copied and run as it stands.
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
