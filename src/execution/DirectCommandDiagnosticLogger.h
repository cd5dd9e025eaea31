#pragma once

#include <QtCore/QString>

#include <memory>

#include "execution/OutputChunkStream.h"

namespace quillmere {

/// A line of our own in the output of a run, as it is shown: "[quillmere] " and the message.
[[nodiscard]] QString diagnosticLine(const QString& message);

/// Puts our own lines into the stream of a run. Any thread.
class DirectCommandDiagnosticLogger {
 public:
  explicit DirectCommandDiagnosticLogger(std::shared_ptr<OutputChunkStream> stream);

  void log(const QString& message) const;

 private:
  std::shared_ptr<OutputChunkStream> stream_;
};

}  // namespace quillmere
