#!/usr/bin/env python3
"""track.py POINTS OUT.gpx: a made-up track, one point a second, for converters that read GPX."""

import math
import sys
from datetime import datetime, timedelta


def write(points, path):
    start = datetime(2024, 5, 17)
    with open(path, 'w', encoding='utf-8') as file:
        file.write('<?xml version="1.0"?><gpx version="1.0" creator="bench" xmlns="http://www.topografix.com/GPX/1/0"><trk><trkseg>\n')
        for i in range(points):
            latitude, longitude = 48.1 + 0.2 * math.sin(i / 5000), 11.5 + 0.3 * math.cos(i / 6000)
            moment = (start + timedelta(seconds=i)).isoformat()
            file.write(f'<trkpt lat="{latitude:.8f}" lon="{longitude:.8f}"><ele>{800 + 300 * math.sin(i / 2000):.1f}</ele>'
                       f'<time>{moment}Z</time></trkpt>\n')
        file.write('</trkseg></trk></gpx>\n')


if __name__ == '__main__':
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    write(int(sys.argv[1]), sys.argv[2])
