#!/usr/bin/env python3
"""Draws the program's icons and menu bitmaps into resources/. Needs nothing but Python itself.

    python3 tools/pictures/make_pictures.py

The pictures are drawn with shapes on a fine grid and averaged down, so each size is drawn anew and none is scaled. The
result depends on this file alone: run it again after a change and commit what it wrote.
"""
import math
import pathlib
import struct

RESOURCES = pathlib.Path(__file__).resolve().parents[2] / "resources"
FINE = 8  # samples a pixel, each way

WHITE, BLACK = (255, 255, 255), (0, 0, 0)
INK, PAPER, SHADE = (40, 46, 92), (252, 252, 255), (196, 202, 228)
TITLE, TODAY = (86, 24, 152), (232, 120, 40)
BLUE, RED, GREEN, STEEL = (36, 96, 196), (200, 44, 44), (44, 140, 68), (110, 118, 134)
MENU_GROUND = (192, 192, 192)  # replaced by the menus' own colour when a bitmap is loaded


class Canvas:
    """Samples of a square picture; shapes are given in units of which the picture has `units` across."""

    def __init__(self, size, units):
        self.size, self.fine = size, size * FINE
        self.scale = units / self.fine
        self.samples = [None] * (self.fine * self.fine)

    def shape(self, colour, inside):
        for row in range(self.fine):
            y = (row + 0.5) * self.scale
            for column in range(self.fine):
                if inside((column + 0.5) * self.scale, y):
                    self.samples[row * self.fine + column] = colour

    def box(self, colour, left, top, right, bottom, corner=0.0):
        def inside(x, y):
            if not (left <= x < right and top <= y < bottom):
                return False
            dx = max(left + corner - x, x - (right - corner), 0)
            dy = max(top + corner - y, y - (bottom - corner), 0)
            return dx * dx + dy * dy <= corner * corner or not (dx and dy)
        self.shape(colour, inside)

    def disc(self, colour, x0, y0, radius):
        self.shape(colour, lambda x, y: (x - x0) ** 2 + (y - y0) ** 2 <= radius * radius)

    def line(self, colour, x1, y1, x2, y2, width):
        length = math.hypot(x2 - x1, y2 - y1)

        def inside(x, y):
            t = max(0.0, min(1.0, ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length ** 2))
            return math.hypot(x - x1 - t * (x2 - x1), y - y1 - t * (y2 - y1)) <= width / 2
        self.shape(colour, inside)

    def pixel(self, column, row):
        """Red, green, blue and coverage (0 to 255) of one pixel."""
        hits = [self.samples[(row * FINE + y) * self.fine + column * FINE + x] for y in range(FINE) for x in range(FINE)]
        seen = [hit for hit in hits if hit is not None]
        if not seen:
            return 0, 0, 0, 0
        red, green, blue = (round(sum(hit[i] for hit in seen) / len(seen)) for i in range(3))
        return red, green, blue, round(255 * len(seen) / len(hits))


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


def icon_image(canvas):
    """One picture of an icon file: 32 bits a pixel for the systems that know them, with a mask for the others."""
    size = canvas.size
    rows = range(size - 1, -1, -1)
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = [[canvas.pixel(x, y) for x in range(size)] for y in range(size)]
    colours = b"".join(struct.pack("4B", b, g, r, a) for y in rows for r, g, b, a in pixels[y])
    pitch = (size + 31) // 32 * 4
    mask = b""
    for y in rows:
        bits = sum(1 << (pitch * 8 - 1 - x) for x in range(size) if pixels[y][x][3] < 128)
        mask += bits.to_bytes(pitch, "big")
    return header + colours + mask


def palette_image(canvas):
    """The same in 16 colours, for screens and systems without 32 bits a pixel."""
    palette = [(r, g, b) for b in (0, 128) for g in (0, 128) for r in (0, 128)]
    palette = palette[:7] + [(192, 192, 192), (128, 128, 128)] + [
        (255 if i & 1 else 0, 255 if i & 2 else 0, 255 if i & 4 else 0) for i in range(1, 8)]

    def nearest(r, g, b):
        return min(range(16), key=lambda i: (palette[i][0] - r) ** 2 + (palette[i][1] - g) ** 2 + (palette[i][2] - b) ** 2)
    size = canvas.size
    rows = range(size - 1, -1, -1)
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 4, 0, 0, 0, 0, 0, 0)
    table = b"".join(struct.pack("4B", b, g, r, 0) for r, g, b in palette)
    pixels = [[canvas.pixel(x, y) for x in range(size)] for y in range(size)]
    pitch, mask_pitch = (size * 4 + 31) // 32 * 4, (size + 31) // 32 * 4
    colours = mask = b""
    for y in rows:
        solid = [a >= 128 for _, _, _, a in pixels[y]]
        codes = [nearest(r, g, b) if solid[x] else 0 for x, (r, g, b, _) in enumerate(pixels[y])]
        colours += bytes(codes[x] << 4 | codes[x + 1] for x in range(0, size, 2)).ljust(pitch, b"\0")
        mask += sum(1 << (mask_pitch * 8 - 1 - x) for x in range(size) if not solid[x]).to_bytes(mask_pitch, "big")
    return header + table + colours + mask


def write_icon(name, canvases):
    images = [(canvas.size, 4, palette_image(canvas)) for canvas in canvases]
    images += [(canvas.size, 32, icon_image(canvas)) for canvas in canvases]
    data = struct.pack("<3H", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for size, bits, image in images:
        data += struct.pack("<4BHHII", size % 256, size % 256, 16 if bits == 4 else 0, 0, 1, bits, len(image), offset)
        offset += len(image)
    (RESOURCES / name).write_bytes(data + b"".join(image for _, _, image in images))


def write_bitmap(name, canvas):
    """24 bits a pixel on the menus' ground. The ground must be the bottom left pixel: the loader looks there for it."""
    size = canvas.size
    body = b""
    for y in range(size - 1, -1, -1):
        row = b""
        for x in range(size):
            r, g, b, a = canvas.pixel(x, y)
            mixed = [(c * a + ground * (255 - a) + 127) // 255 for c, ground in zip((r, g, b), MENU_GROUND)]
            row += bytes(reversed(mixed))
        body += row.ljust((size * 3 + 3) // 4 * 4, b"\0")
    info = struct.pack("<IiiHHIIiiII", 40, size, size, 1, 24, 0, len(body), 0, 0, 0, 0)
    file = struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54)
    (RESOURCES / name).write_bytes(file + info + body)


def main():
    RESOURCES.mkdir(exist_ok=True)
    write_icon("meridex.ico", [program_picture(size) for size in (16, 32, 48)])
    write_icon("information.ico", [information_picture(16)])
    write_bitmap("clear.bmp", clear_picture())
    write_bitmap("file.bmp", file_picture())
    write_bitmap("settings.bmp", settings_picture())
    write_bitmap("exit.bmp", exit_picture())


if __name__ == "__main__":
    main()
