#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/shared/DemoInventory.h"
#include "screens/updates/UpdatesViewModel.h"
#include "support/Printers.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using State = InstalledPackagesState;
using test::inputsOf;
using test::installed;
using test::loaded;

const QDateTime now(QDate(2026, 11, 20), QTime(12, 0), Qt::UTC);

class Updates : public testing::Test {
 protected:
  [[nodiscard]] QString value(int row, PackageUpdateListModel::Role role) {
    return updates_.packages()->data(updates_.packages()->index(row), role).toString();
  }

  QStringList asked_;
  UpdatesViewModel updates_{[this](const BrewCommand& command, const QString& sourceScreen) {
                              asked_ += command.commandText + u" from "_s + sourceScreen;
                            },
                            [] { return now; }};
};

struct Message {
  LocalInventoryInputs inputs;
  UpdatesViewModel::Phase state;
  QString title;
  QString symbolName;
  QString text;
};

void PrintTo(const Message& message, std::ostream* out) {
  *out << message.title.toStdString();
}

LocalInventoryInputs idleWithPrefix() {
  LocalInventoryInputs inputs;
  inputs.selectedPrefixPath = u"/opt/homebrew"_s;
  return inputs;
}

LocalInventoryInputs scanning(int scanned, int known) {
  LocalInventoryInputs inputs = inputsOf(State::Loading{});
  inputs.scannedPackages = scanned;
  inputs.totalPackages = known;
  return inputs;
}

/// What was compared with a catalog of today.
LocalInventoryInputs compared(std::vector<InstalledPackageSummary> packages) {
  LocalInventoryInputs inputs = loaded(std::move(packages));
  inputs.catalogLastRefreshDate = now;
  return inputs;
}

class UpdatesMessages : public Updates, public testing::WithParamInterface<Message> {};

TEST_P(UpdatesMessages, SayWhereTheInventoryStands) {
  updates_.setInputs(GetParam().inputs);
  EXPECT_EQ(updates_.phase(), GetParam().state);
  EXPECT_EQ(updates_.title(), GetParam().title);
  EXPECT_EQ(updates_.symbolName(), GetParam().symbolName);
  EXPECT_EQ(updates_.text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    States, UpdatesMessages,
    testing::Values(
        Message{inputsOf(State::Idle{}), UpdatesViewModel::Idle, u"Scan For Updates"_s,
                u"arrow.triangle.2.circlepath"_s,
                u"Select a Homebrew prefix before deriving update guidance."_s},
        Message{idleWithPrefix(), UpdatesViewModel::Idle, u"Scan For Updates"_s,
                u"arrow.triangle.2.circlepath"_s,
                u"Selected prefix: /opt/homebrew. Scan local packages in read-only mode to compare "
                "installed versions with latest-known metadata."_s},
        Message{inputsOf(State::AccessNeeded{}), UpdatesViewModel::AccessNeeded,
                u"Local Access Needed"_s, u"arrow.triangle.2.circlepath"_s,
                u"Update guidance needs read-only local inventory plus latest-known public catalog "
                "metadata. Quillmere Direct can run approved update and upgrade commands after "
                "prefix selection and required confirmation."_s},
        Message{scanning(0, 0), UpdatesViewModel::Loading,
                u"Scanning installed packages before deriving update guidance..."_s,
                u"arrow.triangle.2.circlepath"_s, u""_s},
        Message{inputsOf(State::Failed{u"Local inventory could not be scanned: gone"_s}),
                UpdatesViewModel::Failed, u"Could Not Derive Updates"_s,
                u"externaldrive.badge.exclamationmark"_s,
                u"Local inventory could not be scanned: gone"_s},
        Message{compared({installed("formula:wget", {"1.0"}, "1.0")}), UpdatesViewModel::Loaded,
                u"No Updates Found"_s, u"checkmark.circle"_s,
                u"All comparable installed packages match the latest-known catalog versions. This "
                "is based on cached/public metadata, not live brew output."_s},
        Message{compared({installed("formula:wget", {"1.0"})}), UpdatesViewModel::Loaded,
                u"No Comparable Updates Found"_s, u"checkmark.circle"_s,
                u"No comparable outdated packages were found. 1 package have missing, newer, or "
                "non-comparable version data."_s},
        Message{compared({installed("formula:a", {"1.0"}), installed("formula:b", {"2"}, "1")}),
                UpdatesViewModel::Loaded, u"No Comparable Updates Found"_s, u"checkmark.circle"_s,
                u"No comparable outdated packages were found. 2 packages have missing, newer, or "
                "non-comparable version data."_s}));

TEST_F(Updates, DoNotSayThatAllIsWellWithoutACatalogOfTheScan) {
  LocalInventoryInputs inputs = compared({});
  updates_.setInputs(inputs);
  EXPECT_EQ(updates_.symbolName(), u"checkmark.circle"_s);
  inputs.isCatalogNewer = true;
  updates_.setInputs(inputs);
  EXPECT_EQ(updates_.title(), u"No Updates Found"_s);
  EXPECT_EQ(updates_.symbolName(), u"arrow.triangle.2.circlepath"_s);
  EXPECT_EQ(updates_.rescanWarning(), u"A newer catalog was fetched since this scan"_s);
  inputs.isCatalogNewer = false;
  inputs.needsRescan = true;
  updates_.setInputs(inputs);
  EXPECT_EQ(updates_.symbolName(), u"arrow.triangle.2.circlepath"_s);
  EXPECT_EQ(updates_.rescanWarning(), u"A command ran since this scan"_s);
  updates_.setInputs(loaded({}));
  EXPECT_EQ(updates_.symbolName(), u"arrow.triangle.2.circlepath"_s);
}

TEST_F(Updates, NameTheScanAfterTheState) {
  updates_.setInputs(inputsOf(State::Idle{}));
  EXPECT_EQ(updates_.scanTitle(), u"Scan Read-Only Inventory"_s);
  updates_.setInputs(inputsOf(State::Failed{}));
  EXPECT_EQ(updates_.scanTitle(), u"Scan"_s);
  updates_.setInputs(loaded({}));
  EXPECT_EQ(updates_.scanTitle(), u"Scan Again"_s);
}

TEST_F(Updates, CountWithAnSUnlessItIsOne) {
  EXPECT_EQ(updates_.updatesText(), u"0 updates"_s);
  updates_.setInputs(loaded({installed("formula:a", {"1"}, "2")}));
  EXPECT_EQ(updates_.updatesText(), u"1 update"_s);
  EXPECT_EQ(updates_.reviewText(), u"0 need review"_s);
  updates_.setInputs(loaded({installed("formula:a", {"1"}, "2"), installed("formula:b", {"1"}, "2"),
                             installed("formula:c", {"1"}), installed("formula:d", {"1"}, "1")}));
  EXPECT_EQ(updates_.updatesText(), u"2 updates"_s);
  EXPECT_EQ(updates_.reviewText(), u"1 need review"_s);
  EXPECT_EQ(updates_.upToDateText(), u"1 up to date"_s);
  EXPECT_EQ(updates_.updateCount(), 2);
}

TEST_F(Updates, KnowOfNoneOnceTheInventoryIsGone) {
  updates_.setInputs(loaded({installed("formula:a", {"1"}, "2")}));
  updates_.setInputs(inputsOf(State::Idle{}));
  EXPECT_EQ(updates_.updateCount(), 0);
  EXPECT_EQ(updates_.packages()->rowCount(), 0);
}

TEST_F(Updates, SayThatARebuildIsTheSameVersion) {
  updates_.setInputs(
      loaded({installed("formula:a", {"2.0_1"}, "2.0"), installed("formula:b", {"3"}, "2")}));
  EXPECT_EQ(value(0, PackageUpdateListModel::StatusTextRole), u"Newer than latest-known"_s);
  EXPECT_EQ(value(0, PackageUpdateListModel::NoteRole), u"Rebuilt by Homebrew, same version"_s);
  EXPECT_EQ(value(1, PackageUpdateListModel::NoteRole), QString());
}

TEST_F(Updates, ListWhatIsOutdatedAboveWhatNeedsReview) {
  const QAbstractItemModelTester tester(updates_.packages(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  using Model = PackageUpdateListModel;
  updates_.setInputs(
      loaded({installed("formula:d", {"1"}, "2"), installed("formula:c", {"1"}),
              installed("formula:e", {"1"}, "1"), installed("cask:b", {}, "latest"),
              installed("formula:a", {"3"}, "2"), installed("cask:B", {"latest"}, "1"),
              installed("cask:app", {"1"}, "2")}));
  QStringList rows;
  for (int row = 0; row < updates_.packages()->rowCount(); ++row) {
    rows +=
        QStringList{value(row, Model::HeadingRole),       value(row, Model::NameRole),
                    value(row, Model::KindTextRole),      value(row, Model::StatusTextRole),
                    value(row, Model::InstalledTextRole), value(row, Model::LatestKnownTextRole)}
            .join(u'|');
  }
  EXPECT_EQ(rows,
            (QStringList{u"Outdated|app|Cask|Update available|1|2"_s,
                         u"|d|Formula|Update available|1|2"_s,
                         u"Needs Review|a|Formula|Newer than latest-known|3|2"_s,
                         u"|b|Cask|Unknown|Unknown|latest"_s, u"|B|Cask|Not comparable|latest|1"_s,
                         u"|c|Formula|Unknown|1|Unknown"_s}));
  EXPECT_EQ(value(0, Model::AccessibleLabelRole),
            u"app, Cask, Update available, installed 1, latest known 2, tap unknown"_s);
  EXPECT_EQ(value(0, Model::UpgradeLabelRole), u"Preview upgrade command for app"_s);
}

TEST_F(Updates, PreviewTheUpgradeOfARow) {
  auto firefox = installed("cask:firefox", {"1"}, "2");
  firefox.name = SharedText(std::string_view("Mozilla Firefox"));
  updates_.setInputs(loaded({firefox, installed("formula:wget", {"1"}, "2")}));
  updates_.previewUpgrade(0);
  updates_.previewUpgrade(1);
  updates_.previewUpgrade(2);
  updates_.previewUpgrade(-1);
  EXPECT_EQ(asked_, (QStringList{u"brew upgrade --cask firefox from Updates"_s,
                                 u"brew upgrade wget from Updates"_s}));
}

TEST_F(Updates, PreviewNoUpgradeOfANameThatIsRefused) {
  updates_.setInputs(
      loaded({installed("formula:a b", {"1"}, "2"), installed("formula:--greedy", {"1"}, "2"),
              installed("cask:../x", {"1"}, "2")}));
  const QSignalSpy said(&updates_, &UpdatesViewModel::announced);
  QStringList problems;
  for (const int row : {0, 1, 2}) {
    updates_.previewUpgrade(row);
    problems += updates_.upgradeProblem();
    EXPECT_EQ(said.constLast(), QVariantList{problems.constLast()});
  }
  problems.sort();
  EXPECT_EQ(problems, QStringList({u"Invalid Homebrew package identifier: --greedy"_s,
                                   u"Invalid Homebrew package identifier: ../x"_s,
                                   u"Invalid Homebrew package identifier: a b"_s}));
  EXPECT_EQ(asked_, QStringList());
}

TEST_F(Updates, ForgetWhyANameWasRefused) {
  const auto oddAndEven =
      loaded({installed("formula:a b", {"1"}, "2"), installed("formula:wget", {"1"}, "2")});
  for (const bool byThePreview : {true, false}) {
    updates_.setInputs(oddAndEven);
    updates_.previewUpgrade(0);
    EXPECT_FALSE(updates_.upgradeProblem().isEmpty());
    byThePreview ? updates_.previewUpgrade(1) : updates_.setInputs(loaded({}));
    EXPECT_EQ(updates_.upgradeProblem(), QString());
  }
}

TEST_F(Updates, PreviewTheUpdateOfHomebrew) {
  updates_.previewUpdate();
  EXPECT_EQ(asked_, QStringList{u"brew update from Updates"_s});
}

TEST_F(Updates, SayHowFreshTheCatalogIs) {
  EXPECT_EQ(updates_.catalogFreshnessText(),
            u"Latest-known catalog metadata unavailable. Refresh catalog metadata when ready."_s);
  EXPECT_EQ(updates_.sourcesText(),
            u"Local inventory unavailable  \u00b7  Latest-known catalog metadata unavailable"_s);
}

TEST_F(Updates, SayHowAScanGoes) {
  const QSignalSpy said(&updates_, &UpdatesViewModel::announced);
  updates_.setInputs(scanning(0, 0));
  updates_.setInputs(scanning(12, 40));
  updates_.setInputs(loaded({installed("formula:a", {"1"}, "2")}));
  updates_.setInputs(scanning(0, 0));
  updates_.setInputs(inputsOf(State::Failed{u"Gone."_s}));
  updates_.setInputs(inputsOf(State::Idle{}));
  ASSERT_EQ(said.size(), 4);
  EXPECT_EQ(said[0][0].toString(),
            u"Scanning installed packages before deriving update guidance..."_s);
  EXPECT_EQ(said[1][0].toString(), u"Scan finished. 1 update, 0 need review"_s);
  EXPECT_EQ(said[3][0].toString(), u"Could Not Derive Updates. Gone."_s);
}

TEST_F(Updates, SayHowFarAScanHasCome) {
  EXPECT_EQ(updates_.progressText(), u""_s);
  updates_.setInputs(scanning(0, 0));
  EXPECT_EQ(updates_.progressText(), u""_s);
  EXPECT_LT(updates_.progressFraction(), 0);
  updates_.setInputs(scanning(12, 40));
  EXPECT_EQ(updates_.progressText(), u"12 of 40 packages scanned"_s);
  EXPECT_DOUBLE_EQ(updates_.progressFraction(), 0.3);
  updates_.setInputs(loaded({}));
  EXPECT_EQ(updates_.progressText(), u""_s);
}

TEST_F(Updates, KeepTheRowsWhileOnlyADateChanges) {
  auto inputs = loaded({installed("formula:a", {"1"}, "2")});
  updates_.setInputs(inputs);
  const QSignalSpy reset(updates_.packages(), &QAbstractItemModel::modelReset);
  inputs.lastScanDate = now;
  updates_.setInputs(inputs);
  EXPECT_EQ(reset.size(), 0);
}

}  // namespace
}  // namespace quillmere
