"""Holds ./dev mutants to its promises, on small sources and a library of one file: it finds what can be changed, leaves
alone what is no code, notices what the tests notice, and never writes to the sources."""

import json
import os
import pathlib
import tempfile
import unittest

import build_tree
import mutate
import mutations


def all_in(source):
    return [mutant for place in mutations.places_of(source) for mutant in place]


def changed(source, kind=None):
    return [mutant.applied(source) for mutant in all_in(source) if kind in (None, mutant.kind)]


class Places(unittest.TestCase):
    def test_a_comparison_moves_its_boundary_or_turns(self):
        self.assertEqual(changed("b = a < c;"), ["b = a <= c;", "b = a >= c;"])
        self.assertEqual(changed("b = a >= c;"), ["b = a > c;", "b = a < c;"])
        self.assertEqual(changed("b = a == c;"), ["b = a != c;"])

    def test_joined_conditions_and_arithmetic_change_their_sign(self):
        self.assertEqual(changed("b = a && c;"), ["b = a || c;"])
        self.assertEqual(changed("b = a || c;"), ["b = a && c;"])
        self.assertEqual(changed("b = a + c * d;"), ["b = a - c * d;", "b = a + c / d;"])
        self.assertEqual(changed("b += c;"), ["b -= c;"])

    def test_numbers_move_by_one(self):
        self.assertEqual(changed("b = 0;"), ["b = 1;"])
        self.assertEqual(changed("b = 1;"), ["b = 2;", "b = 0;"])
        self.assertEqual(changed("b = 0x10u;"), ["b = 17u;", "b = 15u;"])
        self.assertEqual(changed("b = 0.0;"), ["b = 1.0;"])
        self.assertEqual(changed("b = 1'000.5;"), ["b = 1001.5;", "b = 999.5;"])

    def test_truth_and_negation(self):
        self.assertEqual(changed("b = true;"), ["b = false;"])
        self.assertEqual(changed("b = !c;"), ["b = c;"])

    def test_conditions_are_negated_as_a_whole_and_declarations_are_not(self):
        self.assertIn("void f() { if (!(a && c)) g(); }", changed("void f() { if (a && c) g(); }", "negate"))
        self.assertEqual(changed("void f() { if (T *a = c) a->g; }", "negate"), [])
        self.assertEqual(changed("void f() { if (int a = c; a) g = a; }", "negate"),
                         ["void f() { if (int a = c; !(a)) g = a; }"])
        self.assertEqual(changed("void f() { if (!a) b = c; }"), ["void f() { if (a) b = c; }"])

    def test_a_call_is_dropped_and_a_declaration_is_not(self):
        self.assertEqual(changed("void f() { a.b(c)->d(e); }", "drop call"), ["void f() { ; }"])
        self.assertEqual(changed("void f() { if (a)\n b::c<T>(d); }", "drop call"), ["void f() { if (a)\n ; }"])
        for kept in ("T a(b);", "T *a(b);", "const T &a(b);", "return a(b);", "delete a(b);", "a = b(c);",
                     "using a::b;"):
            self.assertEqual(changed(f"void f() {{ {kept} }}", "drop call"), [], kept)

    def test_a_longer_function_returns_early(self):
        self.assertEqual(changed("int A::f() const { a(); b(); }", "return early"),
                         ["int A::f() const { return {}; a(); b(); }"])
        self.assertEqual(changed("void f(int a) { b(); c(); }", "return early"),
                         ["void f(int a) { return; b(); c(); }"])
        self.assertEqual(changed("A::A(int a) { b(); c(); }", "return early"), ["A::A(int a) { return; b(); c(); }"])
        self.assertEqual(changed("int f() { return a; }", "return early"), [])

    def test_a_loop_is_left_instead_of_continued(self):
        self.assertIn("for (;;) { break; }", changed("for (;;) { continue; }"))

    def test_what_is_no_code_is_left_alone(self):
        for source in ("a; // 1 < 2 && true", "a; /* 1 < 2\n && !b */", 'a = "1 < 2 && !\\"true";', "a = '1';",
                       'a = R"x(1 < "2" && true)x";', 'a = "1"_key;', "\n#if A < 1 && \\\n    !B\n", "#include <a+b>\n",
                       '#include "a/1.h"\n', "static_assert(a < 1 && sizeof(b) == 8);"):
            self.assertEqual(changed(source), [], source)

    def test_declarations_keep_their_signs(self):
        for source in ("template <typename T, int N = 1> class A;", "std::array<int, 4> a;", "QMap<int, QList<A *>> a;",
                       "T f(A &&a, B &b, C *c);", "bool operator<(A a);", "bool operator==(A a);",
                       "const auto &&a = b;", "for (const A &a : b) {}"):
            self.assertEqual(changed(source), [], source)

    def test_a_quote_between_digits_opens_no_character(self):
        self.assertEqual(len(all_in("a = 1'000; b = '1'; c = 2'000;")), 4)

    def test_each_change_touches_one_place(self):
        source = "int f(int a) { if (a < 1 && !b) g(a); return a + 2; }"
        for mutant in all_in(source):
            self.assertNotEqual(mutant.applied(source), source)
            self.assertTrue(mutant.applied(source).startswith(source[:mutant.start]))
            self.assertTrue(mutant.applied(source).endswith(source[mutant.end:]))


HEADER = "#pragma once\ninline int least() { return -5; }\n"
CODE = """#include "part/larger.h"
extern "C" int larger(int a, int b)
{
    if (a > b)
        return a;
    return b + (b < least());
}
"""
REPORT = {"testsuites": [{"name": "LargerTest", "testsuite": [{"name": "holds", "time": "0s"}]}]}
TEST = f"""extern "C" int larger(int a, int b);
#include <cstdio>
#include <cstring>
int main(int count, char **values)
{{
    if (count > 1 && std::strncmp(values[1], "--gtest_output=json:", 20) == 0) {{
        std::FILE *file = std::fopen(values[1] + 20, "w");
        std::fputs(R"({json.dumps(REPORT)})", file);
        std::fclose(file);
    }}
    return larger(2, 1) == 2 && larger(3, 3) == 3 ? 0 : 1;
}}
"""
NINJA = """rule compile
  command = c++ -fPIC -Werror -I {folder}/src -MD -MF $out.d -o $out -c $in
  depfile = $out.d
  deps = gcc
rule link
  command = : && c++ -shared -Wl,-soname,liborvcadmodeldata.so -o $out $in && :
rule program
  command = : && c++ -o $out $in -Llib -lorvcadmodeldata -Wl,-rpath,$$PWD/lib && :
build CMakeFiles/ORVCADModelData.dir/larger.o: compile {folder}/src/part/larger.cpp
build lib/liborvcadmodeldata.so: link CMakeFiles/ORVCADModelData.dir/larger.o
build bin/LargerTests: program {folder}/tests/part/largerTest.cpp | lib/liborvcadmodeldata.so
build LargerTests: phony bin/LargerTests
"""


class Trials(unittest.TestCase):
    """With a library of one function, whose test asks for no number below the least."""

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name).resolve()
        for name in ("src/part", "tests/part", "build/lib", "build/bin", "work"):
            (self.folder / name).mkdir(parents=True)
        self.source = self.folder / "src/part/larger.cpp"
        self.source.write_text(CODE, encoding="utf-8")
        (self.folder / "src/part/larger.h").write_text(HEADER, encoding="utf-8")
        (self.folder / "tests/part/largerTest.cpp").write_text(TEST, encoding="utf-8")
        (self.folder / "build/build.ninja").write_text(NINJA.format(folder=self.folder), encoding="utf-8")
        commands = [self.command("src/part/larger.cpp", "CMakeFiles/ORVCADModelData.dir/larger.o"),
                    self.command("tests/part/largerTest.cpp", "CMakeFiles/LargerTests.dir/largerTest.o")]
        (self.folder / "build/compile_commands.json").write_text(json.dumps(commands), encoding="utf-8")
        self.tree = build_tree.BuildTree(self.folder / "build", self.folder / "src")
        folders = {self.source.parent: self.folder / "tests/part"}
        self.tests = mutate.tests_of(self.tree, folders, self.folder / "work", 1)

    def command(self, name, made):
        source = self.folder / name
        return {"file": str(source), "command": f"c++ -fPIC -Werror -I {self.folder}/src -o {made} -c {source}"}

    def run_all(self, again=()):
        results = mutate.Results(self.folder / "results.jsonl")
        trial = mutate.Trial(self.tree, self.tests, results, self.folder / "work")
        found = trial.run(mutate.spread([self.source], 1), 100, again, 1, lambda *_: None)
        return {(change.mutant.kind, change.mutant.replacement): result for change, result in found}

    def result(self, old, new, source=None, text=CODE):
        start = text.index(old)
        change = mutate.Change(source or self.source, text, mutations.Mutant("", start, start + len(old), new))
        return mutate.verdict(self.tree, self.tests[self.source.parent], change, self.folder / "work")

    def test_a_noticed_change_is_killed_and_another_survives(self):
        self.assertEqual(self.result("return a;", "return b;"), mutate.KILLED)
        self.assertEqual(self.result("return b + (b < least());", "return b;"), mutate.SURVIVED)

    def test_a_change_of_a_header_reaches_what_includes_it(self):
        header = self.folder / "src/part/larger.h"
        self.assertEqual(self.result("-5", "5", header, HEADER), mutate.KILLED)
        self.assertEqual(self.result("-5", "-6", header, HEADER), mutate.SURVIVED)
        self.assertEqual(header.read_text(encoding="utf-8"), HEADER)

    def test_what_does_not_compile_does_not_count(self):
        self.assertEqual(self.result("return a;", "return c;"), mutate.UNCOMPILED)

    def test_what_compiles_to_the_same_does_not_count(self):
        self.assertEqual(self.result("return a;", "return a + 0;"), mutate.SAME)

    def test_a_crash_and_an_end_in_vain_are_killed(self):
        self.assertEqual(self.result("return a;", "__builtin_trap();"), mutate.KILLED)

    @unittest.skipUnless(build_tree.leak_checker(), "the compiler has no leak checker")
    def test_a_leak_is_noticed(self):
        self.assertEqual(self.result("return a;", "return __builtin_malloc(8) ? a : b;"), mutate.KILLED)

    def test_what_does_not_end_is_ended_with_all_that_it_started(self):
        os.mkfifo(self.folder / "alive")
        reader = os.open(self.folder / "alive", os.O_RDONLY | os.O_NONBLOCK)
        self.addCleanup(os.close, reader)
        self.assertIsNone(build_tree.run(["sh", "-c", "exec 3>alive; sleep 1000 & wait"], self.folder, 1))
        os.set_blocking(reader, True)
        self.assertEqual(os.read(reader, 1), b"")  # which comes when nobody has it open any more
        self.assertFalse(build_tree.running)

    def test_sources_and_library_stay_as_they_are(self):
        library = (self.tree.folder / build_tree.SHARED_OBJECT).read_bytes()
        self.run_all()
        self.assertEqual(self.source.read_text(encoding="utf-8"), CODE)
        self.assertEqual((self.tree.folder / build_tree.SHARED_OBJECT).read_bytes(), library)
        self.assertEqual(sorted(path.name for path in self.source.parent.iterdir()), ["larger.cpp", "larger.h"])

    def test_what_was_tried_is_not_tried_again(self):
        first = self.run_all()
        self.tree.compile = None  # nothing may call it
        self.assertEqual(self.run_all(), first)

    def test_a_changed_source_is_tried_again(self):
        self.run_all()
        self.source.write_text("\n" + CODE, encoding="utf-8")
        self.tree.compile = lambda *_: None
        self.assertEqual(set(self.run_all().values()), {mutate.UNCOMPILED})

    def test_the_share_counts_what_compiled(self):
        counts = {mutate.KILLED: 9, mutate.SURVIVED: 1, mutate.UNCOMPILED: 5, mutate.SAME: 5}
        self.assertAlmostEqual(mutate.share_of(counts), 0.9)


class Spreading(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.sources = []
        for name, size in (("small.cpp", 10), ("large.cpp", 30)):
            self.sources.append(pathlib.Path(temporary.name) / name)
            self.sources[-1].write_text("".join(f"int a{i} = {i + 1};\n" for i in range(size)), encoding="utf-8")

    def names(self, seed):
        return [change.source.name for change in mutate.spread(self.sources, seed)]

    def test_the_first_ones_are_of_all_sources_by_their_size(self):
        for seed in range(20):
            self.assertIn(self.names(seed)[:20].count("small.cpp"), (4, 5, 6))

    def test_a_seed_gives_the_same_choice_and_another_seed_another(self):
        first, again, other = ([change.identity for change in mutate.spread(self.sources, seed)] for seed in (1, 1, 2))
        self.assertEqual(first, again)
        self.assertNotEqual(first, other)


if __name__ == "__main__":
    unittest.main()
