"""Holds the schema of the building exchange file to its documents: each good one passes, each broken one is refused at
the place that it names, and nowhere else."""

import argparse
import pathlib
import sys

from validators import read, validator_of


def errors_of(validator, document):
    """Places and reasons, innermost only."""
    return [(error.json_path, error.message) for error in validator.iter_errors(document)]


def shortened(text):
    return text if len(text) <= 200 else text[:200] + " ..."


def check_good(validator, path):
    return [f"{path.name}: {place}: {shortened(reason)}" for place, reason in errors_of(validator, read(path))]


def check_broken(validator, path, expected):
    """A broken document has one fault, so that nothing but this fault can be why it is refused."""
    places = sorted({place for place, _ in errors_of(validator, read(path))})
    return [] if places == [expected] else [f"{path.name}: refused at {places}, expected {expected}"]


def check_all(validator, good, broken):
    expected = read(broken / "expected.json")
    documents = sorted(path for path in broken.glob("*.json") if path.name != "expected.json")
    problems = [f"{name}: listed, but not there" for name in sorted(set(expected) - {path.stem for path in documents})]
    for path in good:
        problems += check_good(validator, path)
    for path in documents:
        if path.stem in expected:
            problems += check_broken(validator, path, expected[path.stem])
        else:
            problems.append(f"{path.name}: there, but not listed in expected.json")
    return problems, len(good), len(documents)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("schema", "good", "broken"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    arguments = parser.parse_args()

    validator = validator_of(arguments.schema)
    good = sorted(arguments.good.glob("*.json"))
    problems, passed, refused = check_all(validator, good, arguments.broken)
    if passed < 4 or refused < 20:
        problems.append(f"only {passed} good and {refused} broken documents found")
    print("\n".join(problems) or f"{passed} good and {refused} broken documents")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
