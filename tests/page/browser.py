"""A page on a server of its own, and the browsers that show it."""

import json
import pathlib
import socket
import subprocess
import sys
import tempfile
import threading
import time

from selenium import webdriver
from selenium.webdriver.chrome.service import Service

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / 'script'))
import serve  # noqa: E402

PATIENCE = 10  # seconds
BUTTONS = {'left': 0, 'middle': 1, 'right': 2, 'back': 3, 'forward': 4}
KEYS = {'Tab': '\ue004', 'Enter': '\ue007', ' ': ' ', 'ArrowUp': '\ue013', 'ArrowDown': '\ue015',
        'ArrowLeft': '\ue012', 'ArrowRight': '\ue014', 'Home': '\ue011', 'End': '\ue010'}


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


def to(x, y):
    return {'type': 'pointerMove', 'x': round(x), 'y': round(y)}


def down(button='left'):
    return {'type': 'pointerDown', 'button': BUTTONS[button]}


def up(button='left'):
    return {'type': 'pointerUp', 'button': BUTTONS[button]}


def pause(milliseconds=0):
    return {'type': 'pause', 'duration': milliseconds}


class Viewer:
    """What any browser does with the page. Places are in CSS pixels."""

    def open(self, site, file=''):
        self.execute_script('performance.clearMarks()')
        self.get(site.address + file)
        self.wait("return performance.getEntriesByName('room').length && document.querySelector('main').style.transform")

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
            !installing && !waiting && active.state == 'activated' &&
            (await caches.keys()).filter((name) => name.startsWith('tombolario ')).length == %d)""" % versions)

    def answer(self, line):
        return self.execute_script('return room.answer(arguments[0])', line)

    def draw(self):
        self.execute_script('room.draw()')

    def room(self):
        """Where the room lies, and how large a pixel of it is."""
        return self.execute_script('''
            const {e, f, a} = new DOMMatrix(getComputedStyle(document.querySelector('main')).transform);
            return [e, f, a];''')

    def where(self, name):
        """The middle of a control, at the present size of the window."""
        x, y = self.execute_script('return room.centre(arguments[0])', name)
        left, top, scale = self.room()
        return left + x / 15 * scale, top + y / 15 * scale

    def point(self, *fingers, kind='touch'):
        """Each does what its list says, all at once, step by step."""
        self.perform([{'type': 'pointer', 'id': f'{kind}{finger}', 'parameters': {'pointerType': kind},
                       'actions': actions} for finger, actions in enumerate(fingers)])

    def mouse(self, *actions):
        self.point(list(actions), kind='mouse')

    def press(self, x, y, button='left'):
        self.mouse(to(x, y), down(button), up(button))

    def tap(self, x, y):
        self.point([to(x, y), down(), up()])

    def pinch(self, x, y, reach):
        """Two fingers go so far apart; the first slides a little, and the second is late."""
        self.point(*[[to(x + way, y + way), *begin, *(to(x + way * part / 10, y + way * part / 10)
                                                      for part in range(10, reach + 1, 5)), up()]
                     for way, begin in ((-10, [down(), to(x, y - 10), pause(600), pause()]), (10, [*[pause()] * 3, down()]))])

    def key(self, key, *parts):
        self.perform([{'type': 'key', 'id': 'keys', 'actions': [{'type': part, 'value': KEYS[key]}
                                                                for part in parts or ('keyDown', 'keyUp')]}])

    def walk_to(self, name):
        """By the tabulator to what is called so, or begins so."""
        for _ in range(120):
            heard = self.execute_script('return document.activeElement.getAttribute("aria-label")')
            if (heard or '').startswith(name):
                return heard
            self.key('Tab')
        raise AssertionError(f'no way leads to {name}')

    def news(self):
        return self.execute_script('return document.querySelector("#news").textContent')

    def pixel(self, x, y):
        """The colour of a pixel of the canvas, as RRGGBB, once what has changed is drawn."""
        return self.execute_script('''
            const [x, y] = arguments;
            return new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(() => {
              const [r, g, b] = document.querySelector('canvas').getContext('2d').getImageData(x, y, 1, 1).data;
              done((r * 65536 + g * 256 + b).toString(16).padStart(6, '0'));
            })));''', x, y)


class Chromium(Viewer, webdriver.Chrome):
    def __init__(self, density=1):
        """With that many device pixels to a CSS pixel."""
        options = webdriver.ChromeOptions()
        options.binary_location = '/usr/bin/chromium'
        options.page_load_strategy = 'none'  # a page that waits for a file is to be seen, too
        for argument in ('headless=new', 'no-sandbox', 'disable-gpu', 'disable-dev-shm-usage', 'disable-quic',
                         'no-first-run', 'disable-background-networking', 'disable-component-update',
                         'disable-sync', f'force-device-scale-factor={density}'):
            options.add_argument('--' + argument)
        options.set_capability('goog:loggingPrefs', {'browser': 'ALL'})
        super().__init__(options=options, service=Service('/usr/bin/chromedriver'))
        self.resize(880, 573)

    def resize(self, width, height, density=0):
        """To that size, and with that many device pixels to a CSS pixel instead of its own."""
        self.execute_cdp_cmd('Emulation.setDeviceMetricsOverride', {
            'width': width, 'height': height, 'deviceScaleFactor': density, 'mobile': False})

    def perform(self, sources):
        self.execute('actions', {'actions': sources})

    def difference(self, picture, left, top):
        """Between a picture of the room and the canvas there: in levels of a colour, where both are shrunk to a
        sixteenth and differ most."""
        return self.execute_script('''
            const [data, left, top] = arguments;
            const bytes = Uint8Array.from(atob(data), (byte) => byte.charCodeAt(0));
            const picture = await createImageBitmap(new Blob([bytes]));
            const shrunk = (image, left, top) => {
              for (const part of [1, 2, 4, 8, 16]) {
                const context = new OffscreenCanvas(784 / part, 560 / part).getContext('2d');
                if (part === 1) context.drawImage(image, -left, -top);
                else context.drawImage(image, 0, 0, 784 / part, 560 / part);
                image = context.canvas;
              }
              return image.getContext('2d').getImageData(0, 0, 49, 35).data;
            };
            const page = shrunk(document.querySelector('canvas'), left, top);
            return Math.max(...shrunk(picture, 0, 0).map((level, i) => Math.abs(level - page[i])));''', picture, left, top)

    def elements(self):
        """All that is told, in its order: its place in the window, its state and its name."""
        return self.execute_script('''
            return [...document.querySelectorAll('main *')].map((element) => {
              const {x, y, width, height} = element.getBoundingClientRect();
              const {ariaDisabled, ariaChecked, ariaOrientation, ariaValueNow, ariaValueMin, ariaValueMax} = element;
              const state = (ariaDisabled === 'true' ? ' off' : '') + (ariaChecked === 'true' ? ' chosen' : '') +
                (ariaOrientation ? ` ${ariaOrientation} ${ariaValueNow} ${ariaValueMin} ${ariaValueMax}` : '');
              return [[x, y, width, height], state, element.ariaLabel ?? element.textContent];
            });''')

    def tree(self):
        """What a screen reader is given: role and name of all that is in the accessibility tree."""
        nodes = self.execute_cdp_cmd('Accessibility.getFullAXTree', {})['nodes']
        return [tuple(node.get(part, {}).get('value') for part in ('role', 'name'))
                for node in nodes if not node['ignored']]

    def complaints(self):
        """All but advice how the test should read pixels, and icons that are not to be had without a network."""
        return [entry['message'] for entry in self.get_log('browser')
                if entry['level'] in ('WARNING', 'SEVERE') and entry['source'] != 'rendering' and
                'from the Manifest' not in entry['message']]


class Firefox(Viewer):
    """By the protocol that it speaks itself: Debian has no driver of it."""

    def __init__(self):
        self.profile = tempfile.TemporaryDirectory()
        place = pathlib.Path(self.profile.name)
        (place / 'user.js').write_text('user_pref("marionette.port", 0);\n')
        self.process = subprocess.Popen(['firefox-esr', '--headless', '--no-remote', '--marionette', '--profile', place],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        port = place / 'MarionetteActivePort'
        end = time.monotonic() + 6 * PATIENCE
        while not (port.exists() and port.read_text()):
            if time.monotonic() > end:
                raise AssertionError('Firefox does not start')
            time.sleep(0.05)
        self.socket = socket.create_connection(('127.0.0.1', int(port.read_text())))
        self.stream = self.socket.makefile('rb')
        self.receive()
        self.do('NewSession', pageLoadStrategy='none')

    def receive(self):
        length = b''
        while not length.endswith(b':'):
            length += self.stream.read(1)
        return json.loads(self.stream.read(int(length[:-1])))

    def do(self, command, **parameters):
        message = json.dumps([0, 1, f'WebDriver:{command}', parameters]).encode()
        self.socket.sendall(str(len(message)).encode() + b':' + message)
        _, _, error, result = self.receive()
        if error:
            raise AssertionError(error['message'])
        return result.get('value')

    def quit(self):
        self.process.terminate()
        self.process.wait(PATIENCE)
        self.stream.close()
        self.socket.close()
        self.profile.cleanup()

    def get(self, address):
        self.do('Navigate', url=address)

    def execute_script(self, script, *arguments):
        return self.do('ExecuteScript', script=script, args=arguments, sandbox=None)

    def resize(self, width, height):
        self.do('SetWindowRect', width=width, height=height)
        inner = self.execute_script('return [innerWidth, innerHeight]')
        self.do('SetWindowRect', width=2 * width - inner[0], height=2 * height - inner[1])

    def perform(self, sources):
        self.do('PerformActions', actions=sources)
