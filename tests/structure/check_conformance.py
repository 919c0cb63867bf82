"""check_conformance.py: the tables of docs/conformance/ name tests that are there, every scenario stands in a row, and
every heading of the choices has rows that link to it.

It is run in the project's root. A row is "| what the calendar does | tests |"; the tests are names between backticks:
`NAME.scn` a scenario, `Suite.Test` a unit test, `desktop.Class.test` one on the desktop, and any other word a test that
a CMakeLists.txt adds by that name.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(".")
INDEX = ROOT / "docs/conformance.md"
CHOICES = ROOT / "docs/choices.md"
TABLES = sorted((ROOT / "docs/conformance").glob("*.md"))
MOST_ROWS = 120

UNIT_TEST = re.compile(r"^TEST(?:_F)?\(\s*(\w+),\s*(\w+)\s*\)", re.MULTILINE)
TABLE_OF_CASES = re.compile(r"^TEST_P\(\s*(\w+),\s*(\w+)\s*\)", re.MULTILINE)
NAMED_CASE = re.compile(r'^\s*\{"([A-Z]\w+)",', re.MULTILINE)
DESKTOP_LINE = re.compile(r"^class (\w+)|^    def test_(\w+)", re.MULTILINE)
ADDED_TEST = re.compile(r"(?:add_test\(NAME|meridex_check\(|meridex_structure_check\()\s*(\w[\w.${}]*)")
LOOP = re.compile(r"foreach\((\w+) ([\w ]+)\)")
FUZZ_TARGET = re.compile(r"^meridex_fuzz_target\((\w+)", re.MULTILINE)
LINK = re.compile(r"\]\(([^)#:]+)(?:#([^)]*))?\)")
HEADING = re.compile(r"^#+ (.+)$", re.MULTILINE)


def scenarios():
    return {path.name for path in (ROOT / "tests/scenarios").glob("*.scn")}


def unit_tests():
    """The tests of GoogleTest. Those that run over a table stand for its cases, which are named by their suite too."""
    names = set()
    for path in (ROOT / "tests").rglob("*.cpp"):
        text = path.read_text(encoding="latin-1")
        names |= {f"{suite}.{test}" for suite, test in UNIT_TEST.findall(text)}
        for suite, test in TABLE_OF_CASES.findall(text):
            names.add(f"{suite}.{test}")
            names |= {f"{suite}.{case}" for case in NAMED_CASE.findall(text)}
    return names


def desktop_tests():
    names = set()
    for path in (ROOT / "tests/desktop").glob("test_*.py"):
        current = ""
        for found in DESKTOP_LINE.finditer(path.read_text(encoding="utf-8")):
            current = found[1] or current
            if found[2]:
                names.add(f"desktop.{current}.{found[2]}")
    return names


def added_tests():
    names = set()
    for folder in ("tests", "fuzz"):
        for path in (ROOT / folder).rglob("CMakeLists.txt"):
            text = path.read_text(encoding="utf-8")
            loops = LOOP.findall(text)
            for name in ADDED_TEST.findall(text):
                names.add(name)
                for loop, values in loops:
                    names |= {name.replace(f"${{{loop}}}", value) for value in values.split()}
            names |= {f"corpus_{name}" for name in FUZZ_TARGET.findall(text)}
    return names


def rows_of(text):
    """The rows of a page's tables, without the heads and the rules below them, each with the number of its line."""
    lines = text.split("\n")
    for number, line in enumerate(lines, 1):
        is_head = number < len(lines) and lines[number].startswith("|--")
        if line.startswith("|") and not line.startswith("|--") and not is_head:
            yield number, line.strip("| ").split(" | ")


def anchor_of(heading):
    """A heading's name in links, as the usual readers of Markdown make it."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


def check_links(path, text, complain):
    for target, anchor in LINK.findall(text):
        page = path.parent / target
        if not page.is_file():
            complain(f"{path}: no page {target}")
        elif anchor and anchor not in map(anchor_of, HEADING.findall(page.read_text(encoding="utf-8"))):
            complain(f"{path}: {target} has no heading #{anchor}")


def check_choices(texts, complain):
    """Rows that rest on a choice link to its heading, so each heading has one."""
    for heading in re.findall(r"^## (.+)$", CHOICES.read_text(encoding="utf-8"), re.MULTILINE):
        link = f"(../{CHOICES.name}#{anchor_of(heading)})"
        if not any(link in text for text in texts):
            complain(f'{CHOICES}: no row rests on what stands under "{heading}"')


def check_table(path, known, complain):
    """Returns the names that the page's rows give, and how many rows there are."""
    named, rows = set(), 0
    for number, cells in rows_of(path.read_text(encoding="utf-8")):
        rows += 1
        tests = re.findall(r"`([^`]+)`", cells[-1])
        if len(cells) != 2 or not cells[0] or not tests:
            complain(f"{path}:{number}: a row is a behaviour and its tests")
            continue
        for name in tests:
            if name not in known:
                complain(f"{path}:{number}: there is no test {name}")
        named |= set(tests)
    if rows > MOST_ROWS:
        complain(f"{path}: {rows} rows, more than {MOST_ROWS}")
    return named, rows


def main():
    complaints = []
    complain = complaints.append
    known = scenarios() | unit_tests() | desktop_tests() | added_tests()
    named, rows = set(), 0
    index = INDEX.read_text(encoding="utf-8")
    check_links(INDEX, index, complain)
    for path in TABLES:
        if f"(conformance/{path.name})" not in index:
            complain(f"{INDEX}: doesn't lead to {path.name}")
        check_links(path, path.read_text(encoding="utf-8"), complain)
        names, count = check_table(path, known, complain)
        named |= names
        rows += count
    check_choices([path.read_text(encoding="utf-8") for path in TABLES], complain)
    for name in sorted(scenarios() - named):
        complain(f"no row names {name}")
    if not TABLES or not scenarios():
        complain("no tables or no scenarios")
    print("\n".join(complaints) or f"{rows} behaviours, {len(named)} tests")
    return 1 if complaints else 0


sys.exit(main())
