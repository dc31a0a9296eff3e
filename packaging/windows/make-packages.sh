#!/bin/bash
# Makes the Windows packages on Debian and tries them under Wine.
#
#   make-packages.sh [FOLDER]        default build/windows
#
# FOLDER gets zerna-VERSION-windows.zip, zerna-VERSION-windows.exe (the installer) and protokoll.txt, which says what was
# done and tried. Environment: JOBS (default 2), QT (a folder for the cross-built Qt, default FOLDER/qt), DEPS (likewise),
# SOURCES (a folder with the source packages of qt6-base and expat, default FOLDER/quellen).
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
root=$(dirname -- "$(dirname -- "$here")")
work=${1:-$root/build/windows}
mkdir -p "$work"
work=$(cd -- "$work" && pwd)
export JOBS=${JOBS:-2}
qt=${QT:-$work/qt} deps=${DEPS:-$work/deps} sources=${SOURCES:-$work/quellen}
build=$work/programm stage=$work/Zerna
log=$work/protokoll.txt

say() { echo "$(date +%H:%M:%S)  $*" | tee -a "$log"; }
fail() {
    say "FEHLER: $*"
    exit 1
}

: >"$log"
version=$(sed -n 's/^project(Zerna VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
say "Zerna $version für Windows, aus $(git -C "$root" describe --always --dirty 2>/dev/null || echo einem Quellbaum ohne Git)"
"$root/packaging/install-debian-packages.sh" windows

# --- toolkit and libraries ----------------------------------------------------
mkdir -p "$sources"
for package in qt6-base expat; do
    ls "$sources/$package"_*.dsc >/dev/null 2>&1 ||
        (cd "$sources" && apt-get source --download-only "$package") ||
        fail "Die Quelle von $package fehlt; ist deb-src eingetragen (LIESMICH.md)?"
done
"$here/build-qt.sh" "$qt" "$sources" >"$work/qt.log" 2>&1 || fail "Qt ließ sich nicht bauen: $work/qt.log"
if [ ! -e "$qt/lib/cmake/Qt6Svg" ]; then
    tar -C "$work" -xJf "$here/qtsvg-6.4.2.tar.xz"
    "$here/build-qtsvg.sh" "$qt" "$work/qtsvg-6.4.2" >"$work/qtsvg.log" 2>&1 ||
        fail "QtSvg ließ sich nicht bauen: $work/qtsvg.log"
fi
"$here/build-deps.sh" "$deps" "$sources" >"$work/deps.log" 2>&1 ||
    fail "Die Bibliotheken ließen sich nicht bauen: $work/deps.log"
say "Qt $(qtpaths6 --query QT_VERSION) mit Svg: $qt; Bibliotheken: $deps"

# --- the programs -------------------------------------------------------------
export WINEPREFIX=$work/wine # the element table is made by a program that was just built
# shellcheck source=wine.sh
. "$here/wine.sh"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$here/mingw-toolchain.cmake" -DCMAKE_PREFIX_PATH="$qt;$deps" \
    -DZLIB_LIBRARY_RELEASE="$deps/lib/libz.a" -DZLIB_INCLUDE_DIR="$deps/include" \
    -DQT_HOST_PATH="$(qtpaths6 --query QT_INSTALL_PREFIX)" \
    -DQT_HOST_PATH_CMAKE_DIR="$(qtpaths6 --query QT_INSTALL_LIBS)/cmake" >"$work/programm.log" ||
    fail "Das Programm ließ sich nicht einrichten: $work/programm.log"
cmake --build "$build" --parallel "$JOBS" --target zerna zerna-cli zerna-bild {core,parser,model,bild}_tests \
    {traeger,dokument,programm,ui}_tests >>"$work/programm.log" 2>&1 ||
    fail "Das Programm ließ sich nicht übersetzen: $work/programm.log"
say "zerna.exe, zerna-cli.exe, zerna-bild.exe und die Tests gebaut"

# --- what is shipped ----------------------------------------------------------
rm -rf -- "$stage"
mkdir -p "$stage/lizenzen" "$stage/original"
for program in zerna zerna-cli zerna-bild; do
    x86_64-w64-mingw32-strip -o "$stage/$program.exe" "$build/bin/$program.exe"
    imported=$(x86_64-w64-mingw32-objdump -p "$stage/$program.exe" | sed -n 's/^\s*DLL Name: //p' | tr '\n' ' ')
    say "$program.exe: $(stat -c %s "$stage/$program.exe") Bytes, benutzt $imported"
    case " $imported" in *libstdc*|*libgcc*|*winpthread*|*zlib*|*Qt6*) fail "$program.exe braucht Bibliotheken, die fehlen" ;; esac
done
cp "$build/bin/elemente.dat" "$stage/"
cp "$build/bin/elemente.dat" "$stage/original/" # by which the uninstaller knows a changed one
cp "$root/data/QUELLEN.md" "$root/data/quellen.csv" "$stage/"
for pages in "$root"/build/*/handbuch; do
    [ -e "$pages/handbuch.pdf" ] || continue
    for kind in html pdf; do cp "$pages/handbuch.$kind" "$stage/Handbuch.$kind"; done
    cp -rL "$pages/bilder" "$stage/"
done
if [ ! -e "$stage/Handbuch.pdf" ]; then
    say "ohne Handbuch.html und Handbuch.pdf: es gibt keinen Bau für Linux, der sie gemacht hätte (Ziel handbuch)"
    cp "$root/docs/handbuch.md" "$stage/Handbuch.md"
fi
sed 's/$/\r/' "$here/LIZENZEN.txt" >"$stage/LIZENZEN.txt"
"$here/lizenztexte.py" "$(ls "$sources"/qt6-base_*.orig.tar.xz)" "$here/qtsvg-6.4.2.tar.xz" "$deps" "$stage/lizenzen"
cp "$here/build-qt.sh" "$here/build-qtsvg.sh" "$here/mingw-toolchain.cmake" "$stage/lizenzen/"
"$here/neubinden.py" "$build" "$qt" "$stage/lizenzen/neubinden.tar.xz"
say "Lizenztexte: $(ls "$stage/lizenzen" | wc -l) Dateien; Objekte zum Neubinden: $(stat -c %s "$stage/lizenzen/neubinden.tar.xz") Bytes"

# --- ZIP and installer --------------------------------------------------------
zip=$work/zerna-$version-windows.zip setup=$work/zerna-$version-windows.exe
rm -f -- "$zip" "$setup"
(cd -- "$work" && zip -q -9 -r "$zip" Zerna)
{
    echo '!macro Dateien'
    (cd -- "$stage" && find . -type f ! -path ./elemente.dat -printf 'Delete "$INSTDIR\\%P"\n' | sed 's,/,\\,g')
    echo '!macroend'
    echo '!macro Ordner'
    (cd -- "$stage" && find . -mindepth 1 -depth -type d -printf 'RMDir "$INSTDIR\\%P"\n' | sed 's,/,\\,g')
    echo '!macroend'
} >"$work/dateien.nsh"
makensis -V2 -WX -INPUTCHARSET UTF8 -DVERSION="$version" -DVERSION4="$version.0" -DSTAGE="$stage" \
    -DLISTE="$work/dateien.nsh" -DOUT="$setup" -DICON="$build/zerna.ico" \
    -DKILOBYTES="$(du -sk "$stage" | cut -f1)" "$here/zerna.nsi"
say "$(basename "$zip"): $(stat -c %s "$zip") Bytes; $(basename "$setup"): $(stat -c %s "$setup") Bytes"

"$here/pruefe-unter-wine.sh" "$work" "$qt" 2>&1 | tee -a "$log"
say "fertig; was nur ein echtes Windows zeigt, steht in $here/pruefliste.md"
