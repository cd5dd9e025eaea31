#include "execution/RemainingOutput.h"

#include <algorithm>
#include <array>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr auto graceAfterExit = 500ms;

}  // namespace

pollfd listenTo(const FileDescriptor& fd) {
  return {.fd = fd.get(), .events = POLLIN, .revents = 0};
}

void readIfReady(FileHandleDataReader& reader, const pollfd& entry) {
  if (entry.revents != 0 && reader.readAvailable() == FileHandleDataReader::State::atEnd) {
    reader.finish();
  }
}

void readRemainingOutput(FileHandleDataReader& standardOutput, FileHandleDataReader& standardError,
                         const SteadyNow& now) {
  const auto deadline = now() + graceAfterExit;
  const std::array readers{&standardOutput, &standardError};
  const auto isOpen = [](const FileHandleDataReader* reader) {
    return reader->fileHandle().isOpen();
  };
  bool isOver = false;
  while (!isOver && std::ranges::any_of(readers, isOpen)) {
    // This thread may get no time for longer than the grace: what is there is read first, at least
    // as much as a pipe holds, and only then is the clock looked at.
    const auto left = std::chrono::duration_cast<milliseconds>(deadline - now());
    std::array entries = {listenTo(standardOutput.fileHandle()),
                          listenTo(standardError.fileHandle())};
    const int ready =
        poll(entries.data(), entries.size(), static_cast<int>(std::max(left, 0ms).count()));
    if (ready > 0) {
      readIfReady(standardOutput, entries[0]);
      readIfReady(standardError, entries[1]);
    }
    isOver = ready == 0 || left < 0ms;
  }
  for (FileHandleDataReader* const reader : readers) {
    if (isOpen(reader)) {
      reader->finish();
    }
  }
}

}  // namespace quillmere
