"""Holds a schema to documents that keep to it: each passes, and none passes any more, and is refused, after a change of
the kinds that are asked for, made at every place in it where it can be made.

    missing  a key of an object is left out (for documents in which every key counts)
    null     the value of a key is null
    odd      a value that holds no others becomes an object that stands in no format
"""

import argparse
import copy
import pathlib
import sys

from validators import read, validator_of

ODD = {"odd": {"odd": [[]]}}  # neither text nor number, and no object of ours


def members_of(value):
    return value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ()


def keys_of(value, place=()):
    """Places of all keys of all objects."""
    for key, member in members_of(value):
        if isinstance(value, dict):
            yield (*place, key)
        yield from keys_of(member, (*place, key))


def leaves_of(value, place=()):
    """Places of all values that hold no others."""
    places = [leaf for key, member in members_of(value) for leaf in leaves_of(member, (*place, key))]
    return places or [place]


def drop(holder, key):
    del holder[key]


def setting(value):
    def change(holder, key):
        holder[key] = value
    return change


CHANGES = {"missing": (keys_of, drop), "null": (keys_of, setting(None)), "odd": (leaves_of, setting(ODD))}


def changed(document, place, change):
    """A copy in which the object or list that holds a place was changed."""
    other = copy.deepcopy(document)
    holder = other
    for step in place[:-1]:
        holder = holder[step]
    change(holder, place[-1])
    return other


def check(validator, path, kinds, least):
    document = read(path)
    problems = [f"{path.name}: {error.json_path}: {error.message}" for error in validator.iter_errors(document)]
    for kind in kinds:
        places_of, change = CHANGES[kind]
        problems += [f"{path.name}: {place}: {kind} is not refused" for place in places_of(document)
                     if validator.is_valid(changed(document, place, change))]
    count = len(leaves_of(document))
    if count < least:
        problems.append(f"{path.name}: only {count} values")
    return problems


def files_of(paths):
    return sorted(file for path in paths for file in (path.glob("*.json") if path.is_dir() else [path]))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--schema", type=pathlib.Path, required=True)
    parser.add_argument("--documents", type=pathlib.Path, nargs="+", required=True, help="files, or folders of them")
    parser.add_argument("--refuse", choices=CHANGES, nargs="+", required=True, help="changes that must be refused")
    parser.add_argument("--least", type=int, default=1, help="values that each document has at least")
    arguments = parser.parse_args()

    validator = validator_of(arguments.schema)
    documents = files_of(arguments.documents)
    problems = [problem for path in documents
                for problem in check(validator, path, arguments.refuse, arguments.least)]
    if not documents:
        problems.append("no documents found")
    print("\n".join(problems) or f"{len(documents)} documents")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
