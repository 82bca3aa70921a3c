#!/usr/bin/env python3
"""The flight report says what the batch program's JSON says. Called with the program and a folder to work in."""

import json
import re
import subprocess
import sys
import tempfile
import unittest

CLI = sys.argv[1]


def clock(seconds):
    """The time of day of a time in seconds, as tables show it: cut to milliseconds, not rounded."""
    milliseconds = int(seconds * 1000)
    return f'{milliseconds // 3600000:02}:{milliseconds // 60000 % 60:02}:{milliseconds // 1000 % 60:02}.{milliseconds % 1000:03}'


class TestReport(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.card = cls.folder.name + '/card'
        cls.run_cli('simulate', cls.card)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    @classmethod
    def run_cli(cls, *arguments, status=0):
        done = subprocess.run([CLI, *arguments], capture_output=True, check=False)
        if done.returncode != status:
            raise AssertionError(f'{arguments}: status {done.returncode}, {done.stderr.decode()}')
        return done

    def report(self, *arguments):
        """The report's lines, blanks of the layout as single ones."""
        path = self.folder.name + '/report.pdf'
        self.run_cli('report', self.card, *arguments, '-o', path)
        with open(path, 'rb') as file:
            self.assertTrue(file.read(8).startswith(b'%PDF-1.'))
        text = subprocess.run(['pdftotext', '-layout', path, '-'], capture_output=True, text=True, check=True).stdout
        return [' '.join(line.split()) for line in text.split('\n')]

    def facts(self, subcommand, *arguments):
        return json.loads(self.run_cli(subcommand, self.card, *arguments, '--json').stdout)

    def check_flights(self, lines, flights):
        figures = (('Total climb', 'totalClimb', 1), ('Highest ground speed', 'maxGroundSpeed', 1), ('Fuel, total', 'totalFuel', 2),
                   ('Average descent rate', 'averageDescendRate', 2), ('Fuel for 100', 'fuelPer100m', 3), ('Take-off distance [', 'takeOffDistance', 0))
        for label, key, decimals in figures:
            row = [line for line in lines if line.startswith(label)]
            self.assertEqual(len(row), 1, label)
            numbers = row[0].split('] ' if ']' in row[0] else label)[1].split()
            self.assertEqual(numbers[-len(flights):], [f'{flight[key]:.{decimals}f}' for flight in flights])
        landing = next(line for line in lines if line.startswith('Landing '))
        self.assertEqual(landing.split()[1:], [clock(flight['landingTime']) for flight in flights])

    def check_events(self, lines, events):
        for kind in ('limits', 'warnings'):
            for event in events[kind]:
                expected = clock(event['time']) + ' ' + ' '.join(event['text'].split())
                self.assertTrue(any(line.startswith(expected) for line in lines), f'no line {expected}')

    def test_whole_cycle(self):
        lines = self.report('--cycle', '2')
        flights = self.facts('flights', '--cycle', '2')['flights']
        self.assertEqual(len(flights), 2)
        self.check_flights(lines, flights)
        self.check_events(lines, self.facts('events', '--cycle', '2'))
        unit = next(file for file in self.facts('info')['files'] if file['name'] in self.facts('info')['cycles'][1]['files'])
        for key in ('ecuSerialNumber', 'ecuType', 'engineSerial', 'engineType', 'softwarePartA', 'softwarePartB', 'emuSoftwareVersion'):
            self.assertTrue(any(str(unit[key]) in line for line in lines), key)
        version = self.run_cli('--version').stdout.decode().strip()
        self.assertTrue(any(version in line for line in lines))

    def test_faults(self):
        lines = self.report('--cycle', '2')
        for matrix in self.facts('faults', '--cycle', '2')['matrices']:
            for kind, title in (('info', 'Info'), ('warning', 'Warning'), ('fault', 'Fault')):
                starts = [time for time, on in matrix[kind] if on]
                rows = [line for line in lines if re.match(rf'{re.escape(matrix["name"])} \d+ {title} ', line)]
                self.assertEqual(bool(rows), bool(starts), f'{matrix["name"]} {kind}')
                if starts:
                    first = min(re.findall(r'\d\d:\d\d:\d\d\.\d\d\d', ' '.join(rows)))
                    self.assertEqual(first[:8], clock(starts[0])[:8])

    def test_one_flight(self):
        lines = self.report('--cycle', '2', '--flight', '2', '--unit', 'imperial')
        flight = self.facts('flights', '--cycle', '2', '--unit', 'imperial')['flights'][1]
        self.check_flights(lines, [flight])
        events = self.facts('events', '--cycle', '2', '--unit', 'imperial')
        inside = {kind: [event for event in events[kind] if flight['startTime'] <= event['time'] <= flight['endTime']] for kind in ('limits', 'warnings')}
        self.assertTrue(inside['limits'] and len(inside['limits']) < len(events['limits']))
        self.check_events(lines, inside)
        outside = [event for event in events['limits'] if event not in inside['limits']]
        self.assertFalse(any(line.startswith(clock(outside[0]['time'])) for line in lines))

    def test_nothing_to_tell(self):
        lines = self.report('--cycle', '3')    # no clock, no position, no flight
        self.assertIn('No flight was found.', lines)
        self.assertIn('No position was recorded.', lines)
        self.assertTrue(any('no clock' in line for line in lines))

    def test_paper(self):
        sizes = {}
        for paper in ('a4', 'letter'):
            path = self.folder.name + '/paper.pdf'
            self.run_cli('report', self.card, '--cycle', '3', '--paper', paper, '-o', path)
            information = subprocess.run(['pdfinfo', path], capture_output=True, text=True, check=True).stdout
            sizes[paper] = [round(float(number)) for number in re.search(r'Page size: +([\d.]+) x ([\d.]+)', information).groups()]
        self.assertEqual(sizes, {'a4': [595, 842], 'letter': [612, 792]})

    def test_vectors(self):
        path = self.folder.name + '/report.pdf'
        self.run_cli('report', self.card, '--cycle', '2', '-o', path)
        images = subprocess.run(['pdfimages', '-list', path], capture_output=True, text=True, check=True).stdout
        self.assertEqual(len(images.strip().split('\n')), 2, images)    # the heading's two lines alone

    def test_failures(self):
        for arguments, status, said in ((('-o', 'no/where.pdf'), 1, 'no/where.pdf: No such file'), ((), 2, '--output'),
                                        (('-o', 'x.pdf', '--paper', 'a5'), 2, 'a5'), (('-o', '/dev/full'), 1, 'No space left')):
            done = self.run_cli('report', self.card, '--cycle', '3', *arguments, status=status)
            self.assertIn(said, done.stderr.decode())
            self.assertEqual(done.stdout, b'')


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
