"""Holds what `orvcad ... --json` prints to the schema of summaries: that of each example of the command's help, and of
further runs that leave something out, find something wrong or fail. A summary keeps to the part of the schema that is named
after its command, and would not with one key more, or with one less that the schema does not call missing."""

import argparse
import copy
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys

import samples
from faults import at, general, places, shortened, step
from validators import read, validator_of, validator_of_part

SCHEMA = samples.ROOT / "schemas/summaries.schema.json"
EXAMPLE = re.compile(r'\{"([a-z -]*)", "(orvcad (?:[^"\\]|\\.)*)"')
REMOVED = {4, 5, 15, 19, 25, 48, 1003}  # element types that the replies of the examples make in the site
DOCUMENTS = {
    "result.json": "tests/data/honesty/beam-result.json",
    "columns.json": "examples/precast-hall.column-results.json",
    "column-order.json": "examples/precast-hall.column-input.json",
    "column-check.json": "tests/data/columns/check-input.json",
    "drawing-set.json": "examples/precast-hall.drawing-set.json",
    "floor-sdc.json": "examples/masonry-block.floor-sdc.json",
}
WRITTEN = {
    "hoops.json": {"ColumnHoopBarPicInfos": [{"id": 4}, {"id": 4}]},
    "words.json": {"floorWordSetPar": []},
    "odd-floors.json": {"AreaName": "A", "Floors": [{"Name": "F1"}]},
    "odd-openings.json": {"eDoorWin": {"ElementsAndEdos": [{"elementName": "M1", "X": "5"}, 7]}},
    "odd-slabs.json": {"boards": [{"id": -1, "name": "", "odd": 1}]},
}
# Runs behind the examples: command and what is typed.
FURTHER = [
    ("project info", "orvcad project info building.hbxdb none.hbxdb"),
    ("floors show", "orvcad floors show odd-floors.json"),
    ("opening apply", "orvcad opening apply site.hbxdb openings.json"),
    ("opening apply", "orvcad opening apply site.hbxdb odd-openings.json --strict"),
    ("wall apply", "orvcad wall apply site.hbxdb --kind brick walls.json"),
    ("wall export", 'orvcad wall export building.hbxdb --kind force --format xml --floor "Level 1"'
                    " --drawing level-1.cadi2 -o walls.xml"),
    ("wall reply", "orvcad wall reply building.hbxdb --kind force"),
    ("slab export", 'orvcad slab export building.hbxdb --floor "Level 1" --drawing level-1.cadi2 -o io.json'),
    ("slab apply", 'orvcad slab apply site.hbxdb --floor "Level 1" slabs.json'),
    ("slab apply", 'orvcad slab apply site.hbxdb --floor "Level 1" odd-slabs.json'),
    ("beam export", "orvcad beam export building.hbxdb"),
    ("beam apply", "orvcad beam apply site.hbxdb beams.json"),
    ("beam seats apply", "orvcad beam seats apply site.hbxdb seats.json"),
    ("beam result", "orvcad beam result result.json columns.json"),
    ("column check", "orvcad column check column-order.json"),
    ("column check", "orvcad column check column-check.json"),
    ("column check", "orvcad column check hoops.json"),
    ("column check", "orvcad column check words.json"),
    ("drawing show", "orvcad drawing show level-1.cadi2 level-1.cadi2"),
    ("drawings words", "orvcad drawings words 屋面"),
    ("drawings words", "orvcad drawings words castle"),
    ("diff", "orvcad diff building.hbxdb building.hbxdb"),
    ("diff", "orvcad diff site.hbxdb building.hbxdb -o difference.json"),
    ("check", "orvcad check odd-openings.json odd-floors.json hoops.json none.json building.hbxdb"),
    ("manual", "orvcad manual pages"),
    ("error", "orvcad project"),
    ("error", "orvcad opening apply site.hbxdb"),
    ("error", "orvcad project info none.hbxdb"),
    ("error", "orvcad opening apply site.hbxdb columns.json"),
]
# Keys that may be missing, by the part of the schema.
MISSING = {
    "error": {"file", "place", "reason"},
    "files": {"file", "place", "reason"},
    "check": {"value", "expected", "meant"},
    "slab-export": {"drawing", *read(samples.ROOT / "schemas/slab-model.schema.json")["properties"]},
    "slab-apply": {"ids"},
    "draw": {"same"},
    "diff": {"idBefore", "idAfter", "before", "after", "output"},
}
APART = {"before", "after", "summary"}  # values of the user's own, and what is held to a part of its own


def examples():
    text = (samples.ROOT / "src/cli/Examples.cpp").read_text(encoding="utf-8")
    rows = [(command, typed.replace('\\"', '"')) for command, typed in EXAMPLE.findall(text)]
    return [(command or command_of(typed, {name for name, _ in rows}), typed) for command, typed in rows]


def command_of(typed, commands):
    """Of a line that is an example of the program as a whole."""
    return max((name for name in commands if name and typed.startswith(f"orvcad {name}")), key=len)


def prepare(program, folder):
    """What the examples start from."""
    building = read(samples.BUILDINGS / "masonry-block.json")
    site = copy.deepcopy(building)
    for region in site["regions"]:
        for floor in region["floors"]:
            floor["elements"] = [element for element in floor["elements"] if element["type"] not in REMOVED]
    for name, document in {"building.json": building, "site.json": site, **WRITTEN}.items():
        (folder / name).write_text(json.dumps(document), encoding="utf-8")
    for name, source in DOCUMENTS.items():
        shutil.copyfile(samples.ROOT / source, folder / name)
    subprocess.run([program, "project", "import", "site.json", "-o", "site.hbxdb"], cwd=folder, check=True,
                   capture_output=True)


def summary_of(program, folder, typed):
    """What a line prints as a shell runs it."""
    environment = {**os.environ, "PATH": f"{program.parent}:{os.environ['PATH']}"}
    result = subprocess.run(f"{typed} --json", shell=True, cwd=folder, env=environment, capture_output=True, check=False)
    # The summary makes way for a result on standard output, and an error stands where messages do.
    return json.loads(result.stderr if result.stderr.strip().startswith(b"{") else result.stdout)


def parts_of(command, summary):
    """Parts of the schema, and what has to keep to each: of several files, each one alone as well."""
    part = command.replace(" ", "-")
    if "exitCode" not in summary or "error" in summary:
        return [(part, summary)]
    return [("files", summary)] + [(part, file["summary"]) for file in summary["files"] if "summary" in file]


def validators():
    """Of all parts that are summaries, by their names."""
    names = {reference["$ref"].rpartition("/")[2] for reference in read(SCHEMA)["anyOf"]}
    return {name: validator_of_part(SCHEMA, name) for name in names}


def variants(summary):
    """The summary with one key more or less in one of its objects: what was done, where, and the other summary."""
    top = [summary]
    for pointer, path in places(top):
        if not isinstance(at(top, path), dict) or APART & set(path):
            continue
        for key in [None, *at(top, path)]:
            other = copy.deepcopy(top)
            if key is None:
                at(other, path)["odd"] = 1
            else:
                del at(other, path)[key]
            yield (general(path), key), pointer + step(key or "odd"), other[0]


def looseness(part, validator, summary, seen):
    """Where a summary might have a key more or less. Each kind of place is tried once."""
    problems = []
    for kind, pointer, other in variants(shortened(summary)):
        key = kind[1]
        if (part, kind) in seen or key in MISSING.get(part, ()):
            continue
        seen.add((part, kind))
        if validator.is_valid(other):
            problems.append(f"{part}: {pointer}: may be {'missing' if key else 'there'}")
    return problems


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True)
    program = pathlib.Path(parser.parse_args().program).resolve()

    known, seen, problems, found = validators(), set(), [], set()
    whole = validator_of(SCHEMA)
    command, directory = samples.command_in_folder(program)
    with directory:
        prepare(program, command.folder)
        rows = examples()
        for name, typed in rows + FURTHER:
            for part, summary in parts_of(name, summary_of(program, command.folder, typed)):
                errors = [f"{typed}: {error.json_path}: {error.message[:200]}"
                          for error in known[part].iter_errors(summary)]
                problems += errors or looseness(part, known[part], summary, seen)
                found.add(part)
        if not whole.is_valid(summary):
            problems.append("the last summary is none by the schema as a whole")
    problems += [f"no summary of {part}" for part in sorted(set(known) - found)]
    if len(rows) < 40:
        problems.append(f"only {len(rows)} examples found")
    print("\n".join(problems[:100]) or f"{len(rows) + len(FURTHER)} runs, {len(seen)} kinds of keys")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
