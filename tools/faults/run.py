#!/usr/bin/env python3
"""Plants single faults at random in the portable code and sees whether the tests notice; see scripts/faults.sh."""
import argparse
import os
import random
import threading
from concurrent.futures import ThreadPoolExecutor

from plant import faults_in
from tree_copy import ROOT, TIMED_OUT, Copy, Trouble

NOT_PORTABLE = ("src/win32/", "src/memory/", "src/main/main_win32.cpp")


def all_faults():
    found = []
    for path in sorted([*ROOT.glob("src/*/*.cpp"), *ROOT.glob("src/*/*.h")]):
        name = str(path.relative_to(ROOT))
        if not name.startswith(NOT_PORTABLE):
            found += faults_in(name, path.read_text(encoding="utf-8"))
    return found


class Tally:
    """What has become of the faults. Refused ones and those that change nothing don't count, and others are tried."""

    def __init__(self, count, faults):
        self.count, self.waiting = count, iter(faults)
        self.lock, self.stopped = threading.Lock(), False
        self.begun, self.results = 0, []

    def next(self):
        with self.lock:
            fault = None if self.stopped or self.begun >= self.count else next(self.waiting, None)
            self.begun += fault is not None
            return fault

    def add(self, fault, result):
        with self.lock:
            self.results.append((fault, result))
            if result in ("refused", "same"):
                self.begun -= 1
            else:
                print(f"{result}: {fault}", flush=True)

    def stop(self):
        with self.lock:
            self.stopped = True

    def number(self, *beginnings):
        return sum(result.startswith(beginnings) for _, result in self.results)

    def told(self):
        tried = self.number("noticed", TIMED_OUT, "survived")
        lines = [f"{self.number('noticed', TIMED_OUT)} of {tried} noticed, {self.number(TIMED_OUT)} of them by a time-out; "
                 f"{self.number('refused')} were refused by the compiler, {self.number('same')} changed nothing; survivors:"]
        return "\n".join(lines + [f"  {fault}" for fault, result in self.results if result == "survived"])

    def complaint(self):
        """What keeps the run from passing, or nothing."""
        tried = self.number("noticed", TIMED_OUT, "survived")
        if tried < self.count:
            return f"only {tried} of {self.count} faults were tried"
        if self.number("refused") > tried:
            return "the compiler has refused more than it took"
        if self.number("survived") * 20 > tried:
            return "more than 5% survive"
        return None


def positive(text):
    number = int(text)
    if number <= 0:
        raise argparse.ArgumentTypeError("a number above 0")
    return number


def play(copy, tally):
    try:
        while fault := tally.next():
            tally.add(fault, copy.try_fault(fault))
    except BaseException:
        tally.stop()  # the others' work too
        raise


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("count", nargs="?", type=positive, default=100)
    parser.add_argument("seed", nargs="?", type=int, default=random.randrange(1000000))
    arguments = parser.parse_args()
    faults = all_faults()
    random.Random(arguments.seed).shuffle(faults)
    print(f"seed {arguments.seed}: {arguments.count} of {len(faults)} faults", flush=True)
    tally, workers = Tally(arguments.count, faults), os.cpu_count() or 1
    try:
        with ThreadPoolExecutor(workers) as pool:
            copies = list(pool.map(Copy, [ROOT / f"build/faults-{number}" for number in range(workers)]))
            for end in [pool.submit(play, copy, tally) for copy in copies]:
                end.result()
    except Trouble as trouble:
        raise SystemExit(str(trouble)) from None
    finally:
        print(f"seed {arguments.seed}: {tally.told()}", flush=True)
    raise SystemExit(tally.complaint())


if __name__ == "__main__":
    main()
