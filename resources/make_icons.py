#!/usr/bin/env python3
"""Draws the library's icon (tessarin.ico): a shaded cube on a dark tile.

Run from this folder; the .ico is committed, this script is how it was made."""
import struct


def bmp_image(size, pixel):
    """A 32-bit BMP image (header, bottom-up BGRA rows, AND mask) for an ICO/CUR entry."""
    header = struct.pack('<IiiHHIIiiII', 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    rows = bytearray()
    for y in range(size - 1, -1, -1):
        for x in range(size):
            r, g, b, a = pixel(x, y)
            rows += bytes((b, g, r, a))
    mask_stride = ((size + 31) // 32) * 4
    mask = bytes(mask_stride * size)  # alpha carries the shape
    return header + bytes(rows) + mask


def icon_file(images, kind=1, hotspots=None):
    """ICO (kind 1) or CUR (kind 2) container of (size, bmp bytes) images."""
    out = struct.pack('<HHH', 0, kind, len(images))
    offset = 6 + 16 * len(images)
    body = b''
    for i, (size, data) in enumerate(images):
        planes, bits = (1, 32) if kind == 1 else hotspots[i]
        out += struct.pack('<BBBBHHII', size % 256, size % 256, 0, 0, planes, bits, len(data), offset)
        offset += len(data)
        body += data
    return out + body


def cube(x, y):
    s = 32
    if x < 1 or y < 1 or x > s - 2 or y > s - 2:
        return (0, 0, 0, 0)
    cx, top = 16, 5
    # Three faces of an isometric cube.
    dx = x - cx
    if y >= top and abs(dx) <= 2 * (y - top) and y < 16 and abs(dx) <= 12:
        return (120, 200, 255, 255)
    if 16 <= y <= 28 - abs(dx) // 2 and abs(dx) <= 12:
        return (40, 110, 200, 255) if dx < 0 else (20, 70, 150, 255)
    return (30, 30, 40, 255)


if __name__ == '__main__':
    with open('tessarin.ico', 'wb') as f:
        f.write(icon_file([(32, bmp_image(32, cube))]))
