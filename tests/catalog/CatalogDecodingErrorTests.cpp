#include <gtest/gtest.h>

#include "CatalogPrinters.h"
#include "catalog/CatalogDecoding.h"

namespace quillmere {
namespace {

struct Row {
  QByteArray document;
  const char* sentence;
};

template <typename Records>
void expectSentence(const std::expected<Records, CatalogDecodingError>& decoded, const Row& row) {
  ASSERT_FALSE(decoded) << row.document.constData();
  EXPECT_EQ(decoded.error().description().toStdString(), row.sentence);
}

/// A document with a good formula before the one at fault.
QByteArray second(const QByteArray& formula) {
  return R"([{"name": "good", "versions": {}}, )" + formula + "]";
}

TEST(CatalogDecodingError, SaysWhatIsWrongWithTheDocument) {
  const Row rows[] = {
      {"", "The formula document is empty."},
      {" \n", "The formula document is empty."},
      {"<!DOCTYPE html><title>Sign in</title>", "The formula document is not valid JSON."},
      {"{}", "The formula document is an object where an array belongs."},
      {"\"a\"", "The formula document is a text where an array belongs."},
      {"null", "The formula document is null where an array belongs."},
      {"7", "The formula document is a number where an array belongs."},
      {"true", "The formula document is a truth value where an array belongs."},
      {"[", "The formula document is not valid JSON."},
      {"[] []", "The formula document is not valid JSON."},
      {"[1,]", "The formula document is not valid JSON."},
  };
  for (const Row& row : rows) {
    expectSentence(decodeFormulae(row.document), row);
  }
  expectSentence(decodeCasks(QByteArray("")), {"", "The cask document is empty."});
}

TEST(CatalogDecodingError, WantsValidJsonInKeysThatAreIgnoredToo) {
  const Row rows[] = {
      {second(R"({"name": "a", "versions": {}, "x": "cut)"),
       "The formula document holds a malformed text."},
      {second("{\"name\": \"a\", \"versions\": {}, \"x\": \"\xff\"}"),
       "The formula document is not valid UTF-8."},
      {second("{\"name\": \"a\", \"versions\": {}, \"x\": \"\xed\xa0\x80\"}"),
       "The formula document is not valid UTF-8."},
      {second("{\"name\": \"a\", \"versions\": {}, \"x\": \"\xc0\x80\"}"),
       "The formula document is not valid UTF-8."},
      {second(R"({"name": "a", "versions": {}, "x": "\q"})"),
       "The formula document holds a malformed text."},
      {second(R"({"name": "a", "versions": {}, "x": "\ud800"})"),
       "The formula document holds a malformed text."},
      {second("{\"name\": \"a\", \"versions\": {}, \"x\": \"tab\t\"}"),
       "The formula document holds a malformed text."},
      {second(R"({"name": "a", "versions": {}, "x": 01})"),
       "The formula document holds a malformed or too large number."},
      {second(R"({"name": "a", "versions": {}, "x": tru})"),
       "The formula document is not valid JSON."},
      {second(R"({"name": "a", "versions": {}, "x": {1: 2}})"),
       "The formula document is not valid JSON."},
      {second(R"({"name": "a", "versions": {}, "x": )" + QByteArray(2000, '[') +
              QByteArray(2000, ']') + "}"),
       "The formula document is nested too deeply."},
  };
  for (const Row& row : rows) {
    expectSentence(decodeFormulae(row.document), row);
  }
}

TEST(CatalogDecodingError, SaysWhatIsWrongWithAFormula) {
  const Row rows[] = {
      {second("1"),
       "The formula document's record at index 1 is a number where an object belongs."},
      {second(R"({"versions": {}})"),
       "The formula document's record at index 1 is faulty: \"name\" is missing."},
      {second(R"({"name": null, "versions": {}})"),
       "The formula document's record at index 1 is faulty: "
       "\"name\" holds null where a text belongs."},
      {second(R"({"name": ["a"], "versions": {}})"),
       "The formula document's record at index 1 is faulty: "
       "\"name\" holds an array where a text belongs."},
      {second(R"({"name": "a"})"),
       "The formula document's record at index 1, \"a\", is faulty: \"versions\" is missing."},
      {second(R"({"name": "a", "versions": null})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"versions\" holds null where an object belongs."},
      {second(R"({"name": "a", "versions": "1.0"})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"versions\" holds a text where an object belongs."},
      {second(R"({"name": "a", "versions": {"stable": 1.5}})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"versions.stable\" holds a number where a text belongs."},
      {second(R"({"name": "a", "versions": {"head": {}}})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"versions.head\" holds an object where a text belongs."},
      {second(R"({"name": "a", "versions": {}, "desc": false})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"desc\" holds a truth value where a text belongs."},
      {second(R"({"name": "a", "versions": {}, "homepage": ""})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"homepage\" holds \"\", which is not a URL."},
      {second(R"({"name": "a", "versions": {}, "homepage": "https://a b/"})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"homepage\" holds \"https://a b/\", which is not a URL."},
      {second(R"({"name": "a", "versions": {}, "homepage": 4})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"homepage\" holds a number where a text belongs."},
      {second(R"({"name": "a", "versions": {}, "tap": []})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"tap\" holds an array where a text belongs."},
      {second(R"({"name": "a", "versions": {}, "dependencies": "b"})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"dependencies\" holds a text where an array belongs."},
      {second(R"({"name": "a", "versions": {}, "dependencies": ["b", null]})"),
       "The formula document's record at index 1, \"a\", is faulty: "
       "\"dependencies\" holds null at index 1 where a text belongs."},
  };
  for (const Row& row : rows) {
    expectSentence(decodeFormulae(row.document), row);
  }
}

TEST(CatalogDecodingError, SaysWhatIsWrongWithACask) {
  const Row rows[] = {
      {"[[]]", "The cask document's record at index 0 is an array where an object belongs."},
      {R"([{"name": ["A"]}])",
       "The cask document's record at index 0 is faulty: \"token\" is missing."},
      {R"([{"token": 1}])",
       "The cask document's record at index 0 is faulty: "
       "\"token\" holds a number where a text belongs."},
      {R"([{"token": "a", "version": 1}])",
       "The cask document's record at index 0, \"a\", is faulty: "
       "\"version\" holds a number where a text belongs."},
      {R"([{"token": "a", "homepage": ""}])",
       "The cask document's record at index 0, \"a\", is faulty: "
       "\"homepage\" holds \"\", which is not a URL."},
      {R"([{"token": "a", "artifacts": {"app": 1}}])",
       "The cask document's record at index 0, \"a\", is faulty: "
       "\"artifacts\" holds an object where an array belongs."},
      {R"([{"token": "a", "artifacts": [{"app": 1}, "app"]}])",
       "The cask document's record at index 0, \"a\", is faulty: "
       "\"artifacts\" holds a text at index 1 where an object belongs."},
      {R"([{"token": "a", "artifacts": [null]}])",
       "The cask document's record at index 0, \"a\", is faulty: "
       "\"artifacts\" holds null at index 0 where an object belongs."},
  };
  for (const Row& row : rows) {
    expectSentence(decodeCasks(row.document), row);
  }
}

TEST(CatalogDecodingError, NamesTheFirstProblemOfTheFirstFaultyRecord) {
  const auto decoded =
      decodeCasks(R"([{"token": "a"}, {"artifacts": 1, "desc": 2, "token": "b"}, {"token": 3}])");
  ASSERT_FALSE(decoded);
  const CatalogDecodingError expected = {
      .document = CatalogDecodingError::Document::casks,
      .index = 1,
      .name = QStringLiteral("b"),
      .key = QStringLiteral("desc"),
      .problem = QStringLiteral("holds a number where a text belongs"),
  };
  EXPECT_EQ(decoded.error(), expected);
}

TEST(CatalogDecodingError, QuotesNoMoreThanOneReadableLine) {
  EXPECT_EQ(quotedExcerpt(QStringLiteral("a\nb\tc\u0007")), QStringLiteral("\"a b c \""));
  EXPECT_EQ(quotedExcerpt(QStringLiteral("a\u202eb")), QStringLiteral("\"a\ufffdb\""));
  const QString eighty(80, u'x');
  EXPECT_EQ(quotedExcerpt(eighty), u'"' + eighty + u'"');
  EXPECT_EQ(quotedExcerpt(eighty + u'y'), u'"' + eighty + QStringLiteral("\u2026\""));
  const QString seventyNine(79, u'x');
  EXPECT_EQ(quotedExcerpt(seventyNine + QStringLiteral("\U0001f37a\U0001f37a")),
            u'"' + seventyNine + QStringLiteral("\u2026\""));
}

}  // namespace
}  // namespace quillmere
