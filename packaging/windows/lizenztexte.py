#!/usr/bin/env python3
"""Collects the licence texts of what is linked into the Windows programs.

    lizenztexte.py QTBASE-TAR QTSVG-TAR DEPS-PREFIX OUT-FOLDER

Qt's texts come from its source: the licences themselves and, for each library inside it, what its attribution says.
"""

import json
import shutil
import sys
import tarfile
from pathlib import Path, PurePosixPath

MODULES = {"qtcore", "qtgui", "qtwidgets", "qtprintsupport", "qtsvg"}
LICENCES = ("LGPL-3.0-only.txt", "GPL-3.0-only.txt", "GPL-2.0-only.txt", "Qt-GPL-exception-1.0.txt")
DEBIAN = {"mingw-w64.txt": "mingw-w64-common", "GCC-Laufzeit.txt": "gcc-mingw-w64-base", "NSIS.txt": "nsis",
          "DejaVu.txt": "fonts-dejavu-core"}


def wanted_members(archive):
    """The small files that may be a licence or an attribution, by path without the archive's own folder."""
    return {PurePosixPath(*PurePosixPath(member.name).parts[1:]): member for member in archive if member.isfile()}


def text_of(archive, member):
    return archive.extractfile(member).read().decode("utf-8", errors="replace")


def attributions(archive, members):
    """One text per library inside Qt."""
    for path, member in sorted(members.items()):
        if path.name != "qt_attribution.json":
            continue
        entries = json.loads(text_of(archive, member), strict=False)
        for entry in entries if isinstance(entries, list) else [entries]:
            if not MODULES.intersection(entry.get("QDocModule", "").split()):
                continue
            head = [entry["Name"] + " " + entry.get("Version", ""), entry.get("QtUsage", ""), entry.get("Homepage", ""),
                    "Lizenz: " + entry.get("License", ""), str(entry.get("Copyright", ""))]
            names = entry.get("LicenseFiles") or [entry.get("LicenseFile")]
            files = [members.get(PurePosixPath(path.parent, name)) for name in names if name]
            yield "\n".join(line for line in head if line) + "\n\n" + "\n".join(
                text_of(archive, file) for file in files if file)


def main():
    base, svg, prefix, out = map(Path, sys.argv[1:])
    out.mkdir(parents=True, exist_ok=True)
    inside = []
    for source in (base, svg):
        with tarfile.open(source) as archive:
            members = wanted_members(archive)
            inside += list(attributions(archive, members))
            for path, member in members.items():
                if path.parent == PurePosixPath("LICENSES") and path.name in LICENCES:
                    (out / f"Qt-{path.name.removeprefix('Qt-')}").write_text(text_of(archive, member), encoding="utf-8")
    rule = "\n" + "=" * 100 + "\n\n"
    (out / "Qt-Bestandteile.txt").write_text(
        "Bibliotheken, die in Qt enthalten sind (englisch, wie Qt sie nennt)\n" + rule + rule.join(inside),
        encoding="utf-8")
    for file in (prefix / "licenses").iterdir():
        shutil.copy(file, out)
    for name, package in DEBIAN.items():
        shutil.copy(f"/usr/share/doc/{package}/copyright", out / name)
    needed = {f"Qt-{name.removeprefix('Qt-')}" for name in LICENCES[:2]}
    missing = needed - {file.name for file in out.iterdir()}
    if missing or len(inside) < 10:
        sys.exit(f"licence texts are missing: {missing}, {len(inside)} libraries in Qt")


if __name__ == "__main__":
    main()
