"""Makes one fault in a document, at a place that is known: the JSON pointer that a message has to point at. Everything is
drawn from a seeded generator, so that a run can be had again."""

import copy
import json
import re

GEOMETRY = re.compile(r"^(LINESTRING|CIRCULARSTRING|POLYGON|CURVEPOLYGON)\(|^-?[0-9.e+]+(,-?[0-9.e+-]+){2,4}$|^(-?[0-9.e+]+,"
                      r"-?[0-9.e+-]+(,-?[0-9.e+-]+)?;){3,}$")
# Objects whose keys are names of the user's own.
FREE = re.compile(r"^(/options|/drawing/ext|/ext|/CADOptions|/ORVCADWindoorDataInputModel/\d+|/Cad(Line|Text)EdoDataInfo/key_\d+"
                  r"|/layers/\d+/(lines|texts)/\d+/ext|(/parseDrawing)?/table\d+/(data|concrete)(/[^/]*)?)$")


class Fault:
    """A faulty document as text, what was done, and where."""

    def __init__(self, name, pointer, text, line=None):
        self.name, self.pointer, self.text, self.line = name, pointer, text, line


def step(key):
    return "/" + str(key).replace("~", "~0").replace("/", "~1")


def places(value, pointer="", path=()):
    """Pointer and path of every value below a value."""
    members = value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ()
    for key, member in members:
        yield pointer + step(key), (*path, key)
        yield from places(member, pointer + step(key), (*path, key))


def holder(document, path):
    for key in path[:-1]:
        document = document[key]
    return document


def at(document, path):
    return holder(document, path)[path[-1]]


def text_of(document):
    return json.dumps(document, ensure_ascii=False, indent=1)


SHORT = 2  # entries of a list that are kept: what is said of one is said of all


def shortened(value, is_kept=lambda key: True):
    """A document without the bulk of its lists, and of its objects the keys that are kept."""
    if isinstance(value, list) and any(isinstance(entry, (dict, list)) for entry in value):
        return [shortened(entry, is_kept) for entry in value[:SHORT]]
    if isinstance(value, dict):
        return {key: shortened(member, is_kept) for key, member in value.items() if is_kept(key)}
    return value


def general(path):
    """A place without the numbers of entries: what a schema says of one, it says of all."""
    return tuple("*" if isinstance(key, int) else re.sub(r"_\d+$", "_#", key) for key in path)


class Mutator:
    def __init__(self, random, is_refused):
        """is_refused: of a place and a kind of change, whether the schema refuses a document after it."""
        self.random, self.is_refused = random, is_refused

    def faults_of(self, kind, document):
        """Endless faults of one document, every kind in turn."""
        found = list(places(document))
        makers = (self.removed, self.misspelt, self.of_other_type, self.out_of_range, self.misspelt_value,
                  self.broken_geometry, self.repeated, self.broken_text)
        while found:
            for make in makers:
                for _ in range(20):
                    pointer, path = self.random.choice(found)
                    fault = make(kind, document, pointer, path)
                    if fault:
                        yield fault
                        break

    def changed(self, document, path, value):
        other = copy.deepcopy(document)
        holder(other, path)[path[-1]] = value
        return other

    def refused_after(self, kind, name, document, pointer, path, value):
        other = self.changed(document, path, value)
        if self.is_refused(kind, (name, general(path), json.dumps(value, sort_keys=True)), other):
            return Fault(name, pointer, text_of(other))
        return None

    def removed(self, kind, document, pointer, path):
        if not isinstance(holder(document, path), dict) or FREE.match(pointer.rpartition("/")[0]):
            return None
        other = copy.deepcopy(document)
        del holder(other, path)[path[-1]]
        if not self.is_refused(kind, ("removed", general(path), ""), other):
            return None
        return Fault("a required key removed", pointer, text_of(other))

    def misspelling(self, word):
        place = self.random.randrange(len(word) - 1)
        forms = (word[:place] + word[place + 1] + word[place] + word[place + 2:],
                 word[:place] + word[place + 1:], word[:place] + "x" + word[place:])
        return self.random.choice(forms)

    def misspelt(self, kind, document, pointer, path):
        parent = pointer.rpartition("/")[0]
        record = holder(document, path)
        if not isinstance(record, dict) or len(str(path[-1])) < 4 or FREE.match(parent) or str(path[-1])[-1].isdigit():
            return None
        word = self.misspelling(path[-1])
        is_type = re.match("et[A-Z]", word) and kind == "layer-file"  # of an element type, whatever it is
        if word in record or word == path[-1] or is_type:
            return None
        other = copy.deepcopy(document)
        members = holder(other, path)
        items = [(word if key == path[-1] else key, value) for key, value in members.items()]
        members.clear()
        members.update(items)
        return Fault("a key misspelt", parent + step(word), text_of(other))

    def of_other_type(self, kind, document, pointer, path):
        value = at(document, path)
        other = self.random.choice([[1], {"odd": 1}, True, "five", 5.5, None])
        if isinstance(value, bool) == isinstance(other, bool) and isinstance(other, type(value)):
            return None
        return self.refused_after(kind, "a value of another type", document, pointer, path, other)

    def out_of_range(self, kind, document, pointer, path):
        value = at(document, path)
        if isinstance(value, bool) or not isinstance(value, (int, float)):
            return None
        other = self.random.choice([-5, 1e12, 3000000000, 0, 0.5])
        return self.refused_after(kind, "a number out of range", document, pointer, path, other)

    def misspelt_value(self, kind, document, pointer, path):
        value = at(document, path)
        if not isinstance(value, str) or path[-1] not in ("kind", "format", "eSeatIDType"):
            return None
        return self.refused_after(kind, "an enumerated value misspelt", document, pointer, path, self.misspelling(value))

    def broken_geometry(self, kind, document, pointer, path):
        value = at(document, path)
        if not isinstance(value, str) or not GEOMETRY.match(value):
            return None
        forms = [re.sub(r"[0-9]", "x", value, count=1), value + ",", value.replace(",", "", 1) + "?"]
        if value[0].isalpha():
            forms += [value[:-1], "X" + value]
        return self.refused_after(kind, "a geometry text broken", document, pointer, path, self.random.choice(forms))

    def repeated(self, kind, document, pointer, path):
        if not isinstance(holder(document, path), dict):
            return None
        mark = "\ue000"
        other = copy.deepcopy(document)
        members = holder(other, path)
        value = members[path[-1]]
        members[mark] = value
        text = text_of(other).replace(json.dumps(mark, ensure_ascii=False), json.dumps(path[-1], ensure_ascii=False))
        return Fault("a key twice", pointer, text)

    def broken_text(self, kind, document, pointer, path):
        lines = text_of(document).split("\n")
        number = self.random.randrange(1, len(lines) - 1)
        line = lines[number]
        forms = [line.replace(":", " ", 1) if line.lstrip().startswith('"') and '": ' in line else None,
                 line[:-1] if line.endswith(",") else None, line + "]", line.replace('"', "", 1) if '"' in line else None,
                 line + "\x01", line.replace('"', '"\udcff', 1) if '": "' in line else None]
        form = self.random.choice([one for one in forms if one is not None])
        lines[number] = form
        return Fault("a broken text", None, "\n".join(lines), number + 1)
