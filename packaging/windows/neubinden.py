#!/usr/bin/env python3
"""Packs what it takes to link the Windows programs anew with another build of Qt: their objects and link commands.

    neubinden.py BUILD-FOLDER QT-PREFIX OUT.tar.xz

The archive holds neubinden.sh, which is called with the folder of a static Qt for mingw-w64 and makes the programs. The
objects are packed without what only a debugger needs and as a whole, since they have much in common.
"""

import lzma
import re
import shlex
import shutil
import subprocess
import sys
import tarfile
import tempfile
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


def packed(word, build, prefix, files):
    """The word as it stands in the script; a file that it names is added to those to pack."""
    if word.startswith(str(prefix)):
        return '"$QT"' + shlex.quote(word.removeprefix(str(prefix)))
    file = (build / word).resolve()
    if word.startswith("-") or not file.is_file() or file.suffix not in {".obj", ".a", ".res"}:
        return shlex.quote(word)
    name = file.relative_to(build) if file.is_relative_to(build) else Path("fremd") / file.name
    files[name] = file
    return shlex.quote(str(name))


def main():
    build, prefix = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    script, files = HEAD, {}
    for program in PROGRAMS:
        words = link_command(build, program)
        place = words.index("-o")
        rest = [packed(word, build, prefix, files) for word in words[1:place] + words[place + 2:]
                if not word.startswith("-Wl,--out-implib")]
        script += f"{Path(words[0]).name} -o {program}.exe {' '.join(rest)}\n"
    with tempfile.TemporaryDirectory() as folder:
        for name, file in files.items():
            (Path(folder) / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(file, Path(folder) / name)
            if file.suffix != ".res":
                subprocess.run(["x86_64-w64-mingw32-strip", "--strip-unneeded", Path(folder) / name], check=True)
        (Path(folder) / "neubinden.sh").write_text(script)
        (Path(folder) / "neubinden.sh").chmod(0o755)
        with tarfile.open(sys.argv[3], "w:xz", preset=9 | lzma.PRESET_EXTREME) as archive:
            archive.add(folder, "neubinden")


if __name__ == "__main__":
    main()
