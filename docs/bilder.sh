#!/bin/bash
# Makes all pictures of the documentation anew: the figures with zerna-cli, those of the window with the window itself, which
# needs no display. Look at each one that has changed.
#   bilder.sh [FOLDER OF A BUILD WITH TESTS]
set -euo pipefail
docs=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
build=$(readlink -f -- "${1:-$docs/../build/dev}")
command -v pngquant >/dev/null || {
    echo "Fehler: pngquant fehlt (Paket pngquant)" >&2
    exit 1
}
"$docs/abbildungen.sh" "$build/bin"
ZERNA_AUFZEICHNEN=1 QT_QPA_PLATFORM=offscreen "$build/bin/handbuch_tests"
# Few colours make the pictures small; the figures stay as they are, since they carry their alloys.
for picture in "$docs"/bilder/*.png; do
    [[ $picture == */abbildung-* ]] || pngquant --force --ext .png --speed 1 --strip --nofs 64 -- "$picture"
done
