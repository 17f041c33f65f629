# What script/play and script/test share. For sourcing.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
program=script/${0##*/}

build_packages=(g++ cmake ninja-build pkg-config libsdl2-dev libcairo2-dev libpango1.0-dev)
font_packages=(fonts-liberation fonts-roboto-unhinted)
virtual_display_packages=(xvfb xdotool imagemagick)

say() { printf '%s: %s\n' "$program" "$*"; }

die() {
  say "$@" >&2
  exit 1
}

# Runs a command whose output matters only if it fails.
quietly() {
  local log status=0
  log=$(mktemp)
  "$@" >"$log" 2>&1 </dev/null || status=$?
  ((status == 0)) || cat "$log" >&2
  rm -f "$log"
  return "$status"
}

is_installed() { dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed; }

# Installs those of the packages that are missing, and leaves apt alone if none is.
install_packages() {
  local package missing=() as_root=()
  for package; do is_installed "$package" || missing+=("$package"); done
  ((${#missing[@]})) || return 0

  command -v apt-get >/dev/null || die "no apt-get here to install what is missing: ${missing[*]}"
  if ((EUID != 0)); then
    command -v sudo >/dev/null || die "neither root nor sudo to install what is missing: ${missing[*]}"
    as_root=(sudo)
  fi
  say "installing ${missing[*]}"
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
  quietly "${as_root[@]}" update && quietly "${as_root[@]}" install -y --no-install-recommends "${missing[@]}" ||
    die "could not install what is missing: ${missing[*]}"
}

# Configures and builds a preset. The presets are found from the root alone.
build() {
  (cd -- "$root" && cmake --preset "$1" && cmake --build --preset "$1")
}
