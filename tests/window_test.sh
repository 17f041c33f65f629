#!/usr/bin/env bash
# Plays a hand of video poker in the real window, at its own size and at twice that, and looks at what the
# screen shows; then on a Wayland desktop, and on none: tests/window_test.sh PROGRAM DRIVER
set -euo pipefail

die() {
  printf 'window_test: %s\n' "$*" >&2
  exit 1
}
scratch=$(mktemp -d)
. "$(dirname -- "${BASH_SOURCE[0]}")/../script/virtual-display.sh"

program=$(realpath -- "$1")
first_game=(4230 1740)   # commpr(1)
bare_ground=(3000 5500)  # of the main menu, away from every button
email=(4230 6850)        # CLINK(1)
menu=(3990 2160)         # MENUVP
mapfile -t row_tops < <(for row in {0..10}; do echo "get segn($row) Top"; done | "$2")
((${#row_tops[@]} == 11)) || die "the driver does not tell the rows of the pay table"

# Sets `lit` to the numbers of the rows of the pay table that are lit. A row hides the edge of the one
# above, so each is looked at in its middle, left of its words.
look_at_rows() {
  local row colour
  lit=()
  for row in "${!row_tops[@]}"; do
    colour=$(colour_at 7410 $((5055 + row_tops[row] + 120)))
    case $colour in
      0000ff) lit+=("$row") ;;
      ff0000) ;;
      *) lit+=("$row:$colour") ;;
    esac
  done
}
lit_rows_are() {
  look_at_rows
  [[ ${lit[*]} == "$1" ]]
}
one_row_is_lit() {
  look_at_rows
  [[ ${lit[*]} =~ ^[0-9]+$ ]]
}

# frames_show COLOUR...: of the cards 0 to 4.
frames_show() {
  local card=0 colour place
  for colour; do
    frame_of_card "$card"
    must "the frame of card $card" shows "$colour" "${place[@]}"
    card=$((card + 1))
  done
}

marks_are_offered() {
  local card place
  for card in 0 1 2 3 4; do
    mark_of_card "$card"
    must "card $card can be marked" shows ffe0c0 "${place[@]}"
  done
}

# Where a button was there is the ground of the frame, whatever its colour.
marks_are_gone() {
  local card place ground
  for card in 0 1 2 3 4; do
    frame_of_card "$card"
    must "no mark is left on card $card" lacks 808080 "${place[@]}"
    ground=$(colour_at "${place[@]}")
    mark_of_card "$card"
    must "card $card cannot be marked" shows "$ground" "${place[@]}"
  done
}

look_at_scene() {
  case $1 in
    main-menu)
      must "a button at rest" shows 00ffff "${videopoker[@]}"
      point_at "${videopoker[@]}"
      must "the button under the mouse" shows 0000ff "${videopoker[@]}"
      must "the button next to it" shows 00ffff "${first_game[@]}"
      point_at "${bare_ground[@]}"
      must "the button at rest again" shows 00ffff "${videopoker[@]}"
      ;;
    videopoker-menu)
      must "the title" shows 0000ff "${title_bar[@]}"
      ;;
    dealt)
      frames_show dfdfdf dfdfdf dfdfdf dfdfdf dfdfdf
      marks_are_offered
      must "no row is lit" lit_rows_are ""
      ;;
    marked)
      frames_show dfdfdf 808080 dfdfdf 808080 dfdfdf
      ;;
    scored)
      marks_are_gone
      must "one row is lit" one_row_is_lit
      ;;
    *)
      die "a scene that nobody looks at: $1"
      ;;
  esac
}

# Asks the window to close, as the cross in its title bar would. Without a window manager nobody else can:
# the request is a WM_DELETE_WINDOW message, here in the bytes of the X protocol.
ask_to_close() {
  perl -MIO::Socket::UNIX -e '
    use strict;
    my ($display, $window) = @ARGV;
    my $x = IO::Socket::UNIX->new("/tmp/.X11-unix/X$display") or die "no X server: $!\n";
    $x->autoflush(1);
    sub get { read($x, my $bytes, shift) or die "the X server has hung up\n"; $bytes }
    sub atom {
      my $name = shift;
      print $x pack("CxSSx2a*x![4]", 16, 2 + int((length($name) + 3) / 4), length($name), $name);
      unpack("x8L", get(32));
    }
    print $x pack("a1xSSSSx2", "l", 11, 0, 0, 0);
    my ($accepted, $words) = unpack("Cx5S", get(8));
    get(4 * $words);
    die "the X server refuses\n" unless $accepted == 1;
    my @message = (33, 32, 0, $window, atom("WM_PROTOCOLS"), atom("WM_DELETE_WINDOW"), 0);
    print $x pack("CCSLL CCSLLLLx12", 25, 0, 11, $window, 0, @message);
    atom("WM_PROTOCOLS");  # its answer tells that the message is through
  ' "${DISPLAY#:}" "$window"
}
room_has_ended() { ! kill -0 "$room_pid" 2>/dev/null; }

# What the room would start: a session bus, and the desktop's program for addresses.
mkdir "$scratch/bin"
printf '#!/bin/sh\ntouch "%s"\n' "$scratch/bus-was-started" >"$scratch/bin/dbus-launch"
printf '#!/bin/sh\nprintf "%%s\\n" "$1$DBUS_SESSION_BUS_ADDRESS$XCOMPOSEFILE" >>"%s"\n' "$scratch/addresses" >"$scratch/bin/xdg-open"
chmod +x "$scratch"/bin/*
export PATH=$scratch/bin:$PATH
unset DBUS_SESSION_BUS_ADDRESS XCOMPOSEFILE

open_screen
open_room "$program"
must "the main menu" shows ff8000 "${banner[@]}"
[[ ! -e $scratch/bus-was-started ]] || die "the room has started a session bus"
[[ $(xprop -id "$window" _NET_WM_ICON) == *"128 x 128"* ]] || die "the window has no icon"
[[ $(xdotool getwindowname "$window") == Tombolario ]] || die "the window has another name"

# A window that is a pixel too wide has a margin of a pixel, in the colour of the screen.
margin_goes_on() { [[ $(pixel 792 286) == ffc0c0 ]]; }
xdotool windowsize "$window" 793 573
must "the margin goes on with the menu" margin_goes_on
xdotool windowsize "$window" 792 573

# A release where the mouse is already is no move: the link stays at rest.
point_at "${email[@]}"
must "the link under the mouse" shows ff8000 "${email[@]}"
xdotool mousedown 1
must "the pressed link" shows ffff00 "${email[@]}"
xdotool mouseup 1
point_at "${videopoker[@]}"
must "the button under the mouse" shows 0000ff "${videopoker[@]}"
shows ffff00 "${email[@]}" || die "a release has lit the link again"
must "the address is handed out" grep -qx 'mailto:[a-z]*@[a-z.]*' "$scratch/addresses" # and nothing of what SDL was told

# A button at the side of the mouse opens a game, too.
xdotool click 8
must "the menu of video poker" shows ffff00 "${new_game[@]}"
click "${menu[@]}"
must "the main menu again" shows ff8000 "${banner[@]}"

# Another window takes the focus in the middle of a press.
(cd -- "$scratch" && exec "$program") &
thief_pid=$!
thief=$(timeout "$patience" xdotool search --sync --onlyvisible --pid "$thief_pid" | tail -n 1) ||
  die "a second window does not open"
xdotool windowmove --sync "$thief" 850 600 windowfocus --sync "$window"

# A release that comes here for all that is no press, even right after a move.
point_at "${bare_ground[@]}"
xdotool mousedown 1 windowfocus --sync "$thief"
sleep 0.5
locate "${first_game[@]}"
xdotool mousemove "$x" "$y" mouseup 1
point_at "${videopoker[@]}"
must "the button under the mouse" shows 0000ff "${videopoker[@]}"
shows ff8000 "${banner[@]}" || die "a release has opened a game"
xdotool windowfocus --sync "$window"

# One that another window takes never comes; the next click is one all the same.
point_at "${email[@]}"
must "the link under the mouse" shows ff8000 "${email[@]}"
xdotool mousedown 1
must "the pressed link" shows ffff00 "${email[@]}"
xdotool windowfocus --sync "$thief"
sleep 0.5 # the room hears of it
xdotool mousemove 1200 900 mouseup 1
xdotool windowmove --sync "$thief" 100 100
must "the other window covers the room" lacks 00ffff "${videopoker[@]}"
kill -KILL "$thief_pid"
wait "$thief_pid" 2>/dev/null || true
must "what was covered" shows 00ffff "${videopoker[@]}"
click "${videopoker[@]}"
must "the menu of video poker" shows ffff00 "${new_game[@]}"
click "${menu[@]}"

play_one_hand look_at_scene

look_at_rows
row=${lit[*]}
xdotool windowsize "$window" 1584 1146
scale=2
must "the scored hand at twice the size" lit_rows_are "$row"
marks_are_gone
click "${new_hand[@]}"
marks_are_offered
must "no row is lit for the new hand" lit_rows_are ""

# A window of another shape keeps the room in its middle.
xdotool windowsize "$window" 1684 1146
margin_x=50
marks_are_offered
[[ $(pixel 25 573)$(pixel 1659 573) == ffffffffffff ]] || die "the margins do not go on with the table"
mark_of_card 2
click $((place[0] + 1100)) "${place[1]}" # near the right edge: the mouse is off by the margin or hits
frames_show dfdfdf dfdfdf 808080 dfdfdf dfdfdf

ask_to_close
must "the room ends" room_has_ended
status=0
wait "$room_pid" || status=$?
room_pid=
((status == 0)) || die "the room ended with status $status"

# A Wayland desktop that shows the one window as large as itself.
scale=1
margin_x=0
export XDG_RUNTIME_DIR=$scratch/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
weston --backend=x11-backend.so --shell=kiosk-shell.so --width=792 --height=573 --socket=desktop --idle-time=0 \
  --no-config >"$scratch/weston.log" 2>&1 &
weston_pid=$!
must "a Wayland desktop" test -S "$XDG_RUNTIME_DIR/desktop"
env -u DISPLAY -u SDL_VIDEODRIVER WAYLAND_DISPLAY=desktop "$program" 2>"$scratch/complaints" &
room_pid=$!
must "the main menu on Wayland" shows ff8000 "${banner[@]}"
must "its buttons" shows 00ffff "${videopoker[@]}"
grep -i compos "$scratch/complaints" && die "the rules for composing letters are missed"
kill "$room_pid"
must "the room ends on Wayland" room_has_ended
room_pid=

# There without a surface, as SDL is told: it says so.
status=0
env -u DISPLAY -u SDL_VIDEODRIVER WAYLAND_DISPLAY=desktop SDL_FRAMEBUFFER_ACCELERATION=0 timeout "$patience" "$program" \
  2>"$scratch/complaints" || status=$?
((status == 1)) || die "without a surface the room ends with status $status"
grep -q '^Tombolario non può aprire la sua finestra' "$scratch/complaints" || die "it does not say why"
kill "$weston_pid"

status=0
env -u DISPLAY -u SDL_VIDEODRIVER timeout "$patience" "$program" 2>"$scratch/complaints" || status=$?
((status == 1)) || die "without a display the room ends with status $status"
[[ $(<"$scratch/complaints") == "Tombolario non può aprirsi: non c'è uno schermo che risponda." ]] ||
  die "without a display the room says: $(<"$scratch/complaints")"
echo "window_test: passed"
