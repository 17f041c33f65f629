// Opens the room on the page's canvas and brings the pointer to it.
import openModule from './tombolario.js';

const canvas = document.querySelector('canvas');

function play(room) {
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
    canvas.width = width;
    canvas.height = height;
    room._page_fit(page, width, height, width / canvas.clientWidth);
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
    if (event.type === 'pointerdown') canvas.setPointerCapture(event.pointerId);
    const density = canvas.width / canvas.clientWidth;
    room._page_pointer(page, event.clientX * density, event.clientY * density, event.buttons & 31);
    drawSoon();
  }

  function cancel(event) {
    if (event.pointerId !== holder) return;
    end();
    drawSoon();
  }

  for (const type of ['pointermove', 'pointerdown', 'pointerup']) canvas.addEventListener(type, point);
  canvas.addEventListener('pointercancel', cancel);
  // What a browser does by itself: a menu, scrolling, a page back or forward.
  for (const type of ['contextmenu', 'mousedown', 'mouseup', 'auxclick']) {
    canvas.addEventListener(type, (event) => event.preventDefault());
  }
  canvas.addEventListener('contextrestored', () => {
    room._page_forget(page);
    drawSoon();
  });

  // The first call comes before the first frame. Not every browser tells the size in device pixels.
  const exact = 'devicePixelContentBoxSize' in ResizeObserverEntry.prototype;
  new ResizeObserver(([entry]) => {
    const {inlineSize, blockSize} = exact ? entry.devicePixelContentBoxSize[0] : entry.contentBoxSize[0];
    const density = exact ? 1 : devicePixelRatio;
    fit(Math.round(inlineSize * density), Math.round(blockSize * density));
  }).observe(canvas, {box: exact ? 'device-pixel-content-box' : 'content-box'});
}

try {
  // Text is measured and drawn once: by its own faces, or by the system's where they do not come.
  const faces = [...document.fonts].map((face) => face.load().catch(() => {}));
  const [room] = await Promise.all([openModule({canvas}), ...faces]);
  play(room);
  document.querySelector('#opening').remove();
  performance.mark('room');
  navigator.serviceWorker?.register('offline.js').catch(() => {});
} catch (error) {
  document.body.textContent = `Tombolario: la pagina non si apre: ${error.message}`;
  throw error;
}
