"""The table of docs/formats/settings.md says of every setting what app/Settings.h says."""

import os
import re
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
KINDS = {'Text': 'text', 'Numbered': 'text', 'Switch': 'switch', 'Fraction': 'fraction', 'Number': 'whole number'}


def read(path):
    with open(os.path.join(ROOT, path), encoding='utf-8') as file:
        return file.read()


def expected(kind, key, values):
    """The first four cells of a setting's row."""
    values = [str(ord(value.strip("'").replace('\\t', '\t'))) if value.startswith("'") else value for value in values]
    default = {'""': 'none', 'true': 'on', 'false': 'off'}.get(values[0], values[0].replace('"', '`'))
    name, limits = f'`{key}`', ''
    if kind == 'Numbered':
        name, default = f'`{key}0` ... `{key}{int(values[0]) - 1}`', 'none'
    if kind == 'Number':
        limits = f'from {values[1]}' if values[2] == 'kNoEnd' else f'{values[1]} to {values[2]}'
    return [name, KINDS[kind], default, limits]


class SettingsPage(unittest.TestCase):
    def test_table_is_catalogue(self):
        code = re.findall(r'constexpr (\w+)Setting \w+ = \{"(\w+)", (.*?)\};', read('app/Settings.h'))
        table = [[cell.strip() for cell in line.split('|')[1:5]] for line in read('docs/formats/settings.md').splitlines() if line.startswith('| `')]
        self.assertGreater(len(code), 30)
        self.assertEqual(table, [expected(kind, key, values.split(', ')) for kind, key, values in code])


if __name__ == '__main__':
    unittest.main()
