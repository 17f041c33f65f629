# What the scripts share. For sourcing.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
program=script/${0##*/}

build_packages=(g++ cmake ninja-build pkg-config libsdl2-dev libcairo2-dev libfontconfig-dev)
font_packages=(fonts-liberation fonts-roboto-unhinted)
virtual_display_packages=(xvfb xdotool imagemagick)
page_packages=(emscripten node-acorn cmake ninja-build python3 python3-fonttools python3-brotli)
browser_packages=(chromium chromium-driver python3-selenium firefox-esr)

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

# Installs those of the packages that are missing, and leaves apt alone if none is. Where that fails, tells
# why in `obstacle` and what apt said in `apt_said`.
try_to_install() {
  local package missing=() as_root=()
  for package; do is_installed "$package" || missing+=("$package"); done
  ((${#missing[@]})) || return 0

  apt_said=
  obstacle="no apt-get here to install what is missing: ${missing[*]}"
  command -v apt-get >/dev/null || return
  if ((EUID != 0)); then
    obstacle="neither root nor sudo to install what is missing: ${missing[*]}"
    command -v sudo >/dev/null || return
    as_root=(sudo)
  fi
  say "installing ${missing[*]}"
  obstacle="could not install what is missing: ${missing[*]}"
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
  apt_said=$("${as_root[@]}" update 2>&1 </dev/null &&
    "${as_root[@]}" install -y --no-install-recommends "${missing[@]}" 2>&1 </dev/null)
}

install_packages() {
  try_to_install "$@" && return
  [[ -z $apt_said ]] || printf '%s\n' "$apt_said" >&2
  die "$obstacle"
}

# Configures and builds a preset. The presets are found from the root alone.
build() {
  (cd -- "$root" && cmake --preset "$1" && cmake --build --preset "$1")
}

# The same for a preset of the page. What Emscripten needs of Node.js, Debian keeps in a place of its own.
build_page() {
  (cd -- "$root" && export NODE_PATH=/usr/share/nodejs && emcmake cmake --preset "$1" && cmake --build --preset "$1")
}
