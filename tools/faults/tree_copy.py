"""A copy of the tree with a build of its own, in which one fault after the other is planted."""
import hashlib
import os
import pathlib
import re
import shutil
import signal
import subprocess

from plant import planted

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_SOURCES = {"build", ".git"}  # at the root
MEMORY = 3_000_000  # kB that a test may take: a fault that gathers without end ends itself
COMPILERS_WORD = re.compile(rb"^[^:\n]+:\d+:\d+: (?:fatal )?error: ", re.MULTILINE)
TIMED_OUT = "timed out"


class Trouble(Exception):
    """Of this machine or tree, not of a fault: nothing can be said of the tests."""


def files_of(root):
    """The paths of all files of a tree below its root, but for what is built."""
    found = set()
    for folder, inner, names in os.walk(root):
        folder = pathlib.Path(folder)
        if folder == root:
            inner[:] = [name for name in inner if name not in NOT_SOURCES]
            names = [name for name in names if name not in NOT_SOURCES and name != "last.log"]
        found |= {(folder / name).relative_to(root) for name in names}
    return found


def bring_up_to_date(source, copy):
    """Makes the copy's files those of the tree: what is the same keeps its time, and what the tree has lost goes."""
    names = files_of(source)
    for name in names:
        target = copy / name
        if not (target.exists() and target.read_bytes() == (source / name).read_bytes()):
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(source / name, target)
            shutil.copymode(source / name, target)
    for name in files_of(copy) - names:
        (copy / name).unlink()


def run_alone(command, seconds, log, cwd):
    """The status of a command, or TIMED_OUT. Whatever it started ends with it."""
    with open(log, "wb") as output, subprocess.Popen(command, cwd=cwd, stdin=subprocess.DEVNULL, stdout=output,
                                                     stderr=subprocess.STDOUT, start_new_session=True) as process:
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            return TIMED_OUT
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass  # all have ended


class Copy:
    def __init__(self, folder):
        self.folder = folder
        self.log = folder / "last.log"
        self.build = folder / "build/faults"
        folder.mkdir(parents=True, exist_ok=True)
        bring_up_to_date(ROOT, folder)
        if self.run("cmake", "--preset", "faults", seconds=120) != 0 or not self.builds():
            raise Trouble(f"the tree doesn't build: see {self.log}")
        by = self.noticed_by("")
        if by:
            raise Trouble(f"{by} fails without a fault: see {self.log}")
        self.sound = self.digest()

    def run(self, *command, seconds, cwd=None):
        return run_alone(command, seconds, self.log, cwd or self.folder)

    def run_test(self, *command, seconds, cwd=None):
        return self.run("sh", "-c", f'ulimit -v {MEMORY} && exec "$@"', "sh", *command, seconds=seconds, cwd=cwd)

    def builds(self):
        """Whether the compiler takes the copy as it stands. What else keeps a build from its end is trouble."""
        status = self.run("cmake", "--build", self.build, "-j1", seconds=1800)
        if status != 0 and not COMPILERS_WORD.search(self.log.read_bytes()):
            raise Trouble(f"a build has ended ({status}), and not by the compiler's word: see {self.log}")
        return status == 0

    def digest(self):
        """Of all that is compiled: the same as before where a fault changes nothing."""
        digest = hashlib.sha256()
        for path in sorted(self.build.rglob("*.o")):
            digest.update(str(path).encode() + hashlib.sha256(path.read_bytes()).digest())
        return digest.digest()

    def tests(self, near):
        """Each test as its name, its command and the seconds that it may take. Those of the fault's own folder come first."""
        units = sorted((self.build / "tests").glob("*/*_test"), key=lambda path: (path.parent.name != near, path.name))
        for unit in units:
            yield unit.name, (unit, "--gtest_brief=1"), 60
        player, scenarios = self.build / "tools/play/meridex-play", self.folder / "tests/scenarios"
        for scenario in sorted(scenarios.glob("*.scn")):
            yield scenario.name, (scenarios / "run_scenario.sh", player, scenario.name,
                                  scenario.with_suffix(".out").name), 20
        yield "monkey", (self.build / "tests/monkey/monkey", "1", "3000"), 120

    def noticed_by(self, near):
        """The first test that fails, and whether it has timed out; nothing if none does."""
        for name, command, seconds in self.tests(near):
            status = self.run_test(*command, seconds=seconds, cwd=self.folder / "tests/scenarios"
                                   if name.endswith(".scn") else self.folder)
            if status != 0:
                return f"{TIMED_OUT} in {name}" if status == TIMED_OUT else f"noticed by {name}"
        return None

    def try_fault(self, fault):
        """What has become of it: "noticed by ...", "timed out in ...", "survived", "refused" by the compiler, or "same" if it
        changes nothing that is compiled."""
        path = self.folder / fault.path
        whole = path.read_text(encoding="utf-8")
        path.write_text(planted(whole, fault), encoding="utf-8")
        try:
            if not self.builds():
                return "refused"
            if self.digest() == self.sound:
                return "same"
            return self.noticed_by(pathlib.Path(fault.path).parent.name) or "survived"
        finally:
            path.write_text(whole, encoding="utf-8")
