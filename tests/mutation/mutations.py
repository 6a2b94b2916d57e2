"""The small changes that a test ought to notice, and where in a C++ source they can be made.

The source is cut into tokens, not parsed. The rest is told from the formatting, which ./dev lint keeps: an operator of
two operands has blanks on both sides, a bracket of a template, a pointer or a reference has not. What is no code is
left alone: comments, texts, characters, preprocessor lines, static_assert, the inside of template brackets."""

import dataclasses
import re

TOKEN = re.compile(r"""
    (?P<skip>\s+|//[^\n]*|/\*.*?\*/|\#(?:\\.|[^\n\\])*)
  | (?P<text>(?:u8|[uUL])?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"
      | (?:u8|[uUL])?(?:"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])*')(?:_\w+)?)
  | (?P<number>(?:0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d*)?(?:[eE][+-]?\d+)?|\.\d+(?:[eE][+-]?\d+)?)[a-zA-Z_]*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

SWAPS = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
    "&&": ("||",), "||": ("&&",), "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "+=": ("-=",), "-=": ("+=",),
}
WORD_SWAPS = {"true": "false", "false": "true", "continue": "break"}
OPENING, CLOSING = {"(": ")", "[": "]", "{": "}"}, set(")]}")
# Words that no call starts with.
STATEMENT_WORDS = set("""return if for while do switch case default else delete throw using typedef static const
    constexpr struct class enum namespace template goto break continue try catch static_assert
    auto""".split())


@dataclasses.dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


@dataclasses.dataclass(frozen=True)
class Mutant:
    """The text from start to end is replaced; nothing is replaced where they are the same."""
    kind: str
    start: int
    end: int
    replacement: str

    def applied(self, source):
        return source[:self.start] + self.replacement + source[self.end:]


def tokens_of(source):
    """Tokens in order, without blanks, comments and preprocessor lines."""
    found = (Token(match.lastgroup, match.group(), match.start(), match.end()) for match in TOKEN.finditer(source))
    return [token if token.kind != "mark" else dataclasses.replace(token, kind="text")
            for token in found if token.kind != "skip"]


def partners_of(tokens):
    """Index of the closing bracket for each opening one, and the other way round."""
    partners, open_ones = {}, []
    for index, token in enumerate(tokens):
        if token.kind != "sign":
            continue
        if token.text in OPENING:
            open_ones.append(index)
        elif token.text in CLOSING and open_ones:
            opening = open_ones.pop()
            partners[opening], partners[index] = index, opening
    return partners


def template_brackets(source, tokens):
    """Indexes of all tokens from the "<" of a template to its ">"."""
    inside, open_ones = set(), []
    for index, token in enumerate(tokens):
        before = tokens[index - 1] if index else None
        if token.text == "<" and before and (before.text == "template" or before.end == token.start
                                             and before.kind == "word" and before.text != "operator"):
            open_ones.append(index)
        elif token.text in (">", ">>") and open_ones and source[token.start - 1] != " ":
            for _ in token.text[:len(open_ones)]:
                inside.update(range(open_ones.pop(), index + 1))
        elif token.text in (";", "{") and open_ones:
            open_ones.clear()
    return inside


def static_asserts(tokens, partners):
    inside = set()
    for index, token in enumerate(tokens):
        if token.text == "static_assert":
            inside.update(range(index, partners.get(index + 1, index) + 1))
    return inside


def is_spaced(source, token):
    """An operator of two operands, and not a sign, a pointer, a reference or a bracket."""
    return source[token.start - 1].isspace() and source[token.end:token.end + 1].isspace()


def changed_numbers(text):
    match = re.fullmatch(r"(0[xX][0-9a-fA-F']+|[\d'.]+(?:[eE][+-]?\d+)?)(\w*)", text)
    if not match:
        return ()
    digits, suffix = match.group(1).replace("'", ""), match.group(2)
    if re.fullmatch(r"0[xX].*|\d+", digits):
        value = int(digits, 16 if digits[:2] in ("0x", "0X") else 8 if re.fullmatch(r"0\d+", digits) else 10)
        return ("1" + suffix,) if value == 0 else (f"{value + 1}{suffix}", f"{value - 1}{suffix}")
    value = float(digits)
    return (f"1.0{suffix}",) if value == 0 else (f"{value + 1!r}{suffix}", f"{value - 1!r}{suffix}")


class Source:
    """Finds the mutants of one source, each place with all that can be put there."""

    def __init__(self, text):
        self.text = text
        self.tokens = tokens_of(text)
        self.partners = partners_of(self.tokens)
        self.closed = template_brackets(text, self.tokens) | static_asserts(self.tokens, self.partners)

    def places(self):
        """Lists of mutants, one list for each place, in the order of the text."""
        found = []
        for index, token in enumerate(self.tokens):
            if index in self.closed or not index or self.tokens[index - 1].text == "operator":
                continue
            here = (self.swapped(token), self.negated(index), self.dropped(index), self.left(index))
            found += [place for place in here if place]
        return found

    def swapped(self, token):
        """Another operator, word or number."""
        if token.kind == "number":
            kind, texts = "number", changed_numbers(token.text)
        elif token.kind == "word":
            kind, texts = token.text, (WORD_SWAPS[token.text],) if token.text in WORD_SWAPS else ()
        elif token.text == "!":
            kind, texts = "drop !", ("",)
        else:
            kind, texts = token.text, SWAPS.get(token.text, ()) if is_spaced(self.text, token) else ()
        return [Mutant(kind, token.start, token.end, text) for text in texts]

    def negated(self, index):
        """The condition of an if or a while, with "!" in front, unless dropping a "!" does the same. What declares
        something there is let be."""
        if self.tokens[index].text not in ("if", "while") or index + 1 not in self.partners:
            return []
        first, end = index + 2, self.partners[index + 1]
        semicolons = [i for i in range(first, end) if self.tokens[i].text == ";"]
        first = semicolons[-1] + 1 if semicolons else first
        texts = {self.tokens[i].text for i in range(first, end)}
        just_a_not = first < end and self.tokens[first].text == "!" and not texts & {"&&", "||"}
        if first >= end or "=" in texts or just_a_not:
            return []
        start, stop = self.tokens[first].start, self.tokens[end - 1].end
        return [Mutant("negate", start, stop, f"!({self.text[start:stop]})")]

    def dropped(self, index):
        """A statement that is a call; `Type name(argument);` is a declaration."""
        end = self.end_of_call(index)
        return [Mutant("drop call", self.tokens[index].start, self.tokens[end].start, "")] if end else []

    def end_of_call(self, index):
        """The semicolon behind it, or nothing."""
        tokens = self.tokens
        if tokens[index].kind != "word" or tokens[index].text in STATEMENT_WORDS or not self.starts_statement(index):
            return None
        at, called = index, False
        while at < len(tokens) and tokens[at].text != ";":
            if at in self.closed:
                pass
            elif tokens[at].text in ("(", "["):
                called = tokens[at].text == "("
                at = self.partners.get(at, at)
            elif tokens[at].kind == "word" and (at == index or tokens[at - 1].text in ("::", ".", "->")):
                called = False
            elif tokens[at].text not in ("::", ".", "->"):
                return None
            at += 1
        return at if called and at < len(tokens) else None

    def starts_statement(self, index):
        before = self.tokens[index - 1]
        if before.text in (";", "{", "}", "else"):
            return True
        opening = self.partners.get(index - 1) if before.text == ")" else None
        return opening is not None and self.tokens[opening - 1].text in ("if", "for", "while")

    def left(self, index):
        """A function of two statements or more that returns before the first."""
        if self.tokens[index].text != "{":
            return []
        body = self.tokens[index:self.partners.get(index, index)]
        if sum(token.text == ";" for token in body) < 2:
            return []
        head = self.head_of_function(index)
        if not head:
            return []
        names = [token.text for token in head]
        returns = "return {};" if "void" not in names and not self.is_constructor(head) else "return;"
        return [Mutant("return early", self.tokens[index].end, self.tokens[index].end, " " + returns)]

    def head_of_function(self, index):
        """What stands in front of the arguments of the function whose body opens here, or nothing."""
        at = index - 1
        while self.tokens[at].text in ("const", "noexcept", "override"):
            at -= 1
        if self.tokens[at].text != ")" or at not in self.partners:
            return []
        end = self.partners[at]
        at = end - 1
        while at >= 0 and (at in self.closed or self.tokens[at].kind == "word"
                           or self.tokens[at].text in ("::", "*", "&", "~")):
            at -= 1
        head = self.tokens[at + 1:end]
        at_scope = at < 0 or self.tokens[at].text in (";", "{", "}")
        is_block = not head or any(token.text in ("if", "for", "while", "switch", "catch", "else") for token in head)
        return head if at_scope and not is_block else []

    @staticmethod
    def is_constructor(head):
        names = [token.text for token in head]
        return "~" in names or len(names) == 1 or len(names) >= 3 and names[-1] == names[-3] and names[-2] == "::"


def places_of(source):
    return Source(source).places()
