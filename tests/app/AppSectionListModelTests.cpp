#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include "app/AppSectionListModel.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

TEST(AppSectionListModel, ListsEverySectionWithNameTitleAndSymbol) {
  AppSectionListModel sections;
  const QAbstractItemModelTester tester(&sections,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  ASSERT_EQ(sections.rowCount(), 9);
  const QModelIndex last = sections.index(8);
  EXPECT_EQ(last.data(AppSectionListModel::SectionRole).toString(), QStringLiteral("aboutLegal"));
  EXPECT_EQ(last.data(AppSectionListModel::TitleRole).toString(), QStringLiteral("About & Legal"));
  EXPECT_EQ(last.data(AppSectionListModel::SymbolNameRole).toString(),
            QStringLiteral("info.circle"));
}

TEST(AppSectionListModel, TellsACountOnceAndNothingOfZero) {
  AppSectionListModel sections;
  const QAbstractItemModelTester tester(&sections,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  const QSignalSpy changed(&sections, &AppSectionListModel::dataChanged);
  const QModelIndex updates = sections.index(3);
  EXPECT_EQ(updates.data(AppSectionListModel::CountRole).toInt(), 0);

  sections.setCount(AppSection::updates, 2, QStringLiteral("2 updates"));
  sections.setCount(AppSection::updates, 2, QStringLiteral("2 updates"));
  EXPECT_EQ(changed.size(), 1);
  EXPECT_EQ(updates.data(AppSectionListModel::CountRole).toInt(), 2);
  EXPECT_EQ(updates.data(AppSectionListModel::CountTextRole).toString(),
            QStringLiteral("2 updates"));

  sections.setCount(AppSection::updates, 0, QStringLiteral("0 updates"));
  EXPECT_EQ(updates.data(AppSectionListModel::CountTextRole).toString(), QString());
}

}  // namespace
}  // namespace quillmere
