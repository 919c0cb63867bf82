"""Summer scenes of the pack Seasons."""

import math
import random

from canvas import HEIGHT, WIDTH, Noise, mix, smooth
from nature import birds, blossom, crown, cumulus, glitter, grass, sky, tree
from pattern import scatter, round_about


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
