"""Plants one breach at a time in a small clean tree and wants the level check to name just that one."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import check_levels  # noqa: E402

MAP = """
| level | room | what lives there |
|---|---|---|
| 0 | `src/image/` | pixels |
| 1 | `src/engines/warp/` (image) | bends |
| 1 | `src/surface/` `src/window/` (surface) | drawing, controls |
| 2 | `src/editor/` | the picture |
| 2 | `src/paint/` (editor) | tools |
| 4 | `src/qt/` | the window |
| – | `src/phone/` (image) | stands apart |
"""

CLEAN = {
    "src/README.md": MAP,
    "src/CMakeLists.txt": "fotarium_room(image LINK JPEG::JPEG)\n# fotarium_room(image LINK room_qt)\n"
                          "fotarium_room(paint LINK room_editor room_window)\nfotarium_room(qt LINK room_paint Qt6::Gui)\n"
                          "target_link_libraries(room_paint PRIVATE m)\n",
    "src/image/Bits.h": '#include <queue>\n#include <jpeglib.h>\n// #include "qt/View.h"\n',
    "src/image/Bits.cpp": '#include "image/Bits.h"\n',
    "src/engines/warp/Mesh.cpp": '#include "engines/warp/Mesh.h"\n#include "image/Bits.h"\n',
    "src/surface/Pen.h": "",
    "src/editor/Images.h": '#include "engines/warp/Mesh.h"\n',
    "src/window/Control.h": '#include "surface/Pen.h"\n',
    "src/paint/Pen.cpp": '#include "editor/Images.h"\n#include "window/Control.h"\n',
    "src/qt/View.cpp": '#include <QtGui/QImage>\n#include <QWidget>\n#include "paint/Pen.h"\n#include "View.moc"\n',
    "src/image/art/tool/Render.cpp": "",
    "src/phone/Phone.cpp": '#include "image/Bits.h"\n',
    "tests/qt/ViewTest.cpp": '#include <QTest>\n#include "support/Fake.h"\n',
    "tests/support/Fake.h": '#include "window/Control.h"\n',
    "bench/image/BitsBench.cpp": '#include "image/Bits.h"\n',
}

BREACHES = {
    "a higher level": ("src/image/Bits.cpp", '#include "window/Control.h"\n', "may not use window/Control.h"),
    "a higher level, in angle brackets": ("src/image/Bits.cpp", "#include <editor/Images.h>\n", "may not use"),
    "a higher level, oddly spaced": ("src/image/Bits.cpp", ' #  include  "qt/View.h"\n', "may not use qt/View.h"),
    "the same level, unnamed": ("src/surface/Pen.cpp", '#include "window/Control.h"\n', "may not use"),
    "the same level, against the naming": ("src/editor/Images.cpp", '#include "paint/Pen.h"\n', "may not use"),
    "a room that stands apart, used": ("src/qt/View.cpp", '#include "phone/Phone.h"\n', "may not use"),
    "a room that stands apart, using": ("src/phone/Phone.cpp", '#include "editor/Images.h"\n', "may not use"),
    "an engine that knows a window": ("src/engines/warp/Mesh.cpp", '#include "window/Control.h"\n', "may not use"),
    "an engine by half its name": ("src/editor/Images.cpp", '#include "warp/Mesh.h"\n', "leads to no room"),
    "Qt in a room": ("src/paint/Pen.cpp", "#include <QPainter>\n", "Qt header QPainter"),
    "Qt by its module": ("src/paint/Pen.cpp", "#include <QtCore/QString>\n", "Qt header"),
    "Qt by its old header": ("src/paint/Pen.cpp", "#include <qglobal.h>\n", "Qt header"),
    "Qt in a test": ("tests/support/Fake.h", "#include <QImage>\n", "Qt header"),
    "Qt in a benchmark": ("bench/image/BitsBench.cpp", "#include <QImage>\n", "Qt header"),
    "Qt in a tool of no resources": ("src/image/art/tool/Render.cpp", "#include <QImage>\n", "Qt header"),
    "no such room": ("src/qt/View.cpp", '#include "widgets/View.h"\n', "leads to no room"),
    "no such neighbour": ("src/qt/View.cpp", '#include "Missing.h"\n', "leads to no room"),
    "around the map": ("src/image/Bits.cpp", '#include "../qt/View.h"\n', "leads to no room"),
    "a room without a row": ("src/extra/Thing.h", "\n", "is not in the map"),
    "a room without a row, beside others": ("src/engines/pack/Exif.cpp", "\n", "src/engines/pack:1: is not in the map"),
    "a row without a room": ("src/README.md", MAP + "| 2 | `src/print/` | paper |\n", "no room src/print/"),
    "too long": ("tests/qt/ViewTest.cpp", "\n" * 501, "501 lines"),
    "a library above": ("src/CMakeLists.txt", "fotarium_room(image LINK JPEG::JPEG\n  room_window)\n", "room_window"),
    "a library above, added later": ("src/CMakeLists.txt", "target_link_libraries(room_image PUBLIC room_qt)\n",
                                     "room_qt"),
    "a library without a row": ("src/CMakeLists.txt", "fotarium_room(widgets)\n", "widgets is not in the map"),
    "a library by half its name": ("src/CMakeLists.txt", "fotarium_room(warp)\n", "warp is not in the map"),
    "Qt as a library": ("src/CMakeLists.txt", "fotarium_room(paint LINK Qt6::Core)\n", "links Qt"),
    "a circle in the map": ("src/README.md", MAP.replace("`src/editor/`", "`src/editor/` (paint)"), "names paint"),
    "a map that reaches up": ("src/README.md", MAP.replace("`src/editor/`", "`src/editor/` (qt)"), "names qt"),
    "no map": ("src/README.md", "", "no table"),
}


class CheckLevels(unittest.TestCase):
    def breaches_of(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return check_levels.check(Path(folder))[0]

    def test_clean_tree_passes(self):
        self.assertEqual(self.breaches_of(CLEAN), [])

    def test_qt_is_free_in_the_tools_that_render_resources(self):
        row = MAP.replace("| 2 | `src/editor/`", "| 1 | `src/resources/` | art |\n| 2 | `src/editor/`")
        tool = {"src/README.md": row, "src/resources/art/tool/Render.cpp": "#include <QImage>\n"}
        self.assertEqual(self.breaches_of(CLEAN | tool), [])
        stray = {"src/README.md": row, "src/resources/Render.cpp": "#include <QImage>\n"}
        self.assertEqual(len(self.breaches_of(CLEAN | stray)), 1)

    def test_each_breach_is_named(self):
        for title, (name, text, words) in BREACHES.items():
            with self.subTest(title):
                found = self.breaches_of(CLEAN | {name: text})
                self.assertEqual(len(found), 1, found)
                self.assertTrue(found[0].startswith(("src/", "tests/", "bench/")) and words in found[0], found)


if __name__ == "__main__":
    unittest.main()
