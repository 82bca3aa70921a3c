#!/usr/bin/env python3
"""Runs the commands that stand in README.md, and compares what they print with what stands there.

    TestReadme.py ZARN-CLI ROOT
"""

import os
import re
import shlex
import socket
import subprocess
import sys
import tempfile
import unittest

CLI, ROOT = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
OURS = re.compile(r'(?:\$ |build/release/bin/)?zarn-cli (.*)')
# What the placeholders in the overview of subcommands stand for.
PLACES = [('PLUGIN:INTERFACE', 'virtualcan:tcp://127.0.0.1:PORT/can0 --record run --seconds 3'), ('CARD...', 'demo'), ('CARD', 'demo'), ('STORE', 'all.sqlite'),
          ('NAME', '"Oil Temperature"'), ('SECONDS', '1000')]
FILES = {'profile': 'Profile.xml', 'csv': 'a.csv', 'kml': 'a.kml', 'gpx': 'a.gpx', 'report': 'a.pdf', 'candump': 'a.log'}


def blocks():
    """The indented blocks of README.md, line by line."""
    with open(os.path.join(ROOT, 'README.md'), encoding='utf-8') as file:
        for block in re.findall(r'(?:^    .*\n)+', file.read(), re.M):
            yield [line[4:] for line in block.splitlines()]


class Readme(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.work = cls.folder.name
        cls.call('simulate demo')
        resources = os.path.join(os.path.dirname(os.path.dirname(CLI)), 'Resources')
        os.symlink(os.path.join(resources, 'profiles', '915', 'Profile.xml'), os.path.join(cls.work, 'Profile.xml'))

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    @classmethod
    def call(cls, command):
        done = subprocess.run([CLI, *shlex.split(command)], cwd=cls.work, capture_output=True, text=True, check=False, timeout=300)
        assert done.returncode == 0, f'{command}: {done.stderr}'
        return done.stdout

    def compare(self, shown, text):
        """Lines of a text in their order, not all of them; "..." at the end of a line stands for its rest."""
        lines, at = text.splitlines(), 0
        for line in shown:
            if line.strip() in ('...', ''):
                continue
            fits = (lambda other: other.startswith(line[:-3])) if line.endswith('...') else (lambda other: other.rstrip() == line)
            place = next((i for i in range(at, len(lines)) if fits(lines[i])), None)
            self.assertIsNotNone(place, f'not printed: {line!r} in {text[:2000]}')
            at = place + 1

    def test_commands_and_answers(self):
        """Each command of zarn-cli as it stands there; what follows "$" is its answer, the lines of a table those of the file just written."""
        names, tables = set(), 0
        for block in blocks():
            shown, answer = [], None
            for line in [*block, '$ end']:
                command = OURS.fullmatch(line)
                if not line.startswith('$ ') and not command:
                    shown.append(line)
                    continue
                if answer is not None:
                    self.compare(shown, answer)
                elif shown and shown[0].startswith('Time;'):
                    tables += 1
                    with open(os.path.join(self.work, 'cycle.csv'), encoding='utf-8') as file:
                        self.compare(shown, file.read())
                shown, answer = [], None
                if command and re.search(r'\b(CARD|FILE|DIR|STORE|PLUGIN)\b', command[1]):
                    self.overview(command[1])
                elif command:
                    text = self.call(command[1].split('#')[0].replace('/media/card', 'demo'))
                    answer = text if line.startswith('$ ') else None
                if command:
                    names.add(command[1].split()[0])
        every = set(re.findall(r'^  (\w+) ', self.call('--help').split('Subcommands:')[1], re.M))
        self.assertEqual((names, tables), (every, 1))

    def overview(self, line):
        call = re.split('  +', line)[0]
        name = call.split()[0]
        if name == 'simulate':
            call = 'simulate another --hours 0.1'
        call = call.replace('scan DIR', 'scan demo').replace('FILE', FILES.get(name, ''))
        for place, stands in PLACES:
            call = call.replace(place, stands)
        with socket.create_server(('127.0.0.1', 0)) as server:
            port = server.getsockname()[1]
        self.call(call.replace('PORT', str(port)))

    def test_other_commands_are_those_of_continuous_integration(self):
        ci = ''
        for name in ('run', 'package'):
            with open(os.path.join(ROOT, '.ci', name), encoding='utf-8') as file:
                ci += file.read()
        version = self.call('--version').split()[1]
        others = set()
        for block in blocks():
            others |= {line.split('#')[0].strip() for line in block if re.match(r'\./|packaging/|sudo|tools/|tests/|fuzz/|bench/|ZARN_', line)}
        self.assertLessEqual({'./run', './test', 'packaging/make-deb'}, others)
        for command in others:
            self.assertIn(command.replace('sudo apt', 'apt').replace(version, '*'), ci)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
