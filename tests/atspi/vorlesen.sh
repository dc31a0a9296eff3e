#!/bin/sh
# Starts the program on a display and an accessibility bus of their own and writes down what a screen reader gets to
# know of it: tests/atspi/vorlesen.sh [PROGRAM]. With ZERNA_AUFZEICHNEN=1 the transcript goes into docs/vorlesen.md.
# Needs the packages xvfb, dbus-daemon, dbus-bin, at-spi2-core, xdotool, python3-gi and gir1.2-atspi-2.0; what is entered
# and set stays in a folder on time.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
program=$(realpath "${1:-$here/../../build/dev/bin/zerna}")
folder=$(mktemp -d)
trap 'rm -rf "$folder"; [ -z "${xvfb:-}" ] || kill "$xvfb" 2>/dev/null || true' EXIT INT TERM

mkfifo "$folder/display"
Xvfb -displayfd 3 -screen 0 1400x900x24 -nolisten tcp 3>"$folder/display" 2>/dev/null &
xvfb=$!
read -r number <"$folder/display"

mkdir -p -m 700 "$folder/run" "$folder/home" "$folder/config/KoltZerna"
cat >"$folder/config/KoltZerna/KoltZerna.conf" <<'SETTINGS'
[Settings]
Element_0=Al
Element_1=Cu
Komponenten=1
SETTINGS

env -i PATH="$PATH" LANG=C.UTF-8 HOME="$folder/home" XDG_RUNTIME_DIR="$folder/run" \
    XDG_CONFIG_HOME="$folder/config" XDG_DATA_HOME="$folder/home" DISPLAY=":$number" \
    QT_QPA_PLATFORM=xcb QT_ACCESSIBILITY=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
    dbus-run-session -- sh -c '
        # Starts the accessibility bus; a program that comes before it would not find it.
        dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >&2
        "$1" &
        zerna=$!
        /usr/bin/python3 -W ignore "$2/vorlesen.py" 2>&1 && status=0 || status=$?
        kill "$zerna" || true
        exit "$status"
    ' sh "$program" "$here" >"$folder/transcript" 2>/dev/null || { cat "$folder/transcript"; exit 1; }

if [ -z "${ZERNA_AUFZEICHNEN:-}" ]; then
    cat "$folder/transcript"
else # in place of the last one, between the fences
    page=$here/../../docs/vorlesen.md
    { sed '/^```$/,$d' "$page"; echo '```'; cat "$folder/transcript"; echo '```'; } >"$folder/page"
    cp "$folder/page" "$page"
fi
