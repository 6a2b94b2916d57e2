"""The comparison of ./dev abi on small libraries: what breaks programs is seen, what does not is passed over."""

import pathlib
import subprocess
import tempfile
import unittest

import abi

HEADER = """#pragma once
struct Seat { double width; double depth; };
class Beam {
public:
    virtual ~Beam();
    virtual double length() const;
    Seat seat;
};
double clearSpan(const Beam &beam, int spans);
"""
SOURCE = """#include "Beam.h"
namespace inner { struct Cache { int size; }; int count(const Cache &cache) { return cache.size; } }
Beam::~Beam() = default;
double Beam::length() const { return seat.width; }
double clearSpan(const Beam &beam, int spans) { return beam.seat.depth / spans; }
"""


class Comparison(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.before = self.written("before", HEADER, SOURCE)

    def written(self, name, header, source):
        """What a library of one header and one source offers."""
        folder = self.folder / name
        (folder / "include").mkdir(parents=True)
        (folder / "include" / "Beam.h").write_text(header)
        (folder / "beam.cpp").write_text(source)
        library = folder / "libbeam.so"
        subprocess.run(["c++", "-std=c++17", "-shared", "-fPIC", "-g", "-I", folder / "include", folder / "beam.cpp", "-o",
                        library], check=True)
        abi.dump(library, folder / "include", folder / "beam.abi")
        return folder / "beam.abi"

    def breaks(self, header_change=("", ""), source_change=("", "")):
        for text, (old, _) in ((HEADER, header_change), (SOURCE, source_change)):
            self.assertIn(old, text)
        now = self.written("now", HEADER.replace(*header_change), SOURCE.replace(*source_change))
        return abi.breaks(self.before, now)

    def test_the_same_library_breaks_nothing(self):
        self.assertEqual(self.breaks(), "")

    def test_a_field_more_in_a_struct_is_seen(self):
        self.assertIn("'int kind', at offset 128", self.breaks(("double depth;", "double depth; int kind;")))

    def test_fields_that_change_places_are_seen(self):
        found = self.breaks(("double width; double depth;", "double depth; double width;"))
        self.assertIn("'double width' offset changed from 0 to 64", found)

    def test_a_virtual_function_in_between_is_seen(self):
        count = "virtual int count() const { return 0; }"
        found = self.breaks(("virtual double length", count + " virtual double length"))
        self.assertIn("class Beam", found)

    def test_a_function_with_other_arguments_is_seen(self):
        self.assertIn("clearSpan", self.breaks(("int spans", "double spans"), ("int spans", "double spans")))

    def test_a_function_that_is_gone_is_seen(self):
        found = self.breaks(("double clearSpan", "// double clearSpan"), ("double clearSpan", "static double clearSpan"))
        self.assertIn("clearSpan", found)

    def test_a_function_more_breaks_nothing(self):
        found = self.breaks(("double clearSpan", "double span();\ndouble clearSpan"),
                            ("double clearSpan", "double span() { return 0; }\ndouble clearSpan"))
        self.assertEqual(found, "")

    def test_what_no_public_header_declares_may_change(self):
        found = self.breaks(source_change=("struct Cache { int size; }", "struct Cache { double age; int size; }"))
        self.assertEqual(found, "")

    def test_no_path_of_this_machine_is_written_down(self):
        self.assertNotIn(str(self.folder), self.before.read_text())


class Names(unittest.TestCase):
    WORDS = {"Beam", "length", "operator", "outer", "List"}

    def test_each_part_of_a_name_is_a_word_of_the_headers(self):
        for name in ("Beam::length() const", "vtable for Beam", "Beam::~Beam()", "Beam::operator()(int) const",
                     "outer::List<inner::Cache>::length(int (*)())", "Beam::operator->(Beam const&) const"):
            self.assertTrue(abi.is_declared(name, self.WORDS), name)

    def test_a_part_that_is_none_makes_it_private(self):
        for name in ("inner::length(Beam const&)", "Beam::Fields::length()", "typeinfo for inner::Beam", "count(Beam)"):
            self.assertFalse(abi.is_declared(name, self.WORDS), name)


if __name__ == "__main__":
    unittest.main()
