"""Every message of the sources is translated, and each translation fits its message."""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

TRANSLATIONS = "src/cli/translations/orvcad_zh.ts"
SOURCES = ["src/cli", "src/platform/dwgx", "src/platform/embedded"]
PLACE = re.compile(r"%(?:\d+|n)")
IDEOGRAPH = re.compile("[\u3400-\u9fff]")
# A name in capitals, an option or a word between quotes is the same in every language; "of" may be a comma elsewhere.
SAME_EVERYWHERE = re.compile(r'"[^"]*"|--?[a-z][a-z-]*|\b[A-Z]+\d?\b')


def taken_up(lupdate, root, translations):
    """Brings a file of translations up to the messages of the sources."""
    subprocess.run([lupdate, "-silent", "-no-obsolete", "-locations", "none", "-extensions", "cpp,h",
                    "-I", str(root / "src"), "-tr-function-alias", "tr+=help",
                    *[str(root / source) for source in SOURCES], "-ts", str(translations)], check=True)


def messages_in(path):
    """(context, message, its translation, empty where there is none) of each message."""
    return [(context.findtext("name"), message.findtext("source"), message.findtext("translation"))
            for context in xml.etree.ElementTree.parse(path).getroot().iter("context")
            for message in context.iter("message")]


def frame_of(text):
    """What the layout of a line depends on: blanks and line breaks around it, and breaks within it."""
    return (re.match(r"\s*", text).group(), re.search(r"\s*$", text).group(), text.count("\n"))


def fault_of(message, translation):
    """Why a translation does not fit; empty where it does."""
    if not translation:
        return "has no translation"
    if sorted(PLACE.findall(message)) != sorted(PLACE.findall(translation)):
        return "has other places than its translation"
    if frame_of(message) != frame_of(translation):
        return "has other blanks or line breaks around it than its translation"
    if re.search("[A-Za-z]{3}", SAME_EVERYWHERE.sub("", message)) and not IDEOGRAPH.search(translation):
        return "is not translated"
    return ""


def faults_of(messages):
    return [f'{context}: "{message}" {fault_of(message, translation)}'
            for context, message, translation in messages if fault_of(message, translation)]


def differences(committed, current):
    """What the file lacks, and what the sources no longer say."""
    lacking = [f'{context}: "{message}" is missing in {TRANSLATIONS}'
               for context, message in sorted(current - committed)]
    left = [f'{context}: "{message}" of {TRANSLATIONS} is said nowhere' for context, message in sorted(committed - current)]
    return lacking + left


def problems_of(root, lupdate):
    with tempfile.TemporaryDirectory() as directory:
        copy = pathlib.Path(directory) / "current.ts"
        shutil.copy(root / TRANSLATIONS, copy)
        taken_up(lupdate, root, copy)
        current = messages_in(copy)
    committed = messages_in(root / TRANSLATIONS)
    named = [{(context, message) for context, message, _ in messages} for messages in (committed, current)]
    return differences(*named) + faults_of(committed), len(committed)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--root", type=pathlib.Path, required=True, help="of the sources")
    parser.add_argument("--lupdate", required=True, help="the program that collects messages")
    parser.add_argument("--update", action="store_true", help="take new messages into the file, to be translated there")
    arguments = parser.parse_args()
    if arguments.update:
        taken_up(arguments.lupdate, arguments.root, arguments.root / TRANSLATIONS)
    problems, count = problems_of(arguments.root, arguments.lupdate)
    print("\n".join(problems) or f"all {count} messages are translated")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
