#pragma once

#include <QtCore/QString>

#include <expected>

namespace quillmere::demo {

/// Whom a demo home belongs to.
enum class DemoUser {
  /// Has never started the program: no prefix is selected and there is no history.
  newcomer,
  /// Has used it for a while: the prefix is selected and there is a history of all kinds.
  regular
};

/// Where things lie in a demo home. The program finds its files there when HOME is the folder, and
/// XDG_CONFIG_HOME and XDG_DATA_HOME are the two below.
struct DemoHome {
  QString folder;

  [[nodiscard]] QString prefix() const { return folder + QStringLiteral("/homebrew"); }

  [[nodiscard]] QString configFolder() const { return folder + QStringLiteral("/.config"); }

  [[nodiscard]] QString dataFolder() const { return folder + QStringLiteral("/.local/share"); }

  [[nodiscard]] QString settingsFile() const {
    return configFolder() + QStringLiteral("/Quillmere/Quillmere.conf");
  }

  [[nodiscard]] QString catalogFolder() const {
    return dataFolder() + QStringLiteral("/Quillmere/CatalogCache/");
  }

  /// Writes everything: a Homebrew prefix with packages, old versions, downloads and a `bin/brew`
  /// that works, the program's settings, and the catalog's documents as they were downloaded two
  /// days ago. The folder must be empty or not there yet. Fails with a text for people to read.
  /// Blocks on the disk.
  [[nodiscard]] std::expected<void, QString> write(DemoUser visitor) const;
};

}  // namespace quillmere::demo
