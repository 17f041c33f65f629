#!/usr/bin/env bash
# Installs what was built, looks at what has come, and plays it as its user would: tests/package_test.sh BUILD
set -euo pipefail

die() {
  printf 'package_test: %s\n' "$*" >&2
  exit 1
}
scratch=$(mktemp -d)
. "$(dirname -- "${BASH_SOURCE[0]}")/../script/virtual-display.sh"

# A prefix that only the installation knows.
prefix=$scratch/some\ where
cmake --install "$1" --prefix "$prefix" >"$scratch/install.log" || die "it cannot be installed"
diff - <(cd -- "$prefix" && find . -type f -printf '%m %P\n' | sort -k 2) <<'EOF' || die "not these files came"
755 bin/tombolario
755 libexec/tombolario/tombolario
644 share/applications/tombolario.desktop
644 share/doc-base/tombolario
644 share/doc/tombolario/changelog.gz
644 share/doc/tombolario/copyright
644 share/doc/tombolario/guida.html
644 share/icons/hicolor/scalable/apps/tombolario.svg
644 share/man/it/man6/tombolario.6.gz
644 share/man/man6/tombolario.6.gz
644 share/metainfo/org.example.tombolario.metainfo.xml
EOF

load_game=(3990 1690) # Command9
save_game=(7500 4090) # Command7

export HOME=$scratch/home
unset XDG_DATA_HOME
data=$HOME/.local/share/tombolario

# Opens the room and its menu of video poker.
open_installed() {
  open_room "$prefix/bin/tombolario"
  must "the main menu" shows ff8000 "${banner[@]}"
  click "${videopoker[@]}"
  must "the menu of video poker" shows ffff00 "${new_game[@]}"
}
# Nothing is left in the directory that it was started from.
close_room() {
  kill "$room_pid"
  wait "$room_pid" || die "the room ended with status $?"
  room_pid=
  rmdir -- "$scratch/data"
}
load_saved_game() {
  click "${load_game[@]}"
  must "the saved game" shows ffff80 "${change_cards[@]}"
}

for text in applications/tombolario.desktop doc-base/tombolario man/{,it/}man6/tombolario.6.gz; do
  zgrep -qF "$prefix/share/doc/tombolario/guida.html" "$prefix/share/$text" || die "$text does not lead to the guide"
  [[ $text != man/* ]] || zgrep -qF "$prefix/bin/tombolario" "$prefix/share/$text" || die "$text does not lead to the room"
done

open_screen
open_installed
class=$(sed -n 's/^StartupWMClass=//p' "$prefix/share/applications/tombolario.desktop")
xdotool search --class "^$class\$" | grep -x "$window" >/dev/null || die "the window is not one of the class $class"

[[ $(stat -c %a "$HOME/.local" "$data") == $'700\n700' ]] || die "the directory is open to others"

# A game of 500 points is not lost before its run of hands ends, when it can be saved.
printf '\364\1' >"$data/videopoker.dat"
touch -d yesterday "$data/videopoker.dat" "$scratch/yesterday"
load_saved_game
for _ in {1..9}; do
  click "${change_cards[@]}"
  click "${new_hand[@]}"
done
must "the summary" shows ffff00 "${new_game[@]}"
click "${save_game[@]}"
must "the game is saved" test "$data/videopoker.dat" -nt "$scratch/yesterday"
close_room
open_installed
load_saved_game
close_room

# Where the launcher takes the room, whatever the surroundings, told by a stand-in for the room.
printf '#!/bin/sh\npwd\n' >"$prefix/libexec/tombolario/tombolario"
ln -s "$prefix/bin/tombolario" "$scratch/link"
touch "$scratch/file"
# leads_to DIRECTORY SURROUNDINGS...
leads_to() {
  local place
  place=$(env "${@:2}" "$scratch/link" 2>/dev/null) || die "the launcher fails with ${*:2}"
  [[ $place -ef $1 ]] || die "the launcher leads to $place with ${*:2}"
}
leads_to "$scratch/the data/tombolario" XDG_DATA_HOME="$scratch/the data"
leads_to "$data" XDG_DATA_HOME=relative
leads_to "$data" XDG_DATA_HOME=
leads_to /proc XDG_DATA_HOME="$scratch/file"
leads_to /proc XDG_DATA_HOME=/proc/nothing # not even root can write there
leads_to /proc -u HOME
echo "package_test: passed"
