#!/usr/bin/env python3
"""Replays the recorded calls of zerna-cli with the Windows program under Wine and compares answer by answer.

    befehle_vergleichen.py RECORD BIN-FOLDER

RECORD is tests/cli/befehle.txt. Answers may differ where they are results of transcendental functions in the 15th
digit, which the C library of the platform computes; every other difference is shown and ends the script with 1.
"""

import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

# Longer than a Windows command line; links and limits that a Linux shell makes; a copy of the program, here a script.
ONLY_ON_LINUX = re.compile(r"head -c \d{5,}|seq \d{5,}|ln -s|ulimit|bin/zerna-cli|/dev/zero x")
NUMBER = re.compile(r"-?\d+(?:[.,]\d+)?(?:E[+-]?\d+)?")


def recorded(path):
    """The commands with their answers."""
    blocks = []
    for line in path.read_bytes().decode("utf-8", "surrogateescape").split("\n"):
        if line.startswith("$ "):
            blocks.append([line[2:], ""])
        elif blocks and not line.startswith("#"):
            blocks[-1][1] += line + "\n"
    blocks[-1][1] = blocks[-1][1].removesuffix("\n")  # what follows the last line end is no line
    return blocks


def answer_to(command, folder, environment):
    """What a shell prints for the call, errors too, and its status if that is not 0."""
    ran = subprocess.run(["sh", "-c", f"exec 2>&1; zerna-cli {command}"], cwd=folder, env=environment,
                         stdout=subprocess.PIPE, timeout=300, check=False)
    text = ran.stdout.decode("utf-8", errors="surrogateescape")
    if text and not text.endswith("\n"):
        text += "[no line end]\n"
    return text + (f"[{ran.returncode}]\n" if ran.returncode else "")


def is_rounding(command, expected, answer):
    """Whether the answers of a formula are the same but for the last of 15 digits."""
    if not command.startswith("formel "):
        return False
    here, there = NUMBER.findall(expected), NUMBER.findall(answer)
    values = [[float(n.replace(",", ".")) for n in numbers] for numbers in (here, there)]
    close = all(abs(a - b) <= 1e-14 * max(abs(a), abs(b), 1) for a, b in zip(*values))
    return len(here) == len(there) and NUMBER.sub("#", expected) == NUMBER.sub("#", answer) and close


def main():
    record, programs = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    rounded, different = [], []
    every = recorded(record)
    blocks = [block for block in every if not ONLY_ON_LINUX.search(block[0])]
    with tempfile.TemporaryDirectory() as scratch:
        wrapper = Path(scratch) / "bin" / "zerna-cli"
        wrapper.parent.mkdir()
        wrapper.write_text(f'#!/bin/sh\nexec wine "{programs}/zerna-cli.exe" "$@"\n')
        wrapper.chmod(0o755)
        folder = Path(scratch) / "ä b"
        folder.mkdir()
        environment = dict(os.environ, PATH=f"{wrapper.parent}:{os.environ['PATH']}", LC_ALL="C.UTF-8",
                           BEISPIEL=str(record.parent / "Al-Cu.zerna"))
        for command, expected in blocks:
            answer = answer_to(command, folder, environment)
            if answer == expected:
                continue
            if is_rounding(command, expected, answer):
                rounded.append(f"{command}: {expected.strip()} / {answer.strip()}")
            else:
                different.append(f"$ {command}\n--- Linux\n{expected[:600]}--- Windows\n{answer[:600]}")
    for text in rounded:
        print(f"letzte Stelle: {text}")
    for text in different:
        print(text.encode("utf-8", "replace").decode())
    print(f"{len(every) - len(blocks)} Aufrufe gibt es nur unter Linux")
    print(f"{len(blocks)} Aufrufe, {len(rounded)} in der letzten Stelle anders, {len(different)} sonst verschieden")
    return 1 if different else 0


if __name__ == "__main__":
    sys.exit(main())
