#!/bin/bash
# Tries what make-packages.sh has made, under Wine, and says what it tried; ends with 1 if something failed.
#
#   pruefe-unter-wine.sh FOLDER QT-FOLDER
set -uo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
root=$(dirname -- "$(dirname -- "$here")")
work=$(cd -- "$1" && pwd)
qt=$2
bin=$work/programm/bin stage=$work/Zerna
failures=0

say() { echo "$(date +%H:%M:%S)  $*"; }
ok() { say "ok        $*"; }
bad() {
    say "SCHLECHT  $*"
    failures=$((failures + 1))
}
expect() { # expect TEXT COMMAND...
    local text=$1
    shift
    if "$@" >"$work/letzter.log" 2>&1; then ok "$text"; else bad "$text: $(tail -n 3 "$work/letzter.log" | tr -d '\r' | tr '\n' ' ')"; fi
}

export WINEPREFIX=$work/wine
# shellcheck source=wine.sh
. "$here/wine.sh"
windows_path() { wine winepath -w "$1" | tr -d '\r'; }

# --- tests --------------------------------------------------------------------
# What these take only Linux has: links, Python, names whose length the system tells apart.
linux_only=ElementdateiTest.AFailedSaveLeavesTheEarlierFile:ProgrammTest.EndsWithAMessageWhenThereIsNoDataFile
linux_only+=:ExportierenTest.AfterAFailureTheDialogComesAgain
linux_only+=:ExportzielTest.WhatSpeaksAgainstANameIsSaid:DokumentdateiTest.ReadsWhatItWrote
say "nicht unter Windows: ${linux_only//:/, }"
for room in core parser model bild traeger dokument programm; do
    log=$work/${room}_tests.log
    (cd "$bin" && timeout 600 wine "./${room}_tests.exe" --gtest_filter="-$linux_only" >"$log" 2>&1)
    status=$?
    passed=$(tr -d '\r' <"$log" | sed -n 's/^\[  PASSED  \] \([0-9]*\) .*/\1/p')
    if [ $status = 0 ]; then ok "${room}_tests: $passed Tests"; else bad "${room}_tests: $(tr -d '\r' <"$log" | grep '^\[  FAILED  \] [A-Z]' | sort -u | tr '\n' ' ')"; fi
done

# The window's tests run without a screen; the letters are those that they are written for.
rm -f "$work/ui_tests.log"
QT_QPA_PLATFORM=offscreen QT_QPA_FONTDIR=$(windows_path /usr/share/fonts/truetype/dejavu) \
    timeout 1800 wine "$bin/ui_tests.exe" --gtest_filter='-BilderTest.*:DruckenTest.*' >"$work/ui_tests.log" 2>&1
status=$?
summary=$(tr -d '\r' <"$work/ui_tests.log" | grep -E '^\[  (PASSED|FAILED)  \] [0-9]+ ' | tr '\n' ' ')
if [ $status = 0 ]; then ok "ui_tests: $summary"; else bad "ui_tests (Status $status): $summary siehe ui_tests.log"; fi

# --- command line -------------------------------------------------------------
"$here/befehle_vergleichen.py" "$root/tests/cli/befehle.txt" "$stage" >"$work/befehle.log" 2>&1
status=$?
if [ $status = 0 ]; then ok "Befehlszeile: $(tail -n 1 "$work/befehle.log")"; else bad "Befehlszeile: $(tail -n 1 "$work/befehle.log"), siehe befehle.log"; fi
folder="$work/Größe & Maß"
rm -rf "$folder"
mkdir -p "$folder"
for kind in png svg pdf; do
    (cd "$folder" && wine "$stage/zerna-cli.exe" bild --groesse 0 --ziel "ä ß.$kind" Al=60 Cu=40 >"$work/bild.log" 2>&1)
    if [ -s "$folder/ä ß.$kind" ]; then ok "zerna-cli bild: $(file -b "$folder/ä ß.$kind" | cut -c1-60)"; else bad "zerna-cli bild $kind: $(cat "$work/bild.log")"; fi
done
expect "  das PDF hat die Schrift der Bilder" grep -aq DejaVuSans "$folder/ä ß.pdf"

# --- relinking ----------------------------------------------------------------
rm -rf "$work/neu"
mkdir "$work/neu"
(cd "$work/neu" && tar -xJf "$stage/lizenzen/neubinden.tar.xz" --strip-components=1 && sh neubinden.sh "$qt") >"$work/neu.log" 2>&1
if [ -s "$work/neu/zerna-bild.exe" ] && [ -s "$work/neu/zerna.exe" ]; then
    cp "$stage/elemente.dat" "$work/neu/"
    expect "neu gebundenes zerna-bild.exe malt" wine "$work/neu/zerna-bild.exe" bild --art elemente --groesse 0 --ziel "$(windows_path "$work/neu/e.png")"
else
    bad "Neubinden: $(tail -n 2 "$work/neu.log")"
fi

# --- installer in and out -----------------------------------------------------
setup=$(ls "$work"/zerna-*-windows.exe)
home=$WINEPREFIX/drive_c/users/$(id -un)/AppData
program=$home/Local/Programs/Zerna
menu="$home/Roaming/Microsoft/Windows/Start Menu/Programs/Zerna.lnk"
remove() { wine "$program/Zerna entfernen.exe" /S "_?=$(windows_path "$program")"; }
expect "Installer" wine "$setup" /S
expect "  zerna.exe ist da" test -s "$program/zerna.exe"
expect "  Startmenü" test -s "$menu"
expect "  Dateityp .zerna" wine reg query 'HKCU\Software\Classes\Zerna.Legierung\shell\open\command'
expect "  zerna-cli findet seine Tabelle" wine "$program/zerna-cli.exe" text Al=60 Cu=40
echo geändert >>"$program/elemente.dat"
expect "Installer über die alte Fassung" wine "$setup" /S
expect "  geänderte elemente.dat bleibt" grep -q geändert "$program/elemente.dat"
wine reg add 'HKCU\Software\KoltZerna' /v Probe /d 1 /f >/dev/null
expect "Entfernen" remove
expect "  geänderte elemente.dat bleibt" grep -q geändert "$program/elemente.dat"
expect "  Einstellungen bleiben ohne Frage" wine reg query 'HKCU\Software\KoltZerna' /v Probe
rest=$(find "$program" -type f ! -name elemente.dat ! -name 'Zerna entfernen.exe')
if [ -z "$rest" ] && [ ! -e "$menu" ] && ! wine reg query 'HKCU\Software\Classes\.zerna' >/dev/null 2>&1; then ok "  sonst bleibt nichts"; else bad "  es bleibt: $rest"; fi
rm -rf "$program"
wine reg delete 'HKCU\Software\KoltZerna' /v Probe /f >/dev/null

end_wine
say "$failures Fehler"
[ $failures = 0 ]
