#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>

#include "platform/FileDescriptor.h"
#include "platform/RegularFile.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quillmere {
namespace {

constexpr qint64 maximumBytes = qint64{2} * 1024 * 1024;

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
  EXPECT_EQ(readRegularFile(withContent(content), maximumBytes).value(), content);
}

TEST_F(RegularFile, MayBeEmpty) {
  EXPECT_EQ(readRegularFile(withContent({}), maximumBytes).value(), QByteArray());
}

TEST_F(RegularFile, LeavesRoomBehindItsBytes) {
  const auto bytes = readRegularFile(withContent("[]"), maximumBytes);
  EXPECT_TRUE(hasParserPadding(bytes.value()));
}

TEST_F(RegularFile, IsReadToItsEndWhereItsSizeIsUnknown) {
  const auto bytes = readRegularFile(u"/proc/self/status"_s, maximumBytes);
  EXPECT_TRUE(bytes.value().contains("\nPid:"));
  EXPECT_TRUE(bytes.value().endsWith('\n'));
  EXPECT_TRUE(hasParserPadding(bytes.value()));
}

TEST_F(RegularFile, IsAsLargeAsIsAskedForAndNoLarger) {
  const QByteArray content(10'000, 'x');
  EXPECT_EQ(readRegularFile(withContent(content), 10'000).value(), content);
  EXPECT_EQ(readRegularFile(withContent(content), 9'999).error(), u"File too large"_s);
}

TEST_F(RegularFile, OfASizeThatNoMemoryHasIsRefusedUnread) {
  QFile sparse(withContent("{}"));
  constexpr qint64 terabyte = qint64{1} << 40;
  if (!sparse.resize(terabyte)) {
    GTEST_SKIP() << "no disk here takes files of such a size";
  }
  EXPECT_EQ(readRegularFile(sparse.fileName(), maximumBytes).error(), u"File too large"_s);
}

/// It says that it is empty and goes on for as long as the address space does.
TEST_F(RegularFile, WithoutAnEndIsGivenUp) {
  const QString endless = u"/proc/self/pagemap"_s;
  QFile file(endless);
  if (!file.open(QFile::ReadOnly) || file.read(8).size() != 8) {
    GTEST_SKIP() << "no file here has no end";
  }
  EXPECT_EQ(readRegularFile(endless, maximumBytes).error(), u"File too large"_s);
}

TEST_F(RegularFile, ThatGrowsMeanwhileIsRead) {
  const QString path = withContent("{}");
  std::jthread writer([&path](const std::stop_token& stop) {
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::WriteOnly | QFile::Append));
    for (int i = 0; i < 1000 && !stop.stop_requested(); ++i) {
      file.write(QByteArray(1000, ' '));
      file.flush();
    }
  });
  for (int i = 0; i < 200; ++i) {
    const auto bytes = readRegularFile(path, maximumBytes);
    ASSERT_TRUE(bytes) << bytes.error().toStdString();
    ASSERT_TRUE(bytes->startsWith("{}"));
    ASSERT_EQ(bytes->trimmed(), "{}");
  }
}

/// What the platform sets aside in powers of two is hardly more here than the file grows to.
TEST_F(RegularFile, LeavesRoomBehindItsBytesWhereItGrowsMeanwhile) {
  constexpr qint64 small = (qint64{1} << 20) - 20;
  constexpr qint64 large = 2 * small + 1;
  const QString path = withContent({});
  std::atomic_bool isWriting = true;
  const std::jthread writer([&] {
    for (int i = 0; i < 300; ++i) {
      EXPECT_TRUE(QFile::resize(path, small));
      std::this_thread::sleep_for(100us);
      EXPECT_TRUE(QFile::resize(path, large));
      std::this_thread::sleep_for(500us);
    }
    isWriting = false;
  });
  while (isWriting) {
    const auto bytes = readRegularFile(path, large);
    ASSERT_TRUE(bytes) << bytes.error().toStdString();
    ASSERT_TRUE(hasParserPadding(*bytes)) << bytes->size();
  }
}

TEST_F(RegularFile, IsNoSocket) {
  const QByteArray path = QFile::encodeName(pathOf(u"socket"_s));
  sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
  ASSERT_LT(path.size(), qsizetype{sizeof(address.sun_path)});
  std::ranges::copy(path, address.sun_path);
  const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
  ASSERT_EQ(bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_FALSE(readRegularFile(QFile::decodeName(path), maximumBytes));
}

TEST_F(RegularFile, ThatIsMissingHasAnErrorInThePlatformsWords) {
  EXPECT_EQ(readRegularFile(pathOf(u"nothing"_s), maximumBytes).error(),
            u"No such file or directory"_s);
}

TEST_F(RegularFile, IsNoFolder) {
  EXPECT_EQ(readRegularFile(pathOf(u"."_s), maximumBytes).error(), u"Is a directory"_s);
}

TEST_F(RegularFile, IsNoDevice) {
  EXPECT_EQ(readRegularFile(u"/dev/zero"_s, maximumBytes).error(), u"Invalid argument"_s);
}

TEST_F(RegularFile, IsNoPipeToWaitFor) {
  const QString pipe = pathOf(u"pipe"_s);
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
  EXPECT_EQ(readRegularFile(pipe, maximumBytes).error(), u"Invalid argument"_s);
}

}  // namespace
}  // namespace quillmere
