#!/usr/bin/env python3
"""Draws the pictures of the sample packs: draw_packs.py [PACK [MONTH...]]

Without arguments all of them, into the folder packs of the tree. Needs cjpeg and djpeg (Debian: libjpeg-turbo-progs).
"""

import pathlib
import sys

import default
import seasons
from canvas import Canvas

PACKS = {"Default": (default.MONTHS, 86), "Seasons": (seasons.MONTHS, 80)}
FOLDER = pathlib.Path(__file__).resolve().parents[2] / "packs"


def main(arguments):
    months = [int(month) for month in arguments[1:]] or range(1, 13)
    for pack in arguments[:1] or PACKS:
        scenes, quality = PACKS[pack]
        (FOLDER / pack).mkdir(parents=True, exist_ok=True)
        for month in months:
            canvas = Canvas()
            scenes[month - 1](canvas)
            canvas.save(FOLDER / pack / f"{month}.jpg", quality)


if __name__ == "__main__":
    main(sys.argv[1:])
