"""Firefox without a window, by the protocol that it speaks itself."""

import json
import pathlib
import socket
import subprocess
import tempfile
import time

from browser import PATIENCE, Viewer

KEYS = {'Tab': '\ue004', 'Enter': '\ue007', ' ': ' ', 'ArrowUp': '\ue013', 'ArrowDown': '\ue015'}


class Firefox(Viewer):
    def __init__(self):
        self.profile = tempfile.TemporaryDirectory()
        place = pathlib.Path(self.profile.name)
        (place / 'user.js').write_text('user_pref("marionette.port", 0);\n')
        self.process = subprocess.Popen(['firefox-esr', '--headless', '--no-remote', '--marionette', '--profile', place],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        told = place / 'MarionetteActivePort'
        end = time.monotonic() + 6 * PATIENCE
        while not (told.exists() and told.read_text()):
            if time.monotonic() > end:
                raise AssertionError('Firefox does not start')
            time.sleep(0.05)
        self.socket = socket.create_connection(('127.0.0.1', int(told.read_text())))
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
        return result.get('value') if isinstance(result, dict) else result

    def quit(self):
        self.process.terminate()
        self.process.wait(PATIENCE)
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

    def pointer(self, kind, x, y):
        moves = [{'type': 'pointerMove', 'x': round(x), 'y': round(y)}, {'type': 'pointerDown', 'button': 0},
                 {'type': 'pointerUp', 'button': 0}]
        self.do('PerformActions', actions=[{'type': 'pointer', 'id': kind, 'parameters': {'pointerType': kind},
                                            'actions': moves}])

    def press(self, x, y):
        self.pointer('mouse', x, y)

    def tap(self, x, y):
        self.pointer('touch', x, y)

    def key(self, key):
        actions = [{'type': kind, 'value': KEYS[key]} for kind in ('keyDown', 'keyUp')]
        self.do('PerformActions', actions=[{'type': 'key', 'id': 'keyboard', 'actions': actions}])
