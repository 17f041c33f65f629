#!/usr/bin/python3
"""Lays the page out as a web server gives it: site.py SITE FILE...

What the page runs lies in a directory that is named after what it holds, so that it may be kept for ever and no
version mixes with another. The files that keep their address tell the way there."""

import base64
import hashlib
import json
import pathlib
import re
import shutil
import sys

OPEN = ('index.html', 'guida.html', 'manifest.json', 'icon-48.png', 'icon-192.png', 'icon-512.png', 'icon-maskable.png',
        'apple-touch-icon.png', 'licences.txt', 'offline.js')
POLICY = ("default-src 'none'; script-src 'self' 'wasm-unsafe-eval'; style-src {styles}; font-src 'self'; "
          "img-src 'self' data:; connect-src 'self'; manifest-src 'self'; worker-src 'self'; "
          "base-uri 'none'; form-action 'none'")


def digest(content):
    return 'sha256-' + base64.b64encode(hashlib.sha256(content).digest()).decode()


def name_of(files):
    """A name that is another as soon as a byte of a file is, or its name."""
    return hashlib.sha256(repr(sorted(files.items())).encode()).hexdigest()[:12]


def fill(text, **values):
    for name, value in values.items():
        text = text.replace(f'@{name}@'.encode(), value.encode())
    return text


def lay_out(files):
    """What lies where, of the files by their names."""
    parts = {name: files[name] for name in files if name not in OPEN}
    version = name_of(parts)
    site = {name: fill(files[name], VERSION=version) for name in OPEN}
    styles = [f"'{digest(style)}'" for name in OPEN if name.endswith('.html')
              for style in re.findall(b'<style>(.*?)</style>', site[name], re.DOTALL)]
    for name in OPEN:
        site[name] = fill(site[name], POLICY=POLICY.format(styles=' '.join(styles)))
    site |= {f'{version}/{name}': content for name, content in parts.items()}

    # A browser keeps icons by itself; licences need not be read without a network.
    digests = {'./' if name == 'index.html' else name: digest(content) for name, content in site.items()
               if name != 'offline.js' and not name.endswith(('.png', '.txt'))}
    site['offline.js'] = fill(site['offline.js'], FILES=json.dumps(digests, indent=2), KEPT=name_of(digests))
    return site


def main(directory, *sources):
    place = pathlib.Path(directory)
    shutil.rmtree(place, ignore_errors=True)
    for name, content in lay_out({pathlib.Path(file).name: pathlib.Path(file).read_bytes() for file in sources}).items():
        file = place / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)


main(*sys.argv[1:])
