#include <gtest/gtest.h>
#include <limits>

#include "platform/ByteTexts.h"

namespace quillmere {
namespace {

struct ByteCount {
  qint64 bytes;
  const char* text;
};

void PrintTo(const ByteCount& count, std::ostream* out) {
  *out << count.bytes;
}

class ByteTexts : public testing::TestWithParam<ByteCount> {};

TEST_P(ByteTexts, SaysTheCountAsAFileManagerDoes) {
  EXPECT_EQ(byteCountText(GetParam().bytes).toStdString(), GetParam().text);
}

constexpr qint64 kilo = 1'000;
constexpr qint64 mega = kilo * 1'000;
constexpr qint64 giga = mega * 1'000;

INSTANTIATE_TEST_SUITE_P(BelowAKilobyte, ByteTexts,
                         testing::Values(ByteCount{0, "Zero KB"}, ByteCount{1, "1 byte"},
                                         ByteCount{2, "2 bytes"}, ByteCount{999, "999 bytes"}));

INSTANTIATE_TEST_SUITE_P(
    EachUnit, ByteTexts,
    testing::Values(ByteCount{kilo, "1 KB"}, ByteCount{14 * kilo + 200, "14 KB"},
                    ByteCount{mega, "1 MB"}, ByteCount{4 * mega + 560 * kilo, "4.6 MB"},
                    ByteCount{giga, "1 GB"}, ByteCount{1'250 * mega, "1.25 GB"},
                    ByteCount{1'005 * mega, "1.01 GB"}, ByteCount{1'200 * mega, "1.2 GB"},
                    ByteCount{3'140 * giga, "3.14 TB"}, ByteCount{2 * kilo * kilo * giga, "2 PB"},
                    ByteCount{std::numeric_limits<qint64>::max(), "9.22 EB"}));

INSTANTIATE_TEST_SUITE_P(RoundedToTheNext, ByteTexts,
                         testing::Values(ByteCount{1'499, "1 KB"}, ByteCount{1'500, "2 KB"},
                                         ByteCount{mega - 501, "999 KB"},
                                         ByteCount{mega - 500, "1 MB"},
                                         ByteCount{giga - 50 * kilo - 1, "999.9 MB"},
                                         ByteCount{giga - 50 * kilo, "1 GB"}));

INSTANTIATE_TEST_SUITE_P(Negative, ByteTexts,
                         testing::Values(ByteCount{-1, "-1 byte"}, ByteCount{-4'600'000, "-4.6 MB"},
                                         ByteCount{std::numeric_limits<qint64>::min(),
                                                   "-9.22 EB"}));

}  // namespace
}  // namespace quillmere
