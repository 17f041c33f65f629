// Opens the room on the page's canvas and brings the pointer to it.
import {openReading} from './reading.js';
import openModule from './tombolario.js';
import {openTouch} from './touch.js';

const PATIENCE = 1000; // milliseconds
const canvas = document.querySelector('canvas');

function play(room, reading) {
  const page = room._page_open();

  let frame = 0;
  function drawSoon() {
    if (frame || !room._page_needs_drawing(page)) return;
    frame = requestAnimationFrame(() => {
      frame = 0;
      room._page_draw(page);
    });
  }

  function fit(width, height) {
    document.body.classList.remove('enlarged');
    canvas.width = width;
    canvas.height = height;
    const density = width / canvas.clientWidth;
    const below = parseFloat(getComputedStyle(document.body).paddingBottom);
    room._page_fit(page, width, height, Math.round(below * density), density);
    room._page_draw(page);
  }

  // One pointer at a time: the one that holds a button down, then whichever moves.
  let holder = null;

  // A press that the browser or another program takes away clicks nothing.
  function end() {
    holder = null;
    room._page_lose(page);
  }

  function point(event) {
    if (!event.isPrimary || (holder !== null && event.pointerId !== holder)) return;
    if (holder !== null && (event.type === 'pointerdown' || (event.type === 'pointermove' && !event.buttons))) end();
    holder = event.buttons ? event.pointerId : null;
    if (event.type === 'pointerdown' && event.pointerType !== 'touch') canvas.setPointerCapture(event.pointerId);
    const density = canvas.width / canvas.clientWidth;
    room._page_pointer(page, event.clientX * density, event.clientY * density, event.buttons & 31);
    drawSoon();
  }

  // Lengths are units of the style sheets.
  function enlarge(times, from, to) {
    const density = canvas.width / canvas.clientWidth;
    room._page_enlarge(page, times, from.x * density, from.y * density, to.x * density, to.y * density);
    document.body.classList.toggle('enlarged', room._page_enlarged(page));
    drawSoon();
  }

  const touch = openTouch({
    press: point,
    takeBack() {
      end();
      drawSoon();
    },
    enlarge,
    enlarged: () => room._page_enlarged(page),
    pressAt({x, y}) {
      const density = canvas.width / canvas.clientWidth;
      return ['nothing', 'can be taken back', 'acts at once'][room._page_press_at(page, x * density, y * density)];
    },
  });

  function cancel(event) {
    touch(event);
    if (event.pointerId !== holder) return;
    end();
    drawSoon();
  }

  reading.open({
    point(x, y, buttons) {
      room._page_pointer_in_room(page, x, y, buttons);
      drawSoon();
    },
    lose() {
      end();
      drawSoon();
    },
    showAll() {
      if (room._page_enlarged(page)) enlarge(0, {x: 0, y: 0}, {x: 0, y: 0});
    },
  });

  for (const type of ['pointermove', 'pointerdown', 'pointerup']) {
    canvas.addEventListener(type, (event) => (event.pointerType === 'touch' ? touch : point)(event));
  }
  canvas.addEventListener('pointercancel', cancel);
  // What a browser does by itself: a menu, scrolling, a page back or forward.
  for (const type of ['contextmenu', 'mousedown', 'mouseup', 'auxclick']) {
    canvas.addEventListener(type, (event) => event.preventDefault());
  }
  function drawAgain() {
    room._page_forget(page);
    drawSoon();
  }
  canvas.addEventListener('contextrestored', drawAgain);

  // The first call comes before the first frame. Not every browser tells the size in device pixels.
  const exact = 'devicePixelContentBoxSize' in ResizeObserverEntry.prototype;
  // One that shows another density than it has tells that size of its own.
  const device = (told, length) => {
    const expected = length * devicePixelRatio;
    return Math.round(Math.abs(told - expected) <= 1 ? told : expected);
  };
  new ResizeObserver(([entry]) => {
    const {inlineSize, blockSize} = entry.contentBoxSize[0];
    const told = exact ? entry.devicePixelContentBoxSize[0] : {};
    fit(device(told.inlineSize, inlineSize), device(told.blockSize, blockSize));
  }).observe(canvas, {box: exact ? 'device-pixel-content-box' : 'content-box'});
  return drawAgain;
}

try {
  // The room opens with its own faces, unless they fail or keep it waiting: then with the system's, until they come.
  const faces = Promise.all([...document.fonts].map((face) => face.load().catch(() => {})));
  const reading = openReading(document.querySelector('main'), document.querySelector('#news'));
  const room = await openModule({canvas, reading});
  const waited = await Promise.race([faces, new Promise((tired) => setTimeout(tired, PATIENCE, 'in vain'))]);
  const drawAgain = play(room, reading);
  if (waited === 'in vain') faces.then(drawAgain);
  document.querySelector('#opening').remove();
  performance.mark('room');
  navigator.serviceWorker?.register('offline.js').catch(() => {});
} catch (error) {
  document.body.classList.add('failed');
  throw error;
}
