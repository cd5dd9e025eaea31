#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include "screens/browse/PackageListModel.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Role = PackageListModel::Role;

PackageCatalogPtr someCatalog() {
  return decodeCatalog({.formulae = R"([{"name": "curl", "desc": "Get a file", "versions":
                               {"stable": "8.17.0"}},
                              {"name": "bare", "versions": {}}])",
                        .casks = R"([{"token": "firefox", "name": ["Mozilla Firefox"],
                            "desc": "Web browser", "version": "145.0"}])"})
      .value();
}

class PackageListModelTest : public testing::Test {
 protected:
  [[nodiscard]] QString at(int row, Role role) const {
    return model_.index(row).data(role).toString();
  }

  PackageListModel model_;
  QAbstractItemModelTester tester_{&model_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PackageListModelTest, IsEmptyAtFirst) {
  EXPECT_EQ(model_.rowCount(), 0);
}

TEST_F(PackageListModelTest, ShowsNameKindVersionAndDescription) {
  model_.setPackages(someCatalog(), {0, 2});
  EXPECT_EQ(model_.rowCount(), 2);
  EXPECT_EQ(at(0, Role::NameRole), u"curl"_s);
  EXPECT_EQ(at(0, Role::KindRole), u"Formula"_s);
  EXPECT_EQ(at(0, Role::VersionRole), u"8.17.0"_s);
  EXPECT_EQ(at(0, Role::DescriptionRole), u"Get a file"_s);
  EXPECT_EQ(at(1, Role::NameRole), u"Mozilla Firefox"_s);
  EXPECT_EQ(at(1, Role::KindRole), u"Cask"_s);
}

TEST_F(PackageListModelTest, ShowsNothingWhereNothingIsKnown) {
  model_.setPackages(someCatalog(), {1});
  EXPECT_EQ(at(0, Role::VersionRole), QString());
  EXPECT_EQ(at(0, Role::DescriptionRole), QString());
}

TEST_F(PackageListModelTest, SpeaksNameKindVersionAndDescription) {
  model_.setPackages(someCatalog(), {0, 1, 2});
  EXPECT_EQ(at(0, Role::AccessibleLabelRole), u"curl, Formula, version 8.17.0, Get a file"_s);
  EXPECT_EQ(at(1, Role::AccessibleLabelRole), u"bare, Formula, unknown version"_s);
  EXPECT_EQ(at(2, Role::AccessibleLabelRole),
            u"Mozilla Firefox, Cask, version 145.0, Web browser"_s);
}

TEST_F(PackageListModelTest, GivesThePackageOfARow) {
  model_.setPackages(someCatalog(), {0, 2});
  EXPECT_EQ(model_.package(1).id, "cask:firefox");
}

TEST_F(PackageListModelTest, StaysAsItIsWhenTheSameIsShownAgain) {
  const PackageCatalogPtr catalog = someCatalog();
  model_.setPackages(catalog, {0, 2});
  const QSignalSpy replaced(&model_, &PackageListModel::rowsReplaced);
  model_.setPackages(catalog, {0, 2});
  EXPECT_TRUE(replaced.isEmpty());
  model_.setPackages(catalog, {0});
  EXPECT_EQ(replaced.size(), 1);
}

TEST_F(PackageListModelTest, ChangesTheRowsInViewInsteadOfMakingThemAnew) {
  const PackageCatalogPtr catalog = someCatalog();
  model_.setPackages(catalog, {0, 1, 2});
  const QSignalSpy resets(&model_, &QAbstractItemModel::modelReset);
  const QSignalSpy changed(&model_, &QAbstractItemModel::dataChanged);
  const QSignalSpy removed(&model_, &QAbstractItemModel::rowsRemoved);
  const QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);

  model_.setPackages(catalog, {2});
  EXPECT_EQ(at(0, Role::NameRole), u"Mozilla Firefox"_s);
  ASSERT_EQ(removed.size(), 1);
  EXPECT_EQ(removed[0][1], 1);
  EXPECT_EQ(removed[0][2], 2);
  ASSERT_EQ(changed.size(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
  EXPECT_EQ(changed[0][1].toModelIndex().row(), 0);

  model_.setPackages(catalog, {0, 1});
  ASSERT_EQ(inserted.size(), 1);
  EXPECT_EQ(inserted[0][1], 1);
  EXPECT_EQ(inserted[0][2], 1);
  EXPECT_EQ(changed.size(), 2);

  model_.setPackages(catalog, {});
  EXPECT_EQ(changed.size(), 2);
  EXPECT_TRUE(resets.isEmpty());
}

TEST_F(PackageListModelTest, NamesItsRolesForTheRows) {
  const QList<QByteArray> names = model_.roleNames().values();
  for (const char* const name : {"name", "kind", "version", "description", "accessibleLabel"}) {
    EXPECT_TRUE(names.contains(name)) << name;
  }
}

}  // namespace
}  // namespace quillmere
