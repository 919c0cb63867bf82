"""Where things stand: the measures of the box styles in twips, and what follows from them in pixels."""
import calendar
from typing import NamedTuple

twips_per_pixel = 15.0

THIN, SQUARE, SMALL = 0, 1, 2


class Rect(NamedTuple):
    """Left and top lie inside, right and bottom outside."""
    left: int
    top: int
    right: int
    bottom: int

    @property
    def width(self):
        return self.right - self.left

    @property
    def height(self):
        return self.bottom - self.top

    @property
    def centre(self):
        return (self.left + self.right) // 2, (self.top + self.bottom) // 2

    def moved(self, across, down):
        return Rect(self.left + across, self.top + down, self.right + across, self.bottom + down)

    def shrunk(self, by):
        return Rect(self.left + by, self.top + by, self.right - by, self.bottom - by)


class Style(NamedTuple):
    """The measures of one box style, in twips."""
    box_width: int
    box_height: int
    gap: int
    caption: tuple  # left, top within the box, width, height; None where it isn't seen


STYLES = {
    THIN: Style(1275, 320, 100, (360, 55, 870, 220)),
    SQUARE: Style(825, 915, 75, (45, 270, 735, 600)),
    SMALL: Style(375, 285, 75, None),
}

FIRST_BOX = (90, 810)  # left, top of box 0 in every style
ROW_TOP, HEADER_TOP, HEADER_HEIGHT = 90, 450, 285
ARROW = 285
TITLE_LEFT = 495


def pixels(left, top, width, height):
    """A rectangle in twips as one in pixels."""
    return Rect(*(round(value / twips_per_pixel) for value in (left, top, left + width, top + height)))


def days_in_month(year, month):
    return calendar.monthrange(year, month)[1]


def start_box(year, month, start_day):
    """The box of the first of the month; start_day is 1 for Sunday to 7 for Saturday."""
    weekday = (calendar.weekday(year, month, 1) + 1) % 7 + 1
    return (weekday - start_day) % 7


class Layout:
    """The calendar window for one style and month. All results are pixels within the window."""

    def __init__(self, style, year, month, start_day):
        self.style = STYLES[style]
        self.first = start_box(year, month, start_day)
        self.days = days_in_month(year, month)
        self.used = range(self.first, self.first + self.days)
        self.six_rows = 35 in self.used

    @property
    def _pitch(self):
        return self.style.box_width + self.style.gap, self.style.box_height + self.style.gap

    def _box_twips(self, box):
        across, down = self._pitch
        return FIRST_BOX[0] + box % 7 * across, FIRST_BOX[1] + box // 7 * down

    def box_of(self, day):
        return self.first + day - 1

    def box_rect(self, box):
        return pixels(*self._box_twips(box), self.style.box_width, self.style.box_height)

    def caption_rect(self, box):
        left, top = self._box_twips(box)
        inner_left, inner_top, width, height = self.style.caption
        return pixels(left + inner_left, top + inner_top, width, height)

    def number_rect(self, box):
        """The part of a box in which only the day number stands."""
        rect = self.box_rect(box)
        if self.style.caption is None:
            return rect
        caption = self.caption_rect(box)
        if self.style is STYLES[THIN]:
            return rect._replace(right=caption.left)
        return rect._replace(bottom=caption.top)

    def header_rect(self, column):
        left = self._box_twips(column)[0]
        return pixels(left, HEADER_TOP, self.style.box_width, HEADER_HEIGHT)

    @property
    def previous_rect(self):
        return pixels(FIRST_BOX[0], ROW_TOP, ARROW, ARROW)

    @property
    def _next_left(self):
        return self._box_twips(6)[0] + self.style.box_width - ARROW

    @property
    def next_rect(self):
        return pixels(self._next_left, ROW_TOP, ARROW, ARROW)

    @property
    def title_rect(self):
        return pixels(TITLE_LEFT, ROW_TOP, self._next_left - TITLE_LEFT - 100, ARROW)

    @property
    def window_twips(self):
        width = self._box_twips(6)[0] + self.style.box_width + 135
        last = 36 if self.six_rows else 28
        return width, self._box_twips(last)[1] + self.style.box_height + 50

    @property
    def window_size(self):
        return tuple(round(value / twips_per_pixel) for value in self.window_twips)

    def row_gap(self, row):
        """The strip between a row of boxes and the next, across the columns that both rows use."""
        above, below = self.box_rect(row * 7 + 3), self.box_rect(row * 7 + 10)
        return Rect(above.left, above.bottom, above.right, below.top)

    def column_gap(self, column, row=2):
        """The strip between a box of that column and the next one."""
        one, other = self.box_rect(row * 7 + column), self.box_rect(row * 7 + column + 1)
        return Rect(one.right, one.top, other.left, one.bottom)


def set_density(dots_per_inch):
    """From now on pixels are those of such a screen."""
    global twips_per_pixel  # pylint: disable=global-statement
    twips_per_pixel = 1440 / dots_per_inch


def window_widths():
    """The width of the window in each style, in pixels."""
    return [Layout(style, 2004, 3, 2).window_size[0] for style in STYLES]


def placed(alignment, window_twips, area, manual=(0, 0)):
    """Left and top of the window in pixels, for a position number and a work area in pixels."""
    width, height = window_twips
    left, top, right, bottom = (value * twips_per_pixel for value in area)
    lefts = {"left": left, "middle": round(right - left - width) // 2 + left, "right": right - width}
    tops = {"top": top, "middle": round(bottom - top - height) // 2 + top, "bottom": bottom - height}
    across, down = {
        0: ("right", "bottom"), 1: ("middle", "bottom"), 2: ("left", "bottom"), 3: ("middle", "middle"),
        4: ("right", "top"), 5: ("middle", "top"), 6: ("left", "top"), 7: (None, None),
        8: ("right", "middle"), 9: ("left", "middle"),
    }[alignment]
    twips = manual if across is None else (lefts[across], tops[down])
    return tuple(round(value / twips_per_pixel) for value in twips)
