"""Commands on a page: shell scripts, and transcripts that show what each command prints."""

import os
import re
import shlex
import subprocess


def commands_of(text):
    """Pairs of a command, behind "$ " and its further lines behind "> ", and the lines that it is said to print."""
    transcript = []
    for line in text.splitlines():
        if line.startswith("$ "):
            transcript.append((line[2:], []))
        elif transcript and line.startswith("> ") and not transcript[-1][1]:
            transcript[-1] = (f"{transcript[-1][0]}\n{line[2:]}", [])
        elif transcript:
            transcript[-1][1].append(line)
        else:
            raise ValueError(f'there is no command above "{line}"')
    return transcript


def pattern_of(lines):
    """What output must match: "…" alone in a line is any number of lines, and within a line any text."""
    parts = [r"(?:.*\n)*?" if line == "…" else ".*".join(map(re.escape, line.split("…"))) + r"\n" for line in lines]
    return re.compile("".join(parts))


def shell(script, folder, path, options=("-c",)):
    environment = {**os.environ, "PATH": f"{path}{os.pathsep}{os.environ['PATH']}", "LC_ALL": "C.UTF-8", "LANGUAGE": "",
                   "TMPDIR": str(folder)}
    return subprocess.run(["sh", *options, script], cwd=folder, env=environment, stdin=subprocess.DEVNULL, timeout=60,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8")


def run_script(text, folder, path, verbs):
    """Problems of a shell block. Lines that begin with ./dev are not run: their verb must be one that ./dev has."""
    own = [line for line in text.splitlines() if line.startswith("./dev ")]
    unknown = [line for line in own if shlex.split(line, comments=True)[1] not in verbs]
    problems = [f"./dev has no such verb: {line}" for line in unknown]
    rest = "\n".join(line for line in text.splitlines() if line not in own)
    result = shell(rest, folder, path, ("-euc",))
    if result.returncode != 0:
        problems.append(f"ends with exit code {result.returncode}:\n{result.stdout}")
    return problems


def run_transcript(text, folder, path):
    """Problems of a transcript: a command that prints something else, or a failure that is not shown by "echo $?"."""
    problems, code = [], 0
    transcript = commands_of(text)
    for place, (command, expected) in enumerate(transcript):
        result = shell(f"(exit {code})\n{command}", folder, path)
        code = result.returncode
        output = result.stdout if not result.stdout or result.stdout.endswith("\n") else result.stdout + "\n"
        if not pattern_of(expected).fullmatch(output):
            problems.append(f"{command}\nprints\n{output}and not\n" + "\n".join(expected))
        following = transcript[place + 1][0] if place + 1 < len(transcript) else ""
        if code != 0 and following != "echo $?":
            problems.append(f'{command}\nends with exit code {code}, and no "echo $?" behind it tells')
    return problems
