#!/bin/bash
# Installs what is missing, builds the program and starts it; arguments go to the program. Without a display it shows
# the results of an example alloy.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")

fail() {
    echo "Fehler: $1" >&2
    exit 1
}

"$root/packaging/install-debian-packages.sh" program
cmake -S "$root" --preset release || fail "Das Programm ließ sich nicht einrichten."
cmake --build "$root/build/release" || fail "Das Programm ließ sich nicht übersetzen."

if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    exec "$root/build/release/bin/zerna" "$@"
fi
echo
"$root/build/release/bin/zerna-cli" text Al=60 Cu=40 || fail "Die Beispiellegierung ließ sich nicht berechnen."
echo
echo "Das Fenster von Zerna braucht einen Bildschirm: ./run.sh bitte in einer grafischen Sitzung (X11 oder Wayland) starten."
