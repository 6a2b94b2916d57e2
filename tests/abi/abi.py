"""What programs that are linked with the libraries rely on: written down as a baseline, and compared with it.

Only what public headers declare counts. A function that is gone or has other arguments, a class of another size or with a
field at another place, a virtual function that came in between: programs that were linked before would break. What is added
breaks nothing and is not told."""

import argparse
import lzma
import os
import pathlib
import re
import subprocess
import sys
import tempfile

LIBRARIES = ("liborvcadmodeldata.so", "liborvcadplatform.so")
WORD = re.compile(r"[A-Za-z_]\w*")
SOURCE = re.compile(r" path='([^']+)'")
OPERATOR = re.compile(r"\boperator(\(\)|[-+*/%^&|~!=<>,\[\]]+)")


def output(*command):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True, text=True).stdout


def words_of(headers):
    """All words of the headers below a folder."""
    found = set()
    for header in headers.rglob("*.h"):
        found.update(WORD.findall(header.read_text(encoding="utf-8")))
    return found


def without_brackets(name):
    """A demangled name without what stands in its round and pointed brackets, and without what follows its arguments."""
    kept, depth = [], 0
    for character in OPERATOR.sub("operator", name.replace("(anonymous namespace)", "anonymous")):
        if character in "(<":
            if character == "(" and depth == 0:
                break
            depth += 1
        elif character in ")>":
            depth -= 1
        elif depth == 0:
            kept.append(character)
    return "".join(kept)


def is_declared(name, words):
    """Whether each part of a demangled name is a word of the public headers."""
    qualified = without_brackets(name).split(" ")[-1]
    return all(WORD.search(part) is None or WORD.search(part)[0] in words for part in qualified.split("::"))


def public_symbols(library, headers):
    """The mangled names of what a library defines and public headers declare."""
    words = words_of(headers)
    mangled = output("nm", "-D", "--defined-only", "--format=just-symbols", library).split()
    demangled = subprocess.run(["c++filt"], input="\n".join(mangled), check=True, capture_output=True,
                               text=True).stdout.splitlines()
    return sorted(symbol for symbol, name in zip(mangled, demangled) if is_declared(name, words))


def dump(library, headers, out):
    """Writes down what a library offers to programs that include the headers below a folder; it has its debug information."""
    with tempfile.NamedTemporaryFile("w", suffix=".symbols") as symbols:
        symbols.write("[abi_whitelist]\n" + "".join(f"  {name}\n" for name in public_symbols(library, headers)))
        symbols.flush()
        output("abidw", "--headers-dir", headers, "--drop-private-types", "--drop-undefined-syms", "--no-show-locs",
               "--no-corpus-path", "--no-comp-dir-path", "--no-elf-needed", "--no-parameter-names",
               "--kmi-whitelist", symbols.name, "--out-file", out, library)
    out.write_text(without_place(out.read_text(encoding="utf-8")), encoding="utf-8")


def without_place(text):
    """The description with the paths of sources told from the folder that all of them have in common."""
    paths = SOURCE.findall(text)
    place = os.path.commonpath([os.path.dirname(path) for path in paths]) if paths else ""
    return SOURCE.sub(lambda path: f" path='{os.path.relpath(path[1], place)}'", text)


def breaks(before, now):
    """What a program that was linked before would trip over; empty where there is nothing."""
    found = subprocess.run(["abidiff", "--no-added-syms", "--no-show-locs", before, now], capture_output=True, text=True)
    if found.returncode & 3:  # abidiff itself has failed
        raise RuntimeError(found.stdout + found.stderr)
    return found.stdout if found.returncode else ""


def keep(dumped, baseline):
    with lzma.open(baseline, "wb", preset=9) as file:
        file.write(dumped.read_bytes())
    print(f"{baseline.name}: kept, {baseline.stat().st_size // 1024} KB")
    return True


def compare(dumped, baseline):
    before = dumped.with_suffix(".before")
    before.write_bytes(lzma.decompress(baseline.read_bytes()))
    found = breaks(before, dumped)
    print(f"{baseline.name}: " + (f"programs that were linked before would break\n{found}" if found else "nothing breaks"))
    return not found


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("verb", choices=("compare", "keep"))
    parser.add_argument("--build", type=pathlib.Path, required=True, help="build tree of the preset abi")
    parser.add_argument("--baseline", type=pathlib.Path, required=True, help="folder of the baseline")
    arguments = parser.parse_args()
    work = arguments.build / "written"
    output("cmake", "--install", arguments.build, "--prefix", work / "prefix", "--component", "Development")
    step = {"compare": compare, "keep": keep}[arguments.verb]
    good = True
    for library in LIBRARIES:
        dumped = work / f"{library}.abi"
        dump(arguments.build / "lib" / library, work / "prefix" / "include", dumped)
        good = step(dumped, arguments.baseline / f"{library}.abi.xz") and good
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
