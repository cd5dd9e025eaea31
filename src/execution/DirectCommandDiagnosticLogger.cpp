#include "execution/DirectCommandDiagnosticLogger.h"

#include <utility>

namespace quillmere {

QString diagnosticLine(const QString& message) {
  return QStringLiteral("[quillmere] ") + message;
}

DirectCommandDiagnosticLogger::DirectCommandDiagnosticLogger(
    std::shared_ptr<OutputChunkStream> stream)
    : stream_(std::move(stream)) {
}

void DirectCommandDiagnosticLogger::log(const QString& message) const {
  stream_->yield(makeChunk(DirectExecutionOutputStream::diagnostic,
                           (diagnosticLine(message) + u'\n').toUtf8()));
}

}  // namespace quillmere
