#!/bin/bash
# Paints the icon's usual sizes from the two drawings; run it after changing one of them. Needs librsvg2-bin,
# pngquant and zopfli.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"

paint() {
    rsvg-convert --width "$2" --height "$2" "$1" --output "zerna-$2.png"
}

for size in 16 22 24 32; do paint zerna-klein.svg "$size"; done
for size in 48 64 128 256; do paint zerna.svg "$size"; done
# The large ones have many pixels of few colours.
for size in 128 256; do
    pngquant --force --ext .png --speed 1 --strip --quality 0-95 256 -- "zerna-$size.png"
    zopflipng -y "zerna-$size.png" "zerna-$size.png" >/dev/null
done
