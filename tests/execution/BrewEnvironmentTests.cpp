#include <gtest/gtest.h>

#include "execution/BrewEnvironment.h"

namespace quillmere {
namespace {

const QUrl prefix = QUrl::fromLocalFile(QStringLiteral("/opt/homebrew"));

TEST(BrewEnvironment, PutsThePrefixsToolsBeforeTheSystems) {
  EXPECT_EQ(brewEnvironment({}, prefix).at("PATH"),
            "/opt/homebrew/bin:/usr/bin:/bin:/usr/sbin:/sbin");
}

TEST(BrewEnvironment, SearchesOnlyTheSystemWithoutPrefix) {
  EXPECT_EQ(brewEnvironment({}, std::nullopt).at("PATH"), "/usr/bin:/bin:/usr/sbin:/sbin");
}

TEST(BrewEnvironment, ReplacesWhatItSetsAndKeepsTheRest) {
  const Environment environment = brewEnvironment({{"PATH", "/home/anna/bin"},
                                                   {"HOMEBREW_NO_AUTO_UPDATE", "0"},
                                                   {"HOMEBREW_NO_INPUT", ""},
                                                   {"HOMEBREW_NO_ANALYTICS", "no"},
                                                   {"HOMEBREW_NO_ENV_HINTS", "0"},
                                                   {"CLICOLOR", "1"},
                                                   {"NO_COLOR", ""},
                                                   {"HOME", "/home/anna"},
                                                   {"LATIN", "caf\xe9"}},
                                                  prefix);
  EXPECT_EQ(environment, (Environment{{"PATH", "/opt/homebrew/bin:/usr/bin:/bin:/usr/sbin:/sbin"},
                                      {"HOMEBREW_NO_AUTO_UPDATE", "1"},
                                      {"HOMEBREW_NO_INPUT", "1"},
                                      {"HOMEBREW_NO_ANALYTICS", "1"},
                                      {"HOMEBREW_NO_ENV_HINTS", "1"},
                                      {"CLICOLOR", "0"},
                                      {"NO_COLOR", "1"},
                                      {"HOME", "/home/anna"},
                                      {"LATIN", "caf\xe9"}}));
}

TEST(BrewEnvironment, InheritsTheWholeEnvironmentOfTheProcess) {
  ASSERT_TRUE(qputenv("QUILLMERE_TEST_VALUE", "a=b\nc"));
  EXPECT_EQ(inheritedEnvironment().at("QUILLMERE_TEST_VALUE"), "a=b\nc");
  qunsetenv("QUILLMERE_TEST_VALUE");
}

}  // namespace
}  // namespace quillmere
