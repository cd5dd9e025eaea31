#include <QtCore/QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "catalog/CatalogDecoding.h"
#include "catalog/PackageCatalogFilter.h"
#include "support/HostileCatalog.h"
#include "support/Printers.h"
#include "support/Rounds.h"

namespace quillmere {
namespace {

const QUrl bait(QStringLiteral("http://127.0.0.1:1/x"));

QString sentence(const QByteArray& document) {
  const auto formulae = decodeFormulae(document);
  return formulae ? QString() : formulae.error().description();
}

TEST(HostileCatalog, IsKeptAsItIs) {
  const QStringList texts = hostileTexts(bait);
  const auto formulae = decodeFormulae(hostileFormulaDocument(bait));
  ASSERT_TRUE(formulae) << formulae.error().description().toStdString();
  ASSERT_EQ(formulae->size(), static_cast<std::size_t>(texts.size() + 1));
  for (qsizetype i = 0; i < texts.size(); ++i) {
    const HomebrewFormula& formula = formulae->at(static_cast<std::size_t>(i));
    for (const SharedText& text :
         {formula.name, formula.description.value(), formula.versions.stable.value(),
          formula.versions.head.value(), formula.license.value(), formula.tap.value(),
          formula.dependencies.at(1)}) {
      ASSERT_EQ(text.toString(), texts[i]);
    }
  }
  const auto casks = decodeCasks(hostileCaskDocument(bait));
  ASSERT_TRUE(casks) << casks.error().description().toStdString();
  for (qsizetype i = 0; i < texts.size(); ++i) {
    const HomebrewCask& cask = casks->at(static_cast<std::size_t>(i));
    ASSERT_EQ(cask.names.at(0).toString(), texts[i]);
    ASSERT_EQ(cask.artifacts.at(0).toString(), texts[i]);
  }
}

TEST(HostileCatalog, IsSearchedAsItIs) {
  const auto decoded =
      decodeCatalog({.formulae = hostileFormulaDocument(bait), .casks = hostileCaskDocument(bait)});
  ASSERT_TRUE(decoded);
  const PackageCatalog& catalog = **decoded;
  for (const QString& text : hostileTexts(bait)) {
    const auto request =
        FilterRequest::make(text.left(1000), PackageCatalogFilter::formulae, catalog);
    EXPECT_GE(filteredPackages(catalog, request).exactMatchCount.value(), 1U)
        << text.left(100).toStdString();
  }
}

TEST(HostileCatalog, HasNoDepthThatEndsTheProgram) {
  for (const int depth : {1'025, 10'000, 1'000'000}) {
    const QByteArray nested = QByteArray(depth, '[') + QByteArray(depth, ']');
    const QByteArray objects =
        QByteArray(R"({"x":)").repeated(depth) + "1" + QByteArray(depth, '}');
    for (const QByteArray& value : {nested, objects}) {
      EXPECT_EQ(sentence(R"([{"name": "a", "versions": {}, "x": )" + value + "}]"),
                QStringLiteral("The formula document is nested too deeply."));
    }
    EXPECT_EQ(sentence(nested), QStringLiteral("The formula document is nested too deeply."));
    EXPECT_FALSE(sentence(QByteArray(depth, '[')).isEmpty());
  }
}

TEST(HostileCatalog, HasNoTextThatIsNoUnicode) {
  for (const char* text :
       {R"(\ud800)", R"(\udc00)", R"(\ud800\ud800)", R"(\ud800x)", R"(\udfff\ud800)", "\xff",
        "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xe2\x82"}) {
    for (const char* key : {"name", "desc", "tap", "license"}) {
      const QByteArray document =
          QByteArray(R"([{"name": "a", "versions": {}, ")") + key + "\": \"" + text + "\"}]";
      EXPECT_THAT(sentence(document).toStdString(),
                  testing::AnyOf("The formula document holds a malformed text.",
                                 "The formula document is not valid UTF-8."))
          << text;
    }
  }
}

/// One name a million times, and a million names.
TEST(HostileCatalog, MayHaveAMillionRecords) {
  const int count = test::rounds(50'000, 1'000'000);
  QByteArray same = "[";
  QByteArray all = "[";
  for (int i = 0; i < count; ++i) {
    const QByteArray end = i + 1 < count ? "," : "]";
    same += R"({"name":"wget","versions":{}})" + end;
    all +=
        R"({"name":"n)" + QByteArray::number(i) + R"(","versions":{},"dependencies":["n0"]})" + end;
  }
  EXPECT_EQ(withoutDuplicates(decodeFormulae(same).value()).size(), 1U);
  const auto decoded = decodeCatalog({.formulae = all});
  ASSERT_TRUE(decoded);
  const PackageCatalogPtr& catalog = *decoded;
  EXPECT_EQ(catalog->packages().size(), static_cast<std::size_t>(count));
  EXPECT_EQ(catalog->reverseDependencyNames(catalog->packages().front()).value().size(),
            static_cast<std::size_t>(count - 1));
  const auto request = FilterRequest::make(QStringLiteral("n%1").arg(count - 1),
                                           PackageCatalogFilter::all, *catalog);
  EXPECT_EQ(filteredPackages(*catalog, request).visiblePackages.size(), 1U);
}

}  // namespace
}  // namespace quillmere
