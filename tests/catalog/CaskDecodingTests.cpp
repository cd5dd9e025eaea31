#include <QtCore/QSet>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CatalogPrinters.h"
#include "catalog/CatalogDecoding.h"

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The one cask of a document that has `fields` beside a token.
HomebrewCask caskWith(const QByteArray& fields) {
  const auto casks = decodeCasks("[{\"token\": \"firefox\"" + fields + "}]");
  EXPECT_TRUE(casks) << casks.error().description().toStdString();
  return casks ? casks->front() : HomebrewCask();
}

TEST(CaskDecoding, ReadsAllSevenKeys) {
  const HomebrewCask cask = caskWith(R"(, "full_token": "firefox", "name": ["Mozilla Firefox"],
    "desc": "Web browser", "version": "145.0,20261118", "homepage": "https://www.mozilla.org/",
    "tap": "homebrew/cask", "artifacts": [{"app": ["Firefox.app"]}, {"zap": []}])");
  EXPECT_EQ(cask.token, "firefox");
  EXPECT_THAT(cask.names, ElementsAre("Mozilla Firefox"));
  EXPECT_EQ(viewOf(cask.description), "Web browser");
  EXPECT_EQ(viewOf(cask.version), "145.0,20261118");
  EXPECT_EQ(viewOf(cask.homepage), "https://www.mozilla.org/");
  EXPECT_EQ(viewOf(cask.tap), "homebrew/cask");
  EXPECT_THAT(cask.artifacts, ElementsAre("app", "zap"));
}

TEST(CaskDecoding, LeavesOutWhatIsAbsentOrNull) {
  const HomebrewCask absent = caskWith("");
  EXPECT_THAT(absent.names, IsEmpty());
  EXPECT_EQ(absent.description, std::nullopt);
  EXPECT_EQ(absent.version, std::nullopt);
  EXPECT_EQ(absent.homepage, std::nullopt);
  EXPECT_EQ(absent.tap, std::nullopt);
  EXPECT_THAT(absent.artifacts, IsEmpty());
  const HomebrewCask null = caskWith(R"(, "name": null, "desc": null, "version": null,
    "homepage": null, "tap": null, "artifacts": null)");
  EXPECT_EQ(null, absent);
}

TEST(CaskDecoding, ReadsNamesOfEveryForm) {
  const struct {
    const char* json;
    std::vector<std::string_view> names;
  } rows[] = {
      {R"("Firefox")", {"Firefox"}},
      {R"("")", {""}},
      {R"(["Firefox", "Mozilla Firefox", "Firefox"])", {"Firefox", "Mozilla Firefox", "Firefox"}},
      {R"([])", {}},
      {R"(["Firefox", 1])", {}},
      {R"([null])", {}},
      {R"(3)", {}},
      {R"(false)", {}},
      {R"({"en": "Firefox"})", {}},
      {R"(null)", {}},
  };

  for (const auto& row : rows) {
    const HomebrewCask cask = caskWith(QByteArray(", \"name\": ") + row.json);
    EXPECT_THAT(cask.names, testing::ElementsAreArray(row.names)) << row.json;
  }
}

TEST(CaskDecoding, LabelsAnArtifactByItsFirstKeyInTheDocument) {
  const HomebrewCask cask = caskWith(R"(, "artifacts": [
    {"app": ["Firefox.app"]},
    {"vst_plugin": ["A.vst"], "target": "/Library/A.vst"},
    {"target": "x", "app": "y"},
    {"uninstall": null},
    {"": 1},
    {"app": 1, "app": 2},
    {"caf\u00e9": 1},
    {}])");
  EXPECT_THAT(cask.artifacts, ElementsAre("app", "vst_plugin", "target", "uninstall", "", "app",
                                          "caf\u00e9", "artifact"));
}

TEST(CaskDecoding, DropsDuplicatesButTheFirst) {
  const auto casks = decodeCasks(R"([{"token": "a", "version": "1"}, {"token": "b"},
    {"token": "a", "version": "2"}])");
  ASSERT_TRUE(casks);
  const auto kept = withoutDuplicates(*casks);
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_EQ(kept[0], casks->at(0));
  EXPECT_EQ(kept[1], casks->at(1));
}

TEST(CaskDecoding, GivesRecordsThatGoIntoASet) {
  const QSet<HomebrewCask> set = {caskWith(""), caskWith(""), caskWith(", \"tap\": \"x\"")};
  EXPECT_EQ(set.size(), 2);
}

}  // namespace
}  // namespace quillmere
