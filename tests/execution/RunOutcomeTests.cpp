#include <gtest/gtest.h>

#include "execution/RunOutcome.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Kind = RunOutcome::Kind;
using enum BrewCommandOperation;

RunOutcome outcomeOf(BrewCommandOperation operation, const QString& target, QByteArrayView output,
                     QByteArrayView error = {}, int exitCode = 0) {
  return makeRunOutcome({operation, target, exitCode, false, output, error});
}

RunOutcome cancelled(BrewCommandOperation operation, QByteArrayView output,
                     QByteArrayView error = {}, int exitCode = 1) {
  return makeRunOutcome({operation, u"wget"_s, exitCode, true, output, error});
}

std::string sentence(const RunOutcome& outcome) {
  return outcome.sentence.toStdString();
}

std::string details(const RunOutcome& outcome) {
  return outcome.details.join(u" | "_s).toStdString();
}

std::string warnings(const RunOutcome& outcome) {
  return outcome.warnings.join(u" | "_s).toStdString();
}

TEST(RunOutcome, NamesWhatWasInstalledAndWhatCameWithIt) {
  const RunOutcome outcome = outcomeOf(install, u"wget"_s,
                                       "==> Would install 1 formula:\nwget\n"
                                       "==> Installing wget dependency: libidn2\n"
                                       "🍺  /opt/homebrew/Cellar/libidn2/2.3.8: 81 files, 1MB\n"
                                       "==> Installing wget\n==> Pouring wget--1.25.0.tar.gz\n"
                                       "🍺  /opt/homebrew/Cellar/wget/1.25.0: 92 files, 4.6MB\n");
  EXPECT_EQ(outcome.kind, Kind::success);
  EXPECT_EQ(sentence(outcome), "Installed wget 1.25.0");
  EXPECT_EQ(details(outcome), "Also installed: libidn2 2.3.8");
}

TEST(RunOutcome, KnowsAnInstalledKegByItsLineWithoutTheMug) {
  EXPECT_EQ(sentence(outcomeOf(install, u"me/tap/wget"_s,
                               "/opt/homebrew/Cellar/wget/1.25.0_1: 1,092 files, 4.6MB\r\n")),
            "Installed wget 1.25.0_1");
  EXPECT_EQ(sentence(outcomeOf(install, u"wget"_s,
                               "\x1b[34m==>\x1b[0m \x1b[1mSummary\x1b[0m\n"
                               "\x1b[32m*\x1b[0m /opt/Cellar/wget/1: 1 file, 4B, built in 1 s\n")),
            "Installed wget 1");
  EXPECT_EQ(sentence(outcomeOf(install, u"wget"_s, "ld: /opt/Cellar/wget/1.2: not a file\n")), "");
}

TEST(RunOutcome, NamesTheVersionsOfAnUpgrade) {
  const RunOutcome outcome =
      outcomeOf(upgrade, u"jq"_s,
                "==> Upgrading 1 outdated package:\njq 1.7.1 -> 1.8.1\n==> Upgrading jq\n"
                "  1.7.1 -> 1.8.1 \n🍺  /opt/homebrew/Cellar/jq/1.8.1: 20 files, 1MB\n"
                "==> Running `brew cleanup jq`...\n"
                "Removing: /opt/homebrew/Cellar/jq/1.7.1... (19 files, 1MB)\n"
                "Removing: /home/anna/.cache/Homebrew/jq--1.7.1... (1MB)\n"
                "==> Upgraded 1 outdated package\njq 1.7.1 -> 1.8.1\n");
  EXPECT_EQ(sentence(outcome), "Upgraded jq 1.7.1 to 1.8.1");
  EXPECT_EQ(details(outcome),
            "Old versions removed: jq 1.7.1 | Other files and folders removed: 1");
}

TEST(RunOutcome, CountsManyUpgradesAndNamesThemBelow) {
  QByteArray output;
  for (int i = 0; i < 5; ++i) {
    const QByteArray name = "tool" + QByteArray::number(i);
    output += "==> Upgrading " + name + "\n  1 -> 2\n/opt/Cellar/" + name + "/2: 1 file, 1B\n";
  }
  const RunOutcome outcome = outcomeOf(upgrade, {}, output);
  EXPECT_EQ(sentence(outcome), "Upgraded 5 packages");
  EXPECT_EQ(details(outcome),
            "Upgraded: tool0 1 to 2, tool1 1 to 2, tool2 1 to 2, tool3 1 to 2 and tool4 1 to 2");
}

TEST(RunOutcome, TakesTheVersionOfACaskFromItsDownload) {
  EXPECT_EQ(sentence(outcomeOf(install, u"blender"_s,
                               "==> Installing Cask blender\n"
                               "🍺  blender was successfully installed!\n",
                               "==> Fetching downloads for: blender\n✔︎ Cask blender (4.5.2)\n")),
            "Installed blender 4.5.2");
  EXPECT_EQ(sentence(outcomeOf(install, u"blender"_s, "blender was successfully installed!\n")),
            "Installed blender");
}

TEST(RunOutcome, SaysWhatWasInstalledAlready) {
  const RunOutcome outcome = outcomeOf(install, u"jq"_s, {},
                                       "Warning: me/tap/jq 1.8.1 is already installed and "
                                       "up-to-date.\nTo reinstall 1.8.1, run:\n");
  EXPECT_EQ(sentence(outcome), "Already installed: jq 1.8.1");
  EXPECT_EQ(warnings(outcome), "");
  EXPECT_EQ(sentence(outcomeOf(upgrade, u"jq"_s, {}, "Warning: jq 1.8.1 already installed\n")),
            "Already installed: jq 1.8.1");
  EXPECT_EQ(sentence(outcomeOf(install, u"iina"_s, {},
                               "Warning: Not upgrading iina, the latest version is already "
                               "installed\n")),
            "Already installed: iina");
}

TEST(RunOutcome, ClaimsNothingOfAPlan) {
  EXPECT_TRUE(outcomeOf(install, u"jq"_s, "==> Would install 1 formula:\njq\n").isEmpty());
  EXPECT_TRUE(
      outcomeOf(upgrade, {}, "==> Would upgrade 1 outdated package\njq 1 -> 2\n").isEmpty());
  EXPECT_TRUE(outcomeOf(info, u"jq"_s, "==> jq: stable 1.8.1\nLightweight\n").isEmpty());
  EXPECT_TRUE(outcomeOf(install, u"jq"_s, {}).isEmpty());
}

TEST(RunOutcome, NamesWhatWasUninstalledAndWhatWentWithIt) {
  const RunOutcome outcome =
      outcomeOf(uninstall, u"wget"_s,
                "Uninstalling /opt/homebrew/Cellar/wget/1.25.0... (92 files, 4.6MB)\n"
                "==> Autoremoving 2 unneeded formulae:\nlibidn2\nlibpsl\n"
                "Uninstalling /opt/homebrew/Cellar/libidn2/2.3.8... (81 files, 1MB)\n");
  EXPECT_EQ(sentence(outcome), "Uninstalled wget 1.25.0");
  EXPECT_EQ(details(outcome), "Also removed, because nothing needs them: libpsl and libidn2 2.3.8");
  EXPECT_EQ(sentence(outcomeOf(uninstall, u"iina"_s,
                               "==> Uninstalling Cask iina\n"
                               "==> Purging files for version 1.3.5,141 of Cask iina\n")),
            "Uninstalled iina 1.3.5,141");
}

TEST(RunOutcome, SaysWhatACleanupFreedAndRemoved) {
  const RunOutcome outcome =
      outcomeOf(cleanup, {},
                "==> Autoremoving 1 unneeded formula:\nme/tap/orphan\n"
                "Uninstalling /opt/homebrew/Cellar/orphan/1.0... (3 files, 1KB)\n"
                "Removing: /opt/homebrew/Cellar/jq/1.7.1... (19 files, 1MB)\n"
                "Removing: /opt/homebrew/var/homebrew/cache/x... (1MB)\n"
                "==> This operation has freed approximately 123.4MB of disk space.\n",
                "Warning: Skipping jq: most recent version 1.8.1 not installed\n");
  EXPECT_EQ(sentence(outcome), "Freed about 123.4 MB");
  EXPECT_EQ(details(outcome),
            "Also removed, because nothing needs it: orphan 1.0 | Old versions removed: jq 1.7.1 | "
            "Other files and folders removed: 1");
  EXPECT_EQ(warnings(outcome), "Skipping jq: most recent version 1.8.1 not installed");
  EXPECT_EQ(sentence(outcomeOf(cleanup, {}, {})), "Homebrew reported nothing to clean up");
  EXPECT_EQ(sentence(outcomeOf(cleanup, {}, "Would remove: /x (1B)\n")), "");
}

TEST(RunOutcome, SaysWhatAnUpdateBrought) {
  EXPECT_EQ(sentence(outcomeOf(update, {}, "Already up-to-date.\n", "==> Updating Homebrew...\n")),
            "Homebrew is up to date");
  const RunOutcome outcome = outcomeOf(
      update, {}, {},
      "==> Updating Homebrew...\nUpdated Homebrew from 6.0.17 (a1) to 6.0.18 (b2).\n"
      "Updated 1 tap (me/tap).\n==> New Formulae\nme/tap/fresh\nother: Does other things\n"
      "==> Outdated Formulae\njq\nwget\n\nYou have 2 outdated formulae installed.\n");
  EXPECT_EQ(sentence(outcome), "Updated Homebrew from 6.0.17 (a1) to 6.0.18 (b2)");
  EXPECT_EQ(details(outcome),
            "Updated 1 tap (me/tap) | New formulae: me/tap/fresh and other | "
            "Outdated formulae: jq and wget");
}

TEST(RunOutcome, CountsOnlyPackagesOfStandardOutput) {
  const RunOutcome outcome = outcomeOf(dependencies, u"greeter"_s, "me/tap/libgreet\n",
                                       "Warning: Treating greeter as a formula.\n");
  EXPECT_EQ(sentence(outcome), "greeter has 1 dependency");
  EXPECT_EQ(details(outcome), "me/tap/libgreet");
  EXPECT_EQ(warnings(outcome), "Treating greeter as a formula");
  const RunOutcome unknown = outcomeOf(reverseDependencies, u"wget"_s, {},
                                       "Warning: No available formula with the name \"wget\".\n");
  EXPECT_EQ(sentence(unknown), "Homebrew listed nothing");
  EXPECT_EQ(warnings(unknown), "No available formula with the name \"wget\"");
  EXPECT_EQ(sentence(outcomeOf(reverseDependencies, u"jq"_s, {})),
            "Homebrew lists no package that uses jq");
  EXPECT_EQ(sentence(outcomeOf(outdated, {}, "jq\nwget (1.24) < 1.25\n")),
            "2 packages are outdated");
  EXPECT_EQ(sentence(outcomeOf(outdated, {}, "What is this line?\njq\n")), "");
}

TEST(RunOutcome, CountsServicesByTheirState) {
  EXPECT_EQ(sentence(outcomeOf(servicesList, {},
                               "Name     Status  User File\npostgresql@17 started anna ~/x\n"
                               "unbound none   \nredis error 1 anna\nnginx none\n")),
            "4 services: 1 error, 2 not started, 1 started");
  EXPECT_EQ(sentence(outcomeOf(servicesList, {}, "Name Status User File\nquillsvc none\n")),
            "1 service: not started");
}

TEST(RunOutcome, BeginsAFailureWithTheLastError) {
  const RunOutcome outcome = outcomeOf(info, u"nosuch"_s, {},
                                       "Error: No available formula with the name \"nosuch\".\n"
                                       "Error: No previously deleted formula found.\n",
                                       1);
  EXPECT_EQ(outcome.kind, Kind::failure);
  EXPECT_EQ(sentence(outcome), "Failed: No previously deleted formula found");
  EXPECT_EQ(details(outcome), "No available formula with the name \"nosuch\"");
  EXPECT_EQ(sentence(outcomeOf(uninstall, u"jq"_s, {},
                               "Error: Refusing to uninstall /opt/Cellar/jq/1.8\n"
                               "because it is required by yq, which is currently installed.\n"
                               "You can override this\n",
                               1)),
            "Failed: Refusing to uninstall /opt/Cellar/jq/1.8 because it is required by yq, which "
            "is currently installed");
  EXPECT_EQ(sentence(outcomeOf(install, u"jq"_s, {}, "Error: Failed to download jq\n", 1)),
            "Failed to download jq");
}

TEST(RunOutcome, SaysWhatCouldNotBeBuiltAndWhy) {
  const RunOutcome outcome =
      outcomeOf(install, u"broken"_s,
                "==> Installing broken\n==> make\n"
                "Last 15 lines from /home/anna/.cache/Homebrew/Logs/broken/01.make:\n\nmake\n"
                "broken.c:1:25: error: 'not_declared' undeclared\n    1 | int\n",
                "Warning: Problem : timeout. Will retry in 1 seconds. 3 retries left.\n", 1);
  EXPECT_EQ(sentence(outcome), "Failed: broken could not be built");
  EXPECT_EQ(details(outcome), "broken.c:1:25: error: 'not_declared' undeclared");
  EXPECT_EQ(warnings(outcome), "");
}

TEST(RunOutcome, SaysWhatWasDoneBeforeAFailure) {
  const RunOutcome outcome =
      outcomeOf(install, u"b"_s, "/opt/Cellar/a/1: 1 file, 1B\n==> Installing b\n", {}, 1);
  EXPECT_EQ(sentence(outcome), "Failed while installing b");
  EXPECT_EQ(details(outcome), "Installed: a 1");
  EXPECT_TRUE(outcomeOf(install, u"b"_s, {}, {}, 1).isEmpty());
}

TEST(RunOutcome, SaysWhatACancelledRunWasDoing) {
  const RunOutcome installing = cancelled(
      install, "/opt/Cellar/libidn2/2: 1 file, 1B\n==> Installing wget\n==> ./configure\n",
      "==> Fetching downloads for: wget\nError: SIGTERM\n");
  EXPECT_EQ(installing.kind, Kind::cancellation);
  EXPECT_EQ(sentence(installing),
            "Cancelled while installing wget; a part of it may have been left");
  EXPECT_EQ(details(installing), "Installed: libidn2 2");
  EXPECT_EQ(sentence(cancelled(install, {}, "==> Fetching downloads for: wget\nError: SIGTERM\n")),
            "Cancelled while downloading wget; a part of it may have been left");
  EXPECT_EQ(
      sentence(cancelled(install, {}, "==> Fetching downloads for: libidn2, a/b/c and wget\n")),
      "Cancelled while downloading 3 packages; a part of them may have been left");
  EXPECT_EQ(sentence(cancelled(update, {}, "==> Updating Homebrew...\n")),
            "Cancelled while updating Homebrew; a part may be updated already");
  EXPECT_EQ(sentence(cancelled(cleanup, "Removing: /x... (1B)\n")),
            "Cancelled while cleaning up; a part may be gone already");
  EXPECT_EQ(sentence(cancelled(info, {}, {})), "Cancelled before Homebrew had told all");
  EXPECT_EQ(sentence(cancelled(install, {}, {}, -1)), "Cancelled before Homebrew was started");
}

TEST(RunOutcome, SaysWhatWasDoneWhereTheCancelCameTooLate) {
  const RunOutcome outcome = cancelled(install, "/opt/Cellar/wget/1: 1 file, 1B\n", {}, 0);
  EXPECT_EQ(outcome.kind, Kind::success);
  EXPECT_EQ(sentence(outcome), "Installed wget 1");
  EXPECT_EQ(sentence(cancelled(install, "==> Installing wget\n", {}, 0)),
            "Cancelled while installing wget; a part of it may have been left");
}

TEST(RunOutcome, KeepsCaveatsWholeAndOnce) {
  const RunOutcome outcome = outcomeOf(
      install, u"b"_s,
      "==> Installing a\n==> Caveats\na is keg-only.\n\n  export PATH=\"a\"\n==> Summary\n"
      "/opt/Cellar/a/1: 1 file, 1B\n==> Installing b\n==> Caveats\n\nTo start b:\n  brew b\n"
      "==> Summary\n/opt/Cellar/b/1: 1 file, 1B\n==> Caveats\n==> a\na is keg-only.\n\n"
      "  export PATH=\"a\"\n==> b\nTo start b:\n  brew b\n");
  EXPECT_EQ(outcome.caveats.toStdString(),
            "a\na is keg-only.\n\n  export PATH=\"a\"\n\nb\nTo start b:\n  brew b");
  EXPECT_EQ(outcomeOf(info, u"b"_s, "==> b: 1\n==> Caveats\nTo start b:\n==> Analytics\nx\n")
                .caveats.toStdString(),
            "To start b:");
}

TEST(RunOutcome, NamesPinnedPackages) {
  const QByteArray output = "me/tap/pinnedtool 2.0\n==> 1 Pinned formula\nme/tap/pinnedtool 2.0\n";
  EXPECT_EQ(sentence(outcomeOf(upgrade, u"pinnedtool"_s, output,
                               "Error: Not upgrading 1 pinned package:\n", 1)),
            "Failed: Not upgrading 1 pinned package: pinnedtool");
  const RunOutcome all =
      outcomeOf(upgrade, {}, output, "Warning: Not upgrading 1 pinned package:\n");
  EXPECT_EQ(sentence(all), "Homebrew reported nothing to upgrade");
  EXPECT_EQ(warnings(all), "Not upgrading 1 pinned package: pinnedtool");
}

TEST(RunOutcome, StaysSmallHoweverMuchIsPrinted) {
  QByteArray output = "==> Caveats\n";
  for (int i = 0; i < 50'000; ++i) {
    const QByteArray number = QByteArray::number(i);
    output += "line " + number + "\n";
  }
  for (int i = 0; i < 5'000; ++i) {
    const QByteArray number = QByteArray::number(i);
    output += "/opt/Cellar/tool" + number + "/1: 1 file, 1B\nRemoving: /opt/Cellar/tool" + number +
              "/0... (1 file, 1B)\n";
  }
  output += "==> x" + QByteArray(5'000'000, 'x');
  QByteArray error;
  for (int i = 0; i < 5'000; ++i) {
    error += "Warning: number " + QByteArray::number(i) + "\n";
  }
  const RunOutcome outcome = outcomeOf(install, {}, output, error);
  EXPECT_EQ(sentence(outcome), "Installed 5000 packages");
  EXPECT_LT(outcome.details.join(u""_s).size(), 5'000);
  EXPECT_LE(outcome.caveats.size(), 33'000);
  EXPECT_EQ(outcome.warnings.size(), 21);
  EXPECT_EQ(outcome.warnings.last(), u"4980 more warnings"_s);
}

}  // namespace
}  // namespace quillmere
