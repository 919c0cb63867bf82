#!/usr/bin/env python3
"""A month change a second under Wine for a long time, and what of handles and memory it gathers; see scripts/soak.sh."""
import contextlib
import pathlib
import subprocess
import sys
import tempfile

from wine import ROOT, Desktop, resident_memory, tool

ALLOWED_GROWTH = 0.02  # of resident memory, from the first fifth to the end


def main():
    seconds = int(float(sys.argv[1]) * 60)
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([sys.executable, "-B", ROOT / "bench/make_events.py", "32767", folder], check=True, timeout=120)
        events = pathlib.Path(folder, "calendar.dat").read_bytes()
    with contextlib.closing(Desktop(data=events)) as desktop:
        desktop.started()
        program = desktop.programs[-1]
        arrow = map(str, desktop.layout().next_rect.centre)
        soak = desktop.prefix.start(tool("bench_gdi_count"), "soak", str(seconds), *arrow, output=-1)
        rows = []
        for line in soak.stdout:
            second, objects, handles = map(int, line.split())
            rows.append((second, objects, handles, resident_memory(program)))
            print(f"{second:6} s  {objects:4} GDI objects  {handles:4} handles  {rows[-1][3]:.2f} MB", flush=True)
        if soak.wait(30) != 0 or program.poll() is not None:
            raise SystemExit("the calendar didn't last")
    first, last = rows[len(rows) // 5], rows[-1]
    gained = [last[1] - first[1], last[2] - first[2], last[3] / first[3] - 1]
    print(f"gained: {gained[0]} GDI objects, {gained[1]} handles, {gained[2]:.2%} of memory")
    sys.exit(gained[0] > 0 or gained[1] > 0 or gained[2] > ALLOWED_GROWTH)


if __name__ == "__main__":
    main()
