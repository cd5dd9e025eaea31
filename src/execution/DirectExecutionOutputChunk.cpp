#include "execution/DirectExecutionOutputChunk.h"

namespace quillmere {

DirectExecutionOutputChunk makeChunk(DirectExecutionOutputStream stream, const QByteArray& text) {
  return {QUuid::createUuid(), stream, text, QDateTime::currentDateTimeUtc()};
}

}  // namespace quillmere
