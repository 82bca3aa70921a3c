#!/usr/bin/env python3
"""Checks that every text of the program has its translation: takes the texts of the sources over into a copy of each .ts file, so that one
that is new in the code is seen here, and looks at what is then unfinished.

    TestTranslations.py LUPDATE ROOT
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

LUPDATE, ROOT = sys.argv[1:3]
with open(os.path.join(ROOT, 'cmake', 'Translations.cmake'), encoding='utf-8') as file:
    FOLDERS = re.search(r'-recursive (.+) -ts', file.read())[1].split()
MARK = re.compile(r'%(?:\d|n)|\(\*[^)]*\)|</?\w+')


def messages(ts):
    with tempfile.TemporaryDirectory() as folder:
        copy = os.path.join(folder, os.path.basename(ts))
        shutil.copy(ts, copy)
        subprocess.run([LUPDATE, '-silent', '-no-obsolete', '-locations', 'none', '-I', '.', '-recursive', *FOLDERS, '-ts', copy],
                       cwd=ROOT, check=True, stderr=subprocess.DEVNULL)
        for context in ElementTree.parse(copy).getroot().iter('context'):
            for message in context.iter('message'):
                translation = message.find('translation')
                forms = [form.text for form in translation.iter('numerusform')] or [translation.text]
                yield context.find('name').text, message.find('source').text, translation.get('type'), forms


class TestTranslations(unittest.TestCase):
    def setUp(self):
        folder = os.path.join(ROOT, 'resources', 'translations')
        self.files = [os.path.join(folder, name) for name in sorted(os.listdir(folder)) if name.endswith('.ts')]
        self.assertTrue(self.files, 'no .ts file')

    def test_complete(self):
        for ts in self.files:
            found = list(messages(ts))
            self.assertGreater(len(found), 100, 'the sources were not read')
            self.assertIn('ZARN::DialogMain', {context for context, *_ in found}, 'contexts must carry the namespace')
            missing = [f'{context}: {source!r}' for context, source, state, forms in found if state or not all(forms)]
            self.assertEqual(missing, [], f'{os.path.basename(ts)}: run the target update_translations and translate')

    def test_marks(self):
        """What the program puts in, and markup, must survive; a form of a number may leave the number out."""
        for ts in self.files:
            for context, source, state, forms in messages(ts):
                for form in forms:
                    if state is None and form:
                        self.assertEqual(sorted(set(MARK.findall(source))), sorted(set(MARK.findall(form))), f'{context}: {source!r}')


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
