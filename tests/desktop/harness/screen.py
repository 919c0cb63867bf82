"""A virtual screen: its windows as the X server sees them, the mouse and the keys."""
import os
import re
import select
import signal
import subprocess
from typing import NamedTuple

from .geometry import Rect
from .picture import Picture
from .waiting import wait_for

SIZE = WIDTH, HEIGHT = 1280, 1024  # the usual one

TREE_LINE = re.compile(r'^\s*(0x[0-9a-f]+) (?:"(.*)"|\(has no name\)): \("([^"]*)" "[^"]*"\)\s+'
                       r'(\d+)x(\d+)[+-]-?\d+[+-]-?\d+\s+\+(-?\d+)\+(-?\d+)')


class Window(NamedTuple):
    id: int
    title: str
    program: str
    rect: Rect
    framed: bool  # has a title bar, as message boxes and dialogs have


class Screen:
    def __init__(self, keyboard="us", size=SIZE):
        """keyboard: the layout; what it doesn't have can't be typed. size: in pixels."""
        self.size = size
        self.quiet_corner = size[0] // 2, 2  # where the pointer rests without being over anything of the calendar
        reader, writer = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{size[0]}x{size[1]}x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[writer], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as answer:
            ready, _, _ = select.select([answer], [], [], 20)
            number = answer.readline().strip() if ready else ""
        if not number:
            self.close()
            raise RuntimeError("no virtual screen came up")
        self.environment = dict(os.environ, DISPLAY=f":{number}")
        self._run("setxkbmap", keyboard)

    def close(self):
        self._server.send_signal(signal.SIGTERM)
        try:
            self._server.wait(10)
        except subprocess.TimeoutExpired:
            self._server.kill()
            self._server.wait(10)

    def _run(self, *command):
        result = subprocess.run(command, env=self.environment, timeout=20, text=True, errors="replace",
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return result.stdout

    def hands(self, *arguments):
        """xdotool: the mouse and the keys."""
        return self._run("xdotool", *(str(argument) for argument in arguments))

    # Looking

    def windows(self, program):
        """The visible windows of a program, those in front last."""
        visible = {int(line) for line in
                   self.hands("search", "--onlyvisible", "--class", f"^{re.escape(program)}$").split()}
        found = []
        for line in self._run("xwininfo", "-root", "-tree").splitlines():
            match = TREE_LINE.match(line)
            if match and int(match[1], 16) in visible and match[3] == program:
                left, top, width, height = int(match[6]), int(match[7]), int(match[4]), int(match[5])
                found.append(Window(int(match[1], 16), match[2] or "", match[3],
                                    Rect(left, top, left + width, top + height), self._framed(match[1])))
        return found[::-1]

    def _framed(self, window):
        match = re.search(r"= 0x[0-9a-f]+, 0x[0-9a-f]+, 0x([0-9a-f]+)", self._run("xprop", "-id", window, "_MOTIF_WM_HINTS"))
        return bool(match) and int(match[1], 16) != 0

    def picture(self):
        return Picture.of_screen(*self.size, self.environment)

    def picture_at_rest(self, seconds=10):
        """The screen as soon as it stays as it is: two successive pictures that are equal."""
        before = self.picture()

        def stands():
            nonlocal before
            now = self.picture()
            still, before = now == before, now
            return now if still else None

        return wait_for(stands, "a screen at rest", seconds, pause=0.15)

    # Acting

    def move(self, x, y):
        self.hands("mousemove", x, y)

    def press(self, x, y, button=1):
        self.move(x, y)
        self.hands("mousedown", button)

    def release(self, button=1):
        self.hands("mouseup", button)

    def click(self, x, y, button=1):
        self.move(x, y)
        self.hands("click", button)

    def double_click(self, x, y):
        self.move(x, y)
        self.hands("click", "--repeat", 2, "--delay", 50, 1)

    def drag(self, start, end, followed, steps=8, button=1):
        """followed: called after each step with the way across and down so far, waits until what is dragged is there. On a
        desktop of Wine's own a window gets the pointer's places as they were within it; if it moves while one of them is on
        its way, Wine takes that place for one within the moved window, a step too far."""
        self.press(*start, button)
        for step in range(1, steps + 1):
            across, down = ((b - a) * step // steps for a, b in zip(start, end))
            self.move(start[0] + across, start[1] + down)
            followed(across, down)
        self.release(button)

    def focus(self, name):
        """Gives the keys to the window of that name."""
        self.hands("search", "--onlyvisible", "--name", name, "windowfocus")

    def key(self, *names):
        """Keys one after the other, by their names: Return, Escape, F9, Down, a."""
        for name in names:
            self.hands("key", name)

    def type(self, text):
        self.hands("type", "--delay", 20, text)

    def rest_pointer(self):
        """Takes the pointer where no tip or highlight comes up under it."""
        self.move(*self.quiet_corner)
