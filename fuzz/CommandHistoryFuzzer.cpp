#include "persistence/CommandHistory.h"
#include "require.h"

/// Whatever the settings hold, reading it does not crash, and what was read once is read again the
/// same after it was written.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const auto history = quillmere::decodeCommandHistory(json);
  quillmere::require(!history || quillmere::decodeCommandHistory(
                                     quillmere::encodeCommandHistory(*history)) == history);
  return 0;
}
