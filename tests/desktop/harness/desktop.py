"""The program on a screen of its own, with its files, settings and clock, and the frame of each test."""
import datetime
import json
import os
import pathlib
import shutil
import signal
import tempfile
import unittest
from typing import NamedTuple

from . import geometry
from .prefix import ARCHITECTURE, ROOT, Prefix
from .screen import SIZE, Screen, Window
from .waiting import wait_for

BUILD = ROOT / f"build/windows-{ARCHITECTURE}"
PICTURES = ROOT / "build/desktop-pictures"  # where a failed test leaves what it saw last
PROGRAM = "meridex.exe"
PROBE = f"Z:{BUILD}/tests/desktop/desktop_probe.exe".replace("/", "\\")
WHOLE_SCREEN = (0, 0, *SIZE)

# The ground of the virtual desktop, as scripts/lib/wine.sh sets it, and that of the stand-in for the shell's windows.
DESKTOP_COLOUR = (58, 110, 165)
SHELL_COLOUR = (40, 120, 90)
WHITE = (255, 255, 255)
SHELL_TOPS = ("Progman", "WorkerW")  # the stand-in's windows that can hold the icons
CALENDAR_CLASS = "Meridex_Form"


class Message_Box(NamedTuple):
    title: str
    text: str
    buttons: list
    rect: geometry.Rect


def record(line):
    """An event as it stands in the file."""
    return b'"' + line.encode("cp1252") + b'"\r\n'


class Desktop:
    def __init__(self, now="2004-03-05 09:00:00", events=(), data=None, settings=None, colours=None, language="en_GB",
                 keyboard="us", shell=False, permissions=False, size=SIZE,
                 density=96, modern=False, refused=None, scheme=None, program=BUILD / "src/main" / PROGRAM):
        """events: lines such as "5/3/2004=Dentist"; data: the file's bytes instead; settings, colours: stored values;
        shell: with the stand-in for the desktop's own windows, under which the calendar then lives; permissions: what is
        read-only is so for root too; size: the screen's, in pixels; density: its dots per inch; modern: with
        the user's consent to today's desktops; refused: a section of the settings in which nothing can be stored; scheme: colours
        of the system by their names in the registry; program: the executable."""
        geometry.set_density(density)
        self.settings = {"Style": 1, "Alignment": 0, "Start Day": 2, "Show Splash": 0, **(settings or {})}
        self.shell = shell
        self.now = datetime.datetime.fromisoformat(now)
        self.programs = []
        self.closed = False
        self._temporary = tempfile.mkdtemp(prefix="meridex-")
        self.screen = Screen(keyboard, size)
        try:
            self.prefix = Prefix(pathlib.Path(self._temporary, "prefix"), self.screen.environment, language,
                                 permissions)
            self.folder = self.prefix.drive / "Meridex"
            self.folder.mkdir()
            shutil.copy2(program, self.folder)
            if shell:
                for file in [*BUILD.glob("tools/desktop/*.exe"), *BUILD.glob("tools/desktop/*.dll")]:
                    shutil.copy2(file, self.folder)
            if data is not None or events:
                self.data_file.write_bytes(data if data is not None else b"".join(record(line) for line in events))
            self.prefix.preset("Software\\Meridex\\Settings", self.settings)
            if size != SIZE:
                self.prefix.preset("Software\\Wine\\Explorer\\Desktops", {"meridex": "{}x{}".format(*size)})
            if density != 96:
                self.prefix.preset_number("Control Panel\\Desktop", "LogPixels", density)
            if modern:
                self.prefix.preset("Software\\Meridex\\Desktop", {"Modern": 1})
            if refused:
                self.prefix.preset_refusal(f"Software\\Meridex\\{refused}")
            if scheme:
                self.prefix.preset("Control Panel\\Colors", scheme)
            if colours:
                self.prefix.preset("Software\\Meridex\\Colours", colours)
            self.prefix.boot(self._desktop_stands)
            self.prefix.set_clock(now)
            self.screen.rest_pointer()
        except BaseException:
            self.close()
            raise

    def _desktop_stands(self):
        return self.screen.picture().pixel(1, 1) == DESKTOP_COLOUR

    def close(self):
        if self.closed:
            return
        self.closed = True
        if hasattr(self, "prefix"):
            self.prefix.end()
        for program in self.programs:
            program.kill()
            program.wait(20)
        self.screen.close()
        shutil.rmtree(self._temporary, ignore_errors=True)

    # The program

    @property
    def data_file(self):
        return self.folder / "calendar.dat"

    def start(self, under=()):
        """Starts the program, a further time too; returns its process without waiting for its window. `under`: what
        Wine's command line begins with."""
        starter = ["C:\\Meridex\\meridex-desktop-start.exe"] if self.shell else []
        self.programs.append(self.prefix.start(*starter, f"C:\\Meridex\\{PROGRAM}", under=under))
        return self.programs[-1]

    def exit_status(self, program, seconds=15):
        """Waits for the end of a started program."""
        return program.wait(seconds)

    def set_clock(self, moment):
        self.prefix.set_clock(moment)

    def stored(self, section, key):
        """A setting as the program has stored it."""
        return self.prefix.registry_value(f"HKCU\\Software\\Meridex\\{section}", key)

    # Windows

    def windows(self):
        return self.screen.windows(PROGRAM)

    def calendar_window(self):
        """The calendar's window if it is on the screen: neither title nor frame, and as wide as one of the styles."""
        if self.shell:
            return self._calendar_in_shell()
        return next((window for window in self.windows()
                     if not window.framed and not window.title and window.rect.width in geometry.window_widths()), None)

    def _calendar_in_shell(self):
        for window in self.probe():
            for child in window["children"] if window["class"] in SHELL_TOPS else []:
                rect = geometry.Rect(*child["rect"])
                if child["visible"] and rect.width in geometry.window_widths():
                    return Window(child["handle"], child["text"], PROGRAM, rect, False)
        return None

    def calendar(self):
        """Waits until the calendar stands on the screen; returns its place."""
        wait_for(self.calendar_window, "the calendar on the screen")
        if self.shell:  # the keys reach it only through this
            self.screen.focus("Wine desktop")
        self.screen.picture_at_rest()
        return self.calendar_window().rect

    def started(self):
        """Starts the program and waits for the calendar; returns its place."""
        self.start()
        return self.calendar()

    def framed_window(self, title):
        """A visible window with that title; one that ends in a blank is the beginning of the title."""
        return next((window for window in self.windows() if window.framed and
                     (window.title == title or title.endswith(" ") and window.title.startswith(title))), None)

    def activate(self):
        """Makes the calendar the active window, as a user does, by a click beside everything that answers it."""
        layout = self.layout()
        x, y, _, _ = self.on_screen(layout.header_rect(0))
        self.screen.click(x + 4, y + 4)
        wait_for(lambda: self._calendar_is_active(), "the calendar to be active")

    def _calendar_is_active(self):
        return any(window["active"] for window in self.probe()
                   if window["rect"][2] - window["rect"][0] in geometry.window_widths())

    def find_window(self, title, seconds=15):
        """Waits for a window with a title bar, such as the editor."""
        return wait_for(lambda: self.framed_window(title), f'a window "{title}"', seconds)

    def window_gone(self, title):
        wait_for(lambda: self.framed_window(title) is None, f'the end of the window "{title}"')

    def probe(self):
        """All top windows of the prefix with their children, as they see themselves; see probe.cpp."""
        status, output = self.prefix.run(PROBE)
        assert status == 0, f"the probe ended with status {status}; {self.prefix.complaints()}"
        return [json.loads(line) for line in output.decode("latin-1").splitlines() if line.startswith("{")]

    def shell_window(self):
        """"Progman", as the probe sees it; None if there is no shell."""
        return next((window for window in self.probe() if window["class"] == "Progman"), None)

    def lone_calendar(self):
        """The calendar as an ordinary window, as the probe sees it; None if it isn't one or doesn't show."""
        return next((window for window in self.probe() if window["class"] == CALENDAR_CLASS and window["visible"] and
                     window["rect"][2] - window["rect"][0] in geometry.window_widths()), None)

    def post(self, window, message, first=0, second=0):
        """Posts a message to a window of the prefix, named by its handle."""
        status, _ = self.prefix.run(PROBE, "post", *map(str, (window, message, first, second)))
        assert status == 0, "the message wasn't posted"

    def show_foreign_window(self, title):
        """Another program shows a window of that title."""
        self.programs.append(self.prefix.start(PROBE, "show", title))
        wait_for(lambda: self.foreign_window(title), f'another program\'s window "{title}"')

    def foreign_window(self, title):
        return any(window["class"] == "Probe_Window" and window["text"] == title for window in self.probe())

    def loaded_libraries(self):
        """The names of the libraries that the program has loaded, in small letters."""
        _, output = self.prefix.run(PROBE, "modules", PROGRAM)
        return {line.strip().split("\\")[-1].lower() for line in output.decode("latin-1").splitlines()}

    def copy(self, path):
        """Puts the text of a file of the prefix on the clipboard."""
        status, _ = self.prefix.run(PROBE, "copy", path)
        assert status == 0, "the text isn't on the clipboard"

    def message_box(self, title="Meridex"):
        """Waits for a message box, until it takes keys, and reads it."""
        self.find_window(title)

        def read():
            for window in self.probe():
                if window["class"] == "#32770" and window["text"] == title and window["active"]:
                    children = window["children"]
                    texts = [child["text"] for child in children if child["class"] == "Static" and child["text"]]
                    buttons = [child["text"].replace("&", "") for child in children if child["class"] == "Button"]
                    if texts and buttons:
                        return Message_Box(title, texts[-1], buttons, geometry.Rect(*window["rect"]))
            return None

        return wait_for(read, f'the text of the message box "{title}"')

    def answer(self, key, title="Meridex"):
        """Presses a key in a message box and waits until it is gone."""
        self.screen.key(key)
        self.window_gone(title)

    def menu_choose(self, number):
        """Chooses an item of the open popup menu, counted from 1; separators and grey items don't count."""
        wait_for(lambda: any(not window.framed and window.rect.width not in geometry.window_widths()
                             for window in self.windows()), "a menu")
        self.screen.picture_at_rest()
        self.screen.key(*["Down"] * number, "Return")

    # Places on the screen

    def layout(self, year=None, month=None):
        """The layout that the settings ask for, of the present month if no other is given."""
        return geometry.Layout(self.settings["Style"], year or self.now.year, month or self.now.month,
                               self.settings["Start Day"])

    def place(self, layout=None, area=None):
        """Where the calendar must stand; the area is the whole screen if no other is given."""
        layout = layout or self.layout()
        manual = self.settings.get("Manual_PosX", 0), self.settings.get("Manual_PosY", 0)
        left, top = geometry.placed(self.settings["Alignment"], layout.window_twips, area or (0, 0, *self.screen.size), manual)
        width, height = layout.window_size
        return geometry.Rect(left, top, left + width, top + height)

    def on_screen(self, rect, layout=None):
        """A rectangle of the calendar's window as one of the screen."""
        place = self.place(layout)
        return rect.moved(place.left, place.top)

    def box_rect(self, day, layout=None):
        layout = layout or self.layout()
        return self.on_screen(layout.box_rect(layout.box_of(day)), layout)

    def caption_rect(self, day, layout=None):
        layout = layout or self.layout()
        return self.on_screen(layout.caption_rect(layout.box_of(day)), layout)

    def number_rect(self, day, layout=None):
        layout = layout or self.layout()
        return self.on_screen(layout.number_rect(layout.box_of(day)), layout)


class Desktop_Test(unittest.TestCase):
    """A test with a desktop. A failed one leaves its screen in build/desktop-pictures."""
    LONGEST = 100  # seconds

    def setUp(self):
        self._desktop = None
        signal.signal(signal.SIGALRM, self._too_long)
        signal.signal(signal.SIGTERM, self._too_long)
        signal.alarm(self.LONGEST)
        self.addCleanup(signal.alarm, 0)

    @staticmethod
    def _too_long(number, _frame):
        raise AssertionError(f"cut off by {signal.Signals(number).name}")

    def desktop(self, **world):
        self._desktop = Desktop(**world)
        self.addCleanup(self._desktop.close)
        return self._desktop

    def _callTestMethod(self, method):
        try:
            super()._callTestMethod(method)
        except BaseException:
            self._keep_picture()
            raise

    def _keep_picture(self):
        if self._desktop is None:
            return
        PICTURES.mkdir(parents=True, exist_ok=True)
        path = PICTURES / f"{self._testMethodName}.png"
        self._desktop.screen.picture().save(path)
        print(f"The screen is in {os.path.relpath(path, ROOT)}")

    def assert_near(self, one, other, tolerance=1, what=""):
        self.assertTrue(all(abs(a - b) <= tolerance for a, b in zip(one, other)), f"{what}: {one}, not {other}")
