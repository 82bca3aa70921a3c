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
with open(os.path.join(ROOT, 'cmake', 'Translations.cmake'), encoding='utf-8') as cmake:
    FOLDERS = re.search(r'-recursive (.*?)\)', cmake.read()).group(1).split()
MARK = re.compile(r'%(?:\d|L?n)|\(\*[^)]*\)|</?\w+')


def isEnglish(ts):
    """Whose texts stand in the sources, but for the forms of those with a number."""
    return ts.endswith('_en.ts')


def messages(ts):
    with tempfile.TemporaryDirectory() as folder:
        copy = os.path.join(folder, os.path.basename(ts))
        shutil.copy(ts, copy)
        forms = ['-pluralonly'] if isEnglish(ts) else []
        subprocess.run([LUPDATE, *forms, '-silent', '-no-obsolete', '-locations', 'none', '-I', '.', '-recursive', *FOLDERS, '-ts', copy],
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

    def test_folders(self):
        texts = re.compile(r'\btr\("|QT_TRANSLATE_NOOP\(')
        for folder in sorted(set(os.listdir(ROOT)) - {'build', 'tests', 'bench', 'fuzz', *FOLDERS}):
            for place, _, names in os.walk(os.path.join(ROOT, folder)):
                for name in (name for name in names if name.endswith('.cpp')):
                    with open(os.path.join(place, name), encoding='utf-8') as file:
                        self.assertIsNone(texts.search(file.read()), f'{place}/{name}: its folder is not translated')

    def test_complete(self):
        for ts in self.files:
            found = list(messages(ts))
            self.assertGreater(len(found), 10 if isEnglish(ts) else 1000, 'the sources were not read')
            self.assertIn('ZARN::DialogData', {context for context, *_ in found}, 'contexts must carry the namespace')
            lost = [name for name, *_ in found if any(other.endswith('::' + name) for other, *_ in found)]
            self.assertEqual(lost, [], 'the program asks for these in the context with the namespace')
            missing = [f'{context}: {source!r}' for context, source, state, forms in found if state or not all(forms)]
            self.assertEqual(missing, [], f'{os.path.basename(ts)}: run the target update_translations and translate')

    def test_marks(self):
        """What the program puts in, and markup, must survive; no text offers both forms of a word."""
        for ts in self.files:
            for context, source, state, forms in messages(ts):
                for form in forms:
                    self.assertNotIn('(s)', form or '', f'{context}: {source!r}')
                    if state is None and form:
                        self.assertEqual(sorted(set(MARK.findall(source))), sorted(set(MARK.findall(form))), f'{context}: {source!r}')


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
