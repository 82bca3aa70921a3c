#!/usr/bin/env python3
"""What "cmake --install" leaves behind: programs that find their resources through links, and everything that a desktop, a shell and man
read of it. Called with the build and the source folder."""

import os
import re
import subprocess
import sys
import tempfile
import unittest

BUILD, SOURCE = sys.argv[1], sys.argv[2]


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
        for command in (['desktop-file-validate', share + '/applications/zarn.desktop'],
                        ['appstreamcli', 'validate', '--no-net', share + '/metainfo/org.zarn.zarn.metainfo.xml'],
                        ['xmllint', '--noout', '--nonet', share + '/mime/packages/zarn.xml']):
            done = run(*command)
            self.assertEqual(done.returncode, 0, f'{command}: {done.stdout}{done.stderr}')

    def test_record_files_have_their_type(self):
        run('update-mime-database', self.prefix + '/share/mime')
        with open(self.prefix + '/share/mime/globs2', encoding='utf-8') as file:
            types = file.read()
        for ending in ('can', 'xcb'):    # capitals count as well
            self.assertRegex(types, rf'(?m)^\d+:application/x-zarn-record:\*\.{ending}$')
        with open(self.prefix + '/share/applications/zarn.desktop', encoding='utf-8') as file:
            self.assertIn('MimeType=application/x-zarn-record;', file.read())

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
        script = f'''source {self.prefix}/share/bash-completion/completions/zarn-cli
            COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); compopt() {{ :; }}; _zarn_cli; printf '%s\\n' "${{COMPREPLY[@]}}"'''
        done = run('bash', '-c', script, 'bash', self.cli, *words)
        self.assertEqual(done.stderr, '')
        return done.stdout.split()

    def test_completion(self):
        self.assertEqual(sorted(self.complete('')), sorted(self.subcommands() + ['--help', '--version']))
        self.assertEqual(sorted(self.complete('f')), ['faults', 'flights'])
        self.assertIn('--separator', self.complete('csv', 'card', '--'))
        self.assertNotIn('--separator', self.complete('info', 'card', '--'))
        self.assertEqual(self.complete('csv', 'card', '--separator', 't'), ['tab'])
        self.assertEqual(self.complete('kml', 'card', '--set', 'KmlTime'), ['KmlTimeStamp='])
        self.assertEqual(self.complete('csv', 'card', '--cycle', ''), [])

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
