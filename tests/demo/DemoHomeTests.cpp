#include <QtCore/QSettings>

#include <gmock/gmock.h>
#include <map>
#include <set>
#include <sys/stat.h>

#include "DemoWorld.h"
#include "demo/DemoTables.h"
#include "guidance/CleanupGuidance.h"
#include "guidance/PackageUpdateSummary.h"
#include "persistence/LocalPersistenceStore.h"
#include "platform/FileUrl.h"
#include "prefix/HomebrewPrefixReader.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using demo::DemoHome;
using demo::DemoUser;
using testing::IsSupersetOf;
using testing::SizeIs;

class DemoHomeTest : public test::DemoWorld {};

std::unique_ptr<LocalPersistenceStore> storeOf(const DemoHome& home) {
  return std::make_unique<LocalPersistenceStore>(
      std::make_unique<QSettings>(home.settingsFile(), QSettings::NativeFormat),
      fileUrl(home.catalogFolder()));
}

TEST(DemoTables, NameEveryPackageOnceAndOnlyPackagesThatAreThere) {
  std::set<QString> names;
  for (const demo::Formula& formula : demo::formulae()) {
    EXPECT_TRUE(names.insert(formula.name).second) << formula.name.toStdString();
  }
  EXPECT_THAT(names, SizeIs(testing::Ge(220)));
  for (const demo::Formula& formula : demo::formulae()) {
    for (const QString& need : formula.dependencies) {
      EXPECT_TRUE(names.contains(need)) << formula.name.toStdString();
    }
  }
  std::set<QString> tokens;
  for (const demo::Cask& cask : demo::casks()) {
    EXPECT_TRUE(tokens.insert(cask.token).second) << cask.token.toStdString();
  }
  EXPECT_THAT(tokens, SizeIs(testing::Ge(80)));
}

TEST(DemoTables, HoldTheOdditiesOfTheRealCatalog) {
  std::map<QString, int> dependants;
  const auto all = demo::formulae();
  for (const demo::Formula& formula : all) {
    for (const QString& need : formula.dependencies) {
      ++dependants[need];
    }
  }
  EXPECT_GE(dependants[u"openssl@3"_s], 30);
  EXPECT_TRUE(std::ranges::any_of(all, [](const auto& each) { return !each.version; }));
  EXPECT_TRUE(std::ranges::any_of(all, [](const auto& each) { return !each.description; }));
  EXPECT_TRUE(std::ranges::any_of(all, [](const auto& each) { return !each.homepage; }));
  EXPECT_TRUE(std::ranges::any_of(all, [](const auto& each) { return each.revision > 0; }));
  EXPECT_TRUE(
      std::ranges::any_of(all, [](const auto& each) { return each.license.contains(u" AND "); }));
  const auto casks = demo::casks();
  EXPECT_TRUE(
      std::ranges::any_of(casks, [](const auto& each) { return each.version == u"latest"; }));
  EXPECT_TRUE(
      std::ranges::any_of(casks, [](const auto& each) { return each.version.contains(u','); }));
  EXPECT_TRUE(std::ranges::any_of(casks, [](const auto& each) {
    return each.names.join(QString()) != QString::fromLatin1(each.names.join(QString()).toLatin1());
  }));
}

TEST(DemoDocuments, AreReadByTheProgramToTheLastRecord) {
  const auto formulae = decodeFormulae(demo::formulaDocument());
  ASSERT_TRUE(formulae) << formulae.error().description().toStdString();
  const auto formulaRows = demo::formulae();
  ASSERT_EQ(formulae->size(), formulaRows.size());
  for (std::size_t i = 0; i < formulaRows.size(); ++i) {
    const HomebrewFormula& read = formulae->at(i);
    const demo::Formula& row = formulaRows[i];
    EXPECT_EQ(read.name.toString(), row.name);
    EXPECT_EQ(read.versions.stable.has_value(), row.version.has_value());
    EXPECT_EQ(read.versions.head.has_value(), row.hasHead);
    EXPECT_EQ(read.description ? read.description->toString() : QString(),
              row.description.value_or(QString()));
    EXPECT_EQ(read.dependencies.size(), static_cast<std::size_t>(row.dependencies.size()));
  }
  const auto casks = decodeCasks(demo::caskDocument());
  ASSERT_TRUE(casks) << casks.error().description().toStdString();
  const auto caskRows = demo::casks();
  ASSERT_EQ(casks->size(), caskRows.size());
  for (std::size_t i = 0; i < caskRows.size(); ++i) {
    EXPECT_EQ(casks->at(i).token.toString(), caskRows[i].token);
    EXPECT_EQ(casks->at(i).names.front().toString(), caskRows[i].names.constFirst());
    EXPECT_EQ(casks->at(i).artifacts.size(),
              static_cast<std::size_t>(caskRows[i].artifacts.size()));
  }
}

TEST_F(DemoHomeTest, OfANewcomerHasACatalogAndNothingElseRemembered) {
  const auto store = storeOf(home());
  EXPECT_FALSE(store->hasCompletedOnboarding());
  EXPECT_FALSE(store->selectedHomebrewPrefixPath());
  EXPECT_FALSE(store->localInventoryLastScanDate());
  EXPECT_TRUE(store->commandHistory().isEmpty());
  EXPECT_TRUE(store->hasCachedFormulaCatalog());
  EXPECT_TRUE(store->hasCachedCaskCatalog());
  ASSERT_TRUE(store->catalogLastRefreshDate());
  EXPECT_EQ(store->catalogLastRefreshDate()->daysTo(QDateTime::currentDateTimeUtc()), 2);
}

TEST_F(DemoHomeTest, OfAnOldHandHasAPrefixAndAHistoryOfAllKinds) {
  const DemoHome other{home().folder + u" 2"_s};
  ASSERT_TRUE(other.write(DemoUser::regular));
  const auto store = storeOf(other);
  EXPECT_TRUE(store->hasCompletedOnboarding());
  EXPECT_EQ(store->selectedHomebrewPrefixPath(), other.prefix());
  const CommandHistory& history = store->commandHistory();
  const auto holds = [&history](auto isSo) { return std::ranges::any_of(history, isSo); };
  EXPECT_TRUE(holds([](const auto& record) { return record.copied; }));
  EXPECT_TRUE(holds([](const auto& record) { return record.executionExitCode == 0; }));
  EXPECT_TRUE(holds([](const auto& record) {
    return record.executionExitCode == 1 && record.executionCancelled == false;
  }));
  EXPECT_TRUE(holds([](const auto& record) { return record.executionCancelled == true; }));
  EXPECT_TRUE(std::ranges::is_sorted(history, std::greater(), &CommandHistoryRecord::copiedAt));
}

TEST_F(DemoHomeTest, RefusesAFolderThatHoldsSomething) {
  const auto written = home().write(DemoUser::newcomer);
  ASSERT_FALSE(written);
  EXPECT_EQ(written.error(), home().folder + u": the folder is not empty"_s);
}

TEST_F(DemoHomeTest, SaysWhereItCannotWrite) {
  const DemoHome other{inPrefix(u"var/pace"_s)};
  const auto written = other.write(DemoUser::newcomer);
  ASSERT_FALSE(written);
  EXPECT_TRUE(written.error().startsWith(other.prefix())) << written.error().toStdString();
}

TEST_F(DemoHomeTest, HasAllWellKnownLocations) {
  for (const HomebrewPrefixLocation& location : HomebrewPrefixReader(prefix()).read().locations) {
    EXPECT_EQ(location.status, HomebrewPrefixLocation::Status::readable)
        << location.label.toStdString();
  }
}

TEST_F(DemoHomeTest, HoldsEveryInstalledPackageAsTheTablesSay) {
  const auto rows = demo::installedPackages();
  EXPECT_EQ(inventory().size(), rows.size());
  for (const demo::InstalledPackage& row : rows) {
    const QString id = (row.isCask ? u"cask:"_s : u"formula:"_s) + row.name;
    EXPECT_EQ(versionsOf(id.toStdString()), row.versions) << id.toStdString();
  }
  std::set<std::string> details;
  for (const InstalledPackageSummary& package : inventory()) {
    details.insert(package.detail.toString().toStdString());
  }
  EXPECT_THAT(details, IsSupersetOf({"Installed on request", "Installed as dependency",
                                     "Install reason unknown"}));
}

TEST_F(DemoHomeTest, HoldsPackagesOfEveryKindOfVersion) {
  std::set<PackageVersionState::Status> statuses;
  for (const PackageUpdateSummary& update : packageUpdateSummaries(inventory())) {
    statuses.insert(update.versionState.status);
  }
  EXPECT_THAT(statuses, SizeIs(rawValues<PackageVersionState::Status>.size()));
}

TEST_F(DemoHomeTest, HasSomethingToCleanUpAndTakesNoRoomForIt) {
  EXPECT_GE(oldVersionCount(oldVersionPackages(inventory())), 10);
  const QUrl cache = QUrl::fromLocalFile(inPrefix(u"var/homebrew/cache"_s));
  constexpr qint64 megabyte = 1'000'000;
  EXPECT_GT(estimatedSize(cache).value(), 300 * megabyte);
  EXPECT_LT(estimatedSize(cache).value(), 2000 * megabyte);
  struct stat status = {};
  const QByteArray download = inPrefix(u"var/homebrew/cache/Cask/firefox--146.0.1.dmg"_s).toUtf8();
  ASSERT_EQ(stat(download.constData(), &status), 0);
  EXPECT_LT(status.st_blocks, 100);
}

}  // namespace
}  // namespace quillmere
