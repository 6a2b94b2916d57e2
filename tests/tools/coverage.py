"""Sums up by folder which lines and branches of src the tests have run, from the JSON report of gcovr, and fails where that
is below what is asked.

The compiler makes a branch of every call that may throw; those are no decisions of ours and are left out here rather than by
gcovr, which knows them only in objects that have run the line: an inline function that one object never calls would keep
them. What is left is written as a second report, which gcovr makes the pages from."""

import argparse
import collections
import json
import sys

ALL_BUT_CLI = "src without cli"
CLI = "src/cli"
LEAST_LINES = {ALL_BUT_CLI: 97.0, CLI: 90.0}
LEAST_BRANCHES = {ALL_BUT_CLI: 90.0}


class Count:
    def __init__(self):
        self.total = 0
        self.run = 0

    def add(self, times_run):
        self.total += 1
        self.run += times_run > 0

    def percent(self):
        return 100.0 * self.run / self.total if self.total else 100.0

    def __str__(self):
        return f"{self.run:7} of {self.total:6} {self.percent():6.2f} %"


def without_throw_branches(report):
    for source in report["files"]:
        for line in source["lines"]:
            line["branches"] = [branch for branch in line["branches"] if not branch["throw"]]
    return report


def counted_lines(source):
    return (line for line in source["lines"] if not line["gcovr/noncode"] and not line.get("gcovr/excluded"))


def sums_by_folder(report):
    """Lines and branches of each folder, and of all folders but the command line together."""
    lines = collections.defaultdict(Count)
    branches = collections.defaultdict(Count)
    for source in report["files"]:
        folder = source["file"].rsplit("/", 1)[0]
        for name in {folder, CLI if folder == CLI else ALL_BUT_CLI}:
            for line in counted_lines(source):
                lines[name].add(line["count"])
                for branch in line["branches"]:
                    branches[name].add(branch["count"])
    return lines, branches


def shortfalls(sums, least, what):
    return [f"{name}: {sums[name].percent():.2f} % of the {what}, and {percent:g} % are asked"
            for name, percent in least.items() if not sums[name].total or sums[name].percent() < percent]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("counts", help="JSON report of gcovr")
    parser.add_argument("ours", help="file for the report without the branches of calls that throw")
    arguments = parser.parse_args()

    with open(arguments.counts, encoding="utf-8") as file:
        report = without_throw_branches(json.load(file))
    with open(arguments.ours, "w", encoding="utf-8") as file:
        json.dump(report, file)

    lines, branches = sums_by_folder(report)
    print(f"{'':34} {'lines':>26} {'branches':>26}")
    for name in sorted(lines, key=lambda name: (name == ALL_BUT_CLI, name)):
        print(f"{name:34} {lines[name]} {branches[name]}")
    problems = shortfalls(lines, LEAST_LINES, "lines") + shortfalls(branches, LEAST_BRANCHES, "branches")
    print(*problems, sep="\n", end="\n" if problems else "", file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
