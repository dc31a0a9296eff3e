#!/bin/sh
# What the program needs beside Qt, in a prefix of its own for Windows x86_64:
#   CLI11, nlohmann-json   headers of Debian's libcli11-dev and nlohmann-json3-dev
#   zlib                   Debian's libz-mingw-w64-dev, the version of Debian's own zlib, so that files get the same bytes
#   Expat                  Debian's source package expat, built with mingw-w64
#   GoogleTest             Debian's googletest (/usr/src/googletest), built with mingw-w64
#
#   build-deps.sh PREFIX [SOURCE-DIR]
#
# SOURCE-DIR holds expat's source package; without it "apt-get source" fetches it (deb-src must be enabled).
# The headers are copied because Debian's own CMake packages say "-isystem /usr/include", which would put the build
# machine's C headers before those of Windows; zlib because only its static library is wanted.
set -eu

die() { echo "build-deps.sh: $*" >&2; exit 1; }

[ $# -ge 1 ] || die "usage: build-deps.sh PREFIX [SOURCE-DIR]"
here=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$1"
prefix=$(cd "$1" && pwd)
source_dir=${2:+$(cd "$2" && pwd)}
stamp=$prefix/mingw-deps.stamp
current=$( { cat "$here/build-deps.sh" "$here/mingw-toolchain.cmake"
             dpkg-query -W libcli11-dev nlohmann-json3-dev libz-mingw-w64-dev googletest
           } | sha256sum | cut -d' ' -f1)
if [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$current" ]; then
    echo "build-deps.sh: $prefix is current"
    exit 0
fi

mingw=/usr/x86_64-w64-mingw32
for wanted in /usr/include/CLI /usr/include/nlohmann /usr/src/googletest $mingw/lib/libz.a; do
    [ -e "$wanted" ] || die "$wanted is missing"
done
mkdir -p "$prefix/include" "$prefix/lib" "$prefix/share/cmake"
cp -r /usr/include/CLI /usr/include/nlohmann "$prefix/include/"
cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$prefix/share/cmake/"
cp $mingw/include/zlib.h $mingw/include/zconf.h "$prefix/include/"
cp $mingw/lib/libz.a "$prefix/lib/"

# cross NAME SOURCE CMAKE-OPTION...: builds a CMake project with mingw-w64 and installs it.
cross()
{
    name=$1
    source=$2
    shift 2
    cmake -S "$source" -B "$prefix.build/$name" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/mingw-toolchain.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" "$@"
    cmake --build "$prefix.build/$name" --parallel "${JOBS:-2}"
    cmake --install "$prefix.build/$name"
}

rm -rf "$prefix.build"
mkdir -p "$prefix.build"
if [ -z "$source_dir" ]; then
    source_dir=$prefix.build
    (cd "$source_dir" && apt-get source --download-only expat)
fi
dsc=$(ls "$source_dir"/expat_*.dsc 2>/dev/null | tail -n 1)
[ -n "$dsc" ] || die "no source of expat in $source_dir"
dpkg-source --no-copy -x "$dsc" "$prefix.build/expat-source"
# Its fixes ask for the value of XML_DTD, which only its other build system gives one.
sed -i 's/^#cmakedefine XML_DTD$/#define XML_DTD 1/' "$prefix.build/expat-source/expat/expat_config.h.cmake"
cross expat "$prefix.build/expat-source/expat" -DEXPAT_SHARED_LIBS=OFF -DEXPAT_BUILD_TOOLS=OFF \
    -DEXPAT_BUILD_EXAMPLES=OFF -DEXPAT_BUILD_TESTS=OFF -DEXPAT_BUILD_DOCS=OFF
cross googletest /usr/src/googletest

# The notices that a program made with these must carry.
mkdir -p "$prefix/licenses"
cp "$prefix.build/expat-source/expat/COPYING" "$prefix/licenses/Expat.txt"
cp /usr/share/doc/libcli11-dev/copyright "$prefix/licenses/CLI11.txt"
cp /usr/share/doc/nlohmann-json3-dev/copyright "$prefix/licenses/nlohmann-json.txt"
cp /usr/share/doc/libz-mingw-w64-dev/copyright "$prefix/licenses/zlib.txt"
rm -rf "$prefix.build"
echo "$current" > "$stamp"
