#pragma once

#include <array>

#include "commands/BrewCommand.h"

namespace quillmere::test {

/// What a user has to read of one transcript.
struct TranscriptWord {
  const char* name;
  BrewCommandOperation operation;
  /// The package that the command names; none where there are none or several.
  const char* target;
  /// See `rowsOf`.
  const char* rows;
  /// The first sentence.
  const char* advice;
  /// See `outcomeOf`.
  const char* outcome;
};

using enum BrewCommandOperation;

inline constexpr auto transcriptWords = std::to_array<TranscriptWord>({
    {"transcripts/autoremove-n", cleanup, "", "Would autoremove 1 unneeded formula:", "", ""},
    {"transcripts/autoremove", cleanup, "", "Autoremoving 1 unneeded formula:", "",
     "Removed what nothing needs: hello-lib 4.5"},
    {"transcripts/bad-flag", install, "hello-a",
     "Unless $HOMEBREW_NO_INSTALLED_DEPENDENTS_CHECK is set, brew upgrade or brew | for the "
     "installed formulae or, every 30 days, for all formulae. | upgrade formula if it is already "
     "installed but outdated. | previously installed keg-only or non-migrated | -n, --dry-run      "
     "              Show what would be installed, but do not | If the dependencies are not already "
     "present,",
     "", "Failed: invalid option: --no-such-flag"},
    {"transcripts/build-bottle", install, "hello-old",
     "Would install 1 formula: | Installing hello-old from local/demo | Not running 'post_install' "
     "as we're building a bottle | Warning: local/demo/hello-old has been deprecated because it is "
     "not maintained upstream! It will be disabled on 2027-01-01. | Fetching downloads for: "
     "hello-old | Warning: Sandbox unavailable: building without sandboxing!",
     "",
     "Installed hello-old 1.0 | warning: local/demo/hello-old has been deprecated because it is "
     "not maintained upstream! It will be disabled on 2027-01-01 | warning: Sandbox unavailable: "
     "building without sandboxing!"},
    {"transcripts/cache", info, "", "1", "", ""},
    {"transcripts/cask-info-json", info, "iina", "6", "", ""},
    {"transcripts/cask-info", info, "iina", "6", "", ""},
    {"transcripts/cask-uninstall", uninstall, "hello-cask",
     "Unlinking Binary '/home/linuxbrew/.linuxbrew/bin/hello-cask' | Dispatching zap stanza | "
     "Trashing files: | Removing all staged versions of Cask 'hello-cask'",
     "", "Uninstalled hello-cask"},
    {"transcripts/cleanup-n", cleanup, "",
     "This operation would free approximately 325B of disk space. | Warning: Skipping "
     "local/demo/hello-a: most recent version 1.1 not installed | Warning: Skipping "
     "local/demo/hello-b: most recent version 2.1 not installed",
     "",
     " | warning: Skipping local/demo/hello-a: most recent version 1.1 not installed | warning: "
     "Skipping local/demo/hello-b: most recent version 2.1 not installed"},
    {"transcripts/desc", info, "", "2", "", ""},
    {"transcripts/env", info, "", "6", "", ""},
    {"transcripts/info-json-wget", info, "wget", "6", "", ""},
    {"transcripts/info-mixed", info, "", "1", "Homebrew knows no package of this name",
     "Failed: No available formula with the name \"no-such-xyz\""},
    {"transcripts/info-wget", info, "wget", "6", "", ""},
    {"transcripts/install-bottle", install, "hello-app",
     "Would install 1 formula: | Would install 1 dependency for hello-app: | Installing hello-app "
     "from local/demo | Installing local/demo/hello-app dependency: local/demo/hello-lib | Pouring "
     "hello-lib-4.5.x86_64_linux.bottle.tar.gz | Installing local/demo/hello-app",
     "", "Installed hello-app 0.1.0 | Also installed: hello-lib 4.5"},
    {"transcripts/install-bottle2", install, "hello-app",
     "Would install 1 formula: | Would install 1 dependency for hello-app: | Installing hello-app "
     "from local/demo | Installing local/demo/hello-app dependency: local/demo/hello-lib | Pouring "
     "hello-lib-4.5.x86_64_linux.bottle.tar.gz | Installing local/demo/hello-app",
     "", "Installed hello-app 0.1.0 | Also installed: hello-lib 4.5"},
    {"transcripts/install-broken", install, "hello-broken",
     "Would install 1 formula: | Installing hello-broken from local/demo | sh -c echo compiling "
     "hello-broken; echo error: cannot find thing.h >&2; exit 2 | echo compiling hello-broken; "
     "echo error: cannot find thing.h >&2; exit 2 | error: cannot find thing.h | Fetching "
     "downloads for: hello-broken",
     "The package could not be built",
     "Failed: hello-broken could not be built | error: cannot find thing.h | warning: Sandbox "
     "unavailable: building without sandboxing! | warning: Unable to query GitHub for recent "
     "issues on the tap"},
    {"transcripts/install-core", install, "wget",
     "Would install 1 formula: | Would install 11 dependencies for wget: | Downloading bottle "
     "manifests | Fetching downloads for: wget | Error: Failed to download resource \"libidn2 "
     "(2.3.8)\"",
     "A download failed", "Failed to download resource \"libidn2 (2.3.8)\""},
    {"transcripts/install-dry", install, "jq",
     "Would install 1 formula: | Downloading  | "
     "Would install 1 dependency for jq: | Would install 1 formula: | Would install 1 dependency "
     "for jq:",
     "", ""},
    {"transcripts/install-keg", install, "",
     "Would install 2 formulae: | Installing hello-c from local/demo | Caveats | Summary | Running "
     "`brew cleanup hello-c`... | Installing hello-daemon from local/demo",
     "",
     "Installed hello-c 3.0.0 and hello-daemon 0.9 | caveats: 12 lines | warning: Sandbox "
     "unavailable: building without sandboxing!"},
    {"transcripts/install-old", install, "hello-old",
     "Would install 1 formula: | Installing hello-old from local/demo | Warning: "
     "local/demo/hello-old has been deprecated because it is not maintained upstream! It will be "
     "disabled on 2027-01-01. | Fetching downloads for: hello-old | Error: local/demo/hello-old: "
     "Cannot install local/demo/hello-old because conflicting formulae are installed.",
     "The package conflicts with another one that is installed",
     "Failed: local/demo/hello-old: Cannot install local/demo/hello-old because conflicting "
     "formulae are installed | warning: local/demo/hello-old has been deprecated because it is not "
     "maintained upstream! It will be disabled on 2027-01-01"},
    {"transcripts/leaves", info, "", "3", "", ""},
    {"transcripts/list-full", info, "", "6", "", ""},
    {"transcripts/list-json", info, "", "1", "", "Failed: needless argument: --json=v1"},
    {"transcripts/list-pinned", info, "", "1", "", ""},
    {"transcripts/list-versions", info, "", "6", "", ""},
    {"transcripts/list", info, "", "6", "", ""},
    {"transcripts/lock-contention", install, "hello-slow",
     "Would install 1 formula: | Installing hello-slow from local/demo | Fetching downloads for: "
     "hello-slow | Error: local/demo/hello-slow: A `brew install hello-slow` process has already "
     "locked /home/linuxbrew/.linuxbrew/Cellar/hello-slow.",
     "Another brew process is working on this",
     "Failed: local/demo/hello-slow: A `brew install hello-slow` process has already locked "
     "/home/linuxbrew/.linuxbrew/Cellar/hello-slow"},
    {"transcripts/missing", info, "", "0", "", ""},
    {"transcripts/no-such", info, "no-such-formula-xyz", "3",
     "Homebrew knows no package of this name",
     "Failed: No previously deleted formula found | No available formula with the name "
     "\"no-such-formula-xyz\""},
    {"transcripts/outdated-json", outdated, "", "Found 42 packages", "", ""},
    {"transcripts/outdated-none", outdated, "", "Found 1 package", "",
     "1 package is outdated | local/demo/hello-daemon"},
    {"transcripts/outdated-verbose", outdated, "", "Found 4 packages", "",
     "4 packages are outdated | local/demo/hello-a, local/demo/hello-b, local/demo/hello-daemon "
     "and hello-cask"},
    {"transcripts/outdated", outdated, "", "Found 4 packages", "",
     "4 packages are outdated | local/demo/hello-a, local/demo/hello-b, local/demo/hello-daemon "
     "and hello-cask"},
    {"transcripts/pin", info, "", "0", "", ""},
    {"transcripts/prefix", info, "", "1", "", ""},
    {"transcripts/reinstall", install, "hello-a",
     "Would reinstall 1 formula: | Reinstalling local/demo/hello-a | Running `brew cleanup "
     "hello-a`... | Fetching downloads for: hello-a | Warning: Sandbox unavailable: building "
     "without sandboxing!",
     "", "Installed hello-a 1.1 | warning: Sandbox unavailable: building without sandboxing!"},
    {"transcripts/search-desc", info, "", "6", "",
     " | warning: Cask 'airparrot' definition is invalid: invalid 'uninstall' stanza: "
     "uninitialized constant Cask::DSL::Caveats::MacOS | warning: Cask 'appgate-sdp-client' "
     "definition is invalid: undefined method 'major_minor' for nil | warning: Cask "
     "'apple-hewlett-packard-printer-drivers' definition is invalid: invalid 'uninstall' stanza: "
     "uninitialized constant Cask::DSL::Caveats::MacOS | warning: Cask 'boom' definition is "
     "invalid: invalid 'uninstall' stanza: uninitialized constant Cask::DSL::Caveats::MacOS | "
     "warning: Cask 'caldigit-thunderbolt-charging' definition is invalid: invalid 'uninstall' "
     "stanza: uninitialized constant Cask::DSL::Caveats::MacOS | warning: Cask "
     "'caldigit-usb-hub-support-driver' definition is invalid: invalid 'uninstall' stanza: "
     "uninitialized constant Cask::DSL::Caveats::MacOS | warning: Cask 'cd-to' definition is "
     "invalid: undefined method 'dots_to_underscores' for nil | warning: Cask 'copyq' is "
     "unreadable: uninitialized constant Cask::Utils::MacOS | warning: Cask 'displaylink' "
     "definition is invalid: undefined method 'csv' for nil | warning: Cask 'dropbox' definition "
     "is invalid: invalid 'uninstall' stanza: uninitialized constant Cask::DSL::Caveats::MacOS | "
     "warning: Cask 'dropbox@beta' definition is invalid: invalid 'uninstall' stanza: "
     "uninitialized constant Cask::DSL::Caveats::MacOS | warning: Cask 'duet' definition is "
     "invalid: invalid 'uninstall' stanza: uninitialized constant Cask::DSL::Caveats::MacOS | "
     "warning: Cask 'focusrite-saffire-mixcontrol' definition is invalid: invalid 'uninstall' "
     "stanza: uninitialized constant Cask::DSL::Caveats::MacOS | warning: Cask 'free-gpgmail' "
     "definition is invalid: undefined method 'csv' for nil | warning: Cask 'geekbench' definition "
     "is invalid: undefined method 'major' for nil | warning: Cask 'grandperspective' definition "
     "is invalid: undefined method 'dots_to_underscores' for nil | warning: Cask 'heimdall-suite' "
     "definition is invalid: invalid 'uninstall' stanza: uninitialized constant "
     "Cask::DSL::Caveats::MacOS | warning: Cask 'konica-minolta-bizhub-c750i-driver' definition is "
     "invalid: undefined method 'csv' for nil | warning: Cask "
     "'konica-minolta-bizhub-c759-c658-c368-c287-c3851-driver' definition is invalid: undefined "
     "method 'csv' for nil | warning: Cask 'lightkey' definition is invalid: undefined method "
     "'dots_to_hyphens' for nil | warning: 39 more warnings"},
    {"transcripts/search", info, "", "6", "", ""},
    {"transcripts/shellenv", info, "", "6", "", ""},
    {"transcripts/tap", info, "", "3", "", ""},
    {"transcripts/trust-json", info, "", "6", "", ""},
    {"transcripts/trust-tap", info, "", "1", "", ""},
    {"transcripts/uninstall-autoremove", uninstall, "hello-app", "Autoremoving 1 unneeded formula:",
     "", "Uninstalled hello-app 0.1.0 | Also removed, because nothing needs it: hello-lib 4.5"},
    {"transcripts/uninstall-needed", uninstall, "hello-a",
     "Error: Refusing to uninstall /home/linuxbrew/.linuxbrew/Cellar/hello-a/1.0 | because it is "
     "required by hello-b and hello-leaf, which are currently installed.",
     "",
     "Failed: Refusing to uninstall /home/linuxbrew/.linuxbrew/Cellar/hello-a/1.0 because it is "
     "required by hello-b and hello-leaf, which are currently installed"},
    {"transcripts/uninstall-noautoremove", uninstall, "hello-app",
     "Uninstalling /home/linuxbrew/.linuxbrew/Cellar/hello-app/0.1.0... (3 files, 13.8KB)", "",
     "Uninstalled hello-app 0.1.0"},
    {"transcripts/uninstall", uninstall, "hello-leaf",
     "Uninstalling /home/linuxbrew/.linuxbrew/Cellar/hello-leaf/1.2.3_1... (4 files, 16.5KB)", "",
     "Uninstalled hello-leaf 1.2.3_1"},
    {"transcripts/unknown-cmd", info, "", "6", "",
     "Failed: Invalid usage: Unknown command: brew frobnicate"},
    {"transcripts/unlink", info, "", "1", "", ""},
    {"transcripts/unpin", info, "", "0", "", ""},
    {"transcripts/untap", info, "", "6", "",
     "Failed: Refusing to untap local/demo because it contains the following installed formulae"},
    {"transcripts/update", update, "",
     "Updating Homebrew... | Error: Fetching /home/linuxbrew/.linuxbrew/Homebrew failed! | "
     "Homebrew's analytics have entirely moved to our InfluxDB instance in the EU. | Homebrew is "
     "run entirely by unpaid volunteers. Please consider donating: | You have "
     "`$HOMEBREW_NO_INSTALL_FROM_API` set | Homebrew >=4.1.0 is dramatically faster and less "
     "error-prone when installing",
     "A download failed", "Failed: Fetching /home/linuxbrew/.linuxbrew/Homebrew failed!"},
    {"transcripts/upgrade-daemon", upgrade, "hello-daemon",
     "Would upgrade 1 outdated package | Upgrading 1 outdated package: | Upgrading "
     "local/demo/hello-daemon | Caveats | Summary | Running `brew cleanup hello-daemon`...",
     "",
     "Upgraded hello-daemon 0.9 to 0.10 | Old versions removed: hello-daemon 0.9 | Other files and "
     "folders removed: 1 | caveats: 4 lines | warning: Sandbox unavailable: building without "
     "sandboxing!"},
    {"transcripts/upgrade-dry", upgrade, "",
     "Would upgrade 3 outdated packages | 1 Pinned formula | Warning: Not upgrading 1 pinned "
     "package:",
     "", " | warning: Not upgrading 1 pinned package: hello-daemon"},
    {"transcripts/upgrade-one", upgrade, "hello-a",
     "Would upgrade 1 outdated package | Upgrading 1 outdated package: | Upgrading "
     "local/demo/hello-a | Upgraded 1 outdated package | Fetching downloads for: hello-a | "
     "Warning: Sandbox unavailable: building without sandboxing!",
     "",
     "Upgraded hello-a 1.0 to 1.1 | warning: Sandbox unavailable: building without sandboxing!"},
    {"transcripts2/cleanup-n-old", cleanup, "",
     "This operation would free approximately 28.9KB of disk space. | Warning: Skipping "
     "local/demo/hello-b: most recent version 2.1 not installed",
     "", " | warning: Skipping local/demo/hello-b: most recent version 2.1 not installed"},
    {"transcripts2/cleanup", cleanup, "",
     "This operation has freed approximately 28.9KB of disk space. | Warning: Skipping "
     "local/demo/hello-b: most recent version 2.1 not installed",
     "",
     "Freed about 28.9 KB | Old versions removed: hello-a 1.0 | Other files and folders removed: 2 "
     "| warning: Skipping local/demo/hello-b: most recent version 2.1 not installed"},
    {"transcripts2/deps-tree", dependencies, "", "Found 9 dependencies", "", ""},
    {"transcripts2/doctor", doctor, "", "5", "",
     "Homebrew gave 1 warning | warning: Homebrew's \"bin\" was not found in your PATH"},
    {"transcripts2/install-badsum", install, "hello-badsum",
     "Would install 1 formula: | SHA-256 checksum of downloaded file: "
     "333fe060413d5c0e64a4adcca6f2a6d9500e8de3c7d4a996bcec66dfc4282c01 | Fetching downloads for: "
     "hello-badsum | Error: Formula reports different checksum:  "
     "0000000000000000000000000000000000000000000000000000000000000000",
     "A download is not what Homebrew expects",
     "Failed: Formula reports different checksum: "
     "0000000000000000000000000000000000000000000000000000000000000000"},
    {"transcripts2/install-leaf", install, "local/demo/hello-leaf",
     "Would install 1 formula: | Would install 1 dependency for hello-leaf: | Installing "
     "hello-leaf from local/demo | Installing local/demo/hello-leaf dependency: local/demo/hello-b "
     "| make install PREFIX=/home/linuxbrew/.linuxbrew/Cellar/hello-b/2.0 | Installing "
     "local/demo/hello-leaf",
     "",
     "Installed hello-leaf 1.2.3_1 | Also installed: hello-b 2.0 | Other files and folders "
     "removed: 1 | caveats: 2 lines | warning: Sandbox unavailable: building without sandboxing!"},
    {"transcripts2/services-info", info, "", "6", "", ""},
    {"transcripts2/services-json", servicesList, "", "Found 9 services", "", ""},
    {"transcripts2/services-list", servicesList, "", "Found 1 services", "",
     "1 service: not started"},
    {"transcripts2/services-start", info, "", "3", "",
     "Failed: Failure while executing; `/usr/bin/env /usr/bin/systemctl --user daemon-reload` "
     "exited with 1. Here's the output"},
    {"transcripts2/upgrade-all", upgrade, "",
     "Would upgrade 2 outdated packages | 1 Pinned formula | Upgrading 2 outdated packages: | "
     "Upgrading local/demo/hello-b | make install "
     "PREFIX=/home/linuxbrew/.linuxbrew/Cellar/hello-b/2.1 | Running `brew cleanup hello-b`...",
     "",
     "Upgraded hello-b 2.0 to 2.1 and hello-cask 2.0 to 2.1 | Old versions removed: hello-b 2.0 | "
     "Other files and folders removed: 1 | warning: Not upgrading 1 pinned package: hello-daemon | "
     "warning: Sandbox unavailable: building without sandboxing!"},
    {"transcripts2/uses", reverseDependencies, "hello-a", "Found 2 dependent formulae", "",
     "2 packages use hello-a | local/demo/hello-b and local/demo/hello-leaf"},
});

}  // namespace quillmere::test
