"""The pack Default: quiet land, ridge behind ridge, each month in its own light."""

import math
import random

from canvas import HEIGHT, WIDTH, Noise, mix, smooth
from nature import birds, cumulus, fir, glitter, sky, snowfall, stars


class View:
    """What makes one month's picture. Rows count from the top; colours go from far to near."""

    def __init__(self, seed, heavens, far, near, light=None, ridges=7, first=420, last=900, rise=70, jagged=0.0, clouds=None,
                 haze=None, trees=0.0, leafy=False, extras=None):
        self.seed, self.heavens, self.far, self.near = seed, heavens, far, near
        self.light, self.ridges, self.first, self.last = light, ridges, first, last
        self.rise, self.jagged, self.clouds, self.haze = rise, jagged, clouds, haze
        self.trees, self.leafy, self.extras = trees, leafy, extras

    def draw(self, canvas):
        noise = Noise(self.seed)
        clouds = None if self.clouds is None else (noise,) + self.clouds
        canvas.field(sky(self.heavens, self.light[:5] if self.light else None, clouds))
        if self.light:
            x, y, radius = self.light[0], self.light[1], self.light[5]
            canvas.puff(x, y, radius * 1.5, self.light[3], 0.3, rings=30)
            canvas.disc(x, y, radius, mix(self.light[3], (255, 255, 255), 0.6))
        if self.extras:
            self.extras(canvas, 0.0)
        for ridge in range(self.ridges):
            part = ridge / (self.ridges - 1)
            self.ridge(canvas, noise, ridge, part)
            if self.extras and ridge == self.ridges // 2:
                self.extras(canvas, 0.5)
        if self.extras:
            self.extras(canvas, 1.0)

    def ridge(self, canvas, noise, number, part):
        base = self.first + (self.last - self.first) * part ** 1.15
        rise = self.rise * (1 - 0.35 * part)
        waves = 2 + number % 3

        def height(x):
            soft = noise.rough(x, 13 * number + 3, waves, 4, 0.42)
            sharp = 1 - 2 * abs(noise.rough(x, 31 * number + 5, waves + 1, 5, 0.5))
            fading = self.jagged * (1 - part) ** 0.7
            return base - rise * (soft * (1 - fading) + sharp * fading)

        colour = mix(self.far, self.near, part)
        haze = self.haze or self.heavens[-1][1]
        canvas.ridge(height, [(base - rise, colour), (base + 150, mix(colour, haze, 0.42 * (1 - part) + 0.06))])
        if self.trees and part > 0.35:
            self.plant(canvas, noise, number, part, height, colour)

    def plant(self, canvas, noise, number, part, height, colour):
        """Trees on a ridge, larger on the near ones, with clearings between them."""
        dice = random.Random(self.seed * 100 + number)
        size = 14 + 70 * (part - 0.35)
        places = [dice.uniform(-20, WIDTH + 20) for _ in range(int(self.trees * 110 * (1.3 - part)))]
        for x in places:
            if noise.at(x, number * 3.0, 6) <= -0.25:
                continue
            foot = height(min(WIDTH - 1, max(0, x))) + size * 0.12
            if self.leafy:
                radius = size * dice.uniform(0.22, 0.42)
                canvas.stroke(x, foot + 2, x, foot - radius, radius * 0.2, mix(colour, (60, 44, 30), 0.5))
                canvas.disc(x, foot - radius * 1.3, radius, mix(colour, (0, 0, 0), 0.16))
                canvas.puff(x - radius * 0.25, foot - radius * 1.55, radius * 0.75, mix(colour, (255, 255, 210), 0.3), 0.5)
            else:
                fir(canvas, x, foot, size * dice.uniform(0.55, 1.25), mix(colour, (0, 0, 0), 0.12), None, number)


def snow_in_front(canvas, part):
    if part == 1.0:
        snowfall(canvas, 21, 520, 0.65)


def first_stars(canvas, part):
    if part == 0.0:
        stars(canvas, 22, 260, 420)


def spring_clouds(canvas, part):
    if part == 0.0:
        for x, y, width, seed in [(250, 210, 380, 41), (860, 140, 460, 42), (1140, 320, 260, 43), (560, 330, 240, 44)]:
            cumulus(canvas, x, y, width, seed, (255, 255, 252), (190, 210, 230))
    if part == 1.0:
        birds(canvas, 5, 6, 470, 240, 50, (84, 110, 120))


def sea(horizon, tint, strength, light_x, light, seed):
    """Water over everything below the horizon, with the light on it."""
    def draw(canvas, part):
        if part == 1.0:
            canvas.mirror(horizon, tint, strength)
            dice = random.Random(seed)
            for _ in range(2400):
                depth = dice.random()
                canvas.ellipse(dice.uniform(0, WIDTH), horizon + 2 + (HEIGHT - horizon) * depth ** 1.4, 8 + 60 * depth,
                               0.5 + 1.2 * depth, 0, mix(tint, light, dice.random()), 0.14)
            glitter(canvas, seed, 700, horizon + 4, HEIGHT, light_x, 70, light, 0.55)
            canvas.veil(horizon - 16, horizon + 1, light, 0.0, 0.25)
    return draw


def balloons(canvas, part):
    """Hot-air balloons in the morning."""
    if part != 0.5:
        return
    for x, y, size, colours in [(360, 300, 74, ((226, 92, 70), (250, 206, 120))), (930, 220, 50, ((70, 120, 176), (240, 236, 220))),
                                (660, 420, 30, ((240, 170, 80), (196, 84, 90))), (1120, 400, 22, ((110, 150, 110), (244, 230, 190)))]:
        envelope(canvas, x, y, size, colours)
        canvas.stroke(x - size * 0.3, y + size * 1.02, x - size * 0.12, y + size * 1.5, 1, (90, 70, 60))
        canvas.stroke(x + size * 0.3, y + size * 1.02, x + size * 0.12, y + size * 1.5, 1, (90, 70, 60))
        canvas.polygon([(x - size * 0.13, y + size * 1.48), (x + size * 0.13, y + size * 1.48), (x + size * 0.1, y + size * 1.68),
                        (x - size * 0.1, y + size * 1.68)], (120, 84, 56))


def envelope(canvas, x, y, size, colours):
    """A balloon's hull, column by column: round above, drawn in below, in upright stripes."""
    for column in range(int((x - size) * 2), int((x + size) * 2) + 1):
        across = (column / 2 - x) / size
        if abs(across) >= 1:
            continue
        top = y - size * math.sqrt(1 - across * across)
        low = y + size * (1.12 - 0.95 * abs(across) ** 2.2) * (1 if abs(across) > 0.3 else 1 - 0.06 * (1 - abs(across) / 0.3))
        stripe = int((math.asin(across) / math.pi + 0.5) * 10)
        colour = mix(colours[stripe % 2], (255, 250, 235), max(0.0, 0.25 - abs(across + 0.35) * 0.4))
        colour = mix(colour, (50, 36, 60), max(0.0, across) * 0.35)
        canvas.span(column, round(top * 2), round(low * 2), colour)


def dunes(canvas, part):
    if part == 1.0:
        birds(canvas, 14, 5, 380, 250, 60, (120, 76, 60))


def geese(canvas, part):
    """A wedge of geese on its way south."""
    if part != 1.0:
        return
    for i in range(13):
        side = -1 if i % 2 else 1
        row = (i + 1) // 2
        x, y = 430 + row * 34, 210 + side * row * 15 + row * 3
        beat = 0.5 + 0.5 * math.sin(i * 1.9)
        canvas.ellipse(x, y, 8, 1.8, 0.05, (74, 60, 64))
        canvas.stroke(x - 6, y, x - 15, y - 1.5, 2, (74, 60, 64), 1, 1.2)
        for lean, lift in ((5, 10 + 5 * beat), (10, 6 + 6 * beat)):
            canvas.stroke(x, y, x + lean, y - lift, 3.6, mix((74, 60, 64), (150, 130, 120), 0.25 if lean > 5 else 0.0), 1, 0.8)


def aurora(canvas, part):
    """Northern lights over the snow."""
    if part != 0.0:
        return
    stars(canvas, 33, 420, 560)
    noise = Noise(34)
    for band, (base, tall, colour) in enumerate([(400, 250, (90, 230, 170)), (330, 280, (70, 200, 190)), (250, 230, (150, 130, 220))]):
        for column in range(WIDTH * 2):
            x = column / 2
            foot = base + 80 * noise.rough(x, 5 + band * 4, 2, 3, 0.4)
            strength = smooth(noise.rough(x, 40 + band * 7, 3, 3), -0.6, 0.9) * (0.75 + 0.25 * noise.at(x, 3 + band, 90))
            for piece in range(20):
                rise = piece / 20
                alpha = 0.62 * strength * (1 - rise) ** 1.6 * smooth(rise, -0.02, 0.14)
                canvas.span(column, (foot - tall * (rise + 0.05)) * 2, (foot - tall * rise) * 2, mix(colour, (170, 120, 220), rise * 0.7), alpha)


VIEWS = [
    View(1, [(0, (58, 92, 150)), (260, (132, 168, 208)), (470, (232, 222, 226)), (560, (246, 230, 222))], (190, 204, 226), (42, 72, 112),
         (940, 400, 360, (255, 240, 220), 0.7, 34), rise=120, jagged=0.9, clouds=((240, 236, 244), 0.1, 0.9, 0.5, 3), trees=0.5,
         extras=snow_in_front),
    View(2, [(0, (44, 38, 92)), (240, (112, 82, 142)), (430, (212, 132, 150)), (540, (250, 186, 150))], (186, 128, 160), (34, 28, 66),
         (420, 470, 330, (255, 220, 180), 0.8, 40), rise=80, jagged=0.5, clouds=((240, 160, 160), 0.1, 0.9, 0.55, 3), extras=first_stars),
    View(3, [(0, (110, 170, 208)), (300, (190, 222, 228)), (520, (240, 244, 226))], (176, 208, 200), (56, 110, 92),
         (300, 300, 420, (255, 252, 226), 0.7, 36), rise=84, jagged=0.35, clouds=((255, 255, 255), 0.0, 0.9, 0.6, 3), trees=0.7),
    View(4, [(0, (84, 158, 220)), (320, (166, 212, 240)), (540, (228, 244, 240))], (164, 206, 180), (60, 136, 66), rise=62, first=470,
         extras=spring_clouds),
    View(5, [(0, (96, 172, 210)), (300, (180, 220, 224)), (520, (252, 244, 206))], (176, 206, 150), (66, 126, 54),
         (980, 380, 420, (255, 250, 214), 0.8, 38), rise=72, first=440, last=860, clouds=((255, 255, 250), 0.2, 1.0, 0.5, 2), trees=1.0, leafy=True),
    View(6, [(0, (34, 120, 170)), (280, (104, 190, 206)), (500, (224, 240, 216))], (110, 178, 186), (22, 92, 108),
         (640, 330, 400, (255, 252, 220), 0.8, 44), ridges=4, first=470, last=600, rise=70, jagged=0.6,
         clouds=((240, 250, 250), 0.15, 1.0, 0.5, 3), extras=sea(640, (20, 100, 130), 0.34, 640, (250, 252, 226), 61)),
    View(7, [(0, (70, 136, 206)), (280, (150, 200, 232)), (520, (254, 232, 196))], (206, 190, 170), (90, 104, 60), rise=60, first=500,
         light=(200, 440, 420, (255, 240, 200), 0.8, 36), clouds=((255, 246, 230), 0.25, 1.1, 0.5, 3), trees=0.7, leafy=True,
         extras=balloons),
    View(8, [(0, (66, 124, 178)), (280, (196, 196, 186)), (480, (252, 214, 154))], (244, 196, 136), (176, 84, 44),
         (880, 360, 420, (255, 240, 200), 0.9, 48), ridges=6, rise=92, first=450, last=860, haze=(255, 214, 150),
         clouds=((255, 226, 190), 0.3, 1.1, 0.45, 2), extras=dunes),
    View(9, [(0, (108, 138, 176)), (260, (204, 194, 184)), (480, (252, 218, 164))], (220, 180, 140), (104, 62, 40),
         (300, 400, 420, (255, 240, 206), 0.9, 42), rise=76, jagged=0.4, clouds=((250, 220, 190), 0.05, 0.9, 0.55, 3), extras=geese),
    View(10, [(0, (92, 66, 104)), (240, (186, 96, 96)), (430, (244, 150, 82)), (540, (255, 206, 116))], (226, 126, 84), (58, 26, 40),
         (760, 480, 360, (255, 226, 150), 0.9, 52), rise=88, jagged=0.6, clouds=((250, 160, 100), 0.0, 0.9, 0.6, 3), trees=0.8),
    View(11, [(0, (98, 112, 126)), (280, (158, 168, 176)), (520, (214, 216, 214))], (178, 188, 194), (38, 52, 62),
         (560, 350, 300, (240, 240, 232), 0.6, 30), rise=86, jagged=0.6, clouds=((120, 132, 146), -0.3, 0.9, 0.5, 2), haze=(214, 218, 218),
         trees=1.0),
    View(12, [(0, (6, 14, 44)), (300, (16, 44, 92)), (560, (50, 96, 136))], (82, 124, 168), (12, 26, 58), rise=104, jagged=0.9, first=520,
         last=920, trees=0.6, extras=aurora),
]

MONTHS = [view.draw for view in VIEWS]
