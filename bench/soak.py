#!/usr/bin/env python3
"""Ten month changes a second under Wine, and what of objects and memory they gather; see scripts/soak.sh."""
import argparse
import contextlib
import math
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

from on_desktop import KINDS, Desktop, Months
from wine import ROOT

EVERY = 100  # milliseconds
LONGEST_ROUND = 40  # seconds there and back: seventeen years, in all of which there are events
ROUNDS = 20
ALLOWED_GROWTH = 32  # kB of private memory over the second half


def private_memory(process):
    """In kB: what the process alone has written to."""
    for line in pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text(encoding="ascii").splitlines():
        if line.startswith("Private_Dirty:"):
            return int(line.split()[1])
    raise RuntimeError("the calendar ended")


def growth(rows):
    """By the straight line through the rows of changes and kB: over all of them, and for each change in bytes."""
    slope = statistics.linear_regression(*zip(*rows)).slope
    return slope * (rows[-1][0] - rows[0][0]), slope * 1024


def soak(desktop, seconds):
    """A row for each time that the first month is back: changes so far, objects, kB."""
    rows, months = [], Months(desktop)
    count = max(int(min(LONGEST_ROUND, seconds / ROUNDS) * 500 / EVERY), 1)
    end = time.monotonic() + seconds
    while time.monotonic() < end or len(rows) < 4:
        held = months.there_and_back(count, EVERY)
        rows.append((2 * count * (len(rows) + 1), held, private_memory(desktop.programs[-1])))
        told = ", ".join(f"{held[kind]} {name}" for kind, name in KINDS.items())
        print(f"{rows[-1][0]:6} changes: {told}, {rows[-1][2]} kB", flush=True)
    return rows


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("minutes", type=float, nargs="?", default=30)
    seconds = parser.parse_args().minutes * 60
    if not 0 < seconds < math.inf:
        parser.error("MINUTES must be a number above 0")
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([sys.executable, "-B", ROOT / "bench/make_events.py", "32767", folder], check=True, timeout=120)
        events = pathlib.Path(folder, "calendar.dat").read_bytes()
    with contextlib.closing(Desktop(data=events)) as desktop:
        desktop.started()
        rows = soak(desktop, seconds)
    _, first, _ = rows[(len(rows) - 1) // 5]
    _, last, _ = rows[-1]
    gained = {name: last[kind] - first[kind] for kind, name in KINDS.items()}
    memory, each = growth([(changes, kilobytes) for changes, _, kilobytes in rows[len(rows) // 2 - 1:]])
    told = ", ".join(f"{number} {name}" for name, number in gained.items())
    print(f"gained: {told}; in the second half {memory:.0f} kB of memory, {each:.1f} bytes a change")
    sys.exit(any(number > 0 for number in gained.values()) or memory > ALLOWED_GROWTH)


if __name__ == "__main__":
    main()
