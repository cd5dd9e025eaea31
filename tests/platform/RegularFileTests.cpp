#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/RegularFile.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

class RegularFile : public testing::Test {
 protected:
  QString withContent(const QByteArray& content) {
    QFile file(pathOf(u"file"_s));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
  }

  [[nodiscard]] QString pathOf(const QString& name) const { return folder_.filePath(name); }

 private:
  QTemporaryDir folder_;
};

TEST_F(RegularFile, IsReadAsAWhole) {
  const QByteArray content = QByteArray("\0\xFF document\n", 12).repeated(100'000);
  EXPECT_EQ(readRegularFile(withContent(content)).value(), content);
}

TEST_F(RegularFile, MayBeEmpty) {
  EXPECT_EQ(readRegularFile(withContent({})).value(), QByteArray());
}

TEST_F(RegularFile, LeavesRoomBehindItsBytes) {
  const auto bytes = readRegularFile(withContent("[]"));
  EXPECT_GE(bytes.value().capacity(), 2 + readAheadPadding);
}

TEST_F(RegularFile, IsReadToItsEndWhereItsSizeIsUnknown) {
  const auto bytes = readRegularFile(u"/proc/self/status"_s);
  EXPECT_TRUE(bytes.value().contains("\nPid:"));
  EXPECT_TRUE(bytes.value().endsWith('\n'));
}

TEST_F(RegularFile, ThatIsMissingHasAnErrorInThePlatformsWords) {
  EXPECT_EQ(readRegularFile(pathOf(u"nothing"_s)).error(), u"No such file or directory"_s);
}

TEST_F(RegularFile, IsNoFolder) {
  EXPECT_EQ(readRegularFile(pathOf(u"."_s)).error(), u"Is a directory"_s);
}

TEST_F(RegularFile, IsNoDevice) {
  EXPECT_EQ(readRegularFile(u"/dev/zero"_s).error(), u"Invalid argument"_s);
}

TEST_F(RegularFile, IsNoPipeToWaitFor) {
  const QString pipe = pathOf(u"pipe"_s);
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
  EXPECT_EQ(readRegularFile(pipe).error(), u"Invalid argument"_s);
}

}  // namespace
}  // namespace quillmere
