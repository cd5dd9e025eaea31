#include <gtest/gtest.h>

#include "inventory/HomebrewInstallReceipt.h"
#include "platform/RegularFile.h"

namespace quillmere {
namespace {

using Receipt = std::optional<HomebrewInstallReceipt>;

const Receipt direct = HomebrewInstallReceipt{.installedOnRequest = true};
const Receipt dependency = HomebrewInstallReceipt{.installedOnRequest = false};
const Receipt open = HomebrewInstallReceipt{.installedOnRequest = std::nullopt};

Receipt receipt(const QByteArray& json) {
  return HomebrewInstallReceiptReader().read(json);
}

TEST(HomebrewInstallReceipt, TellsWhetherTheFormulaWasAskedFor) {
  EXPECT_EQ(receipt(R"({"installed_on_request":true})"), direct);
  EXPECT_EQ(receipt(" {\n \"installed_on_request\" : false\n}\n"), dependency);
}

TEST(HomebrewInstallReceipt, LeavesTheQuestionOpenWithoutTheKeyOrWithNull) {
  EXPECT_EQ(receipt("{}"), open);
  EXPECT_EQ(receipt(R"({"installed_on_request":null})"), open);
  EXPECT_EQ(receipt(R"({"installed_as_dependency":true,"time":null})"), open);
}

TEST(HomebrewInstallReceipt, LooksOnlyAtTheOutermostKeys) {
  EXPECT_EQ(receipt(R"({"source":{"installed_on_request":true}})"), open);
  EXPECT_EQ(receipt(R"({"Installed_On_Request":true,"installed_on_request ":true})"), open);
}

TEST(HomebrewInstallReceipt, BelievesTheLastOfRepeatedKeys) {
  EXPECT_EQ(receipt(R"({"installed_on_request":true,"installed_on_request":false})"), dependency);
  EXPECT_EQ(receipt(R"({"installed_on_request":"yes","installed_on_request":true})"), direct);
}

TEST(HomebrewInstallReceipt, KnowsTheKeyInAnySpelling) {
  EXPECT_EQ(receipt(R"({"installed_on_r\u0065quest":true})"), direct);
}

TEST(HomebrewInstallReceipt, IsNoneWhereTheKeyHoldsSomethingElse) {
  for (const char* value : {"1", "0", "0.5", "\"true\"", "\"\"", "[]", "[true]", "{}"}) {
    const QByteArray json = QByteArray(R"({"installed_on_request":)") + value + '}';
    EXPECT_EQ(receipt(json), std::nullopt) << json.constData();
  }
}

TEST(HomebrewInstallReceipt, IsNoneWhereThereIsNoObject) {
  for (const char* json : {"", " ", "null", "true", "[]", R"([{"installed_on_request":true}])",
                           "\"installed_on_request\"", "{", R"({"installed_on_request":true)",
                           R"({"installed_on_request":true,})", R"({"installed_on_request":tru})",
                           R"({installed_on_request:true})", R"({"installed_on_request":true} x)",
                           "{\"a\":\"\xFF\",\"installed_on_request\":true}"}) {
    EXPECT_EQ(receipt(json), std::nullopt) << json;
  }
}

TEST(HomebrewInstallReceipt, ReadsReceiptsOfEveryAgeOfHomebrew) {
  EXPECT_EQ(receipt(R"({"used_options":[],"unused_options":["--with-x"],"built_as_bottle":true,
      "poured_from_bottle":true,"tapped_from":"Homebrew/homebrew","time":1412345678,
      "HEAD":"0000000000000000000000000000000000000000","stdlib":null,"compiler":"clang"})"),
            open);
  EXPECT_EQ(receipt(R"({"homebrew_version":"1.6.0","used_options":[],"unused_options":[],
      "built_as_bottle":true,"poured_from_bottle":true,"installed_as_dependency":true,
      "installed_on_request":false,"changed_files":["bin/x"],"time":1523456789,
      "source_modified_time":1520000000,"HEAD":null,"stdlib":null,"compiler":"clang",
      "aliases":["x@1"],"alias_path":"/usr/local/opt/x",
      "runtime_dependencies":[{"full_name":"y","version":"1.0"}],
      "source":{"path":"/p/x.rb","tap":"homebrew/core","spec":"stable",
                "versions":{"stable":"1.0","devel":"","head":"","version_scheme":0}}})"),
            dependency);
  EXPECT_EQ(receipt(R"({"homebrew_version":"6.0.18","loaded_from_api":true,
      "installed_on_request":true,"changed_files":null,"time":null,"aliases":[],
      "runtime_dependencies":null,"arch":"x86_64",
      "built_on":{"os":"Linux","glibc_version":"2.36"},"some_new_key":[{"a":[1,2.5e3,-4]}]})"),
            direct);
}

TEST(HomebrewInstallReceiptReader, ReadsOneAfterAnotherWhateverTheyAre) {
  HomebrewInstallReceiptReader reader;
  const QByteArray large =
      R"({"x":")" + QByteArray(100'000, 'x') + R"(","installed_on_request":true})";
  EXPECT_EQ(reader.read(QByteArray(R"({"installed_on_request":false})")), dependency);
  EXPECT_EQ(reader.read(QByteArray("{")), std::nullopt);
  EXPECT_EQ(reader.read(large), direct);
  EXPECT_EQ(reader.read(QByteArray()), std::nullopt);
  EXPECT_EQ(reader.read(QByteArray("{}")), open);
}

/// What lies behind the text must not matter, and must not be touched where it is not ours.
TEST(HomebrewInstallReceiptReader, ReadsTextWithAndWithoutRoomBehindIt) {
  HomebrewInstallReceiptReader reader;
  const QByteArray json = R"({"installed_on_request":true})";
  QByteArray padded;
  padded.reserve(json.size() + parserPadding);
  padded = json + QByteArray(parserPadding, '}');
  padded.truncate(json.size());
  EXPECT_GE(padded.capacity(), json.size() + parserPadding);
  EXPECT_EQ(reader.read(padded), direct);
  const auto exact = std::make_unique<char[]>(static_cast<std::size_t>(json.size()));
  std::ranges::copy(json, exact.get());
  EXPECT_EQ(reader.read(QByteArray::fromRawData(exact.get(), json.size())), direct);
}

TEST(HomebrewInstallReceiptReader, CountsNoRoomBeforeTheText) {
  HomebrewInstallReceiptReader reader;
  QByteArray json(2 * parserPadding, ' ');
  json += R"({"installed_on_request":true})";
  json.squeeze();
  json.remove(0, 2 * parserPadding);
  EXPECT_EQ(reader.read(json), direct);
}

}  // namespace
}  // namespace quillmere
