#!/usr/bin/env python3
"""Runs what the manual shows: its command lines, its formulas, and the sources of its numbers.

    handbuch_test.py ROOT FOLDER_OF_THE_PROGRAMS
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from urllib.parse import unquote

ROOT, PROGRAMS = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
MANUAL = (ROOT / "docs/handbuch.md").read_text(encoding="utf-8")
HAS_WINDOW = (PROGRAMS / "zerna-bild").exists()
SUPERSCRIPTS = str.maketrans("⁰¹²³⁴⁵⁶⁷⁸⁹⁻", "0123456789-")
# What a reader would have to have before, or what cannot be run here.
ABSENT = {"parallel": shutil.which("parallel") is None, "zerna-cli bild": not HAS_WINDOW,
          "~/zerna-eigen/zerna": True}


class Shell:
    """Commands one after the other in a folder of their own, which holds what the manual takes for granted."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        here = Path(self.folder.name)
        document = (ROOT / "tests/cli/Al-Cu.zerna").read_text(encoding="utf-8")
        other = document.replace('"2,7"', '"2,71"').replace('"wert": 2.7\n', '"wert": 2.71\n')
        (here / "Al-Cu.zerna").write_text(other, encoding="utf-8") # with another table than this one
        (here / "zerna").mkdir()
        (here / "zerna/elemente.dat").write_bytes(b"")
        alloys = "".join(f"Al={i} Cu={100 - i}\n" for i in range(100))
        (here / "liste.txt").write_text(alloys)
        (here / "los.000").write_text(alloys)
        self.environment = {**os.environ, "PATH": f"{PROGRAMS}:{os.environ['PATH']}", "HOME": self.folder.name,
                            "LC_ALL": "C.UTF-8", "SLURM_ARRAY_TASK_ID": "0"}

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.folder.cleanup()

    def run(self, command):
        command = command.replace("/usr/lib/zerna", self.folder.name + "/zerna")
        done = subprocess.run(["bash", "-c", command], cwd=self.folder.name, env=self.environment,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        return done.returncode, done.stdout.decode()


def code_blocks():
    """Blocks of indented lines, without their indentation; in lists they are indented further than the text."""
    block = []
    for line in [*MANUAL.split("\n"), "end"]:
        indent = len(line) - len(line.lstrip(" "))
        if block and not line:
            block.append("")
        elif indent >= 4 and (not block or indent >= block[0]):
            block = block or [indent]
            block.append(line[block[0]:])
        elif block:
            yield "\n".join(block[1:]).rstrip("\n").split("\n")
            block = []


def matches(answer, shown):
    """Whether the manual shows this answer, where a line of "…" stands for any lines."""
    pieces = [re.escape(piece) for piece in re.split(r"^ *…\n", "".join(line + "\n" for line in shown), flags=re.M)]
    return re.fullmatch(r"(?:.*\n)*?".join(pieces), answer) is not None


def prose():
    """The text without code and without the targets of links, with numbers as programs write them."""
    lines = (line for line in MANUAL.split("\n") if not re.match(r" {4,}\S", line) or "**" in line)
    text = re.sub(r"\]\([^)]*\)", "]", re.sub(r"`[^`]*`", "`", " ".join(lines)))
    return plain(re.sub(r"\s+", " ", text))


def plain(text):
    return re.sub(r"·10([⁰¹²³⁴⁵⁶⁷⁸⁹⁻]+)", lambda m: "e" + m[1].translate(SUPERSCRIPTS), text)


def number(text):
    """A number of the manual and by how much the exact one may differ."""
    mantissa, _, exponent = text.replace("−", "-").replace(",", ".").partition("e")
    unit = 10.0 ** (int(exponent or 0) - len(mantissa.partition(".")[2]))
    return float(f"{mantissa}e{exponent or 0}"), unit * 0.500001


class Handbuch(unittest.TestCase):
    maxDiff = None

    def test_commands_answer_as_shown(self):
        shell = self.enterContext(Shell())
        count = 0
        for block in code_blocks():
            starts = [i for i, line in enumerate(block) if line.startswith("$ ")]
            for start, end in zip(starts, [*starts[1:], len(block)]):
                status, answer = shell.run(block[start][2:])
                shown = block[start + 1:end]
                with self.subTest(block[start]):
                    self.assertTrue(matches(answer, shown), f"{block[start]}\nshown: {shown}\nanswer: {answer}")
                    self.assertTrue(status == 0 or "zerna-cli: " in answer, status)
                count += 1
        self.assertGreater(count, 25)

    def test_commands_without_answer_run(self):
        shell = self.enterContext(Shell())
        shell.run("zerna-cli elemente exportieren meine.csv; zerna-cli elemente importieren meine.csv elemente.dat")
        count = 0
        for block in code_blocks():
            if not re.match(r"(zerna-cli (?!\[)|parallel |split |los=|cp )", block[0]):
                continue
            for command in ["\n".join(block)] if block[0].startswith("los=") else block:
                if any(command.startswith(name) and absent for name, absent in ABSENT.items()):
                    continue
                with self.subTest(command):
                    status, answer = shell.run(command)
                    self.assertEqual((status, re.sub(".* in der Datei, .* hier\n", "", answer)), (0, ""))
                count += 1
        self.assertGreater(count, 8)

    def test_formulas_have_the_values_shown(self):
        chapter = MANUAL[MANUAL.index("## 3. "):MANUAL.index("## 4. ")]
        rows = re.findall(r"^\| `([^`]+)` \| (−?[\d,]+) \|", chapter, flags=re.M)
        rows += re.findall(r"`((?:exp|hex|[^`x])+)` (?:=|→|ist) (−?\d[\dx,]*)", chapter)
        self.assertGreater(len(rows), 25)
        commands = "\n".join(f"zerna-cli formel '{formula}'" for formula, _ in rows)
        _, answers = self.enterContext(Shell()).run(commands)
        self.assertEqual(answers.split("\n")[:-1], [value.replace("−", "-") for _, value in rows])

    def test_page_has_what_its_links_and_pictures_name(self):
        page = PROGRAMS.parent / "handbuch/handbuch.html"
        if not page.exists():
            self.skipTest("built without the pages")
        html = page.read_text(encoding="utf-8")
        anchors = set(re.findall(r'<h\d id="([^"]+)"', html))
        self.assertGreater(len(anchors), 40)
        self.assertEqual({unquote(name) for name in re.findall(r'href="#([^"]+)"', html)} - anchors, set())
        pictures = re.findall(r'<img src="([^"]+)"', html)
        self.assertEqual([name for name in pictures if not (page.parent / name).exists()], [])
        pdf = (page.parent / "handbuch.pdf").read_bytes()
        self.assertGreater(len(pdf), 100000)
        self.assertEqual(pdf.count(b"/Indexed"), len(pictures), "pictures are packed as their files are")

    def test_numbers_come_from_the_program(self):
        text = prose()
        covered = [False] * len(text)
        source = (ROOT / "tests/handbuch/zahlen.txt").read_text(encoding="utf-8")
        preamble, *blocks = re.split(r"^(?=[$%] )", source, flags=re.M)
        tools = "".join(line[2:] + "\n" for line in preamble.split("\n") if line.startswith("! "))
        shell = self.enterContext(Shell())
        for block in blocks:
            origin, *quotes = [line for line in block.split("\n") if line and not line.startswith("#")]
            marked = [m for quote in quotes for m in re.findall("«(.*?)»", plain(quote))]
            for quote in quotes:
                self.cover(text, covered, plain(quote))
            if origin.startswith("$ "):
                _, answer = shell.run(tools + origin[2:])
                with self.subTest(origin):
                    self.compare(marked, answer)
        self.assertEqual([text[max(0, m.start() - 50):m.end() + 20] for m in
                          re.finditer(r"−?(?<![\d₀-₉])(\d+,\d+|\d{4,})(e-?\d+)?|\de-?\d+", text)
                          if not all(covered[m.start():m.end()]) and len(re.sub(r"\D|^0,0*", "", m[0])) > 1], [],
                         "numbers without a source in zahlen.txt")

    def cover(self, text, covered, quote):
        pattern = re.escape(quote).replace("«", "(").replace("»", ")")
        found = list(re.finditer(pattern, text))
        self.assertTrue(found, f"the manual no longer says: {quote}")
        for match in found:
            for group in range(1, len(match.regs)):
                covered[match.start(group):match.end(group)] = [True] * (match.end(group) - match.start(group))

    def compare(self, marked, answer):
        values = answer.split()
        self.assertEqual(len(values), len(marked), f"{answer} for {marked}")
        for shown, exact in zip(marked, values):
            expected, tolerance = number(shown)
            self.assertLessEqual(abs(float(exact) - expected), tolerance, f"{shown} is {exact}")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
