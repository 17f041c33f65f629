"""Plays the transcripts in the documents again: documents_test.py DRIVER DOCUMENT..."""

import pathlib
import re
import subprocess
import sys
import tempfile

driver, *documents = (pathlib.Path(each).resolve() for each in sys.argv[1:])
transcripts = [lines.splitlines() for document in documents for lines in
               re.findall(r'^\$ build/tombolario-driver\n(.*?)^```', document.read_text(), re.M | re.S)]
for lines in transcripts:
    with tempfile.TemporaryDirectory() as place:
        answers = subprocess.run([driver], input='\n'.join(lines[::2]), cwd=place, capture_output=True, text=True).stdout
    for command, told, answer in zip(lines[::2], lines[1::2], answers.splitlines(), strict=True):
        assert told == answer, f'{command}: {answer}, not {told}'
assert len(transcripts) == len(documents)
