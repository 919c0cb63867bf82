"""Winter scenes of the pack Seasons."""

import math
import random

from canvas import WIDTH, Noise, mix, smooth
from nature import branches, fir, sky, snowfall, stars, wood


def january(canvas):
    """High mountains at sunrise, firs in the snow."""
    noise = Noise(101)
    canvas.field(sky([(0, (52, 84, 150)), (260, (120, 152, 204)), (470, (244, 196, 186)), (600, (255, 226, 190))],
                     sun=(980, 520, 420, (255, 214, 160), 0.8), clouds=(noise, (250, 214, 214), 0.1, 0.9, 0.55, 3)))

    def peaks(x):
        return 420 - 230 * (1 - abs(noise.at(x, 3, 5))) ** 2 - 60 * noise.rough(x, 9, 9, 5, 0.55)

    snow_peaks(canvas, peaks, 11, (255, 232, 222), (132, 150, 196), (112, 122, 160), 640)

    def near_peaks(x):
        return 560 - 150 * (1 - abs(noise.at(x, 5, 7))) ** 2 - 40 * noise.rough(x, 29, 11, 5, 0.5)

    snow_peaks(canvas, near_peaks, 12, (240, 230, 238), (112, 136, 188), (84, 100, 146), 760)
    canvas.veil(560, 740, (226, 222, 238), 0.0, 0.7)
    for layer, (base, size, count) in enumerate([(720, 46, 90), (770, 80, 60)]):
        dice = random.Random(40 + layer)

        def ground(x):
            return base + 26 * noise.rough(x, 50 + layer, 3, 3)

        canvas.ridge(ground, [(base - 30, (222, 228, 244)), (base + 120, (190, 204, 234))])
        for x in sorted((dice.uniform(0, WIDTH) for _ in range(count)), key=lambda x: dice.random()):
            fir(canvas, x, ground(x) + dice.uniform(2, 16), size * dice.uniform(0.6, 1.25),
                mix((40, 66, 92), (150, 170, 205), 0.45 - 0.3 * layer), (226, 232, 246), layer)
        canvas.veil(base - 60, base + 60, (214, 222, 242), 0.0, 0.28)

    def front(x):
        return 860 + 40 * math.sin(x / WIDTH * math.tau + 0.8) + 16 * noise.rough(x, 70, 4, 3)

    canvas.ridge(front, [(800, (250, 246, 248)), (900, (226, 232, 248)), (1024, (176, 194, 232))],
                 shade=lambda x, slope: 1.0 - 0.05 * slope)
    for x, foot, height in [(110, 905, 330), (232, 935, 230), (30, 960, 260), (1120, 930, 300), (1222, 960, 380),
                            (1030, 950, 170), (330, 960, 130)]:
        canvas.disc(x - height * 0.1, foot + 6, height * 0.24, (140, 160, 208), 0.5, 0.16)
        fir(canvas, x, foot, height, (26, 52, 66), (244, 246, 252), 5)


def snow_peaks(canvas, height, seed, lit, shadow, rock, foot):
    """Mountains with spurs that run down from the ridge, lit from the right, rock showing through below."""
    noise = Noise(seed)
    step = 2
    for left in range(0, WIDTH, step):
        x = left + step / 2
        top = height(x)
        lean = (height(min(WIDTH - 1.0, x + 26)) - height(max(0.0, x - 26))) / 52
        rows = []
        for down in range(int((foot - top) / 4) + 2):
            depth = down * 4
            spread = 1 + depth / 500
            face = relief(noise, x + 3.2, depth, spread) - relief(noise, x - 3.2, depth, spread)
            fade = math.exp(-depth / 170)
            light = smooth(lean * 1.5 * fade + face * 3.6, -0.75, 0.75)
            part = depth / max(60.0, foot - top)
            bare = smooth(part + 0.32 * noise.rough(x, depth / 42, 30, 4) - 0.35 * light, 0.35, 0.95)
            rows.append(mix(mix(shadow, lit, light), mix(rock, lit, 0.22 * light), bare * 0.7))
        for column in range(left * 2, left * 2 + step * 2):
            start = height(column / 2) * 2
            for i, (above, below) in enumerate(zip(rows, rows[1:])):
                for half in range(4):
                    first = start + i * 8 + half * 2
                    canvas.span(column, math.ceil(first), math.ceil(first + 2), mix(above, below, half / 4))
            edge = math.ceil(start)
            canvas.span(column, edge - 1, edge, rows[0], edge - start)


def relief(noise, x, depth, spread):
    """How far a mountain's face stands out at a place: spurs and gullies, wider further down."""
    bend = x + 26 * noise.at(x, depth / 130, 9)
    return (0.55 * (1 - abs(noise.at(bend / spread, depth / 330, 14))) + 0.3 * (1 - abs(noise.at(bend, depth / 150 + 7, 31))) +
            0.16 * noise.at(bend, depth / 60, 70))


def february(canvas):
    """A bare tree on white hills, soft snow falling on a lilac evening."""
    noise = Noise(202)
    canvas.field(sky([(0, (126, 132, 176)), (330, (188, 178, 206)), (560, (242, 206, 204)), (700, (250, 224, 210))],
                     sun=(380, 560, 300, (255, 234, 204), 0.75), clouds=(noise, (236, 222, 230), -0.2, 0.9, 0.6, 2)))
    canvas.disc(380, 556, 40, (255, 246, 226), 0.85)
    for layer in range(4):
        base = 600 + layer * 52
        part = layer / 3

        def hill(x):
            return base - (34 - layer * 3) * noise.rough(x, 10 + layer * 5, 2 + layer, 3)

        canvas.ridge(hill, [(base - 60, mix((214, 200, 220), (236, 232, 244), part)),
                            (base + 110, mix((196, 190, 220), (206, 210, 234), part))])
        dice = random.Random(layer)
        for _ in range(44 - layer * 9):
            x = dice.uniform(0, WIDTH)
            size = (12 + 15 * layer) * dice.uniform(0.6, 1.2)
            wood(canvas, x, hill(x) + 4, size, mix((168, 156, 188), (110, 104, 136), part), dice)
        canvas.veil(base, base + 70, (232, 220, 230), 0.0, 0.35)

    def front(x):
        return 850 - 60 * math.sin((x - 200) / WIDTH * math.pi * 1.4) + 10 * noise.rough(x, 80, 4, 3)

    canvas.ridge(front, [(770, (252, 246, 248)), (880, (232, 230, 244)), (1024, (188, 192, 224))])
    for post in range(13):
        x = 40 + post * 66
        y = front(x) + 34 + post * 5
        canvas.stroke(x, y + 20, x + 1, y - 14 - post * 1.4, 4.5 + post * 0.2, (92, 80, 92))
        canvas.ellipse(x, y - 15 - post * 1.4, 5 + post * 0.2, 3, 0, (252, 250, 252))
        if post:
            for wire in (0, 10):
                canvas.stroke(x - 66, y - 11 + wire - post * 1.4, x, y - 6 + wire - post * 1.4, 1.4, (120, 106, 118))
    dice = random.Random(77)
    x, foot = 985, front(985) + 26
    canvas.disc(x - 60, foot + 10, 150, (172, 176, 212), 0.45, 0.1)
    branches(canvas, x, foot, 128, -math.pi / 2 - 0.04, 27, (66, 54, 68), dice, 8)
    snowfall(canvas, 5, 900, 0.8)


def december(canvas):
    """A village in the snow, lights in the windows, a sky full of stars."""
    noise = Noise(1212)
    canvas.field(sky([(0, (10, 16, 48)), (320, (24, 40, 92)), (560, (62, 84, 142)), (660, (112, 128, 176))],
                     sun=(990, 180, 330, (150, 170, 220), 0.5), clouds=(noise, (80, 102, 158), 0.2, 1.2, 0.4, 2)))
    stars(canvas, 121, 620, 560)
    canvas.puff(990, 180, 110, (220, 228, 250), 0.34, rings=40)
    canvas.disc(990, 180, 50, (246, 244, 230))
    for dx, dy, size in [(-14, -12, 11), (12, 8, 14), (-8, 18, 8), (18, -18, 6)]:
        canvas.disc(990 + dx, 180 + dy, size, (222, 222, 216), 0.6)

    def peaks(x):
        return 520 - 150 * (1 - abs(noise.at(x, 3, 4))) ** 2 - 40 * noise.rough(x, 9, 8, 5, 0.55)

    snow_peaks(canvas, peaks, 12, (176, 192, 232), (70, 90, 150), (58, 74, 126), 700)
    for layer in range(2):
        base = 640 + layer * 50

        def hill(x):
            return base - 30 * noise.rough(x, 40 + layer, 3, 3)

        canvas.ridge(hill, [(base - 40, (120, 142, 200)), (base + 100, (92, 114, 178))])
        dice = random.Random(layer + 120)
        for x in sorted((dice.uniform(0, WIDTH) for _ in range(110 - 30 * layer)), key=lambda _: dice.random()):
            fir(canvas, x, hill(x) + dice.uniform(0, 20), (34 + 20 * layer) * dice.uniform(0.7, 1.2), (30, 46, 88), (150, 170, 220), layer)

    def front(x):
        return 742 + 26 * math.sin(x / WIDTH * math.tau - 0.6) + 8 * noise.rough(x, 50, 3, 3)

    canvas.ridge(front, [(700, (176, 194, 236)), (840, (140, 162, 218)), (1024, (84, 106, 172))])
    dice = random.Random(125)
    houses = [(90, 812, 0.85), (250, 800, 1.0), (430, 790, 0.8), (590, 804, 1.05), (930, 806, 0.95), (1100, 800, 0.85), (1230, 822, 1.0),
              (170, 880, 1.25), (400, 896, 1.35), (1010, 892, 1.35), (1180, 904, 1.2)]
    chapel(canvas, 770, 806)
    for x, foot, size in houses:
        house(canvas, x, foot, size, dice)
    for x, foot, height in [(30, 930, 230), (300, 930, 140), (560, 900, 120), (880, 884, 110), (1256, 968, 250), (700, 850, 70),
                            (520, 955, 190), (860, 965, 160)]:
        canvas.disc(x, foot + 4, height * 0.26, (76, 96, 160), 0.5, 0.16)
        fir(canvas, x, foot, height, (24, 44, 74), (206, 218, 246), 9)
    for step in range(260):
        along = step / 260
        canvas.ellipse(705 + 40 * math.sin(along * 4.4), 840 + 200 * along, 14 + 88 * along, 2 + 3 * along, 0, (196, 206, 238), 0.16)
    snowfall(canvas, 6, 420, 0.7)


def house(canvas, x, foot, size, dice):
    wide, tall = 74 * size, 38 * size
    wall = dice.choice([(86, 72, 84), (96, 80, 82), (74, 72, 100)])
    canvas.disc(x, foot + 6 * size, wide * 0.75, (255, 214, 140), 0.16, 0.2)
    canvas.polygon([(x - wide / 2, foot), (x - wide / 2, foot - tall), (x + wide / 2, foot - tall), (x + wide / 2, foot)], wall)
    canvas.polygon([(x - wide * 0.6, foot - tall + 3 * size), (x - wide * 0.36, foot - tall - 32 * size),
                    (x + wide * 0.36, foot - tall - 32 * size), (x + wide * 0.6, foot - tall + 3 * size)], (206, 218, 246))
    canvas.polygon([(x - wide * 0.6, foot - tall + 5 * size), (x - wide * 0.6, foot - tall + 1 * size),
                    (x + wide * 0.6, foot - tall + 1 * size), (x + wide * 0.6, foot - tall + 5 * size)], (158, 176, 222))
    stack = x + wide * 0.2
    canvas.polygon([(stack, foot - tall - 24 * size), (stack, foot - tall - 46 * size), (stack + 9 * size, foot - tall - 46 * size),
                    (stack + 9 * size, foot - tall - 24 * size)], mix(wall, (0, 0, 0), 0.2))
    canvas.polygon([(stack - 1, foot - tall - 46 * size), (stack - 1, foot - tall - 50 * size), (stack + 10 * size, foot - tall - 50 * size),
                    (stack + 10 * size, foot - tall - 46 * size)], (220, 230, 250))
    for puff in range(9):
        canvas.puff(stack + 4 * size + puff * puff * 0.7, foot - tall - (56 + puff * 12) * size, (4 + puff * 1.7) * size,
                    (170, 182, 216), 0.16 - puff * 0.012, rings=4)
    for dx in (-0.32, 0.0, 0.32):
        if dice.random() < 0.85:
            window(canvas, x + dx * wide, foot - tall * 0.52, 6.4 * size)


def window(canvas, x, y, size):
    canvas.puff(x, y, size * 4.2, (255, 196, 96), 0.34, rings=6)
    canvas.polygon([(x - size, y + size * 1.1), (x - size, y - size * 1.1), (x + size, y - size * 1.1), (x + size, y + size * 1.1)],
                   (255, 218, 130))
    canvas.stroke(x, y - size * 1.1, x, y + size * 1.1, size * 0.22, (120, 78, 50))
    canvas.stroke(x - size, y, x + size, y, size * 0.22, (120, 78, 50))


def chapel(canvas, x, foot):
    wall = (100, 92, 108)
    canvas.polygon([(x - 70, foot), (x - 70, foot - 48), (x + 16, foot - 48), (x + 16, foot)], wall)
    canvas.polygon([(x - 80, foot - 44), (x - 58, foot - 84), (x + 6, foot - 84), (x + 26, foot - 44)], (208, 220, 248))
    canvas.polygon([(x + 10, foot), (x + 10, foot - 110), (x + 50, foot - 110), (x + 50, foot)], mix(wall, (0, 0, 0), 0.1))
    canvas.polygon([(x + 4, foot - 108), (x + 30, foot - 196), (x + 56, foot - 108)], (196, 210, 242))
    canvas.polygon([(x + 30, foot - 108), (x + 30, foot - 196), (x + 56, foot - 108)], (150, 170, 216))
    canvas.stroke(x + 30, foot - 196, x + 30, foot - 216, 2, (230, 206, 130))
    canvas.stroke(x + 24, foot - 209, x + 36, foot - 209, 2, (230, 206, 130))
    for dx in (-52, -28, -4):
        window(canvas, x + dx, foot - 24, 5.5)
    window(canvas, x + 30, foot - 84, 6)
    window(canvas, x + 30, foot - 16, 7)
