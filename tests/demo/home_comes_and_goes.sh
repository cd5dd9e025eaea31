#!/usr/bin/env bash
# home_comes_and_goes.sh SCRIPT DEMO_HOME: the made-up home of ./run demo is whole while the program
# runs, the program finds its files nowhere else, and nothing but that home is ever removed.
set -u
script=$1
demoHomeTool=$2
tourProgram=/bin/false

fail() {
  echo "home_comes_and_goes: $*" >&2
  exit 1
}

outside=$(mktemp -d) || exit 1
trap 'rm -rf -- "$outside"' EXIT
export TMPDIR=$outside/tmp HOME=$outside/home
mkdir "$TMPDIR" "$HOME"
touch "$HOME/.Xauthority"
unset XDG_RUNTIME_DIR XAUTHORITY
export DISPLAY=:0
source "$script"

(
  makeDemoHome || fail "no home was made"
  [ "$HOME" = "$demoFolder" ] && [ "$PWD" = "$demoFolder" ] || fail "the home is not used"
  for folder in "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME" "$XDG_STATE_HOME" \
    "$XDG_RUNTIME_DIR"; do
    [[ $folder = "$demoFolder"/* ]] || fail "$folder is outside of the home"
  done
  [ "$XAUTHORITY" = "$outside/home/.Xauthority" ] || fail "the display's access file is lost"
  [ -f "$XDG_CONFIG_HOME/Quillmere/Quillmere.conf" ] || fail "there are no settings"
  [ -f "$XDG_DATA_HOME/Quillmere/CatalogCache/cask.json" ] || fail "there is no catalog"
  "$HOME/homebrew/bin/brew" outdated | grep -qx jq || fail "brew does not work"
  [[ $(explainDemo) = *"$demoFolder/homebrew"* ]] || fail "the prefix is not named"
  removeDemoHome
  [ ! -e "$demoFolder" ] || fail "the home is still there"
) || exit 1
[ -z "$(ls -A "$TMPDIR")" ] || fail "something is left behind: $(ls -A "$TMPDIR")"

for other in "" "$outside/home" "$outside/home/quillmere-demo.toolong"; do
  demoFolder=$other
  [ -z "$other" ] || mkdir -p "$other"
  removeDemoHome
  [ -z "$other" ] || [ -d "$other" ] || fail "$other was removed"
done
