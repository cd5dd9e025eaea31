#include <gtest/gtest.h>
#include <vector>

#include "platform/SharedText.h"
#include "platform/UrlText.h"

namespace quillmere {
namespace {

TEST(SharedText, HoldsUtf8AndGivesQString) {
  const SharedText text(u"Caf\u00e9 \U0001f37a");
  EXPECT_EQ(text, "Caf\u00e9 \U0001f37a");
  EXPECT_EQ(text.toString(), QStringLiteral("Caf\u00e9 \U0001f37a"));
}

TEST(SharedText, IsEmptyByDefault) {
  EXPECT_TRUE(SharedText().isEmpty());
  EXPECT_EQ(SharedText(), SharedText(std::string_view()));
  EXPECT_EQ(SharedText().toString(), QString());
}

TEST(SharedText, IsEmptyAfterItMovedAway) {
  SharedText text(std::string_view("wget"));
  const SharedText moved = std::move(text);
  EXPECT_EQ(moved, "wget");
  EXPECT_TRUE(text.isEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(SharedText, EqualsAndHashesByContent) {
  SharedTextBuilder builder;
  const SharedText built = builder.add("we", "get");
  const SharedText alone(std::string_view("weget"));
  EXPECT_EQ(built, alone);
  EXPECT_EQ(qHash(built), qHash(alone));
  EXPECT_FALSE(built == SharedText(std::string_view("wget")));
}

TEST(SharedText, KeepsNulBytes) {
  const std::string_view bytes("a\0b", 3);
  EXPECT_EQ(SharedText(bytes), bytes);
  EXPECT_EQ(SharedText(bytes).toString().size(), 3);
}

TEST(SharedText, OutlivesItsBuilder) {
  std::vector<SharedText> texts;
  {
    SharedTextBuilder builder;
    for (int i = 0; i < 50'000; ++i) {
      texts.push_back(builder.add("text ", std::to_string(i)));
    }
    texts.push_back(builder.add(std::string(1'000'000, 'x')));
    texts.push_back(builder.add("last"));
  }
  for (int i = 0; i < 50'000; ++i) {
    ASSERT_EQ(texts[static_cast<std::size_t>(i)], "text " + std::to_string(i));
  }
  EXPECT_EQ(texts[50'000], std::string(1'000'000, 'x'));
  EXPECT_EQ(texts.back(), "last");
}

TEST(SharedText, StoresARepeatedTextOnce) {
  SharedTextBuilder builder;
  const SharedText first = builder.intern("homebrew/core");
  const SharedText other = builder.intern("homebrew/cask");
  const SharedText second = builder.intern("homebrew/core");
  EXPECT_EQ(first.view().data(), second.view().data());
  EXPECT_EQ(other, "homebrew/cask");
  EXPECT_TRUE(builder.intern("").isEmpty());
}

TEST(UrlText, TakesWhatQUrlTakesStrictly) {
  const struct {
    const char* text;
    bool taken;
  } rows[] = {
      {"https://www.gnu.org/software/wget/", true},
      {"http://example.org", true},
      {"https://pg_top.gitlab.io/", true},
      {"https://example.org:8443/a%20b?c=d&e#f", true},
      {"https://m\u00fcller.example/\u00e4", true},
      {"ftp://example.org/", true},
      {"relative/path", true},
      {"", false},
      {"https://example.org/a b", false},
      {"https://example.org/%zz", false},
      {"https://example.org:port/", false},
      {"https://[::1/", false},
      {"https://exa<mple>.org/", false},
      {"http://a\"b/", false},
  };

  for (const auto& row : rows) {
    const SharedText text{std::string_view(row.text)};
    const auto url = UrlText::fromText(text);
    EXPECT_EQ(url.has_value(), row.taken) << row.text;
    if (url) {
      EXPECT_EQ(url->text(), row.text);
      EXPECT_EQ(url->url(), QUrl(QString::fromUtf8(row.text), QUrl::StrictMode));
    }
  }
}

}  // namespace
}  // namespace quillmere
