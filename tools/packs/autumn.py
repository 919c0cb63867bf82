"""Autumn scenes of the pack Seasons."""

import math
import random

from canvas import HEIGHT, WIDTH, Noise, mix, smooth
from nature import birds, crown, fir, leaf, sky


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
