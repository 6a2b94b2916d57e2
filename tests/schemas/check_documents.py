"""Holds a schema to documents in which every key counts: each document passes, and none passes any more when one of its
keys is missing or has a value of another kind."""

import argparse
import copy
import json
import pathlib
import sys

import jsonschema


def read(path):
    return json.loads(path.read_text(encoding="utf-8"))


def places(value, place=()):
    """Places of all keys of all objects."""
    if isinstance(value, dict):
        for key, member in value.items():
            yield (*place, key)
            yield from places(member, (*place, key))
    elif isinstance(value, list):
        for position, member in enumerate(value):
            yield from places(member, (*place, position))


def changed(document, place, change):
    """A copy in which the object that holds a place was changed."""
    other = copy.deepcopy(document)
    holder = other
    for step in place[:-1]:
        holder = holder[step]
    change(holder, place[-1])
    return other


def drop(holder, key):
    del holder[key]


def mistype(holder, key):
    holder[key] = None


def check(validator, path):
    document = read(path)
    problems = [f"{path.name}: {error.json_path}: {error.message}" for error in validator.iter_errors(document)]
    for place in places(document):
        for change in (drop, mistype):
            if validator.is_valid(changed(document, place, change)):
                problems.append(f"{path.name}: {place}: {change.__name__} is not refused")
    return problems


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("schema", "documents"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    arguments = parser.parse_args()

    schema = read(arguments.schema)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    documents = sorted(arguments.documents.glob("*.json"))
    problems = [problem for path in documents for problem in check(validator, path)]
    if not documents:
        problems.append("no documents found")
    print("\n".join(problems) or f"{len(documents)} documents")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
