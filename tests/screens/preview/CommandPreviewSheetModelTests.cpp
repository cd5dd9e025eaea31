#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include "commands/BrewCommandBuilder.h"
#include "execution/DirectCommandOutputPresentation.h"
#include "execution/DirectCommandRunner.h"
#include "persistence/LocalPersistenceStore.h"
#include "screens/preview/CommandPreviewSheetModel.h"
#include "support/BlockingFileSystem.h"
#include "support/FakeBrew.h"
#include "support/Printers.h"
#include "support/TemporarySettings.h"
#include "support/TestPrefix.h"

namespace quillmere::test {
namespace {

using Phase = CommandPreviewSheetModel::Phase;

const BrewCommandTarget wget = {BrewCommandTargetKind::formula, QStringLiteral("wget")};

class CommandPreview : public testing::Test {
 protected:
  CommandPreview() { prefix.withBrew("#!/bin/sh\ntouch \"${0%/*}/../ran\"\necho it ran\n"); }

  CommandPreviewSheetModel& preview(const BrewCommand& command,
                                    const AppCapabilities& capabilities = AppCapabilities::all()) {
    sheet = std::make_unique<CommandPreviewSheetModel>(
        CommandPreviewContext{capabilities, store, BrewExecutableResolver(fileSystem),
                              std::make_shared<DirectCommandRunner>()},
        command, QStringLiteral("Services"), [this] { ++copies; });
    return *sheet;
  }

  CommandPreviewSheetModel& previewInPrefix(const BrewCommand& command) {
    store.selectPrefix(prefix.url());
    return preview(command);
  }

  void waitForEndOfRun() {
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return sheet->phase() == Phase::Session && !sheet->isRunning(); }));
  }

  void waitForError() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheet->errorPending(); }));
  }

  [[nodiscard]] bool brewRan() const { return QFile::exists(prefix.pathOf(QStringLiteral("ran"))); }

  HomebrewPrefixFileSystemPtr fileSystem = platformFileSystem();
  BrewCommandBuilder builder;
  TemporarySettings settings;
  TestPrefix prefix;
  LocalPersistenceStore store{settings.open(), settings.cacheDirectoryURL()};
  int copies = 0;
  std::unique_ptr<CommandPreviewSheetModel> sheet;
};

TEST_F(CommandPreview, ShowsTheCommandAsItWasBuilt) {
  const BrewCommand command = builder.info(wget).value();
  const auto& model = preview(command);
  EXPECT_EQ(model.commandText(), QStringLiteral("brew info wget"));
  EXPECT_EQ(model.operationText(), QStringLiteral("Info"));
  EXPECT_EQ(model.targetText(), QStringLiteral("Formula wget"));
  EXPECT_EQ(model.riskText(), QStringLiteral("Informational"));
  EXPECT_EQ(model.riskLevel(), QStringLiteral("informational"));
  EXPECT_EQ(model.effects(), command.possibleEffects);
  EXPECT_EQ(model.explanation(), command.explanation);
  EXPECT_EQ(model.policyMessage(),
            QStringLiteral("This command only prints Homebrew information."));
  EXPECT_EQ(model.phase(), Phase::Preview);
  EXPECT_TRUE(model.canRun());
  EXPECT_TRUE(model.canClose());
}

TEST_F(CommandPreview, LeavesTheCopyToItsOpener) {
  auto& model = preview(builder.servicesList());
  model.copy();
  model.copy();
  EXPECT_EQ(copies, 2);
  EXPECT_TRUE(store.commandHistory().isEmpty());
}

TEST_F(CommandPreview, RunsAnInformationalCommandAtOnce) {
  auto& model = previewInPrefix(builder.servicesList());
  model.run();
  EXPECT_FALSE(model.confirmationPending());
  waitForEndOfRun();
  EXPECT_TRUE(brewRan());
  EXPECT_EQ(statusText(model.sessionController()->status()),
            QStringLiteral("Completed with exit code 0"));
}

TEST_F(CommandPreview, RecordsARunOnce) {
  auto& model = previewInPrefix(builder.servicesList());
  model.run();
  waitForEndOfRun();
  Q_EMIT const_cast<DirectExecutionSessionController*>(model.sessionController())->resultChanged();
  Q_EMIT const_cast<DirectExecutionSessionController*>(model.sessionController())->statusChanged();
  ASSERT_EQ(store.commandHistory().size(), 1);
  const CommandHistoryRecord& record = store.commandHistory().first();
  EXPECT_EQ(record.command, QStringLiteral("brew services list"));
  EXPECT_EQ(record.sourceScreen, QStringLiteral("Services"));
  EXPECT_TRUE(record.executed);
  EXPECT_FALSE(record.copied);
  EXPECT_EQ(record.executionExitCode, 0);
  EXPECT_EQ(record.executionOutputSummary, QStringLiteral("it ran"));
}

TEST_F(CommandPreview, TellsHowItStarts) {
  auto& model = previewInPrefix(builder.servicesList());
  model.run();
  waitForEndOfRun();
  EXPECT_EQ(
      model.startupDiagnostics(),
      QStringList({QStringLiteral("[quillmere] Preparing to resolve selected Homebrew prefix."),
                   QStringLiteral("[quillmere] Command: brew services list"),
                   QStringLiteral("[quillmere] Selected prefix: ") + prefix.path(),
                   QStringLiteral("[quillmere] Resolving selected-prefix bin/brew."),
                   QStringLiteral("[quillmere] Resolver status: resolved")}));
}

TEST_F(CommandPreview, CannotRunWithoutAPrefix) {
  auto& model = preview(builder.servicesList());
  model.run();
  waitForError();
  EXPECT_EQ(model.errorMessage(),
            QStringLiteral("Select a Homebrew prefix before running commands."));
  EXPECT_EQ(model.phase(), Phase::Preview);
  EXPECT_EQ(model.startupDiagnostics().at(2), QStringLiteral("[quillmere] Selected prefix: none"));
  EXPECT_EQ(model.startupDiagnostics().last(),
            QStringLiteral("[quillmere] Resolver status: Select a Homebrew prefix before running "
                           "commands."));
  model.dismissError();
  EXPECT_FALSE(model.errorPending());
  EXPECT_EQ(model.errorMessage(), QStringLiteral("Quillmere Direct could not start this command."));
  model.copy();
  EXPECT_EQ(copies, 1);
  EXPECT_TRUE(store.commandHistory().isEmpty());
}

TEST_F(CommandPreview, CannotRunInAFolderThatIsGone) {
  store.setSelectedHomebrewPrefixPath(prefix.pathOf(QStringLiteral("gone")));
  auto& model = preview(builder.servicesList());
  model.run();
  waitForError();
  EXPECT_EQ(model.errorMessage(),
            QStringLiteral("The selected folder does not look like a Homebrew prefix."));
}

TEST_F(CommandPreview, CannotRunInAFolderWithoutBrew) {
  const TestPrefix empty;
  store.selectPrefix(empty.url());
  auto& model = preview(builder.servicesList());
  model.run();
  waitForError();
  EXPECT_EQ(model.errorMessage(),
            QStringLiteral("The selected Homebrew prefix does not contain bin/brew."));
}

TEST_F(CommandPreview, AsksBeforeItInstalls) {
  auto& model = previewInPrefix(builder.install(wget).value());
  model.run();
  ASSERT_TRUE(model.confirmationPending());
  EXPECT_EQ(model.confirmationTitle(), QStringLiteral("Confirm brew install wget"));
  EXPECT_EQ(model.confirmationMessage(),
            QStringLiteral("This may download and install a package in the selected Homebrew "
                           "prefix."));
  EXPECT_EQ(model.confirmTitle(), QStringLiteral("Confirm brew install wget"));
  EXPECT_EQ(model.phase(), Phase::Preview);
  EXPECT_FALSE(brewRan());
  model.confirmRun();
  EXPECT_FALSE(model.confirmationPending());
  waitForEndOfRun();
  EXPECT_TRUE(brewRan());
}

TEST_F(CommandPreview, AsksMoreStronglyBeforeItUpgradesEverything) {
  auto& model = previewInPrefix(builder.upgrade(std::nullopt).value());
  model.run();
  ASSERT_TRUE(model.confirmationPending());
  EXPECT_EQ(model.directRunConfirmation()->decision.mode,
            DirectExecutionPolicyMode::requiresStrongConfirmation);
  EXPECT_EQ(model.confirmationTitle(), QStringLiteral("Review carefully before running"));
  EXPECT_EQ(model.confirmationMessage(),
            QStringLiteral("This may upgrade multiple installed formulae or casks."));
}

TEST_F(CommandPreview, ChangesNothingWhereTheConfirmationIsCancelled) {
  auto& model = previewInPrefix(builder.upgrade(std::nullopt).value());
  model.run();
  model.cancelConfirmation();
  EXPECT_FALSE(model.confirmationPending());
  model.confirmRun();  // nothing is left to confirm
  QTest::qWait(50);
  EXPECT_EQ(model.phase(), Phase::Preview);
  EXPECT_FALSE(brewRan());
  EXPECT_TRUE(store.commandHistory().isEmpty());
}

TEST_F(CommandPreview, MakesEachConfirmationAnAlertOfItsOwn) {
  auto& model = previewInPrefix(builder.cleanup());
  model.run();
  const QUuid first = model.directRunConfirmation()->id;
  model.cancelConfirmation();
  model.run();
  EXPECT_NE(model.directRunConfirmation()->id, first);
}

TEST_F(CommandPreview, NeverRunsAnUninstall) {
  auto& model = previewInPrefix(builder.uninstall(wget).value());
  EXPECT_FALSE(model.canRun());
  EXPECT_EQ(model.policyTitle(), QStringLiteral("Preview brew uninstall wget"));
  model.run();
  model.confirmRun();
  QTest::qWait(50);
  EXPECT_EQ(model.phase(), Phase::Preview);
  EXPECT_FALSE(brewRan());
  model.copy();
  EXPECT_EQ(copies, 1);
}

TEST_F(CommandPreview, OffersNoRunInABuildThatMayNotExecute) {
  store.selectPrefix(prefix.url());
  auto& model = preview(builder.servicesList(), AppCapabilities());
  EXPECT_FALSE(model.canRun());
  model.run();
  QTest::qWait(50);
  EXPECT_FALSE(brewRan());
}

TEST_F(CommandPreview, ShowsThatItStartsWhileTheDiskIsSlow) {
  const auto disk = std::make_shared<BlockingFileSystem>();
  fileSystem = disk;
  auto& model = previewInPrefix(builder.servicesList());
  model.run();
  EXPECT_EQ(model.phase(), Phase::Starting);
  EXPECT_EQ(model.startupDiagnostics().size(), 4);
  disk->released.release();
  waitForEndOfRun();
  EXPECT_TRUE(brewRan());
}

TEST_F(CommandPreview, DropsAStartThatIsCancelled) {
  const auto disk = std::make_shared<BlockingFileSystem>();
  fileSystem = disk;
  auto& model = previewInPrefix(builder.servicesList());
  model.run();
  model.cancelStartup();
  EXPECT_EQ(model.phase(), Phase::Preview);
  disk->released.release();
  QTest::qWait(100);
  EXPECT_EQ(model.phase(), Phase::Preview);
  EXPECT_EQ(model.sessionController(), nullptr);
  EXPECT_FALSE(model.errorPending());
  EXPECT_FALSE(brewRan());
  model.run();
  waitForEndOfRun();
  EXPECT_TRUE(brewRan());
}

TEST_F(CommandPreview, StartsOneSessionOnly) {
  auto& model = previewInPrefix(builder.servicesList());
  model.run();
  model.run();
  waitForEndOfRun();
  model.run();
  QTest::qWait(50);
  EXPECT_EQ(store.commandHistory().size(), 1);
}

TEST_F(CommandPreview, StaysOpenWhileItsRunGoesOn) {
  prefix.withBrew(
      "#!/bin/sh\ntrap '' TERM\ncd \"${0%/*}/..\"\ntouch ran\n"
      "while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done\n");
  auto& model = previewInPrefix(builder.servicesList());
  QSignalSpy closed(&model, &CommandPreviewSheetModel::closed);
  model.run();
  ASSERT_TRUE(QTest::qWaitFor([this] { return brewRan(); }));
  EXPECT_FALSE(model.canClose());
  model.close();
  EXPECT_EQ(closed.count(), 0);
  model.cancelRun();
  EXPECT_TRUE(model.sessionController()->cancellationRequested());
  EXPECT_TRUE(model.isRunning());
  EXPECT_TRUE(model.canClose());
  prefix.withFile(QStringLiteral("release"));
  waitForEndOfRun();
  EXPECT_EQ(statusText(model.sessionController()->status()), QStringLiteral("Cancelled"));
  EXPECT_EQ(store.commandHistory().first().executionCancelled, true);
  model.close();
  EXPECT_EQ(closed.count(), 1);
}

TEST_F(CommandPreview, ReportsARunThatFails) {
  prefix.withBrew(fakeBrewScript());
  auto& model = previewInPrefix(builder.doctor());
  model.run();
  waitForEndOfRun();
  EXPECT_EQ(statusText(model.sessionController()->status()),
            QStringLiteral("Command exited with status 1."));
  EXPECT_EQ(store.commandHistory().first().executionExitCode, 1);
}

}  // namespace
}  // namespace quillmere::test
