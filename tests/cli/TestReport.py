#!/usr/bin/env python3
"""The flight report says what the batch program's other answers say. Called with the program."""

import html.parser
import json
import os
import re
import resource
import subprocess
import sys
import tempfile
import unittest
from datetime import datetime, timedelta

CLI = sys.argv[1]


class Page(html.parser.HTMLParser):
    """The texts of an HTML file, by the element that they stand in; every element has its end."""

    def __init__(self, content):
        super().__init__()
        self.open, self.texts, self.pictures, self.language = [], [], [], None
        self.feed(content)
        self.close()
        if self.open:
            raise AssertionError(f'without an end: {self.open}')

    def handle_starttag(self, tag, attributes):
        self.language = dict(attributes).get('lang', self.language)
        if tag == 'img':
            self.pictures.append(dict(attributes))
        elif tag != 'meta':
            self.open.append(tag)

    def handle_endtag(self, tag):
        if self.open.pop() != tag:
            raise AssertionError(f'{tag} ends at {self.getpos()}')

    def handle_data(self, data):
        self.texts.append((self.open[-1] if self.open else '', data))


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

    def page(self, *arguments):
        path = self.folder.name + '/report.html'
        self.run_cli('report', *arguments, '-o', path)
        with open(path, encoding='utf-8') as file:
            return Page(file.read())

    def facts(self, subcommand, *arguments):
        return json.loads(self.run_cli(subcommand, self.card, *arguments, '--json').stdout)

    def check_flights(self, lines, flights):
        figures = (('Total climb', 'totalClimb', 1), ('Highest ground speed', 'maxGroundSpeed', 1), ('Fuel, total', 'totalFuel', 2),
                   ('Average descent rate', 'averageDescendRate', 2), ('Fuel for 100', 'fuelPer100m', 3), ('Take-off distance ', 'takeOffDistance', 0))
        for label, key, decimals in figures:
            row = [line for line in lines if line.startswith(label)]
            self.assertEqual(len(row), 1, label)
            numbers = re.findall(r'([\d.]+) (?:m/s|m|km/h|l)(?= |$)', row[0])
            self.assertEqual(numbers[-len(flights):], [f'{flight[key]:.{decimals}f}' for flight in flights])
        landing = next(line for line in lines if line.startswith('Landing '))
        self.assertEqual(landing.split()[1:], [clock(flight['landingTime']) for flight in flights])
        # The recorder's clock at that moment, as the window's clock has it: its fraction of a second counts.
        gpx = self.run_cli('gpx', self.card, '--cycle', '2', '-o', '-').stdout.decode()
        powerUp = datetime.fromisoformat(re.search('<time>(.*?)Z', gpx)[1])
        takeOffs = [powerUp + timedelta(seconds=flight['takeOffTime']) for flight in flights]
        row = next(line for line in lines if line.startswith('Take-off, clock '))
        self.assertEqual(re.findall(r'\d\d:\d\d:\d\d', row), [f'{time:%H:%M:%S}' for time in takeOffs])

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
        self.assertTrue(any('EGT 2: 1,774 °F, limit 1,742, for 2 min 38 s within 3 min 37 s' in line for line in lines))
        self.assertIn('Outside of the flight: 5 more in this power cycle.', lines)
        flight = self.facts('flights', '--cycle', '2', '--unit', 'imperial')['flights'][1]
        self.check_flights(lines, [flight])
        events = self.facts('events', '--cycle', '2', '--unit', 'imperial')
        inside = self.facts('events', '--cycle', '2', '--flight', '2', '--unit', 'imperial')
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

    def test_front(self):
        for cycle, pictures in (('1', 3), ('2', 9), ('3', 4)):    # signs, incidents, main parameters, map
            told = self.run_cli('summary', self.card, '--cycle', cycle).stdout.decode()
            told = re.sub(r'\n {3,}(?!!)', ' ', told)    # lines that go on
            page = self.page(self.card, '--cycle', cycle)
            text = ''.join(text for _, text in page.texts)
            paper = ' '.join(self.report('--cycle', cycle))
            for time, sentence in re.findall(r'^ +!+ +(\S+) +(.*)$', told, re.MULTILINE):
                self.assertIn(time + sentence, text)
                self.assertIn(sentence.split(', with ')[0], paper)
            for shown in (text, paper):
                self.assertIn(re.search(r'Cycle .*: ([A-Z ]+)$', told, re.MULTILINE)[1].capitalize(), shown)
                self.assertIn(re.search(r'Not counted: (\d+) outside', told)[0], shown)
            self.assertEqual((page.language, len(page.pictures)), ('en', pictures))
            self.assertTrue(all(picture['src'].startswith('data:image/png;base64,iVBOR') for picture in page.pictures))
            self.assertTrue(all(picture['alt'] for picture in page.pictures[1:]))    # the verdict's word stands beside its sign

    def test_page_numbers(self):
        path = self.folder.name + '/pages.pdf'
        self.run_cli('report', self.card, '--cycle', '2', '-o', path)
        text = subprocess.run(['pdftotext', '-layout', path, '-'], capture_output=True, text=True, check=True).stdout
        pages = text.split('\f')[:-1]
        for number, page in enumerate(pages, 1):
            self.assertRegex(page.strip().split('\n')[0], '^card, power cycle 2, profile ')
            self.assertRegex(page.strip(), rf'ZARN [\d.]+ +{number} of {len(pages)}$')

    def test_hostile_names(self):
        card = self.folder.name + '/<script>x & "y"'
        os.makedirs(card)
        for name in ('LOG00008.CAN', 'LOG00009.CAN'):    # one that has records, one that has none
            with open(f'{card}/{name}', 'wb') as file, open(self.card + '/LOG00008.CAN', 'rb') as good:
                file.write(good.read() if name == 'LOG00008.CAN' else b'')
        profile = os.path.dirname(CLI) + '/../Resources/profiles/915/Profile.xml'
        with open(profile, encoding='utf-8') as good, open(self.folder.name + '/hostile.xml', 'w', encoding='utf-8') as file:
            file.write(good.read().replace('name="Supply Voltage', 'name="&lt;/p>&lt;img src=x onerror=&apos;y()&apos;> Voltage'))
        page = self.page(card, '--profile', self.folder.name + '/hostile.xml')
        self.assertNotIn('script', (tag for tag, _ in page.texts))
        self.assertTrue(all(picture['src'].startswith('data:') for picture in page.pictures))
        text = ''.join(text for _, text in page.texts)
        for expected in ('<script>x & "y", power cycle', "</p><img src=x onerror='y()'> Voltage", 'LOG00009.CAN: 0 bytes, no record'):
            self.assertIn(expected, text)

    def test_vectors(self):
        path = self.folder.name + '/report.pdf'
        self.run_cli('report', self.card, '--cycle', '2', '-o', path)
        images = subprocess.run(['pdfimages', '-list', path], capture_output=True, text=True, check=True).stdout
        self.assertEqual(len(images.strip().split('\n')), 2, images)    # the heading's two lines alone

    def test_failures(self):
        for arguments, status, said in ((('-o', 'no/where.pdf'), 1, 'no/where.pdf: No such file'), ((), 2, '--output'),
                                        (('-o', 'x.pdf', '--paper', 'a5'), 2, 'a5'), (('-o', '/dev/full'), 1, 'No space left'),
                                        (('-o', '/dev/full', '--format', 'html'), 1, 'No space left'),
                                        (('-o', 'x.txt'), 2, 'x.txt: a report is a .pdf or a .html file')):
            done = self.run_cli('report', self.card, '--cycle', '3', *arguments, status=status)
            self.assertIn(said, done.stderr.decode())
            self.assertEqual(done.stdout, b'')
        for name in ('pdf', 'html'):    # what a full disk does
            folder = tempfile.mkdtemp(dir=self.folder.name)
            done = subprocess.run([CLI, 'report', self.card, '-o', f'{folder}/report.{name}'], capture_output=True, check=False,
                                  preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (50000, 50000)))
            self.assertEqual((done.returncode, os.listdir(folder)), (1, []))


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
