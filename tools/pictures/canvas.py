"""A canvas for small pictures: shapes on a fine grid, averaged down, so that each size is drawn anew and none is scaled."""
import math

FINE = 8  # samples a pixel, each way

WHITE, BLACK = (255, 255, 255), (0, 0, 0)
INK, PAPER, SHADE = (40, 46, 92), (252, 252, 255), (196, 202, 228)
TITLE, TODAY = (86, 24, 152), (232, 120, 40)
BLUE, RED, GREEN, STEEL = (36, 96, 196), (200, 44, 44), (44, 140, 68), (110, 118, 134)


class Canvas:
    """Samples of a picture; shapes are given in units of which the picture has `units` across, as many a pixel down."""

    def __init__(self, width, units, height=None, fine=FINE):
        self.width, self.height, self.grain = width, height or width, fine
        self.columns, self.rows = self.width * fine, self.height * fine
        self.scale = units / self.columns
        self.samples = [None] * (self.columns * self.rows)

    def shape(self, colour, inside, around=None):
        """Colours all samples for which `inside` holds. They lie in `around` (left, top, right, bottom), if it is given."""
        left, top, right, bottom = 0, 0, self.columns, self.rows
        if around:
            left, top = (max(0, math.floor(at / self.scale)) for at in around[:2])
            right = min(self.columns, math.ceil(around[2] / self.scale))
            bottom = min(self.rows, math.ceil(around[3] / self.scale))
        for row in range(top, bottom):
            y = (row + 0.5) * self.scale
            for column in range(left, right):
                if inside((column + 0.5) * self.scale, y):
                    self.samples[row * self.columns + column] = colour

    def box(self, colour, left, top, right, bottom, corner=0.0):
        def inside(x, y):
            if not (left <= x < right and top <= y < bottom):
                return False
            dx = max(left + corner - x, x - (right - corner), 0)
            dy = max(top + corner - y, y - (bottom - corner), 0)
            return dx * dx + dy * dy <= corner * corner or not (dx and dy)
        self.shape(colour, inside, (left, top, right, bottom))

    def disc(self, colour, x0, y0, radius):
        self.shape(colour, lambda x, y: (x - x0) ** 2 + (y - y0) ** 2 <= radius * radius,
                   (x0 - radius, y0 - radius, x0 + radius, y0 + radius))

    def line(self, colour, x1, y1, x2, y2, width):
        length = math.hypot(x2 - x1, y2 - y1)

        def inside(x, y):
            t = max(0.0, min(1.0, ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length ** 2))
            return math.hypot(x - x1 - t * (x2 - x1), y - y1 - t * (y2 - y1)) <= width / 2
        self.shape(colour, inside, (min(x1, x2) - width, min(y1, y2) - width, max(x1, x2) + width, max(y1, y2) + width))

    def polygon(self, colour, points):
        """A filled shape between corners, given in their order around it."""
        def inside(x, y):
            crossings = False
            for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
                if (y1 > y) != (y2 > y) and x < x1 + (y - y1) / (y2 - y1) * (x2 - x1):
                    crossings = not crossings
            return crossings
        across, down = [x for x, _ in points], [y for _, y in points]
        self.shape(colour, inside, (min(across), min(down), max(across), max(down)))

    def pixel(self, column, row):
        """Red, green, blue and coverage (0 to 255) of one pixel."""
        hits = []
        for line in range(row * self.grain, (row + 1) * self.grain):
            start = line * self.columns + column * self.grain
            hits += self.samples[start:start + self.grain]
        seen = [hit for hit in hits if hit is not None]
        if not seen:
            return 0, 0, 0, 0
        red, green, blue = (round(sum(hit[i] for hit in seen) / len(seen)) for i in range(3))
        return red, green, blue, round(255 * len(seen) / len(hits))


class Pixels:
    """A picture that is set pixel by pixel."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.colours = {}

    def fill(self, colour, left, top, right, bottom):
        for y in range(top, bottom):
            for x in range(left, right):
                self.colours[x, y] = colour

    def pixel(self, column, row):
        colour = self.colours.get((column, row))
        return (0, 0, 0, 0) if colour is None else (*colour, 255)
