#!/usr/bin/env python3
"""Tests of the check of the rooms: a sound tree in a temporary folder, and one breach put into it at a time."""
import tempfile
import unittest
from pathlib import Path

import raeume

SOUND = {
    "src/core/CMakeLists.txt": "zerna_room(core SOURCES Zahl.cpp LINKS ${CMAKE_DL_LIBS}) # zerna::bild is above\n",
    "src/core/Zahl.h": "#pragma once\n#include <string>\n",
    "src/core/Zahl.cpp": '#include "core/Zahl.h"\n#include "Version.h"\n',
    "src/model/reihen/CMakeLists.txt": "zerna_room(model_reihen\n    SOURCES\n        Reihe.cpp\n    LINKS\n"
                                       "        zerna::core\n)\n",
    "src/model/reihen/Reihe.cpp": '#include "core/Zahl.h"\n',
    "src/ui/CMakeLists.txt": "function(zerna_ui_room name)\n"
                             "    zerna_room(ui_${name} LINKS ${LINKS} zerna::bild Qt6::Widgets)\nendfunction()\n"
                             "zerna_ui_room(main SOURCES Feld.cpp LINKS zerna::ui_diagram)\n",
    "src/ui/main/Feld.h": "#include <QWidget>\n",
    "src/ui/main/Feld.cpp": '#include "ui/main/Feld.h"\n#include "model/reihen/Reihe.h"\n',
    "tests/ui/CMakeLists.txt": "zerna_tests(ui MAIN ${PROJECT_SOURCE_DIR}/tests/support/Haupt.cpp)\n",
    "tests/support/Haupt.cpp": "\n" * 400,
    "tests/support/Zaehler.cmake": "set(source ${PROJECT_SOURCE_DIR}/tests/support/Zaehler.cpp)\n",
    "tests/support/Zaehler.cpp": "\n",
}

# What is wrong, the file that is changed or added, its content, and the one line that tells.
BREACHES = [
    ("include of a room above", "src/core/Zahl.cpp", '#include "core/Zahl.h"\n#include "model/reihen/Reihe.h"\n',
     "src/core/Zahl.cpp:2: core may not use model/reihen"),
    ("include of a room beside", "src/ui/main/Feld.cpp", '#include "ui/main/Feld.h"\n# include <app/Start.h>\n',
     "src/ui/main/Feld.cpp:2: ui/main may not use app"),
    ("include of no room of a house", "src/ui/main/Feld.cpp", '#include "ui/main/Feld.h"\n#include "ui/Feld.h"\n',
     "src/ui/main/Feld.cpp:2: ui/main may not use ui"),
    ("include without its room", "src/ui/main/Feld.cpp", '#include "Feld.h"\n#include "ui/main/Feld.h"\n',
     "src/ui/main/Feld.cpp:1: an include begins with its room: ui/main/Feld.h"),
    ("toolkit below the window", "src/model/reihen/Reihe.cpp", '#include "core/Zahl.h"\n#include <QtCore/QString>\n',
     "src/model/reihen/Reihe.cpp:2: model/reihen may not use Qt (QtCore/QString)"),
    ("toolkit's old header below the window", "src/model/reihen/Reihe.cpp", "#include <qstring.h>\n",
     "src/model/reihen/Reihe.cpp:1: model/reihen may not use Qt (qstring.h)"),
    ("link to a room above", "src/core/CMakeLists.txt",
     "zerna_room(core SOURCES Zahl.cpp\n LINKS\n zerna::model_reihen)\n",
     "src/core/CMakeLists.txt:3: core may not use model/reihen"),
    ("link to the toolkit", "src/model/reihen/CMakeLists.txt",
     "zerna_room(model_reihen SOURCES Reihe.cpp LINKS Qt6::Core)\n",
     "src/model/reihen/CMakeLists.txt:1: model/reihen may not use Qt (Qt6::Core)"),
    ("link of one folder of the window", "src/ui/CMakeLists.txt",
     "zerna_ui_room(main SOURCES Feld.cpp)\nzerna_ui_room(button LINKS zerna::ui_controls)\n",
     "src/ui/CMakeLists.txt:2: ui/button may not use ui/controls"),
    ("link added to a target", "src/ui/CMakeLists.txt",
     "zerna_ui_room(main SOURCES Feld.cpp)\ntarget_link_libraries(zerna_ui_weighing PRIVATE zerna_ui_diagram)\n",
     "src/ui/CMakeLists.txt:2: ui/weighing may not use ui/diagram"),
    ("link of a program", "src/cli/CMakeLists.txt", "target_link_libraries(zerna-cli PRIVATE zerna::ui_main)\n",
     "src/cli/CMakeLists.txt:1: cli may not use ui/main"),
    ("link of no room", "src/ui/Mehr.cmake", "target_link_libraries(mehr PRIVATE zerna::core)\n",
     "src/ui/Mehr.cmake:1: ui may not use core"),
    ("long file", "tests/support/Haupt.cpp", "\n" * 401,
     "tests/support/Haupt.cpp:401: 401 lines; a file has 400 at most"),
    ("source that nobody builds", "src/model/reihen/Alt.cpp", "\n",
     "src/model/reihen/Alt.cpp:1: no build list names it"),
    ("source listed in another folder", "src/model/reihen/Zahl.cpp", "\n",
     "src/model/reihen/Zahl.cpp:1: no build list names it"),
    ("header that nobody includes", "src/core/Alt.h", "\n", "src/core/Alt.h:1: nobody includes it"),
]


def breaches_of(files):
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for name, content in files.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(content, encoding="utf-8")
        return [f"{name}:{line}: {reason}" for name, line, reason in raeume.breaches(root)]


class RaeumeTest(unittest.TestCase):
    def test_sound_tree_has_no_breach(self):
        self.assertEqual(breaches_of(SOUND), [])

    def test_each_breach_is_told_once(self):
        for name, path, content, expected in BREACHES:
            with self.subTest(name):
                self.assertEqual(breaches_of({**SOUND, path: content}), [expected])

    def test_link_list_of_all_folders_of_the_window_is_checked_for_each(self):
        files = {**SOUND, "src/ui/CMakeLists.txt": SOUND["src/ui/CMakeLists.txt"].replace("::bild", "::ui_button")}
        self.assertIn("src/ui/CMakeLists.txt:2: ui/platform may not use ui/button", breaches_of(files))

    def test_unknown_room_is_told(self):
        files = {**SOUND, "src/extra/Neu.cpp": "\n", "src/extra/CMakeLists.txt": "add_library(extra Neu.cpp)\n"}
        self.assertEqual(breaches_of(files),
                         ["src/extra/Neu.cpp:1: extra is no room that the table in tests/raeume.py knows"])


if __name__ == "__main__":
    unittest.main()
