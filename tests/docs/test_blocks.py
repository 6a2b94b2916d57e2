"""What a page is held to: where its blocks are found, and what makes one fail."""

import pathlib
import tempfile
import unittest

from check_blocks import Blocks, unrun_problems
from code_blocks import Block, blocks_of
from transcripts import commands_of, pattern_of, run_script, run_transcript


def block(text, *info):
    return Block("docs/a.md", 1, info, text)


class WhereBlocksAre(unittest.TestCase):
    def test_blockHasItsLanguageItsWordsAndItsLine(self):
        page = "Text\n\n```json floors\n{}\n```\n"
        self.assertEqual(blocks_of("a.md", page), [Block("a.md", 3, ("json", "floors"), "{}\n")])

    def test_blockInAListMovesToTheLeft(self):
        page = "1. Text\n   ```cpp\n   int a;\n     int b;\n\n   ```\n"
        self.assertEqual(blocks_of("a.md", page)[0].text, "int a;\n  int b;\n\n")

    def test_blockWithoutEndIsAnError(self):
        with self.assertRaisesRegex(ValueError, "a.md:1: the block has no end"):
            blocks_of("a.md", "```sh\ntrue\n")


class Transcripts(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)

    def run_transcript(self, text):
        return run_transcript(text, self.folder, self.folder)

    def test_commandStandsAboveWhatItPrints(self):
        self.assertEqual(commands_of("$ a\nx\n\ny\n$ b\n"), [("a", ["x", "", "y"]), ("b", [])])

    def test_commandMayHaveFurtherLines(self):
        self.assertEqual(commands_of("$ cat <<A\n> x\n> A\nx\n> y\n"), [("cat <<A\nx\nA", ["x", "> y"])])

    def test_outputWithoutACommandIsAnError(self):
        with self.assertRaises(ValueError):
            commands_of("x\n$ a\n")

    def test_ellipsisAloneIsAnyNumberOfLines(self):
        self.assertTrue(pattern_of(["a", "…", "b"]).fullmatch("a\nb\n"))
        self.assertTrue(pattern_of(["a", "…", "b"]).fullmatch("a\nx\ny\nb\n"))
        self.assertFalse(pattern_of(["a", "…", "b"]).fullmatch("a\nx\n"))

    def test_ellipsisInALineIsTextOfThatLine(self):
        self.assertTrue(pattern_of(["id …, ok"]).fullmatch("id 17, ok\n"))
        self.assertFalse(pattern_of(["id …, ok"]).fullmatch("id 17,\n ok\n"))

    def test_signsOfPatternsAreText(self):
        self.assertFalse(pattern_of(["1.5 (m)"]).fullmatch("1x5 m\n"))

    def test_sameOutputHolds(self):
        self.assertEqual(self.run_transcript("$ printf 'a\\nb\\n'\na\nb\n"), [])

    def test_otherOutputDoesNot(self):
        self.assertEqual(len(self.run_transcript("$ echo a\nb\n")), 1)

    def test_missingOutputDoesNot(self):
        self.assertEqual(len(self.run_transcript("$ echo a\n")), 1)

    def test_errorsAreOutputToo(self):
        self.assertEqual(self.run_transcript("$ echo a >&2\na\n"), [])

    def test_failureMustBeShown(self):
        self.assertEqual(self.run_transcript("$ (exit 3)\n$ echo $?\n3\n"), [])
        self.assertEqual(len(self.run_transcript("$ (exit 3)\n")), 1)

    def test_wrongExitCodeIsFound(self):
        self.assertEqual(len(self.run_transcript("$ (exit 3)\n$ echo $?\n2\n")), 1)

    def test_filesStayFromCommandToCommand(self):
        self.assertEqual(self.run_transcript("$ echo a > b\n$ cat b\na\n"), [])

    def test_scriptEndsAtItsFirstFailure(self):
        self.assertEqual(run_script("true\n", self.folder, self.folder, set()), [])
        self.assertEqual(len(run_script("false\ntrue\n", self.folder, self.folder, set())), 1)

    def test_verbsOfDevAreLookedUpAndNotRun(self):
        self.assertEqual(run_script("./dev test -R A   # x\n", self.folder, self.folder, {"test"}), [])
        self.assertEqual(len(run_script("./dev tset\n", self.folder, self.folder, {"test"})), 1)


class OtherBlocks(unittest.TestCase):
    root = pathlib.Path(__file__).resolve().parents[2]

    def checks(self):
        checks = Blocks.__new__(Blocks)  # without the programs of a build
        checks.root = self.root
        checks.sources = []
        return checks

    def test_jsonMustParse(self):
        self.assertEqual(self.checks().check(block('{"a": 1}', "json"), None), [])
        self.assertEqual(len(self.checks().check(block('{"a": }', "json"), None)), 1)

    def test_jsonIsHeldToTheSchemaThatItNames(self):
        good = block('{"AreaName": "A", "Floors": []}', "json", "floors")
        self.assertEqual(self.checks().check_json(good, None), [])
        self.assertEqual(len(self.checks().check_json(block('{"Floors": []}', "json", "floors"), None)), 1)

    def compiled(self, text, *words):
        checks = self.checks()
        checks.compiler, checks.flags = "c++", []
        checks.check(block(text, "cpp", *words), None)
        return checks.compile_sources()

    def test_cppIsCompiledWithItsIncludes(self):
        self.assertEqual(self.compiled("#include <cmath>\ndouble root() { return std::sqrt(2.0); }\n"), [])
        self.assertIn("docs/a.md:3", self.compiled("\ndouble root() { return 2.0 }\n")[0])

    def test_bodyOfCppStandsInAFunction(self):
        self.assertEqual(self.compiled("int a = 1;\n++a;\n", "body"), [])
        self.assertEqual(len(self.compiled("int a = 1;\n++a;\n")), 1)

    def test_commandInABlockOfTextIsFound(self):
        self.assertEqual(len(self.checks().check_text(block("$ orvcad demo\n"), None)), 1)

    def test_unknownLanguageIsFound(self):
        self.assertEqual(self.checks().check(block("x", "cppp"), None), ["no kind of block: cppp"])

    def test_unrunBlockWithoutAReasonIsFound(self):
        self.assertIn("docs/a.md: not run, and no reason is told: x", unrun_problems([block("x\n", "sh", "unrun")]))

    def test_reasonWithoutABlockIsFound(self):
        self.assertIn("docs/at-scale.md: no such block is marked unrun: $ find buildings -name '*.json' -print0 |",
                      unrun_problems([]))


if __name__ == "__main__":
    unittest.main()
