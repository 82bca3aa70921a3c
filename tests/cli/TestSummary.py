#!/usr/bin/env python3
"""TestSummary.py ZARN_CLI [SEEDS [FIRST]]: random recordings, reviewed here sample by sample as the definitions read, against `summary --json`.

Times run backwards now and then, values are no numbers, threshold lists do not ascend, parameters are missing, engines stop in flight.
"""
import json
import math
import os
import random
import struct
import subprocess
import sys
import tempfile
from fractions import Fraction

TICK = 31.25e-9
LATEST = 2000000.0
LISTS = {'high': [(0, 0), (80, 1), (95, 2)], 'low': [(-10, 2), (20, 1), (40, 0)], 'both': [(-50, 1), (30, 0), (70, 1), (90, 2)],
         'wild': [(60, 1), (40, 0), (90, 2), (85, 1)], 'first': [(50, 1), (70, 2), (70, 1)]}
LIMITS = [('T high', 'high', '°C'), ('T low', 'low', '°C'), ('T both', 'both', 'K'), ('P wild', 'wild', 'bar'), ('P first', 'first', '')]
KEYS = ['EngineSpeed', 'GroundSpeed', 'Altitude', 'FuelA', 'FuelB']
STATES = ['OK', 'WARNING', 'LIMIT']
KINDS = ['stop', 'limit', 'lamp', 'fault']


def write_profile(path, missing):
    text = '<CanAerospaceProfile><ThresholdList>'
    for name, boundaries in LISTS.items():
        text += f'<Threshold name="{name}">' + ''.join(f'<Value val="{v}" state="{STATES[s]}"/>' for v, s in boundaries) + '</Threshold>'
    text += '</ThresholdList><Device name="D">'
    for i, key in enumerate(KEYS):
        if key not in missing:
            text += f'<Parameter name="{key}" id="{i}" dataType="FLOAT" startByte="4" zarnDataType="{key}"/>'
    for i, (name, threshold, unit) in enumerate(LIMITS):
        text += f'<Parameter name="{name}" id="{10 + i}" dataType="FLOAT" startByte="4" precision="2" thresholdId="{threshold}" unitMetric="{unit}"/>'
    text += '</Device><Device name="WarningLamp"><Parameter name="Lamp" id="20" dataType="UCHAR" startByte="4"/></Device><Device name="F">'
    text += '<ErrorMatrix id="30" name="M"/>'
    for bit, kind in enumerate(['Warning', 'Fault', 'Info', 'Fault']):
        key = ' zarnDataType="LaneCheck"' if bit >= 2 else ''
        text += f'<Parameter name="bit {bit}" id="30" dataType="BLONG" startByte="4" startBit="{bit}" endBit="{bit}" errorType="{kind}"{key}/>'
    with open(path, 'w', encoding='utf-8') as file:
        file.write(text + '</Device></CanAerospaceProfile>')


def make_samples(rng):
    """By identifier, (time, value); and all records in the order of recording."""
    seconds, channels, events = rng.choice([0, 20, 200, 900, 1500]), {}, []
    ids = [i for i in list(range(len(KEYS))) + list(range(10, 10 + len(LIMITS))) + [20, 30] if rng.random() < 0.93]
    for identifier in ids:
        t, value, period = rng.random() * 3, 0 if identifier >= 20 else 0.0, rng.choice([0.2, 0.5, 1.0, 2.5])
        pace = rng.choice([4, 15, 60, 900, 3000])
        while t < seconds:
            if rng.random() < period / pace:
                value = {0: lambda: rng.choice([0, 250, 350, 2000, 5000, 5000, 5000]), 1: lambda: rng.choice([0, 45, 60, 120, 120]),
                         20: lambda: rng.choice([0, 0, 1, 2, 3]), 30: lambda: rng.choice([0, 0, 1, 2, 3, 4, 5, 8])}.get(
                             identifier, lambda: rng.choice([rng.randint(-60, 400) / 4, 85.0, 95.0, 25.0, math.nan, math.inf, -math.inf]
                                                            if identifier >= 10 else [rng.randint(0, 400) / 4]))()
            elif identifier == 2:
                value += rng.choice([-10, -1, -0.25, 0.25, 1, 10])
            events.append((t, identifier, value))
            t += period
    events.sort(key=lambda event: event[0])
    back, records = 0.0, []
    for t, identifier, value in events:
        if rng.random() < 0.001:
            back = rng.choice([0, 3, 8, 40])
        time = max(0.0, t - back) if rng.random() > 0.0005 or identifier == 2 else 3e6 + t
        ticks = round(time / TICK)
        records.append((ticks, identifier, value))
        high, low = ticks >> 32, ticks & 0xFFFFFFFF
        channels.setdefault(identifier, []).append((float(Fraction(high) * Fraction(134.217728) + Fraction(low * TICK)), value))
    return channels, records


def write_card(folder, records):
    os.mkdir(folder)
    data = bytearray(struct.pack('>H126x', 0xABBA))
    for ticks, identifier, value in records:
        payload = struct.pack('>I', value) if identifier == 30 else bytes([value, 0, 0, 0]) if identifier == 20 else struct.pack('>f', value)
        code = {20: 10, 30: 5}.get(identifier, 2)
        data += struct.pack('>BBBB4sBBHIHHII', 0, code, 0, 0, payload, 0, 0, 2, identifier, 0, 0, ticks >> 32, ticks & 0xFFFFFFFF)
    with open(os.path.join(folder, 'A.CAN'), 'wb') as file:
        file.write(data)


def walk(boundaries, value):
    band = None
    for k, (boundary, _) in enumerate(boundaries):
        if boundary > value:
            break
        band = k
    return band


class Review:
    def __init__(self, channels, missing, flights, end):
        self.all = {i: s for i, s in channels.items() if not (i < len(KEYS) and KEYS[i] in missing)}
        self.samples = {i: [x for x in s if x[0] <= LATEST] for i, s in self.all.items()}
        self.flights, self.end, self.missing = flights, end, missing
        self.run_engine()
        self.checks = []
        for bit in (2, 3):
            words, begin = self.samples.get(30, []), None
            for t, word in words:
                if begin is None and word >> bit & 1:
                    begin = t
                elif begin is not None and not word >> bit & 1:
                    self.checks.append((begin - 1, t + 1))
                    begin = None
            if begin is not None:
                self.checks.append((begin - 1, words[-1][0] + 1))

    def run_engine(self):
        speed, self.stretches, start = self.samples.get(0, []), [], None
        self.known = bool(speed)
        for t, v in speed:
            if start is None and v > 400:
                start = t
            elif start is not None and v < 300:
                self.stretches.append((start, t))
                start = None
        if start is not None:
            self.stretches.append((start, speed[-1][0] if self.end > LATEST else max(self.end, speed[-1][0])))
        if not self.known:
            self.stretches = [(-math.inf, math.inf)]

    def sequence(self, t, is_lamp):
        if is_lamp and any(a <= t <= b for a, b in self.checks):
            return None
        margins = (10, 2) if self.known else (0, 0)
        return next((i for i, (a, b) in enumerate(self.stretches) if a + margins[0] <= t <= b - margins[1]), None)

    def altitude(self, t):
        samples = self.all.get(2, [])
        at = next((i for i, s in enumerate(samples) if s[0] >= t), None)
        if at is None or int(t) < 0 or int(t) >= int(self.end) + 2:
            return 0.0
        return samples[max(at - 1, 0)][1]

    def phase(self, t):
        if self.known and not any(a <= t < b for a, b in self.stretches):
            return 'off'
        if any(f['takeOffTime'] <= t <= f['landingTime'] for f in self.flights):
            w = (self.altitude(t + 5) - self.altitude(t - 5)) / 10 if self.all.get(2) else 0
            return 'climb' if w >= 1 else 'descent' if w <= -1 else 'level'
        return 'take-off' if any(f['startTime'] <= t < f['takeOffTime'] for f in self.flights) else 'ground'

    def episodes(self, kind, parameter, identifier, state_of, unit='', boundaries=None):
        """The watched and the other ones of a source; whether it has a watched sample."""
        watched, others = [], []
        sequences = {}
        for t, v in self.samples.get(identifier, []):
            sequences.setdefault(self.sequence(t, kind != 'limit'), []).append((t, v, state_of(v)))
        for stretch, samples in sequences.items():
            found = []
            for place, (t, v, s) in enumerate(samples):
                if s > 0 and found and (samples[place - 1][2] > 0 or t - found[-1][-1][0] < 5):
                    found[-1].append((t, v, s, place))
                elif s > 0:
                    found.append([(t, v, s, place)])
            for inside in found:
                worst = max(x[2] for x in inside)
                episode = {'kind': kind, 'parameter': parameter, 'state': worst, 'start': inside[0][0], 'end': inside[-1][0],
                           'side': None, 'limit': None, 'peak': None, 'peakTime': None}
                if kind == 'limit':
                    self.judge(episode, [x for x in inside if x[2] == worst], boundaries, unit)
                is_cold = kind == 'limit' and self.known and unit in ('°C', 'K') and episode['side'] == 'low' and worst == 1 and inside[0][3] == 0
                is_cold = is_cold and not any(episode['start'] <= f['takeOffTime'] <= episode['end'] for f in self.flights)
                (others if stretch is None or is_cold else watched).append(episode)
        return watched, others, any(s is not None for s in sequences)

    @staticmethod
    def judge(episode, samples, boundaries, unit):
        band, states = walk(boundaries, samples[0][1]), [s for _, s in boundaries]
        is_high = 0 in states[:band] or 0 not in states[band + 1:]
        episode['side'] = 'high' if is_high else 'low'
        finite = [x for x in samples if math.isfinite(x[1])]
        if not finite:
            return
        episode['peak'] = (max if is_high else min)(x[1] for x in finite)
        episode['peakTime'] = next(x[0] for x in finite if x[1] == episode['peak'])
        episode['text'] = f'{episode["peak"]:.2f} {unit}'.rstrip()
        k = walk(boundaries, episode['peak'])
        if is_high:
            while k > 0 and states[k - 1] == episode['state']:
                k -= 1
        else:
            while states[k] == episode['state']:
                k += 1
        episode['limit'] = boundaries[k][0]

    def stops(self):
        for i, (_, end) in enumerate(self.stretches if self.known else []):
            flight = next((f for f in self.flights if f['takeOffTime'] < end < f['landingTime']), None)
            if flight:
                after = self.stretches[i + 1][0] if i + 1 < len(self.stretches) else math.inf
                yield {'kind': 'stop', 'parameter': 'EngineSpeed', 'state': 1, 'start': end, 'end': min(after, flight['landingTime']), 'limit': None}

    def fuel(self):
        total = None
        for identifier in (3, 4):
            flow = self.samples.get(identifier, [])
            for (before, _), (t, v) in zip(flow, flow[1:]):
                total = (total or 0.0) + v * (t - before) / 3600
        return total

    def incidents(self, watched):
        found, until = [], None
        for episode in watched:
            end = min(episode['end'], episode['start'] + 60) if episode['end'] - episode['start'] > 600 else episode['end']
            if found and episode['start'] <= until + 5:
                found[-1].append(episode)
                until = max(until, end)
            else:
                found.append([episode])
                until = end
        for episodes in found:
            excess = [abs(e['peak'] - e['limit']) / max(abs(e['limit']), 1) if e['limit'] is not None else 0 for e in episodes]
            first = max(range(len(episodes)), key=lambda i: (episodes[i]['state'], -KINDS.index(episodes[i]['kind']), excess[i], -i))
            start = episodes[0]['start']
            flight = next((i + 1 for i, f in enumerate(self.flights) if f['startTime'] <= start <= f['endTime']), None)
            yield {'start': start, 'end': max(e['end'] for e in episodes), 'state': max(e['state'] for e in episodes), 'phase': self.phase(start),
                   'flight': flight, 'title': episodes[first]['parameter'], 'episodes': episodes}

    def answer(self):
        watched, standing, counts = list(self.stops()), [], []
        sources = [('limit', name, 10 + i, (lambda v, b=LISTS[name_of]: b[walk(b, v)][1] if walk(b, v) is not None else 0), unit, LISTS[name_of])
                   for i, (name, name_of, unit) in enumerate(LIMITS)]
        sources += [('lamp', 'Lamp', 20, lambda v: v if v in (0, 2) else 1), ('fault', 'bit 0', 30, lambda v: v & 1),
                    ('fault', 'bit 1', 30, lambda v: v & 2), ('fault', 'bit 3', 30, lambda v: 2 * (v >> 3 & 1))]
        for source in sources:
            inside, outside, has_samples = self.episodes(*source)
            watched += inside
            standing += outside
            counts.append(has_samples)
        order = lambda e: (e['start'], e['end'])
        incidents = list(self.incidents(sorted(watched, key=order)))
        worst = max((i['state'] for i in incidents), default=0)
        return {'engineRunning': sum(b - a for a, b in self.stretches) if self.known else None, 'fuel': self.fuel(),
                'flightTime': sum(f['landingTime'] - f['takeOffTime'] for f in self.flights),
                'verdict': ['ok' if any(counts) else 'unknown', 'warning', 'limit'][worst],
                'watched': {'sources': len(sources), 'withSamples': sum(counts)}, 'incidents': incidents, 'standing': sorted(standing, key=order)}


def difference(expected, actual, where):
    if isinstance(expected, dict):
        return next((d for key in expected for d in [difference(expected[key], actual.get(key), f'{where}.{key}')] if d), None)
    if isinstance(expected, list):
        if len(expected) != len(actual):
            return f'{where}: {len(expected)} expected, {len(actual)} told'
        return next((d for i, e in enumerate(expected) for d in [difference(e, actual[i], f'{where}[{i}]')] if d), None)
    if isinstance(expected, float) and isinstance(actual, (int, float)):
        return None if math.isclose(expected, actual, rel_tol=1e-12, abs_tol=1e-12) else f'{where}: {expected} expected, {actual} told'
    return None if expected == actual else f'{where}: {expected!r} expected, {actual!r} told'


def run(cli, seed):
    rng = random.Random(seed)
    missing = [key for key in KEYS if rng.random() < 0.15]
    channels, records = make_samples(rng)
    with tempfile.TemporaryDirectory() as folder:
        write_profile(folder + '/Profile.xml', missing)
        write_card(folder + '/card', records)
        done = subprocess.run([cli, 'summary', 'card', '--profile', 'Profile.xml', '--json'], cwd=folder, capture_output=True, check=False)
    if done.returncode != 0:
        return f'status {done.returncode}: {done.stderr.decode()}', None
    cycle = json.loads(done.stdout)['cards'][0]['cycles'][0]
    return difference(Review(channels, missing, cycle['flights'], cycle['endTime']).answer(), cycle, '$'), cycle


def main():
    cli, seeds, first = os.path.abspath(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 40, int(sys.argv[3]) if len(sys.argv) > 3 else 0
    failed, seen = 0, {'flights': 0, 'stops': 0, 'joined': 0, 'standing': 0}
    for seed in range(first, first + seeds):
        found, cycle = run(cli, seed)
        if found:
            failed += 1
            print(f'seed {seed}: {found}')
        if cycle:
            seen['flights'] += len(cycle['flights'])
            seen['stops'] += sum(e['kind'] == 'stop' for i in cycle['incidents'] for e in i['episodes'])
            seen['joined'] += sum(len(i['episodes']) > 1 for i in cycle['incidents'])
            seen['standing'] += len(cycle['standing'])
    print(f'{seeds} recordings, {failed} failed; {seen}')
    return 1 if failed or not all(seen.values()) else 0


if __name__ == '__main__':
    sys.exit(main())
