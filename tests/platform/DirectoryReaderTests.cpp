#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/DirectoryReader.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

/// A folder with two visible entries and two hidden ones.
class VisibleEntriesOf : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    for (const QString& name : {u"file"_s, u".hidden"_s}) {
      QFile file(pathOf(name));
      ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    ASSERT_TRUE(QDir(folder_.path()).mkdir(u"folder"_s));
    ASSERT_TRUE(QDir(folder_.path()).mkdir(u".git"_s));
  }

  [[nodiscard]] QString pathOf(const QString& name) const { return folder_.filePath(name); }

  QTemporaryDir folder_;
};

QStringList namesOf(DirectoryReader& entries) {
  QStringList names;
  while (const dirent* const entry = entries.next()) {
    names += QFile::decodeName(entry->d_name);
  }
  names.sort();
  return names;
}

TEST_F(VisibleEntriesOf, AFolderLeaveOutTheHiddenOnes) {
  DirectoryReader entries(folder_.path());
  EXPECT_EQ(namesOf(entries), (QStringList{u"file"_s, u"folder"_s}));
  EXPECT_FALSE(entries.error());
  EXPECT_EQ(entries.next(), nullptr);
}

TEST_F(VisibleEntriesOf, AnEmptyFolderAreNone) {
  DirectoryReader entries(pathOf(u"folder"_s));
  EXPECT_EQ(entries.next(), nullptr);
  EXPECT_FALSE(entries.error());
}

TEST_F(VisibleEntriesOf, AFileOrOfNothingAreAnError) {
  DirectoryReader ofFile(pathOf(u"file"_s));
  EXPECT_EQ(ofFile.next(), nullptr);
  EXPECT_EQ(ofFile.error(), std::errc::not_a_directory);
  DirectoryReader ofNothing(pathOf(u"nothing"_s));
  EXPECT_EQ(ofNothing.next(), nullptr);
  EXPECT_EQ(ofNothing.error(), std::errc::no_such_file_or_directory);
}

TEST_F(VisibleEntriesOf, AFolderAreWhatTheyAreAndNotWhatTheyLeadTo) {
  ASSERT_TRUE(QFile::link(u"."_s, pathOf(u"link"_s)));
  DirectoryReader entries(folder_.path());
  int seen = 0;
  while (const dirent* const entry = entries.next()) {
    const auto status = entries.status(*entry);
    const QByteArray name = entry->d_name;
    ASSERT_TRUE(status) << name.constData();
    EXPECT_EQ(S_ISREG(status->st_mode), name == "file");
    EXPECT_EQ(S_ISDIR(status->st_mode), name == "folder");
    EXPECT_EQ(S_ISLNK(status->st_mode), name == "link");
    ++seen;
  }
  EXPECT_EQ(seen, 3);
}

TEST_F(VisibleEntriesOf, AFolderThatVanishedAreUnknown) {
  DirectoryReader entries(folder_.path());
  const dirent* const entry = entries.next();
  ASSERT_NE(entry, nullptr);
  ASSERT_TRUE(folder_.remove());
  EXPECT_FALSE(entries.status(*entry));
}

TEST_F(VisibleEntriesOf, ALinkAreThoseOfItsFolderUnlessLinksAreRefused) {
  ASSERT_TRUE(QFile::link(folder_.path(), pathOf(u"folder/link"_s)));
  DirectoryReader followed(pathOf(u"folder/link"_s));
  EXPECT_EQ(namesOf(followed), (QStringList{u"file"_s, u"folder"_s}));
  DirectoryReader refused(pathOf(u"folder/link"_s), DirectoryReader::LinkPolicy::refuse);
  EXPECT_EQ(refused.next(), nullptr);
  EXPECT_TRUE(refused.error());
}

}  // namespace
}  // namespace quillmere
