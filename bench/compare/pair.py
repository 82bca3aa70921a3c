#!/usr/bin/env python3
"""Times two commands in turn (A B A B ...) and prints the ratio A/B pair by pair: on a busy machine only that counts.

    pair.py [-n 7] [--warm-memory GIB] [--timeout SECONDS] --a 'COMMAND A' --b 'COMMAND B'

Whole processes: wall time from start to exit, processor time (user and system) and peak resident memory, as the operating system
accounts for the finished child; what the commands print is discarded. --warm-memory touches that much memory just before each run and
frees it, so that both commands find pages which the machine already backs: a virtual machine that hands free pages back to its host
makes the first touch of a page several times dearer, and at random.
"""

import argparse
import mmap
import os
import shlex
import signal
import statistics
import sys
import time

FIGURES = ('wall s', 'cpu s', 'peak MiB')


def warm(gib):
    child = os.fork()
    if child == 0:
        memory = mmap.mmap(-1, int(gib * (1 << 30)))
        for place in range(0, len(memory), mmap.PAGESIZE):
            memory[place] = 1
        os._exit(0)
    os.waitpid(child, 0)


def run(command, timeout):
    """(wall seconds, processor seconds, peak MiB) of one run. Raises RuntimeError when it does not end with status 0."""
    null = os.open(os.devnull, os.O_RDWR)
    start = time.monotonic()
    child = os.posix_spawnp(command[0], command, os.environ, file_actions=[(os.POSIX_SPAWN_DUP2, null, to) for to in (0, 1, 2)])
    signal.signal(signal.SIGALRM, lambda *_: os.kill(child, signal.SIGKILL))
    signal.alarm(timeout)
    _, status, usage = os.wait4(child, 0)
    wall = time.monotonic() - start
    signal.alarm(0)
    os.close(null)
    if os.waitstatus_to_exitcode(status) != 0:
        raise RuntimeError(f'{shlex.join(command)} ended with {os.waitstatus_to_exitcode(status)}')
    return wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def compare(a, b, pairs=7, warm_memory=0.0, timeout=600):
    """{figure: (median of A, median of B, ratios A/B ascending)} of two commands given as lists; the first pair does not count."""
    runs = {'a': [], 'b': []}
    for turn in range(pairs + 1):
        for name in ('ab' if turn % 2 == 0 else 'ba'):
            if warm_memory:
                warm(warm_memory)
            result = run(a if name == 'a' else b, timeout)
            if turn > 0:
                runs[name].append(result)
    figures = {}
    for place, figure in enumerate(FIGURES):
        of_a, of_b = ([result[place] for result in runs[name]] for name in 'ab')
        ratios = sorted(x / y for x, y in zip(of_a, of_b) if y > 0)
        figures[figure] = (statistics.median(of_a), statistics.median(of_b), ratios)
    return figures


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('-n', type=int, default=7)
    parser.add_argument('--warm-memory', type=float, default=0)
    parser.add_argument('--timeout', type=int, default=600)
    parser.add_argument('--a', required=True)
    parser.add_argument('--b', required=True)
    options = parser.parse_args()
    try:
        figures = compare(shlex.split(options.a), shlex.split(options.b), options.n, options.warm_memory, options.timeout)
    except (RuntimeError, OSError) as error:
        sys.exit(f'pair.py: {error}')
    for figure, (a, b, ratios) in figures.items():
        spread = f'{statistics.median(ratios):.3f}  ({ratios[0]:.3f} .. {ratios[-1]:.3f})' if ratios else 'too short to tell'
        print(f'{figure:9} A {a:10.3f}   B {b:10.3f}   A/B {spread}')


if __name__ == '__main__':
    main()
