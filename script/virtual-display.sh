# The room in a real window on a screen that nobody sees, played through real mouse events. For sourcing,
# by a script that defines die(), has `set -euo pipefail` and a directory `scratch`, which goes when the script ends.
#
# Places in the room are in twips, as in the sources, wherever the window shows them.

twips_per_pixel=15
patience=10 # seconds until the room counts as stuck

scale=1    # of the window
margin_x=0 # pixels left of the room in the window
room_pid=
screen_pid=

close_screen() {
  local pid
  for pid in $(jobs -p); do
    # The screen tidies up; what is shown on it may not end by itself once it is gone.
    if [[ $pid == "$screen_pid" ]]; then kill "$pid"; else kill -KILL "$pid"; fi 2>/dev/null || true
  done
  wait 2>/dev/null
  rm -rf -- "$scratch"
}
trap close_screen EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# open_screen [WIDTHxHEIGHT]: large enough by itself for a window of twice the size of the room. The screen goes
# on when nobody looks at it: it would turn away who comes while it starts over.
open_screen() {
  local ready=$scratch/ready number
  mkfifo "$ready"
  Xvfb -noreset -screen 0 "${1-1700x1300}x24" -displayfd 3 3>"$ready" >"$scratch/screen.log" 2>&1 </dev/null &
  screen_pid=$!
  if ! read -r -t "$patience" number <"$ready"; then
    cat "$scratch/screen.log" >&2
    die "the virtual screen does not open"
  fi
  unset WAYLAND_DISPLAY
  export DISPLAY=:$number SDL_VIDEODRIVER=x11
}

# Opens the room of that program in the top left corner of the screen, in a directory of its own.
open_room() {
  local binary
  binary=$(realpath -- "$1")
  mkdir "$scratch/data"
  xdotool mousemove 1699 1299 # or the window would open under the mouse
  (cd -- "$scratch/data" && exec "$binary") &
  room_pid=$!
  window=$(timeout "$patience" xdotool search --sync --onlyvisible --pid "$room_pid" | tail -n 1) ||
    die "the window does not open"
  xdotool windowmove "$window" 0 0
}

# Turns a place in twips into `x` and `y` on the screen.
locate() {
  x=$(($1 * scale / twips_per_pixel + margin_x))
  y=$(($2 * scale / twips_per_pixel))
}

point_at() {
  local x y
  locate "$@"
  xdotool mousemove "$x" "$y"
}

click() {
  point_at "$@"
  xdotool click 1
}

# The colour of a pixel of the screen, as rrggbb. A picture of it has a head of 54 bytes; blue comes first.
pixel() {
  local blue green red
  read -r blue green red < <(maim --hidecursor --format=bmp --geometry="1x1+$1+$2" | od -An -tx1 -j54 -N3)
  printf '%s' "$red$green$blue"
}

# The colour at a place in the room.
colour_at() {
  local x y
  locate "$@"
  pixel "$x" "$y"
}

# shows COLOUR PLACE, lacks COLOUR PLACE: what `must` can wait for.
shows() { [[ $(colour_at "$2" "$3") == "$1" ]]; }
lacks() {
  local colour
  colour=$(colour_at "$2" "$3")
  [[ $colour =~ ^[0-9a-f]{6}$ && $colour != "$1" ]]
}

# must WHAT CONDITION...: waits until the condition holds.
must() {
  local what=$1 deadline=$((SECONDS + patience))
  shift
  until "$@"; do
    ((SECONDS < deadline)) || die "not so after $patience seconds: $what ($*)"
    sleep 0.02
  done
}

# Places clear of captions, pictures and edges. Those of a card take its number, 0 to 4.
banner=(300 300)                                            # Label4
videopoker=(4230 2340)                                      # commpr(2)
title_bar=(300 180)                                         # LVIDPOK
new_game=(3990 1200)                                        # Command8
new_hand=(1830 5580)                                        # Command1
change_cards=(1830 6180)                                    # Command3
frame_of_card() { place=($((1560 + 1800 * $1 + 150)) 1290); }  # Frame1
mark_of_card() { place=($((1560 + 1800 * $1 + 345)) 3780); }   # Command2

# Plays a hand of video poker from the main menu to its score, with the cards 1 and 3 changed. Calls
# `EACH_SCENE main-menu` and so on when the scene has come: main-menu, videopoker-menu, dealt, marked,
# scored.
play_one_hand() {
  local each_scene=$1 place card
  must "the main menu" shows ff8000 "${banner[@]}"
  "$each_scene" main-menu

  click "${videopoker[@]}"
  must "the menu of video poker" shows ffff00 "${new_game[@]}"
  "$each_scene" videopoker-menu

  click "${new_game[@]}"
  must "the table" shows ffff80 "${change_cards[@]}"
  "$each_scene" dealt

  for card in 1 3; do
    mark_of_card "$card"
    click "${place[@]}"
    frame_of_card "$card"
    must "card $card is marked" shows 808080 "${place[@]}"
  done
  "$each_scene" marked

  click "${change_cards[@]}"
  mark_of_card 0
  must "the hand is scored" lacks ffe0c0 "${place[@]}"
  "$each_scene" scored
}
