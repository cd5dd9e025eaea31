#include "execution/FailureAdvice.h"

#include <QtCore/QLatin1StringView>

#include <algorithm>
#include <array>
#include <string_view>

namespace quillmere {
namespace {

constexpr qsizetype endBytes = 65'536;

struct Advice {
  /// What Homebrew prints.
  std::string_view sign;
  std::string_view text;
};

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
    {"SHA-256 mismatch",
     "A download is not what Homebrew expects. Run the command again; if it fails again, the "
     "package has to be mended by its maintainers."},
    {"No available formula",
     "Homebrew knows no package of this name. Update Homebrew, then run the command again."},
    {"No available cask",
     "Homebrew knows no package of this name. Update Homebrew, then run the command again."},
    {"Failed to download",
     "A download failed. Check the network connection, then run the command again."},
    {"Error: Fetching ",
     "A download failed. Check the network connection, then run the command again."},
    {"curl: (", "A download failed. Check the network connection, then run the command again."},
});

std::string_view endOf(const QByteArray& text) {
  const qsizetype size = std::min(text.size(), endBytes);
  return {text.constEnd() - size, static_cast<std::size_t>(size)};
}

}  // namespace

QString failureAdvice(const DirectCommandResult& result) {
  const std::array ends{endOf(result.standardError), endOf(result.standardOutput)};
  const auto* const found = std::ranges::find_if(advices, [&ends](const Advice& advice) {
    return std::ranges::any_of(
        ends, [&advice](std::string_view end) { return end.contains(advice.sign); });
  });
  return found == advices.end()
             ? QString()
             : QString::fromUtf8(found->text.data(), static_cast<qsizetype>(found->text.size()));
}

}  // namespace quillmere
