#!/usr/bin/env python3
"""TestDataset.py ZARN_CLI [KILLS [CARDS]]: a Parquet dataset, read by DuckDB, against the SQLite store, `csv` and `value`; written by several at once."""
import concurrent.futures
import contextlib
import csv
import json
import os
import random
import re
import shutil
import signal
import sqlite3
import sys
import tempfile
import time
import zlib

from StoreSupport import ZARN, answer, duck, killed, make_cards, rows, run, tree

DOCS = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '../../docs'))
TABLES = ['cycle', 'flight', 'incident', 'episode', 'key_value']
IDS = {'card_id', 'flight_id', 'incident_id', 'episode_id'}


class Compact:
    """What the metadata of a file says, in the compact protocol: structs as {field: value}."""

    def __init__(self, data, at):
        self.data, self.at = data, at

    def varint(self):
        number, shift = 0, 0
        while True:
            byte = self.data[self.at]
            self.at, number, shift = self.at + 1, number | (byte & 127) << shift, shift + 7
            if byte < 128:
                return number

    def value(self, kind):
        if kind in (1, 2):
            return kind == 1
        if kind in (4, 5, 6):
            number = self.varint()
            return (number >> 1) ^ -(number & 1)
        if kind == 8:
            length = self.varint()
            self.at += length
            return self.data[self.at - length:self.at]
        if kind == 9:
            head = self.data[self.at]
            self.at += 1
            return [self.value(head & 15) for _ in range(self.varint() if head >> 4 == 15 else head >> 4)]
        assert kind == 12, kind
        fields, field = {}, 0
        while self.data[self.at] != 0:
            head = self.data[self.at]
            self.at += 1
            field = field + (head >> 4) if head >> 4 else self.value(4)
            fields[field] = self.value(head & 15)
        self.at += 1
        return fields


def check_pages(content):
    """Each page has the check sum of its bytes, which readers pass over, and the pages fill the file."""
    assert content[:4] == content[-4:] == b'PAR1'
    length = int.from_bytes(content[-8:-4], 'little')
    end, at = len(content) - 8 - length, 4
    footer = Compact(content, end).value(12)
    while at < end:
        reader = Compact(content, at)
        page = reader.value(12)
        body = content[reader.at:reader.at + page[3]]
        assert page[4] & 0xFFFFFFFF == zlib.crc32(body)
        at = reader.at + len(body)
    assert at == end and len(footer[7]) == len(footer[2]) - 1 and sum(group[3] for group in footer[4]) == footer[3]
    return [(chunk[3][12], chunk[3][1]) for group in footer[4] for chunk in group[1]]


def check_tables(store, dataset):
    """Every field of every table is that of the other form, but for identifiers, which still join the same rows."""
    views = open(f'{DOCS}/dataset.sql', encoding='utf-8').read()
    for table in TABLES:
        columns = [f'{table}.{column}' for column in rows(store, f'SELECT * FROM {table} LIMIT 1')[0] if column not in IDS]
        sql = f'SELECT {", ".join(columns)} FROM {table}'
        if table == 'key_value':
            sql = sql.replace(' FROM', ', flight.cycle_id, flight.number FROM') + ' JOIN flight USING (flight_id)'
        told, kept = (sorted(repr([float(field) if isinstance(field, int) else field for field in row.values()]) for row in found)
                      for found in (duck(dataset, views, sql)[1], rows(store, sql)))
        assert told == kept and told, (table, [pair for pair in zip(told, kept) if pair[0] != pair[1]][:2])
    joins = 'SELECT count(*) AS n FROM episode JOIN incident USING (incident_id) JOIN flight ON flight.flight_id = incident.flight_id'
    assert duck(dataset, views, joins)[1] == rows(store, joins)


def check_copies(card, work):
    """A copy of a card that tells no serial number has another engine in its path, which no worker can know of: the views count it once."""
    for name in ('a', 'b'):
        shutil.copytree(card, f'{work}/copies/{name}')
    run('scan', f'{work}/copies', '-o', f'{work}/copies.sqlite')
    run('scan', f'{work}/copies', '-o', f'{work}/copied', '--format', 'parquet')
    sql = 'SELECT cycle_id, engine_id, number FROM cycle ORDER BY cycle_id'
    assert duck(f'{work}/copied', open(f'{DOCS}/dataset.sql', encoding='utf-8').read(), sql)[1] == rows(f'{work}/copies.sqlite', sql)
    assert len([name for name in tree(f'{work}/copied/cycles') if 'card%3A' in name]) == 2


def check_samples(card, work):
    names = [parameter['name'] for parameter in answer('profile', f'{os.path.dirname(ZARN)}/../Resources/profiles/915/Profile.xml')['parameters']]
    for kind, ticks in [('100', 10), ('10', 100)]:
        run('scan', card, '-o', f'{work}/{kind}', '--format', 'parquet', '--samples', kind)
        run('csv', card, '--cycle', 3, '-o', f'{work}/{kind}.csv', '--resolution', kind)
        file, = [name for name in tree(f'{work}/{kind}/samples') if 'month=none' in name]
        kept = duck(f'{work}/{kind}', f"SELECT * FROM read_parquet('samples/{file}', hive_partitioning = false) LIMIT 5000")[0]
        with open(f'{work}/{kind}.csv', encoding='utf-8', newline='') as table:
            lines = list(csv.reader(table, delimiter=';'))[:5001]
        assert list(kept[0]) == ['time', *names] == ['time', *lines[0][1:]] and len(kept) == len(lines) - 1
        compared = 0
        for row, line in zip(kept, lines[1:]):
            hours, minutes, seconds = line[0].split(':')
            assert round(row['time'] * ticks) == round((int(hours) * 3600 + int(minutes) * 60 + float(seconds)) * ticks)
            for value, text in zip(list(row.values())[1:], line[1:]):
                assert (value is None) == (text == ''), (row['time'], text)
                if re.fullmatch(r'-?\d+(\.\d+)?', text):
                    compared += 1
                    decimals = len(text.partition('.')[2])    # whole numbers are cut off in texts, others rounded
                    assert abs(value - float(text)) <= (0.5000001 * 10.0 ** -decimals if decimals else 1) + abs(value) * 1e-6, (value, text)
        assert compared > 1000 * len(names)
        assert os.path.getsize(f'{work}/{kind}/samples/{file}') < 0.25 * os.path.getsize(f'{work}/{kind}.csv')
    run('scan', card, '-o', f'{work}/all', '--format', 'parquet', '--samples', 'all')
    counts = {name: identifier['count'] for identifier in answer('ids', card, '--cycle', 3)['ids'] for name in identifier['known']}
    table = "FROM read_parquet('samples/**/month=none/*.parquet')"
    told, *values = duck(f'{work}/all', f'SELECT parameter, count(*) AS n {table} GROUP BY parameter',
                         *(f"SELECT time, value {table} WHERE parameter = '{name}' LIMIT 50" for name in ['Oil Temperature A', 'Fuel Flow B']))
    assert {row['parameter']: row['n'] for row in told} == counts
    for name, kept in zip(['Oil Temperature A', 'Fuel Flow B'], values):
        times = [option for row in kept for option in ('--time', f'{row["time"] + 1e-7!r}')]
        assert [one['value'] for one in answer('value', card, '--cycle', 3, '--parameter', name, *times)['values']] == [row['value'] for row in kept]
    codings = set()
    for kind in ['100', '10', 'all']:
        for name, content in tree(f'{work}/{kind}').items():
            for statistics, physical in check_pages(content):
                codings.add((physical, 6 in statistics))
    assert codings >= {(5, True), (6, True), (2, True)}, codings


def check_together(folder, whole, kills, length, work):
    """Scans of the same cards at once into one dataset, killed at any moment and begun again, make what one alone makes."""
    rng, dataset, hits, ends = random.Random(11), f'{work}/together', 0, 0
    call = [ZARN, 'scan', folder, '-o', dataset, '--format', 'parquet', '--samples', '100', '--jobs', '2']
    while hits < kills or os.path.exists(dataset):
        times = [rng.random() * length * rng.choice([0.5, 1]) for _ in range(2)] if hits < kills else [None, None]
        times = [time if rng.random() < 0.7 else None for time in times]    # the other one goes on alone
        with concurrent.futures.ThreadPoolExecutor() as pool:
            statuses = list(pool.map(killed, [call, call], times))
        assert set(statuses) <= {0, -signal.SIGKILL}, statuses
        hits += statuses.count(-signal.SIGKILL)
        for name, content in tree(dataset).items():
            assert whole.get(name) == content, name
        if 0 in statuses:
            assert len(tree(dataset)) == len(whole), set(whole) - set(tree(dataset))
            ends += 1
            shutil.rmtree(dataset)
    print(f'{hits} scans killed beside another one, {ends} datasets brought to their end')


def queries():
    text = re.sub(r'--.*', '', open(f'{DOCS}/queries.sql', encoding='utf-8').read())
    return [query.strip() for query in text.split(';') if query.strip()]


def check_queries(store, dataset):
    assert len(queries()) == 10
    told = duck(dataset, open(f'{DOCS}/dataset.sql', encoding='utf-8').read(), *queries())[1:]
    for number, (query, answered) in enumerate(zip(queries(), told), 1):
        kept = rows(store, query)
        assert json.dumps(answered) == json.dumps(kept) or close(answered, kept), (number, answered[:2], kept[:2])
        assert kept or number in (1, 6), number
    # The first on flights of which one engine drifts, the other does not.
    figures = {'drifts': [80 + n % 3 + (4 if n >= 25 else 0) for n in range(30)], 'stays': [80 + n % 3 for n in range(30)]}
    made = ['CREATE TABLE cycle (cycle_id TEXT, engine_id TEXT)', 'CREATE TABLE flight (flight_id TEXT, cycle_id TEXT, date_time TEXT)',
            'CREATE TABLE key_value (flight_id TEXT, phase TEXT, parameter TEXT, median DOUBLE)']
    for engine, medians in figures.items():
        made.append(f"INSERT INTO cycle VALUES ('{engine}', '{engine}')")
        for n, median in enumerate(medians):
            made.append(f"INSERT INTO flight VALUES ('{engine}{n}', '{engine}', '2025-01-{n + 1:02}T00:00:00')")
            made.append(f"INSERT INTO key_value VALUES ('{engine}{n}', 'climb', 'Oil Temperature A', {median})")
    with contextlib.closing(sqlite3.connect(':memory:')) as database:
        for statement in made:
            database.execute(statement)
        kept = database.execute(queries()[0]).fetchall()
    told = duck('.', *made, queries()[0])[-1]
    assert [row[0] for row in kept] == ['drifts'] and [list(row) for row in kept] == [list(row.values()) for row in told]


def close(a, b):
    """Sums may differ in their last digits with the order of addition."""
    return len(a) == len(b) and all(list(x) == list(y) and all(u == v or (isinstance(u, float) and abs(u - v) <= 1e-9 * abs(v)) for u, v in
                                                               zip(x.values(), y.values())) for x, y in zip(a, b))


def main():
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else 4
    with tempfile.TemporaryDirectory() as work:
        folder, store, dataset = f'{work}/cards', f'{work}/store.sqlite', f'{work}/dataset'
        cards = make_cards(folder, int(sys.argv[3]) if len(sys.argv) > 3 else 3)
        shutil.rmtree(f'{folder}/twin')    # which of two copies of a card comes first is left open here
        run('scan', folder, '-o', store)
        began = time.monotonic()
        run('scan', folder, '-o', dataset, '--format', 'parquet', '--samples', '100', '--jobs', 1)
        length = time.monotonic() - began
        check_tables(store, dataset)
        check_copies(f'{folder}/zbad', work)
        problem = 'SELECT file, reason, card.path FROM problem JOIN card USING (card_id) ORDER BY file'
        assert duck(dataset, "SELECT file, reason, path FROM read_parquet('problems/**/*.parquet') ORDER BY file")[0] == rows(store, problem)
        check_samples(cards[0], work)
        whole = tree(dataset)
        assert '3 damaged' not in run('scan', folder, '-o', dataset, '--format', 'parquet', '--samples', '100')[0] and tree(dataset) == whole
        check_together(folder, whole, kills, length, work)
        check_queries(store, dataset)


main()
