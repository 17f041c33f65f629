"""A page on a server of its own, and a headless browser that shows it."""

import functools
import json
import pathlib
import sys
import threading
import time

from selenium import webdriver
from selenium.webdriver.chrome.service import Service

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / 'script'))
import serve  # noqa: E402

PATIENCE = 10  # seconds
BITS = {'left': 1, 'right': 2, 'middle': 4, 'back': 8, 'forward': 16}


class Site:
    """A page on a port of its own. What it is asked of, it tells; what ends in `refused` or `stalled`, it answers
    with an error or not yet."""

    def __init__(self, directory):
        self.directory = directory
        self.asked = []
        self.refused = self.stalled = None
        site = self

        class Handler(serve.Handler):
            def do_GET(self):
                site.asked.append(self.path)
                while site.stalled is not None and self.path.endswith(site.stalled):
                    time.sleep(0.02)
                self.directory = str(site.directory)
                if site.refused and self.path.endswith(site.refused):
                    self.send_error(503)
                else:
                    super().do_GET()

        self.server = serve.serve(directory, '127.0.0.1', 0, Handler)
        self.server.daemon_threads = True
        self.address = f'http://127.0.0.1:{self.server.server_port}/'
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def close(self):
        self.server.shutdown()
        self.server.server_close()


class Viewer:
    """What any browser does with the page."""

    def open(self, site, file=''):
        self.execute_script('performance.clearMarks()')
        self.get(site.address + file)
        self.wait("return performance.getEntriesByName('room').length")

    def wait(self, script):
        end = time.monotonic() + PATIENCE
        while not (value := self.execute_script(script)):
            if time.monotonic() > end:
                raise AssertionError(f'not so after {PATIENCE} seconds: {script}')
            time.sleep(0.02)
        return value

    def keep(self, versions=1):
        """Waits until the browser keeps so many versions of the page, and answers from the last."""
        self.wait("""return navigator.serviceWorker.ready.then(async ({installing, waiting, active}) =>
            !installing && !waiting && active.state == 'activated' && (await caches.keys()).length == %d)""" % versions)

    def answer(self, line):
        return self.execute_script('return room.answer(arguments[0])', line)

    def room(self):
        """Where the room lies, left and top in CSS pixels, and how large a pixel of it is."""
        return self.execute_script('''
            const {e, f, a} = new DOMMatrix(getComputedStyle(document.querySelector('main')).transform);
            return [e, f, a];''')

    def where(self, name):
        """The middle of a control in CSS pixels, at the present size of the window."""
        x, y = self.execute_script('return room.centre(arguments[0])', name)
        left, top, scale = self.room()
        return left + x / 15 * scale, top + y / 15 * scale

    def walk_to(self, name):
        """By the tabulator to what is called so, or begins so."""
        for _ in range(120):
            heard = self.execute_script('return document.activeElement.getAttribute("aria-label")')
            if (heard or '').startswith(name):
                return heard
            self.key('Tab')
        raise AssertionError(f'no way leads to {name}')

    def draw(self):
        self.execute_script('room.draw()')

    def news(self):
        return self.execute_script('return document.querySelector("#news").textContent')


class Browser(Viewer, webdriver.Chrome):
    def __init__(self, density=1):
        """With that many device pixels to a CSS pixel."""
        options = webdriver.ChromeOptions()
        options.page_load_strategy = 'none'  # a page that waits for a file is to be seen, too
        options.binary_location = '/usr/bin/chromium'
        for argument in ('headless=new', 'no-sandbox', 'disable-gpu', 'disable-dev-shm-usage', 'disable-quic',
                         'no-first-run', 'disable-background-networking', 'disable-component-update',
                         'disable-sync', f'force-device-scale-factor={density}'):
            options.add_argument('--' + argument)
        options.set_capability('goog:loggingPrefs', {'browser': 'ALL', 'performance': 'ALL'})
        super().__init__(options=options, service=Service('/usr/bin/chromedriver'))
        self.buttons = 0
        self.at = (0, 0)
        self.resize(880, 573)

    def resize(self, width, height, density=0):
        """To that size in CSS pixels, and with that many device pixels to one of them instead of its own."""
        self.execute_cdp_cmd('Emulation.setDeviceMetricsOverride', {
            'width': width, 'height': height, 'deviceScaleFactor': density, 'mobile': False})

    def _mouse(self, kind, button='none'):
        x, y = self.at
        self.execute_cdp_cmd('Input.dispatchMouseEvent', {
            'type': kind, 'x': x, 'y': y, 'button': button, 'buttons': self.buttons, 'clickCount': 1})

    def move(self, x, y):
        """To a place in CSS pixels."""
        self.at = (x, y)
        self._mouse('mouseMoved')

    def down(self, button='left'):
        self.buttons |= BITS[button]
        self._mouse('mousePressed', button)

    def up(self, button='left'):
        self.buttons &= ~BITS[button]
        self._mouse('mouseReleased', button)

    def press(self, x, y, button='left'):
        self.move(x, y)
        self.down(button)
        self.up(button)

    def tap(self, x, y, end='touchEnd'):
        touch = functools.partial(self.execute_cdp_cmd, 'Input.dispatchTouchEvent')
        touch({'type': 'touchStart', 'touchPoints': [{'x': x, 'y': y}]})
        touch({'type': end, 'touchPoints': []})

    def pinch(self, x, y, reach):
        """Two fingers, one after the other, go apart so far from that place."""
        def touch(kind, *fingers):
            points = [{'x': x + way, 'y': y + way, 'id': finger} for finger, way in enumerate(fingers)]
            self.execute_cdp_cmd('Input.dispatchTouchEvent', {'type': kind, 'touchPoints': points})
        touch('touchStart', -10)
        time.sleep(0.35)
        touch('touchStart', -10, 10)
        for way in range(10, reach + 1, 5):
            touch('touchMove', -way, way)
        touch('touchEnd', -reach)
        touch('touchEnd')

    def key(self, key):
        code = {'Tab': 9, 'Enter': 13, ' ': 32, 'ArrowUp': 38, 'ArrowDown': 40}[key]
        for kind in 'rawKeyDown', 'keyUp':
            self.execute_cdp_cmd('Input.dispatchKeyEvent', {
                'type': kind, 'key': key, 'windowsVirtualKeyCode': code})

    def tree(self):
        """What a screen reader is given: role, name and value of all that is in the accessibility tree."""
        nodes = self.execute_cdp_cmd('Accessibility.getFullAXTree', {})['nodes']
        return [tuple(node.get(part, {}).get('value') for part in ('role', 'name', 'value'))
                for node in nodes if not node['ignored']]

    def pixel(self, x, y):
        """The colour of a pixel of the canvas, as RRGGBB, once what has changed is drawn."""
        return self.execute_async_script('''
            const [x, y, done] = arguments;
            const canvas = document.querySelector('canvas');
            requestAnimationFrame(() => requestAnimationFrame(() => {
              const [r, g, b, a] = canvas.getContext('2d').getImageData(x, y, 1, 1).data;
              done(a ? (r * 65536 + g * 256 + b).toString(16).padStart(6, '0') : 'none');
            }));''', x, y)

    def requests(self):
        """The addresses that anything was asked of since the last call."""
        events = [json.loads(entry['message'])['message'] for entry in self.get_log('performance')]
        addresses = [event['params']['request']['url'] for event in events
                     if event['method'] == 'Network.requestWillBeSent']
        return [address for address in addresses if not address.startswith('data:')]

    def complaints(self):
        """All but advice how the test should read pixels."""
        return [entry['message'] for entry in self.get_log('browser')
                if entry['level'] in ('WARNING', 'SEVERE') and entry['source'] != 'rendering']
