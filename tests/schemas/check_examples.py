"""Holds a schema to an example document that has every member at least once: the example passes, and is refused at the
very place where any value in it is replaced by one of a type that stands nowhere."""

import argparse
import copy
import json
import pathlib
import sys

import jsonschema

ODD = {"odd": {"odd": [[]]}}  # neither text nor number, and no object of ours


def read(path):
    return json.loads(path.read_text(encoding="utf-8"))


def leaves_of(value, path=()):
    """Places of all values that hold no others."""
    members = value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ()
    places = [place for key, member in members for place in leaves_of(member, path + (key,))]
    return places or [path]


def with_odd_value(document, path):
    changed = copy.deepcopy(document)
    place = changed
    for key in path[:-1]:
        place = place[key]
    place[path[-1]] = ODD
    return changed


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("schema", "example"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    arguments = parser.parse_args()

    schema = read(arguments.schema)
    # Schemas beside this one, which it may refer to by their file names.
    others = {path.name: read(path) for path in arguments.schema.parent.glob("*.schema.json")}
    resolver = jsonschema.RefResolver("", schema, store=others)
    validator = jsonschema.Draft202012Validator(schema, resolver=resolver)
    validator.check_schema(schema)

    example = read(arguments.example)
    problems = [f"{error.json_path}: {error.message}" for error in validator.iter_errors(example)]
    leaves = leaves_of(example)
    problems += [f"an odd value passes at {path}" for path in leaves if validator.is_valid(with_odd_value(example, path))]
    if len(leaves) < 10:
        problems.append(f"only {len(leaves)} values in the example")
    print("\n".join(problems) or f"{len(leaves)} values")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
