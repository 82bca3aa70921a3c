#!/usr/bin/env python3
"""Writes the inputs that the fuzzer starts from.

    fuzz/make-seeds.py FOLDER

Each target has a folder below FOLDER: commands of FuzzProfile.cpp for small profiles of each data type, with the messages that they decode;
project files, settings and layouts, whole, of other encodings, with foreign elements, damaged; and so on. Record files are made by RecordSeeds.cpp.
"""

import os
import re
import struct
import sys
import zlib

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


# ----------------------------------------------------------------------------------------------------------------- settings, layouts


def settings_seeds():
    text = ('<?xml version="1.0" encoding="UTF-8"?>\n<ZARN>\n    <Property id="FontSize" value="12"/>\n    <Property id="Locale" value="de"/>\n'
            '    <Property id="a b" value="&lt;&#10;%s"/>\n    <Property id="FontSize" value=""/>\n</ZARN>\n')
    yield 'whole', b'\0' + text.encode()
    yield 'utf-16', b'\0' + text.replace('UTF-8', 'UTF-16').encode('utf-16')
    yield 'foreign', b'\0' + text.replace('<ZARN>', '<ZARN><Extra id="x"/><!-- > -->').encode()
    yield 'cut', b'\0' + text.encode()[:-12]
    yield 'lines', b'\1# a comment\nFontSize = 12\n Locale="de"\r\n=\nno sign\n a b = c = d\n\xff\xfe\0 = 1\n'


def layout_seeds():
    text = ('<?xml version="1.0" encoding="UTF-8"?>\n<ZarnLayouts>\n    <Layout mode="split" scales="unit" name="Four EGTs" name.de="Vier">\n'
            '        <Parameter name="EGT 1" height="2.5" color="#ff8000" lower="80" upper="95.5" unit="bar"/>\n        <Parameter name="EGT 1"/>\n'
            '        <Parameter name="" height="1e400" lower="nan" upper="inf" unit="m"/>\n    </Layout>\n    <Layout mode="single" name="Own">'
            '<Scale upper="1000000000" lower="-2.5"/></Layout>\n    <Layout name=" "/>\n    <Layout name="Four EGTs"/>\n</ZarnLayouts>\n')
    yield 'whole', text.encode()
    yield 'numbers', text.replace('1000000000', '-1e308').replace('2.5', '-0').replace('95.5', '1e308').encode()
    yield 'cut', text.encode()[:-30]
    yield 'foreign', text.replace('<Layout name=" "/>', '<Layout/><Parameter name="x"/>text').encode()


# ----------------------------------------------------------------------------------------------------------------- frames, logs


def candump_seeds():
    lines = (b'(1699999999.123456) can0 123#1122334455667788\n(1699999999.2) can1 1ABCDEF0#11.22 R\r\n\n(0.5) can0 7FF#\n(1.5) vcan0 123#R8\n'
             b'(2.0) can0 20000004#0000000000000000\n(3.0) can0 123##111223344\n(4.0) can0 123#1122334455667788_9 T\n# no frame\n(5.0) can0 800#11\n')
    yield 'text', b'\0' + lines
    yield 'cut', b'\0' + lines[:-4]
    yield 'long', b'\0' + b'(1.0) can0 123#' + b'1' * 9000 + b'\n' + lines
    for form in (0, 1, 2, 7, 0x38, 0x30, 0x41, 0x8b):
        yield f'frames-{form}', b'\1' + b''.join(struct.pack('<BHIIB', form, i * 7, i * 1000, 300 + i, 8) + bytes(range(8)) for i in range(6))


def frame_seeds():
    def frame(form, identifier, payload, seconds, microseconds, host):
        return bytes((form, len(payload))) + payload + struct.pack('<Iqq', identifier, seconds, microseconds) + struct.pack('<I', host)
    yield 'data', b''.join(frame(0x61, 300 + i, bytes(range(i % 9)), i << 40, i << 45, 1000) for i in range(20))
    yield 'kinds', b''.join(frame(0x60 + i, 300, b'abc', i, i, 10) for i in range(6))
    yield 'jumps', b''.join(frame(1, 300, b'12345678', seconds, 0, 1_000_000) for seconds in (5, -5, 1 << 62, 0, -(1 << 63), 7))
    yield 'fd', b''.join(frame(0x91, 0x1FFFFFFF, bytes(length), 1, 1, 1) for length in (8, 9, 64))


def value_seeds():
    def record(form, delta, data, back=0, copies=None):
        number = b'' if copies is None else bytes((copies,))
        return bytes((form,)) + struct.pack('<I', delta) + (struct.pack('<I', back) if form & 8 else b'') + data + number
    word = struct.pack('>f', 4807.038)
    for choice in range(8):
        rising = b''.join(record(i % 4, 3_200_000 * (1 + i % 3), struct.pack('>f', i * 1.5)) for i in range(30))
        yield f'rising-{choice}', struct.pack('<BHH', choice, 16, 200) + rising
    yield 'back', struct.pack('<BHH', 2, 0, 640) + b''.join(record(i % 4 | (8 if i % 5 == 4 else 0), 40_000_000, word, 90_000_000) for i in range(40))
    yield 'many', struct.pack('<BHH', 0, 0, 64) + b''.join(record(i % 4 | 4, 32_000_000, word, copies=255) for i in range(24))
    yield 'equal', struct.pack('<BHH', 5, 0, 0) + b''.join(record(i % 4, 0, word) for i in range(12))


# ----------------------------------------------------------------------------------------------------------------- the rest


def formula_seeds():
    texts = ['a - "b (b)"', 'max(a, 15) * 2^1 + (t > 1 ? 1e0 : 0)', 'delta(avg(a, 1) + delta(delta(a))) - \'b (b)\'', 'lag(a, 1.5)', 'integral ( a )',
             'a / (a - 20)', 'avg(a, 1e9)', 'a +', '"unknown" + a', '((((((((((a))))))))))', 'sin(a) && !a', 'a = 3', 'lag(a', '"a', 'a, a', '\xff a']
    yield from ((f'{number:02}', text.encode('latin-1')) for number, text in enumerate(texts))


def tile_seeds():
    def chunk(kind, data):
        return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))

    def png(width, height, rows):
        header = struct.pack('>IIBBBBB', width, height, 8, 2, 0, 0, 0)
        return b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', header) + chunk(b'IDAT', zlib.compress(rows)) + chunk(b'IEND', b'')
    yield 'png', b'\0' + png(4, 4, (b'\0' + b'\x80' * 12) * 4)
    yield 'huge', b'\0' + png(100_000, 100_000, b'')
    yield 'short', b'\0' + png(256, 256, b'\0\1\2')
    yield 'jpeg', b'\0\xff\xd8\xff\xe0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0\xff\xd9'
    yield 'webp', b'\0RIFF\x20\0\0\0WEBPVP8L\x14\0\0\0\x2f\3\xc0\0\0' + bytes(20)
    line = b'\3\2\2\4\1\6\5'
    yield 'map', b'\1ZMAP\1' + b'\1\1' + line + b'\0' + b'\1' + line + b'\0'
    yield 'map-counts', b'\1ZMAP\1' + b'\xff\xff\xff\xff\x0f' * 3


def map_detail_seeds():
    shore = b'\1\5' + b'\2\2\x80\1\0\0\x80\1\x7f\0\0\x7f' + b'\1\2\4\4\6\6' + b'\1\1\1\1'
    town, field = b'\2\5\7\x1e\3Ulm\xff\x0f\xff\x0f\0\0', b'\1\5\7\1\xd8\x17\x23\xc0\x1f\4EDMA\3\xc3\xbcx'
    for kind, tile in enumerate((shore, town, field)):
        form = bytes((kind,))
        yield f'tile-{kind}', bytes((0x80 + kind + 1, 7, 12)) + tile    # 0x80 is 2 of 3
        yield f'tile-coarse-{kind}', bytes((0x80 + kind + 1, 0, 20)) + tile
        packed = struct.pack('>I', len(tile)) + zlib.compress(tile)
        head = b'ZMAPD\1\2' + b''.join(struct.pack('<BBBI', kind + 1, zoom, 12, 1) for zoom in (1, 3))
        at = len(head) + 24
        index = struct.pack('<IIIIII', 0, at, len(packed), 19, at, len(packed))
        yield f'file-{kind}', form + head + index + packed
        yield f'file-swollen-{kind}', form + head + index + struct.pack('>I', 0x700000) + packed[4:]
        yield f'file-short-{kind}', form + (head + index + packed)[:-3]
        yield f'file-many-{kind}', form + head[:-4] + b'\xff\xff\xff\xff' + index + packed
        yield f'file-empty-{kind}', form + head + struct.pack('<IIIIII', 0, at, 0, 0, 0xffffffff, 1)


def tile_archive_seeds():
    yield 'whole', b''
    yield 'header', b'\0' + b''.join(struct.pack('<HBB', place, 0x41, 0) for place in (16, 18, 20, 28, 56, 100, 103, 105))
    yield 'pages', b'\0' + b''.join(struct.pack('<HBB', 512 * page + place, 0x7f, 0) for page in range(1, 4) for place in (0, 3, 8, 100, 500))
    yield 'cut', b'\0' + struct.pack('<HBB', 1500, 0, 0xFF)
    for form in range(5):
        number = struct.pack('<q', -1 << 62) if form == 1 else struct.pack('<f', 1e30) if form == 2 else b'\x0e<a href=x>\xff&#9;'
        yield f'fields-{form}', b'\1' + b''.join(bytes((field, field % 3, 0, form)) + (number if form else b'') for field in range(6))
    yield 'large', b'\1' + bytes((5, 0, 0x84, 5, 1, 0x87, 5, 2, 0x85, 1, 0, 0x81))


def store_seeds():
    yield 'whole', b'\0'
    yield 'header', b'\0' + b''.join(struct.pack('<HBB', place, 0x41, 0) for place in (0, 18, 28, 60, 100, 103, 105))
    yield 'cut', b'\0' + struct.pack('<HBB', 5000, 0, 0xFF)
    for form in range(5):
        yield f'fields-{form}', b'\1' + b''.join(bytes((field, field % 2, form)) + (b'\4\xff\0ab' if form > 2 else struct.pack('<q', -1 << 62) if form == 1 else
                                                 struct.pack('<f', 1e30) if form == 2 else b'') for field in range(20))


SEEDS = {'FuzzProfile': profile_seeds, 'FuzzProject': project_seeds, 'FuzzSettings': settings_seeds, 'FuzzLayouts': layout_seeds,
         'FuzzCandump': candump_seeds, 'FuzzFrames': frame_seeds, 'FuzzValues': value_seeds, 'FuzzFormula': formula_seeds, 'FuzzTile': tile_seeds,
         'FuzzMapDetail': map_detail_seeds, 'FuzzTileArchive': tile_archive_seeds, 'FuzzStore': store_seeds}


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    for target, seeds in SEEDS.items():
        folder = os.path.join(sys.argv[1], target)
        os.makedirs(folder, exist_ok=True)
        for name, content in seeds():
            with open(os.path.join(folder, name), 'wb') as file:
                file.write(content)
    return 0


if __name__ == '__main__':
    sys.exit(main())
