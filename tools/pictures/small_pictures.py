"""The program's own picture, the balloon's, and those of the menus."""
import math

from canvas import BLUE, GREEN, INK, PAPER, RED, SHADE, STEEL, TITLE, TODAY, WHITE, Canvas


def program_picture(size):
    """A leaf of a calendar: a title bar, boxes of days, one of them today's."""
    canvas = Canvas(size, 32)
    canvas.box(INK, 2, 3, 30, 30, 3)
    canvas.box(PAPER, 3, 4, 29, 29, 2)
    canvas.box(TITLE, 3, 4, 29, 11, 2)
    canvas.box(TITLE, 3, 9, 29, 11)
    for x in (9, 23):
        canvas.box(INK, x - 1.5, 1, x + 1.5, 7, 1.5)
        canvas.box(WHITE, x - 0.5, 2, x + 0.5, 6, 0.5)
    for row in range(3):
        for column in range(4):
            left, top = 5 + column * 5.75, 13 + row * 5.25
            canvas.box(TODAY if (row, column) == (1, 2) else SHADE, left, top, left + 4.5, top + 4)
    return canvas


def information_picture(size):
    canvas = Canvas(size, 16)
    canvas.disc((20, 56, 128), 8, 8, 7.5)
    canvas.disc(BLUE, 8, 8, 6.6)
    canvas.disc(WHITE, 8, 4.4, 1.2)
    canvas.box(WHITE, 6, 6.6, 9, 8)
    canvas.box(WHITE, 7, 6.6, 9, 12)
    canvas.box(WHITE, 6, 11, 10, 12.3)
    return canvas


def clear_picture():
    """A cross."""
    canvas = Canvas(13, 13)
    canvas.line(RED, 2.5, 2.5, 10.5, 10.5, 2.2)
    canvas.line(RED, 10.5, 2.5, 2.5, 10.5, 2.2)
    return canvas


def file_picture():
    """A written sheet."""
    canvas = Canvas(13, 13)
    canvas.box(INK, 2, 0, 11, 13)
    canvas.box(WHITE, 3, 1, 10, 12)
    for y in (3, 5, 7, 9):
        canvas.box(BLUE, 4, y, 9 if y < 9 else 7, y + 1)
    return canvas


def settings_picture():
    """A toothed wheel."""
    canvas = Canvas(13, 13)

    def inside(x, y):
        distance = math.hypot(x - 6.5, y - 6.5)
        tooth = math.cos(8 * math.atan2(y - 6.5, x - 6.5)) > 0
        return 2 <= distance <= (6.2 if tooth else 4.6)
    canvas.shape(STEEL, inside)
    return canvas


def exit_picture():
    """An open door and the way out of it."""
    canvas = Canvas(13, 13)
    canvas.box(INK, 1, 0, 8, 13)
    canvas.box(SHADE, 2, 1, 7, 12)
    canvas.box(GREEN, 5, 6, 10, 7)
    canvas.shape(GREEN, lambda x, y: 9 <= x <= 12.5 and abs(y - 6.5) <= 12.5 - x)
    return canvas
