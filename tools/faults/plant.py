"""Places in C++ sources where a single fault can be planted: an operator, a constant, a call that is dropped."""
import re
from typing import NamedTuple

OPERATORS = {" == ": " != ", " != ": " == ", " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " + ": " - ",
             " - ": " + ", " * ": " / ", " / ": " * ", " += ": " -= ", " -= ": " += ", " && ": " || ", " || ": " && ",
             "(!": "(", "true": "false", "false": "true"}
TOKEN = re.compile("|".join(r"\b%s\b" % word if word.isalpha() else re.escape(word) for word in OPERATORS)
                   + r"|(?<![\w.'\"])\d+(?![\w.'])")
CALL = re.compile(r" *(?!return\b|throw\b|if\b|for\b|while\b|switch\b|else\b|delete\b|using\b|static_assert)[\w.:>\-\[\]]+\(.*\);$")
CONDITION = re.compile(r" *(?:else )?(?:if|for|while) (?=\()| *else(?= )")
LITERAL = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])+\'')
NOT_CODE = re.compile(r"^\s*(//|#|template|using|case .*:$|static_assert|friend|struct|class|enum)")


class Fault(NamedTuple):
    path: str
    line: int  # counted from 1
    old: str
    new: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.old.strip()}  =>  {self.new.strip() or '(nothing)'}"


def blanked(line):
    """The line with its texts and its comment made blank, so that nothing is found in them."""
    line = LITERAL.sub(lambda text: "\x00" * len(text[0]), line)
    at = line.find("//")
    return line if at < 0 else line[:at] + "\x00" * (len(line) - at)


def behind_condition(code):
    """Where the statement of a line begins, behind the condition, the head of a loop or the else that it stands with."""
    head = CONDITION.match(code)
    if not head:
        return 0
    depth = 0
    for at in range(head.end(), len(code)):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        if depth == 0:
            return at + 1
    return 0  # goes on in the next line


def faults_in(path, text):
    """All single faults of a file."""
    found = []
    for number, line in enumerate(text.splitlines(), 1):
        if NOT_CODE.match(line):
            continue
        code = blanked(line)
        for token in TOKEN.finditer(code):
            old = token[0]
            new = OPERATORS.get(old) or str(int(old) + 1)
            found.append(Fault(path, number, line, line[:token.start()] + new + line[token.end():]))
        start = behind_condition(code)
        if line.startswith(" ") and CALL.match(code.replace("\x00", "_"), start):
            found.append(Fault(path, number, line, line[:start] + " {}" if start else ""))
    return found


def planted(text, fault):
    """The file's text with the fault in it."""
    lines = text.splitlines(keepends=True)
    assert lines[fault.line - 1].rstrip("\n") == fault.old
    lines[fault.line - 1] = fault.new + "\n"
    return "".join(lines)
