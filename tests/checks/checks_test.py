"""Each check finds the fault that it is for, and leaves good files alone."""
import pathlib
import shutil
import tempfile
import unittest

import headers_alone
import house_rules
import layers
from tree import Tree

GOOD = {
    "src/surface/raster/bitmap.h": "// A bitmap\n// of pixels.\n#pragma once\n\n#include <vector>\n",
    "src/surface/raster/line.cpp": '// Lines.\n#include <cmath>\n\n#include "surface/raster/bitmap.h"\n',
    "src/surface/form.h": '// Forms.\n#pragma once\n\n#include "surface/raster/bitmap.h"\n',
    "src/surface/dispatch.cpp": "// Errors end here.\nvoid f() {\n  try {\n  } catch (...) {\n  }\n}\n",
    "src/surface/qt/host.h": '// Windows.\n#pragma once\n\n#include <QWidget>\n\n#include "surface/form.h"\n',
    "src/shell/frm_start.h": '// The menu.\n#pragma once\n\n#include "surface/form.h"\n\n'
                             "class frmStart : public surface::Form {};\n",
    "src/shell/start.cpp": '// The menu.\n#include "shell/frm_start.h"\n#include "studio/frm_tekenen2.h"\n',
    "src/studio/undo.h": '// Undo.\n#pragma once\n\n#include "surface/form.h"\n',
    "src/studio/frm_tekenen2.h": '// The studio.\n#pragma once\n\n#include "studio/frm_tekenen2_controls.h"\n'
                                 '#include "studio/undo.h"\n\nclass frmTekenen2 final : public frmTekenen2Controls {};\n',
    "src/studio/frm_tekenen2_controls.h": '// Its controls.\n#pragma once\n\n#include "surface/form.h"\n\n'
                                          "struct frmTekenen2Controls : surface::Form {};\n",
    "src/main.cpp": '// Starts.\n#include "shell/frm_start.h"\n#include "surface/qt/host.h"\n',
    "CMakeLists.txt": "add_compile_options(-O2 -ffp-contract=off)\n",
    "README.md": "Draw! The parts of a picture.\n",
}


def with_file(path, text):
    return Tree({**GOOD, path: text})


class TheGoodTree(unittest.TestCase):
    def test_has_no_fault(self):
        for check in layers.CHECKS + house_rules.CHECKS:
            with self.subTest(check.__name__):
                self.assertEqual(list(check(Tree(GOOD))), [])


class BadSamples(unittest.TestCase):
    def finds(self, check, path, text, count=1):
        with self.subTest(path=path, text=text):
            found = list(check(with_file(path, text)))
            self.assertEqual(len(found), count, found)
            for fault in found:
                self.assertTrue(fault.startswith(path), fault)

    def test_toolkit_outside_its_folder(self):
        check = layers.toolkit_stays_in_its_folder
        for header in ("QWidget", "QtCore/qglobal.h", "qwidget.h", "X11/Xlib.h", "xcb/xcb.h", "private/qwidget_p.h"):
            self.finds(check, "src/surface/form.cpp", f"#include <{header}>\n")
        self.finds(check, "src/main.cpp", '# include "QApplication"\n')

    def test_raster_with_something_else_than_the_standard_library(self):
        for header in ("QImage", "cairo.h", "emmintrin.h", "unistd.h", "boost/any.hpp"):
            self.finds(layers.raster_stands_on_the_standard_library, "src/surface/raster/x.h", f"#include <{header}>\n")

    def test_a_level_that_looks_up(self):
        check = layers.levels_look_down
        self.finds(check, "src/surface/raster/x.cpp", '#include "surface/form.h"\n')
        self.finds(check, "src/surface/x.cpp", '#include "shell/frm_start.h"\n')
        self.finds(check, "src/surface/x.cpp", '#include "surface/qt/host.h"\n')
        self.finds(check, "src/surface/qt/x.cpp", '#include "studio/undo.h"\n')
        self.finds(check, "src/studio/x.cpp", '#include "surface/qt/host.h"\n')
        self.finds(check, "src/studio/x.cpp", '#include "undo.h"\n')

    def test_a_header_with_a_screen_in_it(self):
        check = layers.screens_do_not_include_each_other
        self.finds(check, "src/studio/x.h", '#include "shell/frm_start.h"\n')
        self.finds(check, "src/studio/frm_tekenen.h", '#include "studio/frm_tekenen2.h"\n')
        self.finds(check, "src/studio/undo.h", '#include "studio/frm_tekenen2_controls.h"\n')
        self.finds(check, "src/shell/frm_einde.h",
                   '#include "studio/frm_tekenen2.h"\nstruct frmEinde : surface::Form {};\n')

    def test_a_long_file(self):
        check = house_rules.files_are_short
        self.finds(check, "src/studio/x.cpp", "//\n" * 501)
        self.finds(check, "tests/studio/x_test.cpp", "//\n" * 501)
        self.finds(check, "src/studio/x_table.h", "//\n" * 501, 0)
        self.finds(check, "src/studio/x_controls.h", "//\n" * 801)

    def test_a_file_that_says_nothing(self):
        check = house_rules.files_say_what_they_are_for
        self.finds(check, "src/studio/x.cpp", "int x;\n")
        self.finds(check, "src/studio/x.h", "// x\nint x;\n")

    def test_a_second_catcher(self):
        check = house_rules.only_the_dispatcher_catches_everything
        self.finds(check, "src/studio/x.cpp", "// x\ntry {\n} catch (...) {\n}\n")
        self.finds(check, "src/surface/x.cpp", "// x\ntry {} catch( ... ) {}\n")
        self.finds(check, "src/surface/x.cpp", "// x\ntry {} catch (const Error&) {}\n", 0)

    def test_loose_maths(self):
        check = house_rules.sums_stay_as_written
        for flag in ("-ffast-" + "math", "-Ofa" + "st", "-ffp-contract=" + "fast", "-march=" + "native"):
            self.finds(check, "src/CMakeLists.txt", f"add_compile_options({flag})\n")

    def test_something_left_undone(self):
        check = house_rules.nothing_is_left_undone
        for word in ("TO" + "DO", "FIX" + "ME", "XX" + "X", "GTEST_" + "SKIP()", "DISABLED" + "_Undo", "not " + "implemented",
                     "place" + "holder"):
            self.finds(check, "tests/studio/undo_test.cpp", f"// {word}\n")

    def test_a_pointer_outside_the_tree(self):
        check = house_rules.texts_stand_for_themselves
        for words in ("Part " + "2.2", "parts " + "1.1 and", "spec" + ".md", "the " + "spec says", "per " + "spec",
                      "a specifi" + "cation", "as " + "described in a paper", "As Spec" + "ified in"):
            self.finds(check, "docs/x.md", f"It is {words}.\n")

    def test_a_named_machine(self):
        check = house_rules.no_machine_is_named
        for words in ("/wo" + "rk/main/x", "/ro" + "ot/.cache/", "/ho" + "me/jan/x", "C:\\Us" + "ers\\jan",
                      "http://deb.de" + "bian.org/", "registry.npm" + "js.org"):
            self.finds(check, "docs/x.md", f"See {words}\n")
        self.finds(check, "docs/x.md", "See /usr/bin/python3, ${HOME}/work/x, src/root/x and https://www.debian.org/doc/\n", 0)


class Headers(unittest.TestCase):
    def faults_with(self, text):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            plain = ("src/surface/raster/bitmap.h", "src/surface/form.h", "src/studio/undo.h")
            for path, good in {**{name: GOOD[name] for name in plain}, "src/surface/x.h": text}.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(good)
            return headers_alone.faults(shutil.which("c++") or "g++", [], root)

    def test_one_that_needs_what_another_includes(self):
        found, count = self.faults_with("// x\n#pragma once\n\ninline std::string f() { return {}; }\n")
        self.assertEqual((len(found), count), (1, 4))
        self.assertIn("src/surface/x.h", found[0])

    def test_one_that_includes_what_it_needs(self):
        found, _ = self.faults_with("// x\n#pragma once\n\n#include <string>\n\ninline std::string f() { return {}; }\n")
        self.assertEqual(found, [])


if __name__ == "__main__":
    unittest.main()
