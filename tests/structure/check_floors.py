"""check_floors.py SRC: each folder includes only from itself and from the floors below it, and no includes go in a circle."""
import pathlib
import re
import sys

# From the ground up. Folders of one floor don't know each other.
FLOORS = [
    ["basic"],
    ["platform", "state"],
    ["toolkit", "settings"],
    ["win32", "memory", "events", "packs", "dialogs"],
    ["presentation"],
    ["editor", "tooltips"],
    ["calendar"],
    ["exchange"],
    ["settings_window"],
    ["main"],
]
# The backends stand beside the house: they know the ground floors, and only main/ knows them.
BACKENDS = ["win32", "memory"]
LEVEL = {folder: level for level, floor in enumerate(FLOORS) for folder in floor}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
ANGLED = re.compile(r"^\s*#\s*include\s*<([^>]+)>", re.MULTILINE)


def folder_of(path):
    """The folder of the house in which a file such as "win32/pen.h" stands."""
    return path.split("/")[0]


def may_include(user, used):
    if user == used:
        return True
    if used in BACKENDS:
        return user == "main"
    return LEVEL.get(used, len(FLOORS)) < LEVEL[user]


def find_circle(graph):
    """A list of files that include each other in a circle, or None."""
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):] + [node]
        if node in done:
            return None
        path.append(node)
        for other in graph.get(node, []):
            circle = visit(other)
            if circle:
                return circle
        path.pop()
        done.add(node)
        return None

    for node in graph:
        circle = visit(node)
        if circle:
            return circle
    return None


def main(root):
    complaints, graph = [], {}
    files = [path for path in sorted(root.rglob("*")) if path.suffix in (".h", ".cpp")]
    for path in files:
        name = path.relative_to(root).as_posix()
        user = folder_of(name)
        if user not in LEVEL:
            complaints.append(f"{name}: the folder stands on no floor")
            continue
        text = path.read_text(encoding="latin-1")
        for included in ANGLED.findall(text):
            if (root / included).is_file():
                complaints.append(f"{name}: <{included}> is a file of the house, which stands in quotes")
        graph[name] = INCLUDE.findall(text)
        for included in graph[name]:
            if not (root / included).is_file():
                complaints.append(f'{name}: "{included}" isn\'t a path from {root.name}/')
            elif not may_include(user, folder_of(included)):
                complaints.append(f'{name}: includes "{included}", which isn\'t below it')
    circle = find_circle(graph)
    if circle:
        complaints.append("a circle: " + " -> ".join(circle))
    if not files:
        complaints.append(f"no sources under {root}")
    print("\n".join(complaints) or f"{len(files)} files")
    return 1 if complaints else 0


sys.exit(main(pathlib.Path(sys.argv[1])))
