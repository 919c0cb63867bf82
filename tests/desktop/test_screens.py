"""Screens of several sizes and densities, with the shell's bars at each side."""
from harness.desktop import SHELL_COLOUR, WHITE, Desktop_Test
from harness.geometry import Rect
from harness.picture import near
from harness.waiting import wait_for

MOVE_WORK_AREA = 0x8001  # the stand-in's message
BAR = 80  # pixels


class Screens(Desktop_Test):
    def bars(self, size):
        width, height = size
        return [Rect(BAR, 0, width, height), Rect(0, BAR, width, height), Rect(0, 0, width - BAR, height),
                Rect(0, 0, width, height - BAR)]

    def follows(self, size, alignments=(0, 6, 3), **world):
        """The calendar stands where it must, whole and painted, whichever side the bar is at."""
        for alignment in alignments:
            desktop = self.desktop(size=size, shell=True, settings={"Alignment": alignment}, **world)
            desktop.started()
            shell = next(window["handle"] for window in desktop.probe() if window["class"] == "Progman")
            for area in self.bars(size):
                desktop.post(shell, MOVE_WORK_AREA, area.left | area.top << 16, area.right | area.bottom << 16)
                wanted = desktop.place(area=area)
                wait_for(lambda: self.stands(desktop, wanted), f"the calendar at {wanted} of {area}, not at "
                                                               f"{desktop.calendar_window()}")
                self.painted(desktop, wanted)
            desktop.close()

    @staticmethod
    def stands(desktop, wanted):
        window = desktop.calendar_window()
        return window is not None and all(abs(a - b) <= 1 for a, b in zip(window.rect, wanted))

    def painted(self, desktop, place):
        layout, picture = desktop.layout(), desktop.screen.picture_at_rest()
        for box in range(8, 28):
            inner = layout.box_rect(box).moved(place.left, place.top).shrunk(3)
            self.assertTrue(near(picture.pixel(inner.right, inner.bottom - 1), WHITE), f"box {box} at {place}")
        gap = layout.row_gap(1).moved(place.left, place.top).shrunk(1)
        self.assertTrue(picture.is_all(gap, SHELL_COLOUR), f"gap at {place}")

    def test_a_screen_of_1280_by_1024(self):
        self.follows((1280, 1024))

    def test_a_screen_of_2560_by_1440(self):
        self.follows((2560, 1440), modern=True)

    def test_a_screen_of_3840_by_2160_at_192_dots_an_inch(self):
        self.follows((3840, 2160), density=192)
