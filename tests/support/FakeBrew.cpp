#include "support/FakeBrew.h"

namespace quillmere::test {

QByteArray fakeBrewScript() {
  return R"BREW(#!/bin/sh
# Answers as Homebrew does and changes nothing.
heading() { printf '==> %s\n' "$1" >&2; }
case "$1 $2" in
  "services list")
    printf 'Name       Status  User  File\n'
    sleep 0.2
    printf 'postgresql@17 started anna ~/.config/systemd/user/homebrew.postgresql@17.service\n'
    printf 'redis         stopped\n'
    printf 'unbound       none\n'
    ;;
  "info "*)
    for name do :; done
    printf '==> %s: stable 1.25.0 (bottled), HEAD\n' "$name"
    printf 'Internet file retriever\nhttps://www.example.org/%s/\n' "$name"
    printf 'Not installed\nLicense: GPL-3.0-or-later\n'
    printf '==> Dependencies\nRequired (3): libidn2, libpsl, openssl@3\n'
    ;;
  "outdated "*) printf 'wget\nopenssl@3\nfirefox\n' ;;
  "deps "*) printf 'libidn2\nlibpsl\nopenssl@3\n' ;;
  "uses "*) ;;
  "update "*)
    heading 'Updating Homebrew...'
    sleep 1
    printf 'Already up-to-date.\n'
    ;;
  "upgrade "|"upgrade "*|"install "*)
    name=wget
    [ $# -gt 1 ] && for name do :; done
    heading "Fetching downloads for: $name"
    sleep 0.4
    printf '\342\234\224\357\270\216 Bottle %s (1.25.0)\n' "$name" >&2
    printf '==> Pouring %s--1.25.0.x86_64_linux.bottle.tar.gz\n' "$name"
    step=1
    while [ "$step" -le 20 ]; do
      printf '  unpacking %d of 20\n' "$step"
      sleep 0.2
      step=$((step + 1))
    done
    printf '\360\237\215\272  Cellar/%s/1.25.0: 94 files, 4.6MB\n' "$name"
    ;;
  "cleanup "*)
    printf 'Removing: wget--1.24.5.tar.gz... (4.1MB)\n'
    sleep 0.3
    printf '==> This operation has freed approximately 4.1MB of disk space.\n'
    ;;
  "doctor "*)
    printf 'Please note that these warnings are just used to help the Homebrew maintainers\n' >&2
    printf 'with debugging if you file an issue. If everything you use Homebrew for is\n' >&2
    printf 'working fine: please don'\''t worry or file an issue; just ignore this. Thanks!\n\n' >&2
    printf 'Warning: Some installed formulae are deprecated or disabled.\n' >&2
    exit 1
    ;;
  *)
    printf 'Error: Unknown command: brew %s\n' "$1" >&2
    exit 1
    ;;
esac
)BREW";
}

}  // namespace quillmere::test
