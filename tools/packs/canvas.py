"""A canvas for drawing landscapes with nothing but the standard library.

The picture is kept in three planes, column by column, at twice its final size: hills, trees, mist and water are made of
upright spans, and a span is one slice. A span is blended by a table of 256 values. Coordinates are in points of the
final picture, floats allowed; colours are (red, green, blue) from 0 to 255.
"""

import math
import random
import subprocess

WIDTH, HEIGHT = 1280, 1024
SCALE = 2
COLUMNS, ROWS = WIDTH * SCALE, HEIGHT * SCALE
FIELD_STEP = 16  # rows and columns between two samples of a field


def mix(a, b, part):
    """The colour that lies at `part` (0 to 1) of the way from a to b."""
    return tuple(x + (y - x) * part for x, y in zip(a, b))


def gradient(stops, at):
    """The colour at a place of a list of (place, colour), which is sorted by place."""
    if at <= stops[0][0]:
        return stops[0][1]
    for (place, colour), (next_place, next_colour) in zip(stops, stops[1:]):
        if at <= next_place:
            part = (at - place) / (next_place - place)
            return mix(colour, next_colour, part)
    return stops[-1][1]


def smooth(value, low, high):
    """0 below low, 1 above high, and a soft rise between them."""
    part = min(1.0, max(0.0, (value - low) / (high - low)))
    return part * part * (3 - 2 * part)


class Noise:
    """Smooth noise between -1 and 1 that repeats across the picture's width."""

    def __init__(self, seed):
        self.dice = random.Random(seed)
        self.values = [self.dice.uniform(-1, 1) for _ in range(4096)]

    def at(self, x, y=0.0, period=8):
        """Noise with `period` waves across the width; y counts in the same waves."""
        column = x / WIDTH * period
        left, top = math.floor(column), math.floor(y)
        across, down = column - left, y - top
        across, down = across * across * (3 - 2 * across), down * down * (3 - 2 * down)

        def corner(i, j):
            return self.values[((i % period) * 73 + j * 619 + period * 31) % 4096]

        above = corner(left, top) + (corner(left + 1, top) - corner(left, top)) * across
        below = corner(left, top + 1) + (corner(left + 1, top + 1) - corner(left, top + 1)) * across
        return above + (below - above) * down

    def rough(self, x, y=0.0, period=4, octaves=5, keep=0.5):
        """A sum of finer and finer waves; `keep` is what each is of the one before."""
        total, height = 0.0, 1.0
        for octave in range(octaves):
            total += self.at(x, y * 2 ** octave + octave * 17, period * 2 ** octave) * height
            height *= keep
        return total


class Canvas:
    def __init__(self):
        self.planes = [bytearray(COLUMNS * ROWS) for _ in range(3)]

    # Spans: the one way in which anything gets onto the canvas.

    def span(self, column, top, bottom, colour, alpha=1.0):
        """Rows top to bottom (canvas units) of a column in one colour."""
        top, bottom = max(0, int(top)), min(ROWS, int(bottom))
        if top >= bottom or not 0 <= column < COLUMNS:
            return
        start, end = column * ROWS + top, column * ROWS + bottom
        if alpha >= 1.0:
            for plane, value in zip(self.planes, colour):
                plane[start:end] = bytes([int(value)]) * (end - start)
        else:
            for plane, value in zip(self.planes, colour):
                plane[start:end] = plane[start:end].translate(blend_table(value, alpha))

    # Skies and other soft fields.

    def field(self, function):
        """Fills the picture with function(x, y) -> colour, sampled on a coarse grid and smoothed between."""
        dice = random.Random(1)
        grain = [dice.random() for _ in range(9973)]
        samples = [field_column(function, i * FIELD_STEP) for i in range(COLUMNS // FIELD_STEP + 1)]
        for i in range(COLUMNS // FIELD_STEP):
            for step in range(FIELD_STEP):
                part = step / FIELD_STEP
                column = i * FIELD_STEP + step
                offset = (column * 1237) % 5000
                for plane, left, right in zip(self.planes, samples[i], samples[i + 1]):
                    plane[column * ROWS:(column + 1) * ROWS] = bytes(
                        [int(a + (b - a) * part + g) for a, b, g in zip(left, right, grain[offset:])])

    # Land.

    def ridge(self, height, stops, shade=None):
        """Land below height(x), coloured by the row through stops of (y, colour). shade(x, slope) gives a factor for the
        column's light, 1 for none."""
        tops = [height(column / SCALE) * SCALE for column in range(COLUMNS)]
        strips = {}
        for column, top in enumerate(tops):
            slope = (tops[min(COLUMNS - 1, column + 3)] - tops[max(0, column - 3)]) / 6
            light = 1.0 if shade is None else shade(column / SCALE, slope)
            key = round(light * 512)
            if key not in strips:
                strips[key] = row_strip(stops, key / 512)
            first = max(0, math.ceil(top))
            if first >= ROWS:
                continue
            start, end = column * ROWS + first, (column + 1) * ROWS
            for plane, strip in zip(self.planes, strips[key]):
                plane[start:end] = strip[first:]
            if first > 0:  # the row that the edge cuts
                edge = tuple(strip[first - 1] for strip in strips[key])
                self.span(column, first - 1, first, edge, first - top)

    def veil(self, top, bottom, colour, alpha_top, alpha_bottom, height=None):
        """Mist: a band across the picture that thickens from its top to its bottom, above land of `height` if given."""
        bands = 48
        for band in range(bands):
            alpha = alpha_top + (alpha_bottom - alpha_top) * (band + 0.5) / bands
            first = (top + (bottom - top) * band / bands) * SCALE
            last = (top + (bottom - top) * (band + 1) / bands) * SCALE
            for column in range(COLUMNS):
                shift = 0 if height is None else height(column / SCALE) * SCALE
                self.span(column, first + shift, last + shift, colour, alpha)

    def mirror(self, horizon, tint, strength, depth=None):
        """Water below the horizon: what stands above it, upside down, tinted."""
        rows = round((HEIGHT - horizon if depth is None else depth) * SCALE)
        level = round(horizon * SCALE)
        for plane, value in zip(self.planes, tint):
            table = blend_table(value, strength)
            for column in range(COLUMNS):
                base = column * ROWS
                above = plane[base + max(0, level - rows):base + level][::-1]
                plane[base + level:base + level + len(above)] = above.translate(table)

    # Shapes.

    def disc(self, x, y, radius, colour, alpha=1.0, flat=1.0):
        """A disc, or with `flat` below 1 one pressed from above."""
        x, y, radius = x * SCALE, y * SCALE, radius * SCALE
        for column in range(math.ceil(x - radius), math.floor(x + radius) + 1):
            reach = math.sqrt(max(0.0, radius * radius - (column - x) ** 2)) * flat
            self.span(column, round(y - reach), round(y + reach), colour, alpha)

    def puff(self, x, y, radius, colour, alpha, flat=1.0, rings=8):
        """A disc that fades towards its edge."""
        for ring in range(rings):
            self.disc(x, y, radius * (1 - ring / rings), colour, alpha / rings * 1.6, flat)

    def polygon(self, points, colour, alpha=1.0):
        """A filled polygon whose columns are each one span."""
        points = [(x * SCALE, y * SCALE) for x, y in points]
        for column in range(math.floor(min(x for x, _ in points)), math.ceil(max(x for x, _ in points)) + 1):
            cuts = [crossing(a, b, column) for a, b in zip(points, points[1:] + points[:1])]
            cuts = [cut for cut in cuts if cut is not None]
            if len(cuts) > 1:
                self.span(column, round(min(cuts)), round(max(cuts)), colour, alpha)

    def stroke(self, x1, y1, x2, y2, width, colour, alpha=1.0, end_width=None):
        """A straight stroke, with `end_width` one that grows thinner or thicker."""
        end_width = width if end_width is None else end_width
        length = math.hypot(x2 - x1, y2 - y1) or 1.0
        across, down = (y2 - y1) / length, -(x2 - x1) / length
        self.polygon([(x1 + across * width / 2, y1 + down * width / 2),
                      (x1 - across * width / 2, y1 - down * width / 2),
                      (x2 - across * end_width / 2, y2 - down * end_width / 2),
                      (x2 + across * end_width / 2, y2 + down * end_width / 2)], colour, alpha)

    def ellipse(self, x, y, long, short, angle, colour, alpha=1.0):
        """An ellipse with half axes long and short, turned by angle (radians)."""
        points = [(x + long * math.cos(t) * math.cos(angle) - short * math.sin(t) * math.sin(angle),
                   y + long * math.cos(t) * math.sin(angle) + short * math.sin(t) * math.cos(angle))
                  for t in (math.pi * 2 * i / 24 for i in range(24))]
        self.polygon(points, colour, alpha)

    # Out.

    def save(self, path, quality):
        """Writes the picture as a JPEG, by cjpeg and djpeg, which also halves it."""
        rows = bytearray(COLUMNS * ROWS * 3)
        for channel, plane in enumerate(self.planes):
            for row in range(ROWS):
                start = row * COLUMNS * 3 + channel
                rows[start:start + COLUMNS * 3:3] = plane[row::ROWS]
        bitmap = b"P6 %d %d 255\n" % (COLUMNS, ROWS) + bytes(rows)
        large = run(["cjpeg", "-quality", "98", "-sample", "1x1"], bitmap)
        halved = run(["djpeg", "-ppm", "-scale", f"1/{SCALE}"], large)
        with open(path, "wb") as file:
            file.write(run(["cjpeg", "-quality", str(quality), "-optimize"], halved))


def run(command, data):
    return subprocess.run(command, input=data, stdout=subprocess.PIPE, check=True).stdout


tables = {}


def blend_table(value, alpha):
    key = (int(value), round(alpha * 500))
    if key not in tables:
        part = key[1] / 500
        tables[key] = bytes(min(255, max(0, round(old + (key[0] - old) * part))) for old in range(256))
    return tables[key]


def row_strip(stops, light):
    """Three planes of one column, coloured by the row."""
    colours = [gradient(stops, row / SCALE) for row in range(ROWS)]
    return [bytes(min(255, max(0, round(colour[channel] * light))) for colour in colours) for channel in range(3)]


def field_column(function, column):
    """A field's three channels down one column, smoothed between its samples."""
    samples = [function(column / SCALE, row / SCALE) for row in range(0, ROWS + FIELD_STEP, FIELD_STEP)]
    channels = []
    for channel in range(3):
        values = []
        for above, below in zip(samples, samples[1:]):
            a, b = min(254.0, max(0.0, above[channel])), min(254.0, max(0.0, below[channel]))
            values += [a + (b - a) * step / FIELD_STEP for step in range(FIELD_STEP)]
        channels.append(values[:ROWS])
    return channels


def crossing(a, b, column):
    """Where an edge crosses a column; None if it doesn't."""
    (x1, y1), (x2, y2) = a, b
    if x1 == x2 or not min(x1, x2) <= column <= max(x1, x2):
        return None
    return y1 + (y2 - y1) * (column - x1) / (x2 - x1)
