#include <gtest/gtest.h>

#include "platform/SecurityScopedBookmarks.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

TEST(SecurityScopedBookmarks, LeadBackToTheFolder) {
  for (const QString& path : {u"/opt/homebrew"_s, u"/home/anna/my brew"_s, u"/tmp/50% off?#1"_s,
                              u"/tmp/%41"_s, u"/tmp/żółw 🍺"_s, u"/tmp/a\nb"_s, u"/"_s}) {
    SCOPED_TRACE(path.toStdString());
    const QUrl url = QUrl::fromLocalFile(path);
    const auto bookmark = platformBookmarks()->create(url);
    ASSERT_TRUE(bookmark.has_value());
    const auto resolved = platformBookmarks()->resolve(*bookmark);
    ASSERT_TRUE(resolved.has_value());
    EXPECT_EQ(resolved->url, url);
    EXPECT_EQ(resolved->url.toLocalFile(), path);
    EXPECT_FALSE(resolved->isStale);
  }
}

TEST(SecurityScopedBookmarks, AreMadeOfFoldersOfThisMachineOnly) {
  EXPECT_EQ(platformBookmarks()->create(QUrl(u"https://example.org/brew"_s)), std::nullopt);
  EXPECT_EQ(platformBookmarks()->create(QUrl()), std::nullopt);
}

TEST(SecurityScopedBookmarks, LeadNowhereWhereTheBytesAreNoBookmark) {
  for (const QByteArray& bytes :
       {QByteArray(), QByteArray("book\0mark", 9), QByteArray("\xff\xfe"), QByteArray("/opt/brew"),
        QByteArray("https://example.org/"), QByteArray("file")}) {
    EXPECT_FALSE(platformBookmarks()->resolve(bytes).has_value()) << bytes.toHex().toStdString();
  }
}

}  // namespace
}  // namespace quillmere
