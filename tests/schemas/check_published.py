"""Holds the published schemas to what they promise: each is one of JSON Schema 2020-12, has its file name as its id, a title
and a description; every reference leads to something, and every key is described where it stands or where it refers to."""

import argparse
import pathlib
import sys
from urllib.parse import urljoin, urldefrag

from validators import schemas_of, validator_of

BRANCHES = ("items", "then", "else", "additionalProperties")
LISTS = ("allOf", "anyOf", "oneOf", "prefixItems")
MAPS = ("properties", "patternProperties", "$defs")


class Walk:
    """Goes through all schemas inside one schema; what is below "if" and "not" only compares."""

    def __init__(self, schemas, address):
        self.schemas, self.address, self.problems, self.keys = schemas, address, [], 0

    def resolved(self, address, reference):
        document, pointer = urldefrag(urljoin(address, reference))
        schema = self.schemas[document]
        for step in filter(None, pointer.split("/")):
            schema = schema[step]
        return document, schema

    def description_of(self, schema):
        address = self.address
        while isinstance(schema, dict) and "description" not in schema and "$ref" in schema:
            address, schema = self.resolved(address, schema["$ref"])
        return schema.get("description", "") if isinstance(schema, dict) else ""

    def look(self, schema, place):
        if not isinstance(schema, dict):
            return
        if "$ref" in schema:
            try:
                self.resolved(self.address, schema["$ref"])
            except KeyError:
                self.problems.append(f"{place}: {schema['$ref']} leads nowhere")
        for key in BRANCHES:
            self.look(schema.get(key), f"{place}/{key}")
        for key in LISTS:
            for number, part in enumerate(schema.get(key, [])):
                self.look(part, f"{place}/{key}/{number}")
        for key in MAPS:
            for name, part in schema.get(key, {}).items():
                self.look(part, f"{place}/{key}/{name}")
                if key != "$defs":
                    self.keys += 1
                    if not self.description_of(part):
                        self.problems.append(f"{place}/{key}/{name}: is not described")


def problems_of(schemas, path, address):
    schema = schemas[address]
    validator_of(path)  # throws where it is none of the standard
    walk = Walk(schemas, address)
    walk.look(schema, path.name)
    missing = [f"{path.name}: has no {key}" for key in ("title", "description") if not schema.get(key)]
    return missing + walk.problems, walk.keys


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--schemas", type=pathlib.Path, required=True)
    folder = parser.parse_args().schemas

    schemas = schemas_of(folder)
    keys, problems = 0, []
    for address in schemas:
        path = folder / address.rpartition("/")[2]
        found, count = problems_of(schemas, path, address)
        problems += found
        keys += count
        if f'"$id": "{path.name}"' not in path.read_text(encoding="utf-8"):
            problems.append(f"{path.name}: its id is not its file name")
    if len(schemas) < 20 or keys < 500:
        problems.append(f"only {keys} keys in {len(schemas)} schemas found")
    print("\n".join(problems) or f"{keys} keys in {len(schemas)} schemas")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
