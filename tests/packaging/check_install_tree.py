#!/usr/bin/env python3
"""Checks an installed Tessarin tree: the layout, the CMake package files and the
pkg-config file, whose flags must compile and link a program with the cross compiler.

usage: check_install_tree.py PREFIX C_COMPILER HELP_PAGE...
"""
import os
import pathlib
import subprocess
import sys
import tempfile

LAYOUT = [
    'bin/Tessarin20b.dll',
    'lib/Tessarin20b.lib',
    'lib/Tessarin20b.def',
    'lib/pkgconfig/tessarin.pc',
    'lib/cmake/Tessarin/TessarinConfig.cmake',
    'lib/cmake/Tessarin/TessarinConfigVersion.cmake',
    'include/tessarin.h',
    'share/doc/Tessarin/api/index.html',
    'share/doc/Tessarin/api/tessarin_8h.html',
    'share/doc/Tessarin/examples/CMakeLists.txt',
    'share/doc/Tessarin/examples/README.md',
]

PROGRAM = '#include <tessarin.h>\nint main(void) { srandstd(1); return (int)randstd(10) < 0; }\n'


def pkg_config_flags(prefix):
    env = dict(os.environ, PKG_CONFIG_PATH=str(prefix / 'lib/pkgconfig'), PKG_CONFIG_LIBDIR='')
    result = subprocess.run(['pkg-config', '--cflags', '--libs', 'tessarin'], env=env,
                            capture_output=True, text=True)
    if result.returncode != 0:
        return None, result.stderr
    return result.stdout.split(), ''


def links_with_pkg_config(prefix, compiler):
    flags, error = pkg_config_flags(prefix)
    if flags is None:
        return f'pkg-config failed: {error}'
    if not any(f.startswith('-I') and pathlib.Path(f[2:]).resolve() == (prefix / 'include').resolve() for f in flags):
        return f'pkg-config flags do not name the installed include folder: {flags}'
    with tempfile.TemporaryDirectory() as tmp:
        source = pathlib.Path(tmp) / 'app.c'
        source.write_text(PROGRAM)
        result = subprocess.run([compiler, str(source), '-o', str(pathlib.Path(tmp) / 'app.exe'), *flags],
                                capture_output=True, text=True)
        if result.returncode != 0:
            return f'linking with the pkg-config flags failed: {result.stderr}'
    return None


def main(prefix, compiler, *help_pages):
    prefix = pathlib.Path(prefix)
    expected = LAYOUT + [f'share/doc/Tessarin/help/{page}' for page in help_pages]
    failures = [f'missing: {path}' for path in expected if not (prefix / path).is_file()]
    error = links_with_pkg_config(prefix, compiler)
    if error:
        failures.append(error)
    for f in failures:
        print('FAIL', f)
    print(f'{len(expected)} installed files checked, pkg-config link {"failed" if error else "ok"}')
    return 1 if failures else 0


if __name__ == '__main__':
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
