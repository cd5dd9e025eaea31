#include <gtest/gtest.h>

#include "catalog/MetadataFetchError.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

using Error = HomebrewFormulaMetadataError;

TEST(MetadataFetchError, NamesTheStatusOfTheAnswer) {
  EXPECT_EQ(Error::httpStatus(503).description(),
            QStringLiteral("Homebrew returned HTTP status 503."));
  EXPECT_EQ(description(Error::httpStatus(304)),
            QStringLiteral("Homebrew returned HTTP status 304."));
}

TEST(MetadataFetchError, SaysThatTheAnswerWasNotHttp) {
  EXPECT_EQ(description(Error::invalidResponse()),
            QStringLiteral("Homebrew returned an invalid response."));
}

TEST(MetadataFetchError, PassesOnThePlatformsWords) {
  EXPECT_EQ(description(MetadataTransportError{QStringLiteral("Connection refused")}),
            QStringLiteral("Connection refused"));
}

TEST(MetadataFetchError, HasWordsForACancel) {
  EXPECT_EQ(description(MetadataFetchCancelled{}), QStringLiteral("The download was cancelled."));
}

TEST(MetadataFetchError, IsEqualWithTheSameCaseAndCode) {
  EXPECT_EQ(Error::httpStatus(404), Error::httpStatus(404));
  EXPECT_NE(Error::httpStatus(404), Error::httpStatus(403));
  EXPECT_NE(Error::httpStatus(404), Error::invalidResponse());
  EXPECT_EQ(Error::invalidResponse(), Error::invalidResponse());
  EXPECT_NE(MetadataFetchError(Error::invalidResponse()),
            MetadataFetchError(MetadataFetchCancelled{}));
}

}  // namespace
}  // namespace quillmere
