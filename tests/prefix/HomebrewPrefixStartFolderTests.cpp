#include <QtCore/QDir>
#include <QtCore/QSet>

#include <gtest/gtest.h>

#include "prefix/HomebrewPrefixStartFolder.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

/// A machine on which only the named folders exist.
class Machine : public HomebrewPrefixFileSystem {
 public:
  explicit Machine(QSet<QString> folders) : folders_(std::move(folders)) {}

  [[nodiscard]] bool fileExists(const QString& path) const override {
    return folders_.contains(path);
  }

  [[nodiscard]] bool isReadableFile(const QString& path) const override { return fileExists(path); }

  [[nodiscard]] std::expected<QList<QUrl>, FileSystemError> contentsOfDirectory(
      const QUrl&) const override {
    return QList<QUrl>();
  }

  [[nodiscard]] std::expected<QByteArray, FileSystemError> readData(const QUrl&) const override {
    return QByteArray();
  }

 private:
  QSet<QString> folders_;
};

const QString usual = QStringLiteral("/opt/homebrew");
const QString usualOnLinux = QStringLiteral("/home/linuxbrew/.linuxbrew");

TEST(HomebrewPrefixStartFolder, IsTheUsualPrefixWhereItExists) {
  EXPECT_EQ(homebrewPrefixStartFolder(Machine({usual, usualOnLinux})).toLocalFile(), usual);
}

TEST(HomebrewPrefixStartFolder, IsTheLinuxPrefixWhereOnlyThatExists) {
  EXPECT_EQ(homebrewPrefixStartFolder(Machine({usualOnLinux})).toLocalFile(), usualOnLinux);
}

TEST(HomebrewPrefixStartFolder, IsHomeWhereNeitherExists) {
  EXPECT_EQ(homebrewPrefixStartFolder(Machine({})).toLocalFile(), QDir::homePath());
}

}  // namespace
}  // namespace quillmere
