#include "execution/FailureAdvice.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillmere {
namespace {

constexpr qsizetype endBytes = 65'536;

struct Advice {
  /// What Homebrew prints. A line feed at its begin stands for the begin of a line.
  std::string_view sign;
  std::string_view text;
};

constexpr std::string_view wrongChecksum =
    "A download is not what Homebrew expects. Run the command again; if it fails again, the "
    "package has to be mended by its maintainers.";
constexpr std::string_view unknownName =
    "Homebrew knows no package of this name. Update Homebrew, then run the command again.";
constexpr std::string_view notLinked =
    "Homebrew could not link the package. The command-line output says why, and how to link it in "
    "a terminal.";
constexpr std::string_view refusedUpdate =
    "Homebrew refuses to update one of its folders. The command-line output names it and says why; "
    "mend it in a terminal.";
constexpr std::string_view closedRepository =
    "The repository of a tap cannot be read. It is gone, has moved, or asks for a login; the "
    "command-line output names it.";
constexpr std::string_view failedDownload =
    "A download failed. Check the network connection, then run the command again.";

// The cause before its consequences: of several signs, the first in this order counts.
constexpr auto advices = std::to_array<Advice>({
    {"has already locked",
     "Another brew process is working on this. Wait until it has ended, then run the command "
     "again."},
    {"process is already running",
     "Another brew process is running. Wait until it has ended, then run the command again."},
    {"Running Homebrew as root",
     "Homebrew refuses to run as root. Start Quillmere as the user who owns the prefix."},
    {"is not writable. You should change the",
     "Homebrew may not write to its own folders. The command-line output says what to change, in a "
     "terminal."},
    {"sudo: a terminal is required",
     "The command needs an administrator's password, which Quillmere never asks for. Copy the "
     "command and run it in a terminal."},
    {"from untrusted tap",
     "The package comes from a tap that Homebrew does not trust. If you know who maintains it, "
     "trust it in a terminal, then run the command again."},
    {"has been disabled because",
     "The package was disabled by its maintainers. Homebrew no longer installs it."},
    {"SHA-256 mismatch", wrongChecksum},
    {"reports different checksum", wrongChecksum},
    {"\nPlease `brew unlink ",
     "The package conflicts with another one that is installed. The command-line output names it "
     "and says what to do, in a terminal."},
    {"The `brew link` step did not complete", notLinked},
    {"brew link --overwrite ", notLinked},
    {" lines from /",
     "The package could not be built. The command-line output ends with the log of the build, and "
     "says where to report it."},
    {"No available formula", unknownName},
    {"No available cask", unknownName},
    {"No Cask with this name exists", unknownName},
    {"\nError: No casks found for ", unknownName},
    {"\nError: No formulae found for ", unknownName},
    {"\nError: No formulae or casks found for ", unknownName},
    {"would be overwritten by merge", refusedUpdate},
    {"Could not 'git stash' in ", refusedUpdate},
    {"HEAD is not a descendant of ", refusedUpdate},
    {"dubious ownership in repository", refusedUpdate},
    {" is a shallow clone", refusedUpdate},
    {"could not read Username for ", closedRepository},
    {"Repository not found", closedRepository},
    {"Permission denied (publickey", closedRepository},
    {"Failed to download", failedDownload},
    {"\nError: Fetching ", failedDownload},
    // Homebrew also asks the web for known issues, and goes on without an answer; what curl says
    // then stands within a line.
    {"\ncurl: (", failedDownload},
    {"\nError: Not upgrading 1 pinned ",
     "The package is pinned, so Homebrew does not upgrade it. To allow it, run brew unpin with its "
     "name in a terminal."},
});

/// The end of `text`, with a line feed before it where it is whole.
QByteArray endOf(const QByteArray& text) {
  return text.size() < endBytes ? '\n' + text : text.last(endBytes);
}

bool occursIn(const QByteArray& text, std::string_view sign) {
  return text.contains(QByteArrayView(sign.data(), static_cast<qsizetype>(sign.size())));
}

}  // namespace

QString failureAdvice(const DirectCommandResult& result) {
  const std::array ends{endOf(result.standardError), endOf(result.standardOutput)};
  const auto* const found = std::ranges::find_if(advices, [&ends](const Advice& advice) {
    return std::ranges::any_of(
        ends, [&advice](const QByteArray& end) { return occursIn(end, advice.sign); });
  });
  return found == advices.end()
             ? QString()
             : QString::fromUtf8(found->text.data(), static_cast<qsizetype>(found->text.size()));
}

}  // namespace quillmere
