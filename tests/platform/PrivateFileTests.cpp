#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/PrivateFile.h"
#include "support/PermissionBits.h"
#include "support/UnprivilegedUser.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::permissionBits;

TEST(PrivateFile, IsMadeForItsOwnerAloneWithItsFolder) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"new/folder/file"_s);
  ensurePrivateFile(path);
  EXPECT_EQ(permissionBits(path), 0600);
  EXPECT_EQ(QFile(path).size(), 0);
}

TEST(PrivateFile, KeepsWhatItHoldsAndLosesItsReaders) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"file"_s);
  QFile file(path);
  ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("x") == 1);
  file.close();
  for (const bool makesOne : {true, false}) {
    ASSERT_TRUE(file.setPermissions(ownerOnly | QFile::ReadGroup | QFile::ReadOther));
    makesOne ? ensurePrivateFile(path) : restrictToOwner(path);
    EXPECT_EQ(permissionBits(path), 0600);
    EXPECT_EQ(file.size(), 1);
  }
}

TEST(PrivateFile, IsNotMadeByARestriction) {
  const QTemporaryDir folder;
  restrictToOwner(folder.filePath(u"file"_s));
  EXPECT_FALSE(QFile::exists(folder.filePath(u"file"_s)));
}

TEST(PrivateFile, IsNoFolder) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)));
  ensurePrivateFile(folder.path());
  EXPECT_EQ(permissionBits(folder.path()), 0755);
}

TEST(PrivateFile, IsNoneWhereTheFolderRefuses) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
  EXPECT_TRUE(test::runUnprivileged([&] {
    ensurePrivateFile(folder.filePath(u"folder/file"_s));
    ensurePrivateFile(folder.filePath(u"file"_s));
    return !QFile::exists(folder.filePath(u"file"_s));
  }));
  QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}  // namespace
}  // namespace quillmere
