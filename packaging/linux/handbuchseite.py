#!/usr/bin/env python3
"""Puts the help of the program's commands into its manual page.

    handbuchseite.py PROGRAM PAGE    prints PAGE with @BEFEHLE@ replaced
"""
import re
import subprocess
import sys

HELP = "hilfe"
ENTRY = re.compile(r"  (\S.*?)(?:\s{2,}(.*))?")


def help_of(program, words):
    return subprocess.run([program, *words, f"--{HELP}"], check=True, text=True, encoding="utf-8",
                          stdout=subprocess.PIPE).stdout.splitlines()


def roff(text):
    """Plain text as the formatter takes it: a dash stays one, a dot at the beginning commands nothing."""
    return re.sub(r"^([.'])", r"\\&\1", text.replace("\\", r"\e").replace("-", r"\-"))


def commands(lines):
    """The names in the section of commands, which is the last but for examples."""
    inside = False
    for line in lines:
        if not line.startswith(" "):
            inside = line == "Befehle:" or (inside and not line)
        elif inside and (entry := ENTRY.fullmatch(line)) and not line.startswith("   "):
            yield entry[1].split()[0]


def entries(lines):
    """A command's options and arguments, other lines as they stand."""
    for line in lines:
        entry = ENTRY.fullmatch(line)
        if line.endswith(":") and not line.startswith(" "):
            if line not in ("Argumente:", "Optionen:"):
                yield f".PP\n{roff(line)}"
        elif line.startswith(" " * 10):
            yield roff(line.strip())
        elif line.startswith("    "):  # an example, which no line break may change
            yield f".nf\n{roff(line[2:])}\n.fi"
        elif entry and HELP not in entry[1] and not entry[1].startswith("komponenten "):
            yield f".TP\n.B {roff(entry[1])}\n{roff(entry[2] or '')}".rstrip()
        elif line.strip() and not entry:
            yield f".PP\n{roff(line)}"


def section(program, words):
    lines = help_of(program, words)
    below = list(commands(lines))
    if below:
        return "\n".join(section(program, [*words, name]) for name in below)
    return "\n".join([f".SS {roff(' '.join(words))}", roff(lines[0]), *entries(line for line in lines[1:]
                                                                               if not line.startswith("Aufruf:"))])


def main():
    program, page = sys.argv[1:]
    with open(page, encoding="utf-8") as file:
        print(file.read().replace("@BEFEHLE@", section(program, [])), end="")


if __name__ == "__main__":
    main()
