#!/bin/bash
# Checks the packages of make-packages.sh as a stranger meets them: their forms, their size, and the Debian package
# installed into a clean Debian, used there by an ordinary user and removed again. Needs root.
#   check-packages.sh [ROOT]    ROOT: a minimal Debian made by debootstrap before, which is copied; else one is made
set -euo pipefail
source=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
if ((EUID != 0)); then
    exec sudo -- "$0" "$@"
fi
# What is mounted below is gone with this script.
if [[ ${ZERNA_OWN_MOUNTS:-} != yes ]]; then
    ZERNA_OWN_MOUNTS=yes exec unshare --mount --fork -- "$0" "$@"
fi
"$source/packaging/install-debian-packages.sh" package
packages=$source/build/release/pakete
largest=4000 # KiB installed, manual and its pictures included

step() { printf '\n-- %s\n' "$1"; }

fail() {
    echo "Fehler: $1" >&2
    exit 1
}

scratch=$(mktemp -d)
root=$scratch/debian
trap 'umount "$root/proc" 2>/dev/null || true; rm -rf --one-file-system -- "$scratch"' EXIT

deb=$(echo "$packages"/zerna_*.deb)
printed=$(echo "$packages"/zerna-doc_*.deb)
[[ -f $deb && -f $printed ]] || fail "Es gibt kein Paket in $packages: packaging/make-packages.sh macht es."
(cd -- "$packages" && sha256sum --quiet -c SHA256SUMS)

step "forms"
tree=$scratch/tree
dpkg-deb -x "$deb" "$tree"
desktop-file-validate "$tree/usr/share/applications/zerna.desktop"
appstreamcli validate --no-net "$tree"/usr/share/metainfo/*.metainfo.xml
xmllint --noout "$tree/usr/share/mime/packages/zerna.xml"
lintian --allow-root --fail-on error "$deb" "$printed"
for page in "$tree"/usr/share/man/de/man1/*; do
    warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$page" 2>&1 >/dev/null)
    [[ -z $warnings ]] || fail "Handbuchseite $page: $warnings"
done
for picture in $(grep -o '<img src="[^"]*' "$tree/usr/share/doc/zerna/handbuch.html" | cut -d '"' -f 2); do
    [[ -f $tree/usr/share/doc/zerna/$picture ]] || fail "Das Handbuch zeigt $picture, das es nicht gibt."
done
size=$(dpkg-deb -f "$deb" Installed-Size)
((size < largest)) || fail "Das Paket belegt $size KiB, erlaubt sind $largest."
echo "installed: $size KiB; package: $(stat -c %s "$deb") bytes"

step "portable folder"
mkdir "$scratch/bei uns"
tar -C "$scratch/bei uns" -xf "$packages"/zerna-*.tar.xz
"$scratch/bei uns"/zerna-*/bin/zerna-cli groessen Al=60 Cu=40 | grep -q $'^Fermienergie\t9\\.48' ||
    fail "Das Programm im tragbaren Ordner rechnet nicht."

step "clean Debian"
mkdir -p "$root/etc/dpkg/dpkg.cfg.d"
if [[ -n ${1:-} ]]; then
    cp -a --reflink=auto -- "$1/." "$root"
else
    # A root that is thrown away need not survive a power cut.
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/fast"
    debootstrap --variant=minbase bookworm "$root" >"$scratch/debootstrap.log" ||
        { tail -n 20 "$scratch/debootstrap.log" && fail "debootstrap ist gescheitert."; }
fi
mount -t proc proc "$root/proc"

inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

# As a user who has never started the program, in a folder with a blank and an umlaut.
as_anna() {
    chroot --userspec=anna "$root" env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 HOME=/home/anna XDG_RUNTIME_DIR=/home/anna \
        QT_QPA_PLATFORM=offscreen sh -c 'cd "/home/anna/Meine Größen" && "$@"' sh "$@"
}

inside useradd --create-home --shell /bin/sh anna
inside install -d -o anna "/home/anna/Meine Größen"
cp -- "$deb" "$root/zerna.deb"
cp -- "$printed" "$root/zerna-doc.deb"
inside apt-get -qq update
# What the package needs, and what keeps a desktop's lists of menu entries, file types and pictures; then the package alone.
inside apt-get -qqy install --no-install-recommends /zerna.deb desktop-file-utils shared-mime-info hicolor-icon-theme \
    >"$scratch/apt.log" 2>&1 || { tail -n 20 "$scratch/apt.log" && fail "Das Paket ließ sich nicht installieren."; }
inside dpkg --purge zerna >"$scratch/apt.log"
# All that lies outside the users' own folders, with its size.
listing() {
    inside find / -xdev \( -path /var/lib/dpkg -o -path /var/log -o -path /tmp -o -path /home \) -prune \
        -o -type f -printf '%p %s\n' -o -printf '%p\n' | LC_ALL=C sort
}
listing >"$scratch/before"

step "installation"
inside dpkg --install /zerna.deb /zerna-doc.deb >"$scratch/apt.log"
inside test -s /usr/share/doc/zerna/handbuch.pdf
inside grep -q 'application/x-zerna=zerna.desktop' /usr/share/applications/mimeinfo.cache
inside test -f /usr/share/mime/application/x-zerna.xml

step "use"
as_anna zerna-cli groessen Al=60 Cu=40 | grep $'^Fermienergie\t9\\.48' || fail "zerna-cli rechnet nicht."
as_anna zerna-cli bild --ziel Abbildung.png --groesse 8 Al=60 Cu=40
[[ -s $root/home/anna/Meine\ Größen/Abbildung.png ]] || fail "zerna-cli malt kein Bild."
# The window opens a file with elements that only the installed table has, and remembers it.
cp -- "$source/tests/cli/Al-Cu.zerna" "$root/home/anna/Meine Größen/"
as_anna timeout --signal=TERM 10 zerna Al-Cu.zerna >"$scratch/window.log" 2>&1 && status=0 || status=$?
((status == 124)) || { cat "$scratch/window.log" && fail "Das Fenster hat sich selbst beendet (Status $status)."; }
grep -q 'Al-Cu.zerna' "$root/home/anna/.config/KoltZerna/KoltZerna.conf" || fail "Das Fenster hat die Datei nicht geöffnet."
# A folder that the user may not write in, without its table.
mv -- "$root/usr/lib/zerna/elemente.dat" "$scratch"
{ as_anna timeout 3 zerna 2>&1 || true; } | grep 'Zugriff verweigert' || fail "Das Fenster nennt nicht, warum es endet."
mv -- "$scratch/elemente.dat" "$root/usr/lib/zerna/"

step "removal"
inside dpkg --purge zerna-doc zerna >"$scratch/apt.log"
listing >"$scratch/after"
diff "$scratch/before" "$scratch/after" || fail "Das Paket lässt etwas zurück."
echo "Alle Prüfungen der Pakete sind bestanden."
