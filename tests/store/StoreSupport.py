"""What the tests of stores share: demo cards, calls of zarn-cli, and what a store holds."""
import contextlib
import json
import os
import shutil
import sqlite3
import subprocess
import sys

ZARN = os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else None
KEYS = 'start_time end_time take_off_time landing_time min_altitude max_altitude total_climb average_climb_rate average_descend_rate ' \
       'max_ground_speed fuel_a fuel_b total_fuel time_per100m fuel_per100m take_off_distance take_off_distance15m'.split()


def run(*arguments, status=0, **options):
    """Standard output and standard error of a call that must end so."""
    done = subprocess.run([ZARN, *map(str, arguments)], capture_output=True, text=True, check=False, **options)
    assert done.returncode == status, f'{arguments}: status {done.returncode}: {done.stderr}'
    return done.stdout, done.stderr


def killed(call, seconds):
    """The status of a call that is killed after a time, where it has not ended by itself; without a time it is left alone."""
    with subprocess.Popen(call, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        with contextlib.suppress(subprocess.TimeoutExpired):
            process.wait(seconds)
        process.kill()
    return process.returncode


def answer(*arguments):
    return json.loads(run(*arguments, '--json')[0])


def camel(name):
    first, *others = name.split('_')
    return first + ''.join(other.capitalize() for other in others)


def make_cards(folder, count):
    """A folder of cards with different engines, a copy of the first, damaged files and a folder that is no card."""
    for seed in range(1, count + 1):
        run('simulate', f'{folder}/card{seed:02}', '--seed', seed)
    shutil.copytree(f'{folder}/card01', f'{folder}/twin')
    os.makedirs(f'{folder}/none')
    os.makedirs(f'{folder}/zbad')
    with open(f'{folder}/card01/LOG00001.CAN', 'rb') as whole, open(f'{folder}/zbad/LOG00001.CAN', 'wb') as cut:
        cut.write(whole.read(100_001))
    open(f'{folder}/zbad/LOG00002.CAN', 'wb').close()
    return [f'{folder}/card{seed:02}' for seed in range(1, count + 1)]


def dump(path):
    """All that a store says, but when."""
    with contextlib.closing(sqlite3.connect(path)) as store:
        store.execute('UPDATE card SET first_seen = NULL')
        assert store.execute('PRAGMA foreign_key_check').fetchall() == [] and store.execute('PRAGMA integrity_check').fetchone() == ('ok',)
        return list(store.iterdump())


def rows(path, sql, *values):
    with contextlib.closing(sqlite3.connect(path)) as store:
        store.row_factory = sqlite3.Row
        return [dict(row) for row in store.execute(sql, values)]


def change(path, *statements):
    with contextlib.closing(sqlite3.connect(path)) as store:
        for statement in statements:
            store.execute(statement)
        store.commit()


def duck(folder, *statements):
    """What DuckDB answers to statements, run one after the other in a folder: lists of rows."""
    here = os.path.dirname(os.path.abspath(__file__))
    modules = os.path.normpath(f'{here}/../../build/node/node_modules')
    assert os.path.isdir(f'{modules}/@duckdb/node-api'), 'DuckDB is not there: run tools/install-packages test'
    done = subprocess.run(['node', f'{here}/duck.js', folder], input=json.dumps(statements), capture_output=True, text=True, check=False,
                          env={**os.environ, 'NODE_PATH': modules})
    assert done.returncode == 0, done.stderr
    return json.loads(done.stdout)


def tree(folder):
    """The files below a folder with their bytes."""
    paths = [os.path.join(place, name) for place, _, names in os.walk(folder) for name in names]
    return {os.path.relpath(path, folder): open(path, 'rb').read() for path in paths}
