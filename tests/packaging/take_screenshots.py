#!/usr/bin/env python3
"""Runs every example with --screenshot under wine and keeps its window as a PNG: in
OUT_DIR (build artefacts: the gallery and, for the help pages, the scene window), and,
with --refresh DIR, in the committed gallery DIR when the pixels changed. With --readme
FILE every example must show its screenshot in that gallery page.

usage: take_screenshots.py EMULATOR BIN_DIR OUT_DIR [--refresh DIR] [--readme FILE] EXAMPLE...
"""
import pathlib
import shutil
import subprocess
import sys

# The help pages show the scene window of this example.
HELP_SHOTS = {'tessarin_demo': 'scene_window.png'}


def to_png(bmp, png):
    subprocess.run(['convert', str(bmp), '-strip', str(png)], check=True)


def same_pixels(a, b):
    if not b.exists():
        return False
    result = subprocess.run(['compare', '-metric', 'AE', str(a), str(b), 'null:'],
                            capture_output=True, text=True)
    return result.returncode == 0 and result.stderr.strip().split()[0] == '0'


def shoot(emulator, bin_dir, out_dir, name):
    bmp = out_dir / f'{name}.bmp'
    bmp.unlink(missing_ok=True)
    run = subprocess.run([emulator, str(bin_dir / f'{name}.exe'), '--screenshot', str(bmp)],
                         cwd=out_dir, capture_output=True, text=True, timeout=300)
    if run.returncode != 0 or not bmp.exists():
        print(f'FAIL {name}: exit code {run.returncode}, screenshot written: {bmp.exists()}')
        print(run.stdout + run.stderr)
        return None
    png = out_dir / f'{name}.png'
    to_png(bmp, png)
    return png


def option(argv, name):
    if name not in argv:
        return None
    i = argv.index(name)
    value = pathlib.Path(argv[i + 1])
    del argv[i:i + 2]
    return value


def missing_from_gallery(readme, examples):
    text = readme.read_text()
    return [name for name in examples if f'(images/{name}.png)' not in text]


def main(argv):
    refresh = option(argv, '--refresh')
    readme = option(argv, '--readme')
    emulator, bin_dir, out_dir, *examples = argv
    bin_dir, out_dir = pathlib.Path(bin_dir), pathlib.Path(out_dir)
    (out_dir / 'help').mkdir(parents=True, exist_ok=True)
    failures = 0
    if readme is not None:
        for name in missing_from_gallery(readme, examples):
            print(f'FAIL {name}: {readme} does not show images/{name}.png')
            failures += 1
    for name in examples:
        png = shoot(emulator, bin_dir, out_dir, name)
        if png is None:
            failures += 1
            continue
        if name in HELP_SHOTS:
            shutil.copyfile(png, out_dir / 'help' / HELP_SHOTS[name])
        if refresh is not None and not same_pixels(png, refresh / png.name):
            refresh.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(png, refresh / png.name)
            print(f'refreshed {refresh / png.name}')
        print(f'{name}: {png}')
    return 1 if failures else 0


if __name__ == '__main__':
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1:]))
