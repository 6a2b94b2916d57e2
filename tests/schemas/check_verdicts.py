"""Holds a schema to the documents that the reader of its format is tested with: it passes the accepted ones, and refuses
each refused one at the places listed under "schema"; one without such a list breaks a rule that no schema can state. What
the reader takes and the schema may refuse stands under "tolerated". A schema may refer to those beside it."""

import argparse
import pathlib
import sys

from validators import read, validator_of


def places_of(validator, document):
    return sorted({error.json_path for error in validator.iter_errors(document)})


def expectations(documents):
    """Name, document and places of all that is JSON."""
    for name, document in documents["accepted"].items():
        yield name, document, []
    for name, test in {**documents["refused"], **documents.get("tolerated", {})}.items():
        if "document" in test:
            yield name, test["document"], test.get("schema", [])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("schema", "documents"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    parser.add_argument("--good", type=pathlib.Path, nargs="*", default=[], help="files of one accepted document each")
    parser.add_argument("--least", type=int, default=40, help="documents that there have to be")
    arguments = parser.parse_args()

    validator = validator_of(arguments.schema)
    checks = list(expectations(read(arguments.documents)))
    checks += [(path.name, read(path), []) for path in arguments.good]
    problems = [f"{name}: refused at {found}, expected {expected}" for name, document, expected in checks
                if (found := places_of(validator, document)) != expected]
    if len(checks) < arguments.least:
        problems.append(f"only {len(checks)} documents found")
    print("\n".join(problems) or f"{len(checks)} documents")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
