// Fingers on the room: one of them presses, two enlarge and move. A finger that comes down may be the first of
// two, so it presses only when it is lifted, or moved away or held where a press can still be taken back.

const HELD = 500; // milliseconds
const MOVED = 12; // units of the style sheets
const AGAIN = 300; // milliseconds between the taps of a double tap
const NEAR = 24;

const place = (event) => ({x: event.clientX, y: event.clientY});
const apart = (a, b) => Math.hypot(a.x - b.x, a.y - b.y);
const middle = (a, b) => ({x: (a.x + b.x) / 2, y: (a.y + b.y) / 2});

/// Tells the room of every event of a touch that is to be heard there: a press is told by its own event, late.
export function openTouch(room) {
  const fingers = new Map(); // where they are
  let waiting = null; // the event of a first finger that has not pressed yet
  let timer = 0;
  let two = false; // since a second finger came, until all are lifted
  let lastTap = null;

  function wait(event) {
    waiting = event;
    timer = setTimeout(pressSoon, HELD);
  }

  function forget() {
    clearTimeout(timer);
    waiting = null;
  }

  function press() {
    const event = waiting;
    forget();
    room.press(event);
  }

  function pressSoon() {
    if (room.pressAt(place(waiting)) !== 'acts at once') press();
  }

  function down(event) {
    if (event.isPrimary) {
      fingers.clear();
      two = false;
    }
    fingers.set(event.pointerId, place(event));
    if (fingers.size === 1) return wait(event);
    two = true;
    if (waiting) forget();
    else room.takeBack();
  }

  function move(event) {
    if (!fingers.has(event.pointerId)) return;
    const [a, b] = [...fingers.values()];
    fingers.set(event.pointerId, place(event));
    if (two) {
      const [c, d] = [...fingers.values()];
      if (d) room.enlarge(apart(c, d) / Math.max(1, apart(a, b)), middle(a, b), middle(c, d));
      return;
    }
    if (waiting && apart(place(waiting), place(event)) > MOVED) pressSoon();
    if (!waiting) room.press(event);
  }

  function up(event) {
    fingers.delete(event.pointerId);
    if (two) return;
    const tapped = waiting !== null;
    if (tapped && apart(place(waiting), place(event)) > MOVED) return forget();
    const idle = tapped && room.pressAt(place(waiting)) === 'nothing';
    if (idle && room.enlarged() && lastTap && event.timeStamp - lastTap.timeStamp < AGAIN &&
        apart(place(lastTap), place(event)) < NEAR) {
      forget();
      lastTap = null;
      room.enlarge(0, place(event), place(event));
      return;
    }
    lastTap = idle ? event : null;
    if (tapped) press();
    room.press(event);
  }

  function cancel(event) {
    fingers.delete(event.pointerId);
    if (waiting?.pointerId === event.pointerId) forget();
  }

  const handlers = {pointerdown: down, pointermove: move, pointerup: up, pointercancel: cancel};
  return (event) => handlers[event.type](event);
}
