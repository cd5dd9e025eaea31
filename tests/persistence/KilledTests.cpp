#include <QtCore/QRandomGenerator>

#include <gtest/gtest.h>
#include <unistd.h>

#include "StoreFixture.h"
#include "support/ForkedProcess.h"
#include "support/PermissionBits.h"
#include "support/Rounds.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::copyOf;

/// What was written in which order; -1 before the first.
struct Written {
  int prefixPath = -1;
  int history = -1;
  int document = -1;
};

/// A program that writes numbered states until it is killed.
class KilledProgram : public test::StoreFixture {
 protected:
  static constexpr qsizetype documentSize = 8'000'000;

  static QByteArray document(int number) {
    const QByteArray name = QByteArray::number(number).rightJustified(9, '0');
    return name.repeated(documentSize / name.size());
  }

  /// Of very different lengths, so that a torn one is noticed.
  static QString prefixOf(int number) {
    return u"/a"_s + QString(number % 5000, u'a') + u'/' + QString::number(number);
  }

  /// Killed before it put its name into a lock file, a program leaves one that the next has to wait
  /// half a minute for, since it cannot know whose it is. That is safe, and too long for a test.
  void removeUnsignedLocks() const {
    const QFileInfo settings(settings_.open()->fileName());
    const QFileInfoList locks = settings.dir().entryInfoList({settings.fileName() + u".*lock"_s});
    for (const QFileInfo& lock : locks) {
      if (lock.size() == 0) {
        EXPECT_TRUE(QFile::remove(lock.filePath()));
      }
    }
  }

  /// Tells on the pipe what is on the disk.
  void write(int pipe) const {
    const auto store = start();
    for (int i = static_cast<int>(store->commandHistory().size());; ++i) {
      store->selectPrefix(QUrl::fromLocalFile(prefixOf(i)));
      store->appendHistory(copyOf(QString::number(i)));
      QCoro::waitFor(store->saveFormulaCatalog(document(i), test::monday));
      QCoro::waitFor(store->flush());
      (void)::write(pipe, &i, sizeof i);
    }
  }

  /// The last state that was told to be on the disk; -1 where none was.
  [[nodiscard]] int killAt(std::chrono::microseconds moment) const {
    int ends[2] = {};
    EXPECT_EQ(pipe(ends), 0);
    const pid_t program = test::runForked([&] {
      close(ends[0]);
      test::killSelfAfter(moment);
      write(ends[1]);
    });
    close(ends[1]);
    EXPECT_TRUE(test::wasKilled(program));
    removeUnsignedLocks();
    int last = -1;
    while (::read(ends[0], &last, sizeof last) == sizeof last) {
    }
    close(ends[0]);
    return last;
  }

  /// What a later start finds, each of it whole.
  [[nodiscard]] Written found() const {
    const auto store = start();
    Written written;
    const CommandHistory history = store->commandHistory();
    written.history = static_cast<int>(history.size()) - 1;
    for (int i = 0; i <= written.history; ++i) {
      EXPECT_EQ(history[i].command, QString::number(written.history - i));
    }
    if (const auto& path = store->selectedHomebrewPrefixPath()) {
      written.prefixPath = path->sliced(path->lastIndexOf(u'/') + 1).toInt();
      EXPECT_EQ(*path, prefixOf(written.prefixPath));
      EXPECT_EQ(store->resolvedPrefixURL(), QUrl::fromLocalFile(*path)) << "another's bookmark";
    }
    const QByteArray content = contentOf(u"formula.json"_s);
    if (content != "(none)") {
      written.document = content.first(9).toInt();
      EXPECT_TRUE(content == document(written.document)) << "a torn document";
    }
    return written;
  }
};

TEST_F(KilledProgram, LeavesTheOldStateOrTheNewOne) {
  // From the start of the process to a good many states; as reproducible as a race can be.
  constexpr int latest = 120'000;
  QRandomGenerator moments(20'261'121);
  int told = -1;
  int statesInAll = 0;
  for (int round = 0; round < test::rounds(30, 1000); ++round) {
    const int last = killAt(std::chrono::microseconds(moments.bounded(latest)));
    told = std::max(told, last);
    const Written written = found();
    ASSERT_GE(written.history, told) << "lost in round " << round;
    ASSERT_GE(written.prefixPath, told);
    ASSERT_LE(written.prefixPath - written.history, 1);
    // The next start goes on behind the history, whatever became of the document.
    ASSERT_GE(written.document, last);
    ASSERT_LE(written.document, written.history + 1);
    statesInAll = std::max(statesInAll, written.history);
  }
  EXPECT_GT(statesInAll, 0) << "killed before anything was written: it proves nothing";
}

}  // namespace
}  // namespace quillmere
