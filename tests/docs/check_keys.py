"""Every key of every document is explained on the page of its format: the keys that the key headers of the sources and
the properties of the JSON Schemas name stand there in quotes or between backticks."""

import argparse
import json
import pathlib
import re
import sys

# The pages that explain the keys of a schema, or of a header that lists them; of one without
# an entry, any page may.
PAGES = {
    "schemas/beams.schema.json": ["beams"],
    "schemas/cadi2.schema.json": ["cadi2"],
    "schemas/columns.schema.json": ["columns"],
    "schemas/drawing-elements.schema.json": ["drawing-set"],
    "schemas/drawing-floors.schema.json": ["drawing-set"],
    "schemas/drawing-locations.schema.json": ["drawing-set"],
    "schemas/drawing-parts.schema.json": ["drawing-set"],
    "schemas/drawing-scales.schema.json": ["drawing-set"],
    "schemas/drawing-set.schema.json": ["drawing-set", "floors"],
    "schemas/drawing-tables.schema.json": ["drawing-set"],
    "schemas/floor-sdc.schema.json": ["floor-sdc"],
    "schemas/floors.schema.json": ["floors"],
    "schemas/hbx-project.schema.json": ["hbx-project"],
    "schemas/layer-group.schema.json": ["drawing-set"],
    "schemas/opening-reply.schema.json": ["opening-reply"],
    "schemas/slab-io.schema.json": ["slab-model"],
    "schemas/slab-model.schema.json": ["slab-model"],
    "schemas/summaries.schema.json": ["cli", "slab-model"],
    "schemas/wall-reply.schema.json": ["wall-documents"],
    "src/IdentifyInputModel/Wall/WallKeys.h": ["wall-documents"],
    "src/beam/BeamKeys.h": ["beams", "beam-identify"],
    "src/column/ColumnKeys.h": ["columns"],
    "src/doorwindow/DoorWindowKeys.h": ["opening-reply"],
    "src/drawing/DrawingKeys.h": ["drawing-set", "floors", "floor-sdc"],
    "src/encoding/LayerFileKeys.h": ["drawing-set"],
    "src/platform/dwgx/Cadi2Format.h": ["cadi2"],
    "src/platform/embedded/ExchangeFormat.h": ["hbx-project"],
    "src/platform/embedded/HBXSpanKeys.h": ["hbx-project"],
    "src/platform/services/HBXPropertyNames.h": ["hbx-project"],
    "src/slab/SlabKeys.h": ["slab-model"],
}
# Literals of a key header that are no keys.
NO_KEYS = {"src/encoding/LayerFileKeys.h": {".json"}}
LITERAL = re.compile(r'= (?:"([^"\n]+)"_key|L"([^"\n]+)");')


def property_names(schema):
    """Keys of all "properties" of a schema, at whatever depth; a property may be called so itself."""
    names = set()
    if isinstance(schema, list):
        for entry in schema:
            names |= property_names(entry)
    elif isinstance(schema, dict):
        for word, member in schema.items():
            if word in ("properties", "$defs") and isinstance(member, dict):
                if word == "properties":
                    names |= set(member)
                for subschema in member.values():
                    names |= property_names(subschema)
            else:
                names |= property_names(member)
    return names


def keys_of(path, text):
    if path.endswith(".json"):
        return property_names(json.loads(text))
    return {name or wide for name, wide in LITERAL.findall(text)} - NO_KEYS.get(path, set())


def is_explained(key, page):
    number = r"\d+" if key.endswith("_") or key == "table" else ""  # a prefix stands with a number behind it
    return re.search(rf'["`]{re.escape(key)}{number}["`]', page) is not None


def unexplained(path, text, pages):
    """Keys that none of the pages, texts by name, explains."""
    where = " or ".join(PAGES.get(path, ["any page"]))
    return [f"{path}: {key} is not explained in {where}"
            for key in sorted(keys_of(path, text)) if not any(is_explained(key, page) for page in pages.values())]


def sources_of(root):
    """Schemas that there are, and headers that list keys."""
    paths = {str(path.relative_to(root)): path
             for pattern in ("schemas/*.json", "src/**/*.h") for path in root.glob(pattern)}
    return {name for name, path in paths.items() if name.endswith(".json") or LITERAL.search(path.read_text("utf-8"))}


def problems_of(root):
    paths = [root / "docs/cli.md", *(root / "docs/formats").glob("*.md")]
    pages = {path.stem: path.read_text(encoding="utf-8") for path in paths}
    problems = [f"{path}: is not there" for path in PAGES if not (root / path).exists()]
    for path in sorted(sources_of(root)):
        its_pages = {name: pages[name] for name in PAGES.get(path, pages)}
        problems += unexplained(path, (root / path).read_text(encoding="utf-8"), its_pages)
    return problems


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--root", type=pathlib.Path, required=True, help="of the sources")
    root = parser.parse_args().root
    problems = problems_of(root)
    print("\n".join(problems) or f"every key of {len(sources_of(root))} schemas and headers is explained")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
