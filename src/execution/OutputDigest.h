#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QStringList>
#include <QtCore/QStringView>

#include "commands/BrewCommand.h"

namespace quillmere {

/// All that the summary of one operation needs to know of a text, however long the text is: line
/// counts and the few first lines that a row may quote. Lines are added as they arrive, so that a
/// summary costs nothing per line that came before. A value; build it on any thread.
class OutputDigest {
 public:
  explicit OutputDigest(BrewCommandOperation operation) : operation_(operation) {}

  bool operator==(const OutputDigest&) const = default;

  /// Adds one line; one that is blank after trimming does not count.
  void addLine(QStringView line);
  /// The same for a line as the child wrote it (UTF-8, no line feed), of which the text that a
  /// terminal would leave standing is taken. The other line breaks of Unicode, a carriage return
  /// apart, split it further.
  void addOutputLine(QByteArrayView line);
  /// Adds the lines of `later` behind those of this digest, which is of the same operation.
  void append(const OutputDigest& later);

  [[nodiscard]] BrewCommandOperation operation() const { return operation_; }

  [[nodiscard]] bool hasOutput() const { return lineCount_ > 0; }

  [[nodiscard]] qsizetype lineCount() const { return lineCount_; }

  /// The first lines, as many as any row quotes.
  [[nodiscard]] const QStringList& firstLines() const { return firstLines_; }

  /// The first notable lines of a change (an install, an upgrade, …).
  [[nodiscard]] const QStringList& notableLines() const { return notableLines_; }

  [[nodiscard]] qsizetype serviceCount() const { return serviceCount_; }

  [[nodiscard]] qsizetype startedCount() const { return startedCount_; }

  [[nodiscard]] qsizetype stoppedCount() const { return stoppedCount_; }

  [[nodiscard]] const QStringList& firstServiceLines() const { return firstServiceLines_; }

 private:
  [[nodiscard]] bool mayQuote(QByteArrayView plainLine) const;
  void addServiceLine(QStringView line);

  BrewCommandOperation operation_;
  qsizetype lineCount_ = 0;
  QStringList firstLines_;
  QStringList notableLines_;
  qsizetype serviceCount_ = 0;
  qsizetype startedCount_ = 0;
  qsizetype stoppedCount_ = 0;
  QStringList firstServiceLines_;
};

}  // namespace quillmere
