#include <QtCore/QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "platform/NameOrdering.h"

namespace quillmere {
namespace {

using testing::ElementsAre;

int sign(int value) {
  return (value > 0) - (value < 0);
}

struct Pair {
  const char* left;
  const char* right;
  int order;
};

class NameOrderingIn : public testing::TestWithParam<const char*> {
 protected:
  const NameOrdering ordering_{QLocale(QString::fromLatin1(GetParam()))};
};

TEST_P(NameOrderingIn, OrdersNumbersByValueAndIgnoresCase) {
  const Pair pairs[] = {
      {"1.9", "1.10", -1},
      {"1.10", "1.9", 1},
      {"120.0", "121.0.1", -1},
      {"9", "121", -1},
      {"python@3.9", "python@3.13", -1},
      {"1.2.3", "1.2.3_1", -1},
      {"1.2.3_2", "1.2.3_10", -1},
      {"1.01", "1.1", 0},
      {"2026-01-09", "2026-01-10", -1},
      {"wget", "WGET", 0},
      {"apple", "Banana", -1},
      {"Apple", "banana", -1},
      {"Zebra", "apple", 1},
      {"wget", "wget2", -1},
      {"", "a", -1},
      {"", "", 0},
      {"123456789012345678901234567890", "123456789012345678901234567891", -1},
  };
  for (const Pair& pair : pairs) {
    const QString left = QString::fromUtf8(pair.left);
    const QString right = QString::fromUtf8(pair.right);
    EXPECT_EQ(sign(ordering_.compare(left, right)), pair.order) << pair.left << " " << pair.right;
    EXPECT_EQ(sign(ordering_.sortKey(left).compare(ordering_.sortKey(right))), pair.order)
        << "by key: " << pair.left << " " << pair.right;
  }
}

/// The comparison of the platform is none for such names.
TEST_P(NameOrderingIn, OrdersWhateverNamesByTheirKeys) {
  const QStringList names{QString(),
                          QStringLiteral("\u007f"),
                          QStringLiteral("1\ufffd1\ufffd\u0008"),
                          QStringLiteral("1\u0967\u0008"),
                          QStringLiteral("\u0967"),
                          QStringLiteral("1")};
  for (const QString& left : names) {
    for (const QString& right : names) {
      EXPECT_EQ(sign(ordering_.compare(left, right)),
                sign(ordering_.sortKey(left).compare(ordering_.sortKey(right))))
          << left.toStdString() << " " << right.toStdString();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, NameOrderingIn,
                         testing::Values("C", "en_US", "de_DE", "sv_SE", "tr_TR", "ja_JP"));

TEST(NameOrdering, OfTheUserOrdersNumbersByValueAndIgnoresCase) {
  const NameOrdering& ordering = NameOrdering::forUserLocale();
  EXPECT_LT(ordering.compare(u"1.9", u"1.10"), 0);
  EXPECT_LT(ordering.compare(u"apple", u"Banana"), 0);
  EXPECT_EQ(ordering.compare(u"wget", u"WGET"), 0);
}

TEST(NameOrdering, FollowsTheLanguage) {
  const NameOrdering german{QLocale(QLocale::German)};
  const NameOrdering swedish{QLocale(QLocale::Swedish)};
  EXPECT_LT(german.compare(u"\u00e4", u"z"), 0);
  EXPECT_GT(swedish.compare(u"\u00e4", u"z"), 0);
}

struct Item {
  QString name;
  int number = 0;
};

TEST(NameOrdering, SortsAndKeepsTheOrderOfEqualNames) {
  std::vector<Item> items = {{QStringLiteral("zlib"), 1}, {QStringLiteral("Wget"), 2},
                             {QStringLiteral("a10"), 3},  {QStringLiteral("wget"), 4},
                             {QStringLiteral("a9"), 5},   {QStringLiteral("WGET"), 6},
                             {QStringLiteral("a9"), 7}};
  NameOrdering(QLocale::c()).stableSort(items, [](const Item& item) { return item.name; });
  std::vector<int> numbers;
  for (const Item& item : items) {
    numbers.push_back(item.number);
  }
  EXPECT_THAT(numbers, ElementsAre(5, 7, 3, 2, 4, 6, 1));
}

// Few items are sorted by insertion, which keeps their order by itself.
TEST(NameOrdering, KeepsTheOrderOfEqualNamesAmongMany) {
  std::vector<Item> items;
  for (int i = 0; i < 1000; ++i) {
    items.push_back({i % 2 == 0 ? QStringLiteral("wget") : QStringLiteral("Curl"), i});
  }
  NameOrdering(QLocale::c()).stableSort(items, [](const Item& item) { return item.name; });
  const auto firstWget = std::ranges::find(items, QStringLiteral("wget"), &Item::name);
  EXPECT_EQ(firstWget - items.begin(), 500);
  EXPECT_TRUE(std::ranges::is_sorted(items.begin(), firstWget, {}, &Item::number));
  EXPECT_TRUE(std::ranges::is_sorted(firstWget, items.end(), {}, &Item::number));
}

TEST(NameOrdering, SortsWhateverTheOrderBefore) {
  const NameOrdering ordering(QLocale::c());
  std::minstd_rand random(1);
  for (int size = 0; size < 200; ++size) {
    std::vector<Item> items;
    for (int i = 0; i < size; ++i) {
      // Parts in order, parts in the reverse order, and equal names among them.
      const auto draw = static_cast<int>(random() % 8);
      const int number = draw < 3 ? i : draw < 6 ? size - i : draw;
      items.push_back({QStringLiteral("package-%1").arg(number / 3), i});
    }
    ordering.stableSort(items, [](const Item& item) { return item.name; });
    EXPECT_EQ(items.size(), static_cast<std::size_t>(size));
    const bool isSorted = std::ranges::is_sorted(items, [&](const Item& left, const Item& right) {
      const int compared = ordering.compare(left.name, right.name);
      return compared < 0 || (compared == 0 && left.number < right.number);
    });
    EXPECT_TRUE(isSorted) << size;
  }
}

TEST(NameOrdering, AsksEachItemForItsNameAtMostTwice) {
  std::vector<Item> items;
  for (int i = 0; i < 100; ++i) {
    items.push_back({QStringLiteral("package-%1").arg(100 - i), 100 - i});
  }
  int asked = 0;
  NameOrdering::forUserLocale().stableSort(items, [&asked](const Item& item) {
    ++asked;
    return item.name;
  });
  EXPECT_LE(asked, 200);
  EXPECT_TRUE(std::ranges::is_sorted(items, {}, &Item::number));
}

TEST(NameOrdering, LeavesWhatIsInOrderWhereItIs) {
  std::vector<Item> items = {{QStringLiteral("a9"), 1},
                             {QStringLiteral("A9"), 2},
                             {QStringLiteral("a10"), 3},
                             {QStringLiteral("b"), 4}};
  const Item* const first = items.data();
  NameOrdering::forUserLocale().stableSort(items, [](const Item& item) { return item.name; });
  EXPECT_EQ(items.data(), first);
  EXPECT_TRUE(std::ranges::is_sorted(items, {}, &Item::number));
}

TEST(NameOrdering, SortsAListOfTexts) {
  QStringList names = {QStringLiteral("1.10"), QStringLiteral("1.9"), QStringLiteral("1.9_1")};
  NameOrdering::forUserLocale().stableSort(names, [](const QString& name) { return name; });
  EXPECT_EQ(names,
            (QStringList{QStringLiteral("1.9"), QStringLiteral("1.9_1"), QStringLiteral("1.10")}));
}

TEST(NameOrdering, SortsNothing) {
  std::vector<Item> items;
  NameOrdering::forUserLocale().stableSort(items, [](const Item& item) { return item.name; });
  EXPECT_TRUE(items.empty());
}

}  // namespace
}  // namespace quillmere
