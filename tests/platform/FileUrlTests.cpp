#include <gtest/gtest.h>

#include "platform/FileUrl.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

TEST(FileUrl, MeansEveryCharacterOfAPathAsItself) {
  for (const QString& path : {u"/opt/homebrew"_s, u"/a b/c%20d"_s, u"/x?y#z"_s, u"/\u00e9"_s}) {
    EXPECT_EQ(filePath(fileUrl(path)), path);
  }
}

TEST(FileUrl, HasAPathWithoutATrailingSlash) {
  EXPECT_EQ(filePath(fileUrl(u"/opt/homebrew/"_s)), u"/opt/homebrew"_s);
  EXPECT_EQ(filePath(fileUrl(u"/"_s)), u"/"_s);
}

TEST(FileUrl, AppendsAPathWithOneSlashBetween) {
  const QUrl brew = fileUrl(u"/opt/homebrew/bin/brew"_s);
  EXPECT_EQ(appendingPath(fileUrl(u"/opt/homebrew"_s), u"bin/brew"_s), brew);
  EXPECT_EQ(appendingPath(fileUrl(u"/opt/homebrew/"_s), u"bin/brew"_s), brew);
  EXPECT_EQ(appendingPath(fileUrl(u"/"_s), u"bin"_s), fileUrl(u"/bin"_s));
}

TEST(FileUrl, EndsInTheNameOfTheFileOrFolder) {
  EXPECT_EQ(lastPathComponent(fileUrl(u"/opt/homebrew/bin/brew"_s)), u"brew"_s);
  EXPECT_EQ(lastPathComponent(fileUrl(u"/opt/homebrew/"_s)), u"homebrew"_s);
  EXPECT_EQ(lastPathComponent(fileUrl(u"/Caskroom/a b/1,2:3%2F4?#"_s)), u"1,2:3%2F4?#"_s);
  EXPECT_EQ(lastPathComponent(fileUrl(u"/"_s)), QString());
}

}  // namespace
}  // namespace quillmere
