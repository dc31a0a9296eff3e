#!/bin/bash
# Paints the icon's usual sizes from the two drawings; run it after changing one of them. Needs librsvg2-bin.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"

paint() {
    rsvg-convert --width "$2" --height "$2" "$1" --output "zerna-$2.png"
}

for size in 16 22 24 32; do paint zerna-klein.svg "$size"; done
for size in 48 64 128 256; do paint zerna.svg "$size"; done
