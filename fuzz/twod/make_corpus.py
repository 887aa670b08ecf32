#!/usr/bin/env python3
"""Writes the seeds of fuzz_twod_cores into fuzz/corpus/twod_cores: one input per core
with the values of the tests (1.5 wrapping to 126, a quarter circle, "HH" in a font,
a 3 by 3 bitmap of 24 bits, a short text)."""
import pathlib
import struct
import sys

out = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent / 'corpus' / 'twod_cores')
out.mkdir(parents=True, exist_ok=True)
seeds = {
    'colour_wrap': bytes([0]) + struct.pack('<3f', 1.5, 0.5, 0.0),
    'colour_huge': bytes([0]) + struct.pack('<3f', 1e30, float('nan'), -0.5),
    'arc_quarter': bytes([1]) + struct.pack('<3i2f', 100, 50, 20, 0.0, 90.0),
    'arc_full': bytes([1]) + struct.pack('<3i2f', -5, 7, 300, 30.0, 360.0),
    'text_scale_hh': bytes([2]) + struct.pack('<I2f', 72, 0.7, 0.72) + bytes(7 * 12) + struct.pack('<2f', 2.0, 0.0) + b'HH',
    'text_scale_height': bytes([2]) + struct.pack('<I2f', 65, 0.5, 0.6) + bytes(7 * 12) + struct.pack('<2f', 0.0, 1.5) + b'AAA',
    'pixels_3x3': bytes([3]) + struct.pack('<2i3I', 3, 3, 7, 1, 2),
    'pixels_huge': bytes([3]) + struct.pack('<2i3I', 0x7FFFFFFF, 0x7FFFFFFF, 8, 6, 3),
    'text_copy': bytes([4]) + b'Tessarin',
}
for name, data in seeds.items():
    (out / name).write_bytes(data)
