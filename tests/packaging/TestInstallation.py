#!/usr/bin/env python3
"""What "cmake --install" leaves behind: programs that find their resources through links, and everything that a desktop, a shell and man
read of it. Called with the build and the source folder."""

import json
import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest
from xml.etree import ElementTree

BUILD, SOURCE = sys.argv[1], sys.argv[2]
ID = 'org.zarn.zarn'


def run(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


class TestInstallation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.prefix = cls.folder.name + '/usr'
        done = run('cmake', '--install', BUILD, '--prefix', cls.prefix)
        if done.returncode != 0:
            raise RuntimeError(done.stdout + done.stderr)
        cls.cli = cls.prefix + '/bin/zarn-cli'

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def help_of(self, *subcommand):
        done = run(self.cli, *subcommand, '--help')
        self.assertEqual(done.returncode, 0)
        return done.stdout

    def subcommands(self):
        return re.findall(r'^  (\w+) ', self.help_of().split('Subcommands:')[1], re.M)

    def test_batch_program_finds_the_profile(self):
        card = self.folder.name + '/card'
        self.assertEqual(run(self.cli, 'simulate', card).returncode, 0)
        done = run(self.cli, 'flights', card, '--cycle', '2')
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn('Total climb', done.stdout)

    def test_window_program_finds_its_resources(self):
        home = self.folder.name + '/home'
        os.mkdir(home)
        environment = dict(os.environ, HOME=home, XDG_DATA_HOME=home + '/share', QT_QPA_PLATFORM='offscreen')
        try:
            output = subprocess.run([self.prefix + '/bin/zarn'], env=environment, cwd=home, stdout=subprocess.PIPE, timeout=6, check=False).stdout
        except subprocess.TimeoutExpired as stopped:
            output = stopped.stdout    # it waits for its user
        text = output.decode()
        resources = re.search('Resource Path  : <(.*)>', text).group(1)
        self.assertEqual(os.path.realpath(resources), os.path.realpath(self.prefix + '/share/zarn'))
        self.assertRegex(text, r'Profile::loadProfil <\S*/profiles/915/Profile.xml>')
        for name in ('zarn_de.qm', 'qt_de.qm'):
            self.assertTrue(os.path.isfile(resources + name))

    def test_files_are_what_they_claim(self):
        share = self.prefix + '/share'
        modules = dict(os.environ, NODE_PATH=SOURCE + '/build/node/node_modules')
        for command in (['desktop-file-validate', f'{share}/applications/{ID}.desktop'],
                        ['appstreamcli', 'validate', '--no-net', f'{share}/metainfo/{ID}.metainfo.xml'],
                        ['xmllint', '--noout', '--nonet', f'{share}/mime/packages/{ID}.xml'],
                        ['node', SOURCE + '/packaging/check-sbom.js', share + '/doc/zarn/zarn.cdx.json'],
                        [SOURCE + '/packaging/licences.py'],
                        [SOURCE + '/packaging/check-hardening', '--linked', self.prefix + '/bin/zarn', self.cli, self.prefix + '/lib/zarn/bin/zarn-cli-live']):
            done = run(*command, env=modules)
            self.assertEqual(done.returncode, 0, f'{command}: {done.stdout}{done.stderr}')

    def test_bill_of_materials(self):
        with open(self.prefix + '/share/doc/zarn/zarn.cdx.json', encoding='utf-8') as file:
            bill = json.load(file)
        parts = {part['name'].split('1.')[0]: part['licenses'][0]['expression'] for part in bill['components']}
        for name, licence in (('libqt6core6', 'LGPL-3.0-only'), ('libcli11-dev', 'BSD-3-Clause'), ('B612', 'OFL-1.1'), ('libboost', 'BSL-1.0'),
                              ('Natural Earth', 'ISC AND MIT'), ('Lucide', 'ISC'), ('qt6-translations-l10n', 'LGPL-3.0-only')):
            self.assertEqual(parts.get(name), licence, name)

    def test_pictures_and_changes_of_the_description(self):
        component = ElementTree.parse(f'{self.prefix}/share/metainfo/{ID}.metainfo.xml').getroot()
        images = component.findall('.//screenshot/image')
        self.assertGreater(len(images), 2)
        for image in images:
            with open(f'{SOURCE}/docs/images/{os.path.basename(image.text)}', 'rb') as file:
                size = struct.unpack('>II', file.read(24)[16:])
            self.assertEqual(size, (int(image.get('width')), int(image.get('height'))), image.text)
        with open(SOURCE + '/CHANGELOG.md', encoding='utf-8') as file:
            changes = [re.sub(r'\W+', '', change) for change in re.findall(r'^- (.*(?:\n  .*)*)', file.read(), re.M)]
        version = run(self.cli, '--version').stdout.split()[1]
        self.assertEqual(component.find('releases/release').get('version'), version)
        self.assertEqual([re.sub(r'\W+', '', item.text) for item in component.findall('releases//li')], changes)
        log = f'{self.prefix}/share/doc/zarn/changelog.Debian.gz'
        fields = run('bash', '-c', 'zcat "$1" | dpkg-parsechangelog -l -', 'bash', log).stdout
        self.assertIn(f'\nVersion: {version}-1\n', fields)
        for change in changes:
            self.assertIn(change, re.sub(r'\W+', '', fields))

    def test_files_have_their_types(self):
        run('update-mime-database', self.prefix + '/share/mime')
        with open(self.prefix + '/share/mime/globs2', encoding='utf-8') as file:
            types = file.read()
        for ending in ('can', 'xcb'):    # capitals count as well
            self.assertRegex(types, rf'(?m)^\d+:application/x-zarn-record:\*\.{ending}$')
        with open(f'{self.prefix}/share/applications/{ID}.desktop', encoding='utf-8') as file:
            self.assertIn('MimeType=application/x-zarn-record;', file.read())
        card, store = self.folder.name + '/few', self.folder.name + '/store'
        self.assertEqual(run(self.cli, 'simulate', card, '--hours', '0.2').returncode, 0)
        self.assertEqual(run(self.cli, 'scan', card, '-o', store).returncode, 0)
        home = self.folder.name + '/nobody'
        os.makedirs(home, exist_ok=True)
        there = dict(os.environ, XDG_DATA_DIRS=self.prefix + '/share', XDG_DATA_HOME=home, HOME=home)
        found = run('gio', 'info', '-a', 'standard::content-type', store, env=there).stdout
        self.assertIn('application/x-zarn-store', found)

    def test_man_pages(self):
        for page in ('zarn', 'zarn-cli'):
            path = f'{self.prefix}/share/man/man1/{page}.1.gz'
            done = run('man', '--warnings', '-l', path, env=dict(os.environ, MANWIDTH='200', LC_ALL='C.UTF-8'))
            self.assertEqual((done.returncode, done.stderr), (0, ''))
            self.assertNotIn('@', done.stdout)    # a name that was not filled in
            if page == 'zarn-cli':
                text = re.sub('.\b', '', done.stdout)
                for name in self.subcommands():
                    self.assertRegex(text, rf'(?m)^ +{name} ', f'{name} is not described')
                    for option in re.findall(r'--[a-z][a-z-]+', self.help_of(name)):
                        self.assertIn(option, text, f'{option} of {name} is not described')

    def complete(self, *words):
        """What bash makes of a call; fish must offer the same."""
        script = f'''source {self.prefix}/share/bash-completion/completions/zarn-cli
            COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); compopt() {{ :; }}; _zarn_cli; printf '%s\\n' "${{COMPREPLY[@]}}"'''
        done = run('bash', '-c', script, 'bash', self.cli, *words)
        self.assertEqual(done.stderr, '')
        found = done.stdout.split('\n')[:-1] if done.stdout.strip() else []
        script = f'source {self.prefix}/share/fish/vendor_completions.d/zarn-cli.fish; complete -C "$argv"'
        shown = run('fish', '-N', '-c', script, 'zarn-cli', *words, cwd=self.folder.name,
                    env=dict(os.environ, PATH=f'{self.prefix}/bin:' + os.environ['PATH'], HOME=self.folder.name)).stdout
        self.assertEqual({line.split('\t')[0] for line in shown.splitlines()}, {word.replace('\\', '') for word in found}, words)
        return found

    def test_completion(self):
        card = self.folder.name + '/small'
        self.assertEqual(run(self.cli, 'simulate', card, '--hours', '0.2').returncode, 0)
        self.assertEqual(sorted(self.complete('')), sorted(self.subcommands() + ['help', '--help', '--version']))
        self.assertEqual(sorted(self.complete('f')), ['faults', 'flights'])
        self.assertIn('--separator', self.complete('csv', card, '--'))
        self.assertNotIn('--separator', self.complete('info', card, '--'))
        self.assertEqual(self.complete('csv', card, '--separator', 't'), ['tab'])
        self.assertEqual(self.complete('kml', card, '--set', 'KmlTime'), ['KmlTimeStamp='])
        self.assertEqual(self.complete('csv', card, '--cycle', '2'), ['2'])
        self.assertEqual(self.complete('csv', card, '--select', 'Engine\\ St'), ['Engine\\ State'])
        self.assertEqual(self.complete('csv', card, '--flight', ''), [])
        self.assertEqual(run('zsh', '-n', self.prefix + '/share/zsh/vendor-completions/_zarn-cli').stderr, '')

    def test_licences_of_all_that_is_shipped(self):
        with open(self.prefix + '/share/doc/zarn/copyright', encoding='utf-8') as file:
            notice = ' '.join(file.read().split())
        for name in os.listdir(SOURCE + '/resources/licences'):
            with open(f'{SOURCE}/resources/licences/{name}', encoding='utf-8') as file:
                text = ' '.join(file.read().split())
            common = {'lgpl-3.txt': 'common-licenses/LGPL-3', 'gpl-3.txt': 'common-licenses/GPL-3'}.get(name)
            self.assertIn(common or text, notice)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
