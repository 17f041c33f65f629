#!/usr/bin/env bash
# Plays a hand of video poker in the real window, at its own size and at twice that, and looks at what the
# screen shows: tests/window_test.sh PROGRAM
set -euo pipefail

die() {
  printf 'window_test: %s\n' "$*" >&2
  exit 1
}
. "$(dirname -- "${BASH_SOURCE[0]}")/../script/virtual-display.sh"

first_game=(4230 1740)   # commpr(1)
bare_ground=(3000 5500)  # of the main menu, away from every button
row_tops=(0 290 570 800 1050 1310 1560 1810 2070 2330 2560) # segn, in the pay table

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

open_screen
open_room "$1"
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
[[ $(pixel 25 573)$(pixel 1659 573) == 000000000000 ]] || die "the margins are not black"
mark_of_card 2
click $((place[0] + 1100)) "${place[1]}" # near the right edge: the mouse is off by the margin or hits
frames_show dfdfdf dfdfdf 808080 dfdfdf dfdfdf

ask_to_close
must "the room ends" room_has_ended
status=0
wait "$room_pid" || status=$?
room_pid=
((status == 0)) || die "the room ended with status $status"

status=0
env -u DISPLAY -u SDL_VIDEODRIVER timeout "$patience" "$1" 2>/dev/null || status=$?
((status == 1)) || die "without a display the room ends with status $status"
echo "window_test: passed"
