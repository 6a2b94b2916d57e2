"""Holds what the command writes for the sample buildings to the published schemas: all of it by `orvcad check`, and one
document of each kind by another implementation."""

import argparse
import json
import sys

import samples
from validators import validator_of


def errors_of(kind, document):
    validator = validator_of(samples.ROOT / "schemas" / f"{kind}.schema.json")
    return [f"{kind}: {error.json_path}: {error.message[:200]}" for error in validator.iter_errors(document)]


def faults_of(command, documents):
    """What the command says of documents of one kind after the other."""
    problems = []
    for kind in sorted({kind for kind, _ in documents}):
        names = []
        for number, document in enumerate(document for one, document in documents if one == kind):
            names.append(f"{kind}-{number}.json")
            (command.folder / names[-1]).write_text(json.dumps(document), encoding="utf-8")
        for file in json.loads(samples.checked(command, kind, names))["files"]:
            # A text with "/" leaves a key that nobody reads in a record of walls, and the width of a beam is rounded when
            # it is applied; nothing is lost anywhere else.
            lost = [told for told in file["ignored"] + file["dropped"]
                    if kind != "wall-input" and "LineWidth" not in told["message"]]
            problems += [f"{file['file']}: {told['place']}: {told['message']}" for told in file["faults"] + lost]
    return problems


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True)
    arguments = parser.parse_args()

    command, folder = samples.command_in_folder(arguments.program)
    with folder:
        documents = list(samples.of_files())
        for building in sorted(samples.BUILDINGS.glob("*.json")):
            documents += samples.of_building(command, building)
        problems = faults_of(command, documents)
        # Of the documents of a kind one of middle size: the other implementation is slow.
        for kind in sorted({kind for kind, _ in documents}):
            sizes = sorted((len(json.dumps(document)), number)
                           for number, (one, document) in enumerate(documents) if one == kind)
            problems += errors_of(kind, documents[sizes[len(sizes) // 2][1]][1])
    if len(documents) < 100 or len({kind for kind, _ in documents}) < 20:
        problems.append(f"only {len(documents)} documents found")
    print("\n".join(problems[:100]) or f"{len(documents)} documents")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
