#include <QtCore/QDir>

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>
#include <unistd.h>

#include "DemoWorld.h"
#include "commands/BrewCommandBuilder.h"
#include "execution/DirectCommandOutputPresentation.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using test::BrewRun;
using testing::HasSubstr;
using testing::StartsWith;

const QByteArray checkMark = "\xE2\x9C\x94\xEF\xB8\x8E";

BrewCommandTarget formula(const QString& name) {
  return {BrewCommandTargetKind::formula, name};
}

BrewCommandTarget cask(const QString& token) {
  return {BrewCommandTargetKind::cask, token};
}

class DemoBrew : public test::DemoWorld {
 protected:
  [[nodiscard]] QStringList lines(const BrewRun& run) const {
    return QString::fromUtf8(run.standardOutput).split(u'\n', Qt::SkipEmptyParts);
  }

  /// What the program shows of a run.
  [[nodiscard]] DirectCommandOutputPresentation shown(const BrewCommand& command,
                                                      const BrewRun& run) const {
    DirectCommandResult result;
    result.standardOutput = run.standardOutput;
    result.standardError = run.standardError;
    const DirectExecutionSessionStatus status =
        run.exitCode == 0 ? DirectExecutionSessionStatus(SessionCompleted{0})
                          : SessionFailed{u"Command failed with exit code 1."_s};
    return makePresentation(command, presentationText(result, {}), status);
  }

  [[nodiscard]] QString titles(const DirectCommandOutputPresentation& presentation) const {
    QStringList titles;
    for (const auto& row : presentation.rows) {
      titles += row.title;
    }
    return titles.join(u'\n');
  }

  BrewCommandBuilder builder_;
};

TEST_F(DemoBrew, InformsAboutAFormulaAndAboutACask) {
  const BrewCommand command = builder_.info(formula(u"jq"_s)).value();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardOutput.toStdString(),
              StartsWith("==> jq: stable 1.8.1 (bottled), HEAD\n"));
  EXPECT_THAT(run.standardOutput.toStdString(), HasSubstr("Required (1): oniguruma\n"));
  EXPECT_TRUE(run.standardError.isEmpty());
  EXPECT_THAT(titles(shown(command, run)).toStdString(), StartsWith("jq: stable 1.8.1"));
  const BrewRun caskRun = brew(builder_.info(cask(u"firefox"_s)).value());
  EXPECT_THAT(caskRun.standardOutput.toStdString(), StartsWith("==> firefox (Mozilla Firefox): "));
}

TEST_F(DemoBrew, InformsAboutAFormulaThatNobodyHasReleased) {
  const BrewRun run = brew(builder_.info(formula(u"head-only-bench"_s)).value());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardOutput.toStdString(), StartsWith("==> head-only-bench: HEAD\n"));
}

TEST_F(DemoBrew, ListsEverythingThatAFormulaNeedsAndWhatNeedsIt) {
  const BrewCommand dependencies = builder_.dependencies(u"wget"_s).value();
  const BrewRun needs = brew(dependencies);
  EXPECT_EQ(lines(needs), (QStringList{u"ca-certificates"_s, u"gettext"_s, u"libidn2"_s,
                                       u"libunistring"_s, u"openssl@3"_s}));
  EXPECT_EQ(titles(shown(dependencies, needs)), u"Found 5 dependencies"_s);
  const BrewCommand reverse = builder_.reverseDependencies(u"gmp"_s).value();
  const BrewRun users = brew(reverse);
  EXPECT_TRUE(lines(users).contains(u"gcc"_s));
  EXPECT_TRUE(titles(shown(reverse, users)).startsWith(u"Found "_s));
}

TEST_F(DemoBrew, ListsWhatIsOutdatedInEveryRackAndForCasks) {
  const BrewCommand command = builder_.outdated();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(lines(run), (QStringList{u"expat"_s, u"fzf"_s, u"jq"_s, u"node"_s, u"openssl@3"_s,
                                     u"postgresql@17"_s, u"tmux"_s, u"firefox"_s, u"signal"_s}));
  EXPECT_EQ(titles(shown(command, run)), u"Found 9 packages"_s);
}

TEST_F(DemoBrew, ListsServicesWithTheirHeadings) {
  const BrewCommand command = builder_.servicesList();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardOutput.toStdString(),
              StartsWith("Name          Status  User     File\n"));
  const auto presentation = shown(command, run);
  ASSERT_EQ(presentation.rows.size(), 1U);
  EXPECT_EQ(presentation.rows.front().title, u"Found 2 services"_s);
  EXPECT_TRUE(presentation.rows.front().detail->startsWith(u"1 started, 1 stopped"_s));
}

TEST_F(DemoBrew, DoctorWarnsAndFails) {
  const BrewCommand command = builder_.doctor();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.standardError.toStdString(), HasSubstr("\nWarning: You have unlinked kegs"));
  EXPECT_THAT(titles(shown(command, run)).toStdString(), HasSubstr("Please note"));
}

TEST_F(DemoBrew, InstallsAFormulaWithWhatItNeeds) {
  const BrewCommand command = builder_.install(formula(u"wget"_s)).value();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardError.toStdString(),
              StartsWith("==> Fetching downloads for: libidn2 and wget\n"));
  EXPECT_TRUE(run.standardError.contains(checkMark + " Bottle wget (1.25.0)\n"));
  EXPECT_THAT(run.standardOutput.toStdString(),
              HasSubstr("==> Would install 1 dependency for wget:"));
  EXPECT_THAT(run.standardOutput.toStdString(), HasSubstr("/Cellar/wget/1.25.0: 3 files, "));
  EXPECT_EQ(versionsOf("formula:wget"), QStringList{u"1.25.0"_s});
  EXPECT_EQ(versionsOf("formula:libidn2"), QStringList{u"2.3.8"_s});
  EXPECT_THAT(titles(shown(command, run)).toStdString(), HasSubstr("Installing wget"));
  for (const InstalledPackageSummary& package : inventory()) {
    if (package.name.view() == "libidn2") {
      EXPECT_EQ(package.detail.view(), "Installed as dependency");
    }
  }
}

TEST_F(DemoBrew, DoesNotInstallTwice) {
  const BrewRun run = brew(builder_.install(formula(u"git"_s)).value());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardError.toStdString(),
              StartsWith("Warning: git 2.53.0 is already installed and up-to-date.\n"));
}

TEST_F(DemoBrew, InstallsAndUpgradesACask) {
  const BrewRun installed = brew(builder_.install(cask(u"obsidian"_s)).value());
  EXPECT_EQ(installed.exitCode, 0);
  EXPECT_THAT(installed.standardOutput.toStdString(),
              HasSubstr("obsidian was successfully installed!"));
  EXPECT_EQ(versionsOf("cask:obsidian"), QStringList{u"1.11.7"_s});
  const BrewRun upgraded = brew(builder_.upgrade(cask(u"firefox"_s)).value());
  EXPECT_THAT(upgraded.standardOutput.toStdString(), HasSubstr("\nfirefox 146.0.1 -> 147.0.3\n"));
  EXPECT_EQ(versionsOf("cask:firefox"), QStringList{u"147.0.3"_s});
}

TEST_F(DemoBrew, UpgradesOneFormulaSoThatAScanSeesTheNewVersion) {
  const BrewCommand command = builder_.upgrade(formula(u"jq"_s)).value();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardOutput.toStdString(),
              StartsWith("==> Upgrading 1 outdated package:\njq 1.7.1 -> 1.8.1\n"));
  EXPECT_EQ(versionsOf("formula:jq"), QStringList{u"1.8.1"_s});
  EXPECT_FALSE(lines(brew(builder_.outdated())).contains(u"jq"_s));
  EXPECT_THAT(titles(shown(command, run)).toStdString(), HasSubstr("Upgraded 1 outdated package"));
  const BrewRun again = brew(command);
  EXPECT_EQ(again.exitCode, 0);
  EXPECT_EQ(again.standardError, "Warning: jq 1.8.1 already installed\n");
}

TEST_F(DemoBrew, UpgradesEverything) {
  const BrewRun run = brew(builder_.upgrade(std::nullopt).value());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardOutput.toStdString(), HasSubstr("==> Upgraded 9 outdated packages\n"));
  EXPECT_TRUE(brew(builder_.outdated()).standardOutput.isEmpty());
}

TEST_F(DemoBrew, CleansUpSoThatAScanSeesNoOldVersionsOfWhatIsUpToDate) {
  const BrewCommand command = builder_.cleanup();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.standardOutput.toStdString(),
              HasSubstr("==> This operation has freed approximately "));
  EXPECT_THAT(run.standardError.toStdString(),
              HasSubstr("Warning: Skipping node: most recent version 25.6.1 not installed\n"));
  EXPECT_EQ(versionsOf("formula:curl"), QStringList{u"8.18.0"_s});
  EXPECT_EQ(versionsOf("formula:node").size(), 2);
  EXPECT_EQ(versionsOf("cask:visual-studio-code"), QStringList{u"1.109.3"_s});
  EXPECT_FALSE(
      QFile::exists(inPrefix(u"var/homebrew/cache/downloads/git--2.52.0.bottle.tar.gz"_s)));
  EXPECT_TRUE(QFile::exists(inPrefix(u"var/homebrew/cache/downloads/git--2.53.0.bottle.tar.gz"_s)));
  EXPECT_THAT(titles(shown(command, run)).toStdString(), HasSubstr("freed approximately"));
  EXPECT_TRUE(brew(command).standardOutput.isEmpty());
}

TEST_F(DemoBrew, UpdatesOnceAndHasNothingToDoThen) {
  const BrewCommand command = builder_.update();
  const BrewRun run = brew(command);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.standardError, "==> Updating Homebrew...\n");
  EXPECT_THAT(run.standardOutput.toStdString(), StartsWith("Updated 2 taps"));
  EXPECT_EQ(brew(command).standardOutput, "Already up-to-date.\n");
}

TEST_F(DemoBrew, UninstallsWhatNothingElseNeeds) {
  const BrewRun refused = brew(builder_.uninstall(formula(u"pcre2"_s)).value());
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_THAT(
      refused.standardError.toStdString(),
      HasSubstr("because it is required by git and ripgrep, which are currently installed."));
  const BrewRun done = brew(builder_.uninstall(formula(u"yq"_s)).value());
  EXPECT_EQ(done.exitCode, 0);
  EXPECT_TRUE(versionsOf("formula:yq").isEmpty());
}

TEST_F(DemoBrew, RefusesWhatItDoesNotKnow) {
  const auto refusal = [this](const QStringList& arguments) {
    const BrewRun run = brew(arguments);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.standardOutput.isEmpty());
    return run.standardError.trimmed().toStdString();
  };
  EXPECT_EQ(refusal({u"frobnicate"_s}), "Error: Unknown command: brew frobnicate");
  EXPECT_EQ(refusal({u"info"_s, u"no-such"_s}),
            "Error: No available formula with the name \"no-such\".");
  EXPECT_EQ(refusal({u"install"_s, u"--cask"_s, u"no-such"_s}),
            "Error: Cask 'no-such' is unavailable: No Cask with this name exists.");
  EXPECT_EQ(refusal({u"upgrade"_s, u"wget"_s}), "Error: wget not installed");
  EXPECT_EQ(refusal({u"install"_s, u"--force"_s, u"wget"_s}), "Error: invalid option: --force");
}

TEST_F(DemoBrew, ChangesNoPrefixThatIsNotTheDemos) {
  ASSERT_TRUE(QFile::remove(inPrefix(u"var/quillmere-demo"_s)));
  for (const QStringList& arguments :
       {QStringList{u"install"_s, u"wget"_s}, QStringList{u"upgrade"_s}, QStringList{u"cleanup"_s},
        QStringList{u"update"_s}, QStringList{u"uninstall"_s, u"yq"_s}}) {
    const BrewRun run = brew(arguments);
    EXPECT_EQ(run.exitCode, 1) << arguments.constFirst().toStdString();
    EXPECT_TRUE(run.standardError.endsWith("so nothing in it is changed.\n"));
  }
  EXPECT_EQ(brew(builder_.outdated()).exitCode, 0);
}

/// Which processes live in the session of `leader`, as far as they are no zombies.
int livingInSession(qint64 leader) {
  int count = 0;
  for (const QString& pid : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
    QFile file(u"/proc/%1/stat"_s.arg(pid));
    if (!file.open(QFile::ReadOnly)) {
      continue;
    }
    const QByteArray stat = file.readAll();
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    constexpr int state = 0;
    constexpr int session = 3;
    count +=
        fields.size() > session && fields[session].toLongLong() == leader && fields[state] != "Z"
            ? 1
            : 0;
  }
  return count;
}

/// A run at the usual pace, in a session of its own as the program gives it.
class SlowRun {
 public:
  SlowRun(const QString& brew, const QStringList& arguments) {
    process_.setChildProcessModifier([] { setsid(); });
    process_.start(brew, arguments, QIODevice::ReadOnly);
    EXPECT_TRUE(process_.waitForStarted());
    EXPECT_TRUE(process_.waitForReadyRead());
  }

  ~SlowRun() { terminate(); }
  Q_DISABLE_COPY_MOVE(SlowRun)

  BrewRun terminate() {
    if (process_.state() != QProcess::NotRunning) {
      leader_ = process_.processId();
      kill(static_cast<pid_t>(-leader_), SIGTERM);
      EXPECT_TRUE(process_.waitForFinished());
    }
    return {process_.exitCode(), process_.readAllStandardOutput(), process_.readAllStandardError()};
  }

  [[nodiscard]] qint64 leader() const { return leader_; }

 private:
  QProcess process_;
  qint64 leader_ = 0;
};

TEST_F(DemoBrew, EndsAtOnceWhenItIsCancelledAndLeavesNeitherAProcessNorHalfAKeg) {
  setPace(100);
  SlowRun slow(inPrefix(u"bin/brew"_s), {u"install"_s, u"wget"_s});
  const BrewRun run = slow.terminate();
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_TRUE(run.standardError.endsWith("Error: SIGTERM\n")) << run.standardError.toStdString();
  EXPECT_EQ(livingInSession(slow.leader()), 0);
  EXPECT_TRUE(versionsOf("formula:wget").isEmpty());
  setPace(0);
  EXPECT_EQ(brew(builder_.install(formula(u"wget"_s)).value()).exitCode, 0);
}

TEST_F(DemoBrew, RefusesAFormulaThatAnotherRunIsAtWorkOn) {
  setPace(100);
  const SlowRun slow(inPrefix(u"bin/brew"_s), {u"install"_s, u"wget"_s});
  const BrewRun second = brew(builder_.install(formula(u"wget"_s)).value());
  EXPECT_EQ(second.exitCode, 1);
  EXPECT_EQ(second.standardError.split('\n').constFirst(),
            "Error: wget: A `brew install wget` process has already locked " +
                inPrefix(u"Cellar/wget."_s).toUtf8());
}

}  // namespace
}  // namespace quillmere
