"""The pictures of the settings window: a screen with a small calendar on it, the exchange buttons, and the pointer of the
colour picker."""
import math

from canvas import BLACK, BLUE, GREEN, INK, PAPER, SHADE, STEEL, TITLE, TODAY, WHITE, Canvas, Pixels

CASE, CASE_LIGHT, CASE_DARK, CASE_LINE = (212, 210, 202), (236, 235, 230), (164, 162, 154), (92, 92, 92)
DESKTOP = (58, 110, 165)
BACK, BOX, BOX_TODAY = (31, 8, 128), (255, 255, 255), (192, 192, 255)

# The screen's glass in each size: left, top, right and bottom in pixels. In the two sizes in which the settings window shows
# the monitor the desktop covers exactly that; in the full size it covers it in both layouts.
MONITORS = {(184, 169): (16, 17, 166, 127), (161, 140): (13, 13, 147, 107), (140, 120): (12, 12, 127, 90)}

# The calendar's sizes, with the heights of its title, of its weekdays (0 for none) and of a row of days, in pixels.
CALENDARS = {(164, 49): (8, 5, 6), (39, 36): (6, 0, 5), (65, 24): (4, 0, 3), (23, 21): (6, 0, 2)}


def monitor_picture(width, height):
    left, top, right, bottom = MONITORS[width, height]
    canvas = Canvas(width, width, height, 4)
    part = width / 184
    chin = bottom + 15 * part
    middle = width / 2
    # The foot and the neck, then the case before them.
    foot = height - 1
    canvas.polygon(CASE_LINE, [(middle - 52 * part, foot), (middle - 40 * part, foot - 13 * part),
                               (middle + 40 * part, foot - 13 * part), (middle + 52 * part, foot)])
    canvas.polygon(CASE, [(middle - 50 * part, foot - 1), (middle - 39 * part, foot - 12 * part),
                          (middle + 39 * part, foot - 12 * part), (middle + 50 * part, foot - 1)])
    canvas.box(CASE_LIGHT, middle - 39 * part, foot - 12 * part, middle + 39 * part, foot - 11 * part)
    canvas.box(CASE_LINE, middle - 26 * part, chin, middle + 26 * part, foot - 8 * part)
    canvas.box(CASE_DARK, middle - 25 * part, chin, middle + 25 * part, foot - 9 * part)
    canvas.box(CASE_LINE, 1, 1, width - 1, chin + 2, 6 * part)
    canvas.box(CASE_LIGHT, 2, 2, width - 2, chin + 1, 5 * part)
    canvas.box(CASE, 3, 3, width - 2, chin + 1, 5 * part)
    # A sunken edge around the glass.
    edge = max(2, round(3 * part))
    canvas.polygon(CASE_DARK, [(left - edge, bottom + edge), (left - edge, top - edge), (right + edge, top - edge)])
    canvas.polygon(CASE_LIGHT, [(left - edge, bottom + edge), (right + edge, bottom + edge), (right + edge, top - edge)])
    canvas.box(CASE_LINE, left - 1, top - 1, right + 1, bottom + 1)
    canvas.box(DESKTOP, left, top, right, bottom)
    # A lamp and two knobs.
    knobs = bottom + edge + (chin - bottom - edge) / 2
    canvas.disc(CASE_LINE, right - 3 * part, knobs, 3 * part)
    canvas.disc((96, 208, 96), right - 3 * part, knobs, 2 * part)
    for x in (right - 18 * part, right - 30 * part):
        canvas.box(CASE_LINE, x - 4 * part, knobs - 1.5 * part, x + 4 * part, knobs + 1.5 * part)
    return canvas


def small_calendar_picture(width, height):
    """A calendar with its gaps open, so that the desktop shows through them."""
    title, weekdays, row_height = CALENDARS[width, height]
    picture = Pixels(width, height)
    picture.fill(BACK, 0, 0, width, title)
    line = max(1, title // 3)
    picture.fill(BOX, width // 3, (title - line) // 2, width - width // 3, (title - line) // 2 + line)
    edges = [round(i * (width + 1) / 7) for i in range(8)]
    top = title + 1
    if weekdays:
        for left, right in zip(edges, edges[1:]):
            picture.fill(BACK, left, top, right - 1, top + weekdays)
            picture.fill(BOX, left + 6, top + 2, right - 7, top + weekdays - 2)
        top += weekdays + 1
    for row in range((height - top + 1) // (row_height + 1)):
        for column, (left, right) in enumerate(zip(edges, edges[1:])):
            if (row, column) in ((0, 0), (0, 1)):
                continue  # the month begins in the third column
            draw_day(picture, (left, top, right - 1, top + row_height), today=(row, column) == (1, 4))
        top += row_height + 1
    return picture


def draw_day(picture, box, today):
    left, top, right, bottom = box
    ground = BOX_TODAY if today else BOX
    picture.fill(ground, left, top, right, bottom)
    if right - left < 12:
        if today:
            picture.fill(BACK, left, top, right, bottom)
        return
    picture.fill(BLACK, left, top, right, bottom)
    picture.fill(ground, left + 1, top + 1, right - 1, bottom - 1)
    picture.fill(STEEL, left + 2, top + 2, left + 5, bottom - 2)


def arrow(canvas, outwards):
    """At the bottom right: green and to the left for what comes in, blue and to the right for what goes out."""
    colour, edge = (BLUE, (16, 44, 110)) if outwards else (GREEN, (16, 78, 34))
    tip, tail, middle = (31, 15, 24) if outwards else (15, 31, 24)
    side = 1 if outwards else -1
    neck = tip - 8 * side

    def points(grow):
        return [(tip + 1.4 * grow * side, middle), (neck - grow * side, middle - 6.5 - 2.2 * grow),
                (neck - grow * side, middle - 2.5 - grow), (tail - grow * side, middle - 2.5 - grow),
                (tail - grow * side, middle + 2.5 + grow), (neck - grow * side, middle + 2.5 + grow),
                (neck - grow * side, middle + 6.5 + 2.2 * grow)]
    canvas.polygon(edge, points(0))
    canvas.polygon(colour, points(-1))


def sheet(canvas):
    """A sheet of paper with a folded corner."""
    canvas.polygon(INK, [(3, 1), (18, 1), (25, 8), (25, 30), (3, 30)])
    canvas.polygon(PAPER, [(4, 2), (17.5, 2), (24, 8.5), (24, 29), (4, 29)])
    canvas.polygon(INK, [(17, 1), (25, 9), (17, 9)])
    canvas.polygon(SHADE, [(18, 3.4), (22.6, 8), (18, 8)])


def data_picture(canvas):
    """The calendar's leaf."""
    canvas.box(INK, 2, 3, 26, 29, 2)
    canvas.box(PAPER, 3, 4, 25, 28, 1)
    canvas.box(TITLE, 3, 4, 25, 10)
    for x in (8, 20):
        canvas.box(INK, x - 1.5, 1, x + 1.5, 6)
        canvas.box(WHITE, x - 0.5, 2, x + 0.5, 5)
    for row in range(4):
        for column in range(4):
            left, top = 5 + column * 5, 12 + row * 4
            canvas.box(TODAY if (row, column) == (1, 1) else SHADE, left, top, left + 4, top + 3)


def configuration_picture(canvas):
    """A toothed wheel."""
    def wheel(grow):
        def inside(x, y):
            distance = math.hypot(x - 14, y - 14)
            tooth = math.cos(8 * math.atan2(y - 14, x - 14)) > -0.15 - 0.1 * grow
            return 4.5 - grow <= distance <= (12.5 if tooth else 9.5) + grow
        return inside
    canvas.shape(INK, wheel(0.5))
    canvas.shape((150, 158, 176), wheel(-0.5))


def csv_picture(canvas):
    """A table on a sheet."""
    sheet(canvas)
    canvas.box(STEEL, 6, 11, 22, 27)
    for row in range(4):
        for column in range(3):
            left, top = 7 + column * 5, 12 + row * 4
            canvas.box((190, 224, 196) if row == 0 else WHITE, left, top, left + 4, top + 3)


def text_picture(canvas):
    """Lines on a sheet."""
    sheet(canvas)
    for y in range(11, 27, 3):
        canvas.box(BLUE if y == 11 else STEEL, 6, y, 22 if y % 2 else 19, y + 1)


def button_picture(size, draw, outwards):
    canvas = Canvas(size, 32)
    draw(canvas)
    arrow(canvas, outwards)
    return canvas


def cross_hair_picture():
    """A cross-hair inside a circle, black between white; open in the middle, where the picked pixel is."""
    picture = Pixels(32, 32)
    black = set()
    for x in range(32):
        for y in range(32):
            across, down = abs(x - 16), abs(y - 16)
            if 10.6 <= math.hypot(across, down) < 11.6 or (min(across, down) == 0 and 3 <= max(across, down) <= 14):
                black.add((x, y))
    for x, y in black:
        for near in ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)):
            picture.colours[near] = WHITE
    for at in black:
        picture.colours[at] = BLACK
    picture.colours[16, 16] = BLACK
    return picture
