#include <QtCore/QSet>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CatalogPrinters.h"
#include "catalog/CatalogDecoding.h"
#include "platform/RegularFile.h"

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The one formula of a document that has `fields` beside a name and versions.
HomebrewFormula formulaWith(const QByteArray& fields) {
  const auto formulae = decodeFormulae("[{\"name\": \"wget\", \"versions\": {}" + fields + "}]");
  EXPECT_TRUE(formulae) << formulae.error().description().toStdString();
  return formulae ? formulae->front() : HomebrewFormula();
}

TEST(FormulaDecoding, ReadsAllSevenKeys) {
  const auto formulae = decodeFormulae(R"([{
    "name": "wget", "full_name": "wget", "desc": "Internet file retriever",
    "versions": {"stable": "1.25.0", "head": "HEAD", "bottle": true},
    "homepage": "https://www.gnu.org/software/wget/", "license": "GPL-3.0-or-later",
    "tap": "homebrew/core", "dependencies": ["libidn2", "openssl@3"]}])");
  ASSERT_TRUE(formulae);
  ASSERT_EQ(formulae->size(), 1U);
  const HomebrewFormula& wget = formulae->front();
  EXPECT_EQ(wget.name, "wget");
  EXPECT_EQ(viewOf(wget.description), "Internet file retriever");
  EXPECT_EQ(viewOf(wget.versions.stable), "1.25.0");
  EXPECT_EQ(viewOf(wget.versions.head), "HEAD");
  EXPECT_EQ(viewOf(wget.homepage), "https://www.gnu.org/software/wget/");
  EXPECT_EQ(wget.homepage->url().host(), QStringLiteral("www.gnu.org"));
  EXPECT_EQ(viewOf(wget.license), "GPL-3.0-or-later");
  EXPECT_EQ(viewOf(wget.tap), "homebrew/core");
  EXPECT_THAT(wget.dependencies, ElementsAre("libidn2", "openssl@3"));
}

TEST(FormulaDecoding, LeavesOutWhatIsAbsentOrNull) {
  const HomebrewFormula absent = formulaWith("");
  EXPECT_EQ(absent.description, std::nullopt);
  EXPECT_EQ(absent.versions, HomebrewFormula::Versions());
  EXPECT_EQ(absent.homepage, std::nullopt);
  EXPECT_EQ(absent.license, std::nullopt);
  EXPECT_EQ(absent.tap, std::nullopt);
  EXPECT_THAT(absent.dependencies, IsEmpty());
  const HomebrewFormula null = formulaWith(R"(, "desc": null, "homepage": null, "license": null,
    "tap": null, "dependencies": null)");
  EXPECT_EQ(null, absent);
}

TEST(FormulaDecoding, TellsAnEmptyTextFromNone) {
  const HomebrewFormula formula = formulaWith(R"(, "desc": "", "license": "", "tap": "")");
  EXPECT_EQ(viewOf(formula.description), "");
  EXPECT_EQ(viewOf(formula.license), "");
  EXPECT_EQ(viewOf(formula.tap), "");
}

TEST(FormulaDecoding, ReadsVersionsWithoutStable) {
  const auto formulae = decodeFormulae(R"([
    {"name": "a", "versions": {"head": "HEAD"}},
    {"name": "b", "versions": {"stable": null, "head": null}},
    {"name": "c", "versions": {"stable": "svn1113"}}])");
  ASSERT_TRUE(formulae);
  EXPECT_EQ(formulae->at(0).versions.stable, std::nullopt);
  EXPECT_EQ(viewOf(formulae->at(0).versions.head), "HEAD");
  EXPECT_EQ(formulae->at(1).versions, HomebrewFormula::Versions());
  EXPECT_EQ(viewOf(formulae->at(2).versions.stable), "svn1113");
}

TEST(FormulaDecoding, ReadsLicensesOfEveryGeneration) {
  const struct {
    const char* json;
    std::optional<std::string_view> license;
  } rows[] = {
      {R"("MIT")", "MIT"},
      {"\"MIT AND (Apache-2.0 OR BSD-2-Clause)\"", "MIT AND (Apache-2.0 OR BSD-2-Clause)"},
      {R"(["MIT", "Zlib"])", "MIT, Zlib"},
      {R"(["MIT"])", "MIT"},
      {R"([])", ""},
      {R"({"any_of": ["MIT", "Zlib"]})", "Unknown"},
      {R"({})", "Unknown"},
      {R"(["MIT", 2])", "Unknown"},
      {R"(["MIT", null])", "Unknown"},
      {R"(7)", "Unknown"},
      {R"(true)", "Unknown"},
      {R"(null)", std::nullopt},
  };

  for (const auto& row : rows) {
    const HomebrewFormula formula = formulaWith(QByteArray(", \"license\": ") + row.json);
    EXPECT_EQ(viewOf(formula.license), row.license) << row.json;
  }
}

TEST(FormulaDecoding, KeepsOrderAndDuplicates) {
  const auto formulae = decodeFormulae(R"([{"name": "b", "versions": {}},
    {"name": "a", "versions": {}}, {"name": "b", "versions": {"stable": "2"}}])");
  ASSERT_TRUE(formulae);
  std::vector<SharedText> names;
  for (const HomebrewFormula& formula : *formulae) {
    names.push_back(formula.name);
  }
  EXPECT_THAT(names, ElementsAre("b", "a", "b"));
}

TEST(FormulaDecoding, DropsDuplicatesButTheFirst) {
  const auto formulae = decodeFormulae(R"([{"name": "b", "versions": {"stable": "1"}},
    {"name": "a", "versions": {}}, {"name": "b", "versions": {"stable": "2"}},
    {"name": "B", "versions": {}}, {"name": "a", "versions": {}}])");
  ASSERT_TRUE(formulae);
  const auto kept = withoutDuplicates(*formulae);
  ASSERT_EQ(kept.size(), 3U);
  EXPECT_EQ(kept[0], formulae->at(0));
  EXPECT_EQ(kept[1], formulae->at(1));
  EXPECT_EQ(kept[2], formulae->at(3));
}

TEST(FormulaDecoding, ReadsEscapesAndEveryScript) {
  const HomebrewFormula formula =
      formulaWith(R"(, "desc": "Caf\u00e9 \ud83c\udf7a \"a\" \\ \/ \n <b>&amp;</b> )"
                  "\u4e2d\u6587\"");
  EXPECT_EQ(viewOf(formula.description),
            "Caf\u00e9 \U0001f37a \"a\" \\ / \n <b>&amp;</b> \u4e2d\u6587");
}

TEST(FormulaDecoding, TakesTheLastOfAKeyThatStandsTwice) {
  EXPECT_EQ(viewOf(formulaWith(R"(, "tap": 1, "tap": "homebrew/core")").tap), "homebrew/core");
}

TEST(FormulaDecoding, ReadsAnEmptyDocument) {
  const auto formulae = decodeFormulae(" [] \n");
  ASSERT_TRUE(formulae);
  EXPECT_THAT(*formulae, IsEmpty());
}

TEST(FormulaDecoding, ReadsTheSameWhereverTheDocumentLies) {
  const QByteArray document = R"([{"name": "wget", "versions": {}}])";
  const auto whole = decodeFormulae(document);
  const QByteArray within = "xx" + document + "\"]}";
  const auto part =
      decodeFormulae(QByteArray::fromRawData(within.constData() + 2, document.size()));
  EXPECT_EQ(whole.value(), part.value());
  QByteArray padded = document;
  padded.reserve(document.size() + parserPadding);
  EXPECT_EQ(whole.value(), decodeFormulae(padded).value());
  // What was cut off in front is no room behind.
  QByteArray shifted = QByteArray(parserPadding, ' ') + document;
  shifted.remove(0, parserPadding);
  EXPECT_EQ(whole.value(), decodeFormulae(shifted).value());
}

TEST(FormulaDecoding, GivesRecordsThatGoIntoASet) {
  const QSet<HomebrewFormula> set = {formulaWith(""), formulaWith(""),
                                     formulaWith(", \"tap\": \"x\"")};
  EXPECT_EQ(set.size(), 2);
}

}  // namespace
}  // namespace quillmere
