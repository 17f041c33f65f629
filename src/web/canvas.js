// What the page's C++ calls of the browser: canvases, the cursor, the stored files and links. The functions
// are declared in browser_canvas.hpp, page.cpp and browser.cpp.
mergeInto(LibraryManager.library, {
  // The contexts by their handles; the page's own canvas is 0.
  $contexts: [],
  $contextOf__deps: ['$contexts'],
  $contextOf: function (canvas) {
    if (canvas === 0 && !contexts[0]) contexts[0] = Module['canvas'].getContext('2d');
    return contexts[canvas];
  },
  $cssColour: function (rgb) {
    return '#' + (0x1000000 + rgb).toString(16).slice(1);
  },
  $cssFont: function (families, weight, em) {
    return weight + ' ' + em + 'px Tombolario,' + UTF8ToString(families);
  },
  $tracePolygon: function (context, points, count) {
    context.beginPath();
    for (let at = points >> 3, end = at + 2 * count; at < end; at += 2) {
      context.lineTo(HEAPF64[at], HEAPF64[at + 1]);
    }
    context.closePath();
  },

  canvas_make__deps: ['$contexts'],
  canvas_make: function (width, height) {
    const canvas = document.createElement('canvas');
    canvas.width = width;
    canvas.height = height;
    let handle = 1;
    while (contexts[handle]) ++handle;
    contexts[handle] = canvas.getContext('2d');
    return handle;
  },
  canvas_free__deps: ['$contexts'],
  canvas_free: function (canvas) {
    contexts[canvas].canvas.width = 0; // Some browsers have little memory for canvases, and give it back late.
    contexts[canvas] = null;
  },
  canvas_start_at__deps: ['$contextOf'],
  canvas_start_at: function (canvas, x, y) {
    const context = contextOf(canvas);
    context.setTransform(1, 0, 0, 1, x, y);
    context.lineJoin = 'round';
    context.textRendering = 'geometricPrecision';
  },
  canvas_fill_rect__deps: ['$contextOf', '$cssColour'],
  canvas_fill_rect: function (canvas, x, y, width, height, rgb) {
    const context = contextOf(canvas);
    context.fillStyle = cssColour(rgb);
    context.fillRect(x, y, width, height);
  },
  canvas_fill_polygon__deps: ['$contextOf', '$cssColour', '$tracePolygon'],
  canvas_fill_polygon: function (canvas, points, count, rgb) {
    const context = contextOf(canvas);
    context.fillStyle = cssColour(rgb);
    tracePolygon(context, points, count);
    context.fill();
  },
  canvas_fill_polygon_gradient__deps: ['$contextOf', '$cssColour', '$tracePolygon'],
  canvas_fill_polygon_gradient: function (
    canvas, points, count, radial, fromX, fromY, toX, toY, colours, colourCount
  ) {
    const context = contextOf(canvas);
    const gradient = radial
      ? context.createRadialGradient(fromX, fromY, 0, fromX, fromY, Math.hypot(toX - fromX, toY - fromY))
      : context.createLinearGradient(fromX, fromY, toX, toY);
    for (let i = 0; i < colourCount; ++i) {
      gradient.addColorStop(i / (colourCount - 1), cssColour(HEAPU32[(colours >> 2) + i]));
    }
    context.fillStyle = gradient;
    tracePolygon(context, points, count);
    context.fill();
  },
  canvas_stroke_polygon__deps: ['$contextOf', '$cssColour', '$tracePolygon'],
  canvas_stroke_polygon: function (canvas, points, count, rgb, width) {
    const context = contextOf(canvas);
    context.strokeStyle = cssColour(rgb);
    context.lineWidth = width;
    tracePolygon(context, points, count);
    context.stroke();
  },
  canvas_fill_ellipse__deps: ['$contextOf', '$cssColour'],
  canvas_fill_ellipse: function (canvas, x, y, radiusX, radiusY, rgb) {
    const context = contextOf(canvas);
    context.fillStyle = cssColour(rgb);
    context.beginPath();
    context.ellipse(x, y, radiusX, radiusY, 0, 0, 2 * Math.PI);
    context.fill();
  },
  canvas_line__deps: ['$contextOf', '$cssColour'],
  canvas_line: function (canvas, fromX, fromY, toX, toY, rgb, width) {
    const context = contextOf(canvas);
    context.strokeStyle = cssColour(rgb);
    context.lineWidth = width;
    context.beginPath();
    context.moveTo(fromX, fromY);
    context.lineTo(toX, toY);
    context.stroke();
  },
  canvas_text__deps: ['$contextOf', '$cssColour', '$cssFont'],
  canvas_text: function (canvas, text, length, families, weight, em, stretch, x, baseline, rgb) {
    const context = contextOf(canvas);
    context.font = cssFont(families, weight, em);
    context.fillStyle = cssColour(rgb);
    context.save();
    context.translate(x, baseline);
    context.scale(1, stretch);
    context.fillText(UTF8ToString(text, length), 0, 0);
    context.restore();
  },
  canvas_text_width__deps: ['$contextOf', '$cssFont'],
  canvas_text_width: function (canvas, text, length, families, weight, em) {
    const context = contextOf(canvas);
    context.font = cssFont(families, weight, em);
    return context.measureText(UTF8ToString(text, length)).width;
  },
  // In ems, measured large: what browsers tell of small letters is rounded. While a face is on its way, another
  // one is measured.
  $capHeights: {},
  canvas_cap_height__deps: ['$capHeights', '$contextOf', '$cssFont'],
  canvas_cap_height: function (canvas, families, weight) {
    const context = contextOf(canvas);
    context.font = cssFont(families, weight, 1000);
    const known = context.font + document.fonts.status;
    capHeights[known] ??= context.measureText('H').actualBoundingBoxAscent / 1000;
    return capHeights[known];
  },
  canvas_copy__deps: ['$contextOf'],
  canvas_copy: function (canvas, from, x, y) {
    contextOf(canvas).drawImage(contextOf(from).canvas, x, y);
  },
  canvas_clip__deps: ['$contextOf'],
  canvas_clip: function (canvas, x, y, width, height) {
    const context = contextOf(canvas);
    context.save();
    context.beginPath();
    context.rect(x, y, width, height);
    context.clip();
  },
  canvas_unclip__deps: ['$contextOf'],
  canvas_unclip: function (canvas) {
    contextOf(canvas).restore();
  },

  cursor_show__deps: ['$contextOf'],
  cursor_show: function (canvas, density, hotX, hotY) {
    const image = 'url(' + contextOf(canvas).canvas.toDataURL() + ')';
    const style = contextOf(0).canvas.style;
    style.cursor = 'pointer'; // for browsers that do not take what follows
    style.cursor = 'image-set(' + image + ' ' + density + 'x) ' + hotX + ' ' + hotY + ', pointer';
  },
  cursor_reset__deps: ['$contextOf'],
  cursor_reset: function () {
    contextOf(0).canvas.style.cursor = 'default';
  },

  // Who makes the module says what is to be done with what is to be heard.
  reading_tell: function (lines) {
    Module['reading'].tell(UTF8ToString(lines));
  },
  reading_place: function (x, y, scale) {
    Module['reading'].place(x, y, scale);
  },

  // A file is kept as base64; what is not cannot be read. Storage that is refused or full throws.
  $storageKey: function (name) {
    return 'tombolario/' + UTF8ToString(name);
  },
  $storedFile: function (key) {
    if (localStorage.getItem(key) === null) localStorage.setItem(key, '');
    return atob(localStorage.getItem(key));
  },
  files_read__deps: ['$storageKey', '$storedFile'],
  files_read: function (name, bytes, count) {
    try {
      const stored = storedFile(storageKey(name)).slice(0, count);
      for (let i = 0; i < stored.length; ++i) HEAPU8[bytes + i] = stored.charCodeAt(i);
      return stored.length;
    } catch {
      return -1;
    }
  },
  files_write__deps: ['$storageKey', '$storedFile'],
  files_write: function (name, bytes, count) {
    try {
      const key = storageKey(name);
      const head = String.fromCharCode.apply(null, HEAPU8.subarray(bytes, bytes + count));
      localStorage.setItem(key, btoa(head + storedFile(key).slice(count)));
      return true;
    } catch {
      return false;
    }
  },

  link_open: function (address) {
    const link = document.createElement('a');
    link.href = UTF8ToString(address);
    if (link.protocol.startsWith('http')) link.target = '_blank';
    link.rel = 'noopener';
    link.click();
  },
});
