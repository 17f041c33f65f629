# What the scripts share. For sourcing.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
program=script/${0##*/}

build_packages=(g++ cmake ninja-build pkg-config libsdl2-dev libcairo2-dev libfontconfig-dev)
font_packages=(fonts-liberation fonts-roboto-unhinted)
virtual_display_packages=(xvfb xdotool maim)
page_packages=(emscripten node-acorn cmake ninja-build python3 python3-fonttools python3-brotli)
browser_packages=(chromium chromium-driver python3-selenium firefox-esr)

# A script's own files, which go when it ends.
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
trap 'echo; exit 130' INT # Else an interrupted command counts as one that has failed.

say() { printf '%s: %s\n' "$program" "$*"; }

die() {
  say "$@" >&2
  exit 1
}

# follow LOG COMMAND...: runs a command with what it prints in a file; on a terminal, a line tells how far it has come.
follow() {
  local log=$1
  shift
  if [[ -t 1 && ${TERM-dumb} != dumb ]]; then
    "$@" 2>&1 </dev/null | tee -- "$log" | show_last_line
  else
    "$@" >"$log" 2>&1 </dev/null
  fi
}

# Of apt's lines those that count tell how far it has come: KIND:NAME:PERCENT:WHAT.
show_last_line() {
  local line
  while IFS= read -r line; do
    if [[ $line =~ ^(dl|pm)status:.*:([0-9]+)[.0-9]*:([^:]*)$ ]]; then
      line="${BASH_REMATCH[2]}% ${BASH_REMATCH[3]}"
    fi
    printf '\r\e[K\e[?7l%s\e[?7h' "$program: ${doing:+$doing: }${line//[[:cntrl:]]/ }"
  done
  printf '\r\e[K'
}

# Runs a command whose output matters only if it fails.
quietly() {
  local log=$scratch/log status=0
  follow "$log" "$@" || status=$?
  ((status == 0)) || cat "$log" >&2
  return "$status"
}

is_installed() { dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed; }

# Installs those of the packages that are missing, and leaves apt alone if none is. Where that fails, tells
# why in `obstacle`.
try_to_install() {
  local package missing=() fetched=$scratch/fetched status=0
  for package; do is_installed "$package" || missing+=("$package"); done
  ((${#missing[@]})) || return 0

  obstacle="no apt-get here to install what is missing: ${missing[*]}"
  command -v apt-get >/dev/null || return
  install_missing || status=$?
  rm -rf -- "$fetched"
  return "$status"
}

# Part of the above. The lists of the packages are fetched to a place of its own, which needs no rights, so that what
# is to come can be told before it is asked for; neither they nor the fetched packages stay.
install_missing() {
  local by_hand="apt-get update && apt-get install --no-install-recommends ${missing[*]}"
  local install=(install --no-install-recommends "${missing[@]}") as_root=() waiting=
  local apt=(env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -q -y -o "Dir::State::Lists=$fetched/lists"
    -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= -o Acquire::Languages=none
    -o APT::Keep-Downloaded-Packages=false)

  say "to install: ${missing[*]}"
  chmod 755 "$scratch" # for apt, which fetches as a user of its own
  mkdir -p "$fetched/lists/partial"
  obstacle="the lists of packages cannot be fetched"
  quietly "${apt[@]}" -o APT::Status-Fd=1 update || return
  obstacle="no server that apt knows has these packages, or none answers: ${missing[*]}"
  "${apt[@]}" -o Debug::NoLocking=1 --print-uris "${install[@]}" >"$fetched/plan" 2>&1 || {
    grep '^[EW]:' "$fetched/plan" >&2
    return 1
  }
  say "$(awk '/ newly installed/ {n = $3} /^Need to get/ {fetch = $4 " " $5; sub("/.*", "", fetch)}
    /^After this/ {disk = $4 " " $5} END {print n (n == 1 ? " package, " : " packages, ") fetch " to fetch, " disk " on the disk"}' "$fetched/plan")"

  if ((EUID != 0)); then
    obstacle="that takes an administrator, who can run:"$'\n\n'"  $by_hand"$'\n'
    command -v sudo >/dev/null && { sudo -n true 2>/dev/null || sudo -v; } || return
    as_root=(sudo)
  fi
  obstacle="could not install what is missing: ${missing[*]}"
  until follow "$fetched/log" "${as_root[@]}" "${apt[@]}" -o APT::Status-Fd=1 "${install[@]}"; do
    if ! grep -qE 'Could not get lock .*(is held by|temporarily unavailable)' "$fetched/log"; then
      grep -v '^[dp][lm]status:' "$fetched/log" >&2
      return 1
    fi
    [[ $waiting ]] || say "another program is installing packages: waiting for it"
    waiting=yes
    sleep 2
  done
}

install_packages() { try_to_install "$@" || die "$obstacle"; }

# Configures and builds a preset. The presets are found from the root alone.
build() {
  (cd -- "$root" && cmake --preset "$1" && cmake --build --preset "$1")
}

build_page() { build "$1"; }

# What another user has built, CMake could not change.
[[ -w $root ]] || die "$root belongs to $(stat -c %U -- "$root"): nothing can be built there"
for directory in "$root"/build "$root"/build-*; do
  [[ ! -e $directory || -O $directory ]] ||
    die "$directory belongs to $(stat -c '%U (%u)' -- "$directory"): run this as that user, or remove it as root: rm -r ${directory@Q}"
done
