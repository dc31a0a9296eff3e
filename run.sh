#!/bin/bash
# Installs what is missing, builds the program and starts it; arguments go to the program. Without a display it shows
# the quantities of an example alloy.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")

fail() {
    echo "Fehler: $1" >&2
    exit 1
}

# A table with columns, written as one reads it.
show_quantities() {
    local LC_ALL=C.UTF-8 name wert einheit # characters are counted, not bytes
    while IFS=$'\t' read -r name wert einheit; do
        printf '  %s%*s  %-14s  %s\n' "$name" $((28 - ${#name})) '' "${wert/./,}" "$einheit"
    done
}

"$root/packaging/install-debian-packages.sh" program
cmake -S "$root" --preset release || fail "Das Programm ließ sich nicht einrichten."
cmake --build "$root/build/release" || fail "Das Programm ließ sich nicht übersetzen."

if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    exec "$root/build/release/bin/zerna" "$@"
fi
echo
echo "Al60Cu40, 60 at% Aluminium und 40 at% Kupfer:"
"$root/build/release/bin/zerna-cli" groessen Al60Cu40 | show_quantities ||
    fail "Die Beispiellegierung ließ sich nicht berechnen."
echo
echo "Mehr davon: build/release/bin/zerna-cli --hilfe"
echo
echo "Das Fenster von Zerna braucht einen Bildschirm: ./run.sh bitte in einer grafischen Sitzung (X11 oder Wayland) starten."
