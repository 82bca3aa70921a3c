#!/usr/bin/env python3
"""Writes the inputs that the fuzzer starts from.

    fuzz/make-seeds.py FOLDER

FOLDER/FuzzProfile gets the commands of FuzzProfile.cpp for small profiles of each data type, with the messages that they decode.
FOLDER/FuzzProject gets project files: whole, of other encodings, with foreign elements, damaged. Record files are made by RecordSeeds.cpp.
"""

import os
import re
import struct
import sys

# ----------------------------------------------------------------------------------------------------------------- profiles

def tables():
    """The tables of FuzzProfile.cpp by name, so that both always mean the same."""
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), 'FuzzProfile.cpp')
    with open(path, encoding='utf-8') as file:
        source = file.read()
    found = re.findall(r'constexpr const char\* (k\w+)\[\] = \{(.*?)\};', source, re.S)
    return {name: re.findall(r'"((?:[^"\\]|\\.)*)"', body) for name, body in found}


TABLES = tables()
CLOSE, END = b'\xd0', b'\xff'


def value(content):
    """An attribute's value: a name out of the tables or a number."""
    if isinstance(content, str) and content in TABLES['kTypes']:
        return bytes((0, TABLES['kTypes'].index(content)))
    if isinstance(content, str):
        return bytes((5, TABLES['kTexts'].index(content)))
    return bytes((2,)) + struct.pack('<i', content) if isinstance(content, int) else bytes((3,)) + struct.pack('<d', content)


def element(name, attributes=None, *children):
    commands = bytes((TABLES['kElements'].index(name),))
    for attribute, content in (attributes or {}).items():
        commands += bytes((0x50 + TABLES['kAttributes'].index(attribute),)) + value(content)
    return commands + b''.join(children) + CLOSE


def message(code, data):
    return struct.pack('>BBBB', 1, code, 0, 0) + data


def parameter(kind, **more):
    return element('Parameter', {'name': 'A', 'id': 500, 'dataType': kind, 'startByte': 4, 'unitMetric': 'm', 'unitImperial': 'km/h',
                                 'enumId': 'A', 'thresholdId': 'B', **more})


def profile_seeds():
    lists = (element('UnitConversions', {}, element('Unit', {'unitMetric': 'm', 'unitImperial': 'km/h', 'factor': 3.6, 'offset': 0.5}))
             + element('EnumList', {}, element('Enum', {'name': 'A'}, element('Value', {'val': 1, 'label': 'OK'}), element('Value', {'val': 5, 'label': 'B'})))
             + element('ThresholdList', {}, element('Threshold', {'name': 'B'}, element('Value', {'val': 0.0, 'state': 'OK', 'color': '#ff0000'}),
                                                    element('Value', {'val': 80.0, 'state': 'WARNING', 'color': 'red'}),
                                                    element('Value', {'val': 100.0, 'state': 'LIMIT', 'color': 'no colour'}))))
    words = [struct.pack('>f', 91.25), struct.pack('>i', -5), struct.pack('>I', 16777217), b'\x7f\xc0\0\0', b'\x80\0\0\0']
    for unit in (0, 1):
        for kind in TABLES['kTypes']:
            code = TABLES['kTypes'].index(kind)
            more = {'startBit': 4, 'endBit': 7} if 'B' in kind[0] else {'factor': 0.1, 'offset': -3.0, 'precision': 2}
            commands = lists + element('Device', {'name': 'GroundSpeed'}, parameter(kind, **more)) + END
            yield f'{unit}-{kind}', bytes((unit, 0)) + commands + b''.join(message(code, word) for word in words)
    for axis in ('Latitude', 'Longitude'):
        fixes = b''.join(message(2, struct.pack('>f', 4807.038 + jump)) for jump in (0, 1, 2, 3, 4, 5, 900, 6))
        yield axis, bytes((0, 0)) + element('Device', {}, parameter('FLOAT', viewId=axis)) + END + fixes
    matrix = element('Device', {'name': 'WarningLamps'}, element('ErrorMatrix', {'id': 500, 'name': 'A'}),
                     parameter('BLONG', errorType='Fault', startBit=3, endBit=3), parameter('BLONG', errorType='Info', startBit=31, endBit=0))
    yield 'matrix', bytes((0, 0)) + matrix + END + message(5, b'\xff\0\0\x08')
    variants = element('Variants', {}, element('Variant', {'name': 'A', 'color': 'red'})) + element('Device', {'variant': '!A'}, parameter('FLOAT'))
    for number in range(3):
        yield f'variants-{number}', bytes((0, number)) + variants + element('Device', {'variant': 'A, !B'}, parameter('LONG', variant='B')) + END
    odd = parameter('SHORT', startByte=-2147483648, startBit=-1, endBit=2147483647, factor='1e400', offset='nan', precision=2147483647)
    yield 'odd', bytes((1, 0)) + element('Device', {}, odd, parameter('ULONG', precision=-1, factor='-1e308')) + END + message(6, b'\x80\0\x7f\xff')


# ----------------------------------------------------------------------------------------------------------------- projects


def project_seeds():
    text = ('<?xml version="1.0" encoding="UTF-8"?>\n<ZarnProject>\n    <Parameters>\n        <Parameter name="A"/>\n        '
            '<Parameter name="Oil &lt;T&gt;"/>\n        <Parameter name="unknown"/>\n    </Parameters>\n    <CanProperties>\n        '
            '<Property id="Speed" value="500"/>\n        <Property id="" value="&#9;&amp;%s"/>\n    </CanProperties>\n</ZarnProject>\n')
    yield 'whole', text.encode()
    yield 'empty', b'<ZarnProject/>'
    yield 'utf-16', text.replace('UTF-8', 'UTF-16').encode('utf-16')
    yield 'latin-1', text.replace('UTF-8', 'ISO-8859-1').replace('Speed', 'Gr\u00f6\u00dfe').encode('latin-1')
    yield 'foreign', text.replace('<Parameters>', '<Extra><Parameter name="B"/></Extra><!-- > --><Parameters x="1"><![CDATA[<]]>').encode()
    yield 'twice', text.replace('</ZarnProject>', '<Parameters><Parameter/></Parameters></ZarnProject>').encode()
    yield 'controls', text.replace('500', '&#1;&#xFFFE;&#xD800;&#10;').encode()
    yield 'cut', text.encode()[:-30]
    yield 'bomb', text.replace('<ZarnProject>', '<!DOCTYPE a [<!ENTITY b "cc">]><ZarnProject>&b;').encode()


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    for target, seeds in [('FuzzProfile', profile_seeds()), ('FuzzProject', project_seeds())]:
        folder = os.path.join(sys.argv[1], target)
        os.makedirs(folder, exist_ok=True)
        for name, content in seeds:
            with open(os.path.join(folder, name), 'wb') as file:
                file.write(content)
    return 0


if __name__ == '__main__':
    sys.exit(main())
