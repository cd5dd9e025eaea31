#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <simdjson.h>

#include "CatalogPrinters.h"
#include "catalog/CaskArtifactSummary.h"
#include "catalog/DynamicCodingKey.h"
#include "catalog/FlexibleLicense.h"
#include "catalog/FlexibleStringArray.h"

namespace quillmere {
namespace {

using testing::ElementsAre;

/// One value, parsed.
class FlexibleFields : public testing::Test {
 protected:
  simdjson::dom::element json(std::string_view text) {
    return parser_.parse(simdjson::padded_string(text)).value();
  }

  simdjson::dom::object object(std::string_view text) { return json(text).get_object().value(); }

  SharedTextBuilder texts_;

 private:
  simdjson::dom::parser parser_;
};

TEST_F(FlexibleFields, JoinAListOfLicenses) {
  EXPECT_EQ(FlexibleLicense::fromJson(json(R"(["MIT", "Zlib"])"), texts_).value, "MIT, Zlib");
  EXPECT_EQ(FlexibleLicense::fromJson(json("null"), texts_).value, "Unknown");
}

TEST_F(FlexibleFields, MakeAListOfOneText) {
  EXPECT_THAT(FlexibleStringArray::fromJson(json(R"("a")"), texts_).values, ElementsAre("a"));
  EXPECT_EQ(FlexibleStringArray::fromJson(json("null"), texts_), FlexibleStringArray());
}

TEST_F(FlexibleFields, LabelAnArtifact) {
  EXPECT_EQ(CaskArtifactSummary::fromJson(object(R"({"app": [], "a": 1})"), texts_).label, "app");
  EXPECT_EQ(CaskArtifactSummary::fromJson(object("{}"), texts_).label, "artifact");
}

TEST_F(FlexibleFields, FindTheFirstKeyOfAnObject) {
  EXPECT_EQ(DynamicCodingKey::firstOf(object(R"({"z": 1, "a": 2})")),
            (DynamicCodingKey{.stringValue = "z", .intValue = std::nullopt}));
  EXPECT_EQ(DynamicCodingKey::firstOf(object("{}")), std::nullopt);
}

}  // namespace
}  // namespace quillmere
