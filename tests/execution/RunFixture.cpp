#include "execution/RunFixture.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <gtest/gtest.h>
#include <utility>

#include "platform/FileUrl.h"

namespace quillmere::test {

BrewExecutableResolution resolved(const TestPrefix& prefix) {
  return {BrewExecutableResolution::Status::resolved, prefix.url(),
          appendingPath(prefix.url(), u"bin/brew")};
}

BrewCommand infoCommand() {
  return {.id = QUuid::createUuid(),
          .commandText = QStringLiteral("brew info wget"),
          .operation = BrewCommandOperation::info,
          .target = {BrewCommandTargetKind::formula, QStringLiteral("wget")}};
}

QByteArray FinishedRun::text(DirectExecutionOutputStream stream) const {
  QByteArray text;
  for (const auto& chunk : chunks) {
    if (chunk.stream == stream) {
      text += chunk.text;
    }
  }
  return text;
}

QStringList FinishedRun::diagnostics() const {
  QStringList lines;
  for (const auto& chunk : chunks) {
    if (chunk.stream == DirectExecutionOutputStream::diagnostic) {
      EXPECT_TRUE(chunk.text.startsWith("[quillmere] ") && chunk.text.endsWith('\n'));
      lines += QString::fromUtf8(chunk.text.chopped(1)).sliced(12);
    }
  }
  return lines;
}

std::shared_ptr<DirectCommandExecution> startRun(const TestPrefix& prefix,
                                                 const BrewCommand& command) {
  const auto execution = DirectCommandRunner().start(command, resolved(prefix));
  return execution.value();
}

FinishedRun finish(const std::shared_ptr<DirectCommandExecution>& execution) {
  const DirectCommandOutcome outcome = execution->result().result();
  auto chunks = execution->output()->take();
  EXPECT_TRUE(hasFinished(*execution->output()));
  return {outcome.value(), std::move(chunks)};
}

bool hasFinished(OutputChunkStream& stream) {
  stream.yield({});
  return stream.take().empty();
}

FinishedRun runScript(const QByteArray& script) {
  TestPrefix prefix;
  return finish(startRun(prefix.withBrew(script)));
}

bool waitForFile(const QString& path) {
  return QTest::qWaitFor([&path] { return QFile::exists(path); }, 20'000);
}

qint64 sessionOf(const FinishedRun& run) {
  const QStringList lines = run.diagnostics();
  for (const QString& line : lines) {
    if (line.startsWith(QStringLiteral("Process launched with pid "))) {
      return line.section(u' ', 4, 4).chopped(1).toLongLong();
    }
  }
  return 0;
}

qsizetype openDescriptors() {
  return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoFilter).size();
}

QStringList livingProcessesOfSession(qint64 session) {
  // On its way out a process lets go of its pipes some time before it is a zombie; the kernel says
  // so with this flag.
  constexpr uint exiting = 0x4;
  QStringList living;
  const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
  for (const QString& pid : entries) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    const QByteArray stat = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    if (stat.isEmpty()) {
      continue;  // gone since the folder was listed
    }
    const QList<QByteArray> fields = stat.sliced(stat.lastIndexOf(')') + 2).split(' ');
    const bool hasEnded = fields.value(0) == "Z" || (fields.value(6).toUInt() & exiting) != 0;
    if (fields.value(3).toLongLong() == session && !hasEnded) {
      living += pid;
    }
  }
  return living;
}

}  // namespace quillmere::test
