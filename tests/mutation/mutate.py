"""Changes one small thing in a source at a time, and looks whether a test notices.

Prints a table by folder and the changes that no test has noticed, and fails when less than 90 of 100 were noticed. A
change that does not compile does not count, nor one of which the optimiser makes the same code. Nothing in the checkout
is written: see build_tree.py. What was tried once with the same source stands in the file of results and is not tried
again; --survivors tries what had survived once more, after tests were added."""

import argparse
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import random
import shutil
import signal
import sys
import tempfile
import threading

import build_tree
import mutations

FOLDERS = ("encoding", "beam", "column", "slab", "IdentifyInputModel/Wall", "doorwindow", "drawing", "foundation",
           "ModelSerialization")
LEAST_SHARE = 0.9
KILLED, SURVIVED, UNCOMPILED, SAME = "killed", "survived", "did not compile", "same code"


class Change:
    """A mutant of one source. Its identity holds as long as the source stays as it is."""

    def __init__(self, source, text, mutant):
        self.source, self.text, self.mutant = source, text, mutant
        self.identity = hashlib.sha1(f"{source.name}\n{mutant}\n{text}".encode()).hexdigest()

    def applied(self):
        return self.mutant.applied(self.text)

    def line(self):
        return self.text.count("\n", 0, self.mutant.start) + 1

    def difference(self):
        """The lines that it touches, before and after."""
        start = self.text.rfind("\n", 0, self.mutant.start) + 1
        end = self.text.find("\n", self.mutant.end)
        after = self.text[start:self.mutant.start] + self.mutant.replacement + self.text[self.mutant.end:end]
        return [f"{sign} {line}" for sign, lines in (("-", self.text[start:end]), ("+", after))
                for line in lines.split("\n")]


def changes_of(source, chance):
    """One change for each place of a source, in random order."""
    text = source.read_text(encoding="utf-8")
    changes = [Change(source, text, chance.choice(place)) for place in mutations.places_of(text)]
    chance.shuffle(changes)
    return changes


def spread(sources, seed):
    """Changes of all sources so mixed that any number of the first ones is spread over them by their size."""
    chance = random.Random(seed)
    keyed = []
    for source in sources:
        changes = changes_of(source, chance)
        shift = chance.random()
        keyed += [((rank + shift) / len(changes), change) for rank, change in enumerate(changes)]
    return [change for _, change in sorted(keyed, key=lambda pair: pair[0])]


class Results:
    """One line of JSON for each change that was tried."""

    def __init__(self, path):
        self.path, self.known, self.lock = path, {}, threading.Lock()
        if path.exists():
            for line in path.read_text(encoding="utf-8").splitlines():
                entry = json.loads(line)
                self.known[entry["identity"]] = entry["result"]

    def of(self, change):
        return self.known.get(change.identity)

    def add(self, change, result):
        with self.lock, self.path.open("a", encoding="utf-8") as file:
            self.known[change.identity] = result
            json.dump({"identity": change.identity, "result": result, "file": str(change.source), "line": change.line(),
                       "kind": change.mutant.kind, "difference": change.difference()}, file)
            file.write("\n")


class Tests:
    """The test programs of a folder, and in them the tests of one class."""

    def __init__(self, folder, programs):
        self.folder, self.programs = folder, programs

    def kill(self, source, folder, made):
        """The tests of the class of the source come first, slow ones last."""
        file = self.folder / f"{source.stem}Test.cpp"
        own = build_tree.suites_in(file) if file.exists() else set()
        steps = ((True, False), (False, False), (True, True), (False, True))
        return any(program.kills(folder, made, program.tests(lambda suite, is_slow: (suite in own, is_slow) == step))
                   for step in steps for program in self.programs)


def verdict(tree, tests, change, folder):
    made = tree.make(change.source, change.applied(), tests.folder, tests.programs, folder)
    if not made:
        return UNCOMPILED
    if tests.kill(change.source, folder, made):
        return KILLED
    same = tree.compiles_to_the_same(change.source, change.applied(), tests.folder, folder)
    return SAME if same else SURVIVED


class Trial:
    """Tries changes, several at a time, until enough were tried."""

    def __init__(self, tree, tests, results, work):
        self.tree, self.tests, self.results, self.work = tree, tests, results, work

    def result_of(self, change, again):
        known = self.results.of(change)
        if known and known not in again:
            return known
        with tempfile.TemporaryDirectory(dir=self.work) as folder:
            result = verdict(self.tree, self.tests[change.source.parent], change, pathlib.Path(folder))
        self.results.add(change, result)
        return result

    def run(self, changes, number, again, jobs, progress):
        """Pairs of change and result, in the order of the changes; ends when so many count."""
        found, waiting = [], collections.deque()
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            changes = iter(changes)
            while sum(result in (KILLED, SURVIVED) for _, result in found) < number:
                while len(waiting) < 8 * jobs and (change := next(changes, None)):
                    waiting.append((change, pool.submit(self.result_of, change, again)))
                if not waiting:
                    break
                change, future = waiting.popleft()
                found.append((change, future.result()))
                progress(len(found), *found[-1])
            pool.shutdown(cancel_futures=True)
        return found


def share_of(counts):
    counted = counts[KILLED] + counts[SURVIVED]
    return counts[KILLED] / counted if counted else 1.0


def table(found, sources):
    """Rows of a folder each, and one of all."""
    counts = collections.defaultdict(collections.Counter)
    for change, result in found:
        for row in (str(change.source.parent.relative_to(sources)), "all"):
            counts[row][result] += 1
    lines = ["| folder | mutants | did not compile | same code | killed | survived | share |", "|" + " --- |" * 7]
    for row in [name for name in (*FOLDERS, "all") if name in counts]:
        of = counts[row]
        lines.append(f"| {row} | {of[KILLED] + of[SURVIVED]} | {of[UNCOMPILED]} | {of[SAME]} | {of[KILLED]} | "
                     f"{of[SURVIVED]} | {100 * share_of(of):.1f} % |")
    return lines, share_of(counts["all"])


def survivors(found, root):
    for change, result in found:
        if result == SURVIVED:
            yield f"\n{change.source.relative_to(root)}:{change.line()} ({change.mutant.kind})"
            yield from change.difference()


def tests_of(tree, folders, work, jobs):
    """The test programs for each folder of sources, built and run once with nothing changed.

    folders: for each of sources that of its tests"""
    names = {sources: sorted(tree.programs_of(tests)) for sources, tests in folders.items()}
    tree.build([name for of_folder in names.values() for name in of_folder])
    tests = {}
    for sources, of_folder in names.items():
        programs = [build_tree.TestProgram(tree.folder / "bin" / name) for name in of_folder]
        tests[sources] = Tests(folders[sources], programs)
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(lambda program: program.prepare(work, tree.shared_object),
                      [program for of_folder in tests.values() for program in of_folder.programs]))
    return tests


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("number", nargs="?", type=int, default=300, help="changes that compile")
    parser.add_argument("seed", nargs="?", type=int, default=1, help="another seed, another choice of them")
    parser.add_argument("--build", type=pathlib.Path, required=True, help="tree configured by the preset mutants")
    parser.add_argument("--folders", nargs="+", choices=FOLDERS, default=FOLDERS, metavar="FOLDER", help="below src")
    parser.add_argument("--headers", action="store_true", help="change headers instead, which takes far longer")
    parser.add_argument("--survivors", action="store_true", help="try again what has survived before")
    parser.add_argument("--afresh", action="store_true", help="forget what was tried before")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    return parser.parse_args()


def main():
    given = arguments()
    root = pathlib.Path(__file__).resolve().parents[2]
    work = given.build.resolve() / "work"
    work.mkdir(exist_ok=True)
    for left in work.glob("tmp*"):  # by a run that was broken off
        shutil.rmtree(left)
    for ending in (signal.SIGINT, signal.SIGTERM):
        signal.signal(ending, build_tree.end_all)
    if given.afresh:
        (given.build / "results.jsonl").unlink(missing_ok=True)
    results = Results(given.build / "results.jsonl")
    tree = build_tree.BuildTree(given.build.resolve(), root / "src")
    folders = {root / "src" / folder: root / "tests" / folder for folder in given.folders}
    trial = Trial(tree, tests_of(tree, folders, work, given.jobs), results, work)
    pattern = "*.h" if given.headers else "*.cpp"
    sources = [source for folder in given.folders for source in sorted((root / "src" / folder).glob(pattern))]

    def progress(number, change, result):
        print(f"{number}: {result}, {change.source.name}:{change.line()} ({change.mutant.kind})", file=sys.stderr,
              flush=True)

    again = (SURVIVED,) if given.survivors else ()
    found = trial.run(spread(sources, given.seed), given.number, again, given.jobs, progress)
    lines, share = table(found, root / "src")
    print("\n".join([*lines, *survivors(found, root)]))
    return 0 if share >= LEAST_SHARE else 1


if __name__ == "__main__":
    sys.exit(main())
