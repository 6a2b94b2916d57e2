"""What ./dev mutants needs to know of the build tree: how a source is compiled, how the library is linked, and which test
programs and which tests in them belong to a source. A changed source never stands among the others: it is compiled in a
folder of its own, linked with the objects of the unchanged ones, and laid over the library by LD_PRELOAD."""

import json
import os
import pathlib
import re
import resource
import shlex
import shutil
import signal
import subprocess

LIBRARY = "lib/libORVCADModelData.so"
MEMORY = 4 << 30
LONGEST_SECONDS = 600  # for a compiler, or for all tests of a program
SLOW_SECONDS = 0.5  # a test that takes longer waits for the others
# What the optimiser makes of two texts tells whether they differ at all.
OPTIMISED = ["-O2", "-DNDEBUG", "-DQT_NO_DEBUG", "-U_GLIBCXX_ASSERTIONS"]


def limit_memory():
    """A changed bound may ask for all memory there is. What the leak checker reserves and does not use is not counted."""
    resource.setrlimit(resource.RLIMIT_DATA, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command, folder, seconds, **surroundings):
    """Exit code, or None when it took too long; then it and all that it started is ended."""
    process = subprocess.Popen(command, cwd=folder, env={**os.environ, **surroundings}, start_new_session=True,
                               preexec_fn=limit_memory, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        return None
    finally:
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def suites_in(test_source):
    return set(re.findall(r"^(?:TYPED_)?TEST(?:_F|_P)?\((\w+),", test_source.read_text(encoding="utf-8"), re.MULTILINE))


def plain_suite(test):
    """The suite as its source names it, without what stands around it for values and types."""
    return re.sub(r"^\w+/|/\d+$", "", test.split(".")[0])


def leak_checker():
    """The compiler's own, to be loaded first, so that what is never deleted is noticed; none where it is not installed."""
    named = subprocess.run(["c++", "-print-file-name=liblsan.so"], check=True, capture_output=True, text=True).stdout.strip()
    return [os.path.realpath(named)] if os.path.isabs(named) else []


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
            if self.run([f"--gtest_output=json:{report}"], folder, LONGEST_SECONDS) != 0:
                report.unlink(missing_ok=True)
                raise SystemExit(f"{self.path.name} fails before anything was changed")
        for suite in json.loads(report.read_text(encoding="utf-8"))["testsuites"]:
            for test in suite["testsuite"]:
                self.seconds[f"{suite['name']}.{test['name']}"] = float(test["time"].rstrip("s"))

    def tests(self, wanted):
        return {test for test in self.seconds if wanted(plain_suite(test), self.seconds[test] > SLOW_SECONDS)}

    def kills(self, folder, library, tests):
        """Whether one of these tests fails, or they take five times as long and ten seconds."""
        if not tests:
            return False
        selection = folder / "selection"
        selection.write_text(f"--gtest_filter={':'.join(sorted(tests))}\n", encoding="utf-8")
        limit = 5 * sum(self.seconds[test] for test in tests) + 10
        return self.run([f"--gtest_flagfile={selection}", "--gtest_fail_fast"], folder, limit, library) != 0

    def run(self, arguments, folder, seconds, *libraries):
        return run([self.path, *arguments], folder, seconds, LD_PRELOAD=":".join(map(str, [*self.leak_checker, *libraries])))


class BuildTree:
    """A configured tree of the preset "mutants"."""

    def __init__(self, folder):
        self.folder = folder
        commands = json.loads((folder / "compile_commands.json").read_text(encoding="utf-8"))
        self.commands = {pathlib.Path(entry["file"]): shlex.split(entry["command"]) for entry in commands}

    def build(self, programs):
        """The library as it is, and the test programs."""
        subprocess.run(["ninja", "-C", self.folder, LIBRARY, *programs], check=True, stdout=subprocess.DEVNULL)

    def programs_of(self, tests):
        """Names of the test programs that are made from the sources of a folder."""
        return {self.object_of(source).parts[-2].replace(".dir", "") for source in self.commands if source.parent == tests}

    def object_of(self, source):
        command = self.commands[source]
        return pathlib.Path(command[command.index("-o") + 1])

    def compile(self, source, text, made, flags=()):
        """The object of a source with this text in its place; None when it does not compile."""
        copy = made.with_suffix(".cpp")
        copy.write_text(f'#line 1 "{source}"\n{text}', encoding="utf-8")
        places = {str(source): str(copy), str(self.object_of(source)): str(made), "-Werror": "-w"}
        command = [places.get(part, part) for part in self.commands[source]] + list(flags)
        return made if run(command, self.folder, LONGEST_SECONDS) == 0 else None

    def link(self, source, changed, library):
        """The library with one object in place of another."""
        real = (self.folder / LIBRARY).resolve().relative_to(self.folder.resolve())
        listed = subprocess.run(["ninja", "-C", self.folder, "-t", "commands", "-s", real], check=True,
                                capture_output=True, text=True).stdout
        line = next(line for line in listed.splitlines() if " -shared " in line)
        places = {str(self.object_of(source)): str(changed), str(real): str(library)}
        command = [places.get(part, part) for part in shlex.split(line.split("&&")[1])]
        if shutil.which("ld.lld"):
            command.append("-fuse-ld=lld")
        return library if run(command, self.folder, LONGEST_SECONDS) == 0 else None

    def compiles_to_the_same(self, source, text, folder):
        """Whether the optimiser sees no difference, so that no test can."""
        made = folder / "optimised.o"  # one name, as it stands in the object
        versions = [source.read_text(encoding="utf-8"), text]
        objects = [self.compile(source, version, made, OPTIMISED) and made.read_bytes() for version in versions]
        return all(objects) and objects[0] == objects[1]
