#!/usr/bin/env python3
"""TestTrend.py ZARN_CLI: what is unusual and drifting, worked out here from rows of a store, against `trend` and `summary --store`."""
import contextlib
import math
import os
import random
import sqlite3
import sys
import tempfile

from StoreSupport import answer, rows, run


def rank(values, share):
    values = sorted(values)
    place = share * (len(values) - 1)
    low = math.floor(place)
    return values[low] + (values[min(low + 1, len(values) - 1)] - values[low]) * (place - low)


def expected(earlier, x, decimals):
    band, z, drifting = earlier[-30:], None, False
    if len(band) >= 10:
        middle = rank(band, 0.5)
        z = (x - middle) / (1.4826 * rank([abs(other - middle) for other in band], 0.5) + 10.0 ** -decimals)
    if len(earlier) >= 24:
        latest, before = [*earlier[-4:], x], earlier[-24:-4]
        drifting = not rank(before, 0.05) <= rank(latest, 0.5) <= rank(before, 0.95)
    figures = {'flights': len(band), 'p05': rank(band, 0.05), 'median': rank(band, 0.5), 'p95': rank(band, 0.95)} if band else None
    return {'band': figures, 'z': z, 'unusual': z is not None and abs(z) > 3.5, 'drifting': drifting}


def same(a, b):
    if isinstance(a, dict):
        return a.keys() == b.keys() and all(same(a[key], b[key]) for key in a)
    return math.isclose(a, b, rel_tol=1e-9, abs_tol=1e-9) if isinstance(a, float) else a == b


def add_flights(store, engine, medians, parameter, phase):
    """Flights of a day each before the demo card's, in another order than that of time, some without a clock after one that has one."""
    rng, places = random.Random(3), list(range(len(medians)))
    rng.shuffle(places)
    with contextlib.closing(sqlite3.connect(store)) as database:
        for n in places:
            cycle, clock = f'made{n:03}', f'2024-05-{1 + n // 2:02}T0{n % 2}:00:00'
            if n % 7 == 3:      # without a clock, on the card of the flight before
                clock = None
            database.execute('INSERT OR IGNORE INTO card (card_id, path) VALUES (?, ?)', (1000 + n - (clock is None), f'/{n - (clock is None)}'))
            database.execute("INSERT INTO cycle (cycle_id, engine_id, card_id, number, profile_hash) SELECT ?, ?, ?, ?, min(profile_hash) FROM cycle",
                             (cycle, engine, 1000 + n - (clock is None), 1 + (clock is None)))
            database.execute('INSERT INTO flight (flight_id, cycle_id, number, date_time) VALUES (?, ?, 1, ?)', (5000 + n, cycle, clock))
            database.execute('INSERT INTO key_value (flight_id, phase, parameter, unit, median, p05, p95) VALUES (?, ?, ?, ?, ?, ?, ?)',
                             (5000 + n, phase, parameter, '°C', medians[n], medians[n] - 1, medians[n] + 1))
        database.commit()


def main():
    with tempfile.TemporaryDirectory() as work:
        card, store, parameter, phase = f'{work}/card', f'{work}/store.sqlite', 'Oil Temperature A', 'climb'
        run('simulate', card)
        run('scan', card, '-o', store)
        assert answer('trend', store)['schema'] == 1 and not answer('summary', card, '--store', store)['cards'][0]['cycles'][1]['unusual']
        assert sorted(os.listdir(work)) == ['card', 'store.sqlite'] # nothing beside it
        rng = random.Random(5)
        medians = [round(60 + rng.gauss(0, 1) + (4 if 30 <= n < 40 else 0) + (25 if n == 20 else 0), 3) for n in range(48)]
        add_flights(store, 'DEMO-000001', medians, parameter, phase)
        trend, = answer('trend', store, '--engine', 'DEMO-000001', '--parameter', parameter, '--phase', phase)['trends']
        kept = rows(store, 'SELECT median FROM key_value JOIN flight USING (flight_id) WHERE parameter = ? AND phase = ? AND flight_id < 5000 '
                    'ORDER BY date_time', parameter, phase)
        figures = medians + [row['median'] for row in kept]
        assert [flight['median'] for flight in trend['flights']] == figures and len(kept) == 2
        for n, flight in enumerate(trend['flights']):
            told = expected(figures[:n], figures[n], 1)
            assert same(told, {key: flight[key] for key in told}), (n, told, flight)
        assert any(flight['unusual'] for flight in trend['flights'][:48]) and any(flight['drifting'] for flight in trend['flights'][:48])
        assert not all(flight['unusual'] or flight['drifting'] for flight in trend['flights'])
        # Whether the cycle is in the store itself makes no difference.
        for forget in [False, True]:
            if forget:
                with contextlib.closing(sqlite3.connect(store)) as database:
                    database.execute('PRAGMA foreign_keys = ON')
                    database.execute("DELETE FROM cycle WHERE cycle_id NOT LIKE 'made%'")
                    database.commit()
            cycle = answer('summary', card, '--store', store)['cards'][0]['cycles'][1]
            assert sorted((one['flight'], one['parameter'], one['phase']) for one in cycle['unusual']) == [(n, parameter, phase) for n in (1, 2)]
            for one in cycle['unusual']:
                told = expected(figures[:47 + one['flight']], figures[47 + one['flight']], 1)
                assert same(told, {key: one[key] for key in told}), (told, one)
            assert f'{parameter} in climb' in run('summary', card, '--store', store)[0]
        for arguments, reason in [(['--engine', 'x'], 'no engine x'), (['--parameter', 'x'], 'no figures of x')]:
            assert reason in run('trend', store, *arguments, status=1)[1]
        run('trend', store, '--phase', 'x', status=2)
        assert 'No such file' in run('trend', f'{work}/none', status=1)[1] and not os.path.exists(f'{work}/none')
        assert parameter in run('trend', store)[0] and 'unusual' in run('trend', store, '--parameter', parameter)[0]


sys.exit(main())
