#include <QtTest/QAbstractItemModelTester>

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

}  // namespace
}  // namespace quillmere
