#!/bin/bash
# Installs the Debian packages that are missing for a purpose; asks for nothing if none is.
#   program  build and run the program      tests  build and run the tests
#   bench    build and run the benchmarks   package  make and check the packages
#   windows  make the packages for Windows and try them under Wine
#   ci       all of these but windows, and format, lint and fuzz targets
set -euo pipefail

tools=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev zlib1g-dev libexpat1-dev)
window=(pkg-config libmd4c-dev libmd4c-html0-dev libqpdf-dev qt6-base-dev qt6-svg-dev qt6-translations-l10n fonts-dejavu-core)
program=("${tools[@]}" "${window[@]}" qt6-wayland)
tests=("${tools[@]}" "${window[@]}" qt6-base-private-dev libgtest-dev libgmock-dev python3 python3-jsonschema)
bench=("${tools[@]}" "${window[@]}" libbenchmark-dev libmuparser-dev)
package=("${program[@]}" python3 gzip dpkg-dev desktop-file-utils appstream libxml2-utils lintian man-db debootstrap)
ci=("${program[@]}" "${tests[@]}" "${bench[@]}" "${package[@]}" clang-14 clang-format-14 clang-tidy-14
    libclang-rt-14-dev mold)
windows=("${tests[@]}" perl dpkg-dev xz-utils g++-mingw-w64-x86-64-posix libz-mingw-w64-dev googletest
    icoutils librsvg2-bin nsis zip file wine wine64 fonts-liberation)

case ${1:-program} in
program) wanted=("${program[@]}") ;;
tests) wanted=("${tests[@]}") ;;
package) wanted=("${package[@]}") ;;
ci) wanted=("${ci[@]}") ;;
bench) wanted=("${bench[@]}") ;;
windows) wanted=("${windows[@]}") ;;
*)
    echo "Aufruf: ${0##*/} [program|tests|bench|package|windows|ci]" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null; then
    echo "Hinweis: Dies ist kein Debian. Nötig sind die Gegenstücke von: ${wanted[*]}" >&2
    exit 0
fi

missing=()
for package in "${wanted[@]}"; do
    # A line per architecture; its second letter is the package's state, "i" for installed.
    states=$(dpkg-query -W -f='\n${db:Status-Abbrev}' "$package" 2>/dev/null || true)
    [[ $states == *$'\n'?i* ]] || missing+=("$package")
done
if ((${#missing[@]} == 0)); then
    exit 0
fi

as_root=(env DEBIAN_FRONTEND=noninteractive)
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "Fehler: Es fehlen Pakete. Bitte als Administrator eingeben:" >&2
        echo "  apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo "${as_root[@]}")
fi

echo "Fehlende Pakete werden installiert: ${missing[*]}"
# A package source that does not answer need not be one of those that matter here.
"${as_root[@]}" apt-get -q update || echo "Hinweis: Nicht alle Paketlisten ließen sich auffrischen." >&2
if ! "${as_root[@]}" apt-get -qy install --no-install-recommends "${missing[@]}"; then
    echo "Fehler: Die Pakete ließen sich nicht installieren: ${missing[*]}" >&2
    exit 1
fi
