#!/bin/bash
# Installs what is missing, builds the benchmarks and runs them; the ratios stand at the end. Arguments go to the
# benchmark program, such as --benchmark_filter=Formel.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")

fail() {
    echo "Fehler: $1" >&2
    exit 1
}

"$root/packaging/install-debian-packages.sh" bench
cmake -S "$root" --preset release -DZERNA_BENCH=ON -DZERNA_WINDOW=ON ||
    fail "Die Messungen ließen sich nicht einrichten."
cmake --build "$root/build/release" --target zerna_bench zerna_aufwand zerna_aufruf zerna_start zerna_dauer ||
    fail "Die Messungen ließen sich nicht übersetzen."
"$root/build/release/bin/zerna_bench" "$@"
echo
"$root/build/release/bin/zerna_aufwand"
echo
"$root/build/release/bin/zerna_aufruf"
echo
"$root/build/release/bin/zerna_start"
