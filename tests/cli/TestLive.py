#!/usr/bin/env python3
"""zarn-cli live against a bus that this test serves, in the line protocol of the toolkit's virtual bus.

    TestLive.py ZARN-CLI
"""

import json
import os
import resource
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

CLI = sys.argv.pop(1)


def run(*arguments, status=0):
    done = subprocess.run([CLI, *arguments], capture_output=True, text=True)
    assert done.returncode == status, (arguments, done.returncode, done.stderr)
    return done.stdout if status == 0 else done.stderr


def payloads(*arguments):
    """(identifier, data) of a recording in the order of reception."""
    return [line.split()[2] for line in run('candump', *arguments, '-o', '-').splitlines()]


class Bus:
    """A server that takes one listener at a time."""

    def __init__(self):
        self.server = socket.create_server(('127.0.0.1', 0))
        self.server.settimeout(60)
        self.listener = self.server
        self.address = 'virtualcan:tcp://127.0.0.1:%d/can0' % self.server.getsockname()[1]

    def accept(self):
        self.listener = self.server.accept()[0]
        assert self.listener.recv(100) == b'connect:can0\n'

    def send(self, *lines):
        self.listener.sendall(b''.join(line.encode() + b'\n' for line in lines))

    def close(self):
        self.listener.close()

    def end(self):
        self.listener.close()
        self.server.close()


class Live(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.recording = self.folder.name + '/run'
        self.bus = Bus()
        self.addCleanup(self.bus.end)

    def listen(self, *arguments, **popen):
        listener = subprocess.Popen([CLI, 'live', self.bus.address, '--record', self.recording, *arguments],
                                    stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **popen)
        self.addCleanup(lambda: (listener.kill(), listener.communicate()))
        self.bus.accept()
        return listener

    def waitFor(self, count):
        """Until so many records lie in the folder, but for what is not whole yet."""
        end = time.monotonic() + 60
        while time.monotonic() < end:
            files = [os.path.join(self.recording, name) for name in os.listdir(self.recording) if name.endswith('.CAN')]
            if sum((os.path.getsize(name) - 128) // 28 for name in files if os.path.getsize(name) > 128) >= count:
                return
            time.sleep(0.02)
        self.fail('records are missing')

    def testFrames(self):
        listener = self.listen('--json')
        self.bus.send('300#R#', '301#X#0102', '2047##', '536870911#X#1122334455667788', '5#F#' + '11' * 64, '7##112233445566778899',
                      '536870912##11')
        self.waitFor(3)
        listener.send_signal(signal.SIGINT)
        counts = json.loads(listener.communicate()[0])
        self.assertEqual((0, 3, 3, 1, 1, 2),
                         (listener.returncode, *(counts[name] for name in ('frames', 'recorded', 'remote', 'fd', 'errors'))))
        self.assertEqual(['0000012D#0102', '7FF#', '1FFFFFFF#1122334455667788'], payloads(self.recording))
        self.assertEqual([], [one for one in json.loads(run('ids', self.recording, '--json'))['ids'] if one['known']])

    def testLossAndReturn(self):
        listener = self.listen()
        self.bus.send('300##01')
        self.waitFor(1)
        self.bus.close()
        self.bus.accept()  # tried again by itself
        self.bus.send('301##02')
        self.waitFor(2)
        self.assertIn('another program records there', run('live', self.bus.address, '--record', self.recording, '--seconds', '1', status=1))
        # Killed, it leaves what it had been given, and the next recording is a cycle of its own.
        listener.kill()
        self.assertIn('tried again', listener.communicate()[1])
        self.assertEqual(['12C#01', '12D#02'], payloads(self.recording))
        self.bus.close()
        self.listen()
        self.bus.send('302##03')
        self.waitFor(3)
        self.assertEqual(['12E#03'], payloads(self.recording, '--cycle', '2'))

    def testCardIsLeftAlone(self):
        run('simulate', self.recording)
        before = sorted(os.listdir(self.recording))
        self.assertIn('which a unit recorded', run('live', self.bus.address, '--record', self.recording, '--seconds', '1', status=1))
        self.assertEqual(before, sorted(os.listdir(self.recording)))

    def testForeignServer(self):
        listener = self.listen()
        self.bus.send('300##01')
        self.waitFor(1)
        self.bus.send('HTTP/1.1 400 Bad Request', '301##02')
        self.bus.accept()
        self.bus.send('302##03')
        self.waitFor(2)
        listener.send_signal(signal.SIGINT)
        self.assertIn('what answers there is no virtual bus', listener.communicate()[1])
        self.assertEqual((0, ['12C#01', '12E#03']), (listener.returncode, payloads(self.recording)))

    def testFullDisk(self):
        limit = 128 + 28 * 10 + 5
        listener = self.listen(preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
        for count in range(1, 11):
            self.bus.send('%d##01' % count)
            self.waitFor(count)
        self.bus.send('11##01', '12##01')
        line = listener.stderr.readline()
        self.assertRegex(line, r'LOG00001\.CAN: File too large; nothing more is recorded')
        self.bus.send('13##01')
        listener.send_signal(signal.SIGTERM)
        self.assertEqual(1, listener.wait(60))
        self.assertEqual(10, len(payloads(self.recording)))

    def testReplay(self):
        card = self.folder.name + '/card'
        run('simulate', card)
        # Nobody serves the bus any more, so the listener does.
        self.bus.server.close()
        listener = subprocess.Popen([CLI, 'live', self.bus.address, '--record', self.recording], stdout=subprocess.DEVNULL,
                                    stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (listener.kill(), listener.wait()))
        port = int(self.bus.address.split(':')[3].split('/')[0])
        while True:
            try:
                socket.create_connection(('127.0.0.1', port)).close()
                break
            except OSError:
                time.sleep(0.05)
        run('live', self.bus.address, '--replay', card, '--cycle', '3', '--speed', '100')
        sent = payloads(card, '--cycle', '3')
        self.waitFor(len(sent))
        listener.send_signal(signal.SIGINT)
        self.assertEqual(0, listener.wait(60))
        self.assertEqual(sent, payloads(self.recording))
        cycles = json.loads(run('info', self.recording, '--json'))['cycles']
        self.assertEqual(1, len(cycles))
        clock = time.strptime(cycles[0]['dateTime'][:19], '%Y-%m-%dT%H:%M:%S')
        self.assertLess(abs(time.mktime(clock) - time.mktime(time.gmtime())), 300)

    def testOtherReaders(self):
        card, log = self.folder.name + '/card', self.folder.name + '/card.log'
        run('simulate', card)
        run('candump', card, '--cycle', '3', '-o', log)
        with open(log) as file:
            lines = file.read().splitlines()
        # Debian's own interpreter has the library.
        read = 'import can, sys; print(sum(not m.is_error_frame and m.dlc == 8 for m in can.LogReader(sys.argv[1])))'
        done = subprocess.run(['/usr/bin/python3', '-c', read, log], capture_output=True, text=True, check=True)
        self.assertEqual(len(lines), int(done.stdout))
        done = subprocess.run(['log2asc', '-I', log, 'zarn0'], capture_output=True, text=True, check=True)
        self.assertEqual(len(lines), sum(' d 8 ' in line for line in done.stdout.splitlines()))

    def testCall(self):
        for arguments, reason, status in ((['can0'], 'must be PLUGIN:INTERFACE', 2), (['nothing:can0'], 'virtualcan', 1),
                                          (['socketcan:can0', '--replay', self.folder.name], 'holds no record file', 1)):
            self.assertIn(reason, run('live', *arguments, status=status))
        alone = shutil.copy(CLI, self.folder.name)  # without what does the work
        done = subprocess.run([alone, 'live', 'virtualcan:can0'], capture_output=True, text=True)
        self.assertEqual(1, done.returncode)
        self.assertIn('/zarn-cli-live: No such file', done.stderr)
        self.assertIn('only with --replay', run('live', 'virtualcan:can0', '--speed', '2', status=2))
        card = self.folder.name + '/card'
        run('simulate', card)
        self.assertIn('never to an engine', run('live', 'socketcan:can0', '--replay', card, status=1))


unittest.main()
