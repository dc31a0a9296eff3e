#!/usr/bin/env python3
"""Runs clang-tidy over the sources that a build compiles.

    lint.py ROOT BUILD FOLDER...    prints the findings; the exit status is 1 if there are any

Most of the linter's time goes into the headers that all sources share. So sources with the same flags are put together
into units of some dozen; a unit whose sources do not go together (two of the same name in unnamed namespaces) is linted
source by source.
"""
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

TIDY = "clang-tidy-14"
MOST = 12  # sources of a unit
# A unit includes sources on purpose; the linter knows neither all warnings nor all optimisations of the build's compiler.
UNIT_OPTIONS = ["--checks=-bugprone-suspicious-include", "--extra-arg=-Wno-unknown-warning-option",
                "--extra-arg=-Wno-ignored-optimization-argument"]


def sources(root, build, folders):
    """The sources below those folders, each with its flags; generated ones are not ours to lint."""
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        file = Path(entry["file"])
        if any(file.is_relative_to(root / folder) for folder in folders):
            yield file, flags(entry["command"])


def flags(command):
    """A compile command without the launcher, the compiler, what names a single source and precompiled headers."""
    words = shlex.split(command)
    first = next(i for i, word in enumerate(words) if word.startswith("-"))
    kept = [word for word in words[first:words.index("-o")] if word not in ("-c", "-Winvalid-pch")]
    precompiled = [i for i, word in enumerate(kept) if word.endswith("/cmake_pch.hxx")]  # each after its "-include"
    return tuple(word for i, word in enumerate(kept) if i not in precompiled and i + 1 not in precompiled)


def hidden_names(file):
    """What no two sources of a unit may both name: what stands in unnamed namespaces, roughly, and main."""
    text = file.read_text(encoding="utf-8")
    names = {"main"} if re.search(r"^int main\(", text, re.M) else set()
    for block in re.findall(r"^namespace \{$(.*?)^\} // namespace$", text, re.M | re.S):
        names.update(re.findall(r"^(?:\w[^\n(={;]*[ &*>])(\w+)(?:\(|\{| =|;| :|\n\{)", block, re.M))
        names.update(re.findall(r"^(?:struct|class|enum class|enum|using) (\w+)", block, re.M))
    return names


def units(files):
    """The sources in groups that go together as far as can be seen."""
    groups = []
    for file in files:
        names = hidden_names(file)
        for group, used in groups:
            if len(group) < MOST and not names & used:
                group.append(file)
                used |= names
                break
        else:
            groups.append(([file], names))
    return [group for group, _ in groups]


def tidy(file, flag_words, options):
    done = subprocess.run([TIDY, "--quiet", *options, str(file), "--", *flag_words], text=True, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    lines = [line for line in done.stdout.splitlines() if not re.fullmatch(r"\d+ warnings? generated\.", line)]
    return done.returncode, "\n".join(lines)


def lint(job):
    """Findings in a group of sources, empty for none."""
    unit, group, flag_words = job
    if len(group) > 1:
        unit.write_text("".join(f'#include "{file}"\n' for file in group), encoding="utf-8")
        status, text = tidy(unit, flag_words, UNIT_OPTIONS)
        if status == 0:
            return ""
        if "[clang-diagnostic-error]" not in text:
            return text
        print(f"{unit.name}: linted source by source", flush=True)
    found = (tidy(file, flag_words, UNIT_OPTIONS[1:]) for file in group)
    return "\n".join(text for status, text in found if status != 0)


def main():
    root, build = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    by_flags = {}
    for file, flag_words in sources(root, build, sys.argv[3:]):
        by_flags.setdefault(flag_words, []).append(file)
    folder = build / "lint"
    folder.mkdir(exist_ok=True)
    groups = [(group, flag_words) for flag_words, files in by_flags.items() for group in units(sorted(set(files)))]
    jobs = [(folder / f"unit{i}.cpp", group, flag_words) for i, (group, flag_words) in enumerate(groups)]
    jobs.sort(key=lambda job: -len(job[1]))
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = [text for text in pool.map(lint, jobs) if text]
    print("\n".join(findings))
    print(f"{sum(len(group) for group, _ in groups)} sources in {len(groups)} units, {len(findings)} with findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
