#!/usr/bin/env python3
"""Compares the DLL's export table with the functions the public header declares, and
checks that the DLL imports only Windows system DLLs and the C runtime."""
import re
import subprocess
import sys

ALLOWED_IMPORTS = {
    'kernel32.dll', 'user32.dll', 'gdi32.dll', 'opengl32.dll', 'glu32.dll', 'advapi32.dll',
    'comdlg32.dll', 'comctl32.dll', 'shell32.dll', 'msvcrt.dll',
}


def main():
    objdump, dll, header = sys.argv[1:4]
    dump = subprocess.run([objdump, '-p', dll], check=True, capture_output=True, text=True).stdout
    exports = set(re.findall(r'^\s+\[\s*\d+\]\s+(\w+)$', dump, re.M))
    imports = {name.lower() for name in re.findall(r'DLL Name: (\S+)', dump)}
    text = open(header, encoding='latin-1').read()
    declared = set(re.findall(r'^TS_API\s+[^;(]*?\b(\w+)\s*\(', text, re.M))
    ok = True
    if exports != declared:
        print('exported, not declared:', sorted(exports - declared))
        print('declared, not exported:', sorted(declared - exports))
        ok = False
    if not imports <= ALLOWED_IMPORTS:
        print('imports beyond the system DLLs:', sorted(imports - ALLOWED_IMPORTS))
        ok = False
    if not exports:
        print('no exports found')
        ok = False
    print(f'{len(exports)} exports match the header; imports: {sorted(imports)}' if ok else 'FAILED')
    return 0 if ok else 1


if __name__ == '__main__':
    sys.exit(main())
