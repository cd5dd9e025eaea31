#include <gtest/gtest.h>

#include "execution/FailureAdvice.h"
#include "support/Printers.h"

namespace quillmere {
namespace {

QString adviceFor(const QByteArray& standardError, const QByteArray& standardOutput = {}) {
  DirectCommandResult result;
  result.standardError = standardError;
  result.standardOutput = standardOutput;
  result.exitCode = 1;
  return failureAdvice(result);
}

struct Failure {
  const char* printed;
  const char* begin;
};

class KnownFailures : public testing::TestWithParam<Failure> {};

TEST_P(KnownFailures, NameTheNextStep) {
  EXPECT_TRUE(adviceFor(GetParam().printed).startsWith(QLatin1String(GetParam().begin)))
      << GetParam().printed;
  EXPECT_EQ(adviceFor({}, GetParam().printed), adviceFor(GetParam().printed));
}

INSTANTIATE_TEST_SUITE_P(
    Signs, KnownFailures,
    testing::Values(
        Failure{"Error: wget: A `brew install wget` process has already locked /opt/x.\n"
                "Please wait for it to finish or terminate it to continue.\n",
                "Another brew process is working on this."},
        Failure{"Error: Another `brew update` process is already running.\n",
                "Another brew process is running."},
        Failure{"Error: Running Homebrew as root is extremely dangerous\n",
                "Homebrew refuses to run as root."},
        Failure{"Error: /opt/homebrew/Cellar is not writable. You should change the ownership\n",
                "Homebrew may not write to its own folders."},
        Failure{"sudo: a terminal is required to read the password\n",
                "The command needs an administrator's password"},
        Failure{"Error: Refusing to load formula me/tap/tool from untrusted tap me/tap.\n",
                "The package comes from a tap that Homebrew does not trust."},
        Failure{"Error: tool has been disabled because it is not maintained upstream!\n",
                "The package was disabled by its maintainers."},
        Failure{"Error: SHA-256 mismatch\n", "A download is not what Homebrew expects."},
        Failure{"Error: Formula reports different checksum:  0000\n",
                "A download is not what Homebrew expects."},
        Failure{"Error: No available formula with the name \"x\".\n",
                "Homebrew knows no package of this name."},
        Failure{"Error: No available formula or cask with the name \"x\".\n",
                "Homebrew knows no package of this name."},
        Failure{"Error: No available cask with the name \"x\".\n",
                "Homebrew knows no package of this name."},
        Failure{"Warning: Cask 'x' is unavailable: No Cask with this name exists.\n",
                "Homebrew knows no package of this name."},
        Failure{"Error: No casks found for x.\n", "Homebrew knows no package of this name."},
        Failure{"Error: No formulae or casks found for x.\n",
                "Homebrew knows no package of this name."},
        Failure{"Error: x: Cannot install x because conflicting formulae are installed.\n\n"
                "Please `brew unlink y` before continuing.\n",
                "The package conflicts with another one"},
        Failure{"Error: The `brew link` step did not complete successfully\n",
                "Homebrew could not link the package."},
        Failure{"To force the link and overwrite all conflicting files:\n"
                "  brew link --overwrite x\n",
                "Homebrew could not link the package."},
        Failure{"Error: Your main HEAD is not a descendant of origin/main!\n",
                "Homebrew refuses to update"},
        Failure{"error: Your local changes to the following files would be overwritten by merge:\n"
                "Error: Fetching /opt/homebrew failed!\n",
                "Homebrew refuses to update"},
        Failure{"fatal: detected dubious ownership in repository at '/opt/homebrew'\n",
                "Homebrew refuses to update"},
        Failure{"fatal: could not read Username for 'https://github.com': terminal prompts "
                "disabled\nError: Fetching /opt/homebrew/Library/Taps/me/homebrew-x failed!\n",
                "The repository of a tap cannot be read."},
        Failure{"Error: Not upgrading 1 pinned package:\n", "The package is pinned"},
        Failure{"Last 15 lines from /home/anna/.cache/Homebrew/Logs/x/01.make.log:\n",
                "The package could not be built."},
        Failure{"Error: Failed to download resource \"libidn2 (2.3.8)\"\n", "A download failed."},
        Failure{"Error: Fetching /opt/homebrew failed!\n", "A download failed."},
        Failure{"curl: (6) Could not resolve host: ghcr.io\n", "A download failed."}));

TEST(FailureAdvice, SaysNothingOfWhatItDoesNotKnow) {
  EXPECT_EQ(adviceFor("Error: something else\n"), QString());
  EXPECT_EQ(adviceFor({}), QString());
}

TEST(FailureAdvice, NamesTheCauseAndNotItsConsequence) {
  EXPECT_TRUE(adviceFor("curl: (23) Failed writing\nError: Failed to download resource \"x\"\n"
                        "Error: /opt/homebrew is not writable. You should change the owner\n")
                  .startsWith(QLatin1String("Homebrew may not write")));
}

TEST(FailureAdvice, BlamesTheNetworkForNoOtherDownload) {
  // Homebrew asks for known issues after a build has failed; that nobody answers is not the cause.
  EXPECT_TRUE(adviceFor("Warning: Unable to query GitHub for recent issues on the tap\n"
                        "curl failed!   % Total\n  0 --:--:--     0curl: (6) Could not resolve\n",
                        "Last 15 lines from /home/anna/.cache/Homebrew/Logs/x/01.make.log:\n")
                  .startsWith(QLatin1String("The package could not be built.")));
  EXPECT_EQ(adviceFor("curl failed!   % Total\n  0 --:--:--     0curl: (6) Could not resolve\n"),
            QString());
}

TEST(FailureAdvice, NamesAFailureBeforeAPackageThatIsPinned) {
  EXPECT_TRUE(adviceFor("Error: Not upgrading 1 pinned package:\ncurl: (6) Could not resolve\n")
                  .startsWith(QLatin1String("A download failed.")));
}

TEST(FailureAdvice, LooksAtTheEndOfALongOutput) {
  QByteArray output = "curl: (6)\n" + QByteArray(1 << 20, 'x');
  EXPECT_EQ(adviceFor(output), QString());
  EXPECT_FALSE(adviceFor(output + "\ncurl: (6)\n").isEmpty());
}

}  // namespace
}  // namespace quillmere
