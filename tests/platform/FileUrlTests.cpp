#include <gtest/gtest.h>

#include "platform/FileUrl.h"
#include "support/ForkedProcess.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

TEST(FileUrl, MeansEveryCharacterOfAPathAsItself) {
  for (const QString& path : {u"/opt/homebrew"_s, u"/a b/c%20d"_s, u"/x?y#z"_s, u"/\u00e9"_s}) {
    EXPECT_EQ(filePath(fileUrl(path)), path);
  }
}

TEST(FileUrl, IsTheUrlThatQtMakesOfThePath) {
  QString everyCharacter = u"/x"_s;
  for (char16_t unit = 1; unit < 0x0800; ++unit) {
    everyCharacter += QChar(unit);
  }
  for (const QString& path : {u"/"_s, u"/a b"_s, u"/a%20b"_s, u"/a%zz?#[]@:"_s, u"/a/../b/./c//d"_s,
                              u"/\u6d4f \U0001F37A"_s, u"//server/share"_s, u"relative"_s, u"a:b"_s,
                              QString(), everyCharacter, QString(everyCharacter).remove(u'%')}) {
    EXPECT_EQ(fileUrl(path), QUrl::fromLocalFile(path)) << path.toStdString();
    EXPECT_EQ(fileUrl(path).toEncoded(), QUrl::fromLocalFile(path).toEncoded());
  }
}

TEST(FileUrl, IsMadeThoughTheProgramIsEnding) {
  EXPECT_FALSE(fileUrl(u"/opt"_s).isEmpty());  // what is made once is made now
  EXPECT_TRUE(test::exitedCleanly(test::runForkedAtExit(
      [] { return filePath(fileUrl(u"/opt/homebrew"_s)) == u"/opt/homebrew"_s; })));
}

TEST(FileUrl, HasAPathWithoutATrailingSlash) {
  EXPECT_EQ(filePath(fileUrl(u"/opt/homebrew/"_s)), u"/opt/homebrew"_s);
  EXPECT_EQ(filePath(fileUrl(u"/opt//"_s)), u"/opt"_s);
  EXPECT_EQ(filePath(fileUrl(u"/"_s)), u"/"_s);
  EXPECT_EQ(filePath(QUrl(u"https://www.example.org/etc/"_s)), QString());
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
