#include <QtCore/QString>

#include <gtest/gtest.h>

#include "platform/TextMatching.h"

namespace quillmere {
namespace {

TEST(TextMatching, FoldsCaseAndDiacritics) {
  const struct {
    const char* text;
    const char* folded;
  } rows[] = {
      {"", ""},
      {"wget", "wget"},
      {"WGET 2.0", "wget 2.0"},
      {"FILE", "file"},
      {"I i", "i i"},
      {"<html> & [tags] @{`", "<html> & [tags] @{`"},
      {"Caf\u00e9", "cafe"},
      {"Cafe\u0301", "cafe"},
      {"\u00c5ngstr\u00f6m", "angstrom"},
      {"Stra\u00dfe", "stra\u00dfe"},
      {"\u0130stanbul", "istanbul"},
      {"\u0131", "\u0131"},
      {"\u03a3\u03af\u03c3\u03c5\u03c6\u03bf\u03c2", "\u03c3\u03b9\u03c3\u03c5\u03c6\u03bf\u03c3"},
      {"\u0401\u043b\u043a\u0430", "\u0435\u043b\u043a\u0430"},
      {"S\u00f8ren", "s\u00f8ren"},
      {"\ud55c\uae00", "\ud55c\uae00"},
      {"\u4e2d\u6587", "\u4e2d\u6587"},
      {"\U0001f37a beer", "\U0001f37a beer"},
      {"\U00010400", "\U00010428"},
      {"\u0301", ""},
  };

  for (const auto& row : rows) {
    EXPECT_EQ(searchableForm(std::string_view(row.text)), row.folded) << row.text;
    EXPECT_EQ(searchableForm(QString::fromUtf8(row.text)), row.folded) << row.text;
    EXPECT_EQ(searchableForm(std::string_view(row.folded)), row.folded) << "again: " << row.text;
  }
}

TEST(TextMatching, FindsInAnyCaseAndWithoutAccents) {
  const struct {
    const char* text;
    const char* query;
    bool found;
  } rows[] = {
      {"Tool for caf\u00e9 owners", "CAFE", true},
      {"Tool for cafe owners", "caf\u00e9", true},
      {"Tool for cafe\u0301 owners", "caf\u00e9 o", true},
      {"Formula", "FORMULA", true},
      {"wget", "get", true},
      {"wget", "wget2", false},
      {"wget", "", true},
      {"", "", true},
      {"", "a", false},
      {"S\u00f8ren", "soren", false},
  };

  for (const auto& row : rows) {
    EXPECT_EQ(containsSearchable(searchableForm(std::string_view(row.text)),
                                 searchableForm(std::string_view(row.query))),
              row.found)
        << row.text << " / " << row.query;
  }
}

TEST(TextMatching, KnowsTheLettersOfALanguage) {
  const QLocale turkish(QLocale::Turkish, QLocale::Turkey);

  const struct {
    const char* text;
    const char* folded;
  } rows[] = {
      {"I i", "\u0131 i"},
      {"\u0130stanbul", "istanbul"},
      {"I\u0307stanbul", "istanbul"},
      {"DI\u015e", "d\u0131s"},
  };

  for (const auto& row : rows) {
    EXPECT_EQ(searchableForm(QString::fromUtf8(row.text), turkish), row.folded) << row.text;
    EXPECT_EQ(searchableForm(QString::fromUtf8(row.folded), turkish), row.folded)
        << "again: " << row.text;
  }
  EXPECT_EQ(searchableForm(u"FILE DI\u015e", QLocale(QLocale::English)), "file dis");
}

TEST(TextMatching, KeepsNulBytes) {
  const std::string_view text("A\0B", 3);
  EXPECT_EQ(searchableForm(text), std::string_view("a\0b", 3));
  EXPECT_TRUE(containsSearchable(searchableForm(text), "b"));
}

TEST(TextMatching, AppendsToWhatIsThere) {
  std::string folded = "X";
  appendSearchableForm(folded, "A");
  appendSearchableForm(folded, "\u00c9");
  EXPECT_EQ(folded, "Xae");
}

}  // namespace
}  // namespace quillmere
