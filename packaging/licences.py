#!/usr/bin/env python3
"""Whose work a file of the tree is and under which licence, as REUSE.toml says.

    packaging/licences.py           checks that each annotation is of a file, each licence has its text, and each text is of a licence

Prints one line a finding; status 1 when there is any.
"""

import re
import sys
import tomllib
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def names(expression):
    """The licences of an expression such as "ISC AND MIT"."""
    return set(re.split(r' (?:AND|OR|WITH) ', expression.replace('(', '').replace(')', '')))


class Licences:
    def __init__(self):
        with open(ROOT / 'REUSE.toml', 'rb') as file:
            self.annotations = tomllib.load(file)['annotations']

    def of(self, path):
        """(pattern, expression, list of holders) of a file, by its path below the root."""
        one = [one for one in self.annotations if self.fits(one['path'], path)][-1]
        holders = one['SPDX-FileCopyrightText']
        return one['path'], one['SPDX-License-Identifier'], holders if isinstance(holders, list) else [holders]

    @staticmethod
    def fits(pattern, path):
        parts = (re.escape(part).replace(r'\*', '[^/]*') for part in pattern.split('**'))
        return re.fullmatch('.*'.join(parts), path) is not None

    def findings(self):
        for one in self.annotations:
            if next(ROOT.glob(one['path']), None) is None:
                yield f'REUSE.toml: no file is {one["path"]}'
        used = set().union(*(names(one['SPDX-License-Identifier']) for one in self.annotations))
        texts = {path.stem for path in (ROOT / 'LICENSES').glob('*.txt')}
        yield from (f'LICENSES: no text of {name}' for name in sorted(used - texts))
        yield from (f'LICENSES/{name}.txt: nothing is under it' for name in sorted(texts - used))


if __name__ == '__main__':
    found = list(Licences().findings())
    print('\n'.join(found) if found else 'Each licence has its text.')
    sys.exit(1 if found else 0)
