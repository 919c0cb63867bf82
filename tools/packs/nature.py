"""What grows, floats and shines in the pictures: trees, clouds, stars, flowers, birds and boats."""

import math
import random

from canvas import HEIGHT, WIDTH, gradient, mix, smooth


def sky(stops, sun=None, clouds=None):
    """A field: a gradient down the rows, with a glow of (x, y, reach, colour, strength) and clouds of
    (noise, colour, from, to, amount, period) if given."""
    def colour_at(x, y):
        colour = gradient(stops, y)
        if clouds is not None:
            noise, cloud, low, high, amount, period = clouds
            thickness = smooth(noise.rough(x, y / 120, period, 5), low, high) * amount
            colour = mix(colour, cloud, thickness)
        if sun is not None:
            sun_x, sun_y, reach, light, strength = sun
            distance = math.hypot(x - sun_x, y - sun_y) / reach
            colour = mix(colour, light, strength * math.exp(-distance * distance * 2.2))
        return colour

    return colour_at


def stars(canvas, seed, count, lowest):
    dice = random.Random(seed)
    for _ in range(count):
        x, y = dice.uniform(0, WIDTH), dice.uniform(0, 1) ** 1.4 * lowest
        bright = dice.random() ** 3
        canvas.disc(x, y, 0.5 + bright * 0.9, (235, 240, 255), 0.25 + 0.7 * bright)
        if bright > 0.75:
            canvas.puff(x, y, 5, (200, 215, 255), 0.25)


def fir(canvas, x, foot, height, colour, snow=None, seed=0):
    """A fir tree of some drooping tiers, with snow on them if a colour is given."""
    dice = random.Random(seed * 7919 + int(x * 10))
    width = height * dice.uniform(0.34, 0.44)
    canvas.stroke(x, foot + height * 0.02, x, foot - height * 0.2, height * 0.045, mix(colour, (50, 34, 24), 0.6))
    tiers = max(5, int(height / 14))
    for tier in range(tiers):
        low = foot - height * 0.1 - height * 0.9 * tier / tiers
        reach = width / 2 * (1 - tier / tiers) ** 0.85 * dice.uniform(0.88, 1.08) + height * 0.008
        peak = low - height * 0.9 / tiers * 2.1
        tone = mix(colour, (0, 0, 0), 0.10 * (tier % 2))
        droop = height * 0.018
        canvas.polygon([(x - reach, low + droop), (x, peak), (x, low)], mix(tone, (255, 255, 255), 0.05))
        canvas.polygon([(x + reach, low + droop), (x, peak), (x, low)], mix(tone, (0, 0, 0), 0.14))
        if snow is not None:
            side = dice.uniform(0.6, 0.95)
            canvas.polygon([(x - reach * side, low + droop * 0.6), (x, peak),
                            (x - reach * 0.1, low - height * 0.022), (x - reach * 0.5, low - height * 0.012)], snow)
            canvas.polygon([(x + reach * 0.75, low + droop * 0.4), (x, peak),
                            (x + reach * 0.25, low - height * 0.018)], mix(snow, (70, 95, 140), 0.35))


def crown(canvas, x, y, radius, colours, seed, light=(-0.5, -0.7), leaves=None, largest=12.0):
    """A leafy crown of small discs, darker away from the light."""
    dice = random.Random(seed)
    for _ in range(int(radius * 7) if leaves is None else leaves):
        angle, reach = dice.uniform(0, math.tau), math.sqrt(dice.random())
        dx, dy = math.cos(angle) * reach, math.sin(angle) * reach * 0.86
        lit = dx * light[0] + dy * light[1]
        colour = dice.choice(colours)
        colour = mix(colour, (255, 246, 205), max(0.0, lit) * 0.38) if lit > 0 else mix(colour, (18, 20, 36), -lit * 0.55)
        canvas.disc(x + dx * radius, y + dy * radius, min(largest, radius * dice.uniform(0.04, 0.11)), colour, 0.92)


def tree(canvas, x, foot, height, colours, trunk, seed):
    """A tree with a trunk, some boughs and a crown of several rounds."""
    dice = random.Random(seed)
    top = foot - height
    canvas.stroke(x, foot, x + height * 0.01, top + height * 0.45, height * 0.055, trunk, 1, height * 0.03)
    rounds = [(0, 0.30, 0.27), (-0.2, 0.42, 0.2), (0.21, 0.40, 0.21), (-0.1, 0.22, 0.2), (0.12, 0.2, 0.19)]
    for dx, dy, _ in rounds:
        canvas.stroke(x, top + height * 0.6, x + dx * height, top + dy * height, height * 0.022, trunk, 1, height * 0.008)
    for i, (dx, dy, radius) in enumerate(rounds):
        crown(canvas, x + dx * height + dice.uniform(-2, 2), top + dy * height, radius * height, colours, seed * 10 + i)


def branches(canvas, x, y, length, angle, width, colour, dice, depth):
    """A bare tree: each bough parts into two or three thinner ones."""
    end_x, end_y = x + math.cos(angle) * length, y + math.sin(angle) * length
    canvas.stroke(x, y, end_x, end_y, width, colour, 1, width * 0.7)
    if depth == 0:
        return
    for turn in ((-0.42, 0.4) if dice.random() < 0.6 else (-0.55, 0.02, 0.5)):
        branches(canvas, end_x, end_y, length * dice.uniform(0.66, 0.82), angle + turn * dice.uniform(0.6, 1.25),
                 width * 0.66, colour, dice, depth - 1)


def wood(canvas, x, foot, size, colour, dice):
    """A far bare tree: a stem and a haze of twigs."""
    canvas.stroke(x, foot, x, foot - size, max(0.8, size * 0.05), colour)
    for _ in range(3):
        canvas.disc(x + dice.uniform(-0.2, 0.2) * size, foot - size * dice.uniform(0.75, 1.2), size * 0.32, colour, 0.33)


def cumulus(canvas, x, y, width, seed, top=(255, 255, 255), base=(196, 208, 226), strength=1.0):
    """A heap cloud with a flat base in shadow."""
    dice = random.Random(seed)
    puffs = []
    for _ in range(int(26 + width / 9)):
        across = dice.gauss(0, 0.24)
        rise = max(0.0, 1 - (abs(across) / 0.55) ** 1.6) * dice.random() ** 0.8
        puffs.append((x + across * width, y - rise * width * 0.24, width * dice.uniform(0.05, 0.105), rise))
    for cloud_x, cloud_y, radius, _ in puffs:
        canvas.puff(cloud_x, cloud_y + radius * 0.55, radius * 1.15, base, 0.5 * strength, 0.62, rings=14)
    for cloud_x, cloud_y, radius, rise in sorted(puffs, key=lambda puff: puff[3]):
        canvas.puff(cloud_x - radius * 0.1, cloud_y - radius * 0.2, radius, mix(base, top, 0.45 + 0.55 * rise),
                    0.75 * strength, 0.8, rings=16)


def grass(canvas, top, seed, count, colours, tall, lean=0.25, bottom=HEIGHT + 30):
    """Blades on the ground below top(x), larger towards the bottom of the picture."""
    dice = random.Random(seed)
    blades = []
    for _ in range(count):
        x, part = dice.uniform(-10, WIDTH + 10), dice.random()
        first = top(min(WIDTH - 1, max(0, x)))
        blades.append((first + (bottom - first) * part, x, part))
    for y, x, part in sorted(blades):
        size = tall * (0.25 + 0.75 * part) * dice.uniform(0.6, 1.2)
        bend = size * dice.gauss(0, lean)
        colour = mix(dice.choice(colours), (0, 0, 0), dice.uniform(0, 0.18))
        canvas.stroke(x, y, x + bend, y - size, 0.8 + 1.6 * part, colour, 1, 0.4)


def blossom(canvas, x, y, radius, petals, colour, heart, turn=0.0, deep=None):
    """A flower seen from above; petals deepen towards the heart if a colour is given."""
    for petal in range(petals):
        angle = turn + math.tau * petal / petals
        centre_x, centre_y = x + math.cos(angle) * radius * 0.56, y + math.sin(angle) * radius * 0.56
        tone = mix(colour, (0, 0, 0), 0.035 * (petal % 2))
        canvas.ellipse(centre_x, centre_y, radius * 0.5, radius * 1.55 / petals + radius * 0.04, angle, tone)
        if deep is not None:
            canvas.ellipse(x + math.cos(angle) * radius * 0.36, y + math.sin(angle) * radius * 0.36, radius * 0.24,
                           radius * 0.5 / petals, angle, deep, 0.55)
    canvas.disc(x, y, radius * 0.2, mix(heart, (0, 0, 0), 0.18))
    canvas.disc(x - radius * 0.03, y - radius * 0.03, radius * 0.16, heart)


def leaf(canvas, x, y, length, angle, colour, vein=None):
    canvas.ellipse(x, y, length / 2, length * 0.19, angle, colour)
    dx, dy = math.cos(angle), math.sin(angle)
    canvas.ellipse(x + dy * length * 0.06, y - dx * length * 0.06, length * 0.42, length * 0.09, angle,
                   mix(colour, (255, 255, 220), 0.18), 0.7)
    canvas.stroke(x - dx * length / 2, y - dy * length / 2, x + dx * length / 2, y + dy * length / 2, length * 0.03,
                  mix(colour, (40, 30, 10), 0.35) if vein is None else vein)


def birds(canvas, seed, count, x, y, spread, colour):
    dice = random.Random(seed)
    for _ in range(count):
        bird_x, bird_y = x + dice.gauss(0, spread), y + dice.gauss(0, spread * 0.35)
        span = dice.uniform(5, 10)
        lift = span * dice.uniform(0.25, 0.55)
        for side in (-1, 1):
            canvas.stroke(bird_x, bird_y, bird_x + side * span * 0.5, bird_y - lift, 1.7, colour, 1, 1.2)
            canvas.stroke(bird_x + side * span * 0.5, bird_y - lift, bird_x + side * span, bird_y - lift * 0.75, 1.2,
                          colour, 1, 0.5)


def snowfall(canvas, seed, count, alpha=0.75):
    dice = random.Random(seed)
    for _ in range(count):
        size = 0.7 + 2.6 * dice.random() ** 3
        x, y = dice.uniform(0, WIDTH), dice.uniform(0, HEIGHT)
        if size > 2.2:
            canvas.puff(x, y, size * 1.5, (255, 255, 255), alpha)
        else:
            canvas.disc(x, y, size, (255, 255, 255), alpha * dice.uniform(0.4, 1))


def glitter(canvas, seed, count, top, bottom, centre, spread, colour, alpha=0.6):
    """Light on water: flat dashes that grow towards the bottom, densest below the light."""
    dice = random.Random(seed)
    for _ in range(count):
        part = dice.random()
        y = top + (bottom - top) * part ** 1.3
        x = centre + dice.gauss(0, spread * (0.35 + part))
        length = (4 + 34 * part) * dice.uniform(0.4, 1.2)
        canvas.ellipse(x, y, length, 0.5 + 1.2 * part, 0, colour, alpha * dice.uniform(0.25, 1))
