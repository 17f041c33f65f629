#!/usr/bin/python3
"""The room as a page, in a headless browser, beside the driver:
page_test.py PAGE SCRIPTED_PAGE DRIVER [TEST...]

SCRIPTED_PAGE takes the driver's commands as well, so that what its controls hold can be compared with what
those of the driver hold, control by control."""

import base64
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

from browser import BITS, PATIENCE, Browser, Site
from firefox import Firefox

PAGE, SCRIPTED, DRIVER = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
BUTTONS = ['left', 'right', 'middle']  # that the driver knows
SCREENS = {'Frameprincipale', 'Frame2', 'Frame2BIS', 'Frame3', 'Frame3BIS', 'FRAME5', 'Frame5BIS', 'Frame4',
           'Frame4BIS', 'frame6', 'Frame6bis', 'Frame7'}
# Roles that a player hears the name of.
SAID = {'button', 'radio', 'radiogroup', 'scrollbar', 'image', 'StaticText', 'main'}
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


class PageCase(unittest.TestCase):
    def setUp(self):
        self.start_browser()

    def start_browser(self, density=1):
        self.browser = Browser(density)
        self.addCleanup(self.browser.quit)

    def serve(self, directory):
        self.site = Site(directory)
        self.addCleanup(self.site.close)
        self.browser.open(self.site)

    def tearDown(self):
        self.assertEqual(self.browser.complaints(), [])


class ShippedPage(PageCase):
    """The page as players get it: it can be seen and clicked, and nothing else."""

    # Places clear of captions and pictures, in CSS pixels; the room lies 44 from the left.
    VIDEOPOKER, NEW_GAME, CHANGE_CARDS = (326, 156), (310, 80), (166, 412)
    GROUND, EMAIL, SITE = (244, 367), (344, 456), (334, 480)

    def setUp(self):
        super().setUp()
        self.serve(PAGE)

    def test_a_game_by_the_mouse_and_no_request_but_the_page_itself(self):
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '00ffff')
        self.browser.move(*self.VIDEOPOKER)
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '0000ff')
        self.browser.press(*self.VIDEOPOKER)
        self.assertEqual(self.browser.pixel(*self.NEW_GAME), 'ffff00')
        self.browser.press(*self.NEW_GAME)
        self.assertEqual(self.browser.pixel(*self.CHANGE_CARDS), 'ffff80')
        requests = self.browser.requests()
        self.assertIn(self.site.address, requests)
        self.assertEqual([address for address in requests if not address.startswith(self.site.address)], [])
        self.assertEqual(self.browser.execute_script('return typeof room'), 'undefined')
        self.assertEqual(self.browser.execute_script('return [...document.fonts].map(({status}) => status)'),
                         ['loaded'] * 3)

    def test_only_a_change_draws(self):
        self.browser.execute_script('''
            const fillRect = CanvasRenderingContext2D.prototype.fillRect;
            window.drawn = 0;
            CanvasRenderingContext2D.prototype.fillRect = function (...all) {
              ++drawn;
              fillRect.apply(this, all);
            };''')
        self.browser.move(*self.GROUND)
        self.browser.move(self.GROUND[0] + 5, self.GROUND[1])
        self.assertEqual(self.browser.pixel(*self.GROUND), 'ffc0c0')
        self.assertEqual(self.browser.execute_script('return drawn'), 0)
        self.browser.move(*self.VIDEOPOKER)
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '0000ff')
        self.assertGreater(self.browser.execute_script('return drawn'), 0)

    def test_what_the_browser_has_lost_is_drawn_again(self):
        self.browser.execute_script('''
            const canvas = document.querySelector('canvas');
            canvas.getContext('2d').clearRect(0, 0, 1000, 1000);
            canvas.dispatchEvent(new Event('contextrestored'));''')
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '00ffff')

    def test_the_links_open_as_links(self):
        self.browser.execute_script('''
            window.opened = [];
            HTMLAnchorElement.prototype.click = function () { opened.push(`${this.href} ${this.target}`); };''')
        for link in self.EMAIL, self.SITE:
            self.browser.press(*link)
        self.assertEqual(self.browser.execute_script('return opened'),
                         ['mailto:info@tombolario.example ', 'https://www.tombolario.example/ _blank'])

    def test_the_cursor_points_with_its_hot_spot(self):
        style = 'return document.querySelector("canvas").style.cursor'
        self.browser.move(*self.EMAIL)
        image = r'image-set\(url\("data:image/png;base64,[^"]+"\) 1x\)'
        self.assertRegex(self.browser.execute_script(style), f'^{image} 12 1, pointer$')
        self.browser.move(*self.GROUND)
        self.assertEqual(self.browser.execute_script(style), 'default')
        self.browser.move(*self.EMAIL)
        self.browser.resize(880, 700)
        self.browser.wait('return document.querySelector("canvas").height == 700')
        self.browser.move(*self.GROUND)
        self.assertEqual(self.browser.execute_script(style), 'default')

    def test_a_browser_that_does_not_tell_device_pixels(self):
        self.browser.execute_cdp_cmd('Page.addScriptToEvaluateOnNewDocument', {
            'source': 'delete ResizeObserverEntry.prototype.devicePixelContentBoxSize'})
        self.browser.open(self.site)
        self.assertEqual(self.browser.pixel(*self.VIDEOPOKER), '00ffff')
        self.assertEqual(self.browser.execute_script('return document.querySelector("canvas").width'), 880)

    def test_a_first_visit_asks_for_each_file_once(self):
        self.browser.keep()
        self.assertEqual(sorted(self.site.asked), sorted(set(self.site.asked)))

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

    def test_a_face_that_is_late_is_drawn_when_it_comes(self):
        site = Site(PAGE)
        self.addCleanup(site.close)
        site.stalled = 'heavy.woff2'
        self.browser.open(site)
        self.browser.execute_script(SPY)
        self.assertEqual(self.browser.execute_script('return letters.heavy'), None)
        site.stalled = None
        self.assertIn('TOMBOLARIO', self.browser.wait('return letters.heavy'))

    def opens_the_new(self):
        self.browser.open(self.site)
        return self.browser.execute_script('return typeof room') == 'object'

    def test_a_new_version_is_fetched_behind_and_opens_next_whole_or_not_at_all(self):
        self.browser.keep()
        self.site.directory, self.site.refused, self.site.asked = SCRIPTED, 'tombolario.wasm', []
        self.assertFalse(self.opens_the_new())
        while not any(path.endswith('tombolario.wasm') for path in self.site.asked):
            self.browser.wait('return true')
        self.assertFalse(self.opens_the_new(), 'its module is missing')
        self.site.refused = None
        self.assertFalse(self.opens_the_new())
        self.browser.keep(versions=2)
        self.assertTrue(self.opens_the_new())


class BesideTheDriver(unittest.TestCase):
    """Whatever happens, `browser` shows what the driver `native` does."""

    def setUp(self):
        self.native = Native()
        self.addCleanup(self.native.close)

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
        self.both('seed 3')
        steps = {'commpr(2)': 'VIDEOPOKER', 'Command8': 'NUOVA PARTITA', 'Command2(0)': 'Segna',
                 'Command3': 'CAMBIA CARTE', 'Command1': 'NUOVA MANO', 'Command5': 'TERMINA', 'MENUVP': "MENU'"}
        for width, height in (880, 573), (500, 900), (844, 390):
            self.browser.resize(width, height)
            self.browser.wait(f'return innerHeight == {height} && document.querySelector("canvas").height == {height}')
            for device in 'mouse', 'finger', 'keyboard':
                for control, name in steps.items():
                    if device == 'keyboard':
                        self.browser.draw()
                        self.browser.walk_to(name)
                        self.browser.key('Enter')
                    else:
                        act = self.browser.press if device == 'mouse' else self.browser.tap
                        act(*self.browser.where(control))
                    self.native.answer('click ' + control)
                    self.compare(f'{control} by {device} at {width}x{height}')


class InFirefox(BesideTheDriver):
    def setUp(self):
        super().setUp()
        self.browser = Firefox()
        self.addCleanup(self.browser.quit)
        self.site = Site(SCRIPTED)
        self.addCleanup(self.site.close)
        self.browser.open(self.site)

    def test_hands_at_any_size_by_any_device_and_again_without_a_network(self):
        self.play_hands()
        self.browser.keep()
        self.site.close()
        self.browser.open(self.site)
        self.native.reopen()
        self.play_hands()


class ScriptedPage(BesideTheDriver, PageCase):
    def setUp(self):
        super().setUp()
        self.start_browser()
        self.serve(SCRIPTED)

    def test_hands_at_any_size_by_any_device(self):
        self.play_hands()

    def click(self, *names):
        """Clicks with the mouse in the page, and by command in the driver."""
        for name in names:
            self.browser.press(*self.browser.where(name))
            self.assertEqual(self.native.answer('click ' + name), 'ok')
            self.compare(name)

    def stored(self, name):
        value = self.browser.execute_script("return localStorage['tombolario/' + arguments[0]]", name)
        return base64.b64decode(value)

    def compare_files(self):
        files = self.native.files()
        self.assertTrue(files)
        self.assertEqual({name: self.stored(name) for name in files}, files)

    def play_to_the_summary(self):
        self.both('seed 3')
        self.click('commpr(2)', 'Command8', 'Command2(1)', 'Command2(3)')
        for _ in range(9):
            self.click('Command3', 'Command1')
        self.assertEqual(self.both('get Command7 Enabled'), '1', 'enough is left to save')

    def test_a_game_is_played_saved_and_taken_up_after_a_reload(self):
        self.play_to_the_summary()
        self.click('Command7')
        self.compare_files()
        self.browser.open(self.site)
        self.native.reopen()
        self.click('commpr(2)', 'Command9')
        self.assertEqual(self.both('screen'), 'Frame3BIS')

    def test_storage_that_is_full_or_refused_or_damaged_harms_nothing(self):
        self.play_to_the_summary()
        self.browser.execute_script(
            "localStorage['tombolario/videopoker.dat'] = btoa('\\x63\\0, and more');"
            "Storage.prototype.setItem = () => { throw new DOMException('full', 'QuotaExceededError'); }")
        self.click('Command7')
        self.assertEqual(self.stored('videopoker.dat'), b'c\0, and more')
        for refused in ("localStorage['tombolario/videopoker.dat'] = 'not base64!'",
                        "Storage.prototype.getItem = () => { throw new DOMException('no', 'SecurityError'); }"):
            self.browser.open(self.site)
            self.browser.execute_script(refused)
            self.browser.press(*self.browser.where('commpr(2)'))
            self.browser.press(*self.browser.where('Command9'))
            self.assertEqual(self.browser.answer('screen'), 'Frame3')
            self.assertEqual(self.browser.answer('get Command9 Enabled'), '0')
            self.assertEqual(self.browser.execute_script("return localStorage['tombolario/videopoker.dat']"),
                             'not base64!')

    def press(self, key='Enter', **names):
        """Walks to each name and presses a key there, and clicks its control in the driver."""
        for control, name in names.items():
            control = re.sub(r'_(\d+)$', r'(\1)', control)
            self.browser.walk_to(name)
            self.browser.key(key)
            self.assertEqual(self.native.answer('click ' + control), 'ok')
            self.browser.draw()
            self.compare(control)
            tree = self.browser.tree()
            self.assertEqual([node for node in tree if node[0] in SAID and not node[1]], [], control)
            self.assertTrue([node for node in tree if node[0] == 'button'])

    def test_every_game_by_the_keyboard_and_the_accessibility_tree(self):
        self.both('seed 3')
        self.press(commpr_1='POKER')
        self.browser.walk_to('Per configurazione')
        self.browser.key('ArrowDown')
        self.native.answer('click Op1')
        self.compare('the arrow chooses the other option')
        self.press(Command44='GIOCO', Command22_0='Segna')
        self.assertIn('segnata', self.browser.news())
        self.assertTrue(self.browser.walk_to('Segna').endswith('segnata'), 'the focus stays')
        self.press(Command33='CAMBIA CARTE')
        self.assertRegex(self.browser.news(), 'fondo verde.*COMPUTER: coppia 2')
        self.press(Command55='EXIT', menupok="MENU'")
        self.press(commpr_2='VIDEOPOKER', Command8='NUOVA PARTITA', Command2_0='Segna', Command3='CAMBIA CARTE',
                   Command1='NUOVA MANO', Command5='TERMINA', MENUVP="MENU'", key=' ')
        self.press(commpr_3='DOMINO', giocodom='GIOCO')
        for slot, (array, end) in itertools.product(range(1, 15), (('LEF', 'sx'), ('RIGHT', 'dx'))):
            self.browser.key('Tab')
            self.press(**{f'{array}_{slot}': end})
            if 'PEDINE, HUMAN: 13' in self.browser.news():
                break
        self.press(Commdomban='SCELTA COMPUTER')
        self.assertIn('capo', self.browser.news())
        self.press(FINEDOM='FINE', MENUDOM="MENU'", commpr_4='DOMINO/POKER', INICAT='NUOVA PARTITA',
                   Comscam_1='SCAMBIO', Comsost_1='SOSTITUZIONE', nmcat='NUOVA MANO', FINECA='FINE')
        self.press(menucat="MENU'", commpr_5='RAMINO', GIOCORAM='GIOCO')
        self.assertIn(('scrollbar', 'scarti', 0), self.browser.tree(), 'with nothing to scroll, too')
        self.press(mazzoram='MAZZO', ramCom_0='scambia con la carta presa', ramturncom='TURNO DEL COMPUTER')
        self.browser.walk_to('scarti')
        self.browser.key('ArrowUp')
        self.native.answer('scroll VScrollram1 0')
        self.compare('the arrow moves the bar')
        self.press(ramesc='ESCI', MENURAM="MENU'", commpr_6='MAHJONGG')
        self.take_a_pair()
        self.press(Command17='EXIT')

    def take_a_pair(self):
        """Two tiles of a kind at the ends of their rows, above or below."""
        free = {}
        for _, name, _ in self.browser.tree():
            heard = re.fullmatch(r'(.+), fila (\d+), posto (\d+), fondo (bianco|grigio)', name or '')
            if not heard:
                continue
            kind, row, place, layer = heard[1], int(heard[2]), int(heard[3]), heard[4]
            if place in ((1, 8) if layer == 'grigio' else (3, 6)):
                cell = 8 * row - 8 + place if layer == 'grigio' else 78 + 4 * row - 4 + place
                free.setdefault(kind, []).append((f'Commah_{cell}', name))
        kind, pair = next((kind, tiles[:2]) for kind, tiles in free.items() if len(tiles) > 1)
        self.press(**dict(pair), ELPEDMAH='ELIMINA PEDINE')
        self.assertIn(f'{kind}: 2', self.browser.news())

    def test_any_mixture_of_moves_and_buttons(self):
        self.click('CLINK(1)')
        for game, button, back in (('commpr(3)', 'right', 'MENUDOM'), ('commpr(6)', 'middle', 'Command17'),
                                   ('commpr(4)', 'back', 'menucat'), ('commpr(1)', 'forward', 'menupok')):
            self.browser.press(*self.browser.where(game), button)
            self.native.answer('click ' + game)
            self.compare(f'{game} by the {button} button')
            self.click(back)
        self.click('commpr(5)', 'GIOCORAM')
        chance = random.Random(5)
        for step in range(300):
            button = chance.choice(BUTTONS)
            kind = 'up' if self.browser.buttons & BITS[button] else 'down'
            if step == 0 or chance.random() < 0.5:
                x, y = (chance.randrange(792), chance.randrange(573))
                self.browser.move(x + 44, y)
                self.native.answer(f'at {15 * x} {15 * y}')
            else:
                getattr(self.browser, kind)(button)
                self.native.answer(f'{kind} {button}')
            self.compare(f'step {step}')

    def test_a_window_of_any_size_and_density_and_a_finger(self):
        for density in 1.5, 2:
            self.start_browser(density)
            self.browser.open(self.site)
            for width, height in (1000, 574), (792, 900), (400, 300):
                with self.subTest(density=density, width=width, height=height):
                    self.show_menu(width, height, density)

    def show_menu(self, width, height, density):
        self.browser.resize(width, height)
        self.browser.wait(f'return document.querySelector("canvas").width == {width * density}')
        left, top, scale = self.browser.room()
        link = self.browser.find_element('id', 'guide').rect
        self.assertTrue(link['x'] >= left + 792 * scale - 1 or link['y'] >= top + 573 * scale - 1, 'beside the room')
        self.assertTrue(left < 1 or height - 573 * scale < 1 or 0 < height - link['height'] - 573 * scale < 1, 'it fills')
        left, top, scale = (round(part * density, 3) for part in (left, top, scale))
        self.assertEqual(self.browser.pixel(left + 396 * scale, top + 170 * scale), '00ffff')
        for x in left + 1, left + 792 * scale - 2:
            self.assertEqual(self.browser.pixel(x, top + 1), 'ff8000', 'the banner goes from edge to edge')
        self.assertEqual(self.browser.pixel(0, height * density - 1), 'ffc0c0')
        self.browser.tap(*self.browser.where('commpr(2)'))
        self.assertEqual(self.browser.answer('screen'), 'Frame3')
        self.browser.tap(*self.browser.where('MENUVP'), end='touchCancel')
        self.assertEqual(self.browser.answer('screen'), 'Frame3', 'a press that is taken away clicks nothing')
        self.browser.tap(*self.browser.where('MENUVP'))
        self.assertEqual(self.browser.answer('screen'), 'Frameprincipale')

    def test_two_fingers_enlarge_and_press_nothing(self):
        hint = 'return getComputedStyle(document.querySelector("#turn")).display'
        for width, height, told in (390, 844, 'block'), (844, 390, 'none'):
            self.browser.resize(width, height, density=3)
            self.browser.wait(f'return document.querySelector("canvas").width == {3 * width}')
            self.assertEqual(self.browser.execute_script(hint), told)
            x, y = self.browser.where('commpr(2)')
            fitting = left, top, scale = self.browser.room()
            for reach in 40, 150:
                self.browser.pinch(x, y, reach)
            left, top, enlarged = self.browser.room()
            self.assertAlmostEqual(enlarged, 4 * scale, places=3)
            self.assertTrue(-792 * enlarged + width <= left <= 0 and -573 * enlarged + height <= top <= 0)
            self.assertEqual(self.browser.execute_script(hint), 'none')
            time.sleep(0.4)
            self.assertEqual(self.browser.answer('screen'), 'Frameprincipale')
            x, y = left + 396 * enlarged, top + 156 * enlarged
            self.assertEqual(self.browser.pixel(round(3 * x), round(3 * (y + 14 * enlarged))), '00ffff')
            self.browser.tap(x, y)
            self.assertEqual(self.browser.answer('screen'), 'Frame3')
            self.browser.tap(x, y)
            self.assertEqual(self.browser.room(), fitting)
            self.browser.pinch(x, y, 150)
            self.browser.walk_to('NUOVA PARTITA')
            self.browser.walk_to("MENU'")
            self.assertEqual(self.browser.room(), fitting, 'the focus is in sight')
            self.assertEqual(self.browser.answer('click MENUVP'), 'ok')
            self.browser.draw()

    def test_a_long_random_session_of_all_games(self):
        lines, digests, screens = play_at_random(self.native)
        self.assertEqual(screens, SCREENS)
        self.browser.execute_script(SPY)
        page = self.browser.execute_async_script('''
            const [lines, done] = arguments;
            const digest = async (text) => {
              const bytes = await crypto.subtle.digest('SHA-256', new TextEncoder().encode(text));
              return Array.from(new Uint8Array(bytes), (byte) => byte.toString(16).padStart(2, '0')).join('');
            };
            const digests = lines.map((line, i) => {
              if (i % 10 == 0) room.draw();
              return digest(room.answer(line) + room.answer('dump'));
            });
            Promise.all(digests).then(done, (error) => done(String(error)));''', lines)
        self.assertEqual(len(page), len(digests))
        differing = [line for line, ours, theirs in zip(lines, digests, page) if ours != theirs]
        self.assertEqual(differing[:1], [], 'the first command after which the page shows something else')
        self.compare_files()
        for face, letters in self.browser.execute_script('return letters').items():
            file, = PAGE.glob(f'*/{face}.woff2')
            self.assertLessEqual(set(map(ord, letters)), set(TTFont(file).getBestCmap()), face)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1] + sys.argv[4:], verbosity=2)
