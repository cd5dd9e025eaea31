# What `run` and `test` share. Sourced by bash, with the working directory at the project's root.

# Nothing here asks a question: a closed or absent standard input is as good as any.
exec </dev/null

sayError() { printf '%s\n' "$*" >&2; }

isInstalled() {
  [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# packagesOf GROUP…: the packages of the groups, each once.
packagesOf() {
  local group
  for group in "$@"; do
    sed -n "s/^$group  *\([^ ]*\) .*/\1/p" scripts/packages.txt
  done | sort -u
}

reasonFor() {
  sed -n "/^[a-z]*  *$1 /{s/^[a-z]*  *$1  *//p;q}" scripts/packages.txt
}

canBeRoot() {
  [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null
}

# Runs a command as root: sudo is asked only where we are not root already.
asRoot() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

aptGet() {
  asRoot env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=120 "$@"
}

# Says which of the packages apt does not offer at all, and how to change that.
refuseUnknownPackages() {
  local package unknown=()
  for package in "$@"; do
    if [[ $(LC_ALL=C apt-cache policy "$package") != *"Candidate: "[!\(]* ]]; then
      unknown+=("  $package ($(reasonFor "$package"))")
    fi
  done
  [ ${#unknown[@]} -eq 0 ] && return 0
  sayError "apt knows no package of these names:"
  printf '%s\n' "${unknown[@]}" >&2
  sayError "Debian 12 and 13 have them all in their main section; see that /etc/apt names it."
  return 1
}

# needPackages PURPOSE GROUP…: installs what is missing of the groups; silent when nothing is.
needPackages() {
  local purpose=$1 package missing=()
  shift
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This is no Debian system, so nothing is installed by itself; needed $purpose are the" \
      "equivalents of:" $(packagesOf "$@")
    return 0
  fi
  for package in $(packagesOf "$@"); do
    isInstalled "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing with apt what is missing $purpose: ${missing[*]}." \
    "What each is for stands in scripts/packages.txt."
  if ! canBeRoot; then
    sayError "Installing needs root and there is no sudo here. Run as root, then try again:" \
      "apt-get update && apt-get install --no-install-recommends ${missing[*]}"
    return 1
  fi
  aptGet update || return 1
  refuseUnknownPackages "${missing[@]}" || return 1
  aptGet install --yes --no-install-recommends "${missing[@]}"
}

# configure PRESET [ARGUMENT…]: quiet unless something is wrong.
configure() {
  local preset=$1
  shift
  cmake --preset "$preset" --log-level=WARNING "$@" >/dev/null
}
