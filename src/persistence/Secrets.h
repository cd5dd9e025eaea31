#pragma once

#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace quillmere {

/// Knows what must not be kept though a command has printed it: passwords in addresses, access
/// tokens, and what the environment holds under names like HOMEBREW_GITHUB_API_TOKEN. It knows no
/// other secret by its looks. Immutable; any thread.
class Secrets {
 public:
  explicit Secrets(const QProcessEnvironment& environment);

  /// `text` with "•••" for each of them.
  [[nodiscard]] QString redacted(QString text) const;

  /// In characters: if a text is cut, this much at its end may be the beginning of a secret.
  [[nodiscard]] qsizetype longest() const { return longest_; }

 private:
  QStringList values_;
  /// At least that of a token or of a name with a password.
  qsizetype longest_ = 256;
};

}  // namespace quillmere
