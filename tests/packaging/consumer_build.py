#!/usr/bin/env python3
"""An application's view of an installed Tessarin: configures the installed examples as
a project of its own (find_package(Tessarin 2.0 REQUIRED), Tessarin::Tessarin) with the
given toolchain, builds them, and runs one under wine.

usage: consumer_build.py PREFIX TOOLCHAIN_FILE BUILD_DIR EMULATOR EXAMPLE
"""
import pathlib
import shutil
import subprocess
import sys


def run(command, **kwargs):
    result = subprocess.run(command, capture_output=True, text=True, **kwargs)
    if result.returncode != 0:
        print('FAIL', ' '.join(map(str, command)))
        print(result.stdout[-4000:] + result.stderr[-4000:])
    return result.returncode == 0


def main(prefix, toolchain, build_dir, emulator, example):
    prefix, build_dir = pathlib.Path(prefix), pathlib.Path(build_dir)
    shutil.rmtree(build_dir, ignore_errors=True)
    source = prefix / 'share/doc/Tessarin/examples'
    if not run(['cmake', '-S', source, '-B', build_dir, '-G', 'Ninja',
                f'-DCMAKE_TOOLCHAIN_FILE={toolchain}', f'-DCMAKE_PREFIX_PATH={prefix.resolve()}']):
        return 1
    if not run(['cmake', '--build', build_dir, '-j2']):
        return 1
    shot = build_dir / f'{example}.bmp'
    if not run([emulator, build_dir / 'bin' / f'{example}.exe', '--screenshot', shot], cwd=build_dir / 'bin',
               timeout=300):
        return 1
    if not shot.exists() or shot.stat().st_size < 1000:
        print(f'FAIL {example} wrote no screenshot')
        return 1
    print(f'built the examples against {prefix} and ran {example}')
    return 0


if __name__ == '__main__':
    if len(sys.argv) != 6:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
