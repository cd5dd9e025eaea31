#include <gtest/gtest.h>

#include "commands/BrewCommandBuilder.h"
#include "commands/PreparedCommandAction.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

const QDateTime now = QDateTime::fromString(u"2026-11-20T20:42:00.125Z"_s, Qt::ISODateWithMs);
const BrewCommand upgradeFirefox =
    *BrewCommandBuilder().upgrade(BrewCommandTarget{BrewCommandTargetKind::cask, u"firefox"_s});

TEST(PreviewOnlyCommandRunner, PreparesTheTextAndTheRecordOfACopy) {
  const auto action = PreviewOnlyCommandRunner().prepare(upgradeFirefox, u"Updates"_s, now);
  EXPECT_EQ(action.commandText, u"brew upgrade --cask firefox"_s);
  EXPECT_FALSE(action.executedCommand);
  EXPECT_FALSE(action.historyRecord.id.isNull());
  const CommandHistoryRecord expected = {
      .id = action.historyRecord.id,
      .command = u"brew upgrade --cask firefox"_s,
      .copiedAt = now,
      .operationType = u"upgrade"_s,
      .packageTarget = u"firefox"_s,
      .sourceScreen = u"Updates"_s,
      .copied = true,
      .executed = false,
      .executionStartedAt = std::nullopt,
      .executionEndedAt = std::nullopt,
      .executionExitCode = std::nullopt,
      .executionCancelled = std::nullopt,
      .executionOutputSummary = std::nullopt,
  };
  EXPECT_EQ(action.historyRecord, expected);
}

TEST(PreviewOnlyCommandRunner, LeavesOutThePackageAndTheScreenWhereThereAreNone) {
  const auto action =
      PreviewOnlyCommandRunner().prepare(BrewCommandBuilder().cleanup(), std::nullopt, now);
  EXPECT_EQ(action.historyRecord.operationType, u"cleanup"_s);
  EXPECT_EQ(action.historyRecord.packageTarget, std::nullopt);
  EXPECT_EQ(action.historyRecord.sourceScreen, std::nullopt);
}

TEST(PreviewOnlyCommandRunner, GivesEachCopyARecordOfItsOwn) {
  const PreviewOnlyCommandRunner runner;
  const auto first = runner.prepare(upgradeFirefox, u"Updates"_s, now);
  auto second = runner.prepare(upgradeFirefox, u"Updates"_s, now);
  EXPECT_NE(first.historyRecord.id, second.historyRecord.id);
  EXPECT_NE(first.historyRecord.id, upgradeFirefox.id);
  second.historyRecord.id = first.historyRecord.id;
  EXPECT_EQ(first, second);
}

}  // namespace
}  // namespace quillmere
