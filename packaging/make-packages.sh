#!/bin/bash
# Installs what is missing, builds the program and makes zerna_VERSION_ARCHITECTURE.deb, zerna-doc_VERSION_all.deb (the
# manual for printing) and the portable tar; arguments go to cmake, such as -DZERNA_MAINTAINER="Name <mail>". The
# packages lie in build/release/pakete.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")

fail() {
    echo "Fehler: $1" >&2
    exit 1
}

"$root/packaging/install-debian-packages.sh" package
build=$root/build/release
# Times inside the packages are those of the sources: equal sources give equal bytes.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(
    git -C "$root" log -1 --format=%ct 2>/dev/null || stat -c %Y -- "$root/CHANGELOG.md"
)}
cmake -S "$root" --preset release -DZERNA_PACKAGE=ON "$@" || fail "Das Programm ließ sich nicht einrichten."
cmake --build "$build" || fail "Das Programm ließ sich nicht übersetzen."

umask 022
packages=$build/pakete
rm -rf -- "${packages:?}"
mkdir -p -- "$packages"
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT

# The Debian packages: what is installed below /usr, and the libraries that it needs by the names that Debian gives them.
# The manual for printing repeats what the program and its pages show; who wants it installs it beside them.
tree=$scratch/deb/debian/zerna
DESTDIR=$tree cmake --install "$build" --prefix /usr --strip >/dev/null
cd -- "$scratch/deb"
cp -- "$build/packaging/linux/control" debian/control
cp -- "$build/packaging/linux/changelog" debian/changelog
docs=usr/share/doc
printed=$scratch/deb/debian/zerna-doc
mkdir -p -- "$printed/$docs/zerna" "$printed/$docs/zerna-doc"
mv -- "$tree/$docs/zerna/handbuch.pdf" "$printed/$docs/zerna"
cp -- "$tree/$docs/zerna"/{copyright,changelog.gz} "$printed/$docs/zerna-doc"
dpkg-shlibdeps -Tdebian/zerna.substvars "$tree"/usr/lib/zerna/zerna*
for package in zerna zerna-doc; do
    tree=$scratch/deb/debian/$package
    mkdir "$tree/DEBIAN"
    dpkg-gencontrol "-p$package" "-Tdebian/$package.substvars" -P"$tree"
    (cd -- "$tree" && find usr -type f -exec md5sum {} + | LC_ALL=C sort -k 2 >DEBIAN/md5sums)
    dpkg-deb --root-owner-group -Zxz --build "$tree" "$packages"
done

# The portable folder: the same tree anywhere.
version=$(dpkg-parsechangelog -S Version)
folder=zerna-$version-linux-$(uname -m)
cmake --install "$build" --prefix "$scratch/$folder" --strip >/dev/null
cp -- "$root/packaging/linux/LIESMICH.txt" "$scratch/$folder"
tar -C "$scratch" --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 --numeric-owner --sort=name \
    -cJf "$packages/$folder.tar.xz" "$folder"

(cd -- "$packages" && sha256sum -- * >SHA256SUMS && ls -l)
