#!/usr/bin/env python3
"""Plants single faults at random in the portable code and sees whether the tests notice; see scripts/faults.sh."""
import argparse
import os
import pathlib
import random
import shutil
import subprocess
import threading
from concurrent.futures import ThreadPoolExecutor

from plant import faults_in, planted

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_PORTABLE = ("src/win32/", "src/memory/", "src/main/main_win32.cpp")


class Copy:
    """A copy of the tree with a build of its own, in which one fault after the other is planted."""

    def __init__(self, folder):
        self.folder = folder
        names = subprocess.run(["git", "ls-files"], cwd=ROOT, check=True, text=True, stdout=subprocess.PIPE).stdout
        for name in names.splitlines():
            target = folder / name
            if (ROOT / name).is_file() and not (target.exists() and target.read_bytes() == (ROOT / name).read_bytes()):
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(ROOT / name, target)
                shutil.copymode(ROOT / name, target)
        self.build = folder / "build/faults"
        self.run("cmake", "--preset", "faults", seconds=120)
        if not self.builds():
            raise SystemExit(f"the tree doesn't build: see {folder}/last.log")

    def run(self, *command, seconds, cwd=None):
        with open(self.folder / "last.log", "wb") as log:
            try:
                return subprocess.run(command, cwd=cwd or self.folder, stdin=subprocess.DEVNULL, stdout=log,
                                      stderr=subprocess.STDOUT, timeout=seconds, check=False).returncode
            except subprocess.TimeoutExpired:
                return -1

    def builds(self):
        return self.run("cmake", "--build", self.build, "-j1", seconds=1800) == 0

    def noticed_by(self, near):
        """The first test that fails, or nothing. Those of the fault's own folder come first."""
        units = sorted((self.build / "tests").glob("*/*_test"), key=lambda path: (path.parent.name != near, path.name))
        for unit in units:
            if self.run(unit, "--gtest_brief=1", seconds=60) != 0:
                return unit.name
        player, scenarios = self.build / "tools/play/meridex-play", self.folder / "tests/scenarios"
        for scenario in sorted(scenarios.glob("*.scn")):
            status = self.run(scenarios / "run_scenario.sh", player, scenario.name, scenario.with_suffix(".out").name,
                              seconds=20, cwd=scenarios)
            if status != 0:
                return scenario.name
        if self.run(self.build / "tests/monkey/monkey", "1", "3000", seconds=120, cwd=self.folder) != 0:
            return "monkey"
        return None

    def try_fault(self, fault):
        """"noticed by ..." , "survived", or nothing if the compiler notices."""
        path = self.folder / fault.path
        whole = path.read_text(encoding="utf-8")
        path.write_text(planted(whole, fault), encoding="utf-8")
        try:
            if not self.builds():
                return None
            by = self.noticed_by(pathlib.Path(fault.path).parent.name)
            return f"noticed by {by}" if by else "survived"
        finally:
            path.write_text(whole, encoding="utf-8")


def all_faults():
    found = []
    for path in sorted(ROOT.glob("src/*/*.cpp")):
        name = str(path.relative_to(ROOT))
        if not name.startswith(NOT_PORTABLE):
            found += faults_in(name, path.read_text(encoding="utf-8"))
    return found


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("count", nargs="?", type=int, default=100)
    parser.add_argument("seed", nargs="?", type=int, default=random.randrange(1000000))
    arguments = parser.parse_args()
    faults = all_faults()
    random.Random(arguments.seed).shuffle(faults)
    print(f"seed {arguments.seed}: {arguments.count} of {len(faults)} faults", flush=True)
    survivors, tried, lock, waiting = [], [], threading.Lock(), iter(faults)

    def work(number):
        copy = Copy(ROOT / f"build/faults-{number}")
        by = copy.noticed_by("")
        if by:
            raise SystemExit(f"{by} fails without a fault")
        while True:
            with lock:
                fault = next(waiting, None) if len(tried) < arguments.count else None
                if fault is None:
                    return
                tried.append(fault)
            result = copy.try_fault(fault)
            with lock:
                if result is None:
                    tried.remove(fault)
                    continue
                print(f"{result}: {fault}", flush=True)
                if result == "survived":
                    survivors.append(fault)

    workers = os.cpu_count() or 1
    with ThreadPoolExecutor(workers) as pool:
        for end in [pool.submit(work, number) for number in range(workers)]:
            end.result()
    print(f"seed {arguments.seed}: {len(tried) - len(survivors)} of {len(tried)} noticed; survivors:")
    for fault in survivors:
        print(f"  {fault}")
    raise SystemExit(0 if len(survivors) * 20 <= len(tried) else 1)


if __name__ == "__main__":
    main()
