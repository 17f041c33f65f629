#!/usr/bin/python3
"""The room as a page, in headless browsers, beside the driver:
page_test.py PAGE SCRIPTED_PAGE DRIVER [TEST...]

SCRIPTED_PAGE takes the driver's commands as well, so that what its controls hold can be compared with what
those of the driver hold, control by control."""

import base64
import collections
import hashlib
import itertools
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import time
import unittest

from fontTools.ttLib import TTFont

from browser import PATIENCE, Chromium, Firefox, Site, down, to, up

PAGE, SCRIPTED, DRIVER = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
BUTTONS = ['left', 'right', 'middle']  # that the driver knows
SCREENS = {'Frameprincipale', 'Frame2', 'Frame2BIS', 'Frame3', 'Frame3BIS', 'FRAME5', 'Frame5BIS', 'Frame4',
           'Frame4BIS', 'frame6', 'Frame6bis', 'Frame7'}
# What is heard of every screen: its commands, and after each a line for each thing. And its roles, as a browser
# calls them.
RECORDED = pathlib.Path(__file__).parents[1] / 'recorded/reading.txt'
Thing = collections.namedtuple('Thing', 'x y width height role state name news')
THING = re.compile(r'(\d+) (\d+) (\d+) (\d+) (\w+)(.*?) "(.*?)" "(.*?)"')
ROLES = {'group': 'radiogroup', 'text': 'StaticText', 'picture': 'image', 'button': 'button', 'tile': 'button',
         'option': 'radio', 'bar': 'scrollbar'}
# Of each game, in the order of the menu: the button that starts it. Then what leads back to the menu.
ENTRIES = ('Command44', 'Command8', 'giocodom', 'INICAT', 'GIOCORAM', 'Commah(1)')
EXITS = ('Command55', 'menupok', 'Command5', 'MENUVP', 'FINEDOM', 'MENUDOM', 'FINECA', 'menucat', 'ramesc',
         'MENURAM', 'Command17')


# Keeps what letters are drawn, by the weight of their face.
SPY = '''
    window.letters = {};
    const {fillText} = CanvasRenderingContext2D.prototype;
    CanvasRenderingContext2D.prototype.fillText = function (text, ...place) {
      const weight = {bold: 'bold', 900: 'heavy'}[this.font.split(' ')[0]] ?? 'plain';
      letters[weight] = (letters[weight] ?? '') + text;
      fillText.call(this, text, ...place);
    };'''


# What is at the places of touches below 500; what fingers 1 and 2 do (come down, move, lift, are cancelled, at a
# place on one line, after so many milliseconds), or that half a second goes by; what the room is told.
TOUCHES = (
    ('acts at once', '1down100 1up100', 'down up'),
    ('acts at once', '1down100 1move112 1up112', 'down up'),
    ('acts at once', '1down100 1move113 1up113', ''),
    ('acts at once', '1down100 wait 1up100', 'waited down up'),
    ('can be taken back', '1down100 wait 1move103 1up103', 'down waited move up'),
    ('can be taken back', '1down100 1move112 1move113 1move114 1up115', 'down move move up'),
    ('can be taken back', '1move100 1down100 1cancel100 1move130 wait', 'waited'),
    ('acts at once', '1down100 2down200 1move80 1up80 2move300 wait 2up300', 'enlarge 1.2 150,7>140,7 waited'),
    ('acts at once', '1down100 2down200 1up100 1down100 1up100', 'down up'),
    ('acts at once', '1down100 2down100 2move90 2move110', 'enlarge 10 100,7>95,7 enlarge 1 95,7>105,7'),
    ('can be taken back', '1down100 2cancel200 wait 2down200 1up100 2up200 1down100 1up100', 'down waited back down up'),
    ('nothing', '1down100 1up100 1down123+298 1up123 wait', 'down up enlarge 0 123,7>123,7 waited'),
    ('nothing', '1down100 1up100 1down100 1up100 1down100 1up100', 'down up enlarge 0 100,7>100,7 down up'),
    ('nothing', '1down100 1up100 1down100 1up100+299', 'down up down up'),
    ('nothing', '1down100 1up100 1down124 1up124', 'down up down up'),
    ('acts at once', '1down100 1up100 1down100 1up100', 'down up down up'),
    ('nothing', '1down100 1up100 1down500 1up500 1down100 1up100', 'down up down up down up'),
    ('nothing, not enlarged', '1down100 1up100 1down100 1up100', 'down up down up'),
)


class Native:
    """The driver as a program, with data files of its own."""

    def __init__(self):
        self.data = tempfile.TemporaryDirectory()
        self.open()

    def open(self):
        self.process = subprocess.Popen([DRIVER], cwd=self.data.name, text=True, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE)
        self.answer('start')

    def answer(self, line):
        print(line, file=self.process.stdin, flush=True)
        lines = [self.process.stdout.readline().rstrip('\n')]
        while line == 'dump' and lines[-1] != '.':
            lines.append(self.process.stdout.readline().rstrip('\n'))
        return '\n'.join(lines)

    def end(self):
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait(PATIENCE)

    def reopen(self):
        self.end()
        self.open()

    def close(self):
        self.end()
        self.data.cleanup()

    def files(self):
        return {file.name: file.read_bytes() for file in pathlib.Path(self.data.name).iterdir()}


def play_at_random(native):
    """Plays each game with the driver: the commands, a digest of all that is seen after each, the screens."""
    chance = random.Random(11)
    lines, digests, screens = [], [], set()

    def do(line):
        answer = native.answer(line)
        dump = native.answer('dump')
        lines.append(line)
        digests.append(hashlib.sha256((answer + dump).encode()).hexdigest())
        screens.add(native.answer('screen'))
        return [control.split(' ')[0] for control in dump.split('\n')[:-1]]

    assert native.answer(f'get commpr({len(ENTRIES) + 1}) Visible').startswith('error'), 'a game has no ENTRY'
    for game, entry in enumerate(ENTRIES, start=1):
        for button in BUTTONS:
            do('up ' + button)
        while native.answer('screen') != 'Frameprincipale':
            for exit_button in EXITS:
                do('click ' + exit_button)
        do(f'click commpr({game})')
        on_view = do('click ' + entry)
        for _ in range(600):
            name = chance.choice(on_view)
            on_view = do(chance.choices(
                [f'click {name}', f'over {name}', f'at {chance.randrange(11880)} {chance.randrange(8595)}',
                 'down ' + chance.choice(BUTTONS), 'up ' + chance.choice(BUTTONS),
                 f'scroll {name} {chance.randrange(30)}', f'u {chance.random()}'],
                weights=[70, 10, 5, 4, 6, 4, 1])[0])
    return lines, digests, screens


class ShippedPage(unittest.TestCase):
    """The page as players get it: it can be seen and clicked, and nothing else."""

    # Places clear of captions and pictures; the room lies 44 from the left.
    VIDEOPOKER, NEW_GAME, CHANGE_CARDS = (326, 156), (310, 80), (166, 412)
    GROUND, EMAIL, SITE = (244, 367), (344, 456), (334, 480)

    def setUp(self):
        self.browser = Chromium()
        self.addCleanup(self.browser.quit)
        self.site = self.serve()
        self.browser.open(self.site)

    def tearDown(self):
        self.assertEqual(self.browser.complaints(), [])

    def serve(self):
        site = Site(PAGE)
        self.addCleanup(site.close)
        return site

    def test_a_first_visit(self):
        self.browser.keep()
        self.assertEqual(sorted(self.site.asked), sorted(set(self.site.asked)), 'each file is asked for once')
        asked = self.browser.execute_script('return performance.getEntriesByType("resource").map(({name}) => name)')
        self.assertEqual([address for address in asked if not address.startswith(self.site.address)], [])
        self.assertEqual(self.browser.execute_script('return typeof room'), 'undefined')
        self.browser.execute_script(SPY + """
            window.opened = [];
            HTMLAnchorElement.prototype.click = function () { opened.push(`${this.href} ${this.target} ${this.rel}`); };""")
        style = 'return document.querySelector("canvas").style.cursor'
        self.browser.mouse(to(*self.GROUND), to(self.GROUND[0] + 5, self.GROUND[1]))
        self.assertEqual(self.browser.pixel(*self.GROUND), 'ffc0c0')
        self.assertEqual(self.browser.execute_script('return letters'), {}, 'only a change draws')
        for link in self.EMAIL, self.SITE:
            self.browser.press(*link)
        self.assertEqual(self.browser.execute_script('return opened'),
                         ['mailto:info@tombolario.example  noopener', 'https://www.tombolario.example/ _blank noopener'])
        image = r'image-set\(url\("data:image/png;base64,[^"]+"\) 1x\)'
        self.assertRegex(self.browser.execute_script(style), f'^{image} 12 1, pointer$', 'with its hot spot')
        self.browser.mouse(to(*self.GROUND))
        self.browser.wait(style + " == 'default'")
        self.browser.mouse(to(*self.VIDEOPOKER))
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '0000ff')
        self.browser.press(*self.VIDEOPOKER)
        self.assertEqual(self.browser.pixel(*self.NEW_GAME), 'ffff00')
        self.browser.press(*self.NEW_GAME)
        self.assertEqual(self.browser.pixel(*self.CHANGE_CARDS), 'ffff80')
        self.browser.execute_script("""
            const canvas = document.querySelector('canvas');
            canvas.getContext('2d').clearRect(0, 0, 1000, 1000);
            canvas.dispatchEvent(new Event('contextrestored'));""")
        self.assertEqual(self.browser.pixel(*self.CHANGE_CARDS), 'ffff80', 'what is lost is drawn again')

    def test_a_browser_that_does_not_tell_device_pixels_and_a_face_that_is_late(self):
        self.browser.execute_cdp_cmd('Page.addScriptToEvaluateOnNewDocument', {
            'source': 'delete ResizeObserverEntry.prototype.devicePixelContentBoxSize'})
        site = self.serve()
        site.stalled = 'heavy.woff2'
        self.browser.open(site)
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '00ffff')
        self.assertEqual(self.browser.execute_script('return document.querySelector("canvas").width'), 880)
        self.browser.execute_script(SPY)
        site.stalled = None
        self.assertIn('TOMBOLARIO', self.browser.wait('return letters.heavy'))
        site = self.serve()
        site.refused = '.wasm'
        self.browser.get(site.address)
        self.browser.wait('return getComputedStyle(document.querySelector("#opening .failing")).visibility == "visible"')
        self.assertTrue(self.browser.complaints())

    def test_whatever_the_network_does_the_page_opens_again(self):
        self.browser.keep()
        self.site.stalled = ''
        for file in '', 'index.html', '?source=app':
            self.browser.open(self.site, file)
            self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '00ffff')
        self.browser.execute_script('location = document.querySelector("#guide").href')
        self.browser.wait('return document.querySelector("a[href=\'#ramino\']")').click()
        self.browser.wait('return scrollY > 0 && getComputedStyle(document.querySelector("h2")).color == "rgb(255, 255, 255)"')
        self.site.close()
        self.browser.open(self.site)
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '00ffff')

    def opens_the_new(self):
        self.browser.open(self.site)
        return self.browser.execute_script('return typeof room') == 'object'

    def test_a_new_version_is_fetched_behind_and_opens_next_whole_or_not_at_all(self):
        self.browser.keep()
        for name in '"of another page"', '`tombolario ${location} of old`', '`tombolario ${location} later`':
            self.browser.execute_script(f'return caches.open({name})')
        self.site.directory, self.site.refused, self.site.asked = SCRIPTED, 'tombolario.wasm', []
        self.assertFalse(self.opens_the_new())
        end = time.monotonic() + PATIENCE
        while not any(path.endswith('tombolario.wasm') for path in self.site.asked):
            self.assertLess(time.monotonic(), end)
            time.sleep(0.1)
        self.assertFalse(self.opens_the_new(), 'its module is missing')
        self.site.refused = None
        self.assertFalse(self.opens_the_new())
        self.browser.keep(versions=2)
        self.assertTrue(self.opens_the_new())
        self.assertTrue(self.browser.execute_script('return caches.has("of another page")'))


class ScriptedPage(unittest.TestCase):
    """Whatever happens, the page shows what the driver does."""

    def setUp(self):
        self.native = Native()
        self.addCleanup(self.native.close)
        self.site = Site(SCRIPTED)
        self.addCleanup(self.site.close)

    def start(self, browser):
        self.browser = browser
        self.addCleanup(browser.quit)
        browser.open(self.site)
        self.both('seed 3')

    def both(self, line):
        answer = self.native.answer(line)
        self.assertEqual(self.browser.answer(line), answer, line)
        return answer

    def compare(self, step):
        native, page = self.native.answer('dump').split('\n'), self.browser.answer('dump').split('\n')
        self.assertEqual([line for line in page if line not in native],
                         [line for line in native if line not in page], step)

    def play_hands(self):
        """At three sizes by mouse, finger and keyboard."""
        steps = {'commpr(2)': 'VIDEOPOKER', 'Command8': 'NUOVA PARTITA', 'Command2(0)': 'Segna',
                 'Command3': 'CAMBIA CARTE', 'Command1': 'NUOVA MANO', 'Command5': 'TERMINA', 'MENUVP': "MENU'"}
        for width, height in (880, 573), (500, 900), (844, 390):
            self.browser.resize(width, height)
            self.browser.wait(f'return Math.abs(document.querySelector("canvas").height - {height} * devicePixelRatio) < 1')
            for device in 'mouse', 'finger', 'keyboard':
                for control, name in steps.items():
                    if device == 'keyboard':
                        self.browser.draw()
                        self.browser.walk_to(name)
                        self.press_key(control, 'button', list(steps).index(control))
                    else:
                        act = self.browser.press if device == 'mouse' else self.browser.tap
                        act(*self.browser.where(control))
                        self.native.answer('click ' + control)
                        self.compare(f'{control} by {device} at {width}x{height}')

    def test_hands_in_firefox_and_again_without_a_network(self):
        self.start(Firefox())
        self.play_hands()
        self.browser.keep()
        self.site.close()
        self.native.reopen()
        self.start(self.browser)
        self.play_hands()

    def test_hands_at_a_density_between(self):
        self.start(Chromium(density=1.5))
        self.play_hands()

    def test_a_game_is_stored_or_refused_or_damaged(self):
        self.start(Chromium())
        (pathlib.Path(self.native.data.name) / 'videopoker.dat').write_bytes(100 * b'more')
        self.browser.execute_script("localStorage['tombolario/videopoker.dat'] = btoa('more'.repeat(100))")
        for name in ['commpr(2)', 'Command8', 'Command2(1)', 'Command2(3)', *['Command3', 'Command1'] * 9, 'Command7']:
            self.both('click ' + name)
        self.compare_files()
        self.native.reopen()
        self.browser.open(self.site)
        for name in 'commpr(2)', 'Command9':
            self.both('click ' + name)
        self.assertEqual(self.both('screen'), 'Frame3BIS')
        for harm in ("localStorage['tombolario/videopoker.dat'] = 'not base64!'",
                     "Storage.prototype.getItem = () => { throw new DOMException('no', 'SecurityError'); }"):
            self.browser.open(self.site)
            self.browser.execute_script(harm)
            for name in 'commpr(2)', 'Command9':
                self.browser.answer('click ' + name)
            self.assertEqual(self.browser.answer('get Command9 Enabled'), '0')
            self.assertEqual(self.stored('videopoker.dat'), 'not base64!')

    def stored(self, name):
        return self.browser.execute_script("return localStorage['tombolario/' + arguments[0]]", name)

    def compare_files(self):
        files = self.native.files()
        self.assertTrue(files)
        self.assertEqual({name: base64.b64decode(self.stored(name)) for name in files}, files)

    def focused(self):
        return self.browser.execute_script(
            'const {key, role} = document.activeElement.reading ?? {}; return [key, role]')

    def stops(self):
        """Of the tabulator and of what is out of use, in their order: their controls, and whether it stops there."""
        return self.browser.execute_script('''
            return [...document.querySelectorAll('main [tabindex]')].map(({reading, tabIndex}) => [reading.key, !tabIndex]);''')

    def press_key(self, control, role, step):
        """Presses what has the focus, does the same in the driver, and looks where the focus has gone."""
        screen, stops = self.native.answer('screen'), [key for key, _ in self.stops()]
        at = stops.index(control)
        if role == 'button':
            if step % 3:
                self.browser.key(' ' if step % 2 else 'Enter')
            else:
                self.browser.execute_script('document.activeElement.click()')  # as screen readers do
            self.native.answer('click ' + control)
        elif role == 'radio':
            self.assertEqual(self.native.answer(f'get {control} Value'), '1', 'the tabulator comes to what is chosen')
            self.browser.key('ArrowDown' if step % 2 else 'ArrowUp')
            fellow, _ = self.focused()
            self.assertNotEqual(fellow, control)
            control = fellow
            self.native.answer('click ' + control)
        else:
            value, least, most = (int(self.native.answer(f'get {control} {name}')) for name in ('Value', 'Min', 'Max'))
            key = next(self.keys)
            self.browser.key(key)
            to = {'End': most, 'Home': least, 'ArrowLeft': value - 1, 'ArrowUp': value - 1,
                  'ArrowRight': value + 1, 'ArrowDown': value + 1}[key]
            self.native.answer(f'scroll {control} {to}')
        self.browser.draw()
        self.compare(f'step {step}: {role} {control}')
        if screen != self.native.answer('screen'):
            self.assertTrue(self.browser.execute_script('return document.activeElement.matches("main")'),
                            'another screen is heard from its beginning')
        else:
            usable = dict(self.stops())
            beside = (key for key in [*stops[at + 1:], *reversed(stops[:at])] if usable.get(key))
            self.assertEqual(self.focused()[0], control if control in usable else next(beside))

    def test_every_screen_is_heard_as_recorded_and_looks_as_in_the_window(self):
        browser = Chromium()
        self.addCleanup(browser.quit)
        browser.open(self.site)
        left, top, scale = browser.room()
        self.assertEqual(scale, 1)
        parts = re.split(r'^== \d+ (.*)\n', RECORDED.read_text(), flags=re.M)[1:]
        screen, screens, before = '', set(), {}
        for command, lines in zip(parts[::2], parts[1::2]):
            if command != 'start':
                self.assertEqual(browser.answer(command), 'ok')
                self.native.answer(command)
            browser.execute_script('dispatchEvent(new Event("pointerdown")); room.draw();')  # a press tells what is new
            picture = pathlib.Path(self.native.data.name, 'picture.png')
            self.native.answer(f'shot {picture}')
            difference = browser.difference(base64.b64encode(picture.read_bytes()).decode(), left, top)
            self.assertLess(difference, 30, command)  # Letters are drawn by somebody else.
            head, *lines = lines.splitlines()
            about = head.split('"')[1]
            self.assertEqual(browser.execute_script('return document.querySelector("main").ariaLabel'), about)
            things = [Thing(*THING.match(line).groups()) for line in lines]
            places = [[int(twips) // 15 + edge for twips, edge in zip(thing[:4], (left, top, 0, 0))] for thing in things]
            self.assertEqual(browser.elements(), [[place, thing.state, thing.name]
                                                  for place, thing in zip(places, things)], command)
            news = {thing[:4]: thing.news for thing in things if thing.news}
            if screen == (screen := browser.answer('screen')):
                changed = [text for place, text in news.items() if before.get(place) != text]
                self.assertEqual(browser.news(), '. '.join(dict.fromkeys(changed)), command)
            elif command != 'start':
                self.assertEqual(browser.news(), about)
            screens.add(screen)
            before = news
            beside = [('StaticText', text) for text in ('?', browser.news()) if text]  # the guide's link, what is new
            self.assertEqual(sorted(node for node in browser.tree() if node[0] in ROLES.values()),
                             sorted([*beside, *((ROLES[thing.role], thing.name) for thing in things)]), command)
        self.assertEqual(screens, SCREENS)
        self.assertLessEqual({('status', ''), ('link', 'Come si gioca')}, set(browser.tree()))
        self.assertEqual(browser.execute_script('return document.documentElement.lang'), 'it')
        told = browser.news()
        time.sleep(1.1)
        browser.answer(command)
        browser.draw()
        self.assertEqual(browser.news(), told, 'what nobody has pressed changes unheard')

    def test_every_game_by_the_keyboard(self):
        self.start(Chromium())
        chance, told, roles = random.Random(3), set(), set()
        self.keys = itertools.cycle(['End', 'ArrowLeft', 'Home', 'ArrowRight', 'ArrowUp', 'ArrowDown'])
        for game, entry in enumerate(ENTRIES, start=1):
            self.both(f'click commpr({game})')
            self.browser.draw()
            for step in range(30):
                if step == 4:
                    self.both('click ' + entry)
                    for _ in range(80):  # towards the middle of the game
                        on_view = {line.split(' ')[0] for line in self.native.answer('dump').split('\n')[:-1]}
                        self.both('click ' + chance.choice(sorted(on_view.difference(EXITS))))
                    self.browser.draw()
                for _ in range(chance.randrange(1, 12)):
                    self.browser.key('Tab')
                    control, role = self.focused()
                    if role in {'radio', 'scrollbar'}:
                        break
                if control is not None and control not in EXITS:
                    self.press_key(control, role, step)
                    told.add(self.browser.news())
                    roles.add(role)
            self.leave(lambda line: self.both(line))
        self.assertGreater(len(told), 50, 'what a press changes is told')
        self.assertEqual(roles, {'button', 'radio', 'scrollbar'})
        for line in 'click commpr(3)', 'click giocodom', 'seed 63', 'click FINEDOM', 'click giocodom':
            self.both(line)
        self.browser.draw()
        self.browser.execute_script('''
            [...document.querySelectorAll('main *')].find(({reading}) => reading.key === 'LEF(3)').focus();''')
        self.press_key('LEF(3)', 'button', 1)
        self.assertEqual(self.native.answer('get LEF(3) Visible'), '0', 'what is pressed is gone')

    def leave(self, do):
        """For the main menu."""
        while self.native.answer('screen') != 'Frameprincipale':
            for exit_button in EXITS:
                do('click ' + exit_button)

    def test_the_other_buttons_and_a_press_that_is_taken_away(self):
        self.start(Chromium())
        for game, button, back in (('commpr(3)', 'right', 'MENUDOM'), ('commpr(6)', 'middle', 'Command17'),
                                   ('commpr(4)', 'back', 'menucat'), ('commpr(1)', 'forward', 'menupok')):
            self.browser.press(*self.browser.where(game), button)
            self.native.answer('click ' + game)
            self.compare(f'{game} by the {button} button')
            self.both('click ' + back)
        self.both('click commpr(2)')
        x, y = self.browser.where('Command8')
        self.browser.mouse(to(x, y), down(), to(20, 20), up())
        self.assertEqual(self.browser.answer('screen'), 'Frame3')
        # A release that nobody told, a press that is taken away, another pointer.
        for event, pointer, screen in (('pointermove', 1, 'Frame3'), ('pointercancel', 1, 'Frame3'),
                                       ('pointermove', 2, 'Frame3BIS')):
            self.browser.mouse(to(x, y), down())
            self.browser.execute_script('''
                const [type, pointerId, clientX, clientY] = arguments;
                document.querySelector('canvas').dispatchEvent(
                  new PointerEvent(type, {pointerId, isPrimary: true, clientX, clientY}));''', event, pointer, x, y)
            self.browser.mouse(up())
            self.assertEqual(self.browser.answer('screen'), screen, event)
        self.browser.answer('click Command5')
        self.assertFalse(self.browser.execute_script('''
            return document.querySelector('canvas').dispatchEvent(new MouseEvent('contextmenu', {cancelable: true}));'''))
        self.browser.draw()
        self.browser.walk_to('NUOVA PARTITA')
        for modifier in 'ctrlKey', 'altKey', 'metaKey':
            self.browser.execute_script('''
                for (const type of ['keydown', 'keyup']) {
                  const event = new KeyboardEvent(type, {key: 'Enter', bubbles: true, [arguments[0]]: true});
                  document.activeElement.dispatchEvent(event);
                }''', modifier)
        self.browser.key('Enter', 'keyDown')
        self.browser.execute_script('dispatchEvent(new Event("blur"))')
        self.browser.key(' ', 'keyDown')
        self.assertEqual(self.browser.answer('screen'), 'Frame3', 'a button waits for the release')
        self.browser.key(' ', 'keyUp')
        self.assertEqual(self.browser.answer('screen'), 'Frame3BIS')

    def test_what_a_touch_tells_the_room(self):
        browser = Chromium()
        self.addCleanup(browser.quit)
        browser.open(self.site)
        told = browser.execute_script('''
            const {openTouch} = await import(new URL('touch.js', document.querySelector('script').src));
            return Promise.all(arguments[0].map(async ([at, steps]) => {
              const told = [];
              const touch = openTouch({
                press: ({type}) => told.push(type.slice(7)),
                takeBack: () => told.push('back'),
                enlarge: (times, from, to) => told.push(`enlarge ${times} ${from.x},${from.y}>${to.x},${to.y}`),
                enlarged: () => at !== 'nothing, not enlarged',
                pressAt: ({x}) => x < 500 ? at.split(',')[0] : 'acts at once',
              });
              let timeStamp = 0;
              for (const step of steps.split(' ')) {
                const [, finger, type, x, later] = step.match(/(\\d)?([a-z]+)(\\d+)?[+]?(\\d+)?/);
                if (finger) {
                  timeStamp += Number(later ?? 1);
                  touch({type: `pointer${type}`, pointerId: finger, isPrimary: finger === '1', timeStamp,
                         clientX: Number(x), clientY: 7});
                } else {
                  await new Promise((done) => setTimeout(done, 510));
                  told.push('waited');
                }
              }
              return told.join(' ');
            }));''', TOUCHES)
        self.assertEqual(told, [expected for *_, expected in TOUCHES])
        self.assertEqual(browser.complaints(), [])

    def test_two_fingers_enlarge_and_press_nothing(self):
        self.start(Chromium())
        self.browser.execute_cdp_cmd('Emulation.setTouchEmulationEnabled', {'enabled': True})
        hint = 'return getComputedStyle(document.querySelector("#turn")).display'
        for width, height, told in (390, 844, 'block'), (844, 390, 'none'), (660, 573, 'none'):
            self.browser.resize(width, height, density=3)
            self.browser.wait(f'return document.querySelector("canvas").width == {3 * width}')
            self.assertEqual(self.browser.execute_script(hint), told)
            fitting = left, top, scale = self.browser.room()
            link = self.browser.find_element('id', 'guide').rect
            self.assertTrue(link['x'] >= left + 792 * scale - 1 or link['y'] >= top + 573 * scale - 1, 'beside the room')
            x, y = self.browser.where('commpr(2)')
            for reach in 30, 90:
                self.browser.pinch(x, y, reach)
            left, top, enlarged = self.browser.room()
            self.assertAlmostEqual(enlarged, 4 * scale, places=3)
            self.assertTrue(-792 * enlarged + width <= left <= 0 and -573 * enlarged + height <= top <= 0)
            self.assertEqual(self.browser.execute_script(hint), 'none')
            time.sleep(0.6)
            self.assertEqual(self.browser.answer('screen'), 'Frameprincipale')
            x, y = left + 396 * enlarged, top + 156 * enlarged
            self.assertEqual(self.browser.pixel(round(3 * x), round(3 * (y + 14 * enlarged))), '00ffff')
            self.browser.tap(x, y)
            self.assertEqual(self.browser.answer('screen'), 'Frame3')
            for _ in range(2):
                self.browser.tap(x, y + 24 * enlarged)
            self.assertEqual(self.browser.room(), fitting, 'two taps beside the buttons')
            self.browser.pinch(x, y, 90)
            self.browser.walk_to("MENU'")
            self.assertEqual(self.browser.room(), fitting, 'the focus is in sight')
            self.assertEqual(self.browser.answer('click MENUVP'), 'ok')
            self.browser.draw()
            self.browser.pinch(width / 2, height / 2, 90)  # which another size ends

    def test_a_long_random_session_of_all_games(self):
        lines, digests, screens = play_at_random(self.native)
        self.assertEqual(screens, SCREENS)
        self.start(Chromium())
        self.browser.open(self.site)
        self.browser.execute_script(SPY)
        page = self.browser.execute_script("""
            const digest = async (text) => {
              const bytes = await crypto.subtle.digest('SHA-256', new TextEncoder().encode(text));
              return Array.from(new Uint8Array(bytes), (byte) => byte.toString(16).padStart(2, '0')).join('');
            };
            return Promise.all(arguments[0].map((line, i) => {
              if (i % 10 == 0) room.draw();
              return digest(room.answer(line) + room.answer('dump'));
            }));""", lines)
        differing = [line for line, ours, theirs in itertools.zip_longest(lines, digests, page) if ours != theirs]
        self.assertEqual(differing[:1], [], 'the first command after which the page shows something else')
        self.compare_files()
        for face, letters in self.browser.execute_script('return letters').items():
            file, = PAGE.glob(f'*/{face}.woff2')
            self.assertLessEqual(set(map(ord, letters)), set(TTFont(file).getBestCmap()), face)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1] + sys.argv[4:], verbosity=2)
