#!/usr/bin/env python3
"""Measures everything and prints the table; scripts/bench.sh builds what it needs. The exit status is 1 if a goal isn't
reached."""
import argparse
import datetime
import pathlib
import subprocess
import sys

import figures
import native
import on_desktop
import peers
import report
import wine

ROOT = wine.ROOT
PROGRAMS = ROOT / "build/native-release/bench"
DATA = ROOT / "build/bench-data"


def make_data():
    generator = ROOT / "bench/make_events.py"
    today = datetime.date.today().isoformat()
    for count, folder, options in [(100, "100", ["--in-month", "10"]), (1000, "1000", ["--in-month", "3"]),
                                   (32767, "32767", []),
                                   (32767, "today", ["--today", today])]:
        subprocess.run([sys.executable, "-B", generator, str(count), DATA / folder, *options], check=True)


GROUPS = {  # what measures each, for a quick run or a whole one
    "native": lambda quick: (native.month_change(PROGRAMS, DATA, 9 if quick else 21) + native.tick(PROGRAMS, DATA) +
                             native.overview(PROGRAMS, DATA) + native.exchange(PROGRAMS)),
    "printed": lambda quick: (peers.month_print(PROGRAMS, DATA / "100", 15 if quick else 41) +
                              peers.month_print(PROGRAMS, DATA / "32767", 3 if quick else 9)),
    "size": lambda quick: wine.size(),
    "months": lambda quick: wine.month_change(DATA, 3 if quick else 7),
    "start": lambda quick: wine.start(DATA, PROGRAMS, 5 if quick else 15),
    "idle": lambda quick: wine.idle(DATA, 15 if quick else 60) + wine.idle_display(DATA, 10),
    "screen": lambda quick: on_desktop.on_screen(DATA, PROGRAMS, 4 if quick else 10),
    "settings": lambda quick: on_desktop.settings_window(DATA, PROGRAMS, 4 if quick else 10),
    "import": lambda quick: on_desktop.csv_import(),
    "jpeg": lambda quick: wine.jpeg(DATA, 3 if quick else 9),
}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--quick", action="store_true", help="fewer rounds, and 15 seconds of idling instead of 60")
    parser.add_argument("--markdown", type=pathlib.Path, metavar="FILE", help="write the table there too")
    parser.add_argument("--readme", action="store_true", help="write the table to its place in README.md; all groups")
    parser.add_argument("group", nargs="*", choices=[[], *GROUPS], help="all if none is given")
    options = parser.parse_args()
    if options.readme and options.group:
        parser.error("--readme takes the whole table")
    machine = figures.machine()
    make_data()
    found = []
    for group in options.group or GROUPS:
        print(f"Measuring: {group}", file=sys.stderr, flush=True)
        found += (of_group := GROUPS[group](options.quick))
        print(figures.table(of_group), file=sys.stderr, flush=True)  # a later group may fail
    print(f"\n{machine}\n\n{figures.table(found)}")
    over = sum(not figure.reached for figure in found)
    print(f"\n{len(found) - over} of {len(found)} goals reached")
    text = report.markdown(found, machine, options.quick)
    if options.markdown:
        options.markdown.write_text(text, encoding="utf-8")
    if options.readme:
        report.put_between_markers(ROOT / "README.md", text)
    return 1 if over else 0


if __name__ == "__main__":
    sys.exit(main())
