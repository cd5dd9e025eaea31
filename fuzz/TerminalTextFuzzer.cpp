#include <algorithm>
#include <cstdint>

#include "platform/TerminalText.h"
#include "require.h"

using quillmere::require;

namespace {

bool isAllowed(QChar character) {
  return character == u'\t' || character.category() != QChar::Other_Control;
}

}  // namespace

// The standing text of any line holds no control character but tabs, is no longer than a terminal
// could have made it, and stands as it is when it is written again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArrayView line(data, static_cast<qsizetype>(size));
  const QString text = quillmere::terminalText(line);
  require(std::ranges::all_of(text, isAllowed));
  require(text.size() <= 2 * line.size() + 512);
  require(quillmere::terminalText(text.toUtf8()) == text);
  return 0;
}
