"""Makes documents with one fault each out of whatever the command writes and reads, and holds `orvcad check` to them:
at least 98 in 100 give exactly one message, and it points at the fault. A part of them is held against another
implementation of JSON Schema: both have to call the same documents valid."""

import argparse
import collections
import json
import random
import sys

import faults
import samples
from validators import validator_of

def is_among_first(key):
    """Of keys with a number behind them, those with a small one."""
    number = key.rpartition("_")[2]
    return not number.isdigit() or int(number) < faults.SHORT


def one_floor(building):
    """A building keeps whole what stands on its first floor, where one thing names the other."""
    region = building["regions"][0]
    return {**building, "regions": [{**region, "floors": region["floors"][:1]}]}


def documents(program):
    command, folder = samples.command_in_folder(program)
    with folder:
        found = list(samples.of_files())
        found += samples.of_building(command, samples.BUILDINGS / "made-building.json", 2)
    short = [(kind, one_floor(document) if kind == "hbx-project" else faults.shortened(document, is_among_first)) for kind, document in found]
    return [(kind, document) for kind, document in short if document]


class Refusals:
    """What schemas refuse, asked once for each place."""

    def __init__(self, schemas):
        self.schemas, self.known = schemas, {}

    def validator(self, kind):
        return validator_of(self.schemas / f"{kind}.schema.json")

    def __call__(self, kind, change, document):
        key = (kind, change)
        if key not in self.known:
            self.known[key] = not self.validator(kind).is_valid(document)
        return self.known[key]


def make(program, schemas, count, seed):
    """Kind and fault of so many faulty documents, of each document as many."""
    mutator = faults.Mutator(random.Random(seed), Refusals(schemas))
    sources = [(kind, mutator.faults_of(kind, document)) for kind, document in documents(program)]
    made = []
    while len(made) < count:
        made += [(kind, next(source)) for kind, source in sources]
    return made[:count]


def verdicts(program, made):
    """What the command says of each, by few runs of it."""
    command, folder = samples.command_in_folder(program)
    found = {}
    with folder:
        by_kind = collections.defaultdict(list)
        for number, (kind, fault) in enumerate(made):
            name = f"{number}.json"
            (command.folder / name).write_text(fault.text, encoding="utf-8", errors="surrogateescape")
            by_kind[kind].append(name)
        for kind, names in by_kind.items():
            result = json.loads(samples.checked(command, kind, names))
            found.update({int(file["file"].partition(".")[0]): file for file in result["files"]})
    return [found[number] for number in range(len(made))]


def why_not(fault, verdict):
    """Why a verdict is not one message that points at the fault; empty when it is."""
    told = verdict["faults"] + verdict["ignored"] + verdict["dropped"]
    if len(told) != 1:
        return f"{len(told)} messages: " + "; ".join(f"{one['pointer']}: {one['message']}" for one in told[:4])
    if fault.line is not None:
        return "" if abs(told[0]["line"] - fault.line) <= 1 else f"line {told[0]['line']}, not {fault.line}"
    return "" if told[0]["pointer"] == fault.pointer else f"{told[0]['pointer']}: {told[0]['message']}"


BEYOND_SCHEMAS = ("text", "geometry", "reader")  # rules that no schema states


def disagreement(schemas, kind, fault, verdict):
    """Where another implementation calls valid what the command does not, or the other way; empty where they agree."""
    if any(one["rule"] in BEYOND_SCHEMAS for one in verdict["faults"]):
        return ""
    is_valid = validator_of(schemas / f"{kind}.schema.json").is_valid(json.loads(fault.text))
    return "" if is_valid == (not verdict["faults"]) else f"valid by the standard: {is_valid}, faults: {verdict['faults']}"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True)
    parser.add_argument("--count", type=int, default=2000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--agree", type=int, default=0, help="of how many another implementation is asked as well")
    parser.add_argument("--show", action="store_true", help="show all that are missed")
    arguments = parser.parse_args()
    schemas = samples.ROOT / "schemas"

    made = make(arguments.program, schemas, arguments.count, arguments.seed)
    found = verdicts(arguments.program, made)
    missed = [(kind, fault, why) for (kind, fault), verdict in zip(made, found) if (why := why_not(fault, verdict))]
    apart = [f"{kind}: {fault.name} at {fault.pointer}: {why}"
             for (kind, fault), verdict in list(zip(made, found))[:arguments.agree]
             if (why := disagreement(schemas, kind, fault, verdict))]
    for kind, fault, why in missed if arguments.show else missed[:40]:
        print(f"{kind}: {fault.name} at {fault.pointer or fault.line}: {why}"[:400])
    print("\n".join(apart))
    names = collections.Counter(fault.name for _, fault in made)
    lost = collections.Counter(fault.name for _, fault, _ in missed)
    print("\n".join(f"{name}: {names[name] - lost[name]} of {names[name]}" for name in sorted(names)))
    hits = len(made) - len(missed)
    print(f"{hits} of {len(made)} with one message at the fault; {len(apart)} verdicts differ from the standard's")
    return 0 if hits * 100 >= 98 * len(made) and len(names) == 8 and not apart else 1


if __name__ == "__main__":
    sys.exit(main())
