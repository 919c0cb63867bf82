"""Spring scenes of the pack Seasons."""

import math
import random

from canvas import HEIGHT, WIDTH, Noise, mix
from nature import blossom, crown, cumulus, grass, leaf, sky, tree, wood
from pattern import scatter, round_about


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
