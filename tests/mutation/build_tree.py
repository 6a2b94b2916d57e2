"""What ./dev mutants needs to know of the build tree: how a source is compiled, how the library is linked, and which
test programs and which tests in them belong to a source. A changed source never stands among the others: it is compiled
in a folder of its own, linked with the objects of the unchanged ones, and laid over the library by LD_PRELOAD. Of a
header, all that includes it is compiled and linked aside so, in the library and in the tests."""

import json
import os
import pathlib
import re
import resource
import shlex
import shutil
import signal
import subprocess

SHARED_OBJECT = "lib/liborvcadmodeldata.so"
MEMORY = 4 << 30
LONGEST_SECONDS = 600  # for a compiler, or for all tests of a program
SLOW_SECONDS = 0.5  # a test that takes longer waits for the others
# What the optimiser makes of two texts tells whether they differ at all.
OPTIMISED = ["-O2", "-DNDEBUG", "-DQT_NO_DEBUG", "-U_GLIBCXX_ASSERTIONS"]


def limit_memory():
    """A changed bound may ask for all memory there is. What the leak checker reserves and does not use counts not."""
    resource.setrlimit(resource.RLIMIT_DATA, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


running = set()  # process groups of what was started and has not ended


def end_group(number):
    try:
        os.killpg(number, signal.SIGKILL)
    except ProcessLookupError:
        pass  # it has ended by itself


def end_all(*_):
    """For a signal that ends the script: nothing goes on behind it."""
    for number in list(running):
        end_group(number)
    os._exit(1)


def run(command, folder, seconds, **surroundings):
    """Exit code, or None when it took too long; then it and all that it started is ended."""
    process = subprocess.Popen(command, cwd=folder, env={**os.environ, **surroundings}, start_new_session=True,
                               preexec_fn=limit_memory, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    running.add(process.pid)
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        return None
    finally:
        end_group(process.pid)
        process.wait()
        running.discard(process.pid)


def suites_in(test_source):
    return set(re.findall(r"^(?:TYPED_)?TEST(?:_F|_P)?\((\w+),", test_source.read_text(encoding="utf-8"), re.MULTILINE))


def plain_suite(test):
    """The suite as its source names it, without what stands around it for values and types."""
    return re.sub(r"^\w+/|/\d+$", "", test.split(".")[0])


def leak_checker():
    """The compiler's own, to be loaded first, so that what is never deleted is noticed; none where it is missing."""
    named = subprocess.run(["c++", "-print-file-name=liblsan.so"], check=True, capture_output=True, text=True).stdout
    return [os.path.realpath(named.strip())] if os.path.isabs(named) else []


class TestProgram:
    def __init__(self, path):
        self.path = path
        self.leak_checker = leak_checker()
        self.seconds = {}  # of each test, by suite and name as --gtest_filter takes them

    def prepare(self, folder, library):
        """Runs all tests once, unless that was done since program and library were made; they have to pass with nothing
        changed."""
        report = folder / f"{self.path.name}.json"
        newest = max(self.path.stat().st_mtime, library.stat().st_mtime)
        if not report.exists() or report.stat().st_mtime < newest:
            if self.run([f"--gtest_output=json:{report}"], folder, LONGEST_SECONDS, {}) != 0:
                report.unlink(missing_ok=True)
                raise SystemExit(f"{self.path.name} fails before anything was changed")
        for suite in json.loads(report.read_text(encoding="utf-8"))["testsuites"]:
            for test in suite["testsuite"]:
                self.seconds[f"{suite['name']}.{test['name']}"] = float(test["time"].rstrip("s"))

    def tests(self, wanted):
        return {test for test in self.seconds if wanted(plain_suite(test), self.seconds[test] > SLOW_SECONDS)}

    def kills(self, folder, made, tests):
        """Whether one of these tests fails with what was made in place of library and program, or they take five times
        as long and ten seconds."""
        if not tests:
            return False
        selection = folder / "selection"
        selection.write_text(f"--gtest_filter={':'.join(sorted(tests))}\n", encoding="utf-8")
        limit = 5 * sum(self.seconds[test] for test in tests) + 10
        return self.run([f"--gtest_flagfile={selection}", "--gtest_fail_fast"], folder, limit, made) != 0

    def run(self, arguments, folder, seconds, made):
        libraries = [*self.leak_checker, *(path for path in made.values() if path.suffix == ".so")]
        program = made.get(self.path, self.path)
        return run([program, *arguments], folder, seconds, LD_PRELOAD=":".join(map(str, libraries)))


class BuildTree:
    """A configured tree of the preset "mutants"."""

    def __init__(self, folder, includes):
        self.folder, self.includes = folder, includes
        commands = json.loads((folder / "compile_commands.json").read_text(encoding="utf-8"))
        self.commands = {pathlib.Path(entry["file"]): shlex.split(entry["command"]) for entry in commands}
        self.shared_object = folder / SHARED_OBJECT
        self.readers = {}  # sources that include a header, by header

    def build(self, programs):
        """The library as it is, and the test programs."""
        subprocess.run(["ninja", "-C", self.folder, SHARED_OBJECT, *programs], check=True, stdout=subprocess.DEVNULL)
        self.readers = self.readers_of_headers()

    def ninja(self, *arguments):
        return subprocess.run(["ninja", "-C", self.folder, "-t", *arguments], check=True, capture_output=True,
                              text=True).stdout

    def readers_of_headers(self):
        sources = {str(self.object_of(source)): source for source in self.commands}
        readers, source = {}, None
        for line in self.ninja("deps").splitlines():
            if not line.startswith(" "):
                source = sources.get(line.split(":")[0])
            elif source and line.endswith(".h"):
                header = pathlib.Path(os.path.normpath(self.folder / line.strip()))
                readers.setdefault(header, []).append(source)
        return readers

    def programs_of(self, tests):
        """Names of the test programs that are made from the sources of a folder."""
        return {self.object_of(source).parent.name.replace(".dir", "")
                for source in self.commands if source.parent == tests}

    def object_of(self, source):
        command = self.commands[source]
        return pathlib.Path(command[command.index("-o") + 1])

    def compiled_with(self, source, tests):
        """What has to be compiled when a source changes: itself; of a header, the sources of library and tests that
        include it."""
        if source in self.commands:
            return [source]
        return [reader for reader in self.readers.get(source, [])
                if "ORVCADModelData.dir" in self.object_of(reader).parts or reader.parent == tests]

    def compile(self, source, reader, text, made, flags=()):
        """The object of a reader with this text in place of the source; None when it does not compile."""
        copy = made.parent / "includes" / source.relative_to(self.includes)
        copy.parent.mkdir(parents=True, exist_ok=True)
        copy.write_text(f'#line 1 "{source}"\n{text}', encoding="utf-8")
        places = {str(source): str(copy), str(self.object_of(reader)): str(made), "-Werror": "-w"}
        command = [places.get(part, part) for part in self.commands[reader]]
        command += ["-iquote", str(made.parent / "includes"), *flags]
        return made if run(command, self.folder, LONGEST_SECONDS) == 0 else None

    def link(self, target, objects, made):
        """A library or program with objects in place of others."""
        name = target.resolve().relative_to(self.folder.resolve())
        line = self.ninja("commands", "-s", name).splitlines()[-1]
        places = {**{str(old): str(new) for old, new in objects.items()}, str(name): str(made)}
        command = [places.get(part, part) for part in shlex.split(line.split("&&")[1])]
        if shutil.which("ld.lld"):
            command.append("-fuse-ld=lld")
        return made if run(command, self.folder, LONGEST_SECONDS) == 0 else None

    def make(self, source, text, tests, programs, folder):
        """Library and programs with this text in place of a source; None when something does not compile."""
        objects = {}
        for reader in self.compiled_with(source, tests):
            made = self.compile(source, reader, text, folder / f"{len(objects)}.o")
            if not made:
                return None
            objects[self.object_of(reader)] = made
        targets = [self.shared_object, *(program.path for program in programs if source not in self.commands)]
        made = {target: self.link(target, objects, folder / target.name) for target in targets}
        return made if all(made.values()) else None

    def compiles_to_the_same(self, source, text, tests, folder):
        """Whether the optimiser sees no difference, so that no test can."""
        made = folder / "optimised.o"  # one name, as it stands in the object
        for reader in self.compiled_with(source, tests):
            objects = [self.compile(source, reader, version, made, OPTIMISED) and made.read_bytes()
                       for version in (source.read_text(encoding="utf-8"), text)]
            if not all(objects) or objects[0] != objects[1]:
                return False
        return True
