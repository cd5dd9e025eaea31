#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

#include <cstdint>

#include "platform/FileUrl.h"

namespace quillmere {

/// A prefix whose `bin/brew` prints as many bytes as it is told.
class ChattyPrefix {
 public:
  explicit ChattyPrefix(std::int64_t bytes);

  [[nodiscard]] QString brew() const { return folder_.filePath(QStringLiteral("bin/brew")); }

  [[nodiscard]] QUrl url() const { return fileUrl(folder_.path()); }

  /// The floor of every run: the child is started and its output read by a plain loop and thrown
  /// away.
  void readInAPlainLoop() const;

 private:
  QTemporaryDir folder_;
};

}  // namespace quillmere
