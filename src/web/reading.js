// The room for a player who hears it or plays by keyboard: an unseen element over each control in sight, in the
// order of reading. What is done to an element reaches the room as the mouse at its control.

const OPERATED = ['button', 'radio', 'scrollbar'];
const TOLD_AT_ONCE = 12;
const PRESS_TELLS_FOR = 1000; // milliseconds

/// The mouse of the room, by places in its pixels, is opened later: until then nothing can be pressed.
export function openReading(stage, status) {
  let mouse = null;
  let screen = null;
  let held = null; // what a key holds down
  let pressedAt = -Infinity;
  const elements = new Map(); // by the names of their controls

  function make(key, role) {
    const element = document.createElement(role === 'text' ? 'p' : 'div');
    if (role !== 'text') element.setAttribute('role', role);
    element.reading = {key, role, line: null, news: null};
    return element;
  }

  function set(element, attributes) {
    for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  }

  function show(element, parts, x, y, width, height, name) {
    const {role} = element.reading;
    const [enabled, value, min, max] = parts.map(Number);
    Object.assign(element.reading, {x, y, width, height, enabled});
    Object.assign(element.style, {left: `${x}px`, top: `${y}px`, width: `${width}px`, height: `${height}px`});
    if (role === 'text') {
      if (element.textContent !== name) element.textContent = name;
      return;
    }
    set(element, {'aria-label': name});
    if (OPERATED.includes(role)) set(element, {'aria-disabled': !enabled, tabindex: enabled ? 0 : -1});
    if (role === 'radio') set(element, {'aria-checked': value === 1, tabindex: enabled && value === 1 ? 0 : -1});
    if (role === 'scrollbar') {
      set(element, {
        'aria-orientation': height > width ? 'vertical' : 'horizontal',
        'aria-valuenow': value, 'aria-valuemin': min, 'aria-valuemax': Math.max(min, max),
      });
    }
  }

  // The places of an element, in the room or in its group.
  function update(line, key, role, box, group, state, name) {
    let element = elements.get(key);
    if (element && element.reading.role !== role) {
      element.remove();
      element = null;
    }
    element ??= make(key, role);
    elements.set(key, element);
    if (element.reading.line !== line) {
      element.reading.line = line;
      const outer = elements.get(group);
      element.reading.outer = outer ?? stage;
      const [x, y, width, height] = box.map(Number);
      show(element, state, x - (outer?.reading.x ?? 0), y - (outer?.reading.y ?? 0), width, height, name);
    }
    return element;
  }

  // What is at its place stays there: an element that is moved loses the focus.
  function arrange(order) {
    const next = new Map();
    for (const element of order) {
      const {outer} = element.reading;
      const due = next.has(outer) ? next.get(outer) : outer.firstElementChild;
      if (element === due) {
        next.set(outer, due.nextElementSibling);
      } else {
        outer.insertBefore(element, due ?? null);
        next.set(outer, due);
      }
    }
  }

  // Of a focus that is gone: to what stood next to it, on another screen to its beginning.
  function refocus(lost, before, sameScreen) {
    const at = before.indexOf(lost);
    const near = [...before.slice(at + 1), ...before.slice(0, at).reverse()];
    const to = sameScreen && near.find((element) => element.isConnected && element.tabIndex === 0);
    (to || stage).focus();
  }

  function say(text) {
    if (text) status.textContent = status.textContent === text ? `${text}\u00a0` : text;
  }

  function tell(text) {
    const [head, ...lines] = text.trimEnd().split('\n');
    const [screenNow, about] = head.split('\t');
    const sameScreen = screenNow === screen;
    const focused = stage.contains(document.activeElement) ? document.activeElement : null;
    const before = [...stage.querySelectorAll('*')];
    const news = new Set();
    const order = lines.map((line) => {
      const [key, role, x, y, width, height, group, enabled, value, min, max, name, own] = line.split('\t');
      const element = update(line, key, role, [x, y, width, height], group, [enabled, value, min, max], name);
      if (own && element.reading.news !== own) news.add(own);
      element.reading.news = own;
      return element;
    });
    const inSight = new Set(order);
    for (const [key, element] of elements) {
      if (inSight.has(element)) continue;
      elements.delete(key);
      element.remove();
    }
    arrange(order);
    screen = screenNow;
    stage.setAttribute('aria-label', about);
    if (focused && focused !== stage && document.activeElement !== focused) {
      if (focused.isConnected) focused.focus();
      else refocus(focused, before, sameScreen);
    }
    if (performance.now() - pressedAt < PRESS_TELLS_FOR) {
      say(sameScreen ? [...news].slice(0, TOLD_AT_ONCE).join('. ') : about);
    }
  }

  function place(x, y, scale) {
    stage.style.transform = `translate(${x}px, ${y}px) scale(${scale})`;
  }

  // From the left or upper end of the element a share of its length, in the middle of the other side.
  function point(element, share, buttons) {
    let {x, y, outer, width, height} = element.reading;
    x += outer.reading?.x ?? 0;
    y += outer.reading?.y ?? 0;
    const lying = width >= height;
    pressedAt = performance.now();
    mouse.point(x + width * (lying ? share : 0.5), y + height * (lying ? 0.5 : share), buttons);
  }

  function press(element, share = 0.5) {
    point(element, share, 1);
    point(element, share, 0);
  }

  function release() {
    if (!held) return;
    const element = held;
    held = null;
    point(element, 0.5, 0);
  }

  // Its arrows are as long as a bar is thick, or a third of it.
  function scroll(bar, steps) {
    const {width, height} = bar.reading;
    const arrow = Math.min(Math.min(width, height) / Math.max(width, height), 1 / 3) / 2;
    for (let n = Math.abs(steps); n > 0; --n) press(bar, steps > 0 ? 1 - arrow : arrow);
  }

  function choose(option, step) {
    const options = [...option.parentElement.children];
    const fellow = options[(options.indexOf(option) + step + options.length) % options.length];
    press(fellow);
    fellow.focus();
  }

  function keyDown(event) {
    const element = event.target;
    const role = element.reading?.role;
    if (!mouse || !OPERATED.includes(role) || event.ctrlKey || event.altKey || event.metaKey) return;
    const step = {ArrowDown: 1, ArrowRight: 1, ArrowUp: -1, ArrowLeft: -1}[event.key];
    const end = {Home: 'aria-valuemin', End: 'aria-valuemax'}[event.key];
    if (step && role === 'radio') {
      choose(element, step);
    } else if ((step || end) && role === 'scrollbar') {
      scroll(element, step ?? element.getAttribute(end) - element.getAttribute('aria-valuenow'));
    } else if (['Enter', ' '].includes(event.key) && role !== 'scrollbar') {
      if (!event.repeat && !held) {
        held = element;
        point(element, 0.5, 1);
      }
    } else {
      return;
    }
    event.preventDefault();
  }

  stage.addEventListener('keydown', keyDown);
  addEventListener('keyup', (event) => {
    if (['Enter', ' '].includes(event.key)) release();
  });
  addEventListener('blur', () => {
    if (!held) return;
    held = null;
    mouse.lose();
  });
  // In an enlarged room the focus may go where nobody sees it.
  stage.addEventListener('focusin', ({target}) => {
    const {left, top, right, bottom} = target.getBoundingClientRect();
    const inSight = left >= 0 && top >= 0 && right <= innerWidth && bottom <= innerHeight;
    if (mouse && target !== stage && !inSight) mouse.showAll();
  });
  // A screen reader's own press.
  stage.addEventListener('click', (event) => {
    if (mouse && ['button', 'radio'].includes(event.target.reading?.role)) press(event.target);
  });
  for (const type of ['pointerdown', 'pointerup']) addEventListener(type, () => (pressedAt = performance.now()));

  return {tell, place, open: (ofRoom) => (mouse = ofRoom)};
}
