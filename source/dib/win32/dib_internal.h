// The bitmap library's internal operations that tests reach but the DLL does not export.
#pragma once

#include <windows.h>

// A BMP file into a new bitmap handle; 0 after a message.
HGLOBAL dibRead(LPCSTR fileName);
// File and info header and colour table of an open file into a new handle; the file is
// left at the pixel rows. 0 after a message.
HGLOBAL dibReadInfo(HFILE file);
// 1 when the file starts like a BMP file (40- or 12-byte header), else 0; no message.
BOOL dibIsBMPFile(LPCSTR fileName);
// 1 bit to 8 bits through 4 bits.
HGLOBAL dib1To8(HGLOBAL hDIB);
// 24 bits to black and white, and to the fixed 16 colours; both diffuse their error into
// the block they are given.
HGLOBAL _DIB24To1(HGLOBAL hDIB);
HGLOBAL _DIB24To4(HGLOBAL hDIB);
