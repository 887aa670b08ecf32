#!/usr/bin/env bash
# Makes the seed corpora of fuzz_bmp and fuzz_rle: small BMP files of every depth and
# layout written by ImageMagick (and variants derived from them), plus regression
# inputs in the style of the published RLE4/RLE8 heap overflows of other BMP readers.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
bmp=$root/fuzz/corpus/bmp
rle=$root/fuzz/corpus/rle
mkdir -p "$bmp" "$rle"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

convert -size 7x5 gradient:red-blue -fill green -draw 'point 3,2' "$work/src.png"
im() { convert "$work/src.png" $2 "$3:$bmp/$1.bmp"; }
im rgb24 "-type TrueColor" BMP3
im pal8 "-type Palette -colors 20 -compress None" BMP3
im pal4 "-colors 8 -compress None" BMP3
im mono1 "-monochrome" BMP3
im rle8 "-type Palette -colors 20 -compress RLE" BMP3
im os2-24 "-type TrueColor" BMP2
im os2-8 "-type Palette -colors 20" BMP2
im os2-1 "-monochrome" BMP2
im fields16 "-define bmp:subtype=RGB565" BMP3
convert "$work/src.png" -alpha set "BMP:$work/v5.bmp"

python3 - "$bmp" "$rle" "$work/v5.bmp" <<'PY'
import struct, sys
bmp, rle, v5 = sys.argv[1:4]

def info(w, h, bits, comp, image, clr):
    return struct.pack('<IiiHHIIiiII', 40, w, h, 1, bits, comp, image, 2953, 2953, clr, 0)

def bmpfile(name, header, table, pixels, off=None):
    body = header + table + pixels
    off = 14 + len(header) + len(table) if off is None else off
    open(f'{bmp}/{name}.bmp', 'wb').write(b'BM' + struct.pack('<IHHI', 14 + len(body), 0, 0, off) + body)

# 32-bit layouts with a 40-byte header, from ImageMagick's V5 file.
d = open(v5, 'rb').read()
w, h = struct.unpack('<ii', d[18:26])
px = d[struct.unpack('<I', d[10:14])[0]:]
bmpfile('rgb32', info(w, h, 32, 0, len(px), 0), b'', px)
bmpfile('fields32', info(w, h, 32, 3, len(px), 0), struct.pack('<III', 0xFF0000, 0xFF00, 0xFF), px)
bmpfile('fields-zero-masks', info(w, h, 32, 3, len(px), 0), struct.pack('<III', 0, 0, 0), px)
bmpfile('topdown24', info(2, -2, 24, 0, 16, 0), b'', bytes(range(16)))

pal16 = bytes(range(64))
pal4 = bytes(range(16))
overflows = {
    # more scanlines than the height
    'rle8-extra-lines': (8, b'\x00\x00' * 10 + b'\x04\x07\x00\x01'),
    'rle4-extra-lines': (4, b'\x00\x00' * 10 + b'\x04\x77\x00\x01'),
    # run lengths past the row
    'rle8-long-run': (8, b'\xff\x01\xff\x02\xff\x03\x00\x01'),
    'rle4-long-run': (4, b'\xff\x12\xff\x34\x00\x01'),
    # deltas past the picture
    'rle8-far-delta': (8, b'\x00\x02\xff\xff\x05\x01\x00\x02\x01\x00\x03\x09'),
    'rle4-far-delta': (4, b'\x00\x02\xff\xff\x05\x11\x00\x02\x01\x00\x03\x99'),
    # absolute mode past the row and past the stream
    'rle8-long-absolute': (8, b'\x00\xff' + bytes(range(40))),
    'rle4-long-absolute': (4, b'\x00\xfe' + bytes(range(40))),
}
for name, (bits, codes) in overflows.items():
    table = pal16 if bits == 4 else pal16 * 4
    comp = 1 if bits == 8 else 2
    bmpfile(name, info(4, 3, bits, comp, len(codes), 0), table, codes)
    open(f'{rle}/{name}', 'wb').write(bytes([3, 2, 1 if bits == 8 else 0, 0]) + codes)

# Damaged headers: truncated, zero and huge sizes.
good = open(f'{bmp}/rgb24.bmp', 'rb').read()
open(f'{bmp}/truncated-pixels.bmp', 'wb').write(good[:70])
open(f'{bmp}/truncated-header.bmp', 'wb').write(good[:30])
bmpfile('zero-size', info(0, 0, 24, 0, 0, 0), b'', b'')
bmpfile('huge-size', info(0x7fffffff, 0x7fffffff, 24, 0, 0, 0), b'', b'\x00' * 16)
bmpfile('huge-table', info(4, 4, 8, 0, 0, 0xffffffff), b'', b'\x00' * 16)
bmpfile('negative-width', info(-5, 3, 24, 0, 0, 0), b'', b'\x00' * 48)
open(f'{rle}/plain-rle8', 'wb').write(bytes([6, 3, 1, 4]) + b'\x03\x01\x00\x03\x01\x02\x03\x00\x00\x00\x02\x01\x01\x05\x00\x01')
open(f'{rle}/plain-rle4', 'wb').write(bytes([6, 3, 0, 16]) + b'\x03\x12\x00\x03\x12\x30\x00\x00\x00\x02\x01\x01\x05\x55\x00\x01')
PY
echo "corpus: $(ls "$bmp" | wc -l) BMP seeds, $(ls "$rle" | wc -l) RLE seeds"
