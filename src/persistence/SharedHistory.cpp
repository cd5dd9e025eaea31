#include "persistence/SharedHistory.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

constexpr QByteArrayView none = "[]";

/// How long to wait for the lock. Longer than any write takes, but finite: a process that was
/// stopped while it holds the lock must not keep this one from quitting.
constexpr std::chrono::milliseconds patience{10'000};

/// A process killed while creating the lock leaves an empty file, which only its age makes stale. A
/// lock held by a live process is never broken, because QLockFile also holds a flock.
constexpr std::chrono::milliseconds voidAfter = patience / 2;

/// Concatenates two JSON arrays; `first` must have been written by `encodeCommandHistory`.
QByteArray joined(QByteArray first, const QByteArray& second) {
  const QByteArrayView rest = QByteArrayView(second).sliced(second.indexOf('[') + 1);
  const bool needsComma = first != none && !rest.trimmed().startsWith(']');
  first.chop(1);
  if (needsComma) {
    first += ',';
  }
  return first += rest;
}

}  // namespace

SharedHistory::SharedHistory(SettingsFile file) : file_(std::move(file)) {
}

std::optional<CommandHistory> SharedHistory::prepend(const CommandHistoryRecord& record) {
  unwritten_.prepend(record);
  return synchronize();
}

void SharedHistory::replace(const CommandHistory& history) {
  unwritten_ = history;
  replaces_ = true;
  (void)synchronize();
}

std::optional<CommandHistory> SharedHistory::synchronize() {
  QLockFile lock(file_.name() + ".history.lock"_L1);
  lock.setStaleLockTime(static_cast<int>(voidAfter.count()));
  // The lock stands beside the settings, whose folder may not be there yet.
  const bool mayWrite = hasUnwritten() && QDir().mkpath(QFileInfo(file_.name()).path()) &&
                        lock.tryLock(static_cast<int>(patience.count()));
  auto base = replaces_ ? none.toByteArray() : file_.readBytes(key);
  if (!base) {
    return std::nullopt;
  }
  std::optional<CommandHistory> all;
  if (!replaces_ && base != known_) {
    const auto others = decodeCommandHistory(*base);
    // A value that cannot be decoded as a history is overwritten.
    base = others ? *base : none.toByteArray();
    all = unwritten_ + others.value_or(CommandHistory());
  }
  known_ = base;
  if (mayWrite) {
    store(joined(encodeCommandHistory(unwritten_), *base));
  }
  return all;
}

void SharedHistory::store(const QByteArray& json) {
  if (file_.write({{key, json}})) {
    known_ = json;
    unwritten_.clear();
    replaces_ = false;
  }
}

}  // namespace quillmere
