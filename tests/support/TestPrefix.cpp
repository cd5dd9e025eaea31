#include "support/TestPrefix.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

namespace quillmere::test {

TestPrefix::TestPrefix() : folder_(std::in_place), path_(folder_->path()) {
  if (!folder_->isValid()) {
    ADD_FAILURE() << "No temporary folder: " << folder_->errorString().toStdString();
  }
  // The folder belongs to whoever runs the tests; those that run as nobody look into it too.
  QFile::setPermissions(path(), QFile::permissions(path()) | QFile::ReadOther | QFile::ExeOther);
}

TestPrefix::TestPrefix(const QString& path) : path_(path) {
}

QString TestPrefix::pathOf(const QString& relativePath) const {
  return path() + u'/' + relativePath;
}

TestPrefix& TestPrefix::withFolder(const QString& relativePath) {
  EXPECT_TRUE(QDir().mkpath(pathOf(relativePath)));
  return *this;
}

TestPrefix& TestPrefix::withFile(const QString& relativePath, const QByteArray& content) {
  withFolder(QFileInfo(relativePath).path());
  QFile file(pathOf(relativePath));
  EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size());
  return *this;
}

TestPrefix& TestPrefix::withBrew(const QByteArray& script) {
  const QString brew = QStringLiteral("bin/brew");
  withFile(brew, script);
  EXPECT_TRUE(QFile::setPermissions(
      pathOf(brew), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                        QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther));
  return *this;
}

TestPrefix& TestPrefix::withAllLocations() {
  withFile(QStringLiteral("Cellar/wget/1.25.0/INSTALL_RECEIPT.json"),
           R"({"installed_on_request":true})");
  withFile(QStringLiteral("Cellar/openssl@3/3.5.0/INSTALL_RECEIPT.json"),
           R"({"installed_on_request":false})");
  withFolder(QStringLiteral("Caskroom/firefox/142.0"));
  withFolder(QStringLiteral("var/homebrew/linked/wget"));
  withFile(QStringLiteral("Library/Homebrew/brew.sh"));
  withFolder(QStringLiteral("Library/Taps/homebrew"));
  withFile(QStringLiteral("var/homebrew/cache/wget--1.24.5.tar.gz"), QByteArray(4096, 'w'));
  return *this;
}

}  // namespace quillmere::test
