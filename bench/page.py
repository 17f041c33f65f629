#!/usr/bin/python3
"""What the page weighs and how long it takes: page.py PAGE SCRIPTED_PAGE"""

import gzip
import pathlib
import statistics
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / 'tests' / 'page'))
from browser import Chromium, Site  # noqa: E402

STARTS = 10
REPAINTS = 100
PAGE, SCRIPTED = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])


def first_menu(page):
    """Milliseconds from the request to the menu on the screen, in a browser that has never seen the page."""
    browser = Chromium()
    try:
        browser.get('about:blank')
        time.sleep(1)  # until the browser's own start is over
        browser.open(page)
        return browser.execute_script(
            "return performance.getEntriesByName('room')[0].startTime")
    finally:
        browser.quit()


def repaint(page, way, density):
    """Milliseconds for the whole window, until its pixels can be read."""
    browser = Chromium(density)
    try:
        browser.open(page)
        for name in way:
            browser.answer('click ' + name)
        return browser.execute_script('''
            const context = document.querySelector('canvas').getContext('2d');
            const times = [];
            for (let i = 0; i < arguments[0]; ++i) {
              const start = performance.now();
              room.draw();
              context.getImageData(0, 0, 1, 1);
              times.push(performance.now() - start);
            }
            return times.sort((a, b) => a - b)[times.length >> 1];''', REPAINTS)
    finally:
        browser.quit()


files = sorted(file for file in PAGE.rglob('*') if file.is_file())
total = sum(len(gzip.compress(file.read_bytes())) for file in files)
plain = sum(file.stat().st_size for file in files)
print(f'page: {total / 1000:.0f} kB compressed, {plain / 1000:.0f} kB plain')
page, scripted = Site(PAGE), Site(SCRIPTED)
starts = [first_menu(page) for _ in range(STARTS)]
print(f'first menu: median {statistics.median(starts):.0f} ms, worst of {STARTS} {max(starts):.0f} ms')
for name, way in {'main menu': [], 'mahjongg': ['commpr(6)'], 'domino': ['commpr(3)', 'giocodom']}.items():
    times = ', '.join(f'{repaint(scripted, way, density):.1f} ms at {density}x' for density in (1, 2, 4))
    print(f'repaint of {name}: {times}')
