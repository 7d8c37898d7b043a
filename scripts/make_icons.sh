#!/usr/bin/env bash
# Draws the icons of the program and its files in all the sizes that desktops ask for, from their SVG. They are kept in
# the tree, as all pictures are: a build should need no drawing program. Wants librsvg2-bin.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../packaging/icons"

for size in 16 22 24 32 48 64 128 256; do
  mkdir -p "${size}x$size"
  for drawing in scalable/*.svg; do
    rsvg-convert --width=$size --height=$size "$drawing" --output="${size}x$size/$(basename "$drawing" .svg).png"
  done
done
