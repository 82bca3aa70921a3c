#!/usr/bin/python3
"""Scans any number of cards into one Parquet dataset with the workers of a Dask cluster.

    zarn_fleet.py -o DATASET [DIR ...] [--from-file LIST] [--scheduler tcp://HOST:8786 | --workers N]
                  [--shards N] [--zarn-cli PROGRAM] [-- OPTIONS OF zarn-cli scan ...]

Each task is one `zarn-cli scan --from-file -` with a part of the list. A part whose worker is lost goes to another worker; what the lost one had
written stays, for each file of the dataset is whole. All workers need the program, the cards and the dataset under the same paths. Ends with a
line of totals, and with status 1 when a part failed or a card could not be read.
"""
import argparse
import contextlib
import os
import re
import subprocess
import sys

from distributed import Client, LocalCluster, as_completed

SUFFIXES = ('.CAN', '.can', '.xcb', '.log')    # of record files
COUNTS = {'cards': r'(\d+) cards?:', 'unchanged cards': r'(\d+) unchanged', 'cycles': r'(\d+) cycles?', 'flights': r'(\d+) flights?',
          'damaged cards': r'(\d+) damaged', 'cards not read whole': r'(\d+) not read whole'}


def folders_of(paths):
    """The folders at or below paths that hold what is called like a record file. A path without one stays: the scan says what is wrong with it."""
    for path in paths:
        found = [folder for folder, _, names in os.walk(path) if any(name.endswith(SUFFIXES) and not name.startswith('.') for name in names)]
        yield from found or [path]


def scan(program, shard, output, options):
    """One part of the list, on a worker. What the system kills is tried again; what the scan itself says is an answer."""
    done = subprocess.run([program, 'scan', '--from-file', '-', '-o', output, '--format', 'parquet', '--jobs', '1', *options],
                          input='\n'.join(shard) + '\n', capture_output=True, text=True, check=False)
    if done.returncode not in (0, 1):
        raise RuntimeError(f'status {done.returncode}: {done.stderr.strip()}')
    counts = [re.search(pattern, done.stdout) for pattern in COUNTS.values()]
    return done.returncode, [int(match[1]) if match else 0 for match in counts], done.stderr


def options_of(arguments):
    parser = argparse.ArgumentParser(description=__doc__.split('\n', 1)[0], formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('folders', metavar='DIR', nargs='*')
    parser.add_argument('-o', '--output', required=True, metavar='DATASET')
    parser.add_argument('--from-file', metavar='LIST', help='file that names more cards, one path a line; "-" is standard input')
    parser.add_argument('--scheduler', help='address of a running cluster (default: one on this machine)')
    parser.add_argument('--workers', type=int, default=os.cpu_count(), help='processes of the cluster on this machine')
    parser.add_argument('--shards', type=int, help='parts of the list (default: of about 50 cards)')
    parser.add_argument('--zarn-cli', default='zarn-cli')
    split = arguments.index('--') if '--' in arguments else len(arguments)
    options = parser.parse_args(arguments[:split])
    options.scan = arguments[split + 1:]
    return options


def main():
    options = options_of(sys.argv[1:])
    paths = list(options.folders)
    if options.from_file:
        with sys.stdin if options.from_file == '-' else open(options.from_file, encoding='utf-8', errors='surrogateescape') as file:
            paths += [line.rstrip('\r\n') for line in file if line.strip()]
    cards = sorted({os.path.abspath(folder) for folder in folders_of(paths)})
    count = max(1, min(len(cards), options.shards or -(-len(cards) // 50)))
    shards = [cards[number::count] for number in range(count)]
    totals, failed = [0] * len(COUNTS), 0
    with contextlib.ExitStack() as stack:
        cluster = options.scheduler or stack.enter_context(
            LocalCluster(n_workers=options.workers, threads_per_worker=1, dashboard_address=None, host='127.0.0.1'))
        client = stack.enter_context(Client(cluster))
        futures = [client.submit(scan, options.zarn_cli, shard, os.path.abspath(options.output), options.scan, retries=3, pure=False)
                   for shard in shards if shard]
        for future in as_completed(futures):
            if future.status != 'finished':
                failed += 1
                print(f'zarn_fleet: a part failed: {future.exception()}', file=sys.stderr)
                continue
            status, counts, said = future.result()
            failed += status
            totals = [total + number for total, number in zip(totals, counts)]
            sys.stderr.write(said)
    print(', '.join(f'{number} {name}' for name, number in zip(COUNTS, totals)))
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
