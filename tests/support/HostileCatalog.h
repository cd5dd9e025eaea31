#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

namespace quillmere {

/// What a document can put where a name or a version belongs, to deceive, to fetch something from
/// `bait`, to be taken for an option, a file or a shell's words, or to keep the window from
/// answering.
[[nodiscard]] QStringList hostileTexts(const QUrl& bait);

/// The same for the names of folders.
[[nodiscard]] QStringList hostileFolderNames();

/// Documents that hold each hostile text in all of their fields, and a formula with a hundred
/// thousand dependencies. The tokens of the casks are such that Homebrew could know them.
[[nodiscard]] QByteArray hostileFormulaDocument(const QUrl& bait);
[[nodiscard]] QByteArray hostileCaskDocument(const QUrl& bait);

}  // namespace quillmere
