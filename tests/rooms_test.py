#!/usr/bin/env python3
"""The fence itself, tried on small made-up trees."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import rooms


def tree(files):
    """A folder with the given files, {path: lines}; the caller cleans it up."""
    folder = tempfile.TemporaryDirectory()
    for name, lines in files.items():
        path = Path(folder.name, name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")
    return folder


GOOD = {
    "model/Entity.h": ["#include <vector>"],
    "platform/Messages.h": ["#include <string>", '#include "model/Entity.h"'],
    "power/modPower.h": ['#include "model/Entity.h"', '#include "platform/Messages.h"'],
    "power/modPower.cpp": ['#include "modPower.h"', "#include <sys/stat.h>"],
    "power/PowerEditor.h": ['#include "power/modPower.h"', '#include "version.h"'],
    "power/frmPower.cpp": ['#include "power/PowerEditor.h"', "#include <QDialog>"],
    "platform/qt/QtMessages.cpp": ['#include "platform/Messages.h"', "#include <QtWidgets/QMessageBox>"],
    "shell/main.cpp": ["#include <QApplication>", '#include "power/PowerEditor.h"'],
    "cli/Commands.h": ["#include <CLI/CLI.hpp>", '#include "power/PowerEditor.h"'],
    "cli/main.cpp": ['#include "cli/Commands.h"'],
    "pdf/main.cpp": ['#include "cli/Commands.h"', "#include <QPrinter>"],
}


class Rooms(unittest.TestCase):
    def offences(self, extra):
        with tree({**GOOD, **extra}) as folder:
            return rooms.check(folder)

    def refused(self, extra, *expected):
        self.assertEqual(self.offences(extra), list(expected))

    def test_a_good_tree_passes(self):
        self.assertEqual(self.offences({}), [])

    def test_a_figure_must_not_include_a_behaviour(self):
        self.refused({"power/modWood.h": ['#include "power/PowerEditor.h"']},
                     "power/modWood.h: power/PowerEditor.h: figures must not include behaviours")

    def test_all_of_model_is_figures_whatever_the_name(self):
        self.refused({"model/SameSaw.cpp": ['#include "power/PowerEditor.h"']},
                     "model/SameSaw.cpp: power/PowerEditor.h: figures must not include behaviours")

    def test_a_port_must_not_include_a_behaviour(self):
        self.refused({"platform/Canvas.h": ['#include "power/PowerEditor.h"']},
                     "platform/Canvas.h: power/PowerEditor.h: figures must not include behaviours")

    def test_a_behaviour_must_not_include_a_window(self):
        self.refused({"power/frmPower.h": [], "power/PowerHints.cpp": ['#include "frmPower.h"']},
                     "power/PowerHints.cpp: frmPower.h: behaviours must not include windows")

    def test_a_figure_must_not_include_the_qt_platform(self):
        self.refused({"platform/qt/RowList.h": [], "model/Rows.h": ['#include "platform/qt/RowList.h"']},
                     "model/Rows.h: platform/qt/RowList.h: figures must not include windows")

    def test_qt_headers_stay_with_the_windows(self):
        for header in ("QString", "QtCore", "QtCore/QString", "qstring.h", "ui_power.h"):
            with self.subTest(header):
                self.refused({"power/PowerHints.h": [f"#include <{header}>"]},
                             f"power/PowerHints.h: {header}: only windows include Qt")

    def test_the_command_line_knows_no_qt_not_even_in_its_main(self):
        self.refused({"cli/main.cpp": ["#include <QCoreApplication>"]},
                     "cli/main.cpp: QCoreApplication: only windows include Qt")

    def test_the_queue_is_no_qt_header(self):
        self.assertEqual(self.offences({"power/modQueue.h": ["#include <queue>"]}), [])

    def test_the_core_includes_the_standard_library_alone(self):
        self.refused({"store/modStore.h": ["#include <nlohmann/json.hpp>"]},
                     "store/modStore.h: nlohmann/json.hpp: no file of ours, and the core includes the standard library alone")

    def test_nobody_but_the_tools_includes_the_command_line(self):
        self.refused({"store/Folders.h": ['#include "cli/Commands.h"']},
                     "store/Folders.h: cli/Commands.h: only the command line tools include cli/")

    def test_a_circle_of_files_is_refused_and_shown(self):
        self.refused({"model/A.h": ['#include "model/B.h"'], "model/B.h": ['#include "model/C.h"'],
                      "model/C.h": ['#include "model/B.h"']},
                     "a circle of files: model/B.h -> model/C.h -> model/B.h")

    def test_an_include_in_a_comment_does_not_count(self):
        self.assertEqual(self.offences({"model/Quiet.h": ['// #include "power/PowerEditor.h"',
                                                          '/* as before:', '#include <QString>', '*/']}), [])

    def test_run_as_a_program_it_prints_each_offence_and_fails(self):
        with tree({"power/modWood.h": ["#include <QString>", "#include <QList>"]}) as folder:
            run = subprocess.run([sys.executable, "-B", rooms.__file__, folder],
                                 capture_output=True, text=True, check=False)
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stdout.splitlines(), ["power/modWood.h: QString: only windows include Qt",
                                                   "power/modWood.h: QList: only windows include Qt"])

    def test_a_folder_that_is_not_there_is_wrong_usage(self):
        run = subprocess.run([sys.executable, "-B", rooms.__file__, "no such folder"],
                             capture_output=True, text=True, check=False)
        self.assertEqual((run.returncode, run.stderr), (2, "usage: rooms.py SRC\n"))


if __name__ == "__main__":
    unittest.main()
