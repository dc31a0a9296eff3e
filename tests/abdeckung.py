#!/usr/bin/env python3
"""Line and branch coverage of the tests, room by room, against what is asked of it.

    abdeckung.py [--tabelle]    builds the preset "coverage" and runs all tests first, unless only the table is wanted

Prints the table and the places that no test reaches; the exit status is 1 if a room falls short. Branches that only an
exception takes, and those that cannot be reached, do not count. Needs gcovr.
"""
import json
import subprocess
import sys
from collections import defaultdict
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "coverage"
FOLDERS = ("src", "tests")
NONE = (0, 0)
# Of lines and of branches, in per cent; the first entry that the path begins with.
ASKED = {
    "core": (97, 90), "parser": (97, 90), "model": (97, 90), "bild": (97, 90), "programm": (97, 90),
    "dokument": NONE, "traeger": NONE, "cli": (90, 0), "ui/platform": (80, 0), "ui": (92, 0),
}


def run(*command):
    subprocess.run(command, cwd=ROOT, check=True)


def report():
    """What gcovr says about each source file."""
    file = BUILD / "abdeckung.json"
    run("gcovr", "--root", ".", "--filter", "src/", "-j", "2", "--exclude-throw-branches",
        "--exclude-unreachable-branches", "--json", str(file), *(str(BUILD / folder) for folder in FOLDERS))
    return json.loads(file.read_text(encoding="utf-8"))["files"]


def room_of(path):
    inside = path.removeprefix("src/")
    return next((room for room in ASKED if inside.startswith(room + "/")), None)


def missed(lines):
    """The lines that no test reaches, neighbours as "from-to"."""
    spans = []
    for line in lines:
        if spans and line == spans[-1][1] + 1:
            spans[-1][1] = line
        else:
            spans.append([line, line])
    return " ".join(str(a) if a == b else f"{a}-{b}" for a, b in spans)


def main():
    if "--tabelle" not in sys.argv[1:]:
        for earlier in BUILD.rglob("*.gcda"):  # counts go on from one run to the next
            earlier.unlink()
        for command in (["cmake", "--preset"], ["cmake", "--build", "--preset"], ["ctest", "--preset"]):
            run(*command, "coverage")
    total = defaultdict(lambda: [0, 0, 0, 0])
    for file in report():
        room = room_of(file["file"])
        if room is None:
            continue
        lines = [line for line in file["lines"] if not line["gcovr/noncode"]]
        branches = [branch for line in lines for branch in line["branches"]]
        hit = sum(line["count"] > 0 for line in lines)
        taken = sum(branch["count"] > 0 for branch in branches)
        total[room] = [a + b for a, b in zip(total[room], (hit, len(lines), taken, len(branches)))]
        if hit < len(lines):
            print(f'{file["file"]}: {missed([line["line_number"] for line in lines if line["count"] == 0])}')
    fine = True
    print(f'{"":12} {"Zeilen":>14} {"Zweige":>14}')
    for room, (hit, lines, taken, branches) in total.items():
        shares = (100 * hit / max(lines, 1), 100 * taken / max(branches, 1))
        short = [asked for share, asked in zip(shares, ASKED[room]) if share < asked]
        fine = fine and not short
        cells = [f"{share:6.1f} %{f' /{asked:3}' if asked else '':>5}" for share, asked in zip(shares, ASKED[room])]
        print(f'{room:12} {" ".join(cells)}{"  VERFEHLT" if short else ""}')
    return 0 if fine else 1


if __name__ == "__main__":
    sys.exit(main())
