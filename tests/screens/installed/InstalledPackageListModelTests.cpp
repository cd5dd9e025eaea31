#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>
#include <utility>

#include "screens/installed/InstalledPackageListModel.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using Role = InstalledPackageListModel::Role;
using Kind = HomebrewPackageSummary::Kind;

SharedText shared(const QString& text) {
  return SharedText(QStringView(text));
}

InstalledPackageSummary wget() {
  InstalledPackageSummary package;
  package.id = shared(u"formula:wget"_s);
  package.name = shared(u"wget"_s);
  package.description = shared(u"Internet file retriever"_s);
  package.installedVersion = shared(u"1.24.5"_s);
  package.latestKnownVersion = shared(u"1.25.0"_s);
  package.tap = shared(u"homebrew/core"_s);
  package.detail = shared(u"Installed on request"_s);
  return package;
}

/// A cask of which the catalog knows nothing and whose folder holds no version.
InstalledPackageSummary ownCask() {
  InstalledPackageSummary package;
  package.id = shared(u"cask:own"_s);
  package.kind = Kind::cask;
  package.name = shared(u"own"_s);
  package.detail = shared(u"Cask token: own"_s);
  return package;
}

class InstalledPackageListModelTest : public testing::Test {
 protected:
  [[nodiscard]] QString at(int row, Role role) const {
    return model_.index(row).data(role).toString();
  }

  void show(std::vector<InstalledPackageSummary> packages, std::vector<std::size_t> places) {
    model_.setPackages(
        std::make_shared<const std::vector<InstalledPackageSummary>>(std::move(packages)),
        std::move(places));
  }

  InstalledPackageListModel model_;
  QAbstractItemModelTester tester_{&model_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(InstalledPackageListModelTest, IsEmptyAtFirst) {
  EXPECT_EQ(model_.rowCount(), 0);
}

TEST_F(InstalledPackageListModelTest, ShowsNameKindAndBothVersions) {
  show({ownCask(), wget()}, {1});
  EXPECT_EQ(model_.rowCount(), 1);
  EXPECT_EQ(at(0, Role::NameRole), u"wget"_s);
  EXPECT_EQ(at(0, Role::KindRole), u"Formula"_s);
  EXPECT_EQ(at(0, Role::InstalledVersionRole), u"1.24.5"_s);
  EXPECT_EQ(at(0, Role::LatestKnownVersionRole), u"1.25.0"_s);
  EXPECT_EQ(at(0, Role::DescriptionRole), u"Internet file retriever"_s);
}

TEST_F(InstalledPackageListModelTest, SaysWhatIsNotKnown) {
  show({ownCask()}, {0});
  EXPECT_EQ(at(0, Role::KindRole), u"Cask"_s);
  EXPECT_EQ(at(0, Role::InstalledVersionRole), u"Unknown"_s);
  EXPECT_EQ(at(0, Role::LatestKnownVersionRole), u"Not listed"_s);
  EXPECT_EQ(at(0, Role::DescriptionRole), u"Cask token: own"_s);
}

struct SpokenCase {
  bool installed;
  bool latestKnown;
  bool source;
  QString label;
};

class SpokenInstalledPackage : public testing::TestWithParam<SpokenCase> {};

TEST_P(SpokenInstalledPackage, SaysEachPartThatIsKnown) {
  InstalledPackageSummary package = wget();
  if (!GetParam().installed) {
    package.installedVersion.reset();
  }
  if (!GetParam().latestKnown) {
    package.latestKnownVersion.reset();
  }
  if (!GetParam().source) {
    package.tap.reset();
  }
  EXPECT_EQ(accessibleLabel(package), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(
    Labels, SpokenInstalledPackage,
    testing::Values(
        SpokenCase{true, true, true,
                   u"wget, installed 1.24.5, latest known 1.25.0, source homebrew/core"_s},
        SpokenCase{true, true, false, u"wget, installed 1.24.5, latest known 1.25.0"_s},
        SpokenCase{true, false, true, u"wget, installed 1.24.5, source homebrew/core"_s},
        SpokenCase{false, true, true, u"wget, latest known 1.25.0, source homebrew/core"_s},
        SpokenCase{false, false, false, u"wget"_s}));

TEST_F(InstalledPackageListModelTest, SpeaksItsRows) {
  show({wget()}, {0});
  EXPECT_EQ(at(0, Role::AccessibleLabelRole), accessibleLabel(wget()));
}

TEST_F(InstalledPackageListModelTest, GivesThePackageOfARow) {
  show({wget(), ownCask()}, {1});
  EXPECT_EQ(model_.package(0), ownCask());
}

TEST_F(InstalledPackageListModelTest, StaysAsItIsWhenTheSameIsShownAgain) {
  const auto packages =
      std::make_shared<const std::vector<InstalledPackageSummary>>(std::vector{wget()});
  model_.setPackages(packages, {0});
  const QSignalSpy replaced(&model_, &InstalledPackageListModel::rowsReplaced);
  model_.setPackages(packages, {0});
  EXPECT_TRUE(replaced.isEmpty());
}

TEST_F(InstalledPackageListModelTest, NamesItsRolesForTheRows) {
  const QList<QByteArray> names = model_.roleNames().values();
  for (const char* const name : {"name", "kind", "installedVersion", "latestKnownVersion",
                                 "description", "accessibleLabel"}) {
    EXPECT_TRUE(names.contains(name)) << name;
  }
}

}  // namespace
}  // namespace quillmere
