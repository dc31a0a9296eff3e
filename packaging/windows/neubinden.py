#!/usr/bin/env python3
"""Packs what it takes to link the Windows programs anew with another build of Qt: their objects and link commands.

    neubinden.py BUILD-FOLDER QT-PREFIX OUT.zip

The archive holds neubinden.sh, which is called with the folder of a static Qt for mingw-w64 and makes the programs.
"""

import re
import shlex
import subprocess
import sys
import zipfile
from pathlib import Path

PROGRAMS = ("zerna", "zerna-bild")  # zerna-cli has nothing of Qt
HEAD = """#!/bin/sh
# Links zerna.exe and zerna-bild.exe with another build of Qt 6.4 (static, for mingw-w64, with QtSvg):
#   neubinden.sh QT-FOLDER
# Needs Debian's g++-mingw-w64-x86-64-posix or the same compiler elsewhere (version 12).
set -eu
[ $# -eq 1 ] || { echo "Aufruf: neubinden.sh QT-ORDNER" >&2; exit 1; }
QT=$(cd "$1" && pwd)
cd "$(dirname "$0")"
"""


def link_command(build, program):
    """The words of the command that links the program, response files taken apart."""
    output = subprocess.run(["ninja", "-C", build, "-t", "commands", f"bin/{program}.exe"], check=True,
                            capture_output=True, text=True).stdout.splitlines()
    linked = [line for line in output if re.search(rf"-o bin/{program}\.exe\b", line)][-1]
    command = next(part for part in linked.split("&&") if f"bin/{program}.exe" in part)
    words = shlex.split(command)
    if any(word.startswith("@") for word in words):  # it is kept only when asked for
        (build / "bin" / f"{program}.exe").unlink(missing_ok=True)
        subprocess.run(["ninja", "-C", build, "-d", "keeprsp", f"bin/{program}.exe"], check=True, capture_output=True)
    words = [part for word in words for part in
             (shlex.split((build / word[1:]).read_text()) if word.startswith("@") else [word])]
    return words[1:] if Path(words[0]).name == "ccache" else words


def packed(word, build, prefix, archive):
    """The word as it stands in the script; a file that it names goes into the archive."""
    if word.startswith(str(prefix)):
        return '"$QT"' + shlex.quote(word.removeprefix(str(prefix)))
    file = (build / word).resolve()
    if word.startswith("-") or not file.is_file() or file.suffix not in {".obj", ".a", ".res"}:
        return shlex.quote(word)
    name = str(file.relative_to(build)) if file.is_relative_to(build) else f"fremd/{file.name}"
    if name not in archive.namelist():
        archive.write(file, name)
    return shlex.quote(name)


def main():
    build, prefix = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    script = HEAD
    with zipfile.ZipFile(sys.argv[3], "w", zipfile.ZIP_DEFLATED) as archive:
        for program in PROGRAMS:
            words = link_command(build, program)
            place = words.index("-o")
            compiler = Path(words[0]).name
            rest = [packed(word, build, prefix, archive) for word in words[1:place] + words[place + 2:]
                    if not word.startswith("-Wl,--out-implib")]
            script += f"{compiler} -o {program}.exe {' '.join(rest)}\n"
        entry = zipfile.ZipInfo("neubinden.sh")
        entry.external_attr = 0o755 << 16
        archive.writestr(entry, script)


if __name__ == "__main__":
    main()
