"""Code blocks of Markdown pages."""

import dataclasses
import pathlib
import re

FENCE = re.compile(r"^( *)```(.*)$")


@dataclasses.dataclass(frozen=True)
class Block:
    page: str  # path from the root
    line: int  # of its opening fence, from 1
    info: tuple  # words behind the fence: the language first
    text: str

    @property
    def language(self):
        return self.info[0] if self.info else ""

    @property
    def place(self):
        return f"{self.page}:{self.line}"


def blocks_of(page, text):
    """The blocks of a page in their order. Those in a list are moved to the left by the place of their fence."""
    blocks, opening = [], None
    for number, line in enumerate(text.splitlines(), 1):
        fence = FENCE.match(line)
        if opening is None and fence:
            opening, indent, info, lines = number, len(fence[1]), tuple(fence[2].split()), []
        elif fence and not fence[2]:
            blocks.append(Block(page, opening, info, "".join(f"{line}\n" for line in lines)))
            opening = None
        elif opening is not None:
            lines.append(line[min(indent, len(line) - len(line.lstrip())):])
    if opening is not None:
        raise ValueError(f"{page}:{opening}: the block has no end")
    return blocks


def pages_of(root):
    outside = [root / name for name in ("README.md", "CONTRIBUTING.md", "examples/README.md")]
    return sorted([*outside, *root.glob("docs/**/*.md")])


def read_blocks(root: pathlib.Path):
    """Blocks of all pages, page by page."""
    names = {str(path.relative_to(root)): path for path in pages_of(root)}
    return {name: blocks_of(name, path.read_text(encoding="utf-8")) for name, path in names.items()}
