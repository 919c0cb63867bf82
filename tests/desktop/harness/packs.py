"""Wallpaper packs in the tests: pictures made for them, the bitmap beside one, and what the desktop says of it."""
import struct

from .desktop import Desktop_Test
from .geometry import Rect
from .picture import Picture, rgb

DESKTOP_KEY = "HKCU\\Control Panel\\Desktop"
PACK = "Sample"
PACKS_ON = {"Use Themes": 1, "Pack Name": PACK}

TODAY_COLOUR = rgb(16761024)
CENTRE, TILE, STRETCH = 0, 1, 2
REGISTRY_VALUES = {CENTRE: ("0", "0"), TILE: ("1", "0"), STRETCH: ("0", "2")}

RED, GREEN, BLUE, YELLOW = (200, 30, 40), (30, 180, 50), (40, 60, 210), (230, 220, 40)
FOUR = (RED, GREEN, BLUE, YELLOW)  # left and right above, left and right below
TOLERANCE = 4  # what the JPEG's coding may cost a plain colour
SIZE = (320, 256)  # a quarter of the screen's width and height

# Decoders round in ways of their own. Where a JPEG holds colour at half its width and height, as most do, each one also
# smooths it in its way: there only the means over the picture agree, that of the brightness closely.
PIXEL_TOLERANCE = 1
MEAN_TOLERANCE, MEAN_BRIGHTNESS_TOLERANCE = 1.0, 0.15


def save_quarters(path, colours=FOUR, size=SIZE):
    """A picture of four plain quarters; its format is the one that the path's ending names."""
    width, height = size
    rows = [bytes(left) * (width // 2) + bytes(right) * (width // 2) for left, right in (colours[:2], colours[2:])]
    Picture(width, height, rows[0] * (height // 2) + rows[1] * (height // 2)).save(path)


def save_slope(path, size):
    """A picture in which no two neighbours are equal, across or down."""
    width, height = size
    rows = (bytes(value for x in range(width) for value in (x * 255 // width, y * 255 // height, (x + y) % 256 // 2))
            for y in range(height))
    Picture(width, height, b"".join(rows)).save(path)


def quarter(rect, number):
    """Of a rectangle, the quarter that is the number's in FOUR, without its edges."""
    x, y = rect.centre
    left, right = ((rect.left, x), (x, rect.right))[number % 2]
    top, bottom = ((rect.top, y), (y, rect.bottom))[number // 2]
    return Rect(left, top, right, bottom).shrunk(4)


def differences(one, other):
    return [abs(a - b) for a, b in zip(one, other)]


def mean(values):
    return sum(values) / len(values)


def brightnesses(data):
    return [(299 * r + 587 * g + 114 * b) / 1000 for r, g, b in zip(data[0::3], data[1::3], data[2::3])]


class Bitmap:
    """A bitmap file, read without help."""

    def __init__(self, path):
        data = path.read_bytes()
        self.magic, self.file_size, _, self.start = struct.unpack_from("<2sIII", data)
        self.header, self.width, self.height, self.planes, self.bits, self.packing = struct.unpack_from("<IiiHHI", data, 14)
        self.length = len(data)
        pitch = (self.width * 3 + 3) // 4 * 4
        rows = []
        for row in reversed(range(self.height)):  # the first in the file is the lowest
            line = data[self.start + row * pitch:][:self.width * 3]
            bytes_of_row = bytearray(line)
            bytes_of_row[0::3], bytes_of_row[2::3] = line[2::3], line[0::3]
            rows.append(bytes(bytes_of_row))
        self.expected_length = self.start + pitch * self.height
        self.pixels = b"".join(rows)


class Wallpaper_Test(Desktop_Test):
    def world(self, lines=None, settings=None, **world):
        """A desktop with packs on; lines: what the pack's settings.ini says, None for no pack."""
        desktop = self.desktop(settings={**PACKS_ON, **(settings or {})}, **world)
        if lines is not None:
            self.pack(desktop).mkdir()
            (self.pack(desktop) / "settings.ini").write_text("".join(line + "\r\n" for line in lines), newline="")
        return desktop

    @staticmethod
    def pack(desktop):
        return desktop.folder / PACK

    @staticmethod
    def desktop_values(desktop):
        return tuple(desktop.prefix.registry_value(DESKTOP_KEY, name)
                     for name in ("Wallpaper", "TileWallpaper", "WallpaperStyle"))

    def wallpaper_is(self, desktop, month, mode):
        self.assertEqual(self.desktop_values(desktop), (f"C:\\Meridex\\{PACK}\\{month}.bmp", *REGISTRY_VALUES[mode]))

    @staticmethod
    def calendar_at(desktop, style, alignment, month):
        """Whether the calendar stands there, with the boxes of that style and of that month of 2004."""
        desktop.settings.update(Style=style, Alignment=alignment)
        layout = desktop.layout(2004, month)
        window = desktop.calendar_window()
        return window and all(abs(a - b) <= 1 for a, b in zip(window.rect, desktop.place(layout)))

    def assert_same_picture(self, one, other):
        """Of a picture with halved colour, as two decoders see it."""
        self.assertLess(mean(differences(one, other)), MEAN_TOLERANCE)
        self.assertLess(mean(differences(brightnesses(one), brightnesses(other))), MEAN_BRIGHTNESS_TOLERANCE)

    @staticmethod
    def bitmaps(desktop, pack=PACK):
        return sorted(path.name for path in (desktop.folder / pack).iterdir() if path.suffix.lower() == ".bmp")
