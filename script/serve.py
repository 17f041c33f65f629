#!/usr/bin/python3
"""Serves the page as any web server should: serve.py DIRECTORY ADDRESS PORT"""

import errno
import functools
import gzip
import hashlib
import http.server
import io
import pathlib
import re
import sys

KINDS = {'.html': 'text/html; charset=utf-8', '.js': 'text/javascript; charset=utf-8', '.json': 'application/json',
         '.svg': 'image/svg+xml', '.png': 'image/png', '.wasm': 'application/wasm', '.woff2': 'font/woff2',
         '.txt': 'text/plain; charset=utf-8'}
COMPRESSED = ('.woff2', '.png')
POLICY = re.compile('http-equiv="Content-Security-Policy" content="(.*?)"')


class Handler(http.server.SimpleHTTPRequestHandler):
    protocol_version = 'HTTP/1.1'

    def log_message(self, *_):
        pass

    def handle(self):
        try:
            super().handle()
        except ConnectionError:
            pass  # The browser has gone.

    def end_headers(self):
        self.send_header('X-Content-Type-Options', 'nosniff')
        super().end_headers()

    def send_head(self):
        root = pathlib.Path(self.directory)
        file = pathlib.Path(self.translate_path(self.path))
        if file.is_dir():
            file /= 'index.html'
        try:
            body = file.read_bytes()
            policy = POLICY.search((root / 'index.html').read_text())[1]
        except (OSError, ValueError):
            return self.send_error(404)
        tag = f'"{hashlib.sha256(body).hexdigest()[:16]}"'
        known = self.headers.get('If-None-Match') == tag
        self.send_response(304 if known else 200)
        self.send_header('ETag', tag)
        # The address of what lies deeper changes with what it holds.
        self.send_header('Cache-Control', 'no-cache' if file.parent == root else 'max-age=31536000, immutable')
        self.send_header('Content-Security-Policy', f"{policy}; frame-ancestors 'none'")
        if known:
            self.end_headers()
            return None
        self.send_header('Content-Type', KINDS.get(file.suffix, 'application/octet-stream'))
        self.send_header('Vary', 'Accept-Encoding')
        if file.suffix not in COMPRESSED and 'gzip' in self.headers.get('Accept-Encoding', ''):
            body = gzip.compress(body, mtime=0)
            self.send_header('Content-Encoding', 'gzip')
        self.send_header('Content-Length', str(len(body)))
        self.end_headers()
        return io.BytesIO(body)


def serve(directory, address, port, handler=Handler):
    """A server that is ready for serve_forever."""
    handler = functools.partial(handler, directory=str(directory))
    return http.server.ThreadingHTTPServer((address, port), handler)


def main(directory, address, port):
    try:
        server = serve(directory, address, int(port))
    except (OSError, ValueError, OverflowError) as error:
        taken = getattr(error, 'errno', None) == errno.EADDRINUSE
        reason = 'is taken' if taken else f'is not to be had: {error}'
        sys.exit(f'script/web: port {port} of {address} {reason}')
    print(f'script/web: the room is at http://{address}:{port}/ until Ctrl-C', flush=True)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass


if __name__ == '__main__':
    main(*sys.argv[1:])
