# What brew is asked to change, in its own prefix. Read by bin/brew.

beerMug=$(printf '\360\237\215\272')
checkMark=$(printf '\342\234\224\357\270\216')

# lock NAME PATH WHAT: ends where another brew is at work on the same thing.
lock() {
  mkdir -p "$prefix/var/homebrew/locks"
  exec 9>>"$prefix/var/homebrew/locks/$1.lock"
  # Where there is no flock, two at once are left to themselves, as they are on a real disk.
  command -v flock >/dev/null || return 0
  flock -n 9 && return
  tell "Error: $3"
  tell "Please wait for it to finish or terminate it to continue."
  exit 1
}
lockFormula() {
  lock "$1.formula" "$cellar/$1" "$1: A \`brew $operation$names\` process has already locked $cellar/$1."
}

# fetch KIND NAME…: the downloads come one after the other, in a time that many of them share.
fetch() {
  what=$1
  shift
  count=$#
  [ "$count" -gt 0 ] || return 0
  tell "==> Fetching downloads for: $(joined "$@")"
  mkdir -p "$cache/downloads" "$cache/Cask"
  for each; do
    pause $((600 + 1200 / count))
    if [ "$what" = Cask ]; then
      version=$(caskField "$each" 2)
      sparseFile "$cache/Cask/$each--$version.dmg" "$(caskField "$each" 7)"
    else
      version=$(pkgVersion "$each")
      tell "$checkMark Bottle Manifest $each ($version)"
      pause $((300 + 1500 / count))
      sparseFile "$cache/downloads/$each--$version.bottle.tar.gz" $(($(formulaField "$each" 9) / 3 + 1))
    fi
    tell "$checkMark $what $each ($version)"
  done
}

# joined NAME…: "a, b and c".
joined() { say "$*" | awk '{ for (i = 1; i <= NF; i++) printf "%s%s", $i, (i == NF ? "\n" : i == NF - 1 ? " and " : ", ") }'; }

# pour NAME REQUESTED: the keg is made aside and moved, so that none is ever half a keg.
pour() {
  lockFormula "$1"
  version=$(pkgVersion "$1")
  keg=$cellar/$1/$version
  say "==> Pouring $1--$version.bottle.tar.gz"
  mkdir -p "$staging/bin" "$staging/lib"
  pause 1400
  printf '#!/bin/sh\necho "%s %s, of the demo"\n' "$1" "$version" >"$staging/bin/$1"
  chmod +x "$staging/bin/$1"
  sparseFile "$staging/lib/$1.data" "$(formulaField "$1" 9)"
  dependency=true
  [ "$2" != true ] || dependency=false
  sed -e "s/@VERSION@/$version/" -e "s/@REQUEST@/$2/" -e "s/@DEPENDENCY@/$dependency/" \
    -e "s/@TIME@/$(date +%s)/" -e "s,@TAP@,homebrew/core," \
    "$prefix/Library/Homebrew/receipt.json" >"$staging/INSTALL_RECEIPT.json"
  pause 900
  mkdir -p "$cellar/$1" "$prefix/opt" "$prefix/var/homebrew/linked"
  mv "$staging" "$keg"
  for link in "$prefix/opt/$1" "$prefix/var/homebrew/linked/$1"; do
    rm -f "$link"
    ln -s "$keg" "$link"
  done
  rm -f "$prefix/bin/$1"
  ln -s "$keg/bin/$1" "$prefix/bin/$1"
  say "$beerMug  $keg: $(contentsOf "$keg")"
  exec 9>&-
}

# stageCask TOKEN WORD
stageCask() {
  version=$(caskField "$1" 2)
  app=$(caskField "$1" 3 | sed 's/,.*//')
  pause 900
  mkdir -p "$staging" "$caskroom/$1"
  sparseFile "$staging/$app.data" "$(caskField "$1" 7)"
  say "==> Moving App '$app.app' to '$prefix/Applications/$app.app'"
  pause 1500
  mkdir -p "$prefix/Applications/$app.app"
  mv "$staging" "$caskroom/$1/$version"
  say "$beerMug  $1 was successfully $2!"
}

install() {
  mayChange
  if [ "$1" = cask ]; then
    [ ! -d "$caskroom/$2" ] || {
      tell "Warning: Not upgrading $2, the latest version is already installed"
      return
    }
    fetch Cask "$2"
    say "==> Installing Cask $2"
    stageCask "$2" installed
    return
  fi
  if [ -d "$cellar/$2/$(pkgVersion "$2")" ]; then
    tell "Warning: $2 $(pkgVersion "$2") is already installed and up-to-date.
To reinstall $(pkgVersion "$2"), run:
  brew reinstall $2"
    return
  fi
  lockFormula "$2"
  missing=
  for need in $(closure "$2"); do
    [ -d "$cellar/$need" ] || missing="$missing $need"
  done
  pause 600
  say "==> Would install 1 formula:"
  say "$2"
  if [ -n "$missing" ]; then
    say "==> Would install $(counted "$(say $missing | wc -w)" dependency dependencies) for $2:"
    printf '%s\n' $missing
  fi
  fetch Bottle $missing "$2"
  say "==> Installing $2"
  for need in $missing; do
    say "==> Installing $2 dependency: $need"
    pour "$need" false
  done
  [ -z "$missing" ] || say "==> Installing $2"
  pour "$2" true
  cleanupOf "$2"
}

# The old kegs of one formula go when a new one is there.
cleanupOf() {
  say "==> Running \`brew cleanup $1\`..."
  pause 500
  removeOldKegs "$1"
  removeOldDownloads "$1"
}

removeOldKegs() {
  for keg in "$cellar/$1"/*/; do
    keg=${keg%/}
    [ "$keg" = "$(kegOf "$1")" ] || remove "$keg" "$(contentsOf "$keg")"
  done
}

# removeOldDownloads [NAME]: those of versions that are the newest no more.
removeOldDownloads() {
  for download in "$cache"/downloads/"${1-}"*--* "$cache"/Cask/"${1-}"*--*; do
    [ -f "$download" ] || continue
    file=$(basename "$download")
    case $download in
      */Cask/*) newest=$(caskField "${file%%--*}" 2) ;;
      *) newest=$(pkgVersion "${file%%--*}") ;;
    esac
    case $file in
      *"--$newest."*) ;;
      *) [ -n "${1-}" ] && [ "${file%%--*}" != "$1" ] || remove "$download" "$(sizeOf "$download")" ;;
    esac
  done
}

freed=0
remove() {
  say "Removing: $1... ($2)"
  freed=$((freed + $(bytesOf "$1")))
  pause 80
  rm -rf "${1:?}"
}

cleanup() {
  mayChange
  lock cleanup "$prefix" "Another \`brew cleanup\` process is already running."
  pause 800
  for rack in "$cellar"/*/; do
    name=$(basename "$rack")
    [ "$(ls "$rack" | wc -l)" -gt 1 ] || continue
    newest=$(pkgVersion "$name")
    if [ -d "$cellar/$name/$newest" ]; then
      removeOldKegs "$name"
    else
      tell "Warning: Skipping $name: most recent version $newest not installed"
    fi
  done
  for folder in "$caskroom"/*/; do
    for version in "$folder"*; do
      [ "$(basename "$version")" = "$(installedCask "$(basename "$folder")")" ] ||
        remove "$version" "$(contentsOf "$version")"
    done
  done
  removeOldDownloads
  [ "$freed" -eq 0 ] ||
    say "==> This operation has freed approximately $(readable "$freed") of disk space."
}

uninstall() {
  mayChange
  pause 500
  if [ "$1" = cask ]; then
    [ -d "$caskroom/$2" ] || fail "Cask '$2' is not installed."
    say "==> Uninstalling Cask $2"
    pause 900
    say "==> Purging files for version $(installedCask "$2") of Cask $2"
    rm -rf "${caskroom:?}/$2"
    return
  fi
  [ -d "$cellar/$2" ] || fail "No such keg: $cellar/$2"
  keg=$(kegOf "$2")
  users=
  for rack in "$cellar"/*/; do
    case " $(formulaField "$(basename "$rack")" 8) " in
      *" $2 "*) users="$users $(basename "$rack")" ;;
    esac
  done
  if [ -n "$users" ]; then
    tell "Error: Refusing to uninstall $keg
because it is required by $(joined $users), which are currently installed.
You can override this and force removal with:
  brew uninstall --ignore-dependencies $2"
    exit 1
  fi
  say "Uninstalling $keg... ($(contentsOf "$keg"))"
  rm -rf "${cellar:?}/$2"
  rm -f "$prefix/bin/$2" "$prefix/opt/$2" "$prefix/var/homebrew/linked/$2"
}

update() {
  mayChange
  lock update "$prefix" "Another \`brew update\` process is already running."
  tell "==> Updating Homebrew..."
  pause 2600
  if [ -f "$prefix/var/homebrew/updated" ]; then
    say "Already up-to-date."
    return
  fi
  : >"$prefix/var/homebrew/updated"
  say "Updated 2 taps (homebrew/core and homebrew/cask)."
  say "==> Outdated Formulae"
  outdatedFormulae | cut -d ' ' -f 1
  say "==> Outdated Casks"
  outdatedCasks | cut -d ' ' -f 1
}

# upgrade [NAME…]
upgrade() {
  mayChange
  pause 600
  formulae=
  casks=
  if [ $# -eq 0 ]; then
    [ "$kind" = cask ] || formulae=$(outdatedFormulae)
    [ "$kind" = formula ] || casks=$(outdatedCasks)
  fi
  for name; do
    kindOf "$name"
    chooseUpgrade "$meant" "$name"
  done
  list=$(printf '%s\n%s\n' "$formulae" "$casks" | grep .) || return 0
  total=$(say "$list" | wc -l | tr -d ' ')
  say "==> Upgrading $(counted "$total" "outdated package" "outdated packages"):"
  say "$list" | sed 's/ \([^ ]*\)$/ -> \1/'
  fetch Bottle $(say "$formulae" | cut -d ' ' -f 1)
  fetch Cask $(say "$casks" | cut -d ' ' -f 1)
  for name in $(say "$formulae" | cut -d ' ' -f 1); do
    say "==> Upgrading $name"
    say "  $(say "$list" | sed -n "s/^$name \([^ ]*\) /\1 -> /p") "
    requested=true
    ! grep -q '"installed_on_request": false' "$(kegOf "$name")/INSTALL_RECEIPT.json" || requested=false
    pour "$name" "$requested"
    cleanupOf "$name"
  done
  for name in $(say "$casks" | cut -d ' ' -f 1); do
    say "==> Upgrading $name"
    old=$caskroom/$name/$(installedCask "$name")
    stageCask "$name" upgraded
    say "==> Purging files for version $(basename "$old") of Cask $name"
    rm -rf "$old"
  done
  say "==> Upgraded $(counted "$total" "outdated package" "outdated packages")"
}

# Puts a package that is named onto the list of what is upgraded, or says why it is not.
chooseUpgrade() {
  if [ "$1" = cask ]; then
    [ -d "$caskroom/$2" ] || fail "Cask '$2' is not installed."
    found=$(outdatedCasks | grep "^$2 ") || tell "Warning: Not upgrading $2, the latest version is already installed"
    casks=$(printf '%s\n%s\n' "$casks" "$found" | grep .)
    return
  fi
  [ -d "$cellar/$2" ] || fail "$2 not installed"
  lockFormula "$2"
  found=$(outdatedFormulae | grep "^$2 ") || tell "Warning: $2 $(pkgVersion "$2") already installed"
  formulae=$(printf '%s\n%s\n' "$formulae" "$found" | grep .)
}
