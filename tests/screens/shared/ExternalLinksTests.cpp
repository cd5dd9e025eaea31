#include <QtCore/QList>

#include <gtest/gtest.h>

#include "screens/shared/ExternalLinks.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

class ExternalLinksTest : public testing::Test {
 protected:
  QList<QUrl> opened;
  bool hasBrowser = true;
  ExternalLinks links{[this](const QUrl& page) {
    opened += page;
    return hasBrowser;
  }};
};

TEST_F(ExternalLinksTest, LeadToThePagesOfTheProgramAndOfHomebrew) {
  EXPECT_EQ(links.privacyPolicy().path(), u"/quillmere/privacy.html"_s);
  EXPECT_EQ(links.support().path(), u"/quillmere/support.html"_s);
  EXPECT_EQ(links.homebrew(), QUrl(u"https://brew.sh"_s));
}

TEST_F(ExternalLinksTest, OpenNothingBeforeTheyAreChosen) {
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(ExternalLinksTest, OfTheProgramCanBeOpened) {
  EXPECT_TRUE(links.open(links.privacyPolicy()));
  EXPECT_TRUE(links.open(links.support()));
  EXPECT_TRUE(links.open(links.homebrew()));
  EXPECT_EQ(opened, (QList<QUrl>{links.privacyPolicy(), links.support(), links.homebrew()}));
}

TEST_F(ExternalLinksTest, SayWhenThereIsNoBrowser) {
  hasBrowser = false;
  EXPECT_FALSE(links.open(links.homebrew()));
}

struct Address {
  const char* name;
  const char* text;
  bool isOpened;
};

class AddressOfALink : public ExternalLinksTest, public testing::WithParamInterface<Address> {};

TEST_P(AddressOfALink, IsOpenedOnlyWhereItIsAPageOfTheWeb) {
  EXPECT_EQ(links.open(QUrl(QString::fromLatin1(GetParam().text))), GetParam().isOpened);
  EXPECT_EQ(opened.size(), GetParam().isOpened ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Addresses, AddressOfALink,
                         testing::Values(Address{"Https", "https://example.org/page", true},
                                         Address{"Http", "http://example.org", true},
                                         Address{"UpperCase", "HTTPS://example.org", true},
                                         Address{"File", "file:///etc/passwd", false},
                                         Address{"Ftp", "ftp://example.org", false},
                                         Address{"Script", "javascript:alert(1)", false},
                                         Address{"OtherProgram", "mailto:a@example.org", false},
                                         Address{"User", "https://brew.sh@example.org/", false},
                                         Address{"NoHost", "https:///page", false},
                                         Address{"NoScheme", "example.org", false},
                                         Address{"Nothing", "", false}),
                         [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace quillmere
