#!/usr/bin/python3
"""Makes the guide a page of its own: guide.py MARKDOWN HTML

It knows of Markdown what the guide is written in: headings, paragraphs, lists, tables, bold text, code and links.
Pictures are left out: who reads the page has the room beside it."""

import base64
import hashlib
import html
import pathlib
import re
import sys

TEMPLATE = pathlib.Path(__file__).with_name('guide.html')
INLINE = [(r'`(.+?)`', r'<code>\1</code>'), (r'\*\*(.+?)\*\*', r'<b>\1</b>'),
          (r'&lt;(https?://.+?)&gt;', r'\1'), (r'\[(.+?)\]\((.+?)\)', r'<a href="\2">\1</a>')]
TABLE = re.compile(r'\|[-:| ]+\|$')


def inline(text):
    text = html.escape(text, quote=False)
    for pattern, made in INLINE:
        text = re.sub(pattern, made, text)
    return text


def anchor(title):
    return re.sub(r'[^\w\- ]', '', title.lower()).replace(' ', '-')


def heading(line):
    """Each game has the same headings of the third rank: nothing leads to them."""
    marks, title = line.split(' ', 1)
    rank = f'h{len(marks)}'
    if rank != 'h2':
        return f'<{rank}>{inline(title)}</{rank}>'
    return f'<h2 id="{anchor(title)}"><a href="#" title="Torna su" aria-label="Torna su">↑</a>{inline(title)}</h2>'


def list_of(lines):
    """Its items begin at the margin; what is further in goes on with the item before."""
    items = re.split(r'\n(?=- |\d+\. )', '\n'.join(lines))
    kind = 'ul' if lines[0].startswith('-') else 'ol'
    return f'<{kind}>' + ''.join('<li>' + inline(re.sub(r'\s+', ' ', item.split(' ', 1)[1])) for item in items) + f'</{kind}>'


def table(lines):
    def row(kind, line):
        return '<tr>' + ''.join(f'<{kind}>{inline(cell.strip())}' for cell in line.strip('|').split('|'))
    return '<div><table>' + row('th', lines[0]) + ''.join(row('td', line) for line in lines[2:]) + '</table></div>'


def block(text):
    lines = text.split('\n')
    if text.startswith('#'):
        return heading(text)
    if text.startswith('!['):
        return ''
    if re.match(r'- |\d+\. ', text):
        return list_of(lines)
    if len(lines) > 1 and TABLE.match(lines[1]):
        return table(lines)
    return f'<p>{inline(" ".join(lines))}</p>'


def guide(markdown):
    page = TEMPLATE.read_text()
    style = re.search('<style>(.*?)</style>', page, re.DOTALL)[1]
    digest = base64.b64encode(hashlib.sha256(style.encode()).digest()).decode()
    body = '\n'.join(filter(None, map(block, re.split(r'\n{2,}', markdown.strip()))))
    return page.replace('@STYLE@', f"'sha256-{digest}'").replace('@GUIDE@', body)


def main(source, target):
    pathlib.Path(target).write_text(guide(pathlib.Path(source).read_text()))


main(*sys.argv[1:])
