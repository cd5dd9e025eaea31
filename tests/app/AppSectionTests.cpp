#include <QtCore/QString>
#include <QtCore/QStringView>

#include <gtest/gtest.h>
#include <vector>

#include "app/AppSection.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

struct Row {
  AppSection section;
  QLatin1StringView rawValue;
  QLatin1StringView title;
  QLatin1StringView symbolName;
};

const std::vector<Row> table = {
    {AppSection::dashboard, "dashboard"_L1, "Dashboard"_L1, "lightbulb"_L1},
    {AppSection::installed, "installed"_L1, "Installed"_L1, "shippingbox"_L1},
    {AppSection::browse, "browse"_L1, "Browse"_L1, "magnifyingglass"_L1},
    {AppSection::updates, "updates"_L1, "Updates"_L1, "arrow.triangle.2.circlepath"_L1},
    {AppSection::cleanup, "cleanup"_L1, "Cleanup"_L1, "sparkles"_L1},
    {AppSection::services, "services"_L1, "Services"_L1, "switch.2"_L1},
    {AppSection::history, "history"_L1, "History"_L1, "clock.arrow.circlepath"_L1},
    {AppSection::settings, "settings"_L1, "Settings"_L1, "gearshape"_L1},
    {AppSection::aboutLegal, "aboutLegal"_L1, "About & Legal"_L1, "info.circle"_L1},
};

TEST(AppSection, AreListedInTheOrderOfTheSidebar) {
  ASSERT_EQ(allAppSections.size(), table.size());
  for (std::size_t i = 0; i < table.size(); ++i) {
    EXPECT_EQ(allAppSections[i], table[i].section);
  }
}

TEST(AppSection, HaveOneTitleAndOneSymbolEach) {
  for (const Row& row : table) {
    EXPECT_EQ(title(row.section), row.title);
    EXPECT_EQ(symbolName(row.section), row.symbolName);
  }
}

TEST(AppSection, AreFoundAgainByTheirRawValues) {
  for (const Row& row : table) {
    EXPECT_EQ(rawValue(row.section), row.rawValue);
    EXPECT_EQ(appSectionFromRawValue(QString(row.rawValue)), row.section);
  }
}

TEST(AppSection, AreNoneForATextThatNamesNoSection) {
  EXPECT_EQ(appSectionFromRawValue(u"catalog"), std::nullopt);
  EXPECT_EQ(appSectionFromRawValue(u"AboutLegal"), std::nullopt);
  EXPECT_EQ(appSectionFromRawValue(u"About & Legal"), std::nullopt);
  EXPECT_EQ(appSectionFromRawValue(u""), std::nullopt);
}

}  // namespace
}  // namespace quillmere
