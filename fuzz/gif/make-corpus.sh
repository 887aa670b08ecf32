#!/usr/bin/env bash
# Makes the seed corpus of fuzz_gif in fuzz/corpus/gif: small GIFs from gifbuild and
# ImageMagick (global and local tables, interlacing, offsets inside and outside the
# screen, 87a and 89a, extensions) and damaged copies of some of them. The files named
# found-* are not made here: they are the inputs a long fuzzing run added coverage with
# (fuzz_gif -merge=1 over the seeds), kept so that the short CI pass starts from them.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
out=$root/fuzz/corpus/gif
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"

# map COLORS SEED: a gifbuild colour table
map() {
  for ((i = 0; i < $1; i++)); do
    echo "	rgb $(( (i * 7 + 3 + $2 * 50) % 256 )) $(( (i * 13 + 1) % 256 )) $(( (255 - i) % 256 ))"
  done
  echo end
}

# raster WIDTH HEIGHT COLORS: hex rows cycling through the table
raster() {
  for ((y = 0; y < $2; y++)); do
    for ((x = 0; x < $1; x++)); do printf '%02x' $(( (x * 7 + y * 3) % $3 )); done
    echo
  done
}

# image LEFT TOP WIDTH HEIGHT COLORS [interlaced] [local]
image() {
  echo image
  echo "image left $1"
  echo "image top $2"
  [[ "${6:-}" == interlaced ]] && echo "image interlaced"
  if [[ "${7:-}" == local ]]; then echo "image map"; map "$5" 1; fi
  echo "image bits $3 by $4 hex"
  raster "$3" "$4" "$5"
}

# screen WIDTH HEIGHT COLORS
screen() {
  printf 'screen width %s\nscreen height %s\nscreen colors %s\nscreen map\n' "$1" "$2" "$3"
  map "$3" 0
}

build() { gifbuild "$work/$1.txt" > "$out/$1.gif"; }

for colors in 2 4 16 256; do
  { screen 9 5 $colors; image 0 0 9 5 $colors; } > "$work/global$colors.txt"
  build global$colors
done
{ screen 12 10 16; image 2 1 5 4 8 "" local; image 6 3 6 7 16 interlaced; } > "$work/local.txt"
build local
{ screen 8 20 256; image 0 0 8 11 256 interlaced; image 1 13 5 9 256 interlaced; } > "$work/interlaced.txt"
build interlaced
{ screen 10 8 4; image 7 6 6 5 4; image 10 0 2 2 4; image 0 8 2 2 4; image 1 1 3 3 4; } > "$work/offsets.txt"
build offsets
{ screen 6 6 8; image 0 0 6 6 8; printf 'comment\nseed\nend\n';
  image 1 1 3 3 8; printf 'graphics control\n\tdelay 4\n\ttransparent index 2\nend\n'; } > "$work/extensions.txt"
build extensions

convert -seed 1 -size 24x18 plasma:fractal -colors 16 "$out/magick16.gif"
convert -seed 2 -size 31x17 plasma:fractal -colors 200 -interlace GIF "$out/magick200_interlaced.gif"
convert -seed 3 -size 20x20 plasma:fractal -colors 2 "GIF87:$out/magick87a.gif"
convert -seed 4 -size 20x16 plasma:fractal -colors 8 \( -size 8x6 xc:red -set page +16+14 \) \
  -comment seed -delay 3 "$out/magick_frames.gif"

# Damaged copies: cut short, a flipped code byte, a large minimum code size.
head -c $(( $(stat -c %s "$out/magick16.gif") - 60 )) "$out/magick16.gif" > "$out/truncated_raster.gif"
head -c 12 "$out/global16.gif" > "$out/truncated_screen.gif"
python3 - "$out" <<'PY'
import sys
out = sys.argv[1]
data = bytearray(open(f"{out}/global256.gif", "rb").read())
data[-5] ^= 0xFF
open(f"{out}/bad_code.gif", "wb").write(data)
data = bytearray(open(f"{out}/global4.gif", "rb").read())
start = data.index(b",") + 10
data[start] = 13
open(f"{out}/code_size_13.gif", "wb").write(data)
PY
ls -l "$out" | tail -n +2 | wc -l
