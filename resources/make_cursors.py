#!/usr/bin/env python3
"""Draws the navigation cursors of the library as 32x32 .cur files: rotate (112),
pan (1), zoom (2), fly (109) and walk (110). Black shapes with a white outline so they
read on any background. Run from this folder; the .cur files are committed."""
import math
import struct

SIZE = 32


def cursor_file(shape, hotspot):
    """A .cur file with one 32-bit image; transparency through alpha and the AND mask."""
    inside = [[shape(x + 0.5, y + 0.5) for x in range(SIZE)] for y in range(SIZE)]

    def near(x, y):
        return any(0 <= x + dx < SIZE and 0 <= y + dy < SIZE and inside[y + dy][x + dx]
                   for dx in (-1, 0, 1) for dy in (-1, 0, 1))

    rows, mask = bytearray(), bytearray()
    for y in range(SIZE - 1, -1, -1):
        bits = 0
        for x in range(SIZE):
            if inside[y][x]:
                rows += bytes((0, 0, 0, 255))
            elif near(x, y):
                rows += bytes((255, 255, 255, 255))
            else:
                rows += bytes((0, 0, 0, 0))
                bits |= 1 << (31 - x)
        mask += struct.pack('>I', bits)
    header = struct.pack('<IiiHHIIiiII', 40, SIZE, SIZE * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    image = header + bytes(rows) + bytes(mask)
    entry = struct.pack('<BBBBHHII', SIZE, SIZE, 0, 0, hotspot[0], hotspot[1], len(image), 22)
    return struct.pack('<HHH', 0, 2, 1) + entry + image


def segment(px, py, ax, ay, bx, by, width):
    vx, vy = bx - ax, by - ay
    t = max(0.0, min(1.0, ((px - ax) * vx + (py - ay) * vy) / (vx * vx + vy * vy)))
    return math.hypot(px - (ax + t * vx), py - (ay + t * vy)) <= width


def arrow_head(px, py, tipx, tipy, dirx, diry, size):
    # Triangle pointing along (dirx, diry) with its tip at (tipx, tipy).
    lx, ly = px - tipx, py - tipy
    along = -(lx * dirx + ly * diry)
    across = abs(-lx * diry + ly * dirx)
    return 0 <= along <= size and across <= along * 0.7


def rotate(x, y):
    r = math.hypot(x - 16, y - 16)
    angle = math.degrees(math.atan2(y - 16, x - 16)) % 360
    ring = 8.5 <= r <= 11 and not (300 <= angle <= 360)
    return ring or arrow_head(x, y, 27, 11, 0, -1, 7)


def pan(x, y):
    cross = segment(x, y, 5, 16, 27, 16, 1.2) or segment(x, y, 16, 5, 16, 27, 1.2)
    heads = (arrow_head(x, y, 2, 16, -1, 0, 6) or arrow_head(x, y, 30, 16, 1, 0, 6) or
             arrow_head(x, y, 16, 2, 0, -1, 6) or arrow_head(x, y, 16, 30, 0, 1, 6))
    return cross or heads


def zoom(x, y):
    r = math.hypot(x - 13, y - 13)
    lens = 7.5 <= r <= 10
    plus = segment(x, y, 9, 13, 17, 13, 1.0) or segment(x, y, 13, 9, 13, 17, 1.0)
    return lens or plus or segment(x, y, 20, 20, 28, 28, 2.2)


def fly(x, y):
    body = segment(x, y, 16, 3, 16, 27, 1.6)
    wings = segment(x, y, 4, 16, 28, 16, 1.3) and y >= 13
    tail = segment(x, y, 11, 26, 21, 26, 1.0)
    return body or wings or tail or (abs(x - 16) <= 16 - y and 12 <= y <= 16)


def walk(x, y):
    def foot(cx, cy):
        return ((x - cx) / 3.2) ** 2 + ((y - cy) / 5.5) ** 2 <= 1 or math.hypot(x - cx, y - cy + 8) <= 2
    return foot(11, 20) or foot(21, 12)


if __name__ == '__main__':
    for name, shape, hotspot in (('rotate', rotate, (16, 16)), ('pan', pan, (16, 16)), ('zoom', zoom, (13, 13)),
                                 ('fly', fly, (16, 3)), ('walk', walk, (16, 16))):
        with open(name + '.cur', 'wb') as f:
            f.write(cursor_file(shape, hotspot))
