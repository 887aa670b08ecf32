#!/usr/bin/env python3
"""Makes the seed corpora of fuzz_crease_normals and fuzz_mesh_params (the input
layouts are described at the top of each target): the meshes the tests work out by
hand, degenerate ones, and the face set and grid arguments of every message."""
import math
import os
import struct
import sys

root = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'corpus')


def write(corpus, name, data):
    folder = os.path.join(root, corpus)
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, name), 'wb') as f:
        f.write(bytes(data))


def s8(v):
    v = int(round(v))
    assert -128 <= v <= 127, v
    return v & 0xff


def mesh(angle_byte, coords, faces, raw=False, tail=()):
    data = [angle_byte, len(coords), 1 if raw else 0]
    for p in coords:
        for c in p:
            data += list(struct.pack('<f', c)) if raw else [s8(c * 4)]
    for f in faces:
        data += [s8(i) for i in f] + [0xff]
    return data + [s8(i) for i in tail]


cube = [(x, y, z) for z in (0, 1) for y in (0, 1) for x in (0, 1)]
cube_faces = [(0, 2, 3, 1), (4, 5, 7, 6), (0, 1, 5, 4), (2, 6, 7, 3), (0, 4, 6, 2), (1, 3, 7, 5)]


def cylinder(n, caps_first):
    pts = [(2 * math.cos(2 * math.pi * i / n), y * 2, 2 * math.sin(2 * math.pi * i / n)) for y in (0, 1) for i in range(n)]
    caps = [[n] + [n + i for i in range(n - 1, 0, -1)], list(range(n))]
    sides = [(i, n + i, n + (i + 1) % n, (i + 1) % n) for i in range(n)]
    return pts, (caps + sides if caps_first else sides + caps)


def cone(n, closed=True):
    pts = [(0, 4, 0)] + [(8 * math.cos(2 * math.pi * i / n), 0, 8 * math.sin(2 * math.pi * i / n)) for i in range(n)]
    faces = [(0, 1 + (i + 1) % n, 1 + i) for i in range(n if closed else n - 1)]
    return pts, faces


def crease_corpus():
    write('crease_normals', 'cube_30', mesh(20, cube, cube_faces))
    write('crease_normals', 'cube_100', mesh(67, cube, cube_faces))
    write('crease_normals', 'cube_nan', mesh(251, cube, cube_faces))
    write('crease_normals', 'cube_no_final_end', mesh(20, cube, cube_faces)[:-1])
    for caps_first in (False, True):
        pts, faces = cylinder(16, caps_first)
        write('crease_normals', 'cylinder_caps_%s' % ('first' if caps_first else 'last'), mesh(20, pts, faces))
    saddle = [(x, y, x * y) for y in (-1, 0, 1) for x in (-1, 0, 1)]
    write('crease_normals', 'saddle_40', mesh(27, saddle, [(0, 1, 4, 3), (1, 2, 5, 4), (3, 4, 7, 6), (4, 5, 8, 7)]))
    fan = [(0, 0, 0), (1, 0, 0), (0, 1, 0), (-1, 0, 0), (0, 0, -1)]
    write('crease_normals', 'open_fan', mesh(30, fan, [(0, 2, 3), (0, 1, 2), (0, 3, 4)]))
    pts, faces = cone(80)
    write('crease_normals', 'cone_80_faces', mesh(40, pts, faces))
    pts, faces = cone(70, closed=False)
    write('crease_normals', 'open_cone_69_faces', mesh(40, pts, faces))
    book = [(0, 0, 0), (1, 0, 0), (0, 1, 0), (0, 0, 1), (0, -1, -0.25)]
    write('crease_normals', 'three_faces_on_an_edge', mesh(20, book, [(0, 1, 2), (0, 3, 1), (0, 4, 1)]))
    tri = [(0, 0, 0), (1, 0, 0), (0, 1, 0), (2, 0, 0)]
    write('crease_normals', 'zero_area_and_repeats', mesh(20, tri, [(0, 1, 3), (0, 0, 1, 2), (1, 2, 1, 2, 0), (0,), (), (1, 2)]))
    write('crease_normals', 'out_of_range', mesh(20, tri, [(0, -5, 1, 2, 7), (99, 1, 2), (-3, -4, 3)], tail=(0, 1, 2)))
    big = [(math.cos(2 * math.pi * i / 100) * 8, math.sin(2 * math.pi * i / 100) * 8, 0) for i in range(100)]
    write('crease_normals', 'hundred_gon', mesh(20, big, [tuple(range(100)), (0, 1, 2)]))
    write('crease_normals', 'non_finite', mesh(254, [(0, 0, 0), (1, 0, 0), (0, 1, 0), (float('nan'), 0, 0), (float('inf'), 1, 1), (1e30, 0, 0), (1e-40, 0, 0)],
                                                 [(0, 1, 2), (0, 3, 1), (0, 2, 4), (0, 5, 6)], raw=True))
    # A face whose cross product is below the normal floats: its length loses precision.
    write('crease_normals', 'tiny_face', mesh(254, [(0, 0, 0), (1e-20, 0, 0), (0, 1e-20, 0), (0, 0, 1e-20)],
                                                 [(0, 1, 2), (0, 2, 3), (0, 3, 1)], raw=True))
    write('crease_normals', 'back_to_back', mesh(254, tri, [(0, 1, 2), (0, 2, 1)]))


def face_set(flags, counts, coords=(), coord_index=(), colors=(), color_index=(), normals=(), normal_index=()):
    data = [0, flags] + [s8(c) for c in counts]
    data += [s8(c * 4) for p in coords for c in p] + [s8(i) for i in coord_index]
    data += [s8(c * 127) for p in colors for c in p] + [s8(i) for i in color_index]
    data += [s8(c * 64) for p in normals for c in p] + [s8(i) for i in normal_index]
    return data


def params_corpus():
    index = [i for f in cube_faces for i in f + (-1,)]
    per_vertex = [i if i >= 0 else -1 for i in index]
    six = [(0.1 * k, 0.5, 1) for k in range(8)]
    base = dict(coords=cube, coord_index=index)
    n = len(index)
    cases = {
        'cube': (0, [8, n, 0, 0, 0, 0], {}),
        'cube_no_final_end': (0, [8, n - 1, 0, 0, 0, 0], {}),
        'invalid': (64, [8, n, 0, 0, 0, 0], {}),
        'coord_index_too_big': (0, [8, n, 0, 0, 0, 0], dict(coord_index=[8] + index[1:])),
        'negative_counts': (4, [-1, n, 6, 0, 0, 0], {}),
        'face_colours': (4, [8, n, 6, 0, 0, 0], dict(colors=six[:6])),
        'five_colours_six_faces': (4, [8, n, 5, 0, 0, 0], dict(colors=six[:5])),
        'vertex_colours': (5, [8, n, 8, 0, 0, 0], dict(colors=six)),
        'vertex_colour_index': (13, [8, n, 8, n, 0, 0], dict(colors=six, color_index=per_vertex)),
        'colour_index_short': (13, [8, n, 8, n - 1, 0, 0], dict(colors=six, color_index=per_vertex[:-1])),
        'colour_index_too_big': (12, [8, n, 6, 6, 0, 0], dict(colors=six[:6], color_index=[0, 1, 2, 3, 4, 6])),
        'face_normals_index': (48, [8, n, 0, 0, 6, 6], dict(normals=six[:6], normal_index=[5, 4, 3, 2, 1, 0])),
        'vertex_normals_more': (18, [8, n, 0, 0, 24, 0], dict(normals=six * 3)),
        'vertex_normals_fewer': (18, [8, n, 0, 0, 7, 0], dict(normals=six[:7])),
        'normal_index_too_big': (50, [8, n, 0, 0, 8, n], dict(normals=six, normal_index=[9] * n)),
    }
    for name, (flags, counts, arrays) in cases.items():
        write('mesh_params', name, face_set(flags, counts, **{**base, **arrays}))
    # Grids: dimensions, spacings * 4, flags, then heights, colours, normals.
    def grid(x, z, xs, zs, flags, heights, extra=()):
        return [1, s8(x), s8(z), s8(xs * 4), s8(zs * 4), flags] + [s8(h * 4) for h in heights] + list(extra)
    write('mesh_params', 'grid_2x2', grid(2, 2, 1, 1, 0, [0, 1, 2, 3]))
    write('mesh_params', 'grid_1x4', grid(1, 4, 1, 1, 0, [0, 1, 2, 3]))
    write('mesh_params', 'grid_1x3', grid(1, 3, 1, 1, 0, [0, 1, 2]))
    write('mesh_params', 'grid_zero_spacing', grid(3, 3, 0, 1, 0, [0] * 9))
    write('mesh_params', 'grid_negative_dims', grid(-2, -2, 1, 1, 0, [0] * 4))
    write('mesh_params', 'grid_cell_colours', grid(3, 3, 1, 0.5, 4, [0, 1, 0, 0, 1, 0, 0, 1, 0], [s8(60)] * 12))
    write('mesh_params', 'grid_point_colours_normals', grid(3, 3, 1, 1, 15, [0, 1, 0, 0, 1, 0, 0, 1, 0], [s8(60)] * 54))


if __name__ == '__main__':
    crease_corpus()
    params_corpus()
    sys.exit(0)
