#!/bin/bash
# Makes all pictures of the documentation anew: the figures with zerna-cli, those of the window with the window itself, which
# needs no display. Look at each one that has changed.
#   bilder.sh [FOLDER OF A BUILD WITH TESTS]
set -euo pipefail
docs=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
build=$(readlink -f -- "${1:-$docs/../build/dev}")
for tool in pngquant zopflipng; do
    command -v "$tool" >/dev/null || {
        echo "Fehler: $tool fehlt (Pakete pngquant und zopfli)" >&2
        exit 1
    }
done
"$docs/abbildungen.sh" "$build/bin"
ZERNA_AUFZEICHNEN=1 QT_QPA_PLATFORM=offscreen "$build/bin/handbuch_tests"
# Few colours make the pictures small; the figures stay as they are, since they carry their alloys.
for picture in "$docs"/bilder/*.png; do
    [[ $picture != */abbildung-* ]] || continue
    pngquant --force --ext .png --speed 1 --strip --nofs --quality 0-80 64 -- "$picture"
    zopflipng -y "$picture" "$picture" >/dev/null
done
