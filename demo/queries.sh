# What brew is asked without changing anything. Read by bin/brew.

info() {
  pause 600
  if [ "$1" = cask ]; then
    caskInfo "$2"
  else
    formulaInfo "$2"
  fi
}

formulaInfo() {
  version=$(formulaField "$1" 2)
  head=$(formulaField "$1" 4)
  say "==> $1: ${version:+stable $version (bottled)}${version:+${head:+, }}$head"
  for line in "$(formulaField "$1" 5)" "$(formulaField "$1" 6)"; do
    [ -z "$line" ] || say "$line"
  done
  if [ -d "$cellar/$1" ]; then
    say Installed
    for keg in "$cellar/$1"/*/; do
      keg=${keg%/}
      mark=
      [ "$keg" != "$(kegOf "$1")" ] || mark=' *'
      say "$keg ($(contentsOf "$keg"))$mark"
      say "  Poured from bottle using the formulae.brew.sh API"
    done
  else
    say "Not installed"
  fi
  say "From: https://github.com/Homebrew/homebrew-core/blob/HEAD/Formula/$(printf %.1s "$1")/$1.rb"
  say "License: $(formulaField "$1" 7)"
  needs=$(formulaField "$1" 8)
  if [ -n "$needs" ]; then
    say "==> Dependencies"
    say "Required ($(say "$needs" | wc -w | tr -d ' ')): $(say "$needs" | sed 's/ /, /g')"
  fi
  [ -z "$head" ] || printf '==> Options\n--HEAD\n\tInstall HEAD version\n'
}

caskInfo() {
  say "==> $1 ($(caskField "$1" 3)): $(caskField "$1" 2)"
  for line in "$(caskField "$1" 4)" "$(caskField "$1" 5)"; do
    [ -z "$line" ] || say "$line"
  done
  if [ -d "$caskroom/$1" ]; then
    say Installed
    say "$caskroom/$1/$(installedCask "$1") ($(sizeOf "$caskroom/$1"))"
  else
    say "Not installed"
  fi
  say "From: https://github.com/Homebrew/homebrew-cask/blob/HEAD/Casks/$(printf %.1s "$1")/$1.rb"
  say "==> Artifacts"
  for artifact in $(caskField "$1" 6); do
    say "$(caskField "$1" 3 | sed 's/,.*//') ($artifact)"
  done
}

deps() {
  pause 500
  closure "$2" | sort
}

uses() {
  pause 800
  formulaTables | awk -F "$tab" -v name="$2" '
    { count = split($8, each, " ")
      for (i = 1; i <= count; i++) if (each[i] == name) print $1 }' | sort
}

outdated() {
  pause 500
  [ "$kind" = cask ] || outdatedFormulae | cut -d ' ' -f 1
  [ "$kind" = formula ] || outdatedCasks | cut -d ' ' -f 1
}

services() {
  pause 600
  user=$(id -un)
  printf '%-13s %-7s %-8s %s\n' Name Status User File
  for service in postgresql@17:started redis:stopped unbound:none; do
    name=${service%:*}
    status=${service#*:}
    file="~/.config/systemd/user/homebrew.$name.service"
    [ "$status" = started ] || file=
    owner=$user
    [ "$status" != none ] || owner=
    [ ! -d "$cellar/$name" ] || printf '%-13s %-7s %-8s %s\n' "$name" "$status" "$owner" "$file"
  done | sed 's/ *$//'
}

doctor() {
  pause 900
  tell "Please note that these warnings are just used to help the Homebrew maintainers
with debugging if you file an issue. If everything you use Homebrew for is
working fine: please don't worry or file an issue; just ignore this. Thanks!"
  pause 700
  tell "
Warning: You have unlinked kegs in your Cellar.
Leaving kegs unlinked can lead to build-trouble and cause formulae that depend on
those kegs to fail to run properly once built. Run \`brew link\` on these:
  tree"
  pause 700
  tell "
Warning: Some installed formulae are not readable:
  quillmere/tools/greet"
  exit 1
}
