"""Patterns that join themselves on all sides, for pictures that are tiled."""

import math

from canvas import HEIGHT, WIDTH


def scatter(dice, count, apart, others=(), others_apart=0):
    """Places that keep a distance from each other, also across the picture's edges."""
    places = []
    for _ in range(count * 60):
        x, y = dice.uniform(0, WIDTH), dice.uniform(0, HEIGHT)
        if len(places) < count and all(around(x, y, p, q) > apart for p, q in places) and \
                all(around(x, y, p, q) > others_apart for p, q in others):
            places.append((x, y))
    return places


def around(x, y, p, q):
    across, down = abs(x - p), abs(y - q)
    return math.hypot(min(across, WIDTH - across), min(down, HEIGHT - down))


def round_about(x, y, reach, draw):
    """Draws at a place, and again where the drawing leaves the picture and comes in on the other side."""
    for px in (x - WIDTH, x, x + WIDTH):
        for py in (y - HEIGHT, y, y + HEIGHT):
            if -reach < px < WIDTH + reach and -reach < py < HEIGHT + reach:
                draw(px, py)
