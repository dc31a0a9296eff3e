#!/bin/bash
# Installs what is missing, builds everything and runs all tests; needs no display. Arguments go to ctest.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")

fail() {
    echo "Fehler: $1" >&2
    exit 1
}

"$root/packaging/install-debian-packages.sh" tests
cmake -S "$root" --preset dev || fail "Die Tests ließen sich nicht einrichten."
cmake --build "$root/build/dev" || fail "Die Tests ließen sich nicht übersetzen."
cd -- "$root"
ctest --preset dev "$@" || fail "Nicht alle Tests sind bestanden."
