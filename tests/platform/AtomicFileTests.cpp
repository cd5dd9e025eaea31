#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <limits>

#include "platform/AtomicFile.h"
#include "support/FullDisk.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

QStringList entriesOf(const QTemporaryDir& folder) {
  return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

TEST(AtomicFile, MakesAFileThatWasNotThere) {
  const QTemporaryDir folder;
  EXPECT_TRUE(replaceFile(folder.filePath(u"a.json"_s), "new"));
  EXPECT_EQ(contentOf(folder.filePath(u"a.json"_s)), "new");
  EXPECT_EQ(entriesOf(folder), QStringList(u"a.json"_s));
}

TEST(AtomicFile, ReplacesTheWholeContent) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"a.json"_s);
  ASSERT_TRUE(replaceFile(path, QByteArray(100'000, 'o')));
  EXPECT_TRUE(replaceFile(path, "new"));
  EXPECT_EQ(contentOf(path), "new");
  EXPECT_TRUE(replaceFile(path, ""));
  EXPECT_EQ(contentOf(path), "");
}

TEST(AtomicFile, LeavesTheOldFileToAReaderThatHasItOpen) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"a.json"_s);
  ASSERT_TRUE(replaceFile(path, "old"));
  QFile reader(path);
  ASSERT_TRUE(reader.open(QFile::ReadOnly));
  ASSERT_TRUE(replaceFile(path, "new"));
  EXPECT_EQ(reader.readAll(), "old");
}

/// The sizes lie below, at and above what a file buffers before it writes.
TEST(AtomicFile, KeepsTheOldContentOnAFullDisk) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"a.json"_s);
  ASSERT_TRUE(replaceFile(path, "old"));
  for (const qsizetype size : {101, 5'000, 16'384, 16'385, 100'000, 3'000'000}) {
    EXPECT_TRUE(test::runWithDiskLimit(100, [&] {
      return !replaceFile(path, QByteArray(size, 'n'));
    })) << size;
    EXPECT_EQ(contentOf(path), "old") << size;
    EXPECT_EQ(entriesOf(folder), QStringList(u"a.json"_s)) << size;
  }
  EXPECT_TRUE(test::runWithDiskLimit(100, [&] { return replaceFile(path, QByteArray(100, 'n')); }));
  EXPECT_EQ(contentOf(path), QByteArray(100, 'n'));
}

TEST(AtomicFile, KeepsTheOldContentWhereTheFolderCannotBeWritten) {
  EXPECT_TRUE(test::runUnprivileged([] {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.json"_s);
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const bool isKept = replaceFile(path, "old") &&
                        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner) &&
                        !replaceFile(path, "new") && contentOf(path) == "old";
    return QFile::setPermissions(folder.path(), owner) && isKept;
  }));
}

TEST(AtomicFile, RefusesAFolderAndAFileInNoFolder) {
  const QTemporaryDir folder;
  EXPECT_FALSE(replaceFile(folder.path(), "new"));
  EXPECT_FALSE(replaceFile(folder.filePath(u"nowhere/a.json"_s), "new"));
  EXPECT_FALSE(replaceFile(QString(), "new"));
}

TEST(AtomicFile, KnowsWhetherThereIsRoomForAnother) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"a.json"_s);
  EXPECT_TRUE(hasFreeSpaceFor(path, 100'000));
  EXPECT_TRUE(test::runWithDiskLimit(100, [&] { return hasFreeSpaceFor(path, 100); }));
  EXPECT_TRUE(test::runWithDiskLimit(100, [&] { return !hasFreeSpaceFor(path, 101); }));
  EXPECT_FALSE(hasFreeSpaceFor(path, std::numeric_limits<qint64>::max()));
  EXPECT_FALSE(hasFreeSpaceFor(folder.filePath(u"nowhere/a.json"_s), 100));
  EXPECT_TRUE(entriesOf(folder).isEmpty());
}

}  // namespace
}  // namespace quillmere
