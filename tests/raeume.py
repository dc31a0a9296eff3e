#!/usr/bin/env python3
"""Checks that the sources keep to the rooms: who includes and links whom, how long a file is, that each is built.

    raeume.py ROOT    prints each breach as "file:line: reason"; the exit status is 1 if there is one
"""
import re
import sys
from fnmatch import fnmatch
from pathlib import Path

# Each room with those right beneath it; it may use them and whatever they may use. A room names only rooms that stand
# before it in this table, so there is no circle.
BENEATH = {
    "core": [],
    "parser": ["core"],
    "model/eingabe": ["parser"],
    "model/rechnung": ["model/eingabe"],
    "model/einwaage": ["model/rechnung"],
    "model/reihen": ["model/rechnung"],
    "model/messung": ["model/rechnung"],
    "model/suche": ["model/reihen"],
    "model/dokument": ["model/einwaage", "model/reihen", "model/messung"],
    "bild": ["model/suche", "model/dokument"],
    "traeger": ["core"],
    "dokument": ["model/dokument"],
    "programm": ["dokument", "traeger"],
    "cli": ["programm", "bild"],
    "ui/platform": ["programm", "bild"],
    "ui/button": ["ui/platform"],
    "ui/controls": ["ui/button"],
    "ui/hilfe": ["ui/controls"],
    "handbuchprogramm": ["ui/hilfe"],
    "ui/ternary": ["ui/controls"],
    "ui/diagram": ["ui/ternary"],
    "ui/weighing": ["ui/controls"],
    "bildprogramm": ["cli", "ui/diagram"],
    "ui/picker": ["ui/controls"],
    "ui/composition": ["ui/controls"],
    "ui/results": ["ui/controls"],
    "ui/comparison": ["ui/controls"],
    "ui/pages": ["ui/diagram", "ui/results"],
    "ui/search": ["ui/pages"],
    "ui/main": ["ui/picker", "ui/composition", "ui/comparison", "ui/search", "ui/weighing", "ui/hilfe"],
    "app": ["ui/main", "bildprogramm"],
}
HOUSES = ("model", "ui")  # each of their folders is a room
WITHOUT_QT = [room for room in BENEATH
              if room.split("/")[0] in ("core", "parser", "model", "bild", "traeger", "dokument", "programm", "cli")]
LONGEST = 400  # lines of a file

USABLE = {}
for _room, _beneath in BENEATH.items():
    USABLE[_room] = {_room}.union(*(USABLE[other] for other in _beneath))


def breaches(root):
    """All breaches in a source tree as (file, line, reason); files relative to its root."""
    found = [*include_breaches(root), *link_breaches(root), *length_breaches(root), *build_breaches(root)]
    return sorted((path.relative_to(root).as_posix(), line, reason) for path, line, reason in found)


def sources(root, *folders):
    return sorted(path for folder in folders for path in (root / folder).rglob("*") if path.suffix in (".h", ".cpp"))


def room_of(path, root):
    """The room of a file, or of what an include names: src/ui/main/a.h and ui/main/a.h are in ui/main."""
    parts = path.relative_to(root / "src").parts[:-1]
    return "/".join(parts[:2] if parts and parts[0] in HOUSES else parts[:1])


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if match := re.match(r'\s*#\s*include\s*[<"]([^>"]+)', line):
            yield number, match[1]


def include_breaches(root):
    for path in sources(root, "src"):
        room = room_of(path, root)
        if room not in BENEATH:
            yield path, 1, f"{room or 'src'} is no room that the table in tests/raeume.py knows"
            continue
        for line, name in includes(path):
            used = room_of(root / "src" / name, root)
            if (used in BENEATH or used.split("/")[0] in HOUSES) and used not in USABLE[room]:
                yield path, line, f"{room} may not use {used}"
            elif room in WITHOUT_QT and re.match(r"Q[A-Z]|Qt\w*/|q\w+\.h$", name):
                yield path, line, f"{room} may not use Qt ({name})"
            elif (path.parent / name).exists():
                yield path, line, f"an include begins with its room: {room}/{name}"


def build_lists(root, *folders):
    return [path for folder in folders for path in (root / folder).rglob("*")
            if path.name == "CMakeLists.txt" or path.suffix == ".cmake"]


def commands(path):
    """The commands of a build list as (name, arguments), each argument as (line, text)."""
    text = re.sub(r"#.*", "", path.read_text(encoding="utf-8"))
    for match in re.finditer(r"(\w+)\s*\(([^()]*)\)", text):
        words = re.finditer(r"[^\s\"]+", match[2])
        yield match[1], [(text.count("\n", 0, match.start(2) + word.start()) + 1, word[0]) for word in words]


def linking_rooms(command, target, path, root):
    """The rooms whose link list a command gives: several where the target's name holds a variable."""
    name = {"zerna_room": target, "zerna_ui_room": "ui_" + target}.get(command, target.removeprefix("zerna_"))
    pattern = re.sub(r"\$\{\w+\}", "*", name)
    return [room for room in BENEATH if fnmatch(room.replace("/", "_"), pattern)] or [room_of(path, root)]


def links(root):
    """Each entry of a room's link list as (file, line, room, entry)."""
    for path in build_lists(root, "src"):
        for command, arguments in commands(path):
            if command in ("zerna_room", "zerna_ui_room", "target_link_libraries"):
                for room in linking_rooms(command, arguments[0][1], path, root):
                    yield from ((path, line, room, word) for line, word in arguments[1:])


def link_breaches(root):
    targets = {prefix + room.replace("/", "_"): room for room in BENEATH for prefix in ("zerna::", "zerna_")}
    for path, line, room, word in links(root):
        if word in targets and targets[word] not in USABLE.get(room, ()):
            yield path, line, f"{room} may not use {targets[word]}"
        elif word.startswith("Qt") and room in WITHOUT_QT:
            yield path, line, f"{room} may not use Qt ({word})"


def length_breaches(root):
    for path in sources(root, "src", "tests", "bench", "fuzz"):
        length = len(path.read_text(encoding="utf-8").splitlines())
        if length > LONGEST:
            yield path, LONGEST + 1, f"{length} lines; a file has {LONGEST} at most"


def build_breaches(root):
    """Sources that no build list names, and headers that nobody includes."""
    built = set()
    for path in build_lists(root, "src", "tests"):
        for command, arguments in commands(path):
            folder = path.parent / arguments[0][1] if command == "zerna_ui_room" else path.parent
            built.update(folder / word.replace("${PROJECT_SOURCE_DIR}", str(root)) for _, word in arguments)
    for path in sources(root, "src", "tests"):
        built.update(root / folder / name for folder in ("src", "tests") for _, name in includes(path))
    for path in sources(root, "src", "tests"):
        if path not in built:
            yield path, 1, "no build list names it" if path.suffix == ".cpp" else "nobody includes it"


if __name__ == "__main__":
    all_breaches = breaches(Path(sys.argv[1]).resolve())
    for name, number, reason in all_breaches:
        print(f"{name}:{number}: {reason}")
    sys.exit(1 if all_breaches else 0)
