"""Validators of the published schemas, which refer to each other by their file names."""

import functools
import json

import jsonschema

try:
    import referencing
except ImportError:  # packages before 4.18 have a resolver of their own
    referencing = None

BASE = "https://schemas.invalid/"  # where the schemas would be published: references need whole addresses


def read(path):
    return json.loads(path.read_text(encoding="utf-8"))


@functools.lru_cache(maxsize=None)
def schemas_of(folder):
    """All schemas of a folder by their addresses, which end in their file names."""
    addresses = {BASE + path.name: read(path) for path in sorted(folder.glob("*.schema.json"))}
    return {address: {**schema, "$id": address} for address, schema in addresses.items()}


def references(schema, schemas):
    """What tells a validator of the other schemas."""
    if referencing is None:
        return {"resolver": jsonschema.RefResolver(schema["$id"], schema, store=schemas)}
    resources = [(address, referencing.Resource.from_contents(other)) for address, other in schemas.items()]
    return {"registry": referencing.Registry().with_resources(resources)}


def validator_of(path):
    """Of the schema in a file, which may refer to those beside it."""
    schemas = schemas_of(path.parent)
    schema = schemas[BASE + path.name]
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema, **references(schema, schemas))


def validator_of_part(path, part):
    """Of one of the "$defs" of the schema in a file."""
    schemas = schemas_of(path.parent)
    schema = {"$id": BASE + "part", "$ref": f"{BASE}{path.name}#/$defs/{part}"}
    return jsonschema.Draft202012Validator(schema, **references(schema, schemas))
