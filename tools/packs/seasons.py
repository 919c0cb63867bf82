"""The pack Seasons: a scene of its own for every month."""

import math
import random

from canvas import HEIGHT, WIDTH, Noise, mix, smooth
from nature import (birds, blossom, branches, crown, cumulus, fir, glitter, grass, leaf, sky, snowfall, stars, tree)


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


def wood(canvas, x, foot, size, colour, dice):
    """A far bare tree: a stem and a haze of twigs."""
    canvas.stroke(x, foot, x, foot - size, max(0.8, size * 0.05), colour)
    for _ in range(3):
        canvas.disc(x + dice.uniform(-0.2, 0.2) * size, foot - size * dice.uniform(0.75, 1.2), size * 0.32, colour, 0.33)


def march(canvas):
    """Crocuses in the first green, fields and a village church behind, clouds in the wind."""
    noise = Noise(303)
    canvas.field(sky([(0, (86, 146, 214)), (330, (160, 204, 238)), (600, (226, 240, 244))],
                     clouds=(noise, (255, 255, 255), 0.25, 1.0, 0.5, 3)))
    for x, y, width, seed in [(210, 190, 380, 1), (700, 120, 300, 2), (1080, 250, 430, 3), (520, 330, 220, 4),
                              (900, 400, 180, 5)]:
        cumulus(canvas, x, y, width, seed, (255, 255, 255), (186, 202, 226))
    palette = [(150, 186, 190), (136, 178, 148), (142, 184, 112), (128, 176, 84)]
    for layer, colour in enumerate(palette):
        base = 560 + layer * 46

        def hill(x):
            return base - (48 - layer * 6) * noise.rough(x, 12 + layer * 7, 2 + layer, 3)

        canvas.ridge(hill, [(base - 70, mix(colour, (255, 250, 220), 0.25)), (base + 120, mix(colour, (70, 100, 60), 0.25))],
                     shade=lambda x, slope: 1.0 - 0.10 * slope)
        dice = random.Random(layer + 3)
        for _ in range(50):
            x = dice.uniform(0, WIDTH)
            wood(canvas, x, hill(x) + dice.uniform(0, 24), (9 + 8 * layer) * dice.uniform(0.7, 1.2),
                 mix((126, 140, 138), (98, 92, 74), layer / 3), dice)
        if layer == 2:
            church(canvas, 830, hill(830) + 34)

    def meadow(x):
        return 735 + 22 * noise.rough(x, 90, 2, 2)

    canvas.ridge(meadow, [(700, (132, 182, 74)), (850, (104, 160, 62)), (1024, (62, 116, 46))])
    canvas_grass = [(120, 180, 70), (92, 150, 56), (150, 196, 90), (76, 132, 50)]
    grass(canvas, lambda x: meadow(x) + 8, 8, 9000, canvas_grass, 30)
    dice = random.Random(9)
    flowers = sorted((meadow(x) + 34 + (HEIGHT - 760) * part, x, part)
                     for x, part in ((dice.uniform(0, WIDTH), dice.random() ** 1.1) for _ in range(330)))
    for y, x, part in flowers:
        crocus(canvas, x, y, 9 + 34 * part, dice)
    grass(canvas, lambda x: 960, 10, 700, canvas_grass, 44, 0.3, HEIGHT + 40)


def church(canvas, x, foot):
    for dx, width, height, roof in [(-70, 30, 15, (170, 98, 80)), (-34, 26, 17, (160, 90, 76)), (44, 32, 16, (176, 104, 84)),
                                    (82, 26, 14, (158, 92, 80)), (112, 30, 15, (168, 100, 84))]:
        canvas.polygon([(x + dx, foot), (x + dx, foot - height), (x + dx + width, foot - height), (x + dx + width, foot)],
                       (240, 234, 220))
        canvas.polygon([(x + dx - 3, foot - height), (x + dx + 6, foot - height - 12), (x + dx + width - 6, foot - height - 12),
                        (x + dx + width + 3, foot - height)], roof)
    canvas.polygon([(x, foot + 2), (x, foot - 46), (x + 18, foot - 46), (x + 18, foot + 2)], (246, 240, 226))
    canvas.polygon([(x - 3, foot - 44), (x + 9, foot - 92), (x + 21, foot - 44)], (112, 118, 132))
    canvas.disc(x + 9, foot - 34, 3.4, (110, 110, 120))


def crocus(canvas, x, y, size, dice):
    colour = dice.choice([(148, 96, 200), (172, 124, 216), (126, 76, 184), (240, 236, 250), (246, 196, 60)])
    for side in (-1, 1):
        canvas.stroke(x, y, x + side * size * 0.5, y - size * dice.uniform(0.5, 0.8), size * 0.07, (70, 130, 52), 1, 0.6)
    canvas.stroke(x, y, x, y - size * 0.7, size * 0.09, (206, 216, 180))
    for side in (-1, 1):
        canvas.ellipse(x + side * size * 0.17, y - size * 0.92, size * 0.36, size * 0.15, -side * 1.25,
                       mix(colour, (0, 0, 0), 0.1))
    canvas.ellipse(x, y - size * 0.95, size * 0.4, size * 0.17, math.pi / 2, colour)
    canvas.ellipse(x - size * 0.04, y - size * 0.98, size * 0.27, size * 0.07, math.pi / 2, mix(colour, (255, 255, 255), 0.35))
    canvas.disc(x, y - size * 1.2, size * 0.07, (250, 160, 40), 0.9)


def april(canvas):
    """A shower that passes: rainbow over orchards in blossom."""
    noise = Noise(404)
    canvas.field(sky([(0, (92, 112, 142)), (300, (140, 160, 184)), (520, (206, 214, 214)), (620, (240, 236, 210))],
                     sun=(150, 520, 420, (255, 246, 206), 0.7), clouds=(noise, (74, 92, 122), -0.5, 0.7, 0.75, 2)))
    colours = [(196, 60, 70), (230, 140, 60), (240, 220, 90), (90, 180, 100), (70, 120, 200), (110, 80, 180)]
    for i in range(36):
        colour = colours[i // 6] if i % 6 == 0 else mix(colours[i // 6], colours[min(5, i // 6 + 1)], i % 6 / 6)
        arc(canvas, 690, 760, 560 - i * 1.5, 1.9, colour, 0.34 * math.sin(math.pi * (i + 0.5) / 36))
    for layer, colour in enumerate([(128, 158, 158), (120, 164, 122), (126, 176, 92), (112, 166, 70)]):
        base = 590 + layer * 54

        def hill(x):
            return base - (50 - layer * 4) * noise.rough(x, 14 + layer * 9, 2 + layer, 3)

        canvas.ridge(hill, [(base - 70, mix(colour, (255, 244, 190), 0.3)), (base + 130, mix(colour, (50, 90, 56), 0.3))],
                     shade=lambda x, slope: 1.0 - 0.12 * slope)
        dice = random.Random(layer + 30)
        size = 9 + 10 * layer
        for _ in range(70 - 14 * layer):
            x = dice.uniform(0, WIDTH)
            bloom = dice.random() < 0.35
            crown(canvas, x, hill(x) - size * 0.3 + dice.uniform(0, 26 + 8 * layer), size * dice.uniform(0.5, 1.0),
                  [(236, 214, 220), (246, 232, 234)] if bloom else [mix((96, 142, 92), colour, 0.4), mix((120, 160, 84), colour, 0.3)],
                  dice.randrange(9999), leaves=40 + 30 * layer)

    def front(x):
        return 838 + 26 * math.sin(x / WIDTH * math.tau * 0.8 + 2) + 8 * noise.rough(x, 91, 3, 2)

    canvas.ridge(front, [(800, (136, 186, 74)), (900, (96, 154, 58)), (1024, (54, 106, 42))])
    grass(canvas, lambda x: front(x) + 6, 18, 7000, [(120, 180, 70), (92, 150, 56), (150, 196, 90), (76, 132, 50)], 26)
    pink = [(250, 216, 224), (244, 190, 206), (255, 238, 240), (232, 168, 190)]
    white = [(255, 250, 248), (246, 236, 236), (240, 226, 232), (250, 240, 220)]
    for x, foot, height, colour, seed in [(150, 900, 330, pink, 1), (1120, 912, 360, white, 2), (380, 876, 210, white, 3),
                                          (900, 880, 220, pink, 4), (630, 866, 150, pink, 5)]:
        canvas.disc(x + height * 0.12, foot + 4, height * 0.36, (40, 84, 36), 0.45, 0.13)
        tree(canvas, x, foot, height, colour, (78, 62, 58), seed)
        dice = random.Random(seed)
        for _ in range(int(height * 0.9)):
            canvas.disc(x + dice.gauss(0, height * 0.3), foot + abs(dice.gauss(8, 26)), dice.uniform(0.8, 2), colour[dice.randrange(4)])


def arc(canvas, x, y, radius, thick, colour, alpha):
    for column in range(int((x - radius) * 2), int((x + radius) * 2) + 1):
        across = column / 2 - x
        outer = math.sqrt(max(0.0, radius * radius - across * across))
        inner = math.sqrt(max(0.0, (radius - thick) ** 2 - across * across))
        canvas.span(column, round((y - outer) * 2), round((y - inner) * 2), colour, alpha)


def may(canvas):
    """Blossoming twigs on soft blue: a pattern that joins itself on all sides."""
    canvas.field(lambda x, y: mix((186, 214, 232), (200, 224, 236),
                                  0.5 + 0.25 * math.sin(x / WIDTH * math.tau) + 0.25 * math.cos(y / HEIGHT * math.tau)))
    dice = random.Random(505)
    places = scatter(dice, 46, 148)
    for x, y in places:
        round_about(x, y, 170, lambda px, py, seed=dice.randrange(99999): blossom_twig(canvas, px, py, random.Random(seed)))
    for x, y in scatter(dice, 150, 62, places, 46):
        size, turn = dice.uniform(4, 8), dice.uniform(0, math.tau)
        round_about(x, y, 12, lambda px, py: canvas.ellipse(px, py, size, size * 0.55, turn, (252, 226, 232), 0.9))


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


def blossom_twig(canvas, x, y, dice):
    angle = dice.uniform(0, math.tau)
    bend = dice.uniform(-0.7, 0.7)
    points = []
    for step in range(15):
        points.append((x, y))
        x += math.cos(angle) * 12
        y += math.sin(angle) * 12
        angle += bend / 10
    shift_x = points[7][0] - points[0][0]
    shift_y = points[7][1] - points[0][1]
    points = [(px - shift_x, py - shift_y) for px, py in points]
    for i, (a, b) in enumerate(zip(points, points[1:])):
        canvas.stroke(*a, *b, 5.6 - i * 0.3, (112, 86, 80), 1, 5.3 - i * 0.3)
        canvas.disc(*b, (5.3 - i * 0.3) / 2, (112, 86, 80))
    for i in range(2, 15, 2):
        side = 1 if i % 4 else -1
        px, py = points[i]
        turn = angle + side * dice.uniform(0.7, 1.2)
        leaf(canvas, px + math.cos(turn) * 20, py + math.sin(turn) * 20, dice.uniform(26, 36), turn,
             dice.choice([(132, 176, 98), (110, 160, 92), (150, 190, 110)]))
    for i in (1, 4, 6, 9, 11, 14):
        px, py = points[i]
        tone = dice.choice([(250, 204, 216), (255, 222, 230), (246, 186, 204)])
        blossom(canvas, px + dice.uniform(-9, 9), py + dice.uniform(-9, 9), dice.uniform(17, 25) * (1.08 - i * 0.022), 5, tone,
                (250, 214, 120), dice.uniform(0, math.tau), mix(tone, (214, 96, 130), 0.6))


def june(canvas):
    """A meadow from above, daisies and poppies in the grass: a pattern that joins itself on all sides."""
    canvas.field(lambda x, y: mix((84, 138, 62), (98, 152, 66),
                                  0.5 + 0.3 * math.sin(x / WIDTH * math.tau * 2) * math.cos(y / HEIGHT * math.tau)))
    dice = random.Random(606)
    greens = [(96, 152, 66), (74, 128, 54), (116, 170, 76), (66, 116, 52), (132, 182, 90)]
    for _ in range(3600):
        x, y, turn, length = dice.uniform(0, WIDTH), dice.uniform(0, HEIGHT), dice.uniform(0, math.tau), dice.uniform(18, 44)
        colour = mix(dice.choice(greens), (40, 84, 40), dice.uniform(0, 0.25))
        round_about(x, y, 50, lambda px, py: canvas.stroke(px, py, px + math.cos(turn) * length, py + math.sin(turn) * length,
                                                           3, colour, 1, 0.6))
    places = scatter(dice, 62, 104)
    kinds = [daisy, daisy, poppy, cornflower, daisy, poppy, buttercup]
    for i, (x, y) in enumerate(places):
        seed, kind = dice.randrange(99999), kinds[i % len(kinds)]
        round_about(x, y, 90, lambda px, py: kind(canvas, px, py, random.Random(seed)))
    for x, y in scatter(dice, 70, 60, places, 62):
        seed, kind = dice.randrange(99999), dice.choice([buttercup, small_daisy])
        round_about(x, y, 40, lambda px, py: kind(canvas, px, py, random.Random(seed)))


def shadow(canvas, x, y, radius):
    canvas.puff(x + radius * 0.16, y + radius * 0.22, radius * 1.12, (30, 62, 34), 0.42, rings=5)


def daisy(canvas, x, y, dice, size=1.0):
    radius = dice.uniform(34, 46) * size
    shadow(canvas, x, y, radius)
    turn = dice.uniform(0, 1)
    for petal in range(17):
        angle = turn + math.tau * petal / 17 + dice.uniform(-0.05, 0.05)
        reach = radius * dice.uniform(0.9, 1.04)
        canvas.ellipse(x + math.cos(angle) * reach * 0.62, y + math.sin(angle) * reach * 0.62, reach * 0.4, reach * 0.115, angle,
                       mix((255, 255, 255), (206, 214, 226), dice.uniform(0, 0.4)))
    canvas.disc(x, y, radius * 0.29, (222, 162, 32))
    canvas.disc(x - radius * 0.02, y - radius * 0.03, radius * 0.25, (250, 202, 56))
    for _ in range(24):
        angle, reach = dice.uniform(0, math.tau), radius * 0.22 * math.sqrt(dice.random())
        canvas.disc(x + math.cos(angle) * reach, y + math.sin(angle) * reach, 1.5, (230, 168, 36))


def small_daisy(canvas, x, y, dice):
    daisy(canvas, x, y, dice, 0.42)


def poppy(canvas, x, y, dice):
    radius = dice.uniform(38, 48)
    shadow(canvas, x, y, radius)
    turn = dice.uniform(0, math.tau)
    for petal in (0, 2, 1, 3):
        angle = turn + math.pi / 2 * petal
        tone = mix((222, 52, 40), (250, 92, 60), petal / 3)
        for shrink in range(5):
            size = radius * (0.64 - 0.07 * shrink)
            canvas.ellipse(x + math.cos(angle) * radius * 0.42, y + math.sin(angle) * radius * 0.42, size * 0.85, size, angle,
                           mix(tone, (255, 140, 104), 0.07 * shrink))
        canvas.ellipse(x + math.cos(angle) * radius * 0.2, y + math.sin(angle) * radius * 0.2, radius * 0.16, radius * 0.15, angle,
                       (54, 16, 30), 0.85)
    canvas.disc(x, y, radius * 0.17, (62, 74, 46))
    canvas.disc(x, y, radius * 0.11, (126, 146, 84))
    for _ in range(30):
        angle, reach = dice.uniform(0, math.tau), radius * dice.uniform(0.2, 0.32)
        canvas.disc(x + math.cos(angle) * reach, y + math.sin(angle) * reach, 1.5, (40, 22, 34))


def cornflower(canvas, x, y, dice):
    radius = dice.uniform(28, 38)
    shadow(canvas, x, y, radius)
    for petal in range(11):
        angle = math.tau * petal / 11 + dice.uniform(-0.12, 0.12)
        for split in (-0.16, 0, 0.16):
            canvas.stroke(x, y, x + math.cos(angle + split) * radius, y + math.sin(angle + split) * radius, radius * 0.05,
                          dice.choice([(66, 98, 206), (88, 122, 224), (54, 80, 182)]), 1, radius * 0.2)
    for _ in range(26):
        angle, reach = dice.uniform(0, math.tau), radius * 0.36 * math.sqrt(dice.random())
        canvas.disc(x + math.cos(angle) * reach, y + math.sin(angle) * reach, 2, dice.choice([(104, 60, 160), (140, 96, 200), (70, 50, 140)]))


def buttercup(canvas, x, y, dice):
    radius = dice.uniform(15, 21)
    shadow(canvas, x, y, radius)
    blossom(canvas, x, y, radius, 5, (252, 214, 44), (236, 176, 30), dice.uniform(0, math.tau), (240, 186, 30))


def july(canvas):
    """Sails on a blue bay, a white beach in front."""
    noise = Noise(707)
    horizon = 470
    canvas.field(sky([(0, (44, 122, 206)), (300, (122, 190, 234)), (horizon, (218, 240, 248))],
                     sun=(1010, 120, 330, (255, 252, 232), 0.9), clouds=(noise, (255, 255, 255), 0.35, 1.1, 0.5, 3)))
    canvas.disc(1010, 120, 44, (255, 254, 240), 0.95)
    for x, y, width, seed in [(190, 330, 420, 1), (560, 390, 300, 2), (900, 400, 340, 6), (1190, 360, 300, 4)]:
        cumulus(canvas, x, y, width, seed, (255, 255, 255), (202, 220, 238))

    def shore(x):
        return horizon - 62 * smooth(x, 760, 1180) * (1 + 0.45 * noise.rough(x, 3, 9, 4)) + 8 * (x < 760)

    canvas.ridge(lambda x: shore(x) if x > 740 else HEIGHT + 5, [(380, (132, 164, 168)), (480, (112, 152, 138))])

    def water(x):
        return horizon

    canvas.ridge(water, [(horizon, (96, 176, 216)), (540, (44, 136, 196)), (680, (38, 152, 196)), (780, (74, 194, 206)),
                         (850, (168, 226, 218))])
    glitter(canvas, 7, 1500, horizon + 3, 790, 960, 250, (255, 255, 255), 0.5)
    dice = random.Random(71)
    for _ in range(900):
        part = dice.random()
        y = horizon + 4 + 330 * part ** 1.5
        canvas.ellipse(dice.uniform(0, WIDTH), y, 5 + 36 * part, 0.5 + 1.3 * part, 0, (20, 96, 160), 0.16)
    for x, y, size, colour in [(330, 520, 62, (255, 255, 255)), (610, 498, 34, (252, 240, 224)), (730, 580, 104, (255, 252, 244)),
                               (480, 484, 16, (255, 255, 255)), (880, 492, 20, (250, 220, 210)), (150, 490, 22, (255, 255, 255))]:
        sail(canvas, x, y, size, colour)

    def foam(x):
        return 826 - 66 * math.sin(x / WIDTH * math.pi * 1.25 + 0.3) + 7 * noise.rough(x, 40, 8, 3)

    for lift, alpha in [(16, 0.35), (9, 0.5), (3, 0.9)]:
        canvas.ridge(lambda x: foam(x) - lift + 3 * noise.at(x, lift, 24), [(700, mix((150, 220, 216), (255, 255, 255), alpha))])
    canvas.ridge(lambda x: foam(x) + 6, [(740, (214, 190, 150)), (800, (226, 204, 164))])
    canvas.ridge(lambda x: foam(x) + 34 + 5 * noise.rough(x, 60, 6, 3), [(780, (246, 228, 190)), (1024, (236, 206, 154))])
    for _ in range(5200):
        x = dice.uniform(0, WIDTH)
        y = foam(x) + 44 + (HEIGHT - foam(x)) * dice.random()
        canvas.ellipse(x, y, dice.uniform(1, 4), 0.7, 0, dice.choice([(222, 192, 142), (255, 242, 214)]), 0.5)
    for x, y, size in [(930, 950, 20), (860, 985, 13), (1010, 925, 12), (250, 940, 15), (180, 968, 10)]:
        shell(canvas, x, y, size)
    birds(canvas, 3, 7, 420, 230, 70, (250, 252, 255))


def sail(canvas, x, y, size, colour):
    canvas.polygon([(x - size * 0.42, y), (x + size * 0.42, y), (x + size * 0.3, y + size * 0.13), (x - size * 0.32, y + size * 0.13)],
                   (150, 70, 54))
    canvas.polygon([(x - size * 0.42, y), (x + size * 0.42, y), (x + size * 0.4, y + size * 0.03), (x - size * 0.4, y + size * 0.03)],
                   (250, 246, 240))
    canvas.polygon([(x - size * 0.02, y - size * 0.05), (x - size * 0.02, y - size), (x + size * 0.38, y - size * 0.07)], colour)
    canvas.polygon([(x - size * 0.06, y - size * 0.06), (x - size * 0.05, y - size * 0.88), (x - size * 0.38, y - size * 0.05)],
                   mix(colour, (140, 170, 200), 0.22))
    canvas.stroke(x - size * 0.035, y, x - size * 0.035, y - size * 1.04, max(1.0, size * 0.02), (96, 74, 60))
    for i in range(9):
        canvas.ellipse(x + size * 0.05 * math.sin(i * 1.7), y + size * (0.2 + i * 0.075), size * (0.34 - i * 0.028), size * 0.018, 0,
                       colour, 0.34 - i * 0.03)


def shell(canvas, x, y, size):
    canvas.disc(x + 3, y + 4, size * 1.05, (170, 136, 96), 0.5, 0.5)
    for i in range(11):
        angle = math.pi + math.pi * (i + 0.5) / 11
        canvas.ellipse(x + math.cos(angle) * size * 0.5, y + math.sin(angle) * size * 0.42, size * 0.55, size * 0.13, angle,
                       mix((252, 226, 210), (226, 158, 138), 0.5 + 0.5 * math.cos(i * math.pi)))
    canvas.disc(x, y, size * 0.2, (238, 188, 166))


def august(canvas):
    """Wheat under heap clouds, a lane that leads to a lone tree."""
    noise = Noise(808)
    canvas.field(sky([(0, (38, 108, 190)), (340, (116, 178, 226)), (610, (232, 238, 226))],
                     sun=(230, 560, 500, (255, 240, 200), 0.5)))
    for x, y, width, seed in [(300, 300, 560, 21), (930, 240, 620, 22), (640, 440, 330, 23), (1180, 470, 340, 24), (80, 480, 300, 25),
                              (880, 520, 220, 26)]:
        cumulus(canvas, x, y, width, seed, (255, 254, 248), (180, 194, 214))
    for layer, colour in enumerate([(136, 164, 172), (118, 150, 112), (196, 186, 110)]):
        base = 590 + layer * 26

        def hill(x):
            return base - (34 - layer * 7) * noise.rough(x, 22 + layer * 7, 3, 3)

        canvas.ridge(hill, [(base - 50, mix(colour, (255, 244, 200), 0.2)), (base + 60, mix(colour, (80, 90, 60), 0.2))])
        dice = random.Random(layer + 60)
        for _ in range(90 if layer == 1 else 20):
            x = dice.uniform(0, WIDTH)
            crown(canvas, x, hill(x) - 2, dice.uniform(5, 12), [mix((84, 116, 70), colour, 0.4)], dice.randrange(9999), leaves=44)

    def field(x):
        return 668 + 12 * noise.rough(x, 50, 2, 2)

    canvas.ridge(field, [(650, (226, 190, 96)), (760, (222, 176, 74)), (1024, (168, 116, 40))])
    for x in range(-2400, 3700, 46):
        canvas.stroke(700 + (x - 640) * 0.09, 676, x, HEIGHT + 20, 1.2, (170, 122, 48), 0.4, 13)
    wheat = [(238, 200, 104), (222, 176, 76), (206, 156, 60), (246, 216, 132), (190, 138, 52)]
    grass(canvas, lambda x: field(x) + 8, 61, 11000, wheat, 48, 0.16)
    tree(canvas, 905, 690, 190, [(76, 116, 54), (92, 134, 60), (60, 98, 50), (112, 146, 66)], (72, 56, 44), 6)
    grass(canvas, lambda x: 690, 62, 500, wheat, 12, 0.16, 716)
    dice = random.Random(63)
    for y, x in sorted((800 + 430 * dice.random(), dice.uniform(-20, WIDTH + 20)) for _ in range(520)):
        ear(canvas, x, y, 0.28 + (y - 800) / 520, dice)
    birds(canvas, 8, 6, 520, 180, 60, (60, 70, 90))


def ear(canvas, x, y, size, dice):
    """An ear of wheat on its stalk, bent by its weight."""
    bend = dice.gauss(0.15, 0.12)
    stalk = 150 * size
    colour = dice.choice([(226, 182, 84), (240, 204, 112), (210, 160, 66), (232, 192, 96)])
    top_x, top_y = x + bend * stalk * 0.6, y - stalk
    canvas.stroke(x, y + 80 * size, top_x, top_y, 2.0 * size, mix(colour, (130, 104, 40), 0.45), 1, 1.4 * size)
    for grain in range(10):
        along = grain * 5.6 * size
        lean = bend * (0.9 + grain * 0.12)
        grain_x, grain_y = top_x + lean * along, top_y - along
        for side in (-1, 1):
            canvas.stroke(grain_x + side * 2.4 * size, grain_y, grain_x + side * 8.5 * size + lean * 30 * size, grain_y - 30 * size,
                          0.9 * size, mix(colour, (255, 240, 190), 0.35), 0.8, 0.4)
        for side in (-1, 1):
            canvas.ellipse(grain_x + side * 2.4 * size, grain_y, 4.8 * size, 1.9 * size, -math.pi / 2 + side * 0.42 + lean,
                           mix(colour, (120, 78, 20), 0.26 if side > 0 else 0.04))


def september(canvas):
    """Vineyards in the low sun, one hill behind the other in the haze."""
    noise = Noise(909)
    canvas.field(sky([(0, (118, 152, 192)), (260, (206, 200, 186)), (450, (252, 214, 150)), (600, (255, 196, 116))],
                     sun=(860, 430, 420, (255, 246, 200), 1.0), clouds=(noise, (255, 226, 180), 0.1, 0.9, 0.5, 2)))
    canvas.disc(860, 430, 46, (255, 252, 226), 0.95)
    hills = [(232, 178, 120), (214, 158, 100), (186, 138, 84), (156, 122, 66), (124, 106, 52), (94, 90, 42)]
    for layer, colour in enumerate(hills):
        base = 520 + layer * 62

        def hill(x):
            return base - (46 if layer < 5 else 30) * noise.rough(x, 5 + layer * 11, 2 + layer // 3, 3, 0.42)

        canvas.ridge(hill, [(base - 80, mix(colour, (255, 226, 150), 0.25)), (base + 150, mix(colour, (255, 208, 140), 0.30 - 0.05 * layer))],
                     shade=lambda x, slope: 1.0 - 0.07 * slope)
        if 1 <= layer <= 4:
            cypresses(canvas, hill, layer, mix(colour, (50, 56, 30), 0.55))
        if layer == 3:
            villa(canvas, 300, hill(300) + 6)
        if layer < 5:
            canvas.veil(base + 4, base + 84, (255, 214, 150), 0.0, 0.34)
    rows(canvas, noise)
    birds(canvas, 12, 9, 420, 300, 80, (110, 84, 70))


def cypresses(canvas, hill, layer, colour):
    dice = random.Random(layer + 90)
    for group in range(3 + layer):
        centre = dice.uniform(0, WIDTH)
        for _ in range(dice.randrange(2, 7)):
            x = centre + dice.gauss(0, 16 + 6 * layer)
            size = (12 + 11 * layer) * dice.uniform(0.7, 1.2)
            canvas.ellipse(x, hill(min(WIDTH - 1, max(0, x))) - size * 0.42, size * 0.56, size * 0.12, math.pi / 2, colour)


def villa(canvas, x, foot):
    wall, roof = (238, 206, 160), (178, 96, 62)
    canvas.polygon([(x, foot), (x, foot - 30), (x + 62, foot - 30), (x + 62, foot)], wall)
    canvas.polygon([(x - 5, foot - 29), (x + 8, foot - 42), (x + 55, foot - 42), (x + 67, foot - 29)], roof)
    canvas.polygon([(x + 44, foot), (x + 44, foot - 58), (x + 66, foot - 58), (x + 66, foot)], mix(wall, (140, 100, 70), 0.15))
    canvas.polygon([(x + 40, foot - 57), (x + 55, foot - 68), (x + 70, foot - 57)], mix(roof, (0, 0, 0), 0.1))
    for window in (8, 22, 36):
        canvas.polygon([(x + window, foot - 12), (x + window, foot - 22), (x + window + 6, foot - 22), (x + window + 6, foot - 12)],
                       (120, 84, 66))
    canvas.polygon([(x + 52, foot - 40), (x + 52, foot - 50), (x + 58, foot - 50), (x + 58, foot - 40)], (120, 84, 66))


def rows(canvas, noise):
    """Rows of vines that run towards the eye."""
    def ground(x):
        return 872 - 26 * math.sin(x / WIDTH * math.pi) + 6 * noise.rough(x, 77, 2, 2)

    canvas.ridge(ground, [(840, (166, 132, 62)), (1024, (112, 82, 40))])
    dice = random.Random(93)
    greens = [(92, 104, 38), (120, 118, 42), (150, 118, 40), (178, 112, 40), (74, 88, 34), (196, 140, 52)]
    for depth in range(26):
        part = (depth / 25) ** 1.25
        y = 872 + 190 * part
        size = 6 + 42 * part
        for vine in range(-16, 17):
            x = 720 + vine * (26 + 150 * part) + dice.gauss(0, size * 0.2)
            if -60 < x < WIDTH + 60:
                foot = ground(min(WIDTH - 1, max(0, x))) - 850 + y - 6
                canvas.disc(x, foot + size * 0.75, size * 1.1, (72, 54, 28), 0.4, 0.3)
                crown(canvas, x, foot, size, greens, dice.randrange(99999), (0.2, -0.9), int(40 + 90 * part))


def october(canvas):
    """A lake between woods in all their colours, leaves coming down."""
    noise = Noise(1010)
    horizon = 590
    canvas.field(sky([(0, (96, 150, 200)), (300, (176, 206, 222)), (horizon, (250, 236, 206))],
                     sun=(640, 520, 520, (255, 240, 200), 0.7), clouds=(noise, (255, 250, 240), 0.1, 1.0, 0.5, 3)))

    def far(x):
        return 430 - 70 * noise.rough(x, 4, 3, 4) + 40 * math.cos((x - 640) / WIDTH * math.tau)

    canvas.ridge(far, [(330, (150, 160, 180)), (horizon, (206, 186, 160))])

    def middle(x):
        return 520 - 40 * noise.rough(x, 15, 4, 4) - 60 * (abs(x - 660) / 640) ** 2

    canvas.ridge(middle, [(420, (170, 130, 96)), (horizon, (160, 112, 70))])
    woods = [(206, 92, 40), (232, 140, 44), (240, 182, 62), (178, 62, 42), (152, 120, 52), (246, 204, 92), (120, 124, 62)]
    dice = random.Random(101)
    for x, reach in sorted(((dice.uniform(-20, WIDTH + 20), dice.random()) for _ in range(260)), key=lambda t: t[1]):
        y = middle(min(WIDTH - 1, max(0, x))) + (horizon - 14 - middle(min(WIDTH - 1, max(0, x)))) * reach
        colour = dice.choice(woods)
        crown(canvas, x, y - 8, 16 + 12 * reach, [mix(colour, (220, 190, 160), 0.42 * (1 - reach)), mix(colour, (190, 150, 120), 0.3)],
              dice.randrange(99999), (-0.3, -0.9), 60)
    for x in sorted(range(-30, WIDTH + 60, 17), key=lambda _: dice.random()):
        edge = abs(x - 660) / 660
        size = 20 + 46 * edge ** 1.6 + dice.uniform(-6, 10)
        crown(canvas, x, horizon - size * 0.7 - 46 * edge ** 2, size, [dice.choice(woods), dice.choice(woods)], dice.randrange(99999),
              (-0.3, -0.9), int(130 + size * size * 0.16), 3.6)
    for x in range(-10, WIDTH + 30, 22):
        crown(canvas, x, horizon - 8, 13, [(120, 96, 50), (150, 104, 46)], dice.randrange(9999), leaves=40)
    canvas.mirror(horizon, (60, 84, 110), 0.30)
    for _ in range(2600):
        part = dice.random()
        canvas.ellipse(dice.uniform(0, WIDTH), horizon + 2 + (HEIGHT - horizon) * part ** 1.4, 8 + 60 * part, 0.5 + 1.0 * part, 0,
                       dice.choice([(226, 226, 216), (70, 84, 100), (190, 190, 180)]), 0.16)
    canvas.veil(horizon - 26, horizon + 4, (255, 240, 214), 0.0, 0.22)
    for _ in range(90):
        part = dice.random()
        colour = dice.choice(woods)
        x, y = dice.uniform(0, WIDTH), 700 + 320 * part
        canvas.ellipse(x, y, 5 + 9 * part, 1.8 + 2.8 * part, dice.uniform(-0.3, 0.3), colour)
    bough(canvas, dice, woods)
    for _ in range(46):
        size = dice.uniform(8, 22)
        leaf(canvas, dice.uniform(60, WIDTH - 40), dice.uniform(60, 900), size, dice.uniform(0, math.tau), dice.choice(woods[:6]))


def bough(canvas, dice, colours):
    """A bough that hangs into the picture from above."""
    x, y, angle = -10.0, 60.0, 0.22
    for step in range(42):
        next_x, next_y = x + math.cos(angle) * 13, y + math.sin(angle) * 13
        width = 13 - step * 0.28
        canvas.stroke(x, y, next_x, next_y, width, (70, 50, 42), 1, width - 0.28)
        canvas.disc(next_x, next_y, width / 2, (70, 50, 42))
        angle += dice.gauss(-0.005, 0.07)
        x, y = next_x, next_y
        if step % 2 == 0:
            turn = angle + dice.choice((-1, 1)) * dice.uniform(0.4, 1.1)
            length = dice.uniform(40, 90)
            tip_x, tip_y = x + math.cos(turn) * length, y + math.sin(turn) * length
            canvas.stroke(x, y, tip_x, tip_y, 3.2, (84, 60, 46), 1, 1)
            for _ in range(9):
                part = dice.uniform(0.2, 1.1)
                leaf(canvas, x + (tip_x - x) * part + dice.gauss(0, 11), y + (tip_y - y) * part + dice.gauss(5, 11),
                     dice.uniform(20, 36), dice.uniform(0.6, 2.5), dice.choice(colours[:6]))


def november(canvas):
    """Fog on a still lake, firs standing out of it one row behind the other."""
    noise = Noise(1111)
    horizon = 690
    canvas.field(sky([(0, (150, 166, 182)), (320, (196, 204, 210)), (horizon, (226, 226, 222))],
                     sun=(820, 330, 300, (255, 246, 226), 0.75), clouds=(noise, (214, 220, 226), -0.4, 0.9, 0.5, 2)))
    canvas.disc(820, 330, 34, (255, 252, 240), 0.7)
    tones = [(182, 194, 204), (156, 172, 184), (122, 142, 156), (86, 108, 122), (54, 76, 90)]
    for layer, tone in enumerate(tones):
        base = 500 + layer * 44

        def hill(x):
            rise = 130 - layer * 22
            return base - rise * (0.35 + 0.65 * noise.rough(x, 30 + layer * 9, 2 + layer // 2, 3, 0.45)) * (1 if layer < 4 else
                                                                                                     smooth(abs(x - 700), 120, 640) * 1.6)

        canvas.ridge(hill, [(base - 120, tone), (horizon, mix(tone, (220, 224, 226), 0.55))])
        dice = random.Random(layer + 110)
        size = 16 + 16 * layer
        for x in sorted((dice.uniform(-20, WIDTH + 20) for _ in range(150 - 18 * layer)), key=lambda _: dice.random()):
            foot = hill(min(WIDTH - 1, max(0, x))) + size * 0.18
            if foot < horizon:
                fir(canvas, x, foot, size * dice.uniform(0.6, 1.3), mix(tone, (40, 56, 66), 0.12), None, layer)
        canvas.veil(base - 40, horizon, (224, 228, 230), 0.0, 0.5 - 0.03 * layer)
    canvas.mirror(horizon, (146, 160, 172), 0.34)
    canvas.veil(horizon - 60, horizon, (228, 230, 230), 0.0, 0.75)
    canvas.veil(horizon, horizon + 90, (228, 230, 230), 0.75, 0.0)
    dice = random.Random(119)
    for _ in range(900):
        part = dice.random()
        canvas.ellipse(dice.uniform(0, WIDTH), horizon + 30 + (HEIGHT - horizon) * part ** 1.2, 14 + 70 * part, 0.5 + 0.9 * part, 0,
                       dice.choice([(236, 238, 238), (110, 126, 138)]), 0.13)
    reeds(canvas, dice)
    jetty(canvas)
    birds(canvas, 31, 8, 430, 250, 90, (96, 108, 118))


def reeds(canvas, dice):
    for centre, spread, count in [(90, 90, 130), (1210, 80, 110)]:
        for _ in range(count):
            x = centre + dice.gauss(0, spread)
            foot = 1000 + dice.uniform(-20, 40)
            tall = dice.uniform(110, 250)
            lean = dice.gauss(0.05, 0.1) * tall
            tone = dice.choice([(112, 104, 84), (136, 124, 96), (88, 86, 76)])
            canvas.stroke(x, foot, x + lean, foot - tall, 3, tone, 1, 1)
            if dice.random() < 0.25:
                canvas.ellipse(x + lean, foot - tall, 16, 3.6, math.pi / 2 - 0.1, (88, 66, 50))


def jetty(canvas):
    wood, dark = (110, 106, 102), (74, 74, 76)
    canvas.polygon([(560, 1024), (690, 800), (730, 800), (760, 1024)], mix(wood, (200, 206, 210), 0.15))
    for plank in range(26):
        part = (plank / 25) ** 1.7
        y = 801 + 222 * part
        left, right = 690 - 130 * (y - 800) / 224, 730 + 30 * (y - 800) / 224
        canvas.stroke(left, y, right, y + 0.5, 0.8 + 3 * part, dark, 0.7)
    for x, y, size in [(690, 800, 26), (731, 800, 26), (652, 866, 42), (741, 872, 42), (604, 948, 66), (752, 952, 66)]:
        canvas.stroke(x, y + size * 0.9, x, y - size, size * 0.17, dark)
        canvas.ellipse(x, y - size, size * 0.09, size * 0.04, 0, (160, 160, 158))


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


MONTHS = [january, february, march, april, may, june, july, august, september, october, november, december]
