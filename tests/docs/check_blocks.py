"""Every code block of the documents holds: commands run and print what is shown, JSON parses and keeps to the schema
that its block names, C++ compiles against the headers, CMake parses.

    sh            run in order, in one scratch folder for each page; lines of ./dev are looked up only
    console       the same, and what is printed is compared
    json [NAME]   parsed, and held to schemas/NAME.schema.json where one is named
    cpp [body]    compiled, syntax only; a body is what stands within a function
    cmake         parsed
    text          nothing: pictures, grammars; so is a block without a language that shows no command

The word "unrun" behind the language leaves a block alone; each such block stands in UNRUN, with the reason."""

import argparse
import json
import pathlib
import re
import subprocess
import sys
import tempfile

from code_blocks import read_blocks
from transcripts import run_script, run_transcript

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "schemas"))
from check_documents import validator_of

# Page, first line of the block, and why it is not run.
UNRUN = {
    ("docs/at-scale.md", "$ find buildings -name '*.json' -print0 |"): "needs other machines",
    ("docs/linking.md", 'cmake --install build/release --prefix "$HOME/orvcad"'): "run by tests/package",
    ("docs/linking.md", 'cmake -S examples/floors_reader -B build/floors_reader -D CMAKE_PREFIX_PATH="$HOME/orvcad"'): "run by tests/package",
    ("docs/linking.md", 'export PKG_CONFIG_PATH="$HOME/orvcad/lib/pkgconfig"'): "run by tests/package",
    ("examples/README.md", 'cmake --install build/release --prefix "$HOME/orvcad"'): "run by tests/package",
    ("docs/host-contract.md", '#include "HostContract.h"'): "openContractBuilding is the reader's own",
}
# What the pages find beside them: the checkout, as far as they name it.
LINKED = ["examples", "schemas", "tests"]


class Blocks:
    """Checks blocks by language; a method gives the problems of one block."""

    def __init__(self, arguments):
        self.root = arguments.root.resolve()
        self.programs = arguments.orvcad.resolve().parent
        self.compiler = arguments.compiler
        self.flags = arguments.flags.read_text(encoding="utf-8").split("\n")
        self.cmake = arguments.cmake
        self.verbs = set(re.findall(r"^([a-z]+)(?: \|[^)]*)?\) ", (self.root / "dev").read_text("utf-8"), re.MULTILINE))
        self.sources = []  # of C++, compiled together at the end

    def check(self, block, folder):
        by_language = {"sh": self.check_sh, "console": self.check_console, "json": self.check_json,
                       "cpp": self.check_cpp, "cmake": self.check_cmake, "text": self.check_text, "": self.check_text}
        check = by_language.get(block.language)
        if not check:
            return [f"no kind of block: {block.language}"]
        try:
            return check(block, folder)
        except ValueError as error:  # what is no transcript, no JSON
            return [str(error)]

    def check_sh(self, block, folder):
        return run_script(block.text, folder, self.programs, self.verbs)

    def check_console(self, block, folder):
        return run_transcript(block.text, folder, self.programs)

    def check_json(self, block, _folder):
        document = json.loads(block.text)
        if len(block.info) == 1:
            return []
        validator = validator_of(self.root / f"schemas/{block.info[1]}.schema.json")
        return [f"{error.json_path}: {error.message}" for error in validator.iter_errors(document)]

    def check_cpp(self, block, _folder):
        self.sources.append(block)
        return []

    def check_cmake(self, block, folder):
        script = folder / "block.cmake"
        script.write_text("return()\n" + block.text, encoding="utf-8")  # the whole file is parsed before it returns
        result = subprocess.run([self.cmake, "-P", script], stderr=subprocess.PIPE, encoding="utf-8")
        return [result.stderr] if result.returncode else []

    def check_text(self, block, _folder):
        return ["shows a command and is no console block"] if re.search(r"^\$ ", block.text, re.MULTILINE) else []

    def compile_sources(self):
        """All C++ as one source: the includes in front, each block in a namespace or function of its own."""
        includes, bodies = [], []
        for number, block in enumerate(self.sources):
            lines = block.text.splitlines()
            mark = f'#line {block.line + 1} "{block.page}"'
            includes += [f'#line {block.line + 1 + place} "{block.page}"\n{line}'
                         for place, line in enumerate(lines) if line.startswith("#include")]
            body = "\n".join("" if line.startswith("#include") else line for line in lines)
            head = f"[[maybe_unused]] void block{number}()" if "body" in block.info else f"namespace block{number}"
            bodies.append(f"{head} {{\n{mark}\n{body}\n}}")
        command = [self.compiler, "-x", "c++", "-std=c++17", "-fsyntax-only", *filter(None, self.flags), "-"]
        result = subprocess.run(command, input="\n".join(includes + bodies), stderr=subprocess.PIPE, encoding="utf-8")
        return [result.stderr] if result.returncode else []


def lay_out(root, folder):
    for name in LINKED:
        (folder / name).symlink_to(root / name)


def unrun_problems(blocks):
    """Blocks that are not run and not listed, and the other way round."""
    marked = {(block.page, block.text.split("\n", 1)[0]) for block in blocks if "unrun" in block.info}
    return ([f"{page}: not run, and no reason is told: {line}" for page, line in sorted(marked - set(UNRUN))] +
            [f"{page}: no such block is marked unrun: {line}" for page, line in sorted(set(UNRUN) - marked)])


def problems_of(arguments):
    checks = Blocks(arguments)
    pages = read_blocks(arguments.root)
    problems = unrun_problems([block for blocks in pages.values() for block in blocks])
    for blocks in pages.values():
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            lay_out(checks.root, folder)
            for block in blocks:
                if "unrun" not in block.info:
                    problems += [f"{block.place}: {problem}" for problem in checks.check(block, folder)]
    counts = {}
    for block in (block for blocks in pages.values() for block in blocks if "unrun" not in block.info):
        counts[block.language or "text"] = counts.get(block.language or "text", 0) + 1
    return problems + checks.compile_sources(), counts


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--root", type=pathlib.Path, required=True, help="of the sources")
    parser.add_argument("--orvcad", type=pathlib.Path, required=True, help="the command")
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--flags", type=pathlib.Path, required=True, help="file with one flag of the compiler a line")
    parser.add_argument("--cmake", required=True)
    problems, counts = problems_of(parser.parse_args())
    print("\n".join(problems) or "blocks that hold: " + ", ".join(f"{name} {counts[name]}" for name in sorted(counts)))
    for (page, line), reason in UNRUN.items():
        print(f"not run: {page}: {line} ({reason})")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
