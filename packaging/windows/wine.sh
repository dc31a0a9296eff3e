# shellcheck shell=bash
# To be read in: a Wine prefix of one's own in $WINEPREFIX with fonts in place of those of Windows, and its server, which
# stays until end_wine, since starting it takes longer than most calls.
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8

begin_wine() {
    local font
    mkdir -p "$WINEPREFIX"
    setsid wineserver -p </dev/null >/dev/null 2>&1 &
    if [ ! -e "$WINEPREFIX/schriften.fertig" ]; then
        wine wineboot -i >/dev/null 2>&1
        for font in "MS Shell Dlg" "MS Shell Dlg 2" Tahoma "Segoe UI" Arial "MS Sans Serif"; do
            wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$font" /d "Liberation Sans" /f >/dev/null
        done
        : >"$WINEPREFIX/schriften.fertig"
    fi
}

end_wine() { wineserver -k || true; }
begin_wine
