"""The picture beside the last page of the installer: a desktop at dusk with the calendar on it."""
from canvas import PAPER, SHADE, TITLE, TODAY, Canvas

WIDTH, HEIGHT = 164, 314


def setup_picture():
    canvas = Canvas(WIDTH, WIDTH, HEIGHT, 4)
    top, bottom = (44, 40, 104), (236, 148, 84)
    for y in range(HEIGHT):
        part = y / HEIGHT
        canvas.box(tuple(round(a + (b - a) * part) for a, b in zip(top, bottom)), 0, y, WIDTH, y + 1)
    canvas.disc((252, 220, 150), 118, 232, 22)
    canvas.polygon((58, 60, 96), [(0, 262), (46, 222), (92, 258), (130, 236), (164, 256), (164, 314), (0, 314)])
    canvas.polygon((38, 40, 70), [(0, 284), (60, 266), (118, 288), (164, 274), (164, 314), (0, 314)])
    # The gaps between the boxes stay open, as on the desktop.
    canvas.box(TITLE, 24, 40, 140, 58)
    canvas.box(PAPER, 60, 46, 104, 51)
    for row in range(5):
        for column in range(7):
            if (row, column) not in ((0, 0), (4, 4), (4, 5), (4, 6)):
                left, upper = 24 + column * 16.8, 61 + row * 17
                canvas.box(TODAY if (row, column) == (2, 3) else PAPER, left, upper, left + 15.2, upper + 15)
                canvas.box(SHADE, left + 2, upper + 2, left + 6, upper + 4)
    return canvas
