"""What a screen reader in another process hears of the program's windows; see reader.cpp."""
import json

from .desktop import BUILD
from .geometry import Rect
from .waiting import wait_for

READER = f"Z:{BUILD}/tests/desktop/desktop_reader.exe".replace("/", "\\")

# Roles and states, by the system's numbers.
CLIENT, DIALOG, CELL, COLUMN_HEADER, GROUP, TEXT, PUSH_BUTTON, CHECK_BOX, OPTION, TEXT_BOX, DROP_DOWN, TABS, TAB = (
    10, 18, 29, 25, 20, 41, 43, 44, 45, 42, 46, 60, 37)
UNAVAILABLE, SELECTED, FOCUSED, CHECKED, INVISIBLE, OFF_SCREEN = 1, 2, 4, 0x10, 0x8000, 0x10000


class Thing:
    """A thing that is read, with all that lies in it."""

    def __init__(self, told):
        self.name, self.value, self.role, self.state = told["name"], told["value"], told["role"], told["state"]
        self.action, self.keys, self.number = told["action"], told["keys"], told["number"]
        self.rect = Rect(*told["rect"])
        self.children = [Thing(child) for child in told.get("children", [])]

    def visible(self, role=None):
        """What the user sees of what lies in it, of one role or of all."""
        return [child for child in self.children if not child.state & INVISIBLE and role in (None, child.role)]

    def one(self, role, name=None):
        found = [child for child in self.visible(role) if name in (None, child.name)]
        assert len(found) == 1, f"{len(found)} of role {role} called {name}"
        return found[0]


class Reader:
    """Reads a window of the program: the foremost one without a title, or the one whose title begins so."""

    def __init__(self, desktop, title=""):
        self.desktop = desktop
        self._title = title
        self.handle = wait_for(self._find, f'a window "{title}" to read')

    def _find(self):
        tops = self.desktop.probe()
        for window in [*tops, *(child for top in tops if top["class"] == "Progman" for child in top["children"])]:
            named = window["text"].startswith(self._title) and bool(window["text"]) == bool(self._title)
            if window["class"] == "Meridex_Form" and window["visible"] and named:
                return window["handle"]
        return None

    def _ask(self, what, *words):
        status, output = self.desktop.prefix.run(READER, what, str(self.handle), *map(str, words))
        return status, output.decode("ascii").splitlines()

    def read(self):
        status, lines = self._ask("read")
        assert status == 0, f"nothing was read, status {status}; {self.desktop.prefix.complaints()}"
        return Thing(json.loads(lines[0]))

    def hit(self, x, y):
        """What is at that place of the screen; None if nothing of the window is."""
        status, lines = self._ask("hit", x, y)
        return Thing(json.loads(lines[0])) if status == 0 else None

    def walk(self):
        return [json.loads(line) for line in self._ask("walk")[1]]

    def act(self, name):
        status, _ = self._ask("act", name)
        assert status == 0, f'no action for "{name}"'

    def focus(self, name):
        status, _ = self._ask("focus", name)
        assert status == 0, f'no focus for "{name}"'

    def _start(self, *words):
        """Starts a reader that goes on reading; the result gives the lines that it has printed so far."""
        path = self.desktop.folder / "heard.txt"
        with path.open("wb") as output:
            self.desktop.programs.append(self.desktop.prefix.start(READER, *words, output=output))

        def lines():
            return [json.loads(line) for line in path.read_text(encoding="ascii").splitlines(True) if line.endswith("\n")]

        wait_for(lines, "the reader's first line")
        return lines

    def hold(self):
        """Holds on to the window until it is gone; the result gives the error by which the window is known to be gone, None
        until then."""
        lines = self._start("hold", str(self.handle))
        return lambda: lines()[1] if len(lines()) > 1 else None

    def listen(self):
        """Listens from now on; the result tells what has been heard of this window since."""
        heard = self._start("listen")
        return lambda: [(event["event"], event["number"]) for event in heard() if event.get("window") == self.handle]
