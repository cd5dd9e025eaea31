#include <QtCore/QFile>
#include <QtTest/QTest>

#include <algorithm>

#include "screens/run/SessionView.h"
#include "support/BackgroundThreadBlocker.h"
#include "support/Rounds.h"

namespace quillmere::test {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 megabyte = 1'000'000;
/// Where a line without end is cut.
constexpr qsizetype longestLine = 64Z * 1024;

/// What this process has in memory, in bytes.
qint64 residentBytes() {
  QFile file(u"/proc/self/statm"_s);
  return file.open(QFile::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * 4096 : 0;
}

class HostileOutput : public SessionView {
 protected:
  static constexpr int patience = 600'000;

  [[nodiscard]] qsizetype lengthOfRow(int row) const {
    return model->rawOutput()->index(row).data(RawOutputListModel::TextRole).toString().size();
  }
};

TEST_F(HostileOutput, IsOneLineThatNeverEnds) {
  const qint64 size = rounds(20, 100) * megabyte;
  view("#!/bin/sh\nhead -c " + QByteArray::number(size) + " /dev/zero | tr '\\0' x\n", upgrade);
  runToEnd(patience);
  EXPECT_EQ(controller->result()->standardOutput.size(), size);
  const int rows = model->rawOutput()->rowCount();
  // Each read adds what the pipe held, so that a cut line is at most that much longer.
  EXPECT_GE(rows, size / (2 * longestLine));
  EXPECT_LE(rows, size / longestLine + 20);
  for (int row = 0; row < rows; ++row) {
    EXPECT_LE(lengthOfRow(row), 2 * longestLine);
  }
  EXPECT_EQ(summary().size(), 4);
}

TEST_F(HostileOutput, HasNoLineFeedForLong) {
  // A progress bar that returns to the begin of its line, a few bytes at a time.
  view("#!/bin/bash\nfor i in {1..20000}; do printf '%d %%\\r' $i; done\n", upgrade);
  runToEnd(patience);
  const QStringList lines = log();
  EXPECT_TRUE(lines.contains(u"20000 %"_s));
  EXPECT_LT(lines.size(), 20);
}

TEST_F(HostileOutput, ComesByteByByte) {
  const int writes = rounds(20'000, 2'000'000);
  view(
      "#!/bin/sh\nexec dd if=/dev/zero bs=1 status=none count=" + QByteArray::number(writes) + '\n',
      upgrade);
  const qint64 before = residentBytes();
  runToEnd(patience);
  EXPECT_EQ(controller->result()->standardOutput.size(), writes);
  // A byte that came alone is kept with the time when it came.
  constexpr qint64 bytesPerWrite = 400;
  EXPECT_LT(residentBytes() - before, 50 * megabyte + writes * bytesPerWrite);
}

TEST_F(HostileOutput, IsKeptInAFewTimesItsSize) {
  const qint64 size = rounds(30, 1074) * megabyte;
  view("#!/bin/sh\nyes 'a line as long as the lines of a build log are, or nearly' | head -c " +
           QByteArray::number(size) + '\n',
       upgrade);
  const qint64 before = residentBytes();
  runToEnd(patience);
  const qint64 kept = residentBytes() - before;
  RecordProperty("keptTimes100", static_cast<int>(100 * kept / size));
  EXPECT_EQ(controller->result()->standardOutput.size(), size);
  EXPECT_EQ(controller->status(), DirectExecutionSessionStatus(SessionCompleted{0}));
  EXPECT_GT(model->rawOutput()->rowCount(), size / 60);
  EXPECT_LT(kept, 50 * megabyte + 4 * size);
}

TEST_F(HostileOutput, IsNothingButLineFeeds) {
  const qint64 size = rounds(1, 300) * megabyte;
  view("#!/bin/sh\nhead -c " + QByteArray::number(size) + " /dev/zero | tr '\\0' '\\n'\n", upgrade);
  runToEnd(patience);
  EXPECT_GE(model->rawOutput()->rowCount(), size);
  EXPECT_TRUE(summary().isEmpty());
}

TEST_F(HostileOutput, IsShownPieceByPieceHoweverMuchWaits) {
  view("#!/bin/sh\nyes 'a line as long as the lines of a build log are' | head -c 24000000\n",
       upgrade);
  QSignalSpy settled(model.get(), &DirectExecutionSessionViewModel::outputSettled);
  const QSignalSpy grew(model.get(), &DirectExecutionSessionViewModel::rawOutputGrew);
  {
    const BackgroundThreadBlocker held;
    controller->start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return controller->result().has_value(); }, patience));
    EXPECT_EQ(grew.count(), 0);
  }
  ASSERT_TRUE(settled.wait(patience));
  EXPECT_GE(grew.count(), 3);
  EXPECT_GT(model->rawOutput()->rowCount(), 24'000'000 / 48);
}

TEST_F(HostileOutput, ComesDuringALookAndIsFollowedByNothing) {
  view(
      "#!/bin/sh\ncd \"${0%/*}/..\"\necho one\nuntil [ -e go ]; do sleep 0.01; done\n"
      "echo two\nwhile [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\n",
      upgrade);
  const auto hasPrinted = [this](const QByteArray& line) {
    const auto& chunks = controller->outputChunks();
    return std::ranges::find(chunks, line, &DirectExecutionOutputChunk::text) != chunks.end();
  };
  {
    const BackgroundThreadBlocker held;
    controller->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasPrinted("one\n"); }, patience));
    QTest::qWait(300);  // a look at it has begun
    prefix.withFile(u"go"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasPrinted("two\n"); }, patience));
    QTest::qWait(300);  // another was due
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return log().contains(u"two"_s); }, 20'000));
  EXPECT_TRUE(model->isRunning());
  prefix.withFile(u"release"_s);
}

TEST_F(HostileOutput, FloodsUntilItIsCancelled) {
  auto& session =
      view("#!/bin/bash\nprintf -v line '%08000d' 0\nwhile :; do echo $line; done\n", upgrade);
  QSignalSpy settled(model.get(), &DirectExecutionSessionViewModel::outputSettled);
  controller->start();
  ASSERT_TRUE(
      QTest::qWaitFor([&session] { return session.rawOutput()->rowCount() > 1000; }, patience));
  session.cancel();
  ASSERT_TRUE(settled.count() > 0 || settled.wait(patience));
  EXPECT_EQ(session.statusText(), u"Cancelled"_s);
}

TEST_F(HostileOutput, FloodsWhenItsSessionIsClosed) {
  view("#!/bin/sh\nyes & echo $! > \"${0%/*}/../flood\"\nwait\n", upgrade);
  controller->start();
  ASSERT_TRUE(QTest::qWaitFor([this] { return model->rawOutput()->rowCount() > 1000; }, patience));
  controller->cancel();
  model.reset();
  controller.reset();
  QFile flood(prefix.pathOf(u"flood"_s));
  ASSERT_TRUE(flood.open(QFile::ReadOnly));
  const QString process = u"/proc/"_s + QString::fromLatin1(flood.readAll().trimmed()) + u"/exe"_s;
  EXPECT_TRUE(
      QTest::qWaitFor([&process] { return QFile::symLinkTarget(process).isEmpty(); }, patience));
}

}  // namespace
}  // namespace quillmere::test
