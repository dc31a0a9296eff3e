#!/usr/bin/env python3
"""Line and branch coverage of the tests, room by room, against what is asked of it.

    abdeckung.py [--tabelle [--zweige]]    builds the preset "coverage" and runs all tests first, unless only the table
                                           is wanted; with the branches that were never taken

Prints the table and the places that no test reaches; the exit status is 1 if a room falls short. A branch is one of the
ways on from a decision of the source. The compiler makes more of them, which do not count: whether a call throws, which
exceptions a handler takes, a comparison that is the default one, and decisions that nothing arrived at in a line that
was run, such as what a throw destroys on its way; those of the source stand behind another one that counts as missed.
Instances of a template are one function. Needs gcov, which comes with the compiler.
"""
import json
import re
import subprocess
import sys
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SRC = ROOT / "src"
BUILD = ROOT / "build" / "coverage"
NONE = (0, 0)
# Of lines and of branches, in per cent; the first entry that the path begins with.
ASKED = {
    "core": (97, 90), "parser": (97, 90), "model": (97, 90), "bild": (97, 90), "programm": (97, 90),
    "dokument": NONE, "traeger": NONE, "cli": (90, 0), "ui/platform": (80, 0), "ui": (92, 0),
}


def run(*command):
    subprocess.run(command, cwd=ROOT, check=True)


def counts(gcno):
    """What gcov says about the source files of one object file."""
    text = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", str(gcno)], cwd=BUILD,
                          capture_output=True, check=False).stdout
    return [file for line in text.splitlines() for file in json.loads(line)["files"]]


def decisions(branches, was_run):
    """The counts of the ways on from each decision of a line."""
    found = []
    rest = list(branches)
    while rest:
        pair = rest[:2]
        if [way["fallthrough"] for way in pair].count(True) != 1:
            found.append(rest.pop(0)["count"])  # of a switch
            continue
        del rest[:2]
        taken = [way["count"] for way in pair]
        if (any(taken) or not was_run) and not any(way["throw"] for way in pair):
            found += taken
    return found


class Source:
    """The lines of a file and their branches, of all object files together."""

    def __init__(self, path):
        self.text = path.read_text(encoding="utf-8").splitlines()
        self.lines = defaultdict(int)
        self.branches = {}

    def add(self, file):
        places = {f["name"]: (f["start_line"], f["start_column"]) for f in file["functions"]}
        for line in file["lines"]:
            number = line["line_number"]
            if re.fullmatch(r"[\s{}();,]*(//.*)?", self.text[number - 1]):
                continue
            self.lines[number] += line["count"]
            if re.search(r"\} catch \(|= default;", self.text[number - 1]):
                continue
            ways = line["branches"]
            key = (number, places.get(line.get("function_name")), len(ways))
            before = self.branches.setdefault(key, [{**way, "count": 0} for way in ways])
            for total, way in zip(before, ways):
                total["count"] += way["count"]
                total["throw"] |= way["throw"]

    def ways(self):
        """Line and count of each branch."""
        return [(line, count) for (line, *_), ways in self.branches.items()
                for count in decisions(ways, self.lines[line] > 0)]


def report():
    """The source files by their paths."""
    sources = {}
    with ThreadPoolExecutor(2) as pool:
        for files in pool.map(counts, sorted(BUILD.rglob("*.gcno"))):
            for file in files:
                path = (BUILD / file["file"]).resolve()
                if SRC in path.parents and path.is_file():
                    sources.setdefault(path, Source(path)).add(file)
    return {str(path.relative_to(ROOT)): source for path, source in sorted(sources.items())}


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
    for path, source in report().items():
        room = room_of(path)
        if room is None:
            continue
        ways = source.ways()
        reached = (sum(count > 0 for count in source.lines.values()), len(source.lines),
                   sum(count > 0 for _, count in ways), len(ways))
        total[room] = [a + b for a, b in zip(total[room], reached)]
        if reached[0] < reached[1]:
            print(f"{path}: {missed(sorted(line for line, count in source.lines.items() if count == 0))}")
        if "--zweige" in sys.argv[1:]:
            for line in sorted({line for line, count in ways if count == 0 and source.lines[line]}):
                print(f"{path}:{line}: {source.text[line - 1].strip()}")
    fine = len(total) == len(ASKED)  # none without counts
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
