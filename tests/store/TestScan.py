#!/usr/bin/env python3
"""TestScan.py ZARN_CLI [KILLS [CARDS]]: the store that `scan` makes, against `summary` and `flights`, killed on the way, and of bad files."""
import contextlib
import glob
import hashlib
import math
import os
import random
import resource
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time

from StoreSupport import KEYS, ZARN, answer, camel, change, duck, dump, killed, make_cards, rows, run


def check_values(store, card):
    """Each cycle, flight, incident and episode of a card is in the store as the other subcommands tell it, and by its content."""
    files = {file['name']: os.path.getsize(f'{card}/{file["name"]}') for file in answer('info', card)['files']}
    told = answer('info', card)['cycles']
    for cycle in answer('summary', card)['cards'][0]['cycles']:
        sha = hashlib.sha256()
        for name in next(other for other in told if other['number'] == cycle['number'])['files']:
            with open(f'{card}/{name}', 'rb') as file:
                content = file.read()
            sha.update(b'%d\n' % files[name] + content[:65536] + content[-65536:])
        kept, = rows(store, 'SELECT * FROM cycle WHERE cycle_id = ?', sha.hexdigest())
        for column, key in [(name, camel(name)) for name in 'number date_time start_time end_time engine_running flight_time fuel verdict'.split()]:
            assert kept[column] == cycle[key], (column, kept[column], cycle[key])
        assert [kept['sources'], kept['sources_with_samples']] == list(cycle['watched'].values())
        flights = rows(store, 'SELECT * FROM flight WHERE cycle_id = ? ORDER BY number', sha.hexdigest())
        assert [[flight[key] for key in KEYS] for flight in flights] == [[flight[camel(key)] for key in KEYS] for flight in cycle['flights']]
        episodes = rows(store, 'SELECT * FROM episode WHERE cycle_id = ? ORDER BY episode_id', sha.hexdigest())
        expected = [episode for incident in cycle['incidents'] for episode in incident['episodes']] + cycle['standing']
        names = dict(kind='kind', device='group', parameter='parameter', unit='unit', state='state', start_time='start', end_time='end', side='side',
                     boundary='limit', peak='peak', peak_time='peakTime', text='text')
        assert [[episode[key] for key in names] for episode in episodes] == [[episode[key] for key in names.values()] for episode in expected]
        assert [[row['title'], row['phase'], row['number']] for row in rows(
            store, 'SELECT i.title, i.phase, f.number FROM incident i LEFT JOIN flight f USING (flight_id) WHERE i.cycle_id = ? ORDER BY incident_id',
            sha.hexdigest())] == [[incident['title'], incident['phase'], incident['flight']] for incident in cycle['incidents']]


def check_killed(folder, whole, line, kills):
    """However often it is killed, the same call goes on, and the end is that of an undisturbed scan."""
    began = time.monotonic()
    assert run('scan', folder, '-o', f'{folder}/../timed.sqlite', '--jobs', 2)[0] == line    # copies side by side, too
    length, rng, store, hits, ends = time.monotonic() - began, random.Random(7), f'{folder}/../killed.sqlite', 0, 0
    while hits < kills or os.path.exists(store):
        status = killed([ZARN, 'scan', folder, '-o', store, '--jobs', '2'], rng.random() * length * rng.choice([0.1, 0.5, 1]) if hits < kills else None)
        hits += status == -signal.SIGKILL
        if status != -signal.SIGKILL:
            assert status == 0 and dump(store) == whole, status
            ends += 1
            os.remove(store)
    print(f'{hits} scans killed while they ran, {ends} stores brought to their end')


def check_changes(work, cards):
    """A card that was read while it was copied, one that was emptied and written anew, another variant of the analysis."""
    card, store, dataset = f'{work}/changing', f'{work}/changes.sqlite', f'{work}/changes'
    shutil.copytree(cards[0], card)
    late = [name for name in sorted(os.listdir(card))][4:]
    for name in late:
        os.rename(f'{card}/{name}', f'{work}/{name}')
    with open(f'{work}/{late[-1]}', 'rb') as whole, open(f'{card}/{late[-1]}', 'wb') as beginning: # of a cycle without a clock
        beginning.write(whole.read(56128))
    forms = ((store,), (dataset, '--format', 'parquet'))
    for form in forms:
        run('scan', card, '-o', *form)
    part = rows(store, 'SELECT cycle_id FROM cycle WHERE number = 2')[0]['cycle_id']
    change(store, f"INSERT INTO note (cycle_id, time, text) VALUES ('{part}', 1, 'mine')")
    for name in late:
        os.rename(f'{work}/{name}', f'{card}/{name}')
    for name in os.listdir(card):
        os.utime(f'{card}/{name}', (1, 1))    # copied once more
    for form in forms:
        run('scan', card, '-o', *form)

    def told():
        return [rows(store, 'SELECT reason FROM problem'), duck(dataset, "SELECT reason FROM read_parquet('problems/**/*.parquet')")[0]]

    def kept():
        return sorted({name for table in ('cycles', 'flights') for _, _, names in os.walk(f'{dataset}/{table}') for name in names})

    def cycles():
        return rows(store, 'SELECT cycle_id, number, end_time FROM cycle ORDER BY cycle_id')
    before = cycles()
    assert kept() == [row['cycle_id'] + '.parquet' for row in before]
    # What a card has lost since stays in the store; what is left of a recording is none of its own, or its hours would count twice.
    for lost in (late, late[1:], []):
        for name in late:
            if name in lost and os.path.exists(f'{card}/{name}'):
                os.rename(f'{card}/{name}', f'{work}/{name}')
            elif name not in lost and os.path.exists(f'{work}/{name}'):
                os.rename(f'{work}/{name}', f'{card}/{name}')
        for form in forms:
            run('scan', card, '-o', *form)
        assert cycles() == before and kept() == [row['cycle_id'] + '.parquet' for row in before], lost
    assert [row['number'] for row in rows(store, 'SELECT number FROM cycle ORDER BY number')] == [1, 2, 3]
    assert rows(store, 'SELECT number FROM note JOIN cycle USING (cycle_id)') == [{'number': 2}]
    check_values(store, card)
    for place in (card, f'{card}/below'):    # what could not be read is forgotten when a card is there again, or a folder of cards
        shutil.rmtree(card)
        for form in forms:
            run('scan', card, '-o', *form, status=1)
        assert told() == [[{'reason': 'no such folder'}]] * 2
        shutil.copytree(cards[1], place)
        for form in forms:
            run('scan', card, '-o', *form)
        assert len(rows(store, 'SELECT 1 FROM cycle')) == 6 and told() == [[], []], place
    other = {row['engine_id'] for row in rows(store, 'SELECT engine_id FROM cycle')} - {'DEMO-000001'}
    change(store, *(f"INSERT INTO engine_merge VALUES ('{engine}', 'DEMO-000001')" for engine in other),
           "UPDATE cycle SET analysis_version = 0, verdict = 'x' WHERE number = 2")
    run('scan', card, '-o', store)
    moved = rows(store, 'SELECT merged_cycle.engine_id AS own, cycle.engine_id AS now FROM merged_cycle JOIN cycle USING (cycle_id)')
    assert moved and {row['own'] for row in moved} <= other and {row['now'] for row in moved} == {'DEMO-000001'}
    assert len(rows(store, "SELECT 1 FROM cycle WHERE verdict = 'x'")) == 1 and len(rows(store, 'SELECT 1 FROM note')) == 1


def refused(card, store, reason, **options):
    before = hashlib.sha256(open(store, 'rb').read()).digest() if os.path.isfile(store) else None
    error = run('scan', card, '-o', store, status=1, **options)[1]
    assert reason in error and error.count('\n') == 1, error
    assert before is None or before == hashlib.sha256(open(store, 'rb').read()).digest() or options \
        or 'put aside' in error, store


def check_bad_stores(work, card):
    text, other, newer, damaged, locked = (f'{work}/{name}.sqlite' for name in 'text other newer damaged locked'.split())
    with open(text, 'w', encoding='utf-8') as file:
        file.write('engine;serial\n' * 1000)
    refused(card, text, 'not an SQLite file')
    change(other, 'CREATE TABLE mine (x)')
    refused(card, other, 'another program')
    open(newer, 'w').close()    # the form before the first: an empty file
    run('scan', card, '-o', newer)
    change(newer, "INSERT INTO reading VALUES ('DEMO-000001', '2025-01-01T00:00:00', 12.5, 'typed')")
    shutil.copy(newer, damaged)
    shutil.copy(newer, locked)
    change(newer, 'DELETE FROM cycle_unit')    # which an older form does not tell
    before = dump(newer)
    change(newer, *(f'DROP TABLE {table}' for table in ('cycle_unit', 'merged_cycle', 'engine_merge', 'aircraft')), 'PRAGMA user_version = 1')
    run('scan', card, '-o', newer)
    assert dump(newer) == before    # the form before this one
    change(newer, 'PRAGMA user_version = 99')
    refused(card, newer, 'newer version')
    with open(damaged, 'r+b') as file:
        for row in rows(damaged, "SELECT rootpage FROM sqlite_master WHERE name IN ('key_value', 'episode')"):
            file.seek((row['rootpage'] - 1) * 4096)
            file.write(b'\x55' * 64)
    refused(card, damaged, 'cycles 3, flights 2, notes 0, services 0, typed hours 1; what was in the damaged part')
    aside, = [name for name in os.listdir(work) if 'sqlite.damaged-' in name and name[-4:] not in ('-wal', '-shm')]
    assert os.path.getsize(f'{work}/{aside}') > 4096
    run('scan', card, '-o', damaged)
    check_values(damaged, card)
    assert len(dump(damaged)) == len(dump(locked))  # the numbers of rows are others
    change(locked, 'DELETE FROM problem', 'DELETE FROM file')
    with contextlib.closing(sqlite3.connect(locked, isolation_level=None)) as database:
        database.execute('BEGIN IMMEDIATE')
        refused(card, locked, 'another program is writing')
    refused(card, work, 'it is no file')
    refused(card, f'{work}/no/folder.sqlite', 'No such file')
    refused(card, f'{work}/full.sqlite', 'full.sqlite: ', preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (60_000, 60_000)))
    assert not os.path.exists(f'{work}/full.sqlite')


def check_removed(work, folder):
    """What would be written into a file without a name is said, not lost in silence."""
    for _ in range(20):
        scan = subprocess.Popen([ZARN, 'scan', folder, '-o', f'{work}/removed.sqlite', '--jobs', '1'], stderr=subprocess.PIPE,
                                stdout=subprocess.DEVNULL)
        while not os.path.exists(f'{work}/removed.sqlite') or not rows(f'{work}/removed.sqlite', "SELECT 1 FROM sqlite_master WHERE name = 'note'"):
            time.sleep(0.001)
        for name in glob.glob(f'{work}/removed.sqlite*'):
            os.remove(name)
        words = scan.communicate()[1]
        if b'removed or replaced' in words:
            break
        # It had come to its end already, or was about to open the file once more.
        assert scan.returncode == 0 or b'removed.sqlite: No such file' in words, words
    assert b'removed or replaced' in words and scan.returncode == 1, (scan.returncode, words)


def main():
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else 6
    with tempfile.TemporaryDirectory() as work:
        folder, store = f'{work}/cards', f'{work}/store.sqlite'
        count = int(sys.argv[3]) if len(sys.argv) > 3 else 6
        cards = make_cards(folder, count)
        line = run('scan', folder, '-o', store, '--jobs', 1)[0]
        whole = dump(store)
        for card in [*cards[:2], f'{folder}/twin', f'{folder}/zbad']:
            check_values(store, card)
        assert len(rows(store, 'SELECT 1 FROM card')) == count + 2 and len(rows(store, 'SELECT 1 FROM cycle')) == count * 3 + 2
        assert [row['file'] for row in rows(store, 'SELECT file FROM problem ORDER BY file')] == ['LOG00001.CAN', 'LOG00002.CAN']
        damaged = rows(store, "SELECT engine_id FROM cycle JOIN card USING (card_id) WHERE name = 'zbad' ORDER BY number")
        assert [row['engine_id'] for row in damaged] == ['DEMO-000001', 'card:zbad']
        assert 'unchanged, 0 cycles' in run('scan', folder, f'{folder}/card01', '-o', store)[0] and dump(store) == whole
        run('scan', f'{folder}/none', '-o', f'{work}/none.sqlite', status=1)
        assert not os.path.exists(f'{work}/none.sqlite')
        assert math.isclose(rows(store, 'SELECT sum(flight_time) AS s FROM cycle')[0]['s'],
                            rows(store, 'SELECT sum(landing_time - take_off_time) AS s FROM flight')[0]['s'])
        first, last = [row['hours'] for row in rows(store, "SELECT hours FROM reading WHERE engine_id = 'DEMO-000001' ORDER BY date")]
        ran = rows(store, "SELECT engine_running AS s FROM cycle WHERE engine_id = 'DEMO-000001' AND number = 2")[0]['s']
        assert abs(last - first - ran / 3600) < 0.01
        check_killed(folder, whole, line, kills)
        check_changes(work, cards)
        check_bad_stores(work, cards[0])
        check_removed(work, folder)


main()
