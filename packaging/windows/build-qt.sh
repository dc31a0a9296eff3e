#!/bin/sh
# Cross-build a static Qt (Core, Gui, Widgets, PrintSupport) for Windows x86_64
# from Debian's source package of qt6-base, with Debian's mingw-w64.
#
#   build-qt.sh PREFIX [SOURCE-DIR]
#
# PREFIX      where Qt is installed. If it already holds what this script would
#             build (same source version, same recipe, same compiler), nothing
#             is done.
# SOURCE-DIR  a folder with qt6-base's .dsc, .orig and .debian files; without
#             it, "apt-get source" fetches them (deb-src must be enabled).
#
# Environment: JOBS (default: number of processors), WORK (scratch folder,
# default PREFIX.build; what the script put there is removed at the end unless
# KEEP_WORK=1), QT_FEATURES (further -D... options for CMake), FORCE=1 (build
# although PREFIX is current).
#
# An existing PREFIX is replaced only if an earlier run of this script made it.
set -eu

die() { echo "build-qt.sh: $*" >&2; exit 1; }

[ $# -ge 1 ] || die "usage: build-qt.sh PREFIX [SOURCE-DIR]"
here=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$(dirname "$1")"
prefix=$(cd "$(dirname "$1")" && pwd)/$(basename "$1")
source_dir=${2:+$(cd "$2" && pwd)}
work=${WORK:-$prefix.build}
jobs=${JOBS:-$(nproc)}
toolchain=$here/mingw-toolchain.cmake
stamp=$prefix/mingw-qt.stamp

# --- tools ------------------------------------------------------------------
# Debian packages: cmake ninja-build perl dpkg-dev g++ g++-mingw-w64-x86-64-posix
#                  qt6-base-dev qt6-base-dev-tools
for tool in cmake ninja perl dpkg-source qtpaths6 \
            x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-windres; do
    command -v "$tool" >/dev/null || die "$tool is missing"
done
# moc, rcc, uic of the build machine must be of the very version built here.
host_version=$(qtpaths6 --query QT_VERSION)
host_prefix=$(qtpaths6 --query QT_INSTALL_PREFIX)
host_cmake=$(qtpaths6 --query QT_INSTALL_LIBS)/cmake

# --- is PREFIX current? -----------------------------------------------------
recipe=$( { cat "$here/build-qt.sh" "$toolchain"
            echo "${QT_FEATURES:-}"
            x86_64-w64-mingw32-g++-posix --version
          } | sha256sum | cut -d' ' -f1)
current="Qt $host_version recipe $recipe"
if [ -z "${FORCE:-}" ] && [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$current" ]
then
    echo "build-qt.sh: $prefix is current ($host_version)"
    exit 0
fi

# Never delete a folder that is not ours.
if [ -e "$prefix" ] && [ ! -f "$stamp" ] && [ -n "$(ls -A "$prefix")" ]; then
    die "$prefix is not empty and was not made by this script"
fi

# --- source, with Debian's patches ------------------------------------------
mkdir -p "$work"
cd "$work"
if [ -z "$source_dir" ]; then
    source_dir=$work/download
    mkdir -p "$source_dir"
    ls "$source_dir"/qt6-base_"$host_version"*.dsc >/dev/null 2>&1 ||
        (cd "$source_dir" && apt-get source --download-only qt6-base)
fi
dsc=$(ls "$source_dir"/qt6-base_"$host_version"*.dsc 2>/dev/null | tail -n 1)
[ -n "$dsc" ] || die "no source of qt6-base $host_version (the host tools' version)"
if [ ! -f src.done ] || [ "$(cat src.done)" != "$dsc" ]; then
    rm -rf src build
    dpkg-source --no-copy -x "$dsc" src
    echo "$dsc" > src.done
fi

# --- configure, build, install ----------------------------------------------
# Off for want of sources: tablet events (the +dfsg tarball lacks wintab.h).
# direct2d must stay on: 6.4 compiles the DirectWrite font code only with it, but
# uses it without asking (link error). Only the direct2d platform plugin is off.
# Off because the program does not need it: OpenGL, Vulkan, network, SQL, D-Bus,
# Concurrent, Xml. Test is on: the window tests run under Wine.
# Third-party code is the copies inside the tarball.
rm -rf build
# shellcheck disable=SC2086  # QT_FEATURES is a list of words
cmake -S src -B build -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DQT_HOST_PATH="$host_prefix" \
    -DQT_HOST_PATH_CMAKE_DIR="$host_cmake" \
    -DBUILD_SHARED_LIBS=OFF \
    -DFEATURE_static_runtime=ON \
    -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF \
    -DFEATURE_pkg_config=OFF \
    -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF \
    -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF \
    -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF \
    -DFEATURE_system_doubleconversion=OFF -DFEATURE_system_libb2=OFF \
    -DINPUT_opengl=no -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF \
    -DFEATURE_direct2d1_1=OFF -DFEATURE_tabletevent=OFF \
    -DFEATURE_network=OFF -DFEATURE_sql=OFF -DFEATURE_dbus=OFF \
    -DFEATURE_concurrent=OFF -DFEATURE_testlib=ON -DFEATURE_xml=OFF \
    -DFEATURE_icu=OFF -DFEATURE_zstd=OFF -DFEATURE_glib=OFF \
    -DFEATURE_fontconfig=OFF -DFEATURE_androiddeployqt=OFF \
    ${QT_FEATURES:-}
cmake --build build --parallel "$jobs"
rm -rf "$prefix"
mkdir -p "$prefix"
echo incomplete > "$stamp"
cmake --install build --strip
echo "$current" > "$stamp"
cd "$here"
if [ -z "${KEEP_WORK:-}" ]; then
    rm -rf "$work/src" "$work/src.done" "$work/build" "$work/download"
    rmdir "$work" 2>/dev/null || :
fi
echo "build-qt.sh: Qt $host_version for Windows is in $prefix"
