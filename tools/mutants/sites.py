# SPDX-License-Identifier: Apache-2.0
"""Finds what can be changed in a source file: one operator, constant, call or order of calls."""

import dataclasses
import re

from clang.cindex import CursorKind, Index, TranslationUnit

OPERATORS = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&", "<<": ">>", ">>": "<<",
    "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "|=": "&=", "&=": "|=",
}
EMPTY = ("hideEvent", "moveEvent", "paintEvent", "resizeEvent", "showEvent")
BINARY = (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR)
BODIES = {  # the place of the body among the parts of a statement that may go without braces
    CursorKind.IF_STMT: slice(1, None),
    CursorKind.FOR_STMT: slice(-1, None),
    CursorKind.WHILE_STMT: slice(-1, None),
    CursorKind.CXX_FOR_RANGE_STMT: slice(-1, None),
    CursorKind.DO_STMT: slice(0, 1),
    CursorKind.CASE_STMT: slice(-1, None),
    CursorKind.DEFAULT_STMT: slice(-1, None),
    CursorKind.COMPOUND_STMT: slice(None),
}


@dataclasses.dataclass(frozen=True, order=True)
class Site:
    """A piece of a file, and what would stand there instead."""
    path: str
    start: int  # offsets in the file
    end: int
    kind: str  # operator, constant, deletion, order
    mutated: str
    line: int
    is_statement: bool

    def place(self, source):
        """The file and the line's text."""
        text = source.split("\n")[self.line - 1].strip()
        return f"{self.path}: {text}"

    def change(self, source):
        """What is changed, wherever in the file it stands."""
        shorten = lambda text: re.sub(r"\s+", " ", text)[:90]
        after = shorten(self.mutated) if self.mutated else "(nothing)"
        return f"{self.kind}: {shorten(source[self.start:self.end])} -> {after}"

    def describe(self, source):
        """One line that says what is changed, and where."""
        return f"{self.path}:{self.line} {self.change(source)}"


def constant(text):
    """What stands instead of a literal; None for one that is left alone."""
    if text in ("true", "false"):
        return "false" if text == "true" else "true"
    if re.fullmatch(r"\d+[uUlL]*", text):
        digits = re.match(r"\d+", text)[0]
        return str(int(digits) + 1) + text[len(digits):]
    if match := re.fullmatch(r"(\d+\.\d*|\d*\.\d+)([fF]?)", text):
        return f"{float(match[1]) + 1}{match[2]}"
    return None


def call(cursor):
    """The object and the name of a call that is a statement; None for anything else."""
    while cursor.kind == CursorKind.UNEXPOSED_EXPR:
        cursor = next(cursor.get_children())
    if cursor.kind != CursorKind.CALL_EXPR or cursor.spelling.startswith("operator"):
        return None
    tokens = [token.spelling for token in cursor.get_tokens()]
    return tokens[:tokens.index("(")][:-1], cursor.spelling


def does_nothing(cursor):
    """Whether it calls what does nothing in Qt: the handlers of a bare widget for these events."""
    return (called := call(cursor)) and called[0] == ["QWidget", "::"] and called[1] in EMPTY


def matters(first, second):
    """Whether the order of two statements may: they call, not just two setters of one object, and
    none only asks for a paint, which comes later."""
    if not (one := call(first)) or not (other := call(second)):
        return False
    if "update" in (one[1], other[1]):
        return False
    return one[0] != other[0] or not (one[1].startswith("set") and other[1].startswith("set"))


class Finder:
    """Collects the sites of one file from its syntax tree."""

    def __init__(self, path, source):
        self.path, self.source, self.sites = path, source, set()

    def add(self, start, end, kind, mutated, is_statement=False):
        line = self.source.count("\n", 0, start) + 1
        mutated = re.sub(r"//.*", "", mutated).replace("\n", " ")
        self.sites.add(Site(self.path, start, end, kind, mutated, line, is_statement))

    def text(self, cursor):
        return self.source[cursor.extent.start.offset:cursor.extent.end.offset]

    def statement_end(self, cursor):
        """Behind the semicolon of an expression that is a statement; None for what a macro made."""
        match = re.compile(r"\s*;").match(self.source, cursor.extent.end.offset)
        is_written = match and not re.match(r"Q_|$", self.text(cursor))
        return match.end() if is_written else None

    def visit_operator(self, cursor):
        parts = list(cursor.get_children())
        if len(parts) < 2:
            return
        left, right = parts[0].extent, parts[-1].extent
        between = self.source[left.end.offset:right.start.offset]
        if between.strip() not in OPERATORS:
            return
        mutated = (self.source[left.start.offset:left.end.offset] + " " + OPERATORS[between.strip()]
                   + " " + self.source[right.start.offset:right.end.offset])
        self.add(left.start.offset, right.end.offset, "operator", mutated)

    def visit_unary(self, cursor):
        text = self.text(cursor)
        if text[:1] in ("!", "-") and text[:2] != "--":
            self.add(cursor.extent.start.offset, cursor.extent.end.offset, "operator", text[1:])

    def visit_literal(self, cursor):
        if (mutated := constant(self.text(cursor))) is not None:
            self.add(cursor.extent.start.offset, cursor.extent.end.offset, "constant", mutated)

    def visit_statements(self, cursor):
        before = None  # (start, end, part) of the expression in front
        for part in list(cursor.get_children())[BODIES[cursor.kind]]:
            is_return = part.kind == CursorKind.RETURN_STMT and not list(part.get_children())
            end = self.statement_end(part) if part.kind.is_expression() or is_return else None
            if end is None:
                before = None
                continue
            start = part.extent.start.offset
            if is_return or not does_nothing(part):
                self.add(start, end, "deletion", "", is_statement=True)
            if before and not self.source[before[1]:start].strip() and matters(before[2], part):
                swapped = f"{self.source[start:end]} {self.source[before[0]:before[1]]}"
                self.add(before[0], end, "order", swapped, is_statement=True)
            before = None if is_return else (start, end, part)

    def visit(self, cursor):
        if cursor.kind in BINARY:
            self.visit_operator(cursor)
        elif cursor.kind == CursorKind.CALL_EXPR and cursor.spelling.startswith("operator"):
            self.visit_operator(cursor)
        elif cursor.kind == CursorKind.UNARY_OPERATOR:
            self.visit_unary(cursor)
        elif cursor.kind in (CursorKind.INTEGER_LITERAL, CursorKind.FLOATING_LITERAL,
                             CursorKind.CXX_BOOL_LITERAL_EXPR):
            self.visit_literal(cursor)
        elif cursor.kind in BODIES:
            self.visit_statements(cursor)
        for part in cursor.get_children():
            self.visit(part)


def find(sources, root, command):
    """The sites of the named files, which stand for themselves or are included by a source.

    sources: the compiled files with what they may bring along; command(source): its arguments.
    """
    sites = set()
    for source in sources:
        unit = Index.create().parse(str(root / source), command(source),
                                    options=TranslationUnit.PARSE_INCOMPLETE)
        finders = {}
        for cursor in unit.cursor.get_children():
            if not cursor.location.file:
                continue
            try:
                path = str(
                    (root / cursor.location.file.name).resolve().relative_to(root.resolve()))
            except ValueError:
                continue
            is_wanted = path == source or re.fullmatch(r"src/detail/\w+\.h", path)
            if not is_wanted:
                continue
            if path not in finders:
                finders[path] = Finder(path, (root / path).read_text(encoding="latin-1"))
            finders[path].visit(cursor)
        sites.update(site for finder in finders.values() for site in finder.sites)
    return sorted(sites)
