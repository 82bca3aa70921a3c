#!/usr/bin/env python3
"""TestFleet.py ZARN_CLI: the recipes of docs/fleet.md: a cluster of two workers, one of which is killed on the way, and GNU parallel."""
import os
import re
import signal
import subprocess
import sys
import tempfile
import time

from StoreSupport import ZARN, make_cards, run, tree

ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '../..'))


def workers(parent):
    """The worker processes that a cluster started, its own helpers left out."""
    found = []
    for entry in filter(str.isdigit, os.listdir('/proc')):
        try:
            with open(f'/proc/{entry}/stat', encoding='utf-8') as stat, open(f'/proc/{entry}/cmdline', 'rb') as command:
                if int(stat.read().rpartition(')')[2].split()[1]) == parent and b'spawn_main' in command.read():
                    found.append(int(entry))
        except (FileNotFoundError, ProcessLookupError):
            pass
    return found


def check_dask(cards, dataset, kill):
    fleet = subprocess.Popen(['/usr/bin/python3', f'{ROOT}/contrib/dask/zarn_fleet.py', '-o', dataset, '--workers', '2', '--shards', '6',
                              '--zarn-cli', ZARN, cards, '--', '--samples', '100'], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    deadline = time.monotonic() + 120
    while kill and not os.path.isdir(f'{dataset}/cycles') and fleet.poll() is None and time.monotonic() < deadline:
        time.sleep(0.01)
    killed = workers(fleet.pid)[:1] if kill else []
    for worker in killed:
        os.kill(worker, signal.SIGKILL)
    out, error = fleet.communicate(timeout=300)
    assert fleet.returncode == 0 and bool(killed) == kill, error
    return out.splitlines()[-1]


def check_parallel(cards, work):
    """The commands of the page as they stand there, on this machine."""
    with open(f'{ROOT}/docs/fleet.md', encoding='utf-8') as page:
        recipe, = re.findall(r'```sh\n(# On one machine.*?)```', page.read(), re.S)
    subprocess.run(['bash', '-euc', recipe.replace('/archive/cards', cards)], cwd=work, check=True, capture_output=True,
                   env={**os.environ, 'PATH': f'{os.path.dirname(ZARN)}:{os.environ["PATH"]}'})


def main():
    with tempfile.TemporaryDirectory() as work:
        cards = f'{work}/cards'
        make_cards(cards, 8)
        subprocess.run(['rm', '-r', f'{cards}/twin'], check=True)
        run('scan', cards, '-o', f'{work}/one', '--format', 'parquet', '--samples', '100')
        whole = tree(f'{work}/one')
        totals = check_dask(cards, f'{work}/many', True)
        assert tree(f'{work}/many') == whole and totals.startswith('9 cards') and '1 damaged' in totals, totals
        assert '9 cards, 0 unchanged cards, 0 cycles' in check_dask(cards, f'{work}/many', False)
        check_parallel(cards, work)
        run('scan', cards, '-o', f'{work}/plain', '--format', 'parquet')
        assert tree(f'{work}/dataset') == tree(f'{work}/plain')


sys.exit(main())
